#error "Only platform/ knows Qt Gui."
