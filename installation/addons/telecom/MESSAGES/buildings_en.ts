<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Building source page</name>
    <message id="MESS_PROJECT_FILES_MISSING">
        <source>The project names files that do not exist</source>
        <extracomment>The files follow, one in a line.</extracomment>
        <translation>The project names files that do not exist</translation>
    </message>
    <message id="MESS_BUILDINGS_DS">
        <source>Building datasource</source>
        <translation>Building file</translation>
    </message>
    <message id="MESS_BUILDINGS_LY">
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message id="MESS_HEIGHT_FIELD">
        <source>Height Field</source>
        <translation>Height field</translation>
    </message>
    <message id="MESS_TERRAIN_GROUP">
        <source>Terrain</source>
        <translation>Terrain</translation>
    </message>
    <message id="MESS_MNT_EXP">
        <source>Digital terrain model</source>
        <translation>Digital terrain model</translation>
    </message>
    <message id="MESS_NO_DATA">
        <source>No Data Value</source>
        <translation>No-data value</translation>
    </message>
    <message id="MESS_GUESS_FROM_IMG">
        <source>Guess from image...</source>
        <translation>Guess from image...</translation>
    </message>
    <message id="MESS_BUILDING_REPR">
        <source>Building representation</source>
        <translation>Building representation</translation>
    </message>
    <message id="MESS_TEX_BUILDINGS">
        <source>Textured</source>
        <translation>Textured</translation>
    </message>
    <message id="MESS_TEX_BUILDINGS2">
        <source>Roof, walls or storeys of each building are textured using 
raster images (ortho images, coverages plots, ...).</source>
        <translation>The roofs, walls or storeys of each building are textured with
raster images (orthophotos, coverage plots, ...).</translation>
    </message>
    <message id="MESS_COL_BUILDINGS">
        <source>Colored</source>
        <translation>Colored</translation>
    </message>
    <message id="MESS_COL_BUILDINGS2">
        <source>&lt;p&gt;Each building is colored either with a color derived from an &lt;br/&gt;attribute value or with a color derived from a raster coverage :&lt;br/&gt;a formula (min, max, ...) is applied to all pixels it covers in a &lt;br/&gt;raster coverage .&lt;/p&gt;</source>
        <translation>&lt;p&gt;Each building gets a color of its own, either from the value of a&lt;br/&gt;field or from a coverage raster: a formula (minimum, average, ...)&lt;br/&gt;combines all pixels of the raster under the building.&lt;/p&gt;</translation>
    </message>
    <message id="MESS_INTEGER">
        <source>Integer</source>
        <translation>Integer</translation>
    </message>
    <message id="MESS_REAL">
        <source>Real</source>
        <translation>Real</translation>
    </message>
    <message id="MESS_STRING">
        <source>String</source>
        <translation>String</translation>
    </message>
    <message id="MESS_SELECT_BUILDINGS_F">
        <source>Select the buildings file to display</source>
        <translation>Select the building file to display</translation>
    </message>
    <message id="MESS_SELECT_DTM">
        <source>Select the raster DTM</source>
        <translation>Select the terrain model</translation>
    </message>
    <message id="MESS_VECTOR_FILES">
        <source>Vector Files</source>
        <translation>Vector files</translation>
    </message>
    <message id="MESS_RASTER_FILES">
        <source>Raster Files</source>
        <translation>Raster files</translation>
    </message>
    <message id="MESS_BUILDINGS_KINDS">
        <source>Vector file with the outlines of the buildings</source>
        <translation>Vector file with the outlines of the buildings</translation>
    </message>
    <message id="MESS_DTM_KINDS">
        <source>Raster with the heights of the ground</source>
        <translation>Raster with the heights of the ground</translation>
    </message>
    <message id="MESS_TIP_BUILDINGS_DS">
        <source>Path of the vector file with the outlines of the buildings; press Enter after typing one, or drop a file on the page</source>
        <translation>Path of the vector file with the outlines of the buildings; press Enter after typing one, or drop a file on the page</translation>
    </message>
    <message id="MESS_TIP_BUILDINGS_LY">
        <source>Layer of polygons with the outlines of the buildings</source>
        <translation>Layer of polygons with the outlines of the buildings</translation>
    </message>
    <message id="MESS_TIP_HEIGHT_FIELD">
        <source>Field with the height of each building above the ground</source>
        <translation>Field with the height of each building above the ground</translation>
    </message>
    <message id="MESS_TIP_MNT_EXP">
        <source>Path of the raster with the heights of the ground; press Enter after typing one, or drop a file on the page</source>
        <translation>Path of the raster with the heights of the ground; press Enter after typing one, or drop a file on the page</translation>
    </message>
    <message id="MESS_TIP_NO_DATA">
        <source>Value in the raster for an unknown height of the ground; empty if there is none</source>
        <translation>Value in the raster for an unknown height of the ground; empty if there is none</translation>
    </message>
    <message id="MESS_TIP_GUESS_FROM_IMG">
        <source>Search the raster for a value that is too low or too high for a height of the ground</source>
        <translation>Search the raster for a value that is too low or too high for a height of the ground</translation>
    </message>
    <message id="MESS_READING_BUILDINGS">
        <source>Reading the buildings...</source>
        <translation>Reading the buildings...</translation>
    </message>
    <message id="MESS_READING_EXTENT">
        <source>Computing the extent of the buildings...</source>
        <translation>Computing the extent of the buildings...</translation>
    </message>
    <message id="MESS_READING_DTM">
        <source>Reading the terrain...</source>
        <translation>Reading the terrain...</translation>
    </message>
