# Run by CPack on what was installed, before it is packed: Debian has manual pages and changelogs
# compressed. Without the time in them, the same text gives the same bytes.
set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
file(GLOB_RECURSE pages ${share}/man/*.1)
file(GLOB changelogs ${share}/doc/*/changelog*)
execute_process(COMMAND gzip -9 --no-name ${pages} ${changelogs} COMMAND_ERROR_IS_FATAL ANY)
