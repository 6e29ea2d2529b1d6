<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Site file</name>
    <message id="MESS_ERR_OPEN_SITE">
        <source>This file can't be open as a site file</source>
        <translation>This file can't be opened as a site file</translation>
    </message>
    <message id="MESS_ERR_EMPTY_SITE">
        <source>This site file is empty</source>
        <translation>This site file is empty</translation>
    </message>
    <message id="MESS_INFO_SITE_FILE">
        <source>File format is : %1
Coordinates are %2 and are specified in %3</source>
        <extracomment>Keep _F_ (format), _C_ (kind of coordinates) and _U_ (unit): they are replaced. The %n of the source are not.</extracomment>
        <translation>File format is : _F_
Coordinates are _C_ and are specified in _U_</translation>
    </message>
    <message id="MESS_CR_CARTOGRAPHIQUES">
        <source>cartographic</source>
        <extracomment>Goes into _C_ of MESS_INFO_SITE_FILE.</extracomment>
        <translation>cartographic</translation>
    </message>
    <message id="MESS_CR_GEOGRAPHIQUES">
        <source>geographic</source>
        <extracomment>Goes into _C_ of MESS_INFO_SITE_FILE.</extracomment>
        <translation>geographic</translation>
    </message>
    <message id="MESS_METERS">
        <source>meters</source>
        <extracomment>Goes into _U_ of MESS_INFO_SITE_FILE.</extracomment>
        <translation>meters</translation>
    </message>
    <message id="MESS_DMS_FORM">
        <source>D/M/S form</source>
        <extracomment>Goes into _U_ of MESS_INFO_SITE_FILE.</extracomment>
        <translation>D/M/S form</translation>
    </message>
    <message id="MESS_DEC_DEGREES">
        <source>decimal degrees</source>
        <extracomment>Goes into _U_ of MESS_INFO_SITE_FILE.</extracomment>
        <translation>decimal degrees</translation>
    </message>
    <message id="MESS_SRS_SITE_FILE">
        <source>Cartographic system of the site file</source>
        <translation>Cartographic system of the site file</translation>
    </message>
    <message id="MESS_SRS_PROJECT">
        <source>Cartographic system of the target project</source>
        <translation>Cartographic system of the target project</translation>
    </message>
</context>
<context>
    <name>Site layer</name>
    <message id="MESS_SITES">
        <source>Sites</source>
        <extracomment>Title of the layer.</extracomment>
        <translation>Sites</translation>
    </message>
    <message id="MESS_NO_LAYER_SRS">
        <source>No layer can be made: the coordinate system "%1" is not known</source>
        <translation>No layer can be made: the coordinate system "%1" is not known</translation>
    </message>
    <message id="MESS_NO_LOOK_CHOSEN">
        <source>No type of pylons or no sector colors are chosen</source>
        <translation>No type of pylons or no sector colors are chosen</translation>
    </message>
    <message id="MESS_MISSING_CONF_FILE">
        <source>A configuration file is missing</source>
        <translation>A configuration file is missing</translation>
    </message>
    <message id="MESS_CANT_CREATE_LAYER">
        <source>Can't create the layer file</source>
        <translation>Can't create the layer file</translation>
    </message>
