# What is the Mac's alone in the build.

enable_language(OBJCXX)
set(CMAKE_OBJCXX_STANDARD 20)
set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
set(CMAKE_OBJCXX_EXTENSIONS OFF)

set(TESSARINE_SESSION_TESTS OFF)
# The benchmarks measure by what Linux and its C library tell.
set(TESSARINE_BENCH OFF)

set(TESSARINE_SPARKLE "" CACHE PATH
    "Path of Sparkle.framework, which looks for new versions; empty: nothing does")
set(TESSARINE_FEED_URL "" CACHE STRING "With Sparkle: the address where it looks")
set(TESSARINE_FEED_KEY "" CACHE STRING "With Sparkle: the public key (EdDSA) of what lies there")

# Sparkle without a feed shows an error at every start.
if(TESSARINE_SPARKLE AND NOT (TESSARINE_FEED_URL AND TESSARINE_FEED_KEY))
    message(FATAL_ERROR "TESSARINE_SPARKLE needs TESSARINE_FEED_URL and TESSARINE_FEED_KEY")
endif()

set(TESSARINE_FEED_ENTRIES "")
if(TESSARINE_SPARKLE)
    set(TESSARINE_FEED_ENTRIES
        "\t<key>SUFeedURL</key>\n\t<string>${TESSARINE_FEED_URL}</string>\n"
        "\t<key>SUPublicEDKey</key>\n\t<string>${TESSARINE_FEED_KEY}</string>\n")
    list(JOIN TESSARINE_FEED_ENTRIES "" TESSARINE_FEED_ENTRIES)
endif()

# Tessarine.app, in the build folder without the libraries, as a developer starts it; the installation
# puts them into it.
function(tessarine_system_program name)
    set(resources ${PROJECT_SOURCE_DIR}/resources)
    set(icon ${resources}/macos/Tessarine.icns)
    target_sources(${name} PRIVATE ${icon})
    set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
    configure_file(${resources}/macos/Info.plist.in ${PROJECT_BINARY_DIR}/Info.plist @ONLY)
    set_target_properties(${name} PROPERTIES
        MACOSX_BUNDLE ON
        OUTPUT_NAME Tessarine
        MACOSX_BUNDLE_INFO_PLIST ${PROJECT_BINARY_DIR}/Info.plist
        BUILD_RPATH "${TESSARINE_SPARKLE}/.."
        INSTALL_RPATH "@executable_path/../Frameworks")
    install(TARGETS ${name} BUNDLE DESTINATION .)
    if(TESSARINE_SPARKLE)
        install(DIRECTORY ${TESSARINE_SPARKLE} DESTINATION Tessarine.app/Contents/Frameworks
                USE_SOURCE_PERMISSIONS)
    endif()
    tessarine_deploy_qt(${name})
endfunction()

# Qt's frameworks, plug-ins and QML modules and the other libraries go into the installed bundle. Qt
# knows how from 6.5 on.
function(tessarine_deploy_qt name)
    if(Qt6_VERSION VERSION_LESS 6.5)
        message(STATUS "Qt ${Qt6_VERSION} can't deploy: an installed bundle needs Qt on its machine")
        return()
    endif()
    qt_generate_deploy_qml_app_script(TARGET ${name} OUTPUT_SCRIPT deploying)
    install(SCRIPT ${deploying})
endfunction()

# The bundle holds everything.
macro(tessarine_system_installation)
endmacro()
