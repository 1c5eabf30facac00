# The tests: GoogleTest programs, played games, and scripts that drive real windows.
find_package(GTest REQUIRED)
include(GoogleTest)

# Every test gets this environment, and so does listing the tests at build time.
set(test_environment LC_ALL=C.UTF-8 PYTHONDONTWRITEBYTECODE=1
    "MALVONE_BUILD=${PROJECT_BINARY_DIR}" "MALVONE_SOURCE=${PROJECT_SOURCE_DIR}")
if(MALVONE_SANITIZE)
    list(APPEND test_environment
        "ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1:strict_string_checks=1"
        "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tools/lsan.supp:print_suppressions=0"
        "UBSAN_OPTIONS=print_stacktrace=1")
endif()

# malvone_tests(NAME LIBRARY... SOURCES PATTERN... [ENVIRONMENT VAR=VALUE...])
# A test program of all sources that match.
function(malvone_tests NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;ENVIRONMENT" ${ARGN})
    malvone_glob(sources ${ARG_SOURCES})
    add_executable(${NAME} ${sources})
    malvone_target(${NAME})
    target_compile_definitions(${NAME} PRIVATE
        MALVONE_SOURCE_DIR="${PROJECT_SOURCE_DIR}" MALVONE_BINARY_DIR="${PROJECT_BINARY_DIR}")
    target_link_libraries(${NAME} PRIVATE ${ARG_UNPARSED_ARGUMENTS} GTest::gtest GTest::gtest_main)
    set_target_properties(${NAME} PROPERTIES CROSSCOMPILING_EMULATOR
        "${CMAKE_COMMAND};-E;env;${test_environment};${ARG_ENVIRONMENT}")
    gtest_discover_tests(${NAME} WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
        TEST_PREFIX "${NAME}." DISCOVERY_TIMEOUT 120 PROPERTIES TIMEOUT 300)
endfunction()

malvone_tests(core_tests malvone_drehbuch SOURCES
    tests/layer/*Test.cpp tests/windows/*Test.cpp tests/board/*Test.cpp
    tests/storage/*Test.cpp tests/ui/*Test.cpp)
malvone_tests(drehbuch_tests malvone_drehbuch SOURCES tests/games/*Test.cpp)

if(MALVONE_QT)
    malvone_tests(sound_tests malvone_sound SOURCES tests/sound/*Test.cpp)
    malvone_tests(qt_tests malvone_qt malvone_pictures SOURCES tests/qt/*Test.cpp tests/qt/main.cpp
        ENVIRONMENT QT_QPA_PLATFORM=offscreen)
    set_target_properties(qt_tests PROPERTIES AUTOMOC ON)

    # Other programs in tests/sound are driven by the scripts there: one program to a file.
    malvone_glob(sound_programs tests/sound/*.cpp)
    list(FILTER sound_programs EXCLUDE REGEX "Test\\.cpp$")
    foreach(source IN LISTS sound_programs)
        cmake_path(GET source STEM name)
        add_executable(${name} ${source})
        malvone_target(${name})
        target_link_libraries(${name} PRIVATE malvone_sound)
    endforeach()
endif()

malvone_played_games(games)
set_tests_properties(${played_games} PROPERTIES ENVIRONMENT "${test_environment}" LABELS games)

# malvone_script_tests(LABEL SOURCES PATTERN... [ARGUMENTS ARG...])
# One test for each script that matches; names with a leading underscore are modules.
function(malvone_script_tests LABEL)
    cmake_parse_arguments(ARG "" "" "SOURCES;ARGUMENTS" ${ARGN})
    malvone_glob(scripts ${ARG_SOURCES})
    list(FILTER scripts EXCLUDE REGEX "/_[^/]*$")
    foreach(script IN LISTS scripts)
        cmake_path(GET script STEM name)
        cmake_path(GET script PARENT_PATH folder)
        cmake_path(GET folder FILENAME folder)
        set(test ${LABEL}.${folder}.${name})
        add_test(NAME ${test} COMMAND "${Python3_EXECUTABLE}" "${script}" ${ARG_ARGUMENTS}
            WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}")
        set_tests_properties(${test} PROPERTIES
            ENVIRONMENT "${test_environment}" LABELS ${LABEL} TIMEOUT 300)
        if(LABEL STREQUAL "display")
            set_tests_properties(${test} PROPERTIES RUN_SERIAL ON)
        endif()
    endforeach()
endfunction()

# Scripts that play with several programs at once.
malvone_script_tests(games SOURCES tests/storage/*.py)

# Scripts that drive real windows or a real sound server; each starts what it needs by itself.
# They depend on timing, so they run alone.
if(MALVONE_QT)
    malvone_script_tests(display SOURCES tests/qt/*.py tests/sound/*_e2e.py)
endif()

# What is the same in every build is checked once, in the one that players run.
if(MALVONE_QT AND MALVONE_DATA)
    # Scripts that look at what lies in the repository or in the build folder.
    malvone_script_tests(files SOURCES tests/manuals/*.py tests/docs/*.py
        ARGUMENTS "${PROJECT_BINARY_DIR}")

    add_test(NAME packaging COMMAND "${Python3_EXECUTABLE}"
        "${PROJECT_SOURCE_DIR}/packaging/check_install.py" "${CMAKE_COMMAND}"
        "${PROJECT_BINARY_DIR}" "${CMAKE_INSTALL_PREFIX}")
    set_tests_properties(packaging PROPERTIES
        ENVIRONMENT "${test_environment}" LABELS files TIMEOUT 120)
endif()
