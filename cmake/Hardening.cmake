# A release defends itself as the programs of Debian do; a debug build is for the debugger. Fortified
# calls are left out: they have other names, which the tests of failing file calls would not see.
add_compile_options("$<$<CONFIG:Release>:-fstack-protector-strong>")
if(NOT WIN32) # its linker has no such sections
    add_link_options("$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")
endif()
