<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Link file</name>
    <message id="MESS_ERR_OPEN_LINK">
        <source>This file can't be open as a link file</source>
        <translation>This file can't be opened as a link file</translation>
    </message>
    <message id="MESS_ERR_EMPTY_LINK">
        <source>This link file is empty</source>
        <translation>This link file is empty</translation>
    </message>
</context>
<context>
    <name>Link layer</name>
    <message id="MESS_LINKS">
        <source>Links</source>
        <extracomment>Title of the layer.</extracomment>
        <translation>Links</translation>
    </message>
</context>
<context>
    <name>Clearance</name>
    <message id="MESS_CLEAR">
        <source>clear</source>
        <extracomment>Class of clearance of a link over the terrain.</extracomment>
        <translation>clear</translation>
    </message>
    <message id="MESS_MARGINAL">
        <source>marginal</source>
        <extracomment>Class of clearance of a link over the terrain.</extracomment>
        <translation>marginal</translation>
    </message>
    <message id="MESS_OBSTRUCTED">
        <source>obstructed</source>
        <extracomment>Class of clearance of a link over the terrain.</extracomment>
        <translation>obstructed</translation>
    </message>
    <message id="MESS_UNJUDGED">
        <source>unknown</source>
        <extracomment>Class of clearance of a link over the terrain.</extracomment>
        <translation>unknown</translation>
    </message>
    <message id="MESS_TERRAIN_UNREADABLE">
        <source>the terrain file cannot be read as a georeferenced raster</source>
        <extracomment>A reason in parentheses follows.</extracomment>
        <translation>the terrain file cannot be read as a georeferenced raster</translation>
    </message>
    <message id="MESS_TERRAIN_NO_RASTER">
        <source>its format is not a known raster format</source>
        <translation>its format is not a known raster format</translation>
    </message>
    <message id="MESS_TERRAIN_ELSEWHERE">
        <source>there is no transformation from the coordinate system of the links to that of the terrain</source>
        <translation>there is no transformation from the coordinate system of the links to that of the terrain</translation>
    </message>
</context>
<context>
    <name>Columns of link tables</name>
    <message id="MESS_LINK_COLUMN_NAME">
        <source>Link name</source>
        <translation>Link name</translation>
    </message>
    <message id="MESS_LINK_COLUMN_BAND">
        <source>Frequency band</source>
        <translation>Frequency band</translation>
    </message>
    <message id="MESS_LINK_COLUMN_LENGTH">
        <source>Path length</source>
        <translation>Path length</translation>
    </message>
    <message id="MESS_LINK_COLUMN_ID">
        <source>Identifier of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>Identifier of end %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_X">
        <source>X of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>X of end %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_Y">
        <source>Y of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>Y of end %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_HEIGHT">
        <source>Height of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>Height of end %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_FREQUENCY">
        <source>Frequency of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>Frequency of end %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_AZIMUTH">
        <source>Azimuth of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>Azimuth of end %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_TILT">
        <source>Tilt of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>Tilt of end %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_DX">
        <source>DX of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>DX of end %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_DY">
        <source>DY of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>DY of end %1</translation>
    </message>
</context>
<context>
    <name>Command line</name>
    <message id="MESS_CLI_READING_LINKS">
        <source>Reading the links</source>
        <translation>Reading the links</translation>
    </message>
    <message id="MESS_CLI_LINK_COUNT">
        <source>Number of links</source>
        <translation>Number of links</translation>
    </message>
    <message id="MESS_CLI_END_LAYER">
        <source>Layer of the link ends</source>
        <translation>Layer of the link ends</translation>
    </message>
    <message id="MESS_CLI_LINK_FIELD">
        <source>Column that names a link</source>
        <translation>Column that names a link</translation>
    </message>
    <message id="MESS_CLI_FREQUENCY_UNIT">
        <source>Unit of the frequency band</source>
        <translation>Unit of the frequency band</translation>
    </message>
    <message id="MESS_CLI_LENGTH_UNIT">
        <source>Unit of the length</source>
        <translation>Unit of the length</translation>
    </message>
    <message id="MESS_CLI_NO_LINK_PLACED">
        <source>none of its links has a position; "vltlayers info --link" shows why</source>
        <extracomment>Follows the name of the table.</extracomment>
        <translation>none of its links has a position; "vltlayers info --link" shows why</translation>
    </message>
    <message id="MESS_CLI_NO_TERRAIN">
        <source>no terrain is known, so the clearance of the links cannot be computed: give --terrain</source>
        <extracomment>Keep the option.</extracomment>
        <translation>no terrain is known, so the clearance of the links cannot be computed: give --terrain</translation>
    </message>
    <message id="MESS_CLI_LINK">
        <source>link</source>
        <extracomment>Column header.</extracomment>
        <translation>link</translation>
    </message>
    <message id="MESS_CLI_END_A">
        <source>end A</source>
        <extracomment>Column header.</extracomment>
        <translation>end A</translation>
    </message>
    <message id="MESS_CLI_END_B">
        <source>end B</source>
        <extracomment>Column header.</extracomment>
        <translation>end B</translation>
    </message>
    <message id="MESS_CLI_VERDICT">
        <source>clearance</source>
        <extracomment>Column header.</extracomment>
        <translation>clearance</translation>
    </message>
    <message id="MESS_CLI_NOT_PLACED">
        <source>not placed</source>
        <extracomment>In place of the clearance, of a link without positions.</extracomment>
        <translation>not placed</translation>
    </message>
    <message id="MESS_CLI_WORST_KM">
        <source>worst at km</source>
        <extracomment>Column header: distance from end A to the point with the smallest free share of the Fresnel zone.</extracomment>
        <translation>worst at km</translation>
    </message>
    <message id="MESS_CLI_CLEARANCE_M">
        <source>clearance m</source>
        <extracomment>Column header: height of the line of sight over the ground.</extracomment>
        <translation>clearance m</translation>
    </message>
    <message id="MESS_CLI_CLEARANCE_SHARE">
        <source>% of zone 1</source>
        <extracomment>Column header: the same as a share of the first Fresnel zone.</extracomment>
        <translation>% of zone 1</translation>
    </message>
    <message id="MESS_LACK_PLACE">
        <source>an end has no position</source>
        <translation>an end has no position</translation>
    </message>
    <message id="MESS_LACK_TERRAIN">
        <source>no terrain</source>
        <translation>no terrain</translation>
    </message>
    <message id="MESS_LACK_HEIGHT_A">
        <source>no antenna height at end A</source>
        <translation>no antenna height at end A</translation>
    </message>
    <message id="MESS_LACK_HEIGHT_B">
        <source>no antenna height at end B</source>
        <translation>no antenna height at end B</translation>
    </message>
    <message id="MESS_LACK_FREQUENCY">
        <source>no frequency</source>
        <translation>no frequency</translation>
    </message>
    <message id="MESS_LACK_PATH">
        <source>the terrain does not cover the whole path</source>
        <translation>the terrain does not cover the whole path</translation>
    </message>
    <message id="MESS_LACK_LENGTH">
        <source>both ends have the same position</source>
        <translation>both ends have the same position</translation>
    </message>
