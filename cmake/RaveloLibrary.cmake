# One static library a folder. A folder's headers are included as "folder/Header.h" and can be
# found only by those that link it, so the link lists below are the dependency rules of the house:
# every library gets an include root of its own that holds nothing but a link to its folder.

add_library(ravelo_warnings INTERFACE)
target_compile_options(ravelo_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wold-style-cast -Wcast-qual -Wconversion -Wno-sign-conversion)
target_compile_definitions(ravelo_warnings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# The include root through which the folder `path` (below src/ or tests/) becomes reachable.
function(ravelo_include_root target scope path)
    set(root "${CMAKE_BINARY_DIR}/headers/${target}")
    get_filename_component(parent "${root}/${path}" DIRECTORY)
    file(MAKE_DIRECTORY "${parent}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${root}/${path}" SYMBOLIC)
    target_include_directories(${target} ${scope} "${root}")
endfunction()

# ravelo_library(store SOURCES Store.cpp LINKS base PRIVATE_LINKS Qt6::Gui)
# The name of the library in the folder platform/x11 is platform_x11.
function(ravelo_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    file(RELATIVE_PATH path "${PROJECT_SOURCE_DIR}/src" "${CMAKE_CURRENT_SOURCE_DIR}")
    add_library(${name} STATIC ${ARG_SOURCES})
    ravelo_include_root(${name} PUBLIC "${path}")
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE ravelo_warnings ${ARG_PRIVATE_LINKS})
    ravelo_use_precompiled(${name} precompiled)
endfunction()