</context>
<context>
    <name>Command line</name>
    <message id="MESS_CLI_READING">
        <source>Reading the sites</source>
        <translation>Reading the sites</translation>
    </message>
    <message id="MESS_CLI_FILE">
        <source>File</source>
        <translation>File</translation>
    </message>
    <message id="MESS_CLI_FORMAT">
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message id="MESS_CLI_UNIT">
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message id="MESS_CLI_EPSG">
        <source>EPSG code</source>
        <translation>EPSG code</translation>
    </message>
    <message id="MESS_CLI_SITE_COUNT">
        <source>Number of sites</source>
        <translation>Number of sites</translation>
    </message>
    <message id="MESS_CLI_LAYER">
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message id="MESS_CLI_NAME_FIELD">
        <source>Column that names a site</source>
        <translation>Column that names a site</translation>
    </message>
    <message id="MESS_CLI_COLUMN_NAME">
        <source>Name column</source>
        <translation>Name column</translation>
    </message>
    <message id="MESS_CLI_COLUMN_X">
        <source>X column</source>
        <translation>X column</translation>
    </message>
    <message id="MESS_CLI_COLUMN_Y">
        <source>Y column</source>
        <translation>Y column</translation>
    </message>
    <message id="MESS_CLI_COLUMN_TERRAIN">
        <source>Terrain height column</source>
        <translation>Terrain height column</translation>
    </message>
    <message id="MESS_CLI_COLUMN_SECTORS">
        <source>Sector columns</source>
        <translation>Sector columns</translation>
    </message>
    <message id="MESS_CLI_COLUMN_HEIGHTS">
        <source>Height columns</source>
        <translation>Height columns</translation>
    </message>
    <message id="MESS_CLI_COLUMN_AZIMUTHS">
        <source>Azimuth columns</source>
        <translation>Azimuth columns</translation>
    </message>
    <message id="MESS_CLI_COLUMN_TILTS">
        <source>Tilt columns</source>
        <translation>Tilt columns</translation>
    </message>
    <message id="MESS_CLI_PROBLEMS">
        <source>Problems</source>
        <translation>Problems</translation>
    </message>
    <message id="MESS_CLI_ROW">
        <source>row</source>
        <extracomment>Followed by a number.</extracomment>
        <translation>row</translation>
    </message>
    <message id="MESS_CLI_COLUMN">
        <source>column</source>
        <extracomment>Followed by a name.</extracomment>
        <translation>column</translation>
    </message>
    <message id="MESS_CLI_UNPLACED">
        <source>rows that could not be placed: %1</source>
        <translation>rows that could not be placed: %1</translation>
    </message>
    <message id="MESS_CLI_NO_NAME_FIELD">
        <source>the table has no such column: its sites have no name in the layer</source>
        <extracomment>Follows the name of the column.</extracomment>
        <translation>the table has no such column: its sites have no name in the layer</translation>
    </message>
    <message id="MESS_CLI_NO_SRS">
        <source>no coordinate system is known: give --source-srs and --target-srs</source>
        <extracomment>Keep the two options.</extracomment>
        <translation>no coordinate system is known: give --source-srs and --target-srs</translation>
    </message>
    <message id="MESS_CLI_NONE_PLACED">
        <source>none of its sites has a position; "vltlayers info" shows why</source>
        <extracomment>Follows the name of the table.</extracomment>
        <translation>none of its sites has a position; "vltlayers info" shows why</translation>
    </message>
    <message id="MESS_CLI_OUTPUT_IS_INPUT">
        <source>the output is one of the input files</source>
        <translation>the output is one of the input files</translation>
    </message>
