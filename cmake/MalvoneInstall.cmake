# Installs the game: the executable among the games, sounds and manuals beside other games' data, with
# links to the manuals among the documents, and what a desktop needs to know. The target "uninstall"
# removes all of it. The page is a folder that any web server can serve.
set(desktop_files "${PROJECT_BINARY_DIR}/packaging")
file(MAKE_DIRECTORY "${desktop_files}")
if(MALVONE_QT)
    set(MALVONE_EXECUTABLE "${MALVONE_GAMES_FOLDER}/malvone")
    execute_process(COMMAND "${Python3_EXECUTABLE}" -B "${PROJECT_SOURCE_DIR}/tools/changes.py" metainfo
        OUTPUT_VARIABLE MALVONE_RELEASES COMMAND_ERROR_IS_FATAL ANY)
    configure_file(packaging/malvone.desktop.in "${desktop_files}/malvone.desktop" @ONLY)
    configure_file(packaging/malvone.metainfo.xml.in
        "${desktop_files}/io.github.malvone.malvone.metainfo.xml" @ONLY)
    configure_file(packaging/malvone.6.in "${desktop_files}/malvone.6" @ONLY)

    install(TARGETS malvone RUNTIME DESTINATION "${MALVONE_GAMESDIR}")
    install(FILES "${desktop_files}/malvone.desktop"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
    install(FILES "${desktop_files}/io.github.malvone.malvone.metainfo.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
    install(FILES "${desktop_files}/malvone.6" DESTINATION "${CMAKE_INSTALL_MANDIR}/man6")
    install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}" RENAME copyright)
endif()

if(MALVONE_DATA)
    install(FILES ${sounds} ${manual_files} DESTINATION "${MALVONE_SHAREDIR}")
    cmake_path(RELATIVE_PATH MALVONE_SHARE_FOLDER BASE_DIRECTORY "${CMAKE_INSTALL_FULL_DOCDIR}"
        OUTPUT_VARIABLE from_doc_to_share)
    foreach(manual IN LISTS manual_files)
        cmake_path(GET manual FILENAME name)
        file(CREATE_LINK "${from_doc_to_share}/${name}" "${desktop_files}/${name}" SYMBOLIC)
        install(FILES "${desktop_files}/${name}" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
    endforeach()

    # Launchers show what the window shows.
    set(icon_drawing "${PROJECT_SOURCE_DIR}/assets/pictures/icon-tessel.svg")
    install(FILES "${icon_drawing}" RENAME malvone.svg
        DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
    find_program(RSVG_CONVERT rsvg-convert REQUIRED)
    foreach(size IN ITEMS 16 22 24 32 48 64 128 256)
        set(icon "${desktop_files}/malvone-${size}.png")
        add_custom_command(OUTPUT "${icon}"
            COMMAND "${RSVG_CONVERT}" --width=${size} --height=${size} --output "${icon}"
                    "${icon_drawing}"
            DEPENDS "${icon_drawing}" VERBATIM)
        install(FILES "${icon}" RENAME malvone.png
            DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps")
        list(APPEND icons "${icon}")
    endforeach()
    add_custom_target(icons ALL DEPENDS ${icons})
endif()

if(MALVONE_QT AND MALVONE_DATA)
    # What ./play builds, so that it can be installed right afterwards.
    add_custom_target(playable DEPENDS malvone manuals icons)
endif()
if(MALVONE_WEB)
    install(DIRECTORY "${web_folder}/" DESTINATION "${CMAKE_INSTALL_DATADIR}/malvone-web")
endif()

add_custom_target(uninstall COMMAND "${CMAKE_COMMAND}"
    "-DMANIFEST=${PROJECT_BINARY_DIR}/install_manifest.txt"
    "-DSHARE_FOLDER=${MALVONE_SHARE_FOLDER}" "-DDOC_FOLDER=${CMAKE_INSTALL_FULL_DOCDIR}"
    -P "${PROJECT_SOURCE_DIR}/cmake/Uninstall.cmake" VERBATIM)
