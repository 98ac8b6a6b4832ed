#error "Only platform/ knows OpenSSL."
