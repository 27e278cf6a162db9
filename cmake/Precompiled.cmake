# Parsing the headers of Qt and the standard library is two thirds of a build, so they are parsed
# once. Sources include what they use all the same; only the include paths decide what they may.

set(RAVELO_PRECOMPILED
    <algorithm> <array> <chrono> <cmath> <functional> <map> <memory> <optional> <ranges> <utility> <vector>
    <QByteArray> <QDateTime> <QDir> <QFile> <QGuiApplication> <QHash> <QImage> <QJsonObject> <QList>
    <QObject> <QPainterPath> <QQmlEngine> <QQuickItem> <QRectF> <QSet> <QString> <QStringList> <QUrl>
    <QVariant>)

# Makes the headers; `precompiled` is for the program.
function(ravelo_precompiled_headers name)
    cmake_parse_arguments(ARG "" "" "HEADERS;LINKS;DEFINITIONS" ${ARGN})
    set(source "${PROJECT_BINARY_DIR}/${name}.cpp")
    file(GENERATE OUTPUT "${source}" CONTENT "// Nothing: its header counts.\n")
    add_library(${name} OBJECT "${source}")
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    # Linking would define which of Qt's libraries are there, and that must be so for all users.
    foreach(library Qt6::Quick ${ARG_LINKS})
        target_include_directories(${name} SYSTEM PRIVATE
            $<TARGET_PROPERTY:${library},INTERFACE_INCLUDE_DIRECTORIES>)
        target_compile_options(${name} PRIVATE
            $<TARGET_PROPERTY:${library},INTERFACE_COMPILE_OPTIONS>)
    endforeach()
    target_compile_definitions(${name} PRIVATE
        $<$<NOT:$<CONFIG:Debug>>:QT_NO_DEBUG> ${ARG_DEFINITIONS})
    target_link_libraries(${name} PRIVATE ravelo_warnings)
    target_precompile_headers(${name} PRIVATE ${RAVELO_PRECOMPILED} ${ARG_HEADERS})
    # For the compiler cache: the header's text tells whether it is the same.
    target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()

function(ravelo_use_precompiled target name)
    target_precompile_headers(${target} REUSE_FROM ${name})
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()
