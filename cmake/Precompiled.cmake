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