</context>
<context>
    <name>Site panels</name>
    <message id="MESS_SRS_LINK_FILE">
        <source>Cartographic system of the link file</source>
        <translation>Cartographic system of the link file</translation>
    </message>
    <message id="MESS_READ_SRS_FROM_DS">
        <source>Read system from a datasource...</source>
        <translation>Read the system from a file...</translation>
    </message>
    <message id="MESS_TIP_READ_SRS">
        <source>Take the target system from a raster or vector file</source>
        <translation>Take the target system from a raster or vector file</translation>
    </message>
    <message id="MESS_SELECT_DS">
        <source>Select a geodataset (raster or vector)</source>
        <translation>Select a file with a coordinate system (raster or vector)</translation>
    </message>
    <message id="MESS_ALL_FILES">
        <source>All files</source>
        <translation>All files</translation>
    </message>
    <message id="MESS_ATTENTION">
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message id="MESS_ERR_NO_SRS_DSR">
        <source>This raster dataset doesn't contain any valid coordinate system information</source>
        <translation>This raster file doesn't contain any valid coordinate system</translation>
    </message>
    <message id="MESS_ERR_NO_SRS_DSV">
        <source>This vector dataset doesn't contain any valid coordinate system information</source>
        <translation>This vector file doesn't contain any valid coordinate system</translation>
    </message>
    <message id="MESS_SYMBOLIC_REPR">
        <source>Symbolic representation</source>
        <translation>Symbolic representation</translation>
    </message>
    <message id="MESS_PRECISE_REPR">
        <source>Precise representation</source>
        <translation>Precise representation</translation>
    </message>
    <message id="MESS_VIEW_SYMBOLIC">
        <source>Symbolic</source>
        <translation>Symbolic</translation>
    </message>
    <message id="MESS_VIEW_PRECISE">
        <source>Precise</source>
        <translation>Precise</translation>
    </message>
    <message id="MESS_EXAMPLE">
        <source>Example</source>
        <translation>Example</translation>
    </message>
    <message id="MESS_SECTOR_HEIGHT">
        <source>Sector height</source>
        <translation>Sector height</translation>
    </message>
    <message id="MESS_TIP_SECTOR_HEIGHT">
        <source>Height of a sector wedge</source>
        <translation>Height of a sector wedge</translation>
    </message>
    <message id="MESS_SECTOR_RADIUS">
        <source>Sector radius</source>
        <translation>Sector radius</translation>
    </message>
    <message id="MESS_TIP_SECTOR_RADIUS">
        <source>Radius of a sector wedge; the layer has its integer part</source>
        <translation>Radius of a sector wedge; the layer has its integer part</translation>
    </message>
    <message id="MESS_SECTOR_SPACE">
        <source>Vertical spacing between sectors</source>
        <translation>Vertical spacing between sectors</translation>
    </message>
    <message id="MESS_TIP_SECTOR_SPACE">
        <source>Vertical distance between two sectors of a site</source>
        <translation>Vertical distance between two sectors of a site</translation>
    </message>
    <message id="MESS_SECTOR_COLORS">
        <source>Sector colors</source>
        <translation>Sector colors</translation>
    </message>
    <message id="MESS_TIP_SECTOR_COLORS">
        <source>Colors of the sectors of a site, one after the other</source>
        <translation>Colors of the sectors of a site, one after the other</translation>
    </message>
    <message id="MESS_OPAQUE">
        <source>Opaque</source>
        <translation>Opaque</translation>
    </message>
    <message id="MESS_TRANSPARENT">
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message id="MESS_TRANSPARENCY">
        <source>Transparency of the sectors</source>
        <translation>Transparency of the sectors</translation>
    </message>
    <message id="MESS_TIP_TRANSPARENCY">
        <source>Transparency of the sectors in per cent</source>
        <translation>Transparency of the sectors in percent</translation>
    </message>
    <message id="MESS_APP_DISTANCE">
        <source>Apparition distance</source>
        <translation>Shown up to</translation>
    </message>
    <message id="MESS_TIP_SYMBOLIC_DISTANCE">
        <source>Maximum distance at which the sectors are drawn</source>
        <translation>Maximum distance at which the sectors are drawn</translation>
    </message>
    <message id="MESS_PYLON_TYPE">
        <source>Type of pylons</source>
        <translation>Type of pylons</translation>
    </message>
    <message id="MESS_TIP_PYLON_TYPE">
        <source>Mast that carries the antennas of every site</source>
        <translation>Mast that carries the antennas of every site</translation>
    </message>
    <message id="MESS_PYLON_WIDTH">
        <source>Width of the pylons</source>
        <translation>Width of the pylons</translation>
    </message>
    <message id="MESS_TIP_PYLON_WIDTH">
        <source>Width of the mast at its foot</source>
        <translation>Width of the mast at its foot</translation>
    </message>
    <message id="MESS_ANTENNAS_SIZE">
        <source>Antennas size</source>
        <translation>Antenna size</translation>
    </message>
    <message id="MESS_TIP_ANTENNAS_SIZE">
        <source>Size of the antennas; 100 % is their real size</source>
        <translation>Size of the antennas; 100 % is their real size</translation>
    </message>
    <message id="MESS_TIP_REALISTIC_DISTANCE">
        <source>Maximum distance at which masts and antennas are drawn</source>
        <translation>Maximum distance at which masts and antennas are drawn</translation>
    </message>
