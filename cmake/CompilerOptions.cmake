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

if(POURBOOK_FUZZ)
    # All code counts its branches; only the targets have the fuzzer's main.
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# What makes a fault harder to exploit, in what people run. tests/package looks whether the linked program has it.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
if(CMAKE_BUILD_TYPE STREQUAL Release)
    add_compile_options(
        -fstack-protector-strong -fstack-clash-protection
        -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -D_GLIBCXX_ASSERTIONS)
    if(CMAKE_SYSTEM_PROCESSOR STREQUAL x86_64)
        add_compile_options(-fcf-protection)
    endif()
    add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)

    # The same sources give the same program, wherever they stand.
    add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
endif()
