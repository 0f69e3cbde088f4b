# SQLite, which is part of macOS: the headers and names of this machine's.
if(NOT TARGET SQLite::SQLite3)
    find_library(SQLite3_LIBRARY sqlite3 HINTS ${MACOS_CHECK_LIBRARIES} REQUIRED)
    add_library(SQLite::SQLite3 UNKNOWN IMPORTED)
    set_target_properties(SQLite::SQLite3 PROPERTIES IMPORTED_LOCATION ${SQLite3_LIBRARY}
                          INTERFACE_INCLUDE_DIRECTORIES ${MACOS_CHECK_LINUX})
endif()
set(SQLite3_FOUND TRUE)
