# Where an installed game lies.
if(TARGET malvone)
    install(TARGETS malvone RUNTIME DESTINATION "${MALVONE_GAMESDIR}")
    install(FILES ${sounds} DESTINATION "${MALVONE_SHAREDIR}")
endif()
