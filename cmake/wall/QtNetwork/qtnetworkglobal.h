#error "Only platform/ knows Qt Network."
