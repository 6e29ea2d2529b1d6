<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Coloring of buildings</name>
    <message id="MESS_FICHIER_IMAGE">
        <source>Image file</source>
        <translation>Image file</translation>
    </message>
    <message id="MESS_TIP_COLOR_IMAGE">
        <source>Raster whose values color the buildings; press Enter after typing one, or drop a file on the page</source>
        <translation>Raster whose values color the buildings; press Enter after typing one, or drop a file on the page</translation>
    </message>
    <message id="MESS_COLOR_IMAGE_KINDS">
        <source>.tif, .asc or other raster</source>
        <translation>.tif, .asc or other raster</translation>
    </message>
    <message id="MESS_SELECT_IMAGE_FILE">
        <source>Select the image to use</source>
        <translation>Select the image to use</translation>
    </message>
    <message id="MESS_SUBDATASETS">
        <source>Subdatasets</source>
        <translation>Subdatasets</translation>
    </message>
    <message id="MESS_TIP_SUBDATASETS">
        <source>Image of the file that is used</source>
        <translation>Image of the file that is used</translation>
    </message>
    <message id="MESS_VLTR3D_NODATA">
        <source>No Data Value</source>
        <translation>No-data value</translation>
    </message>
    <message id="MESS_TIP_COLOR_NODATA">
        <source>Value of pixels without data, in addition to the value that the file declares; may be empty</source>
        <translation>Value of pixels without data, in addition to the value that the file declares; may be empty</translation>
    </message>
    <message id="MESS_TIP_GUESS_COLOR_NODATA">
        <source>Search the image for a value that is far too low or too high</source>
        <translation>Search the image for a value that is far too low or too high</translation>
    </message>
    <message id="MESS_FICH_TC">
        <source>Colormap file</source>
        <translation>Colormap file</translation>
    </message>
    <message id="MESS_TIP_CMAP">
        <source>Colors of the values: the colormaps of the installation, then your own</source>
        <translation>Colors of the values: the colormaps of the installation, then your own</translation>
    </message>
    <message id="MESS_ADD_PPP">
        <source>Add...</source>
        <translation>Add...</translation>
    </message>
    <message id="MESS_SELECT_CMAP_FILE">
        <source>Select the colormap to use</source>
        <translation>Select the colormap to use</translation>
    </message>
    <message id="MESS_CMAP_FILES">
        <source>Colormap files</source>
        <translation>Colormap files</translation>
    </message>
    <message id="MESS_STRETCH_CMAP">
        <source>Stretch on raster min/max</source>
        <translation>Stretch on raster min/max</translation>
    </message>
    <message id="MESS_TIP_STRETCH_CMAP">
        <source>Stretch the colors between the minimum and maximum value; otherwise the values of the colormap apply</source>
        <translation>Stretch the colors between the minimum and maximum value; otherwise the values of the colormap apply</translation>
    </message>
    <message id="MESS_INTERP_COULEUR">
        <source>Color interpretation mode</source>
        <translation>Color interpretation mode</translation>
    </message>
    <message id="MESS_TIP_INTERP_COULEUR">
        <source>Color of a value between two values of the colormap: the color of the lower one, or a mixture of both</source>
        <translation>Color of a value between two values of the colormap: the color of the lower one, or a mixture of both</translation>
    </message>
    <message id="MESS_PLAGE_COULEURS">
        <source>Plage de couleurs</source>
        <translation>Color ranges</translation>
    </message>
    <message id="MESS_INTERPOLATION">
        <source>Interpolation</source>
        <translation>Interpolation</translation>
    </message>
    <message id="MESS_COMPUTE_MODE">
        <source>Compute mode</source>
        <translation>Compute mode</translation>
    </message>
    <message id="MESS_TIP_COMPUTE_MODE">
        <source>How the values of all pixels under a building are combined into one</source>
        <translation>How the values of all pixels under a building are combined into one</translation>
    </message>
    <message id="MESS_CM_MIN">
        <source>Minimum value</source>
        <translation>Minimum value</translation>
    </message>
    <message id="MESS_CM_MAX">
        <source>Maximum value</source>
        <translation>Maximum value</translation>
    </message>
    <message id="MESS_CM_AVG">
        <source>Average value</source>
        <translation>Average value</translation>
    </message>
    <message id="MESS_CM_MOR">
        <source>Most represented value</source>
        <translation>Most represented value</translation>
    </message>
    <message id="MESS_ERR_ONLY_GRAY">
        <source>The image-based coloring mode works only with one-band grey images</source>
        <translation>The image-based coloring mode works only with one-band gray images</translation>
    </message>
    <message id="MESS_READING_IMAGE">
        <source>Reading the image...</source>
        <translation>Reading the image...</translation>
    </message>
    <message id="MESS_READING_RANGE">
        <source>Computing the minimum and maximum value...</source>
        <translation>Computing the minimum and maximum value...</translation>
    </message>
    <message id="MESS_NEED_COLOR_IMAGE">
        <source>Choose the image that colors the buildings.</source>
        <translation>Choose the image that colors the buildings.</translation>
    </message>
    <message id="MESS_NODATA_NO_NUMBER">
        <source>The no-data value is not a number.</source>
        <translation>The no-data value is not a number.</translation>
    </message>
    <message id="MESS_IMAGE_NOT_OPENED">
        <source>Press Enter to open the image of this path.</source>
        <translation>Press Enter to open the image of this path.</translation>
    </message>
    <message id="MESS_CMAP_GONE">
        <source>The file of the colormap no longer exists: choose another colormap.</source>
        <translation>The file of the colormap no longer exists: choose another colormap.</translation>
    </message>
    <message id="MESS_NEED_CMAP">
        <source>Add a colormap.</source>
        <translation>Add a colormap.</translation>
    </message>