</context>
<context>
    <name>Add-site page</name>
    <message id="MESS_SITE_LAYER_TITLE">
        <source>Site layer</source>
        <translation>Site layer</translation>
    </message>
    <message id="MESS_SITE_FILE">
        <source>Site file</source>
        <translation>Site file</translation>
    </message>
    <message id="MESS_SITE_FILE2">
        <source>Sites file to display</source>
        <translation>Site file to display</translation>
    </message>
    <message id="MESS_TIP_SITE_FILE">
        <source>Path of the table; press Enter after typing one, or drop a file on the page</source>
        <translation>Path of the table; press Enter after typing one, or drop a file on the page</translation>
    </message>
    <message id="MESS_SITE_FILE_KINDS">
        <source>.xls, .xlsx, .xml or .csv table</source>
        <translation>.xls, .xlsx, .xml or .csv table</translation>
    </message>
    <message id="MESS_SELECT_SITE_FILE">
        <source>Select the site file to use</source>
        <translation>Select the site file to use</translation>
    </message>
    <message id="MESS_SITE_FILES">
        <source>Site files</source>
        <translation>Site files</translation>
    </message>
    <message id="MESS_READING_SITES">
        <source>Reading the site file...</source>
        <translation>Reading the site file...</translation>
    </message>
    <message id="MESS_FILE_REASON">
        <source>%1: %2</source>
        <extracomment>File name and why it was refused.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message id="MESS_READING_SRS">
        <source>Reading the coordinate system...</source>
        <translation>Reading the coordinate system...</translation>
    </message>
    <message id="MESS_NO_SITE_DEFINED">
        <source>No sites file defined.
Select the sites file to display.</source>
        <translation>No site file is chosen yet.
Choose the site file to display.</translation>
    </message>
    <message id="MESS_COORDINATE_SYSTEMS">
        <source>Coordinate systems</source>
        <translation>Coordinate systems</translation>
    </message>
    <message id="MESS_PREVIEW">
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message id="MESS_EMPTY_PREVIEW">
        <source>The layer appears here.</source>
        <translation>The layer appears here.</translation>
    </message>
    <message id="MESS_TIP_OWN_SITES">
        <source>Show the sites of the layer just written</source>
        <translation>Show the sites of the layer just written</translation>
    </message>
    <message id="MESS_OWN_SITES">
        <source>Sites of the layer</source>
        <translation>Sites of the layer</translation>
    </message>
    <message id="MESS_LOADING_SITES">
        <source>Loading the sites...</source>
        <translation>Loading the sites...</translation>
    </message>
    <message id="MESS_CANT_SHOW_LAYER">
        <source>The layer cannot be shown</source>
        <translation>The layer cannot be shown</translation>
    </message>
    <message id="MESS_3D_PREVIEW">
        <source>3D preview</source>
        <translation>3D preview</translation>
    </message>
    <message id="MESS_HINT_3D_PREVIEW">
        <source>Drag to rotate, Shift and drag to move, wheel to zoom</source>
        <translation>Drag to rotate, Shift and drag to move, wheel to zoom</translation>
    </message>
    <message id="MESS_TIP_3D_PREVIEW">
        <source>Drag to rotate, Shift and drag to move, wheel to zoom. Keys: the arrows rotate and tilt, with Shift they move; + and - zoom, T shows the view from above, F the whole scene, Home the first view, N turns north up, A shows or hides scale and legend.</source>
        <translation>Drag to rotate, Shift and drag to move, wheel to zoom. Keys: the arrows rotate and tilt, with Shift they move; + and - zoom, T shows the view from above, F the whole scene, Home the first view, N turns north up, A shows or hides scale and legend.</translation>
    </message>
    <message id="MESS_NO_3D_VIEW">
        <source>No 3D view is available on this system. The layer is complete without it.</source>
        <translation>No 3D view is available on this system. The layer is complete without it.</translation>
    </message>
    <message id="MESS_TIP_SYMBOLIC">
        <source>Show the symbolic representation, from a long distance</source>
        <translation>Show the symbolic representation, from a long distance</translation>
    </message>
    <message id="MESS_TIP_PRECISE">
        <source>Show the precise representation, from a short distance</source>
        <translation>Show the precise representation, from a short distance</translation>
    </message>
    <message id="MESS_DRAG_ICON">
        <source>Drag this icon into
Veltaro Builder
to add the site layer
</source>
        <translation>Drag this icon into
