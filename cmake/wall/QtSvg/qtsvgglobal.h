#error "Only platform/ knows Qt Svg."