</context>
<context>
    <name>Link profile</name>
    <message id="MESS_PROFILE_DISTANCE">
        <source>distance from A (km)</source>
        <translation>distance from A (km)</translation>
    </message>
    <message id="MESS_PROFILE_HEIGHT">
        <source>m above sea level</source>
        <translation>m above sea level</translation>
    </message>
    <message id="MESS_PROFILE_ANTENNA">
        <source>antenna %1 m, at %2 m above sea level</source>
        <translation>antenna %1 m, at %2 m above sea level</translation>
    </message>
    <message id="MESS_PROFILE_ANTENNA_LEVEL">
        <source>antenna %1 m</source>
        <translation>antenna %1 m</translation>
    </message>
    <message id="MESS_PROFILE_METRES">
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message id="MESS_PROFILE_GROUND">
        <source>ground</source>
        <translation>ground</translation>
    </message>
    <message id="MESS_PROFILE_BULGE">
        <source>curvature of the earth (k = %1)</source>
        <translation>curvature of the earth (k = %1)</translation>
    </message>
    <message id="MESS_PROFILE_RAY">
        <source>line of sight</source>
        <translation>line of sight</translation>
    </message>
    <message id="MESS_PROFILE_ZONE">
        <source>first Fresnel zone</source>
        <translation>first Fresnel zone</translation>
    </message>
    <message id="MESS_PROFILE_SHARE">
        <source>%1 % of it, to be clear</source>
        <translation>%1 % of it, to be clear</translation>
    </message>
    <message id="MESS_PROFILE_ROW">
        <source>link of row %1</source>
        <translation>link of row %1</translation>
    </message>
    <message id="MESS_PROFILE_LENGTH">
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message id="MESS_PROFILE_FREQUENCY">
        <source>%1 GHz</source>
        <translation>%1 GHz</translation>
    </message>
    <message id="MESS_PROFILE_LEVEL">
        <source>no terrain: the ground is drawn level</source>
        <translation>no terrain: the ground is drawn level</translation>
    </message>
    <message id="MESS_PROFILE_HEIGHT_SHORT">
        <source>height (m)</source>
        <translation>height (m)</translation>
    </message>
    <message id="MESS_PROFILE_FROM_A">
        <source>%1 km from A</source>
        <translation>%1 km from A</translation>
    </message>
    <message id="MESS_PROFILE_GROUND_AT">
        <source>ground at %1 m</source>
        <translation>ground at %1 m</translation>
    </message>
    <message id="MESS_PROFILE_RAY_AT">
        <source>line of sight at %1 m</source>
        <translation>line of sight at %1 m</translation>
    </message>
    <message id="MESS_PROFILE_CUT">
        <source>terrain %1 m above the line</source>
        <translation>terrain %1 m above the line</translation>
    </message>
    <message id="MESS_PROFILE_FREE_SHARE">
        <source>%1 m free (%2 % of the Fresnel zone)</source>
        <translation>%1 m free (%2 % of the Fresnel zone)</translation>
    </message>
    <message id="MESS_PROFILE_FREE">
        <source>%1 m free</source>
        <translation>%1 m free</translation>
    </message>
</context>
</TS>
