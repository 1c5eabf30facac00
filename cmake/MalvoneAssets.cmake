# Puts the sounds and the manuals beside the executable, where the game looks for them.
malvone_glob(sounds assets/sounds/*.wav assets/sounds/*.WAV)
foreach(sound IN LISTS sounds)
    configure_file("${sound}" "${PROJECT_BINARY_DIR}" COPYONLY)
endforeach()

if(MALVONE_DATA)
    set(manual_builder "${PROJECT_SOURCE_DIR}/assets/manuals/typeset.py")
    malvone_glob(manual_parts assets/manuals/*.* assets/manuals/screenshots/* assets/pictures/*.svg)
    set(manuals_stamp "${PROJECT_BINARY_DIR}/generated/manuals.stamp")
    # Each manual is one .html file there; the builder makes a PDF of the same name from it.
    malvone_glob(manual_files assets/manuals/*.html)
    list(TRANSFORM manual_files REPLACE ".*/([^/]+)\\.html$" "${PROJECT_BINARY_DIR}/\\1.pdf")
    add_custom_command(OUTPUT "${manuals_stamp}" BYPRODUCTS ${manual_files}
        COMMAND "${Python3_EXECUTABLE}" -B "${manual_builder}"
                --pictures "${PROJECT_SOURCE_DIR}/assets/pictures" --out "${PROJECT_BINARY_DIR}"
        COMMAND "${CMAKE_COMMAND}" -E touch "${manuals_stamp}"
        DEPENDS ${manual_parts} COMMENT "Setting the manuals" VERBATIM)
    add_custom_target(manuals ALL DEPENDS "${manuals_stamp}")
endif()
