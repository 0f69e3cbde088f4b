# Builds the program for a Mac on Linux, as far as a linker without a Mac gets. Given by check.py:
#   MACOS_CHECK_SYSROOT   a folder in the shape of the system's development kit
#   MACOS_CHECK_LIBRARY   the headers of the C++ library
#   MACOS_CHECK_LINUX     headers of libraries that are on a Mac too and here in /usr/include, which
#                         must not be read whole
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES MACOS_CHECK_SYSROOT MACOS_CHECK_LIBRARY MACOS_CHECK_LINUX)

set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_VERSION 23.0) # of macOS 14
set(CMAKE_SYSTEM_PROCESSOR arm64)
set(CMAKE_OSX_ARCHITECTURES arm64)
set(CMAKE_OSX_DEPLOYMENT_TARGET 14.0)
set(CMAKE_OSX_SYSROOT ${MACOS_CHECK_SYSROOT})

find_program(macosCheckCompiler clang++-19 REQUIRED)
find_program(macosCheckCCompiler clang-19 REQUIRED)
find_program(macosCheckArchiver NAMES llvm-ar-19 llvm-ar REQUIRED)
find_program(macosCheckRanlib NAMES llvm-ranlib-19 llvm-ranlib REQUIRED)
foreach(language CXX OBJCXX)
    set(CMAKE_${language}_COMPILER ${macosCheckCompiler})
    set(CMAKE_${language}_COMPILER_TARGET arm64-apple-macos14.0)
    set(CMAKE_${language}_FLAGS_INIT "-stdlib++-isystem ${CMAKE_CURRENT_LIST_DIR}/../libcxx \
-stdlib++-isystem ${MACOS_CHECK_LIBRARY} -isystem ${CMAKE_CURRENT_LIST_DIR}/../declarations")
    # What the declarations don't know must not be sent to anything, and nothing newer than the oldest
    # system be used.
    string(APPEND CMAKE_${language}_FLAGS_INIT " -Wundeclared-selector -Wunguarded-availability")
    # Nothing of it runs, so nothing is optimised.
    set(CMAKE_${language}_FLAGS_DEBUG_INIT "-O0 -g0")
    # Libraries here are Linux's: the linker gets lists of their names in their place.
    set(CMAKE_${language}_LINK_EXECUTABLE "python3 -B ${CMAKE_CURRENT_LIST_DIR}/../link.py \
<CMAKE_${language}_COMPILER> <FLAGS> <CMAKE_${language}_LINK_FLAGS> <LINK_FLAGS> <OBJECTS> -o <TARGET> \
<LINK_LIBRARIES>")
endforeach()
set(CMAKE_C_COMPILER ${macosCheckCCompiler})
set(CMAKE_C_COMPILER_TARGET arm64-apple-macos14.0)
set(CMAKE_AR ${macosCheckArchiver} CACHE FILEPATH "")
set(CMAKE_RANLIB ${macosCheckRanlib} CACHE FILEPATH "")
set(CMAKE_INSTALL_NAME_TOOL true CACHE FILEPATH "")
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

# Qt's own programs are those of this machine; its libraries are those of Linux, read for their headers
# and names.
set(QT_HOST_PATH /usr)
list(PREPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR})
