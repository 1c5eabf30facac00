# The game itself: sound, the Qt binding, the pictures inside the executable.
find_package(Threads REQUIRED)
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Svg)
find_package(Fontconfig REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(LIBPULSE REQUIRED libpulse)
if(MALVONE_XCB)
    pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb)
endif()

# libpulse is loaded while the game runs; only its headers are needed here.
malvone_library(malvone_sound ui/sound)
target_include_directories(malvone_sound SYSTEM PRIVATE ${LIBPULSE_INCLUDE_DIRS})
target_link_libraries(malvone_sound PUBLIC Threads::Threads ${CMAKE_DL_LIBS})

malvone_library(malvone_qt ui/qt ui/qt/windows ui/qt/accessibility ui/qt/input ui/qt/drawing ui/qt/platform)
set_target_properties(malvone_qt PROPERTIES AUTOMOC ON)
target_compile_definitions(malvone_qt PUBLIC QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
target_link_libraries(malvone_qt PUBLIC Qt6::Widgets Qt6::Svg malvone_core malvone_sound)
if(MALVONE_XCB)
    target_compile_definitions(malvone_qt PRIVATE MALVONE_XCB)
    target_link_libraries(malvone_qt PRIVATE PkgConfig::XCB)
endif()

# Where an installed executable finds its sounds and manuals, as seen from its own folder.
cmake_path(RELATIVE_PATH MALVONE_SHARE_FOLDER BASE_DIRECTORY "${MALVONE_GAMES_FOLDER}"
    OUTPUT_VARIABLE from_games_to_share)
target_compile_definitions(malvone_qt PRIVATE MALVONE_DATADIR="${from_games_to_share}")

# The pictures as Qt resources :/pictures/NAME.svg. They are kept as they are: unpacking them would
# cost time at every start. Format 1 leaves their dates out. An object library goes into every
# program whole, so that no program has to initialise the resources by hand.
malvone_glob(pictures assets/pictures/*.svg)
set(qrc "<RCC>\n<qresource prefix=\"/pictures\">\n")
foreach(picture IN LISTS pictures)
    cmake_path(GET picture FILENAME name)
    string(APPEND qrc "<file alias=\"${name}\">${picture}</file>\n")
endforeach()
string(APPEND qrc "</qresource>\n</RCC>\n")
file(CONFIGURE OUTPUT generated/pictures.qrc CONTENT "${qrc}" @ONLY)
qt_add_resources(picture_sources "${PROJECT_BINARY_DIR}/generated/pictures.qrc"
    OPTIONS --no-compress --no-zstd --format-version 1)

# What the first frame shows at scale 1 is rendered by a program of the build.
add_executable(prerender assets/pictures/prerender.cpp ui/qt/drawing/Look.cpp
    ui/qt/drawing/Resources.cpp ${picture_sources})
malvone_target(prerender)
target_compile_definitions(prerender PRIVATE QT_NO_CAST_FROM_ASCII)
target_link_libraries(prerender PRIVATE malvone_core Qt6::Svg)
set(ready "${PROJECT_BINARY_DIR}/generated/ready")
file(MAKE_DIRECTORY "${ready}")
add_custom_command(OUTPUT "${ready}/ready.cpp"
    COMMAND "${CMAKE_COMMAND}" -E env ASAN_OPTIONS=detect_leaks=0 $<TARGET_FILE:prerender> "${ready}"
    COMMAND Qt6::rcc --name ready --no-compress --no-zstd --format-version 1 "${ready}/ready.qrc"
            -o "${ready}/ready.cpp"
    DEPENDS prerender COMMENT "Rendering the pictures of the first frame" VERBATIM)

add_library(malvone_pictures OBJECT ${picture_sources} "${ready}/ready.cpp")
target_link_libraries(malvone_pictures PRIVATE Qt6::Core)

# Links a program with the Qt binding and its pictures.
function(malvone_qt_program NAME)
    malvone_target(${NAME})
    target_link_libraries(${NAME} PRIVATE malvone_qt malvone_pictures)
endfunction()

add_executable(malvone "${PROJECT_SOURCE_DIR}/ui/qt/main.cpp")
malvone_qt_program(malvone)
target_link_libraries(malvone PRIVATE Fontconfig::Fontconfig)
