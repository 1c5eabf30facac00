# Benchmarks, and the bare windows that start-up times are compared with.
find_package(benchmark REQUIRED)

malvone_glob(bench_core_sources bench/core*.cpp)
add_executable(bench_core ${bench_core_sources})
malvone_target(bench_core)
target_link_libraries(bench_core PRIVATE malvone_core benchmark::benchmark_main)

malvone_glob(bench_qt_sources bench/qt*.cpp)
add_executable(bench_qt ${bench_qt_sources})
malvone_qt_program(bench_qt)
target_link_libraries(bench_qt PRIVATE benchmark::benchmark_main)

add_executable(bare_windows "${PROJECT_SOURCE_DIR}/bench/bare_windows.cpp")
malvone_target(bare_windows)
target_link_libraries(bare_windows PRIVATE Qt6::Widgets)
