# The game as static files for a browser in build/web/, and the script program for Node. Used with
# the preset `web`, whose compiler is Emscripten's.
malvone_glob(web_sources ui/web/*.cpp)
add_executable(malvone ${web_sources})
malvone_target(malvone)
target_link_libraries(malvone PRIVATE malvone_core)
# The program's one stack is put aside while it waits for an event.
target_link_options(malvone PRIVATE --bind -sENVIRONMENT=web -sASYNCIFY
    -sASYNCIFY_STACK_SIZE=65536 -sFILESYSTEM=0 -sDYNAMIC_EXECUTION=0 -sMODULARIZE -sEXPORT_NAME=malvone)

find_program(MALVONE_NODE NAMES node nodejs REQUIRED)
set(web_folder "${PROJECT_SOURCE_DIR}/build/web")
malvone_glob(web_parts ui/web/*.in ui/web/*.css ui/web/*.js ui/web/*.mjs ui/web/*.webmanifest assets/pictures/*.svg)
add_custom_command(OUTPUT "${PROJECT_BINARY_DIR}/web.stamp"
    COMMAND "${MALVONE_NODE}" "${PROJECT_SOURCE_DIR}/ui/web/build-page.mjs"
            "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}" "${web_folder}"
    COMMAND "${CMAKE_COMMAND}" -E touch "${PROJECT_BINARY_DIR}/web.stamp"
    DEPENDS malvone manuals ${sounds} ${web_parts} VERBATIM)
add_custom_target(page ALL DEPENDS "${PROJECT_BINARY_DIR}/web.stamp")

# The script program under Node reads and writes the real files of the machine.
target_link_options(drehbuch PRIVATE -sENVIRONMENT=node -sNODERAWFS -sEXIT_RUNTIME
    "SHELL:--pre-js ${PROJECT_SOURCE_DIR}/tests/web/node.js")

# The same scripts as everywhere, and the page in a real browser.
malvone_played_games(node)
add_test(NAME page COMMAND "${MALVONE_NODE}" --test "${PROJECT_SOURCE_DIR}/tests/web/page.test.mjs")
set_tests_properties(page PROPERTIES TIMEOUT 600 RUN_SERIAL ON)
