# French is the language of the sources, so that only its plurals are looked up; English is all in
# its table. The core carries both with it.
find_program(LRELEASE lrelease HINTS ${Qt6_DIR}/../../../qt6/bin /usr/lib/qt6/bin REQUIRED)

# usmira_embed_translations(TARGET): called where the target is made.
function(usmira_embed_translations target)
    set(sources ${PROJECT_SOURCE_DIR}/resources/translations)
    set(built ${CMAKE_CURRENT_BINARY_DIR}/translations)
    set(code ${built}/qrc_translations.cpp)
    configure_file(${sources}/translations.qrc ${built}/translations.qrc COPYONLY)
    foreach(language fr en)
        set(table ${built}/usmira_${language}.qm)
        add_custom_command(OUTPUT ${table}
            COMMAND ${LRELEASE} -silent ${sources}/usmira_${language}.ts -qm ${table}
            DEPENDS ${sources}/usmira_${language}.ts)
        list(APPEND tables ${table})
    endforeach()
    add_custom_command(OUTPUT ${code}
        COMMAND Qt6::rcc --compress-algo zlib --name translations ${built}/translations.qrc -o ${code}
        DEPENDS ${tables} ${built}/translations.qrc)
    set_source_files_properties(${code} PROPERTIES SKIP_AUTOGEN ON SKIP_PRECOMPILE_HEADERS ON)
    target_sources(${target} PRIVATE ${code})
endfunction()
