# Puts the program where a desktop finds it. The targets install themselves beside their sources.
set(usmira_data ${CMAKE_INSTALL_DATADIR}/usmira)
set(desktop ${PROJECT_SOURCE_DIR}/resources/desktop)

install(DIRECTORY resources/documents/ DESTINATION ${usmira_data})
install(DIRECTORY resources/samples/ DESTINATION ${usmira_data}/samples)
install(FILES ${desktop}/usmira.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${desktop}/org.usmira.usmira.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable)
install(FILES ${desktop}/usmira.svg DESTINATION ${icons}/apps)
install(FILES ${desktop}/usmira.svg DESTINATION ${icons}/mimetypes
        RENAME application-x-usmira-adventure.svg)
install(FILES ${desktop}/usmira.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES ${desktop}/usmira-outil.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME usmira-outil)
install(DIRECTORY resources/man/ DESTINATION ${CMAKE_INSTALL_MANDIR})
install(FILES README.md LISEZMOI.md CHANGELOG.md LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR}
        COMPONENT documents)
