# The Debian package, made by package.sh. It holds what Install.cmake installs, but for the
# documents of the sources.
set(debian ${PROJECT_SOURCE_DIR}/resources/debian)

# The revision stands in the package's changelog, and a new version has to be told there and in the
# metainfo.
file(STRINGS ${debian}/changelog newest LIMIT_COUNT 1)
file(READ ${desktop}/org.usmira.usmira.metainfo.xml metainfo)
if(NOT newest MATCHES "^usmira \\(${PROJECT_VERSION}-([0-9]+)\\)")
    message(FATAL_ERROR "resources/debian/changelog does not begin with version ${PROJECT_VERSION}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_1})
if(NOT metainfo MATCHES "<release version=\"${PROJECT_VERSION}\"")
    message(FATAL_ERROR "the metainfo does not name version ${PROJECT_VERSION}")
endif()

install(FILES ${debian}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR}
        COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES ${debian}/changelog DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME changelog.Debian
        COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME changelog
        COMPONENT debian EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME usmira)
set(CPACK_PACKAGE_CONTACT "The authors of Usmira <authors@usmira.example>")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${CMAKE_BINARY_DIR};usmira;Unspecified;/;${CMAKE_BINARY_DIR};usmira;debian;/")
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/CompressDocuments.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for interactive gamebooks")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Usmira is a desktop editor for interactive gamebooks: books of up to 2000
numbered, formatted paragraphs that send the reader to one another. You write
one paragraph at a time; Usmira keeps track of who leads where, gives
paragraphs other numbers with every reference rewritten, shows the whole book
as a grid or a graph and all that is wrong with it in one list, reads it as
its reader will, and publishes it as PDF, EPUB, HTML or RTF.
.
usmira-outil runs the same commands from scripts. The interface is French or
English.")
# The libraries are found by themselves; that of SVG brings what reads the icons. The program looks
# for the others when it runs: the icons and the French of Qt's own windows.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "breeze-icon-theme, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "desktop-file-utils, fonts-dejavu-core, fonts-liberation, hicolor-icon-theme, hunspell-fr-comprehensive,\
 hyphen-fr, mythes-fr")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS
    "bash-completion, grammalecte-cli, hyphen-en-us, qt6-gtk-platformtheme, qt6-wayland")
include(CPack)
