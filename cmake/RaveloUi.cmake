# The folders of the interface. Each is a static library like any other, with its QML beside its
# C++: what its link list does not name it can neither include nor import.

option(RAVELO_COMPILE_QML "Compile QML to C++: starts faster, builds slower" ON)

# Two builds are to be the same, but rcc writes the time of each file. By that time Qt's own cache
# knows whether QML that is not compiled has changed.
if(RAVELO_COMPILE_QML)
    set_property(GLOBAL PROPERTY RULE_LAUNCH_CUSTOM "env SOURCE_DATE_EPOCH=1")
endif()

get_target_property(QMLCACHEGEN Qt6::qmlcachegen LOCATION)
set(RAVELO_QMLCACHEGEN "${PROJECT_BINARY_DIR}/qmlcachegen")
configure_file("${CMAKE_CURRENT_LIST_DIR}/qmlcachegen.in" "${RAVELO_QMLCACHEGEN}" @ONLY)

# ravelo_ui_library(text SOURCES Typing.cpp Typing.h QML EditLine.qml LINKS ui_theme)
# makes the library ui_text of the folder src/ui/text and its QML module Ravelo.Text. SINGLETONS are
# QML files of which there is one; PLAIN means that there is nothing for QML.
function(ravelo_ui_library folder)
    cmake_parse_arguments(ARG "PLAIN" "" "SOURCES;QML;SINGLETONS;LINKS;PRIVATE_LINKS" ${ARGN})
    set(target "ui_${folder}")
    ravelo_library(${target} SOURCES ${ARG_SOURCES} LINKS ${ARG_LINKS} Qt6::Quick
                   PRIVATE_LINKS ${ARG_PRIVATE_LINKS})
    if(ARG_PLAIN)
        return()
    endif()

    string(SUBSTRING "${folder}" 0 1 first)
    string(TOUPPER "${first}" first)
    string(SUBSTRING "${folder}" 1 -1 rest)
    set(name "${first}${rest}")
    if(ARG_SINGLETONS)
        set_source_files_properties(${ARG_SINGLETONS} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
    endif()
    # As with headers: an import root of its own with nothing but links to what it may import.
    set(imports "${target}")
    foreach(link ${ARG_LINKS})
        get_property(more GLOBAL PROPERTY RAVELO_IMPORTS_${link})
        list(APPEND imports ${more})
    endforeach()
    list(REMOVE_DUPLICATES imports)
    set_property(GLOBAL PROPERTY RAVELO_IMPORTS_${target} "${imports}")
    set_property(GLOBAL PROPERTY RAVELO_MODULE_${target} "${name}")
    set(root "${PROJECT_BINARY_DIR}/imports/${target}")
    file(MAKE_DIRECTORY "${root}/Ravelo")
    set(dependencies QtQuick) # For qmllint, which looks up the bases of types there.
    foreach(import ${imports})
        get_property(module GLOBAL PROPERTY RAVELO_MODULE_${import})
        if(NOT import STREQUAL target)
            list(APPEND dependencies "Ravelo.${module}")
        endif()
        file(CREATE_LINK "${PROJECT_BINARY_DIR}/qml/Ravelo/${module}" "${root}/Ravelo/${module}"
             SYMBOLIC)
    endforeach()
    set(cachegen)
    if(NOT RAVELO_COMPILE_QML)
        set(cachegen NO_CACHEGEN)
    endif()
    set_target_properties(${target} PROPERTIES QT_QMLCACHEGEN_EXECUTABLE "${RAVELO_QMLCACHEGEN}")
    qt_add_qml_module(${target}
        URI Ravelo.${name}
        VERSION 1.0
        RESOURCE_PREFIX /
        OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/qml/Ravelo/${name}"
        IMPORT_PATH "${root}"
        NO_PLUGIN ${cachegen}
        DEPENDENCIES ${dependencies}
        QML_FILES ${ARG_SINGLETONS} ${ARG_QML})
    # The generated registration includes the headers of the types by their bare names.
    target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    # Qt's own generated code does not keep this house's rules.
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "qmlcache|qmltyperegistrations")
    set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS "-w")

    set_property(GLOBAL APPEND PROPERTY RAVELO_UI_LIBRARIES ${target})
    set_property(GLOBAL APPEND PROPERTY RAVELO_QML_REGISTRATIONS qml_register_types_Ravelo_${name})
    if(RAVELO_COMPILE_QML AND (ARG_QML OR ARG_SINGLETONS))
        set_property(GLOBAL APPEND PROPERTY RAVELO_QML_CACHES qmlcache_${target})
    endif()
endfunction()

# Writes `file`, which makes all QML modules known that were made so far.
function(ravelo_qml_registration file)
    get_property(registrations GLOBAL PROPERTY RAVELO_QML_REGISTRATIONS)
    get_property(caches GLOBAL PROPERTY RAVELO_QML_CACHES)
    set(declarations)
    set(calls)
    foreach(registration ${registrations})
        string(APPEND declarations "void ${registration}();\n")
        string(APPEND calls "    ${registration}();\n")
    endforeach()
    foreach(cache ${caches})
        string(APPEND calls "    Q_INIT_RESOURCE(${cache});\n")
    endforeach()
    file(CONFIGURE OUTPUT "${file}" CONTENT "#include \"ui/Modules.h\"

#include <QtCore/qglobal.h>

@declarations@
// In no namespace: the macro declares a function where it stands.
static void registerAll() {
@calls@}

void ravelo::registerModules() {
    registerAll();
}
" @ONLY)
endfunction()
