# A release defends itself as the programs of Debian do; a debug build is for the debugger.
add_compile_options("$<$<CONFIG:Release>:-fstack-protector-strong;-D_FORTIFY_SOURCE=2>")
add_link_options("$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")
