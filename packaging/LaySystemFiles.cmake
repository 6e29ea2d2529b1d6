# Run by cpack on the tree of the package: adds the files that the system needs outside of /opt. They are part of the
# package, so dpkg removes them.
set(root ${CPACK_TEMPORARY_DIRECTORY})
set(tree ${CPACK_PACKAGING_INSTALL_PREFIX})

function(lay_link directory name)
  file(MAKE_DIRECTORY ${root}${directory})
  get_filename_component(file ${name} NAME)
  file(CREATE_LINK ${tree}/${name} ${root}${directory}/${file} SYMBOLIC)
endfunction()

lay_link(/usr/bin VltTelecomLayers)
lay_link(/usr/bin vltlayers)
file(GLOB plugins RELATIVE ${root}${tree} ${root}${tree}/driver/*.so)
foreach(plugin IN LISTS plugins)
  if(plugin MATCHES "/osgdb_")
    lay_link(${CPACK_VLT_SCENE_PLUGINS} ${plugin})
  else()
    lay_link(${CPACK_VLT_GDAL_PLUGINS} ${plugin})
  endif()
endforeach()

# Man pages, desktop entry, AppStream data, icons.
file(RENAME ${root}${tree}/share ${root}/usr/share)
file(GLOB pages ${root}/usr/share/man/man1/*.1)

set(doc ${root}/usr/share/doc/${CPACK_PACKAGE_NAME})
configure_file(${CPACK_VLT_SOURCE}/packaging/copyright ${doc}/copyright COPYONLY)
string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)
execute_process(
  COMMAND awk -v package=${CPACK_PACKAGE_NAME} -v version=${CPACK_PACKAGE_VERSION} -v now=${now}
              -v contact=${CPACK_PACKAGE_CONTACT} -f ${CPACK_VLT_SOURCE}/packaging/changelog.awk
              ${CPACK_VLT_SOURCE}/CHANGELOG.md
  OUTPUT_FILE ${doc}/changelog COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND gzip -9n ${pages} ${doc}/changelog COMMAND_ERROR_IS_FATAL ANY)
