# Installation layout and the Debian package.
#   bin/qor, bin/qor-cli         the programs
#   share/qor/pack               the data pack (the programs look for it at ../share/qor/pack)
#   share/applications, share/metainfo, share/icons   desktop integration
include(GNUInstallDirs)

install(DIRECTORY ${QOR_PACK_DIR}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/qor/pack
  PATTERN ".*" EXCLUDE)

set(CPACK_PACKAGE_NAME "qor")
set(CPACK_PACKAGE_VENDOR "QOR project")
set(CPACK_PACKAGE_CONTACT "QOR maintainers <maintainers@qor.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Offline field reference for hazardous-materials incidents")
set(CPACK_PACKAGE_DESCRIPTION "Look a material up by UN number or name and see its response guide, isolation
distances, chemistry, shipping-table entries and recent incident counts, with
no network. The bundled data pack is sample data, not for operational use.")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION "science")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Loaded at run time, so the library scan cannot see them.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "qml6-module-qtquick, qml6-module-qtquick-controls, qml6-module-qtquick-layouts, qml6-module-qtquick-templates, qml6-module-qtquick-window, qml6-module-qtqml-workerscript, qml6-module-qtwebengine, qt6-qpa-plugins | libqt6gui6, libqt6svg6")
set(CPACK_GENERATOR "DEB")
include(CPack)
