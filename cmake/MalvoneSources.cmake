# Finds sources by folder, so that a new file needs no entry in a list.

# Sets OUT to all files in the repository that match one of the patterns.
function(malvone_glob OUT)
    list(TRANSFORM ARGN PREPEND "${PROJECT_SOURCE_DIR}/" OUTPUT_VARIABLE patterns)
    file(GLOB found CONFIGURE_DEPENDS ${patterns})
    set(${OUT} "${found}" PARENT_SCOPE)
endfunction()

# What every target of ours has: the repository as include root, the warnings, the language level.
function(malvone_target NAME)
    target_include_directories(${NAME} PUBLIC "${PROJECT_SOURCE_DIR}")
    target_link_libraries(${NAME} PRIVATE $<BUILD_INTERFACE:malvone_flags>)
endfunction()

# A static library of the .cpp files that lie directly in the given folders, main.cpp left out.
function(malvone_library NAME)
    list(TRANSFORM ARGN APPEND "/*.cpp" OUTPUT_VARIABLE patterns)
    malvone_glob(sources ${patterns})
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    add_library(${NAME} STATIC ${sources})
    malvone_target(${NAME})
    # Under the sanitizers GCC finds null pointers in the checks that it has inserted itself, and in
    # tests that read files it finds them in its own stream library.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT MALVONE_SANITIZE)
        target_compile_options(${NAME} PRIVATE -Wnull-dereference)
    endif()
endfunction()
