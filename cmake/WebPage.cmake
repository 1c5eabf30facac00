# Puts the files of the page together. SOURCE is the repository, BINARY holds program, sounds and
# manuals, OUT becomes the page. NODE runs the program for its first picture.
file(REMOVE_RECURSE "${OUT}")
file(MAKE_DIRECTORY "${OUT}")
file(GLOB sounds "${BINARY}/*.wav" "${BINARY}/*.WAV")
file(GLOB manuals "${BINARY}/*.pdf")
file(COPY "${BINARY}/malvone.js" "${BINARY}/malvone.wasm" "${SOURCE}/ui/web/page.js" "${SOURCE}/packaging/malvone.svg"
    "${SOURCE}/ui/web/malvone.webmanifest" ${sounds} ${manuals} DESTINATION "${OUT}")

# The first picture of the game is shown before the program and the other pictures are there.
execute_process(COMMAND "${NODE}" "${SOURCE}/ui/web/first-picture.mjs" "${OUT}" "${SOURCE}/assets/pictures"
    "${BINARY}/first.html" "${BINARY}/first.css" COMMAND_ERROR_IS_FATAL ANY)
file(READ "${BINARY}/first.html" MALVONE_FIRST)
file(READ "${BINARY}/first.css" first_style)
file(READ "${SOURCE}/ui/web/page.css" style)
file(WRITE "${OUT}/malvone.css" "${style}${first_style}")

# One style sheet holds all pictures, so that one request brings them.
file(WRITE "${OUT}/pictures.css" "")
file(GLOB pictures "${SOURCE}/assets/pictures/*.svg")
foreach(picture IN LISTS pictures)
    cmake_path(GET picture STEM name)
    file(READ "${picture}" svg)
    string(REPLACE "%" "%25" svg "${svg}")
    string(REPLACE "#" "%23" svg "${svg}")
    string(REPLACE "\"" "'" svg "${svg}")
    string(REPLACE "\n" " " svg "${svg}")
    # A picture fills its place; a proportion of its own would leave a margin.
    string(REPLACE "<svg " "<svg preserveAspectRatio='none' " svg "${svg}")
    set(url "url(\"data:image/svg+xml,${svg}\")")
    if(name STREQUAL "hand")
        file(APPEND "${OUT}/pictures.css" "[data-hand] { cursor: ${url} 5 0, pointer; }\n")
    else()
        file(APPEND "${OUT}/pictures.css" "[data-picture=${name}] { background-image: ${url}; }\n")
    endif()
endforeach()

# What is asked for carries the mark of its build, so that files of two builds never meet.
set(contents "${MALVONE_FIRST}")
foreach(file index.html.in worker.js.in)
    file(SHA256 "${SOURCE}/ui/web/${file}" sum)
    string(APPEND contents "${sum}")
endforeach()
file(GLOB built "${OUT}/*")
set(MALVONE_BESIDE "")
foreach(file IN LISTS built)
    file(SHA256 "${file}" sum)
    string(APPEND contents "${sum}")
    cmake_path(GET file FILENAME name)
    if(name MATCHES "\\.(wav|WAV|pdf)$")
        list(APPEND MALVONE_BESIDE "${name}")
    endif()
endforeach()
string(SHA256 mark "${contents}")
string(SUBSTRING "${mark}" 0 12 MALVONE_BUILD)
list(JOIN MALVONE_BESIDE " " MALVONE_BESIDE)
set(MALVONE_FILES "page.js?${MALVONE_BUILD} malvone.css?${MALVONE_BUILD} pictures.css?${MALVONE_BUILD} malvone.js?${MALVONE_BUILD} \
malvone.wasm?${MALVONE_BUILD} malvone.svg malvone.webmanifest")
configure_file("${SOURCE}/ui/web/index.html.in" "${OUT}/index.html" @ONLY)
configure_file("${SOURCE}/ui/web/worker.js.in" "${OUT}/worker.js" @ONLY)
