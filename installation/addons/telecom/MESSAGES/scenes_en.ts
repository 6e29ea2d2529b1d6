<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Scenes</name>
    <message id="MESS_SCENE_NO_FILE">
        <source>it is not a file</source>
        <translation>it is not a file</translation>
    </message>
    <message id="MESS_SCENE_UNREADABLE">
        <source>it cannot be read</source>
        <translation>it cannot be read</translation>
    </message>
    <message id="MESS_SCENE_LARGE_FILE">
        <source>it is too large for a file of its kind</source>
        <translation>it is too large for a file of its kind</translation>
    </message>
    <message id="MESS_SCENE_NO_ROOT">
        <source>there is no element veltaroLayer</source>
        <translation>there is no element veltaroLayer</translation>
    </message>
    <message id="MESS_SCENE_NO_KIND">
        <source>the kind of the layer is missing</source>
        <translation>the kind of the layer is missing</translation>
    </message>
    <message id="MESS_SCENE_BAD_KIND">
        <source>layers of the kind "%1" cannot be shown, only "sites", "links" and "buildings"</source>
        <translation>layers of the kind "%1" cannot be shown, only "sites", "links" and "buildings"</translation>
    </message>
    <message id="MESS_SCENE_NO_SOURCE">
        <source>the element source is missing or empty</source>
        <translation>the element source is missing or empty</translation>
    </message>
    <message id="MESS_SCENE_LONG_SOURCE">
        <source>the element source is too long</source>
        <translation>the element source is too long</translation>
    </message>
    <message id="MESS_SCENE_NO_END">
        <source>the element %1 does not end</source>
        <translation>the element %1 does not end</translation>
    </message>
    <message id="MESS_SCENE_OTHER_SOURCE">
        <source>the source "%1" does not start with "%2"</source>
        <translation>the source "%1" does not start with "%2"</translation>
    </message>
    <message id="MESS_SCENE_NO_DOCUMENT">
        <source>the building document "%1" does not exist</source>
        <translation>the building document "%1" does not exist</translation>
    </message>
    <message id="MESS_SCENE_OTHER_DOCUMENT">
        <source>it is not a building document: it does not start with the element veltaroTexturedBuildings</source>
        <translation>it is not a building document: it does not start with the element veltaroTexturedBuildings</translation>
    </message>
    <message id="MESS_SCENE_NO_VALUE_END">
        <source>the value of %1 does not end</source>
        <translation>the value of %1 does not end</translation>
    </message>
    <message id="MESS_SCENE_BAD_NUMBER">
        <source>the %1 "%2" is not a number of zero or more</source>
        <translation>the %1 "%2" is not a number of zero or more</translation>
    </message>
    <message id="MESS_SCENE_NO_NUMBER">
        <source>the %1 "%2" is not a number</source>
        <translation>the %1 "%2" is not a number</translation>
    </message>
    <message id="MESS_SCENE_OUT_OF_RANGE">
        <source>the %1 "%2" is not a number from %3 to %4</source>
        <translation>the %1 "%2" is not a number from %3 to %4</translation>
    </message>
    <message id="MESS_SCENE_BAD_WORD">
        <source>the %1 "%2" is not a known word</source>
        <translation>the %1 "%2" is not a known word</translation>
    </message>
    <message id="MESS_SCENE_BAD_MODE">
        <source>the texture mode "%1" is none of roofs, walls and storeys</source>
        <translation>the texture mode "%1" is none of roofs, walls and storeys</translation>
    </message>
    <message id="MESS_SCENE_UNNAMED_FOOTPRINTS">
        <source>the document names no file of footprints</source>
        <translation>the document names no file of footprints</translation>
    </message>
    <message id="MESS_SCENE_UNNAMED_FIELD">
        <source>the document names no field of heights</source>
        <translation>the document names no field of heights</translation>
    </message>
    <message id="MESS_SCENE_NO_TILES">
        <source>the tileSize is not greater than zero</source>
        <translation>the tileSize is not greater than zero</translation>
    </message>
    <message id="MESS_SCENE_UNNAMED_TABLE">
        <source>the source names no table</source>
        <translation>the source names no table</translation>
    </message>
    <message id="MESS_SCENE_NO_TABLE">
        <source>the table "%1" does not exist</source>
        <translation>the table "%1" does not exist</translation>
    </message>
    <message id="MESS_SCENE_NO_TABLE_IN">
        <source>the table "%1" does not exist (searched in %2)</source>
        <translation>the table "%1" does not exist (searched in %2)</translation>
    </message>
    <message id="MESS_SCENE_NO_DRIVER">
        <source>the table driver %1 was not found; GDAL_DRIVER_PATH must name its folder</source>
        <translation>the table driver %1 was not found; GDAL_DRIVER_PATH must name its folder</translation>
    </message>
    <message id="MESS_SCENE_NO_OPTION">
        <source>the option %1 is missing in the layer's source</source>
        <translation>the option %1 is missing in the layer's source</translation>
    </message>
    <message id="MESS_SCENE_NO_END_LAYER">
        <source>the table "%1" has no layer of link ends</source>
        <translation>the table "%1" has no layer of link ends</translation>
    </message>
    <message id="MESS_SCENE_NO_END_FIELDS">
        <source>the layer of link ends has no field "%1" or "%2"</source>
        <translation>the layer of link ends has no field "%1" or "%2"</translation>
    </message>
    <message id="MESS_SCENE_UNPLACED_LINKS">
        <source>none of %1 links of the table "%2" has a position</source>
        <translation>none of %1 links of the table "%2" has a position</translation>
    </message>
    <message id="MESS_SCENE_UNPLACED_SITES">
        <source>none of %1 sites of the table "%2" has a position</source>
        <translation>none of %1 sites of the table "%2" has a position</translation>
    </message>
    <message id="MESS_SCENE_NO_FRAME">
        <source>the coordinate system of the layer is neither projected nor geographic</source>
        <translation>the coordinate system of the layer is neither projected nor geographic</translation>
    </message>
    <message id="MESS_SCENE_NO_PROJECTION">
        <source>the coordinate system of the layer cannot be projected</source>
        <translation>the coordinate system of the layer cannot be projected</translation>
    </message>
    <message id="MESS_SCENE_LINK_TERRAIN">
        <source>the terrain "%1" cannot be used (%2); the links stand at height 0</source>
        <translation>the terrain "%1" cannot be used (%2); the links stand at height 0</translation>
    </message>
    <message id="MESS_SCENE_LINK_GROUND">
        <source>%1 of %2 pylons stand at height 0: there is no terrain height under them</source>
        <translation>%1 of %2 pylons stand at height 0: there is no terrain height under them</translation>
    </message>
    <message id="MESS_SCENE_NO_SURFACE">
        <source>no terrain is shown: there are no heights under the layer</source>
        <translation>no terrain is shown: there are no heights under the layer</translation>
    </message>
    <message id="MESS_SCENE_BAD_IMAGERY">
        <source>the image "%1" cannot be used (%2); the ground is drawn without it</source>
        <translation>the image "%1" cannot be used (%2); the ground is drawn without it</translation>
    </message>
    <message id="MESS_SCENE_NO_IMAGERY">
        <source>no image is shown: it does not cover the ground under the layer</source>
        <translation>no image is shown: it does not cover the ground under the layer</translation>
    </message>
    <message id="MESS_IMAGERY_NOT_PLACED">
        <source>it has no georeference</source>
        <translation>it has no georeference</translation>
    </message>
    <message id="MESS_SCENE_NOWHERE">
        <source>the scene does not state where on the earth it lies</source>
        <translation>the scene does not state where on the earth it lies</translation>
    </message>
    <message id="MESS_SCENE_NO_FOOTPRINTS">
        <source>there is no local file of footprints "%1"</source>
        <translation>there is no local file of footprints "%1"</translation>
    </message>
    <message id="MESS_SCENE_BAD_FOOTPRINTS">
        <source>the footprints "%1" cannot be read: %2</source>
        <translation>the footprints "%1" cannot be read: %2</translation>
    </message>
    <message id="MESS_SCENE_NO_LAYER">
        <source>the footprints have no layer "%1"</source>
        <translation>the footprints have no layer "%1"</translation>
    </message>
    <message id="MESS_SCENE_NO_FIELD">
        <source>the footprints have no field "%1"</source>
        <translation>the footprints have no field "%1"</translation>
    </message>
    <message id="MESS_SCENE_NO_NUMBERS">
        <source>the field "%1" of the footprints holds no numbers</source>
        <translation>the field "%1" of the footprints holds no numbers</translation>
    </message>
    <message id="MESS_SCENE_BAD_FILTER">
        <source>the filter "%1" cannot be used: %2</source>
        <translation>the filter "%1" cannot be used: %2</translation>
    </message>
    <message id="MESS_SCENE_EMPTY_FILTER">
        <source>the filter "%1" leaves no building</source>
        <translation>the filter "%1" leaves no building</translation>
    </message>
    <message id="MESS_SCENE_CHANGED_FOOTPRINTS">
        <source>the footprints have changed since they were read</source>
        <translation>the footprints have changed since they were read</translation>
    </message>
    <message id="MESS_SCENE_NO_HEIGHT">
        <source>%1 of %2 buildings are left out: no height in the field "%3"</source>
        <translation>%1 of %2 buildings are left out: no height in the field "%3"</translation>
    </message>
    <message id="MESS_SCENE_ZERO_HEIGHT">
        <source>%1 of %2 buildings are left out: a height of zero or less in the field "%3"</source>
        <translation>%1 of %2 buildings are left out: a height of zero or less in the field "%3"</translation>
    </message>
    <message id="MESS_SCENE_TOO_HIGH">
        <source>%1 of %2 buildings are left out: a height of more than 10,000 m in the field "%3"</source>
        <translation>%1 of %2 buildings are left out: a height of more than 10,000 m in the field "%3"</translation>
    </message>
    <message id="MESS_SCENE_BELOW_GROUND">
        <source>%1 of %2 buildings are left out: their roof above sea level is not above the ground</source>
        <translation>%1 of %2 buildings are left out: their roof above sea level is not above the ground</translation>
    </message>
    <message id="MESS_SCENE_NO_POLYGON">
        <source>%1 of %2 buildings are left out: no polygon with an area</source>
        <translation>%1 of %2 buildings are left out: no polygon with an area</translation>
    </message>
    <message id="MESS_SCENE_NO_PLACE">
        <source>%1 of %2 buildings are left out: their position lies outside their coordinate system</source>
        <translation>%1 of %2 buildings are left out: their position lies outside their coordinate system</translation>
    </message>
    <message id="MESS_SCENE_ELSE_HEIGHT">
        <source>%1 of %2 buildings have their height from the field "%3"</source>
        <translation>%1 of %2 buildings have their height from the field "%3"</translation>
    </message>
    <message id="MESS_SCENE_DEFAULT_HEIGHT">
        <source>%1 of %2 buildings without a height are %3 m high</source>
        <translation>%1 of %2 buildings without a height are %3 m high</translation>
    </message>
    <message id="MESS_SCENE_TERRAIN_BASE">
        <source>%1 of %2 buildings stand on the terrain: no ground height in the field "%3"</source>
        <translation>%1 of %2 buildings stand on the terrain: no ground height in the field "%3"</translation>
    </message>
    <message id="MESS_SCENE_RAISED_BOTTOM">
        <source>%1 of %2 buildings start at the ground: their underside is not below their roof</source>
        <translation>%1 of %2 buildings start at the ground: their underside is not below their roof</translation>
    </message>
    <message id="MESS_SCENE_FAR_AWAY">
        <source>%1 of %2 buildings lie far from all others, up to %3 km away; the farthest is at %4</source>
        <translation>%1 of %2 buildings lie far from all others, up to %3 km away; the farthest is at %4</translation>
    </message>
    <message id="MESS_SCENE_COINCIDENT">
        <source>%1 of %2 buildings have the same outline as another one</source>
        <translation>%1 of %2 buildings have the same outline as another one</translation>
    </message>
    <message id="MESS_SCENE_READ_PARTLY">
        <source>only the first %1 footprints can be read: %2</source>
        <translation>only the first %1 footprints can be read: %2</translation>
    </message>
    <message id="MESS_SCENE_SHOWN_PARTLY">
        <source>only the first %1 footprints are shown: there are too many</source>
        <translation>only the first %1 footprints are shown: there are too many</translation>
    </message>
    <message id="MESS_SCENE_NO_TERRAIN">
        <source>the document names no terrain; the buildings stand at height 0</source>
        <translation>the document names no terrain; the buildings stand at height 0</translation>
    </message>
    <message id="MESS_SCENE_BAD_TERRAIN">
        <source>the terrain "%1" cannot be used (%2); the buildings stand at height 0</source>
        <translation>the terrain "%1" cannot be used (%2); the buildings stand at height 0</translation>
    </message>
    <message id="MESS_SCENE_NO_GROUND">
        <source>there is no terrain height under the buildings; they stand at height 0</source>
        <translation>there is no terrain height under the buildings; they stand at height 0</translation>
    </message>
    <message id="MESS_SCENE_LOWEST_GROUND">
        <source>%1 of %2 buildings stand on the lowest ground: there is no terrain height under them</source>
        <translation>%1 of %2 buildings stand on the lowest ground: there is no terrain height under them</translation>
    </message>
    <message id="MESS_SCENE_NO_MAP">
        <source>the color map "%1" does not exist</source>
        <translation>the color map "%1" does not exist</translation>
    </message>
    <message id="MESS_SCENE_BAD_MAP">
        <source>the color map "%1" cannot be used (%2)</source>
        <translation>the color map "%1" cannot be used (%2)</translation>
    </message>
    <message id="MESS_SCENE_EMPTY_RASTER">
        <source>the raster "%1" has no values</source>
        <translation>the raster "%1" has no values</translation>
    </message>
    <message id="MESS_SCENE_BAD_RASTER">
        <source>the raster "%1" cannot be used for colors (%2)</source>
        <translation>the raster "%1" cannot be used for colors (%2)</translation>
    </message>
    <message id="MESS_SCENE_NO_VALUE">
        <source>%1 of %2 buildings have no value in the raster "%3"</source>
        <translation>%1 of %2 buildings have no value in the raster "%3"</translation>
    </message>
    <message id="MESS_SCENE_TRANSPARENT">
        <source>%1 of %2 buildings are not visible: their color is transparent</source>
        <translation>%1 of %2 buildings are not visible: their color is transparent</translation>
    </message>
    <message id="MESS_SCENE_NO_FIELD_VALUE">
        <source>%1 of %2 buildings have no value in the field "%3"</source>
        <translation>%1 of %2 buildings have no value in the field "%3"</translation>
    </message>
    <message id="MESS_SCENE_NO_BAND">
        <source>it has no band %1</source>
        <translation>it has no band %1</translation>
    </message>
    <message id="MESS_SCENE_BAD_TERRAIN_NODATA">
        <source>the no-data value "%1" of the terrain is not a number and has no effect</source>
        <translation>the no-data value "%1" of the terrain is not a number and has no effect</translation>
    </message>
    <message id="MESS_SCENE_NO_COLORS">
        <source>"%1" does not describe colors of buildings</source>
        <translation>"%1" does not describe colors of buildings</translation>
    </message>
    <message id="MESS_SCENE_BAD_IMAGE">
        <source>the image "%1" is not shown (%2)</source>
        <translation>the image "%1" is not shown (%2)</translation>
    </message>
    <message id="MESS_SCENE_MORE_IMAGES">
        <source>%1 more images are not shown</source>
        <translation>%1 more images are not shown</translation>
    </message>
    <message id="MESS_SCENE_OTHER_COMPUTER">
        <source>not a file or folder of this computer</source>
        <translation>not a file or folder of this computer</translation>
    </message>
    <message id="MESS_SCENE_VIRTUAL_RASTER">
        <source>virtual rasters are not opened: convert this one with gdal_translate</source>
        <translation>virtual rasters are not opened: convert this one with gdal_translate</translation>
    </message>
    <message id="MESS_SCENE_VIRTUAL_VECTOR">
        <source>virtual vector files are not opened: convert this one with ogr2ogr</source>
        <translation>virtual vector files are not opened: convert this one with ogr2ogr</translation>
    </message>
    <message id="MESS_SCENE_NOT_IN_FILE">
        <source>not in a file of this computer</source>
        <translation>not in a file of this computer</translation>
    </message>
    <message id="MESS_SCENE_NO_PART">
        <source>the file holds no such image</source>
        <translation>the file holds no such image</translation>
    </message>
    <message id="MESS_TERRAIN_NOT_LOCAL">
        <source>there is no such local file</source>
        <translation>there is no such local file</translation>
    </message>
    <message id="MESS_TERRAIN_NOT_PLACED">
        <source>it has no band of heights, no georeference or no coordinate system</source>
        <translation>it has no band of heights, no georeference or no coordinate system</translation>
    </message>
    <message id="MESS_TERRAIN_TOO_LARGE">
        <source>it is stored in blocks that are too large</source>
        <translation>it is stored in blocks that are too large</translation>
    </message>
    <message id="MESS_SCENE_NO_TRANSFORMATION">
        <source>there is no transformation to its coordinate system</source>
        <translation>there is no transformation to its coordinate system</translation>
    </message>
    <message id="MESS_SCENE_NO_TRANSFORMATION_FROM">
        <source>there is no transformation from the buildings' coordinate system to its own</source>
        <translation>there is no transformation from the buildings' coordinate system to its own</translation>
    </message>
    <message id="MESS_SCENE_NOT_A_MAP">
        <source>it is not a color map</source>
        <translation>it is not a color map</translation>
    </message>
    <message id="MESS_SCENE_NO_MAP_IN">
        <source>No color association found in %1</source>
        <translation>No color association found in %1</translation>
    </message>
    <message id="MESS_SCENE_NO_COLOR">
        <source>Unknown color : %1</source>
        <translation>Unknown color : %1</translation>
    </message>
    <message id="MESS_SCENE_BAD_SHARE">
        <source>Wrong value for a percentage : %1</source>
        <translation>Wrong value for a percentage : %1</translation>
    </message>
    <message id="MESS_SCENE_NO_MAP_FILE">
        <source>Cannot find %1</source>
        <translation>Cannot find %1</translation>
    </message>
    <message id="MESS_SCENE_LARGE_MAP">
        <source>the file %1 is too large for a color map</source>
        <translation>the file %1 is too large for a color map</translation>
    </message>
    <message id="MESS_SCENE_NOT_ONE_BAND">
        <source>it does not have exactly one band</source>
        <translation>it does not have exactly one band</translation>
    </message>
    <message id="MESS_SCENE_COMPLEX">
        <source>its values are complex numbers</source>
        <translation>its values are complex numbers</translation>
    </message>
    <message id="MESS_SCENE_BAD_NODATA">
        <source>the no-data value "%1" is not a number</source>
        <translation>the no-data value "%1" is not a number</translation>
    </message>
    <message id="MESS_SCENE_NOT_PLACED">
        <source>it is not georeferenced</source>
        <translation>it is not georeferenced</translation>
    </message>
    <message id="MESS_SCENE_NO_BANDS">
        <source>it has no bands</source>
        <translation>it has no bands</translation>
    </message>
    <message id="MESS_SCENE_WITHOUT_HEIGHT">
        <source>it has no height</source>
        <translation>it has no height</translation>
    </message>
    <message id="MESS_SCENE_SAME_HEIGHT">
        <source>another image has the same height</source>
        <translation>another image has the same height</translation>
    </message>
    <message id="MESS_SCENE_NO_FORMAT">
        <source>`%1' not recognized as a supported file format.</source>
        <translation>`%1' not recognized as a supported file format.</translation>
    </message>
    <message id="MESS_QUERY_OTHER_FORM">
        <source>"%1" is not a query "inline://parametric/query?..."</source>
        <translation>"%1" is not a query "inline://parametric/query?..."</translation>
    </message>
    <message id="MESS_QUERY_UNKNOWN_ITEM">
        <source>the item "%1" is unknown</source>
        <translation>the item "%1" is unknown</translation>
    </message>
    <message id="MESS_QUERY_NO_ITEM">
        <source>the item %1 is missing</source>
        <translation>the item %1 is missing</translation>
    </message>
    <message id="MESS_QUERY_TWO_ITEMS">
        <source>the item %1 is given more than once: "%2", "%3"</source>
        <translation>the item %1 is given more than once: "%2", "%3"</translation>
    </message>
    <message id="MESS_QUERY_MANY_ITEMS">
        <source>there are %1 items "%2": no more than %3 are allowed</source>
        <translation>there are %1 items "%2": no more than %3 are allowed</translation>
    </message>
    <message id="MESS_QUERY_BEFORE_PYLON">
        <source>%1 stands before the first pylon</source>
        <translation>%1 stands before the first pylon</translation>
    </message>
    <message id="MESS_QUERY_SAME_POSITION">
        <source>%1: both ends have the same position</source>
        <translation>%1: both ends have the same position</translation>
    </message>
    <message id="MESS_QUERY_OTHER_WORDS">
        <source>%1: "%2" is not "%3"</source>
        <translation>%1: "%2" is not "%3"</translation>
    </message>
    <message id="MESS_QUERY_NO_NUMBER">
        <source>%1: the %2 "%3" is not a number</source>
        <translation>%1: the %2 "%3" is not a number</translation>
    </message>
    <message id="MESS_QUERY_NOT_WHOLE">
        <source>%1: the %2 "%3" is not a whole number</source>
        <translation>%1: the %2 "%3" is not a whole number</translation>
    </message>
    <message id="MESS_QUERY_OUT_OF_RANGE">
        <source>%1: the %2 "%3" is not within %4 to %5</source>
        <translation>%1: the %2 "%3" is not within %4 to %5</translation>
    </message>
    <message id="MESS_QUERY_LOW_FREQUENCY">
        <source>%1: the frequency "%2" is neither 0 nor 1 MHz or more</source>
        <translation>%1: the frequency "%2" is neither 0 nor 1 MHz or more</translation>
    </message>
    <message id="MESS_QUERY_NO_COLOR">
        <source>%1: the color "%2" is not rrggbbaa</source>
        <translation>%1: the color "%2" is not rrggbbaa</translation>
    </message>
    <message id="MESS_QUERY_UNKNOWN_WORD">
        <source>%1: the %2 "%3" is unknown</source>
        <translation>%1: the %2 "%3" is unknown</translation>
    </message>
    <message id="MESS_QUANTITY_X">
        <source>x</source>
        <translation>x</translation>
    </message>
    <message id="MESS_QUANTITY_Y">
        <source>y</source>
        <translation>y</translation>
    </message>
    <message id="MESS_QUANTITY_Z">
        <source>z</source>
        <translation>z</translation>
    </message>
    <message id="MESS_QUANTITY_HEIGHT">
        <source>height</source>
        <translation>height</translation>
    </message>
    <message id="MESS_QUANTITY_WIDTH">
        <source>width</source>
        <translation>width</translation>
    </message>
    <message id="MESS_QUANTITY_RADIUS">
        <source>radius</source>
        <translation>radius</translation>
    </message>
    <message id="MESS_QUANTITY_SPACING">
        <source>spacing</source>
        <translation>spacing</translation>
    </message>
    <message id="MESS_QUANTITY_SECTOR_RADIUS">
        <source>sector radius</source>
        <translation>sector radius</translation>
    </message>
    <message id="MESS_QUANTITY_SECTOR_HEIGHT">
        <source>sector height</source>
        <translation>sector height</translation>
    </message>
    <message id="MESS_QUANTITY_SECTOR_SPACING">
        <source>sector spacing</source>
        <translation>sector spacing</translation>
    </message>
    <message id="MESS_QUANTITY_AZIMUTH">
        <source>azimuth</source>
        <translation>azimuth</translation>
    </message>
    <message id="MESS_QUANTITY_TILT">
        <source>tilt</source>
        <translation>tilt</translation>
    </message>
    <message id="MESS_QUANTITY_BEAM_WIDTH">
        <source>beam width</source>
        <translation>beam width</translation>
    </message>
    <message id="MESS_QUANTITY_ANTENNA_LENGTH">
        <source>antenna length</source>
        <translation>antenna length</translation>
    </message>
    <message id="MESS_QUANTITY_DIAMETER">
        <source>diameter</source>
        <translation>diameter</translation>
    </message>
    <message id="MESS_QUANTITY_FREQUENCY">
        <source>frequency</source>
        <translation>frequency</translation>
    </message>
    <message id="MESS_QUANTITY_SCALE">
        <source>scale</source>
        <translation>scale</translation>
    </message>
    <message id="MESS_QUANTITY_SYMBOLIC">
        <source>symbolic distance</source>
        <translation>symbolic distance</translation>
    </message>
    <message id="MESS_QUANTITY_REALISTIC">
        <source>realistic distance</source>
        <translation>realistic distance</translation>
    </message>
    <message id="MESS_QUANTITY_ZONE">
        <source>zone</source>
        <translation>zone</translation>
    </message>
    <message id="MESS_QUANTITY_SHARE">
        <source>share</source>
        <translation>share</translation>
    </message>
    <message id="MESS_QUANTITY_K_FACTOR">
        <source>factor</source>
        <translation>factor</translation>
    </message>
    <message id="MESS_QUANTITY_KIND">
        <source>kind</source>
        <translation>kind</translation>
    </message>
    <message id="MESS_QUANTITY_TYPE">
        <source>type</source>
        <translation>type</translation>
    </message>
    <message id="MESS_QUANTITY_STYLE">
        <source>style</source>
        <translation>style</translation>
    </message>
    <message id="MESS_QUANTITY_WORD">
        <source>word</source>
        <translation>word</translation>
    </message>
</context>
</TS>
