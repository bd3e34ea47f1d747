# What `cmake --install` puts where on a Linux desktop, and the .deb that CPack builds from it.
# The notes and the default sounds are compiled into the client, which writes them into its
# data folder at the first start, so the installed program finds them wherever it lies.
include(GNUInstallDirs)

install(TARGETS thornmere-steward thornmere-world RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${PROJECT_SOURCE_DIR}/packaging/org.thornmere.Steward.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/org.thornmere.Steward.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/packaging/icons/hicolor
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
install(FILES ${PROJECT_SOURCE_DIR}/README.md "${PROJECT_SOURCE_DIR}/resources/Version Notes.Txt"
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/thornmere-steward)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME thornmere-steward)
set(CPACK_PACKAGE_VENDOR "Thornmere Steward developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Desktop client for the text role-playing game Thornmere")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Thornmere Steward developers <steward@localhost>")
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# "Speak" needs a speech engine, which Qt finds as a plugin.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-speech-speechd-plugin | qt6-speech-flite-plugin")
include(CPack)
