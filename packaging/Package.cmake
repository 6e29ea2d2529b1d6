# cpack -G DEB in the build folder makes a Debian package: the installation tree under /opt, and the files that the
# system needs in its own folders (LaySystemFiles.cmake). ./package.sh does all of this.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vlttelecomlayers)
set(CPACK_PACKAGE_CONTACT "VltTelecomLayers maintainers <maintainers@vlttelecomlayers.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /opt/vlttelecomlayers)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "telecom sites, links and buildings as layers of a 3D scene")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"VltTelecomLayers turns tables of telecom sites and microwave links (CSV,
XLSX, XLS, SpreadsheetML), and building footprints with predictions of
coverage, into layer files of the Veltaro 3D scene builder: masts with
colored sectors, links with their Fresnel zones and their clearance over
a terrain, and buildings colored by a raster.
.
The package holds the wizard VltTelecomLayers, its command-line twin
vltlayers, a GDAL driver that reads such tables in every GDAL program
(ogrinfo site:sites.csv), and OpenSceneGraph plug-ins that show the layers
in every viewer (osgviewer sites.lay).")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "gdal-bin, openscenegraph, xvfb")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/packaging/postinst;${PROJECT_SOURCE_DIR}/packaging/prerm")

# The libraries that the package depends on look for plug-ins in these directories.
set(CPACK_VLT_GDAL_PLUGINS /usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/gdalplugins)
set(CPACK_VLT_SCENE_PLUGINS /usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/osgPlugins-${OPENSCENEGRAPH_VERSION})
set(CPACK_VLT_SOURCE ${PROJECT_SOURCE_DIR})
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/LaySystemFiles.cmake)
include(CPack)
