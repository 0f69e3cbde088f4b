# Writes the desktop entry and the bus's service file, with the program's place in them. Runs when
# the program is installed, and is told by whom: `sources`, `made` (folders), `binaries`.

set(id com.zorvek.Tessarine)
set(folder "${binaries}")
if(NOT IS_ABSOLUTE "${folder}")
    set(folder "${CMAKE_INSTALL_PREFIX}/${binaries}")
endif()
set(program "${folder}/tessarine")

# Both kinds of file have escapes for these, each its own, and no prefix deserves them.
if(program MATCHES "[\"'`$\\\\%\n\t]")
    message(FATAL_ERROR "No desktop entry names a program in ${folder}: choose another prefix")
endif()

set(command "${program}")
if(program MATCHES "[^-A-Za-z0-9/._+]")
    set(command "\"${program}\"")
endif()
file(READ "${sources}/${id}.service" service)
string(REPLACE "Exec=/usr/bin/tessarine" "Exec=${command}" service "${service}")
file(WRITE "${made}/${id}.service" "${service}")

# What every session finds by its name needs no path.
if(folder STREQUAL "/usr/bin" OR folder STREQUAL "/usr/local/bin")
    set(command tessarine)
    set(program tessarine)
endif()
file(READ "${sources}/${id}.desktop" entry)
string(REPLACE "\nExec=tessarine\n" "\nExec=${command}\n" entry "${entry}")
string(REPLACE "\nTryExec=tessarine\n" "\nTryExec=${program}\n" entry "${entry}")
file(WRITE "${made}/${id}.desktop" "${entry}")
