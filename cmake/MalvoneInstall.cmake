# Where an installed game lies: the executable among the games, its data beside other games' data,
# and what a desktop wants to know of it.
if(NOT TARGET malvone)
    return()
endif()

set(desktop_files "${PROJECT_BINARY_DIR}/packaging")
configure_file(packaging/malvone.metainfo.xml.in
    "${desktop_files}/io.github.malvone.malvone.metainfo.xml" @ONLY)
configure_file(packaging/malvone.6.in "${desktop_files}/malvone.6" @ONLY)

install(TARGETS malvone RUNTIME DESTINATION "${MALVONE_GAMESDIR}")
install(FILES ${sounds} DESTINATION "${MALVONE_SHAREDIR}")
if(TARGET handbuecher)
    install(FILES ${manual_files} DESTINATION "${MALVONE_SHAREDIR}")
endif()
install(FILES packaging/malvone.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${desktop_files}/io.github.malvone.malvone.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES packaging/malvone.svg
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
install(FILES packaging/malvone-48.png RENAME malvone.png
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/48x48/apps")
install(FILES "${desktop_files}/malvone.6" DESTINATION "${CMAKE_INSTALL_MANDIR}/man6")
install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}" RENAME copyright)
