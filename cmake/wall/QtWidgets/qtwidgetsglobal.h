#error "Only platform/ knows Qt Widgets."
