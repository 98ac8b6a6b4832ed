#error "Only platform/ knows Qt DBus."
