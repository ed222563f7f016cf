# Warnings are errors, and sanitizers cover every target alike.

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(ombrivane_warnings INTERFACE)
target_compile_options(ombrivane_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast -Werror)
# Of a text put before a text, g++ 12 believes that it may overlap itself.
target_compile_options(ombrivane_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

# A wallet counts the bytes that it ships: a release is built for size, but for the sources that go through long answers,
# and linked without what nobody calls, its relocations packed where linker and loader can. A linker that cannot only warns.
include(CheckLinkerFlag)
set(thrifty $<$<NOT:$<PLATFORM_ID:Darwin>>:-Wl,--gc-sections>)
check_linker_flag(CXX -Wl,--fatal-warnings,-z,pack-relative-relocs OMBRIVANE_PACKS_RELOCATIONS)
if(OMBRIVANE_PACKS_RELOCATIONS)
    list(APPEND thrifty -Wl,-z,pack-relative-relocs)
endif()
function(ombrivane_small target)
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-Os> $<$<CONFIG:Release>:-ffunction-sections>
        # Where it was built is nobody's business, and what is built elsewhere is the same to the byte.
        $<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>
        $<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_BINARY_DIR}/=>)
    target_link_options(${target} INTERFACE "$<BUILD_INTERFACE:$<$<CONFIG:Release>:${thrifty}>>")
endfunction()

# Where one file is built again and again, the headers that nearly all of them read are read once.
function(ombrivane_precompiled target)
    if(OMBRIVANE_PRECOMPILED)
        target_precompile_headers(${target} PRIVATE
            <nlohmann/json.hpp> <algorithm> <chrono> <functional> <map> <memory> <mutex> <optional> <string> <vector>)
    endif()
endfunction()

# Most of compiling a small file is reading what it includes: where nothing is built again and again, eight are read as one,
# or as many as are told.
function(ombrivane_united target)
    set(files ${ARGN} 8)
    list(GET files 0 files)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ${OMBRIVANE_UNITED} UNITY_BUILD_BATCH_SIZE ${files})
endfunction()

if(OMBRIVANE_SANITIZE)
    add_compile_options(-fsanitize=${OMBRIVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${OMBRIVANE_SANITIZE})
    # The code that sanitizers add hides from gcc what is initialised.
    target_compile_options(ombrivane_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()
