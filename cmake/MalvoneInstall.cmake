# Where an installed game lies: the executable among the games, its data beside other games' data,
# the manuals among the documents with a link from where the game looks for them, and what a desktop
# wants to know of it. The target "uninstall" takes all of it away again.
set(desktop_files "${PROJECT_BINARY_DIR}/packaging")
# Launchers show what the window shows.
set(MALVONE_ICON "${PROJECT_SOURCE_DIR}/assets/pictures/icon-tessel.svg")
set(MALVONE_EXECUTABLE "${MALVONE_GAMES_FOLDER}/malvone")
configure_file(packaging/malvone.desktop.in "${desktop_files}/malvone.desktop" @ONLY)
configure_file(packaging/malvone.metainfo.xml.in
    "${desktop_files}/io.github.malvone.malvone.metainfo.xml" @ONLY)
configure_file(packaging/malvone.6.in "${desktop_files}/malvone.6" @ONLY)

install(TARGETS malvone RUNTIME DESTINATION "${MALVONE_GAMESDIR}")
install(FILES ${sounds} DESTINATION "${MALVONE_SHAREDIR}")
install(FILES "${desktop_files}/malvone.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${desktop_files}/io.github.malvone.malvone.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${MALVONE_ICON}" RENAME malvone.svg
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
install(FILES "${desktop_files}/malvone.6" DESTINATION "${CMAKE_INSTALL_MANDIR}/man6")
install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}" RENAME copyright)

# The sanitizers' build is not for players, and sets no manuals and draws no icons.
if(NOT MALVONE_SANITIZE)
    find_program(RSVG_CONVERT rsvg-convert REQUIRED)
    foreach(size IN ITEMS 16 22 24 32 48 64 128 256)
        set(icon "${desktop_files}/malvone-${size}.png")
        add_custom_command(OUTPUT "${icon}"
            COMMAND "${RSVG_CONVERT}" --width=${size} --height=${size} --output "${icon}"
                    "${MALVONE_ICON}"
            DEPENDS "${MALVONE_ICON}" VERBATIM)
        install(FILES "${icon}" RENAME malvone.png
            DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps")
        list(APPEND icons "${icon}")
    endforeach()
    add_custom_target(icons ALL DEPENDS ${icons})
    # What ./play builds, so that it can be installed right afterwards.
    add_custom_target(playable DEPENDS malvone sounds manuals icons)

    install(FILES ${manual_files} DESTINATION "${CMAKE_INSTALL_DOCDIR}")
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_DOCDIR BASE_DIRECTORY "${MALVONE_SHARE_FOLDER}"
        OUTPUT_VARIABLE from_share_to_doc)
    foreach(manual IN LISTS manual_files)
        cmake_path(GET manual FILENAME name)
        set(link "${MALVONE_SHARE_FOLDER}/${name}")
        install(CODE "
            file(CREATE_LINK \"${from_share_to_doc}/${name}\" \"\$ENV{DESTDIR}${link}\" SYMBOLIC)
            list(APPEND CMAKE_INSTALL_MANIFEST_FILES \"${link}\")")
    endforeach()
endif()

add_custom_target(uninstall COMMAND "${CMAKE_COMMAND}"
    "-DMANIFEST=${PROJECT_BINARY_DIR}/install_manifest.txt"
    "-DSHARE_FOLDER=${MALVONE_SHARE_FOLDER}" "-DDOC_FOLDER=${CMAKE_INSTALL_FULL_DOCDIR}"
    -P "${PROJECT_SOURCE_DIR}/cmake/Uninstall.cmake" VERBATIM)
