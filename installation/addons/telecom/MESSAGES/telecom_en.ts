<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Site file</name>
    <message id="MESS_ERR_OPEN_SITE">
        <source>This file can't be open as a site file</source>
        <translation>This file can't be open as a site file</translation>
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
        <source>rows that could not be placed</source>
        <extracomment>Followed by a colon and a number.</extracomment>
        <translation>rows that could not be placed</translation>
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
        <source>none of its sites can be placed; "vltlayers info" tells why</source>
        <extracomment>Follows the name of the table.</extracomment>
        <translation>none of its sites can be placed; "vltlayers info" tells why</translation>
    </message>
    <message id="MESS_CLI_OUTPUT_IS_INPUT">
        <source>the output is one of the input files</source>
        <translation>the output is one of the input files</translation>
    </message>
</context>
</TS>
