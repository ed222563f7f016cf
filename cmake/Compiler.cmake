# Warnings are errors, and sanitizers cover every target alike.

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(ombrivane_warnings INTERFACE)
target_compile_options(ombrivane_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast -Werror)

if(OMBRIVANE_SANITIZE)
    add_compile_options(-fsanitize=${OMBRIVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${OMBRIVANE_SANITIZE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # In instrumented code the compiler takes an empty optional of a variant for one that is read.
        target_compile_options(ombrivane_warnings INTERFACE -Wno-maybe-uninitialized)
    endif()
endif()
