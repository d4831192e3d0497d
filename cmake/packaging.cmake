# What "cmake --install" puts where, and the Debian package: "cpack -G DEB" in the build folder. The program
# finds its metafile child and its pages relative to itself.
include(GNUInstallDirs)

install(TARGETS quorvin quorvin-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS quorvin-metafile RUNTIME DESTINATION libexec/quorvin)
install(DIRECTORY src/help/pages/ DESTINATION ${CMAKE_INSTALL_DATADIR}/quorvin/help)
install(FILES packaging/desktop/quorvin.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/desktop/quorvin.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES packaging/icon/quorvin.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES packaging/man/quorvin.1 packaging/man/quorvin-cli.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES packaging/completions/quorvin-cli.bash
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME quorvin-cli)
install(FILES packaging/completions/_quorvin-cli DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
install(FILES packaging/completions/quorvin-cli.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quorvin)
set(CPACK_PACKAGE_CONTACT "Quorvin Utility")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Find files in the listings of disks, drives and shares")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
include(CPack)
