# Everything that we compile links this, and nothing that Qt generates is held to less.
add_library(usmira_warnings INTERFACE)
target_compile_options(usmira_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Woverloaded-virtual
    $<$<BOOL:${USMIRA_WERROR}>:-Werror>)
target_compile_definitions(usmira_warnings INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_DISABLE_DEPRECATED_BEFORE=0x060400)
