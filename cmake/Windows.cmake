# What a program for Windows carries besides its code: icon and version, which the Explorer, the
# taskbar and the installer show. Made from the one drawing that all systems share.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(ICOTOOL icotool REQUIRED)

set(usmira_ico ${PROJECT_BINARY_DIR}/usmira.ico)
set(pictures)
foreach(side 16 20 24 32 40 48 64 128 256)
    set(picture ${PROJECT_BINARY_DIR}/usmira-${side}.png)
    add_custom_command(OUTPUT ${picture}
        COMMAND ${RSVG_CONVERT} -w ${side} -h ${side} -o ${picture}
            ${PROJECT_SOURCE_DIR}/resources/desktop/usmira.svg
        DEPENDS ${PROJECT_SOURCE_DIR}/resources/desktop/usmira.svg VERBATIM)
    list(APPEND pictures ${picture})
endforeach()
add_custom_command(OUTPUT ${usmira_ico} COMMAND ${ICOTOOL} -c -o ${usmira_ico} ${pictures}
    DEPENDS ${pictures} VERBATIM)
add_custom_target(usmira_icon DEPENDS ${usmira_ico})

# usmira_add_version(TARGET DESCRIPTION): called in the folder that makes the target. The tool that
# reads the script takes no folder with a space in its name, so it works where everything lies.
function(usmira_add_version target description)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}-version)
    string(REPLACE "." "," numbers ${PROJECT_VERSION})
    configure_file(${PROJECT_SOURCE_DIR}/resources/windows/version.rc.in ${folder}/version.rc @ONLY)
    add_custom_command(OUTPUT ${folder}/version.o
        COMMAND ${CMAKE_COMMAND} -E copy ${usmira_ico} ${folder}/usmira.ico
        COMMAND ${CMAKE_COMMAND} -E chdir ${folder} ${CMAKE_RC_COMPILER} version.rc version.o
        DEPENDS usmira_icon ${folder}/version.rc VERBATIM)
    target_sources(${target} PRIVATE ${folder}/version.o)
endfunction()