</context>
<context>
    <name>Extrusion of buildings</name>
    <message id="MESS_VECTOR_SOURCE">
        <source>Vector source</source>
        <translation>Vector source</translation>
    </message>
    <message id="MESS_TIP_EXTRUDED_DISTANCE">
        <source>Maximum distance at which the extruded buildings are drawn</source>
        <translation>Maximum distance at which the extruded buildings are drawn</translation>
    </message>
    <message id="MESS_TILE_SIZE">
        <source>Tile size</source>
        <translation>Tile size</translation>
    </message>
    <message id="MESS_TIP_TILE_SIZE">
        <source>Side of the square tiles of buildings</source>
        <translation>Side of the square tiles of buildings</translation>
    </message>
    <message id="MESS_CHECK_GEOM_CW">
        <source>Check that geometries are clockwise</source>
        <translation>Check that geometries are clockwise</translation>
    </message>
    <message id="MESS_TIP_CHECK_GEOM_CW">
        <source>For sources with polygons in both directions: without this check, some walls may be lit from the wrong side. The builder needs it; the preview shows both directions in the same manner.</source>
        <translation>For sources with polygons in both directions: without this check, some walls may be lit from the wrong side. The builder needs it; the preview shows both directions in the same manner.</translation>
    </message>
    <message id="MESS_EXTRUSION">
        <source>Extrusion</source>
        <translation>Extrusion</translation>
    </message>
    <message id="MESS_SKIRT_SIZE">
        <source>Skirt size</source>
        <translation>Skirt size</translation>
    </message>
    <message id="MESS_TIP_SKIRT_SIZE">
        <source>Depth of the walls below the ground, so that no gap is visible on slopes</source>
        <translation>Depth of the walls below the ground, so that no gap is visible on slopes</translation>
    </message>
</context>
<context>
    <name>Preview of buildings</name>
    <message id="MESS_AUTO_REFRESH">
        <source>Auto refresh</source>
        <translation>Refresh automatically</translation>
    </message>
    <message id="MESS_TIP_AUTO_REFRESH">
        <source>Write and show the layer again after every change</source>
        <translation>Write and show the layer again after every change</translation>
    </message>
    <message id="MESS_MAJ_VUE">
        <source>Refresh the view</source>
        <translation>Refresh the view</translation>
    </message>
    <message id="MESS_RESET_VIEW">
        <source>Reset the view</source>
        <translation>Reset the view</translation>
    </message>
    <message id="MESS_TIP_RESET_VIEW">
        <source>Show all buildings, or as many as the view can hold</source>
        <translation>Show all buildings, or as many as the view can hold</translation>
    </message>
    <message id="MESS_LOADING_BUILDINGS">
        <source>Loading the buildings...</source>
        <translation>Loading the buildings...</translation>
    </message>
    <message id="MESS_LOADING_STOPPED">
        <source>Loading was stopped; the layer itself is complete.</source>
        <translation>Loading was stopped; the layer itself is complete.</translation>
    </message>
    <message id="MESS_BUILDINGS_NOT_SHOWN">
        <source>The buildings cannot be shown: %1</source>
        <translation>The buildings cannot be shown: %1</translation>
    </message>
    <message id="MESS_BUILDINGS_SHOWN">
        <source>Buildings: %1</source>
        <translation>Buildings: %1</translation>
    </message>
    <message id="MESS_BUILDINGS_LEFT_OUT">
        <source>Buildings: %1, left out: %2</source>
        <translation>Buildings: %1, left out: %2</translation>
    </message>
    <message id="MESS_DRAWN_FROM_HERE">
        <source>%1 of %2 buildings are drawn from here</source>
        <translation>%1 of %2 buildings are drawn from here</translation>
    </message>
    <message id="MESS_VIEW_IS_STALE">
        <source>The settings have changed: refresh the view to see them.</source>
        <translation>The settings have changed: refresh the view to see them.</translation>
    </message>
    <message id="MESS_LAYER_NOT_MADE">
        <source>The layer was not made.</source>
        <translation>The layer was not made.</translation>
    </message>
</context>
<context>
    <name>Coloured page</name>
    <message id="MESS_PROP_DISPLAY">
        <source>Display properties</source>
        <translation>Display properties</translation>
    </message>
    <message id="MESS_STD_PROPS">
        <source>Standard Properties</source>
        <translation>Standard properties</translation>
    </message>
    <message id="MESS_ADV_PROPS">
        <source>Advanced Properties</source>
        <translation>Advanced properties</translation>
    </message>
    <message id="MESS_NEED_BUILDINGS">
        <source>There are no buildings yet.</source>
        <translation>There are no buildings yet.</translation>
    </message>
</context>
</TS>
