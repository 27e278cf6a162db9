# ravelo_protocols(wayland_protocols file.xml ...) makes a library of C code for what compositors
# speak, with the header <file-client.h> for each description.
find_program(WAYLAND_SCANNER wayland-scanner REQUIRED)

function(ravelo_protocols target)
    set(headers "${CMAKE_CURRENT_BINARY_DIR}/${target}")
    file(MAKE_DIRECTORY "${headers}")
    add_library(${target} STATIC)
    foreach(description ${ARGN})
        get_filename_component(name "${description}" NAME_WE)
        set(code "${CMAKE_CURRENT_BINARY_DIR}/${name}.c")
        set(header "${headers}/${name}-client.h")
        add_custom_command(OUTPUT "${code}" "${header}" DEPENDS "${description}"
            COMMAND "${WAYLAND_SCANNER}" --strict private-code "${description}" "${code}"
            COMMAND "${WAYLAND_SCANNER}" --strict client-header "${description}" "${header}")
        target_sources(${target} PRIVATE "${code}" "${header}")
    endforeach()
    # System headers: their casts are those of C.
    target_include_directories(${target} SYSTEM INTERFACE "${headers}")
    target_link_libraries(${target} PUBLIC PkgConfig::WAYLAND)
endfunction()
