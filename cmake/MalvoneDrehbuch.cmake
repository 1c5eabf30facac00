# The script program, and the games that it plays: each script is its own transcript.
malvone_library(malvone_drehbuch tests/drehbuch)
target_link_libraries(malvone_drehbuch PUBLIC malvone_core)
add_executable(drehbuch tests/drehbuch/main.cpp)
malvone_target(drehbuch)
target_link_libraries(drehbuch PRIVATE malvone_drehbuch)

# Adds a test PREFIX.NAME for each script, and sets played_games to all of them.
function(malvone_played_games PREFIX)
    malvone_glob(scripts tests/games/*.drehbuch)
    foreach(script IN LISTS scripts)
        cmake_path(GET script STEM name)
        add_test(NAME ${PREFIX}.${name}
            COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/tests/games/play.py"
                    "$<TARGET_FILE:drehbuch>" "${script}"
            WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}")
        set_tests_properties(${PREFIX}.${name} PROPERTIES TIMEOUT 120)
        list(APPEND tests ${PREFIX}.${name})
    endforeach()
    set(played_games ${tests} PARENT_SCOPE)
endfunction()
