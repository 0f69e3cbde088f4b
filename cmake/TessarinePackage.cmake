# The Debian package, made by CPack: `scripts/package`. What it says of itself is here; the files
# that only such a package has come from packaging/debian.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tessarine)
set(CPACK_PACKAGE_CONTACT "Tessarine developers <tessarine@zorvek.com>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/package)
set(CPACK_THREADS 0)

# Each build's package is an upgrade of the one before.
set(CPACK_DEBIAN_PACKAGE_RELEASE ${TESSARINE_BUILD})
if(TESSARINE_BUILD STREQUAL "")
    set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://zorvek.com)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "permanent, searchable archive of desktop notifications")
set(CPACK_PACKAGE_DESCRIPTION
"Tessarine keeps every notification that the applications of a desktop session
announce, in one file that only its user can read, and lets the user search,
sort, group, pin, delete and export them, and go back into the application
that sent one.

It sits in the tray, or in a small panel where the desktop has no tray. There
is no server and no account, and nothing leaves the computer.")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# What the program links, by its symbols' versions; what Qt and the views load at run time; the
# faces and icons that the program names. The test of the package compares the modules with what
# Qt's own scanner finds in the views.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
list(APPEND packages
    qml6-module-qt-labs-qmlmodels qml6-module-qtqml qml6-module-qtqml-models
    qml6-module-qtqml-workerscript qml6-module-qtquick qml6-module-qtquick-templates
    qml6-module-qtquick-window
    "qt6-svg-plugins | libqt6svg6" "qt6-qpa-plugins | libqt6gui6" qt6-wayland
    adwaita-icon-theme hicolor-icon-theme
    fonts-inter fonts-noto-core fonts-noto-mono fonts-noto-color-emoji
    "default-dbus-session-bus | dbus-session-bus" libglib2.0-bin xdg-utils)
list(JOIN packages ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
# Faces of a hundred megabytes, for whoever reads these scripts; who draws the notifications.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "fonts-noto-cjk, notification-daemon, qt6-xdgdesktopportal-platformtheme")

# The program alone is what is installed; tests need not be built for it.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/debian/finish.cmake)
set(CPACK_TESSARINE_SOURCES ${PROJECT_SOURCE_DIR})
include(CPack)
