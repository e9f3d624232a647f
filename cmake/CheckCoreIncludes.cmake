# Checks every #include of the portable core. A room may include the C++ standard library, ICU, nlohmann/json,
# itself, the seams and the rooms below it; anything else (Qt, D-Bus, X11, SQLite, a platform layer, a room
# above) fails the build with the offending line.
#
# Called with SOURCE_DIR (the src folder) and STAMP (a file to touch on success).

# From the bottom up: a room may include those before it. The seams (platform/*.h) stand above model.
set(rooms support model platform stores commands menus execution KeyboardShortcuts hotkeys palette settings)

set(allowed "")
set(offences "")
foreach(room IN LISTS rooms)
    list(APPEND allowed ${room})
    list(JOIN allowed "|" allowed_rooms)
    file(GLOB files ${SOURCE_DIR}/${room}/*.h ${SOURCE_DIR}/${room}/*.cpp)
    foreach(file IN LISTS files)
        file(STRINGS ${file} includes REGEX "^[ \t]*#[ \t]*include")
        foreach(line IN LISTS includes)
            if(line MATCHES "<[a-z_0-9]+>" OR line MATCHES "<unicode/[a-z0-9]+\\.h>"
               OR line MATCHES "<nlohmann/json(_fwd)?\\.hpp>" OR line MATCHES "\"(${allowed_rooms})/[A-Za-z0-9]+\\.h\"")
                continue()
            endif()
            string(APPEND offences "\n  ${file}: ${line}")
        endforeach()
    endforeach()
endforeach()

if(offences)
    message(FATAL_ERROR "The core includes what it must not:${offences}")
endif()
file(TOUCH ${STAMP})
