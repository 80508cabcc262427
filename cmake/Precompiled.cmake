# Most of the time of a small file goes into reading Qt. The lint reads every file without
# precompiled headers, so that one that forgets an include is found there.
set(usmira_pch_core <QtCore/QtCore> <QtGui/QtGui> <memory> <vector> <map> <optional> <functional>
                    <algorithm>)
set(usmira_pch_windows <QtWidgets/QtWidgets> ${usmira_pch_core})

# usmira_precompile(TARGET core|windows)
function(usmira_precompile target kind)
    if(USMIRA_PCH)
        target_precompile_headers(${target} PRIVATE ${usmira_pch_${kind}})
    endif()
endfunction()

# usmira_share_precompiled(TARGET LIBRARY): TARGET uses what was precompiled for LIBRARY.
function(usmira_share_precompiled target library)
    if(USMIRA_PCH)
        target_precompile_headers(${target} REUSE_FROM ${library})
    endif()
endfunction()

# usmira_precompiled_library(NAME KIND): a library of nothing but precompiled headers, for targets
# that share other compile options than the libraries'.
function(usmira_precompiled_library name kind)
    if(USMIRA_PCH)
        file(CONFIGURE OUTPUT ${name}.cpp CONTENT "")
        add_library(${name} STATIC ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
        set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
        target_link_libraries(${name} PRIVATE Qt6::Core Qt6::Gui usmira_warnings)
        if(kind STREQUAL windows)
            target_link_libraries(${name} PRIVATE Qt6::Widgets)
        endif()
        usmira_precompile(${name} ${kind})
    endif()
endfunction()
