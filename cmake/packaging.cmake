# SPDX-License-Identifier: GPL-2.0-or-later

# What "cmake --install" puts where. The programs find each other, and their pages, relative to themselves, so that an
# installed tree can be moved; only the bus needs a whole path. Packages for distributions: docs/releasing.md.
# The three components are the packages: the window, the console companion, and what both need.
include(GNUInstallDirs)

set(QUORVIN_LIBEXEC libexec/quorvin)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME window)
install(TARGETS quorvin RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS quorvin-metafile quorvin-search-provider RUNTIME DESTINATION ${QUORVIN_LIBEXEC})
# English, and translated.
function(quorvin_install_manual_page page)
  install(FILES packaging/man/${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  foreach(language de es fr)
    install(FILES packaging/man/${language}/${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/${language}/man1)
  endforeach()
endfunction()

quorvin_install_manual_page(quorvin.1)
install(FILES packaging/desktop/quorvin.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/desktop/quorvin.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo RENAME org.quorvin.utility.metainfo.xml)
install(FILES packaging/mime/quorvin.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)

set(QUORVIN_ICONS ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(side 16 22 24 32 48 64 128 256 512)
  install(FILES packaging/icon/quorvin-${side}.png
    DESTINATION ${QUORVIN_ICONS}/${side}x${side}/apps RENAME quorvin.png)
endforeach()
install(FILES packaging/icon/quorvin.svg DESTINATION ${QUORVIN_ICONS}/scalable/apps)
install(FILES packaging/icon/quorvin-symbolic.svg DESTINATION ${QUORVIN_ICONS}/symbolic/apps)

# "Search with Quorvin" in file managers. Nautilus takes scripts from the user's own folder alone, where a link leads.
install(FILES packaging/service-menus/quorvin-search-folder.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/kio/servicemenus)
install(PROGRAMS "packaging/service-menus/Search with Quorvin"
  DESTINATION ${CMAKE_INSTALL_DATADIR}/quorvin/nautilus-scripts)

install(FILES packaging/search-provider/org.quorvin.utility.search-provider.ini
  DESTINATION ${CMAKE_INSTALL_DATADIR}/gnome-shell/search-providers)
install(FILES packaging/search-provider/quorvin-runner.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/krunner/dbusplugins)
# Only when it is installed is it known where.
install(CODE "
  set(QUORVIN_LIBEXEC \"\${CMAKE_INSTALL_PREFIX}/${QUORVIN_LIBEXEC}\")
  configure_file(\"${PROJECT_SOURCE_DIR}/packaging/search-provider/org.quorvin.utility.SearchProvider.service.in\"
    \"${CMAKE_CURRENT_BINARY_DIR}/org.quorvin.utility.SearchProvider.service\" @ONLY)"
  COMPONENT window)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/org.quorvin.utility.SearchProvider.service
  DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/services)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME console)
install(TARGETS quorvin-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
quorvin_install_manual_page(quorvin-cli.1)
install(FILES packaging/completions/quorvin-cli.bash
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME quorvin-cli)
install(FILES packaging/completions/_quorvin-cli DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
install(FILES packaging/completions/quorvin-cli.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)

# By these pages the programs know that they are installed, so that nothing of the user's is kept beside them.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME common)
install(DIRECTORY src/help/pages/ DESTINATION ${CMAKE_INSTALL_DATADIR}/quorvin/help)
