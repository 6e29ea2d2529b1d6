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
        <source>Makes a layer of 3D buildings, the same that the wizard makes: colored from a raster (--image), with images on roofs, walls or storeys (--texture, --textures), or plain.</source>
        <translation>Makes a layer of 3D buildings, the same that the wizard makes: colored from a raster (--image), with images on roofs, walls or storeys (--texture, --textures), or plain.</translation>
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
        <source>Raster of one band that the buildings are colored from: a file, or the name of one of its subdatasets.</source>
        <translation>Raster of one band that the buildings are colored from: a file, or the name of one of its subdatasets.</translation>
    </message>
    <message id="MESS_OPT_IMAGE_NODATA">
        <source>Value of the image's pixels without a value, besides those that the file states (default none).</source>
        <translation>Value of the image's pixels without a value, besides those that the file states (default none).</translation>
    </message>
    <message id="MESS_OPT_COLORMAP">
        <source>Color map: one of the installation's by its name, or a file (default: the installation's first one).</source>
        <translation>Color map: one of the installation's by its name, or a file (default: the installation's first one).</translation>
    </message>
    <message id="MESS_OPT_ABSOLUTE">
        <source>Take the color map's own values (default: it is stretched over the image's least and greatest value).</source>
        <translation>Take the color map's own values (default: it is stretched over the image's least and greatest value).</translation>
    </message>
    <message id="MESS_OPT_COLOR_RANGES">
        <source>Color ranges of values (default: colors between two values of the map are interpolated).</source>
        <translation>Color ranges of values (default: colors between two values of the map are interpolated).</translation>
    </message>
    <message id="MESS_OPT_MODE">
        <source>Which of the values under a building colors it (default minimum).</source>
        <translation>Which of the values under a building colors it (default minimum).</translation>
    </message>
    <message id="MESS_OPT_TEXTURE">
        <source>Image for the height above the ground that is given, or that it or its name states. May be given several times.</source>
        <translation>Image for the height above the ground that is given, or that it or its name states. May be given several times.</translation>
    </message>
    <message id="MESS_OPT_TEXTURES">
        <source>One image of a set; the others are found by it.</source>
        <translation>One image of a set; the others are found by it.</translation>
    </message>
    <message id="MESS_OPT_STRUCTURE">
        <source>Where they are: in the template's folder (default), in the folders beside it, or in the folders of the folders beside its parent.</source>
        <translation>Where they are: in the template's folder (default), in the folders beside it, or in the folders of the folders beside its parent.</translation>
    </message>
    <message id="MESS_OPT_FILTER">
        <source>Of the set only images with this in their file name, folder, description or height.</source>
        <translation>Of the set only images with this in their file name, folder, description or height.</translation>
    </message>
    <message id="MESS_OPT_TEXTURE_ON">
        <source>Where the images go: roofs take the one nearest to their height, walls have a band for each, storeys are floors at the images' heights (default roofs).</source>
        <translation>Where the images go: roofs take the one nearest to their height, walls have a band for each, storeys are floors at the images' heights (default roofs).</translation>
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
        <source>Draw edges in any case.</source>
        <translation>Draw edges in any case.</translation>
    </message>
    <message id="MESS_OPT_NO_COMPLEX_BUILDINGS">
        <source>No images on buildings with courtyards or many corners.</source>
        <translation>No images on buildings with courtyards or many corners.</translation>
    </message>
    <message id="MESS_OPT_CACHE">
        <source>What the builder keeps of the finished buildings (default none).</source>
        <translation>What the builder keeps of the finished buildings (default none).</translation>
    </message>
    <message id="MESS_OPT_DELAYED_WRITE">
        <source>Write to the cache only when --cache-capacity elements wait.</source>
        <translation>Write to the cache only when --cache-capacity elements wait.</translation>
    </message>
    <message id="MESS_OPT_COMPRESSION">
        <source>Compression of the images in graphics memory (default none).</source>
        <translation>Compression of the images in graphics memory (default none).</translation>
    </message>
    <message id="MESS_OPT_MAGNIFY">
        <source>How pixels are drawn from near: as squares (default), or blended.</source>
        <translation>How pixels are drawn from near: as squares (default), or blended.</translation>
    </message>
    <message id="MESS_OPT_DISTANCE">
        <source>Distance in metres up to which the buildings are shown</source>
        <translation>Distance in metres up to which the buildings are shown</translation>
    </message>
    <message id="MESS_OPT_TILE_SIZE">
        <source>Side in metres of the tiles that the buildings are shared out to</source>
        <translation>Side in metres of the tiles that the buildings are shared out to</translation>
    </message>
    <message id="MESS_OPT_SKIRT">
        <source>Metres that walls go down below the ground</source>
        <translation>Metres that walls go down below the ground</translation>
    </message>
    <message id="MESS_OPT_TEXTURED_DISTANCE">
        <source>Distance in metres up to which the images are shown</source>
        <translation>Distance in metres up to which the images are shown</translation>
    </message>
    <message id="MESS_OPT_CACHE_CAPACITY">
        <source>Elements that wait before they are written to the cache</source>
        <translation>Elements that wait before they are written to the cache</translation>
    </message>
    <message id="MESS_OPT_BUFFER">
        <source>Metres outside a wall at which its colors are taken</source>
        <translation>Metres outside a wall at which its colors are taken</translation>
    </message>
    <message id="MESS_OPT_DILATATION">
        <source>Pixels by which the colors of an image grow into empty ones</source>
        <translation>Pixels by which the colors of an image grow into empty ones</translation>
    </message>
    <message id="MESS_OPT_TOWN_OUTPUT">
        <source>Layer file to write; the building document is written beside it as OUT.texb, the legend of a color map as NAME_gradient.png.</source>
        <translation>Layer file to write; the building document is written beside it as OUT.texb, the legend of a color map as NAME_gradient.png.</translation>
    </message>
    <message id="MESS_OPT_DTM">
        <source>Terrain raster that the buildings stand on (default: the project's).</source>
        <translation>Terrain raster that the buildings stand on (default: the project's).</translation>
    </message>
    <message id="MESS_OPT_DTM_NODATA">
        <source>Value of the terrain where its height is not known (default: what the file states).</source>
        <translation>Value of the terrain where its height is not known (default: what the file states).</translation>
    </message>
    <message id="MESS_OPT_VECTOR_LAYER">
        <source>Layer of the vector file (default: the first one of polygons).</source>
        <translation>Layer of the vector file (default: the first one of polygons).</translation>
    </message>
    <message id="MESS_OPT_HEIGHT_FIELD">
        <source>Field with the heights of the buildings (default: AGL, H, HEIGHT or COLOR, else the second one).</source>
        <translation>Field with the heights of the buildings (default: AGL, H, HEIGHT or COLOR, else the second one).</translation>
    </message>
    <message id="MESS_OPT_CHECK_CLOCKWISE">
        <source>Have the directions of the outlines checked.</source>
        <translation>Have the directions of the outlines checked.</translation>
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
        <source>--texture and --textures do not go together</source>
        <translation>--texture and --textures do not go together</translation>
    </message>
    <message id="MESS_USE_ONLY_IMAGE">
        <source>%1 is only for --image</source>
        <translation>%1 is only for --image</translation>
    </message>
    <message id="MESS_USE_ONLY_SET">
        <source>%1 is only for --textures</source>
        <translation>%1 is only for --textures</translation>
    </message>
    <message id="MESS_USE_ONLY_TEXTURES">
        <source>%1 is only for --texture and --textures</source>
        <translation>%1 is only for --texture and --textures</translation>
    </message>
    <message id="MESS_USE_NOT_IMAGE">
        <source>%1 is not for buildings that --image colors alone</source>
        <translation>%1 is not for buildings that --image colors alone</translation>
    </message>
    <message id="MESS_USE_NO_VALUE">
        <source>%1 needs a value</source>
        <translation>%1 needs a value</translation>
    </message>
    <message id="MESS_USE_NEEDS_CACHE">
        <source>--%1 needs a --cache</source>
        <translation>--%1 needs a --cache</translation>
    </message>
    <message id="MESS_USE_NEEDS_IMAGE">
        <source>colormap as a color needs --image</source>
        <translation>colormap as a color needs --image</translation>
    </message>
    <message id="MESS_USE_NEEDS_COLORMAP">
        <source>--image colors these buildings only with --wall-color colormap or --roof-color colormap</source>
        <translation>--image colors these buildings only with --wall-color colormap or --roof-color colormap</translation>
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
        <source>'-o -': a layer of buildings lies beside its document, it has to be a file</source>
        <translation>'-o -': a layer of buildings lies beside its document, it has to be a file</translation>
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
        <source>'-': the standard input is not read, inputs are files</source>
        <translation>'-': the standard input is not read, inputs are files</translation>
    </message>
    <message id="MESS_OPT_INSTALL">
        <source>Root of the installation (default: where the program's settings say, else the program's own directory).</source>
        <translation>Root of the installation (default: where the program's settings say, else the program's own directory).</translation>
    </message>
    <message id="MESS_OPT_PROJECT">
        <source>Target project: its reference system and terrain choose the coordinate systems, and the layer names the table relative to it; buildings: its buildings and terrain are the defaults.</source>
        <translation>Target project: its reference system and terrain choose the coordinate systems, and the layer names the table relative to it; buildings: its buildings and terrain are the defaults.</translation>
    </message>
    <message id="MESS_OPT_LANGUAGE">
        <source>Language of messages and of the layer.</source>
        <translation>Language of messages and of the layer.</translation>
    </message>
    <message id="MESS_OPT_JSON">
        <source>Print one JSON object (UTF-8); errors, too.</source>
        <translation>Print one JSON object (UTF-8); errors, too.</translation>
    </message>
    <message id="MESS_OPT_QUIET">
        <source>Tell nothing on the error output but errors.</source>
        <translation>Tell nothing on the error output but errors.</translation>
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
        <source>'-o -' and %1 do not go together: both write to the standard output</source>
        <translation>'-o -' and %1 do not go together: both write to the standard output</translation>
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
        <source>the options of a command</source>
        <translation>the options of a command</translation>
    </message>
    <message id="MESS_HELP_PROGRAM_USAGE">
        <source>COMMAND [OPTION]...</source>
        <translation>COMMAND [OPTION]...</translation>
    </message>
    <message id="MESS_HELP_PROGRAM">
        <source>Makes layers of telecom tables and of buildings for a 3D project.</source>
        <translation>Makes layers of telecom tables and of buildings for a 3D project.</translation>
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
        <source>what tables hold</source>
        <translation>what tables hold</translation>
    </message>
    <message id="MESS_HELP_INFO">
        <source>Tells what a table of sites or links holds: format, unit, coordinate systems, recognised columns, and the rows that cannot be used.</source>
        <translation>Tells what a table of sites or links holds: format, unit, coordinate systems, recognised columns, and the rows that cannot be used.</translation>
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
        <source>Coordinate system of the table (default: what the table declares, else 4326 for degrees, else the terrain's).</source>
        <translation>Coordinate system of the table (default: what the table declares, else 4326 for degrees, else the terrain's).</translation>
    </message>
    <message id="MESS_OPT_TARGET_SRS">
        <source>Coordinate system of the project (default: the project's, else the terrain's, else 4326 for degrees, else the table's).</source>
        <translation>Coordinate system of the project (default: the project's, else the terrain's, else 4326 for degrees, else the table's).</translation>
    </message>
    <message id="MESS_OPT_SHEET">
        <source>Sheet of a workbook (default: the one whose header names sites or links).</source>
        <translation>Sheet of a workbook (default: the one whose header names sites or links).</translation>
    </message>
    <message id="MESS_OPT_ENCODING">
        <source>Encoding of a text file, such as CP1250 (default: found from its bytes).</source>
        <translation>Encoding of a text file, such as CP1250 (default: found from its bytes).</translation>
    </message>
    <message id="MESS_OPT_DELIMITER">
        <source>What separates the columns of a text file (default: found from its lines).</source>
        <translation>What separates the columns of a text file (default: found from its lines).</translation>
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
        <source>Makes the same layer from a table of microwave links as the wizard, and checks the clearance of each link over the terrain.</source>
        <translation>Makes the same layer from a table of microwave links as the wizard, and checks the clearance of each link over the terrain.</translation>
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
        <source>Width of the links, pixels for lines, else metres</source>
        <translation>Width of the links, pixels for lines, else metres</translation>
    </message>
    <message id="MESS_OPT_FRESNEL_ZONE">
        <source>Number of the Fresnel zone that is drawn, 0 for none</source>
        <translation>Number of the Fresnel zone that is drawn, 0 for none</translation>
    </message>
    <message id="MESS_OPT_FRESNEL_SHARE">
        <source>Share of the zone's radius that is drawn, and share of the first zone's radius that must be free, in per cent</source>
        <translation>Share of the zone's radius that is drawn, and share of the first zone's radius that must be free, in per cent</translation>
    </message>
    <message id="MESS_OPT_FRESNEL_TRANSPARENCY">
        <source>Transparency of the Fresnel zone in per cent</source>
        <translation>Transparency of the Fresnel zone in per cent</translation>
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
        <source>How links are drawn (default %1).</source>
        <translation>How links are drawn (default %1).</translation>
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
        <source>Makes a site layer of a table, the same that the wizard makes.</source>
        <translation>Makes a site layer of a table, the same that the wizard makes.</translation>
    </message>
    <message id="MESS_HELP_SITE_TABLE">
        <source>Site table (.xls .xlsx .xml .csv).</source>
        <translation>Site table (.xls .xlsx .xml .csv).</translation>
    </message>
    <message id="MESS_OPT_SECTOR_HEIGHT">
        <source>Sector height in metres</source>
        <translation>Sector height in metres</translation>
    </message>
    <message id="MESS_OPT_SECTOR_RADIUS">
        <source>Sector radius in metres</source>
        <translation>Sector radius in metres</translation>
    </message>
    <message id="MESS_OPT_SECTOR_SPACING">
        <source>Vertical spacing between sectors in metres</source>
        <translation>Vertical spacing between sectors in metres</translation>
    </message>
    <message id="MESS_OPT_TRANSPARENCY">
        <source>Transparency of the sectors in per cent</source>
        <translation>Transparency of the sectors in per cent</translation>
    </message>
    <message id="MESS_OPT_SYMBOLIC_DISTANCE">
        <source>Apparition distance of the symbolic representation in metres</source>
        <translation>Apparition distance of the symbolic representation in metres</translation>
    </message>
    <message id="MESS_OPT_PYLON_WIDTH">
        <source>Width of the pylons in metres</source>
        <translation>Width of the pylons in metres</translation>
    </message>
    <message id="MESS_OPT_ANTENNA_SIZE">
        <source>Antennas size in per cent</source>
        <translation>Antennas size in per cent</translation>
    </message>
    <message id="MESS_OPT_REALISTIC_DISTANCE">
        <source>Apparition distance of the precise representation in metres</source>
        <translation>Apparition distance of the precise representation in metres</translation>
    </message>
    <message id="MESS_USE_NOT_IN_CATALOGUE">
        <source>--%1: no "%2" (%3)</source>
        <translation>--%1: no "%2" (%3)</translation>
    </message>
    <message id="MESS_OPT_SECTOR_COLORS">
        <source>Sector colors: a set's number in the catalogue, from 1, or its name in any language (default 1).</source>
        <translation>Sector colors: a set's number in the catalogue, from 1, or its name in any language (default 1).</translation>
    </message>
    <message id="MESS_OPT_PYLON_TYPE">
        <source>Type of pylons, or its number in the catalogue, from 1, or its name in any language (default 1).</source>
        <translation>Type of pylons, or its number in the catalogue, from 1, or its name in any language (default 1).</translation>
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
        <source>Makes a picture (PNG) of a layer or of another scene file. It needs an X server; without a screen xvfb-run gives one.</source>
        <translation>Makes a picture (PNG) of a layer or of another scene file. It needs an X server; without a screen xvfb-run gives one.</translation>
    </message>
    <message id="MESS_HELP_SNAPSHOT_LAYER">
        <source>Layer (.lay), building document (.texb), any scene file that the scene library reads, or a parametric object inline://parametric/query?...</source>
        <translation>Layer (.lay), building document (.texb), any scene file that the scene library reads, or a parametric object inline://parametric/query?...</translation>
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
        <source>all: everything, from the south-west (default); symbolic: the sectors of the site in the middle; precise: its mast and antennas.</source>
        <translation>all: everything, from the south-west (default); symbolic: the sectors of the site in the middle; precise: its mast and antennas.</translation>
    </message>
    <message id="MESS_OPT_SHOW_TERRAIN">
        <source>Links: show the surface of the project's terrain, too.</source>
        <translation>Links: show the surface of the project's terrain, too.</translation>
    </message>
    <message id="MESS_USE_NO_PICTURE">
        <source>no output file given (-o PICTURE.png)</source>
        <translation>no output file given (-o PICTURE.png)</translation>
    </message>
    <message id="MESS_USE_PNG">
        <source>the picture is a PNG: its name has to end in .png</source>
        <translation>the picture is a PNG: its name has to end in .png</translation>
    </message>
    <message id="MESS_USE_SIZE">
        <source>WxH, each of %1 to %2 pixels</source>
        <translation>WxH, each of %1 to %2 pixels</translation>
    </message>
    <message id="MESS_CLI_TABLE_NO_SCENE">
        <source>a table becomes a layer first, by "vltlayers site" or "vltlayers link"</source>
        <translation>a table becomes a layer first, by "vltlayers site" or "vltlayers link"</translation>
    </message>
    <message id="MESS_CLI_NO_INSTALL_DIR">
        <source>no such install directory</source>
        <translation>no such install directory</translation>
    </message>
    <message id="MESS_USE_DID_YOU_MEAN">
        <source>; did you mean '%1'?</source>
        <translation>; did you mean '%1'?</translation>
    </message>
    <message id="MESS_USE_NO_COMMAND">
        <source>no such command: %1</source>
        <translation>no such command: %1</translation>
    </message>
    <message id="MESS_USE_COMMAND_MISSING">
        <source>no command given</source>
        <translation>no command given</translation>
    </message>
    <message id="MESS_CLI_NAME_NOT_UTF8">
        <source>this name is not in UTF-8: give the file another one</source>
        <translation>this name is not in UTF-8: give the file another one</translation>
    </message>
</context>
</TS>
