# Makes of what was installed what Debian's policy wants to see: runs in CPack, before it packs.

set(share "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share")
set(documents "${share}/doc/tessarine")

function(run)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C TZ=UTC ${ARGN} COMMAND_ERROR_IS_FATAL ANY OUTPUT_VARIABLE said
                    OUTPUT_STRIP_TRAILING_WHITESPACE)
    set(said "${said}" PARENT_SCOPE)
endfunction()

# Compressed without a name or a time, so that equal content gives equal files.
function(compress path)
    run(gzip --best --no-name --force "${path}")
    file(CHMOD "${path}.gz" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endfunction()

# The licence has a form of its own there, and what is said of building is for the sources.
file(REMOVE "${documents}/LICENSE" "${documents}/README.md")
file(COPY_FILE "${CPACK_TESSARINE_SOURCES}/packaging/debian/copyright" "${documents}/copyright")

# Lintian of Debian 12 takes all texts in the program for English; to later ones, who don't, an
# override without a use is a fault.
file(READ "${CPACK_TESSARINE_SOURCES}/packaging/debian/lintian-overrides" overrides)
find_program(LINTIAN lintian)
if(LINTIAN)
    run("${LINTIAN}" --print-version)
    if(said VERSION_GREATER_EQUAL 2.117)
        string(REGEX REPLACE "# The texts[^\n]*\n[^\n]*\n" "" overrides "${overrides}")
    endif()
endif()
file(WRITE "${share}/lintian/overrides/tessarine" "${overrides}")

# The same sources give the same package: its date is that of the last change.
set(date "$ENV{SOURCE_DATE_EPOCH}")
if(date STREQUAL "")
    run(git -C "${CPACK_TESSARINE_SOURCES}" log -1 --format=%ct)
    set(date "${said}")
endif()
run(date --rfc-email "--date=@${date}")
set(version "${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
file(WRITE "${documents}/changelog.Debian"
"tessarine (${version}) unstable; urgency=medium

  * Made from the program's own sources. What has changed in them is told in
    the changelog beside this one.

 -- ${CPACK_PACKAGE_CONTACT}  ${said}
")
file(RENAME "${documents}/CHANGELOG.md" "${documents}/changelog")
compress("${documents}/changelog.Debian")
compress("${documents}/changelog")
compress("${share}/man/man1/tessarine.1")

# --- Debug symbols, in a package of their own, found by the id of the build -----------------------

set(program "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/bin/tessarine")
set(apart "${CPACK_TOPLEVEL_DIRECTORY}/symbols")
run(readelf --notes "${program}")
if(NOT said MATCHES "Build ID: ([0-9a-f][0-9a-f])([0-9a-f]+)")
    message(FATAL_ERROR "The program has no build id")
endif()
set(symbols "usr/lib/debug/.build-id/${CMAKE_MATCH_1}/${CMAKE_MATCH_2}.debug")
get_filename_component(folder "${apart}/${symbols}" DIRECTORY)
file(REMOVE_RECURSE "${apart}")
file(MAKE_DIRECTORY "${folder}" "${apart}/DEBIAN" "${apart}/usr/share/doc")
run(objcopy --only-keep-debug --compress-debug-sections "${program}" "${apart}/${symbols}")
run(strip --remove-section=.comment "${program}")
file(CHMOD "${apart}/${symbols}" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
file(CREATE_LINK tessarine "${apart}/usr/share/doc/tessarine-dbgsym" SYMBOLIC)

run(dpkg --print-architecture)
file(SIZE "${apart}/${symbols}" size)
math(EXPR kibibytes "(${size} + 1023) / 1024")
file(WRITE "${apart}/DEBIAN/control"
"Package: tessarine-dbgsym
Version: ${version}
Architecture: ${said}
Auto-Built-Package: debug-symbols
Maintainer: ${CPACK_PACKAGE_CONTACT}
Installed-Size: ${kibibytes}
Depends: tessarine (= ${version})
Section: debug
Priority: optional
Build-Ids: ${CMAKE_MATCH_1}${CMAKE_MATCH_2}
Description: debug symbols for tessarine
")
file(MD5 "${apart}/${symbols}" sum)
file(WRITE "${apart}/DEBIAN/md5sums" "${sum}  ${symbols}\n")
run(dpkg-deb --root-owner-group -Zxz --build "${apart}"
    "${CPACK_PACKAGE_DIRECTORY}/tessarine-dbgsym_${version}_${said}.deb")