Veltaro Builder
to add the site layer
</translation>
    </message>
    <message id="MESS_DRAG_NAME">
        <source>Site layer to drag into the builder</source>
        <translation>Site layer to drag into the builder</translation>
    </message>
    <message id="MESS_TIP_DRAG">
        <source>Drag the layer file into the builder; Ctrl+C copies it, Ctrl+S saves it under another name</source>
        <translation>Drag the layer file into the builder; Ctrl+C copies it, Ctrl+S saves it under another name</translation>
    </message>
</context>
<context>
    <name>Recognised columns and problems</name>
    <message id="MESS_CANCEL">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="MESS_TIP_DETAILS">
        <source>Show the recognised columns and the rows with problems</source>
        <translation>Show the recognized columns and the rows with problems</translation>
    </message>
    <message id="MESS_CHECKING_ROWS">
        <source>Checking the rows: %p%</source>
        <translation>Checking the rows: %p%</translation>
    </message>
    <message id="MESS_CHECK_PROGRESS">
        <source>Progress of the check</source>
        <translation>Progress of the check</translation>
    </message>
    <message id="MESS_TIP_STOP_CHECK">
        <source>Stop checking the rows</source>
        <translation>Stop checking the rows</translation>
    </message>
    <message id="MESS_MEANING">
        <source>Meaning</source>
        <translation>Meaning</translation>
    </message>
    <message id="MESS_ROW">
        <source>Row</source>
        <translation>Row</translation>
    </message>
    <message id="MESS_COLUMN">
        <source>Column</source>
        <translation>Column</translation>
    </message>
    <message id="MESS_PROBLEM">
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message id="MESS_COLUMNS">
        <source>Columns</source>
        <translation>Columns</translation>
    </message>
    <message id="MESS_PROBLEMS">
        <source>Problems</source>
        <translation>Problems</translation>
    </message>
    <message id="MESS_NO_COLUMN">
        <source>none</source>
        <translation>none</translation>
    </message>
    <message id="MESS_ONE_MORE_PROBLEM">
        <source>1 further problem is not listed</source>
        <translation>1 further problem is not listed</translation>
    </message>
    <message id="MESS_MORE_PROBLEMS">
        <source>%1 further problems are not listed</source>
        <translation>%1 further problems are not listed</translation>
    </message>
    <message id="MESS_RECOGNISED_COLUMNS">
        <source>Recognised columns: %1</source>
        <translation>Recognized columns: %1</translation>
    </message>
    <message id="MESS_ROWS_NOT_CHECKED">
        <source>the rows were not checked</source>
        <translation>the rows were not checked</translation>
    </message>
    <message id="MESS_SITES_PLACED">
        <source>sites placed: %1 of %2</source>
        <translation>sites placed: %1 of %2</translation>
    </message>
    <message id="MESS_NO_SITE_PLACED">
        <source>no site can be placed</source>
        <translation>no site can be placed</translation>
    </message>
    <message id="MESS_PROBLEM_COUNT">
        <source>problems: %1</source>
        <translation>problems: %1</translation>
    </message>
</context>
<context>
    <name>Layer icon</name>
    <message id="MESS_COPY_LAYER">
        <source>&amp;Copy the layer file</source>
        <translation>&amp;Copy the layer file</translation>
    </message>
    <message id="MESS_COPIED">
        <source>Copied</source>
        <translation>Copied</translation>
    </message>
    <message id="MESS_SAVE_LAYER_AS">
        <source>&amp;Save the layer file as...</source>
        <translation>&amp;Save the layer file as...</translation>
    </message>
    <message id="MESS_SAVE_LAYER_TITLE">
        <source>Save the layer file as</source>
        <translation>Save the layer file as</translation>
    </message>
    <message id="MESS_LAYER_FILE_NAME">
        <source>layer</source>
        <translation>layer</translation>
    </message>
    <message id="MESS_LAYER_FILES">
        <source>Layer files</source>
        <translation>Layer files</translation>
    </message>
    <message id="MESS_LINKS_NOT_SITES">
        <source>this is a table of links, not of sites: its coordinates are those of both ends of links</source>
        <translation>this is a table of links, not of sites: its coordinates are those of both ends of links</translation>
    </message>
</context>
</TS>
