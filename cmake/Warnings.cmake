# What each set of warnings is for:
#   -Wall -Wextra -Wpedantic   the usual suspects, and the standard's own rules
#   -Wshadow                   a local must not hide a control of the window
#   -Wconversion               bytes, 16-bit and 32-bit numbers meet here: every narrowing is written out
#   -Wold-style-cast           casts say what they do
#   -Wnon-virtual-dtor, -Woverloaded-virtual   the small abstract classes between the floors
# With the presets a warning is an error; a compiler that nobody has tried yet may warn of more.
option(LUMBRA_WERROR "Warnings are errors" OFF)
add_library(warnings INTERFACE)
target_compile_options(warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual $<$<BOOL:${LUMBRA_WERROR}>:-Werror>)
target_compile_definitions(warnings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(LUMBRA_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(LUMBRA_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
if(LUMBRA_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined)
    add_link_options(-fsanitize=address,undefined)
endif()
