# Settings that every target of the project shares, and one function for each kind of target.

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(tessarine_build INTERFACE)
target_compile_options(tessarine_build INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
target_compile_definitions(tessarine_build INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII
                           QT_NO_CAST_TO_ASCII QT_STRICT_ITERATORS)
target_include_directories(tessarine_build INTERFACE ${PROJECT_SOURCE_DIR}/src)

if(TESSARINE_SANITIZE)
    add_compile_options(-fsanitize=${TESSARINE_SANITIZE} -fno-omit-frame-pointer
                        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${TESSARINE_SANITIZE})
endif()
if(TESSARINE_SANITIZE MATCHES thread AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # What Qt generates for QML has fences, which ThreadSanitizer doesn't follow. Ours has none.
    add_compile_options(-Wno-tsan)
endif()

# Of the time that a source takes to compile, more than half goes into the headers of Qt and the
# standard library. Compiling several sources as one saves most of that: all tests, and the program
# where CMAKE_UNITY_BUILD says so. That each source includes what it uses is a check of its own.
set(CMAKE_UNITY_BUILD_BATCH_SIZE 12)

# A compiler that keeps what it made of those headers saves most of the rest. Each fuzz target has
# settings of its own, for which what was kept would not serve.
if(NOT TESSARINE_FUZZ AND CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    set(tessarinePrecompiles ON)
    if(CMAKE_CXX_COMPILER_ID MATCHES Clang) # whose file of it would differ with the time
        add_compile_options("SHELL:$<$<COMPILE_LANGUAGE:CXX>:-Xclang -fno-pch-timestamp>")
    endif()
    if(CMAKE_CXX_COMPILER_LAUNCHER STREQUAL "${CCACHE}") # which wants to be told
        set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_DEPEND=1
            CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
    endif()
endif()
set(tessarineCoreHeaders <QByteArray> <QCoreApplication> <QDir> <QFile> <QHash> <QList> <QObject> <QPointer>
    <QString> <QStringList> <QVariant> <algorithm> <chrono> <functional> <map> <memory> <mutex> <optional>
    <string> <utility> <vector>)
set(tessarineViewHeaders ${tessarineCoreHeaders} <QGuiApplication> <QPainter> <QQmlEngine> <QQuickItem>
    <QQuickView> <QQuickWindow> <QtQml/qqmlregistration.h>)

# tessarine_precompiled_headers(NAME SETTINGS MODULE HEADERS...): a set of headers for targets that are
# compiled with those settings and link at least that module of Qt.
function(tessarine_precompiled_headers name settings module)
    if(tessarinePrecompiles)
        set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
        file(CONFIGURE OUTPUT ${source} CONTENT "" @ONLY)
        add_library(${name} OBJECT ${source})
        set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
        target_link_libraries(${name} PRIVATE ${settings} ${module})
        target_precompile_headers(${name} PRIVATE ${ARGN})
    endif()
endfunction()

# What was compiled as C++ serves no target with sources in Objective-C.
function(tessarine_use_precompiled name headers)
    get_target_property(sources ${name} SOURCES)
    if(tessarinePrecompiles AND NOT sources MATCHES "\\.mm(;|$)")
        set_target_properties(${name} PROPERTIES PRECOMPILE_HEADERS_REUSE_FROM ${headers})
    endif()
endfunction()

# A static library of one folder (or a part of one); links what it names and nothing else. MOC where
# it has classes with signals: looking for such in every target would cost more than compiling many.
function(tessarine_library name)
    cmake_parse_arguments(ARG "MOC" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ${ARG_MOC})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE tessarine_build ${ARG_PRIVATE_LINKS})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    if("Qt6::Quick" IN_LIST ARG_LINKS OR "tessarine_windows" IN_LIST ARG_LINKS)
        tessarine_use_precompiled(${name} tessarine_view_headers)
    elseif(ARG_LINKS OR ARG_PRIVATE_LINKS) # all that do link Qt's core
        tessarine_use_precompiled(${name} tessarine_core_headers)
    endif()
endfunction()

# What Qt's QML compiler writes is not ours to mend: no warnings for it. A file of C++ for each view
# would take longer to compile than all else, nearly all of it for the same headers, so they are
# compiled as one; and under sanitizers it writes byte code alone. After qt_add_qml_module.
function(tessarine_generated_qml_code name)
    get_target_property(sources ${name} SOURCES)
    list(FILTER sources INCLUDE REGEX "/qmlcache/")
    set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS "-w"
                                SKIP_UNITY_BUILD_INCLUSION ON)
    if(TESSARINE_SANITIZE)
        set_target_properties(${name} PROPERTIES QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
    endif()

    list(FILTER sources INCLUDE REGEX "_qml\\.cpp$")
    set_source_files_properties(${sources} PROPERTIES HEADER_FILE_ONLY ON)
    list(TRANSFORM sources REPLACE "(.+)" "#include \"\\1\"")
    list(JOIN sources "\n" includes)
    set(together ${CMAKE_CURRENT_BINARY_DIR}/${name}_views.cpp)
    file(CONFIGURE OUTPUT ${together} CONTENT "${includes}\n" @ONLY)
    set_source_files_properties(${together} PROPERTIES COMPILE_OPTIONS "-w" SKIP_AUTOGEN ON
                                SKIP_UNITY_BUILD_INCLUSION ON)
    target_sources(${name} PRIVATE ${together})
endfunction()

# Makes a library of tessarine_library() a QML module too.
function(tessarine_qml_module name)
    cmake_parse_arguments(ARG "" "URI" "DEPENDENCIES;QML_FILES" ${ARGN})
    qt_add_qml_module(${name}
        URI ${ARG_URI}
        VERSION 1.0
        RESOURCE_PREFIX /qt/qml
        NO_PLUGIN
        DEPENDENCIES ${ARG_DEPENDENCIES}
        QML_FILES ${ARG_QML_FILES})
    tessarine_generated_qml_code(${name})
    tessarine_use_precompiled(${name} tessarine_view_headers)
endfunction()
