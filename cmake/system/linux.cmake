# What is Linux's alone in the build.

set(TESSARINE_SESSION_TESTS ON)

# The linker that comes with the compiler takes most of the time of a build after a small change.
find_program(MOLD mold)
if(MOLD)
    add_link_options(-fuse-ld=mold)
endif()

function(tessarine_system_program name)
    install(TARGETS ${name} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md
                  ${PROJECT_SOURCE_DIR}/LICENSE
            DESTINATION ${CMAKE_INSTALL_DOCDIR})
endfunction()

macro(tessarine_system_installation)
    add_subdirectory(resources/linux)
    include(cmake/TessarinePackage.cmake)
endmacro()
