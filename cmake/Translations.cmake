# French is the language of the sources. Only its plurals are looked up, in a table that the core
# carries with it.
find_program(LRELEASE lrelease HINTS ${Qt6_DIR}/../../../qt6/bin /usr/lib/qt6/bin REQUIRED)

# usmira_embed_translations(TARGET): called where the target is made.
function(usmira_embed_translations target)
    set(sources ${PROJECT_SOURCE_DIR}/resources/translations)
    set(built ${CMAKE_CURRENT_BINARY_DIR}/translations)
    set(code ${built}/qrc_translations.cpp)
    configure_file(${sources}/translations.qrc ${built}/translations.qrc COPYONLY)
    add_custom_command(OUTPUT ${built}/usmira_fr.qm
        COMMAND ${LRELEASE} -silent ${sources}/usmira_fr.ts -qm ${built}/usmira_fr.qm
        DEPENDS ${sources}/usmira_fr.ts)
    add_custom_command(OUTPUT ${code}
        COMMAND Qt6::rcc --name translations ${built}/translations.qrc -o ${code}
        DEPENDS ${built}/usmira_fr.qm ${built}/translations.qrc)
    set_source_files_properties(${code} PROPERTIES SKIP_AUTOGEN ON SKIP_PRECOMPILE_HEADERS ON)
    target_sources(${target} PRIVATE ${code})
endfunction()
