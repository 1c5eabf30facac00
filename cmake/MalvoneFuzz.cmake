# Feeds arbitrary bytes to the code that reads the data files.
if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "MALVONE_FUZZ needs clang, which brings libFuzzer")
endif()
malvone_glob(fuzz_sources tests/fuzz/*.cpp)
add_executable(fuzz_files ${fuzz_sources})
malvone_target(fuzz_files)
target_link_libraries(fuzz_files PRIVATE malvone_drehbuch)
target_link_options(fuzz_files PRIVATE -fsanitize=fuzzer)
