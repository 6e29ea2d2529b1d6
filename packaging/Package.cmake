# cpack -G DEB in the build folder makes a Debian package: the installation tree under /opt, the commands, man pages,
# desktop entry and icons linked to where the system looks for them (postinst).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vlttelecomlayers)
set(CPACK_PACKAGE_CONTACT "VltTelecomLayers developers <developers@vlttelecomlayers.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGING_INSTALL_PREFIX /opt/vlttelecomlayers)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, fonts-dejavu-core")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/packaging/postinst;${PROJECT_SOURCE_DIR}/packaging/prerm")
include(CPack)
