# The one place where the build chooses the system. Everything in which systems differ is in a folder or
# a file of this name: src/platform, tests/platform, cmake/system, texts of resources/texts.
set(TESSARINE_SYSTEM linux)
if(APPLE)
    set(TESSARINE_SYSTEM macos)
endif()

# Defines
#   tessarine_system_program(TARGET)  what makes an executable a program of the system: how it is packed
#                                     and installed
#   tessarine_system_installation()   what is installed beside the program, and its package
#   TESSARINE_SESSION_TESTS           whether the program can be tested in sessions of its own
include(${CMAKE_CURRENT_LIST_DIR}/system/${TESSARINE_SYSTEM}.cmake)
