# Damaged data files: what reads them is fed with arbitrary bytes.
if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "MALVONE_FUZZ needs clang, which brings libFuzzer")
endif()
malvone_glob(fuzz_sources tests/fuzz/*.cpp)
add_executable(fuzz_dateien ${fuzz_sources})
malvone_target(fuzz_dateien)
target_link_libraries(fuzz_dateien PRIVATE malvone_core)
target_link_options(fuzz_dateien PRIVATE -fsanitize=fuzzer)
