<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Command line</name>
    <message id="MESS_CLI_WHY">
        <source>why</source>
        <translation>why</translation>
    </message>
    <message id="MESS_HELP_BUILDINGS_SUMMARY">
        <source>make a layer of buildings</source>
        <translation>make a layer of buildings</translation>
    </message>
    <message id="MESS_HELP_BUILDINGS">
        <source>Makes a layer of 3D buildings, like the wizard: colored from a raster (--image), with images on roofs, walls or storeys (--texture, --textures), or plain.</source>
        <translation>Makes a layer of 3D buildings, like the wizard: colored from a raster (--image), with images on roofs, walls or storeys (--texture, --textures), or plain.</translation>
    </message>
    <message id="MESS_HELP_BUILDINGS_VECTOR">
        <source>Vector file with the outlines of the buildings (default: the project's).</source>
        <translation>Vector file with the outlines of the buildings (default: the project's).</translation>
    </message>
    <message id="MESS_USE_NO_VECTOR">
        <source>no vector file given</source>
        <translation>no vector file given</translation>
    </message>
    <message id="MESS_USE_NO_VECTOR_NOR_PROJECT">
        <source>no vector file given, and no --project</source>
        <translation>no vector file given, and no --project</translation>
    </message>
    <message id="MESS_USE_NO_DTM_NOR_PROJECT">
        <source>no terrain given (--dtm), and no --project</source>
        <translation>no terrain given (--dtm), and no --project</translation>
    </message>
    <message id="MESS_CLI_OUTPUT_FAILED">
        <source>the output cannot be written</source>
        <translation>the output cannot be written</translation>
    </message>
    <message id="MESS_OPT_IMAGE">
        <source>Raster whose values color the buildings: a file, or the name of an image in a file; no picture of colors.</source>
        <translation>Raster whose values color the buildings: a file, or the name of an image in a file; no picture of colors.</translation>
    </message>
    <message id="MESS_OPT_IMAGE_NODATA">
        <source>Value of pixels without data, in addition to the value that the file declares (default none).</source>
        <translation>Value of pixels without data, in addition to the value that the file declares (default none).</translation>
    </message>
    <message id="MESS_OPT_COLORMAP">
        <source>Color map: one of the installation's by its name, or a file (default: the installation's first one).</source>
        <translation>Color map: one of the installation's by its name, or a file (default: the installation's first one).</translation>
    </message>
    <message id="MESS_OPT_ABSOLUTE">
        <source>Use the color map's own values (default: the map is stretched between the image's minimum and maximum value).</source>
        <translation>Use the color map's own values (default: the map is stretched between the image's minimum and maximum value).</translation>
    </message>
    <message id="MESS_OPT_COLOR_RANGES">
        <source>Use one color for each range of values (default: colors between two values of the map are interpolated).</source>
        <translation>Use one color for each range of values (default: colors between two values of the map are interpolated).</translation>
    </message>
    <message id="MESS_OPT_MODE">
        <source>Value under a building that determines its color (default minimum).</source>
        <translation>Value under a building that determines its color (default minimum).</translation>
    </message>
    <message id="MESS_OPT_TEXTURE">
        <source>Image for a height in metres above the ground: the given height, else the height in the image's metadata or name. May be given several times.</source>
        <translation>Image for a height in meters above the ground: the given height, else the height in the image's metadata or name. May be given several times.</translation>
    </message>
    <message id="MESS_OPT_TEXTURES">
        <source>One image of a set; the others are those with the same suffix.</source>
        <translation>One image of a set; the others are those with the same suffix.</translation>
    </message>
    <message id="MESS_OPT_STRUCTURE">
        <source>Folders of the set: the image's folder (default), its sibling folders, or the folders in the sibling folders of its parent.</source>
        <translation>Folders of the set: the image's folder (default), its sibling folders, or the folders in the sibling folders of its parent.</translation>
    </message>
    <message id="MESS_OPT_FILTER">
        <source>Use only images of the set with this text in their file name, folder, description or height.</source>
        <translation>Use only images of the set with this text in their file name, folder, description or height.</translation>
    </message>
    <message id="MESS_OPT_TEXTURE_ON">
        <source>Position of the images: roofs show the image with the nearest height, walls have a band for each image, storeys are floors at the images' heights (default roofs).</source>
        <translation>Position of the images: roofs show the image with the nearest height, walls have a band for each image, storeys are floors at the images' heights (default roofs).</translation>
    </message>
    <message id="MESS_OPT_WALL_COLOR">
        <source>Color of walls without an image, or colormap: from --image (default %1).</source>
        <translation>Color of walls without an image, or colormap: from --image (default %1).</translation>
    </message>
    <message id="MESS_OPT_ROOF_COLOR">
        <source>Color of roofs without an image, or colormap: from --image (default %1).</source>
        <translation>Color of roofs without an image, or colormap: from --image (default %1).</translation>
    </message>
    <message id="MESS_OPT_EDGE_COLOR">
        <source>Color of edges (default %1).</source>
        <translation>Color of edges (default %1).</translation>
    </message>
    <message id="MESS_OPT_FORCE_EDGES">
        <source>Always draw edges.</source>
        <translation>Always draw edges.</translation>
    </message>
    <message id="MESS_OPT_NO_COMPLEX_BUILDINGS">
        <source>No images on buildings with courtyards or many corners.</source>
        <translation>No images on buildings with courtyards or many corners.</translation>
    </message>
    <message id="MESS_OPT_CACHE">
        <source>Finished buildings that the builder stores (default none).</source>
        <translation>Finished buildings that the builder stores (default none).</translation>
    </message>
    <message id="MESS_OPT_DELAYED_WRITE">
        <source>Write to the cache only when --cache-capacity elements are waiting.</source>
        <translation>Write to the cache only when --cache-capacity elements are waiting.</translation>
    </message>
    <message id="MESS_OPT_COMPRESSION">
        <source>Compression of the images in graphics memory (default none).</source>
        <translation>Compression of the images in graphics memory (default none).</translation>
    </message>
    <message id="MESS_OPT_MAGNIFY">
        <source>Drawing of pixels at a short distance: as squares (default), or blended.</source>
        <translation>Drawing of pixels at a short distance: as squares (default), or blended.</translation>
    </message>
    <message id="MESS_OPT_DISTANCE">
        <source>Maximum distance in metres at which the buildings are shown</source>
        <translation>Maximum distance in meters at which the buildings are shown</translation>
    </message>
    <message id="MESS_OPT_TILE_SIZE">
        <source>Side of the tiles of buildings in metres</source>
        <translation>Side of the tiles of buildings in meters</translation>
    </message>
    <message id="MESS_OPT_SKIRT">
        <source>Depth of the walls below the ground in metres</source>
        <translation>Depth of the walls below the ground in meters</translation>
    </message>
    <message id="MESS_OPT_TEXTURED_DISTANCE">
        <source>Maximum distance in metres at which the images are shown</source>
        <translation>Maximum distance in meters at which the images are shown</translation>
    </message>
    <message id="MESS_OPT_CACHE_CAPACITY">
        <source>Number of elements that wait before they are written to the cache</source>
        <translation>Number of elements that wait before they are written to the cache</translation>
    </message>
    <message id="MESS_OPT_BUFFER">
        <source>Distance in metres from a wall to the positions of its colors, outside the building</source>
        <translation>Distance in meters from a wall to the positions of its colors, outside the building</translation>
    </message>
    <message id="MESS_OPT_DILATATION">
        <source>Number of pixels by which the colors of an image grow into empty pixels</source>
        <translation>Number of pixels by which the colors of an image grow into empty pixels</translation>
    </message>
    <message id="MESS_OPT_TOWN_OUTPUT">
        <source>Layer file to write; the building document is written beside it as OUT.texb, and the legend of a color map as NAME_gradient.png.</source>
        <translation>Layer file to write; the building document is written beside it as OUT.texb, and the legend of a color map as NAME_gradient.png.</translation>
    </message>
    <message id="MESS_OPT_DTM">
        <source>Terrain raster under the buildings (default: the project's).</source>
        <translation>Terrain raster under the buildings (default: the project's).</translation>
    </message>
    <message id="MESS_OPT_DTM_NODATA">
        <source>Value of the terrain for unknown heights (default: the value that the file declares).</source>
        <translation>Value of the terrain for unknown heights (default: the value that the file declares).</translation>
    </message>
    <message id="MESS_OPT_VECTOR_LAYER">
        <source>Layer of the vector file (default: the first one of polygons).</source>
        <translation>Layer of the vector file (default: the first one of polygons).</translation>
    </message>
    <message id="MESS_OPT_HEIGHT_FIELD">
        <source>Field with the heights of the buildings (default: AGL, H, HEIGHT or COLOR, else the second one, else the likeliest by its name).</source>
        <translation>Field with the heights of the buildings (default: AGL, H, HEIGHT or COLOR, else the second one, else the likeliest by its name).</translation>
    </message>
    <message id="MESS_OPT_CHECK_CLOCKWISE">
        <source>Check the directions of the outlines.</source>
        <translation>Check the directions of the outlines.</translation>
    </message>
    <message id="MESS_USE_COLOR_OR_MAP">
        <source>RRGGBB, a name such as red or the word colormap</source>
        <translation>RRGGBB, a name such as red or the word colormap</translation>
    </message>
    <message id="MESS_USE_COLOR">
        <source>RRGGBB or a name such as red</source>
        <translation>RRGGBB or a name such as red</translation>
    </message>
    <message id="MESS_USE_ANY_NUMBER">
        <source>a number</source>
        <translation>a number</translation>
    </message>
    <message id="MESS_USE_BOTH_TEXTURES">
        <source>--texture and --textures cannot be combined</source>
        <translation>--texture and --textures cannot be combined</translation>
    </message>
    <message id="MESS_USE_ONLY_IMAGE">
        <source>%1 needs --image</source>
        <translation>%1 needs --image</translation>
    </message>
    <message id="MESS_USE_ONLY_SET">
        <source>%1 needs --textures</source>
        <translation>%1 needs --textures</translation>
    </message>
    <message id="MESS_USE_ONLY_TEXTURES">
        <source>%1 needs --texture or --textures</source>
        <translation>%1 needs --texture or --textures</translation>
    </message>
    <message id="MESS_USE_NOT_IMAGE">
        <source>%1 cannot be used when --image alone colors the buildings</source>
        <translation>%1 cannot be used when --image alone colors the buildings</translation>
    </message>
    <message id="MESS_USE_NO_VALUE">
        <source>%1 needs a value</source>
        <translation>%1 needs a value</translation>
    </message>
    <message id="MESS_USE_NEEDS_CACHE">
        <source>--%1 needs --cache</source>
        <translation>--%1 needs --cache</translation>
    </message>
    <message id="MESS_USE_NEEDS_IMAGE">
        <source>the color colormap needs --image</source>
        <translation>the color colormap needs --image</translation>
    </message>
    <message id="MESS_USE_NEEDS_COLORMAP">
        <source>--image needs --wall-color colormap or --roof-color colormap for these buildings</source>
        <translation>--image needs --wall-color colormap or --roof-color colormap for these buildings</translation>
    </message>
    <message id="MESS_USE_TEXTURES_EMPTY">
        <source>--texture and --textures need a value</source>
        <translation>--texture and --textures need a value</translation>
    </message>
    <message id="MESS_USE_NO_OUTPUT">
        <source>no output file given (-o OUT.lay)</source>
        <translation>no output file given (-o OUT.lay)</translation>
    </message>
    <message id="MESS_USE_NO_STANDARD_OUTPUT">
        <source>'-o -': a layer of buildings must be a file, because its document is written beside it</source>
        <translation>'-o -': a layer of buildings must be a file, because its document is written beside it</translation>
    </message>
    <message id="MESS_USE_UNKNOWN_OPTION">
        <source>unknown option '%1'</source>
        <translation>unknown option '%1'</translation>
    </message>
    <message id="MESS_USE_A_VALUE">
        <source>%1 takes no value</source>
        <translation>%1 takes no value</translation>
    </message>
    <message id="MESS_USE_TWICE">
        <source>%1 is given more than once</source>
        <translation>%1 is given more than once</translation>
    </message>
    <message id="MESS_USE_TOO_MANY">
        <source>too many arguments: %1</source>
        <translation>too many arguments: %1</translation>
    </message>
    <message id="MESS_USE_NO_INPUT">
        <source>'-': inputs are files, the standard input is not read</source>
        <translation>'-': inputs are files, the standard input is not read</translation>
    </message>
    <message id="MESS_OPT_INSTALL">
        <source>Root of the installation (default: the directory in the program's settings, else the program's own directory).</source>
        <translation>Root of the installation (default: the directory in the program's settings, else the program's own directory).</translation>
    </message>
    <message id="MESS_OPT_PROJECT">
        <source>Target project: its reference system and terrain determine the default coordinate systems, and the path of the table in the layer is relative to its directory. For buildings, its buildings and terrain are the defaults.</source>
        <translation>Target project: its reference system and terrain determine the default coordinate systems, and the path of the table in the layer is relative to its directory. For buildings, its buildings and terrain are the defaults.</translation>
    </message>
    <message id="MESS_OPT_LANGUAGE">
        <source>Language of messages and of the layer.</source>
        <translation>Language of messages and of the layer.</translation>
    </message>
    <message id="MESS_OPT_JSON">
        <source>Print one JSON object (UTF-8), also for errors.</source>
        <translation>Print one JSON object (UTF-8), also for errors.</translation>
    </message>
    <message id="MESS_OPT_QUIET">
        <source>Print only errors on the error output.</source>
        <translation>Print only errors on the error output.</translation>
    </message>
    <message id="MESS_OPT_HELP">
        <source>Show this help.</source>
        <translation>Show this help.</translation>
    </message>
    <message id="MESS_OPT_VERSION">
        <source>Show the versions of the program and of its libraries.</source>
        <translation>Show the versions of the program and of its libraries.</translation>
    </message>
    <message id="MESS_USE_TWO_OUTPUTS">
        <source>'-o -' and %1 cannot be combined: both write to the standard output</source>
        <translation>'-o -' and %1 cannot be combined: both write to the standard output</translation>
    </message>
    <message id="MESS_USE_WRONG_VALUE">
        <source>--%1 is %2, not "%3"</source>
        <translation>--%1 is %2, not "%3"</translation>
    </message>
    <message id="MESS_HELP_EXAMPLES">
        <source>Examples:</source>
        <translation>Examples:</translation>
    </message>
    <message id="MESS_HELP_EXIT">
        <source>Exit status: 0 done, 1 an input was refused (nothing is written), 2 wrong usage.</source>
        <translation>Exit status: 0 done, 1 an input was refused (nothing is written), 2 wrong usage.</translation>
    </message>
    <message id="MESS_HELP_USAGE">
        <source>Usage: %1</source>
        <translation>Usage: %1</translation>
    </message>
    <message id="MESS_HELP_GENERAL_OPTIONS">
        <source>Options of every command:</source>
        <translation>Options of every command:</translation>
    </message>
    <message id="MESS_HELP_OPTION">
        <source>[OPTION]...</source>
        <translation>[OPTION]...</translation>
    </message>
    <message id="MESS_HELP_ARGUMENTS">
        <source>Arguments:</source>
        <translation>Arguments:</translation>
    </message>
    <message id="MESS_HELP_OPTIONS">
        <source>Options:</source>
        <translation>Options:</translation>
    </message>
    <message id="MESS_HELP_HELP">
        <source>help [COMMAND]</source>
        <translation>help [COMMAND]</translation>
    </message>
    <message id="MESS_HELP_HELP_SUMMARY">
        <source>show the options of a command</source>
        <translation>show the options of a command</translation>
    </message>
    <message id="MESS_HELP_PROGRAM_USAGE">
        <source>COMMAND [OPTION]...</source>
        <translation>COMMAND [OPTION]...</translation>
    </message>
    <message id="MESS_HELP_PROGRAM">
        <source>Makes layers of a 3D project from telecom tables and buildings.</source>
        <translation>Makes layers of a 3D project from telecom tables and buildings.</translation>
    </message>
    <message id="MESS_HELP_COMMANDS">
        <source>Commands:</source>
        <translation>Commands:</translation>
    </message>
    <message id="MESS_USE_TRY">
        <source>try '%1'</source>
        <translation>try '%1'</translation>
    </message>
    <message id="MESS_HELP_INFO_SUMMARY">
        <source>show the properties of tables</source>
        <translation>show the properties of tables</translation>
    </message>
    <message id="MESS_HELP_INFO">
        <source>Shows the properties of tables of sites or links: format, unit, coordinate systems, recognised columns, and the rows that cannot be used.</source>
        <translation>Shows the properties of tables of sites or links: format, unit, coordinate systems, recognized columns, and the rows that cannot be used.</translation>
    </message>
    <message id="MESS_HELP_INFO_TABLE">
        <source>Site or link table (.xls .xlsx .xml .csv); one or more.</source>
        <translation>Site or link table (.xls .xlsx .xml .csv); one or more.</translation>
    </message>
    <message id="MESS_USE_NO_TABLE">
        <source>no table given</source>
        <translation>no table given</translation>
    </message>
    <message id="MESS_OPT_INFO_LINK">
        <source>The tables have microwave links, not sites.</source>
        <translation>The tables have microwave links, not sites.</translation>
    </message>
    <message id="MESS_CLI_ENCODING">
        <source>Encoding</source>
        <translation>Encoding</translation>
    </message>
    <message id="MESS_OPT_OUTPUT">
        <source>Layer file to write; - for the standard output.</source>
        <translation>Layer file to write; - for the standard output.</translation>
    </message>
    <message id="MESS_OPT_SOURCE_SRS">
        <source>Coordinate system of the table (default: the one that the table declares, else 4326 for degrees, else the terrain's, the one that the table names, or the project's).</source>
        <translation>Coordinate system of the table (default: the one that the table declares, else 4326 for degrees, else the terrain's, the one that the table names, or the project's).</translation>
    </message>
    <message id="MESS_OPT_TARGET_SRS">
        <source>Coordinate system of the project (default: the project's, else the terrain's, else 4326 for degrees, else the table's).</source>
        <translation>Coordinate system of the project (default: the project's, else the terrain's, else 4326 for degrees, else the table's).</translation>
    </message>
    <message id="MESS_OPT_SHEET">
        <source>Sheet of a workbook (default: the sheet that holds sites or links).</source>
        <translation>Sheet of a workbook (default: the sheet that holds sites or links).</translation>
    </message>
    <message id="MESS_OPT_ENCODING">
        <source>Encoding of a text file, such as CP1250 (default: the encoding that fits its bytes).</source>
        <translation>Encoding of a text file, such as CP1250 (default: the encoding that fits its bytes).</translation>
    </message>
    <message id="MESS_OPT_DELIMITER">
        <source>Separator of the columns of a text file (default: the separator that fits its lines).</source>
        <translation>Separator of the columns of a text file (default: the separator that fits its lines).</translation>
    </message>
    <message id="MESS_USE_ENCODING">
        <source>the name of an encoding</source>
        <translation>the name of an encoding</translation>
    </message>
    <message id="MESS_HELP_LINK_SUMMARY">
        <source>make a layer of links, check their clearance</source>
        <translation>make a layer of links, check their clearance</translation>
    </message>
    <message id="MESS_HELP_LINK">
        <source>Makes a layer from a table of microwave links, like the wizard, and checks the clearance of each link over the terrain.</source>
        <translation>Makes a layer from a table of microwave links, like the wizard, and checks the clearance of each link over the terrain.</translation>
    </message>
    <message id="MESS_HELP_LINK_TABLE">
        <source>Link table (.xls .xlsx .xml .csv).</source>
        <translation>Link table (.xls .xlsx .xml .csv).</translation>
    </message>
    <message id="MESS_OPT_TERRAIN">
        <source>Terrain file under the links (default: the project's; empty: none).</source>
        <translation>Terrain file under the links (default: the project's; empty: none).</translation>
    </message>
    <message id="MESS_OPT_REPORT">
        <source>Print length, frequency, clearance and worst point of each link. The layer file is then optional.</source>
        <translation>Print length, frequency, clearance and worst point of each link. The layer file is then optional.</translation>
    </message>
    <message id="MESS_USE_NO_OUTPUT_NOR_REPORT">
        <source>no output file given (-o OUT.lay), and no --report</source>
        <translation>no output file given (-o OUT.lay), and no --report</translation>
    </message>
    <message id="MESS_OPT_LINK_WIDTH">
        <source>Width of the links, in pixels for lines, else in metres</source>
        <translation>Width of the links, in pixels for lines, else in meters</translation>
    </message>
    <message id="MESS_OPT_FRESNEL_ZONE">
        <source>Number of the Fresnel zone that is drawn, 0 for none</source>
        <translation>Number of the Fresnel zone that is drawn, 0 for none</translation>
    </message>
    <message id="MESS_OPT_FRESNEL_SHARE">
        <source>Share of the zone's radius that is drawn, and share of the first zone's radius that must be free, in per cent</source>
        <translation>Share of the zone's radius that is drawn, and share of the first zone's radius that must be free, in percent</translation>
    </message>
    <message id="MESS_OPT_FRESNEL_TRANSPARENCY">
        <source>Transparency of the Fresnel zone in per cent</source>
        <translation>Transparency of the Fresnel zone in percent</translation>
    </message>
    <message id="MESS_OPT_K_FACTOR">
        <source>Effective radius of the earth divided by its real radius, 1.33333 for a standard atmosphere</source>
        <translation>Effective radius of the earth divided by its real radius, 1.33333 for a standard atmosphere</translation>
    </message>
    <message id="MESS_USE_COLOR_ALPHA">
        <source>RRGGBB, RRGGBBAA or a name such as red</source>
        <translation>RRGGBB, RRGGBBAA or a name such as red</translation>
    </message>
    <message id="MESS_OPT_LINK_STYLE">
        <source>Representation of the links (default %1).</source>
        <translation>Representation of the links (default %1).</translation>
    </message>
    <message id="MESS_OPT_LINK_COLOR">
        <source>Color of the links (default %1).</source>
        <translation>Color of the links (default %1).</translation>
    </message>
    <message id="MESS_OPT_COLOR_BY_CLEARANCE">
        <source>Color each link by its clearance, if it can be computed.</source>
        <translation>Color each link by its clearance, if it can be computed.</translation>
    </message>
    <message id="MESS_OPT_FRESNEL_COLOR">
        <source>Color of the Fresnel zone (default %1).</source>
        <translation>Color of the Fresnel zone (default %1).</translation>
    </message>
    <message id="MESS_OPT_RANGE">
        <source>%1, %2 to %3 (default %4).</source>
        <translation>%1, %2 to %3 (default %4).</translation>
    </message>
    <message id="MESS_OPT_RANGE_UNUSED">
        <source>%1, %2 to %3 (default: not used).</source>
        <translation>%1, %2 to %3 (default: not used).</translation>
    </message>
    <message id="MESS_USE_INTEGER">
        <source>an integer of %1 to %2</source>
        <translation>an integer of %1 to %2</translation>
    </message>
    <message id="MESS_USE_NUMBER">
        <source>a number of %1 to %2</source>
        <translation>a number of %1 to %2</translation>
    </message>
    <message id="MESS_HELP_SITE_SUMMARY">
        <source>make a layer of sites</source>
        <translation>make a layer of sites</translation>
    </message>
    <message id="MESS_HELP_SITE">
        <source>Makes a site layer from a table, like the wizard.</source>
        <translation>Makes a site layer from a table, like the wizard.</translation>
    </message>
    <message id="MESS_HELP_SITE_TABLE">
        <source>Site table (.xls .xlsx .xml .csv).</source>
        <translation>Site table (.xls .xlsx .xml .csv).</translation>
    </message>
    <message id="MESS_OPT_SECTOR_HEIGHT">
        <source>Sector height in metres</source>
        <translation>Sector height in meters</translation>
    </message>
    <message id="MESS_OPT_SECTOR_RADIUS">
        <source>Sector radius in metres</source>
        <translation>Sector radius in meters</translation>
    </message>
    <message id="MESS_OPT_SECTOR_SPACING">
        <source>Vertical spacing between sectors in metres</source>
        <translation>Vertical spacing between sectors in meters</translation>
    </message>
    <message id="MESS_OPT_TRANSPARENCY">
        <source>Transparency of the sectors in per cent</source>
        <translation>Transparency of the sectors in percent</translation>
    </message>
    <message id="MESS_OPT_SYMBOLIC_DISTANCE">
        <source>Apparition distance of the symbolic representation in metres</source>
        <translation>Maximum distance in meters at which the symbolic representation is drawn</translation>
    </message>
    <message id="MESS_OPT_PYLON_WIDTH">
        <source>Width of the pylons in metres</source>
        <translation>Width of the pylons in meters</translation>
    </message>
    <message id="MESS_OPT_ANTENNA_SIZE">
        <source>Antennas size in per cent</source>
        <translation>Size of the antennas in percent of their real size</translation>
    </message>
    <message id="MESS_OPT_REALISTIC_DISTANCE">
        <source>Apparition distance of the precise representation in metres</source>
        <translation>Maximum distance in meters at which the precise representation is drawn</translation>
    </message>
    <message id="MESS_USE_NOT_IN_CATALOGUE">
        <source>--%1: no "%2" (%3)</source>
        <translation>--%1: no "%2" (%3)</translation>
    </message>
    <message id="MESS_OPT_SECTOR_COLORS">
        <source>Sector colors: the number of a set in the catalogue, from 1, or its name in any language (default 1).</source>
        <translation>Sector colors: the number of a set in the catalog, from 1, or its name in any language (default 1).</translation>
    </message>
    <message id="MESS_OPT_PYLON_TYPE">
        <source>Type of pylons, or its number in the catalogue, from 1, or its name in any language (default 1).</source>
        <translation>Type of pylons, or its number in the catalog, from 1, or its name in any language (default 1).</translation>
    </message>
    <message id="MESS_HELP_COLOR_SETS">
        <source>Sector colors:</source>
        <translation>Sector colors:</translation>
    </message>
    <message id="MESS_HELP_PYLON_TYPES">
        <source>Types of pylons:</source>
        <translation>Types of pylons:</translation>
    </message>
    <message id="MESS_HELP_SNAPSHOT_SUMMARY">
        <source>make a picture of a layer</source>
        <translation>make a picture of a layer</translation>
    </message>
    <message id="MESS_HELP_SNAPSHOT">
        <source>Makes a picture (PNG) of a layer or of another scene file. It needs an X server; xvfb-run provides one on a computer without a screen.</source>
        <translation>Makes a picture (PNG) of a layer or of another scene file. It needs an X server; xvfb-run provides one on a computer without a screen.</translation>
    </message>
    <message id="MESS_HELP_SNAPSHOT_LAYER">
        <source>Layer (.lay), building document (.texb), any scene file that the scene library reads, or a parametric object inline://parametric/query?... Several layers are shown together at their places.</source>
        <translation>Layer (.lay), building document (.texb), any scene file that the scene library reads, or a parametric object inline://parametric/query?... Several layers are shown together at their places.</translation>
    </message>
    <message id="MESS_USE_NO_LAYER">
        <source>no layer given</source>
        <translation>no layer given</translation>
    </message>
    <message id="MESS_OPT_PICTURE">
        <source>Picture to write, *.png; - for the standard output.</source>
        <translation>Picture to write, *.png; - for the standard output.</translation>
    </message>
    <message id="MESS_OPT_SIZE">
        <source>Width and height in pixels, %1 to %2 each (default 1280x960).</source>
        <translation>Width and height in pixels, %1 to %2 each (default 1280x960).</translation>
    </message>
    <message id="MESS_OPT_VIEW">
        <source>all: everything, from the south-west (default); north: the same towards true north; top: from above, true north up; symbolic: the sectors of the site in the middle; precise: its mast and antennas; site:ID or link:ID: the site or the link of this name, or #N for the one in row N.</source>
        <translation>all: everything, from the south-west (default); north: the same towards true north; top: from above, true north up; symbolic: the sectors of the site in the middle; precise: its mast and antennas; site:ID or link:ID: the site or the link of this name, or #N for the one in row N.</translation>
    </message>
    <message id="MESS_OPT_SHOW_TERRAIN">
        <source>Terrain for the ground (default: that of the layer, else of the project). Without any, the ground is level and has a metric grid.</source>
        <translation>Terrain for the ground (default: that of the layer, else of the project). Without any, the ground is level and has a metric grid.</translation>
    </message>
    <message id="MESS_OPT_IMAGERY">
        <source>Image to lay over the ground: any local raster with a georeference, in colors, gray or with a palette.</source>
        <translation>Image to lay over the ground: any local raster with a georeference, in colors, gray or with a palette.</translation>
    </message>
    <message id="MESS_OPT_TRANSPARENT">
        <source>Leave the background transparent: no sky and no level ground. A terrain stays unless --no-ground is given.</source>
        <translation>Leave the background transparent: no sky and no level ground. A terrain stays unless --no-ground is given.</translation>
    </message>
    <message id="MESS_OPT_PICTURE_TITLE">
        <source>Title on the picture, in its upper left corner.</source>
        <translation>Title on the picture, in its upper left corner.</translation>
    </message>
    <message id="MESS_OPT_PICTURE_NORTH">
        <source>Draw an arrow to true north, and a scale bar that is valid in the middle of the picture.</source>
        <translation>Draw an arrow to true north, and a scale bar that is valid in the middle of the picture.</translation>
    </message>
    <message id="MESS_OPT_PICTURE_LEGEND">
        <source>Draw the legend: colors of sectors, of clearances, of values of buildings.</source>
        <translation>Draw the legend: colors of sectors, of clearances, of values of buildings.</translation>
    </message>
    <message id="MESS_OPT_NO_GROUND">
        <source>Show no ground below the layer.</source>
        <translation>Show no ground below the layer.</translation>
    </message>
    <message id="MESS_OPT_LABELS">
        <source>Names of sites and links: as many as suit the picture (some, the default), as many as have room (all), or none.</source>
        <translation>Names of sites and links: as many as suit the picture (some, the default), as many as have room (all), or none.</translation>
    </message>
    <message id="MESS_USE_NO_PICTURE">
        <source>no output file given (-o PICTURE.png)</source>
        <translation>no output file given (-o PICTURE.png)</translation>
    </message>
    <message id="MESS_USE_PNG">
        <source>the picture is in PNG format: its name must end in .png</source>
        <translation>the picture is in PNG format: its name must end in .png</translation>
    </message>
    <message id="MESS_USE_SIZE">
        <source>WxH, each of %1 to %2 pixels</source>
        <translation>WxH, each of %1 to %2 pixels</translation>
    </message>
    <message id="MESS_CLI_TABLE_NO_SCENE">
        <source>this is a table: make a layer of it with "vltlayers site" or "vltlayers link" first</source>
        <translation>this is a table: make a layer of it with "vltlayers site" or "vltlayers link" first</translation>
    </message>
    <message id="MESS_CLI_NO_INSTALL_DIR">
        <source>this install directory does not exist</source>
        <translation>this install directory does not exist</translation>
    </message>
    <message id="MESS_USE_DID_YOU_MEAN">
        <source>; did you mean '%1'?</source>
        <translation>; did you mean '%1'?</translation>
    </message>
    <message id="MESS_USE_NO_COMMAND">
        <source>unknown command: %1</source>
        <translation>unknown command: %1</translation>
    </message>
    <message id="MESS_USE_COMMAND_MISSING">
        <source>no command given</source>
        <translation>no command given</translation>
    </message>
    <message id="MESS_CLI_NAME_NOT_UTF8">
        <source>this name is not in UTF-8: rename the file</source>
        <translation>this name is not in UTF-8: rename the file</translation>
    </message>
    <message id="MESS_OPT_SWAP_AXES">
        <source>Exchange the coordinates: the table has latitudes in the column of longitudes, or northings in that of eastings.</source>
        <translation>Exchange the coordinates: the table has latitudes in the column of longitudes, or northings in that of eastings.</translation>
    </message>
    <message id="MESS_OPT_SITES">
        <source>Table of the sites at the ends of links that are only named (default: another sheet of the workbook).</source>
        <translation>Table of the sites at the ends of links that are only named (default: another sheet of the workbook).</translation>
    </message>
    <message id="MESS_OPT_SECTORS">
        <source>Table of the transmitters, each with the id of its site (default: another sheet of the workbook).</source>
        <translation>Table of the transmitters, each with the id of its site (default: another sheet of the workbook).</translation>
    </message>
    <message id="MESS_USE_SECTORS_OF_LINKS">
        <source>--sectors and --link cannot be combined</source>
        <translation>--sectors and --link cannot be combined</translation>
    </message>
    <message id="MESS_USE_SITES_OF_LINKS">
        <source>--sites needs --link</source>
        <translation>--sites needs --link</translation>
    </message>
    <message id="MESS_CLI_ROWS">
        <source>Rows</source>
        <translation>Rows</translation>
    </message>
    <message id="MESS_CLI_SECOND_ROWS">
        <source>Rows of %1</source>
        <translation>Rows of %1</translation>
    </message>
    <message id="MESS_CLI_READING_ROWS">
        <source>Reading the rows</source>
        <translation>Reading the rows</translation>
    </message>
    <message id="MESS_OPT_REJECTS">
        <source>Write the rows that are left out, with the columns of the table, to be corrected and opened again; of one table.</source>
        <translation>Write the rows that are left out, with the columns of the table, to be corrected and opened again; of one table.</translation>
    </message>
    <message id="MESS_USE_FILE">
        <source>the name of a file</source>
        <translation>the name of a file</translation>
    </message>
    <message id="MESS_USE_ONE_TABLE_ROWS">
        <source>--report and --rejects can be used with one table only</source>
        <translation>--report and --rejects can be used with one table only</translation>
    </message>
    <message id="MESS_USE_SAME_ROW_FILE">
        <source>--report and --rejects need different files</source>
        <translation>--report and --rejects need different files</translation>
    </message>
    <message id="MESS_OPT_MAPPING">
        <source>Mapping file that states the columns of the table, or none (default: the file TABLE.columns.json beside the table).</source>
        <translation>Mapping file that states the columns of the table, or none (default: the file TABLE.columns.json beside the table).</translation>
    </message>
    <message id="MESS_OPT_HEADER_ROW">
        <source>Rows of the file that name the columns, or none; for the mapping.</source>
        <translation>Rows of the file that name the columns, or none; for the mapping.</translation>
    </message>
    <message id="MESS_OPT_MAPPING_SRS">
        <source>Coordinate system of the table, as an EPSG code; for the mapping.</source>
        <translation>Coordinate system of the table, as an EPSG code; for the mapping.</translation>
    </message>
    <message id="MESS_OPT_WRITE_MAPPING">
        <source>Write what was understood as a mapping file, to be corrected: to FILE, else beside the table, else into the user's folder of data.</source>
        <translation>Write what was understood as a mapping file, to be corrected: to FILE, else beside the table, else into the user's folder of data.</translation>
    </message>
    <message id="MESS_USE_HEADER_ROW">
        <source>numbers of rows from 1 to %1, ascending, or none</source>
        <translation>numbers of rows from 1 to %1, ascending, or none</translation>
    </message>
    <message id="MESS_USE_EPSG">
        <source>an EPSG code</source>
        <translation>an EPSG code</translation>
    </message>
    <message id="MESS_USE_ONE_MAPPING">
        <source>--write-mapping with the name of a file can be used with one table only</source>
        <translation>--write-mapping with the name of a file can be used with one table only</translation>
    </message>
    <message id="MESS_CLI_MAPPING">
        <source>Mapping file written: %1</source>
        <translation>Mapping file written: %1</translation>
    </message>
    <message id="MESS_OPT_ROW_REPORT">
        <source>Write a CSV file with the fate of every row (used, merged into a site, left out) and the reasons; of one table.</source>
        <translation>Write a CSV file with the fate of every row (used, merged into a site, left out) and the reasons; of one table.</translation>
    </message>
    <message id="MESS_OPT_CURES">
        <source>Put the cures of all mistakes in positions into the mapping that is written.</source>
        <translation>Put the cures of all mistakes in positions into the mapping that is written.</translation>
    </message>
    <message id="MESS_USE_CURES">
        <source>--cures needs --write-mapping</source>
        <translation>--cures needs --write-mapping</translation>
    </message>
</context>
<context>
    <name>Link profile</name>
    <message id="MESS_OPT_PROFILE">
        <source>Draw the path of a link, given by its name or as #ROW, into the file of -o (.svg or .png), instead of a layer.</source>
        <translation>Draw the path of a link, given by its name or as #ROW, into the file of -o (.svg or .png), instead of a layer.</translation>
    </message>
    <message id="MESS_USE_PROFILE_OUTPUT">
        <source>the profile is a picture: give -o PROFILE.svg or PROFILE.png</source>
        <translation>the profile is a picture: give -o PROFILE.svg or PROFILE.png</translation>
    </message>
    <message id="MESS_CLI_NO_SUCH_LINK">
        <source>there is no link '%1'%2</source>
        <translation>there is no link '%1'%2</translation>
    </message>
    <message id="MESS_CLI_SAME_LINKS">
        <source>several links have the name '%1': give one of %2</source>
        <translation>several links have the name '%1': give one of %2</translation>
    </message>
    <message id="MESS_CLI_LINK_NO_LENGTH">
        <source>the link '%1' has no profile: an end has no position, or both have the same</source>
        <translation>the link '%1' has no profile: an end has no position, or both have the same</translation>
    </message>
</context>
</TS>
