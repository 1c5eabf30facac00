# Benchmarks, and the empty window that start-up times are compared with.
find_package(benchmark REQUIRED)

malvone_glob(bench_core_sources bench/core*.cpp)
add_executable(bench_core ${bench_core_sources})
malvone_target(bench_core)
target_link_libraries(bench_core PRIVATE malvone_core benchmark::benchmark_main)

malvone_glob(bench_qt_sources bench/qt*.cpp)
add_executable(bench_qt ${bench_qt_sources})
malvone_qt_program(bench_qt)
target_link_libraries(bench_qt PRIVATE benchmark::benchmark_main)

add_executable(leeres_fenster "${PROJECT_SOURCE_DIR}/bench/leer.cpp")
malvone_target(leeres_fenster)
target_link_libraries(leeres_fenster PRIVATE Qt6::Widgets)