</context>
<context>
    <name>What is told of the sources</name>
    <message id="MESS_BUILDING_COUNT">
        <source>Buildings: %1</source>
        <translation>Buildings: %1</translation>
    </message>
    <message id="MESS_NO_SYSTEM">
        <source>no coordinate system</source>
        <translation>no coordinate system</translation>
    </message>
    <message id="MESS_NO_BUILDING_PLACED">
        <source>no building has a position</source>
        <translation>no building has a position</translation>
    </message>
    <message id="MESS_PIXEL_COUNT">
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message id="MESS_DTM_COVERS">
        <source>covers the buildings</source>
        <translation>covers the buildings</translation>
    </message>
    <message id="MESS_DTM_COVERS_PART">
        <source>covers only a part of the buildings</source>
        <translation>covers only a part of the buildings</translation>
    </message>
    <message id="MESS_DTM_COVERS_NONE">
        <source>does not cover the buildings</source>
        <translation>does not cover the buildings</translation>
    </message>
</context>
<context>
    <name>Refused sources</name>
    <message id="MESS_ERR_OPEN_VECTORDS">
        <source>This file can't be open as a vector file</source>
        <translation>This file can't be opened as a vector file</translation>
    </message>
    <message id="MESS_ERR_NOPOLY_LAY">
        <source>This datasource doesn't contain any polygon layer</source>
        <translation>This file doesn't contain any layer of polygons</translation>
    </message>
    <message id="MESS_ERR_OPEN_RASTERDS">
        <source>This file can't be open as a raster dataset</source>
        <translation>This file can't be opened as a raster file</translation>
    </message>
    <message id="MESS_ERR_NO_BANDS">
        <source>This image doesn't have any band</source>
        <translation>This image doesn't have any bands</translation>
    </message>
    <message id="MESS_OUV_MNT_IMP">
        <source>Cannot open DTM</source>
        <translation>Cannot open DTM</translation>
    </message>
    <message id="MESS_ERR_NO_EXTENT">
        <source>No building of this layer has a position</source>
        <translation>No building of this layer has a position</translation>
    </message>
    <message id="MESS_DTM_IS_PICTURE">
        <source>This raster is probably a picture: its first band holds colors, which would be read as heights</source>
        <translation>This raster is probably a picture: its first band holds colors, which would be read as heights</translation>
    </message>
    <message id="MESS_CARD_BUILDING">
        <source>Building %1</source>
        <translation>Building %1</translation>
    </message>
    <message id="MESS_CARD_HEIGHT">
        <source>Height</source>
        <translation>Height</translation>
    </message>
    <message id="MESS_CARD_GROUND">
        <source>Ground</source>
        <translation>Ground height</translation>
    </message>
    <message id="MESS_CARD_COLOR">
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message id="MESS_CARD_WALLS">
        <source>Walls</source>
        <translation>Walls</translation>
    </message>
    <message id="MESS_CARD_ROOF">
        <source>Roof</source>
        <translation>Roof</translation>
    </message>
    <message id="MESS_CARD_NO_VALUE">
        <source>no value</source>
        <translation>no value</translation>
    </message>
</context>
</TS>
