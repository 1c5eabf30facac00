# How every file of the game is compiled: language level, warnings, sanitizers, compiler cache.
include(CheckCXXCompilerFlag)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Release is what players run" FORCE)
endif()
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(MALVONE_CCACHE ccache)
if(MALVONE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${MALVONE_CCACHE}")
endif()

add_library(malvone_flags INTERFACE)
target_compile_options(malvone_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wdouble-promotion -Wshadow
    -Wold-style-cast -Wcast-align -Wcast-qual -Wnon-virtual-dtor -Woverloaded-virtual
    -Wextra-semi -Wformat=2 -Wundef -Wunused)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(malvone_flags INTERFACE
        -Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wmismatched-tags)
endif()
if(MALVONE_WERROR)
    target_compile_options(malvone_flags INTERFACE -Werror)
    if(MALVONE_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # The sanitizers' own code hides initialisations from GCC.
        target_compile_options(malvone_flags INTERFACE -Wno-maybe-uninitialized)
    endif()
endif()

# Both compilers need the sanitizers in every object and at the link, so they are set globally.
set(malvone_sanitizers "")
if(MALVONE_SANITIZE)
    list(APPEND malvone_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
endif()
if(MALVONE_FUZZ)
    list(APPEND malvone_sanitizers -fsanitize=fuzzer-no-link)
endif()
if(malvone_sanitizers)
    add_compile_options(${malvone_sanitizers} -fno-omit-frame-pointer)
    add_link_options(${malvone_sanitizers})
endif()
if(NOT EMSCRIPTEN)
    add_link_options(-Wl,--as-needed)
endif()

# What players run is hardened: random addresses at every start, a symbol table that is bound and
# locked before main(), guarded stacks and copies, jumps only to valid targets. And it is the same
# wherever it is built: no path of the build machine gets in. Browsers do their own guarding.
if(NOT EMSCRIPTEN AND NOT MALVONE_SANITIZE AND NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
    add_compile_options(-fPIE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2
        "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=." "-ffile-prefix-map=${PROJECT_BINARY_DIR}=build")
    foreach(flag IN ITEMS -fstack-clash-protection -fcf-protection -mbranch-protection=standard)
        string(MAKE_C_IDENTIFIER "MALVONE_HAS${flag}" known)
        check_cxx_compiler_flag(${flag} ${known})
        if(${known})
            add_compile_options(${flag})
        endif()
    endforeach()
    add_link_options(-pie -Wl,-z,relro -Wl,-z,now)
endif()
