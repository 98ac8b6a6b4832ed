# Warnings and sanitizers, for every target of this project.
add_compile_options(
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wcast-align -Wunused -Wnull-dereference -Wformat=2 -Wimplicit-fallthrough)

if(POURBOOK_WERROR)
    add_compile_options(-Werror)
endif()

if(POURBOOK_SANITIZE)
    # A finding ends the process, so that it cannot be overlooked in a log.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
