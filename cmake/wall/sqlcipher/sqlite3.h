#error "Only platform/ knows SQLCipher."
