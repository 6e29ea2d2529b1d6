<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Link file</name>
    <message id="MESS_ERR_OPEN_LINK">
        <source>This file can't be open as a link file</source>
        <translation>Ce fichier ne peut pas être ouvert comme fichier de liaisons</translation>
    </message>
    <message id="MESS_ERR_EMPTY_LINK">
        <source>This link file is empty</source>
        <translation>Ce fichier de liaisons est vide</translation>
    </message>
</context>
<context>
    <name>Link layer</name>
    <message id="MESS_LINKS">
        <source>Links</source>
        <extracomment>Title of the layer.</extracomment>
        <translation>Liaisons</translation>
    </message>
</context>
<context>
    <name>Clearance</name>
    <message id="MESS_CLEAR">
        <source>clear</source>
        <extracomment>Class of clearance of a link over the terrain.</extracomment>
        <translation>dégagé</translation>
    </message>
    <message id="MESS_MARGINAL">
        <source>marginal</source>
        <extracomment>Class of clearance of a link over the terrain.</extracomment>
        <translation>limite</translation>
    </message>
    <message id="MESS_OBSTRUCTED">
        <source>obstructed</source>
        <extracomment>Class of clearance of a link over the terrain.</extracomment>
        <translation>obstrué</translation>
    </message>
    <message id="MESS_UNJUDGED">
        <source>unknown</source>
        <extracomment>Class of clearance of a link over the terrain.</extracomment>
        <translation>inconnu</translation>
    </message>
    <message id="MESS_TERRAIN_UNREADABLE">
        <source>the terrain file cannot be read as a georeferenced raster</source>
        <extracomment>A reason in parentheses follows.</extracomment>
        <translation>le fichier de terrain ne peut pas être lu comme image géoréférencée</translation>
    </message>
    <message id="MESS_TERRAIN_NO_RASTER">
        <source>its format is not a known raster format</source>
        <translation>son format n'est pas un format d'image connu</translation>
    </message>
    <message id="MESS_TERRAIN_ELSEWHERE">
        <source>there is no transformation from the coordinate system of the links to that of the terrain</source>
        <translation>il n'existe pas de transformation du système de coordonnées des liaisons vers celui du terrain</translation>
    </message>
</context>
<context>
    <name>Columns of link tables</name>
    <message id="MESS_LINK_COLUMN_NAME">
        <source>Link name</source>
        <translation>Nom de la liaison</translation>
    </message>
    <message id="MESS_LINK_COLUMN_BAND">
        <source>Frequency band</source>
        <translation>Bande de fréquences</translation>
    </message>
    <message id="MESS_LINK_COLUMN_LENGTH">
        <source>Path length</source>
        <translation>Longueur du trajet</translation>
    </message>
    <message id="MESS_LINK_COLUMN_ID">
        <source>Identifier of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>Identifiant de l'extrémité %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_X">
        <source>X of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>X de l'extrémité %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_Y">
        <source>Y of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>Y de l'extrémité %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_HEIGHT">
        <source>Height of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>Hauteur de l'extrémité %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_FREQUENCY">
        <source>Frequency of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>Fréquence de l'extrémité %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_AZIMUTH">
        <source>Azimuth of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>Azimut de l'extrémité %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_TILT">
        <source>Tilt of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>Inclinaison de l'extrémité %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_DX">
        <source>DX of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>DX de l'extrémité %1</translation>
    </message>
    <message id="MESS_LINK_COLUMN_DY">
        <source>DY of end %1</source>
        <extracomment>A or B.</extracomment>
        <translation>DY de l'extrémité %1</translation>
    </message>
</context>
<context>
    <name>Command line</name>
    <message id="MESS_CLI_READING_LINKS">
        <source>Reading the links</source>
        <translation>Lecture des liaisons</translation>
    </message>
    <message id="MESS_CLI_LINK_COUNT">
        <source>Number of links</source>
        <translation>Nombre de liaisons</translation>
    </message>
    <message id="MESS_CLI_END_LAYER">
        <source>Layer of the link ends</source>
        <translation>Couche des extrémités</translation>
    </message>
    <message id="MESS_CLI_LINK_FIELD">
        <source>Column that names a link</source>
        <translation>Colonne qui nomme une liaison</translation>
    </message>
    <message id="MESS_CLI_FREQUENCY_UNIT">
        <source>Unit of the frequency band</source>
        <translation>Unité de la bande de fréquences</translation>
    </message>
    <message id="MESS_CLI_LENGTH_UNIT">
        <source>Unit of the length</source>
        <translation>Unité de la longueur</translation>
    </message>
    <message id="MESS_CLI_NO_LINK_PLACED">
        <source>none of its links has a position; "vltlayers info --link" shows why</source>
        <extracomment>Follows the name of the table.</extracomment>
        <translation>aucune de ses liaisons n'a de position ; « vltlayers info --link » indique pourquoi</translation>
    </message>
    <message id="MESS_CLI_NO_TERRAIN">
        <source>no terrain is known, so the clearance of the links cannot be computed: give --terrain</source>
        <extracomment>Keep the option.</extracomment>
        <translation>aucun terrain n'est connu, le dégagement des liaisons ne peut pas être calculé : indiquez --terrain</translation>
    </message>
    <message id="MESS_CLI_LINK">
        <source>link</source>
        <extracomment>Column header.</extracomment>
        <translation>liaison</translation>
    </message>
    <message id="MESS_CLI_END_A">
        <source>end A</source>
        <extracomment>Column header.</extracomment>
        <translation>extrémité A</translation>
    </message>
    <message id="MESS_CLI_END_B">
        <source>end B</source>
        <extracomment>Column header.</extracomment>
        <translation>extrémité B</translation>
    </message>
    <message id="MESS_CLI_VERDICT">
        <source>clearance</source>
        <extracomment>Column header.</extracomment>
        <translation>dégagement</translation>
    </message>
    <message id="MESS_CLI_NOT_PLACED">
        <source>not placed</source>
        <extracomment>In place of the clearance, of a link without positions.</extracomment>
        <translation>non placée</translation>
    </message>
    <message id="MESS_CLI_WORST_KM">
        <source>worst at km</source>
        <extracomment>Column header: distance from end A to the point with the smallest free share of the Fresnel zone.</extracomment>
        <translation>pire au km</translation>
    </message>
    <message id="MESS_CLI_CLEARANCE_M">
        <source>clearance m</source>
        <extracomment>Column header: height of the line of sight over the ground.</extracomment>
        <translation>dégagement m</translation>
    </message>
    <message id="MESS_CLI_CLEARANCE_SHARE">
        <source>% of zone 1</source>
        <extracomment>Column header: the same as a share of the first Fresnel zone.</extracomment>
        <translation>% de la zone 1</translation>
    </message>
    <message id="MESS_LACK_PLACE">
        <source>an end has no position</source>
        <translation>une extrémité n'a pas de position</translation>
    </message>
    <message id="MESS_LACK_TERRAIN">
        <source>no terrain</source>
        <translation>pas de terrain</translation>
    </message>
    <message id="MESS_LACK_HEIGHT_A">
        <source>no antenna height at end A</source>
        <translation>pas de hauteur d'antenne à l'extrémité A</translation>
    </message>
    <message id="MESS_LACK_HEIGHT_B">
        <source>no antenna height at end B</source>
        <translation>pas de hauteur d'antenne à l'extrémité B</translation>
    </message>
    <message id="MESS_LACK_FREQUENCY">
        <source>no frequency</source>
        <translation>pas de fréquence</translation>
    </message>
    <message id="MESS_LACK_PATH">
        <source>the terrain does not cover the whole path</source>
        <translation>le terrain ne couvre pas tout le trajet</translation>
    </message>
    <message id="MESS_LACK_LENGTH">
        <source>both ends have the same position</source>
        <translation>les deux extrémités ont la même position</translation>
    </message>
</context>
<context>
    <name>Link profile</name>
    <message id="MESS_PROFILE_DISTANCE">
        <source>distance from A (km)</source>
        <translation>distance depuis A (km)</translation>
    </message>
    <message id="MESS_PROFILE_HEIGHT">
        <source>m above sea level</source>
        <translation>m au-dessus du niveau de la mer</translation>
    </message>
    <message id="MESS_PROFILE_ANTENNA">
        <source>antenna %1 m, at %2 m above sea level</source>
        <translation>antenne à %1 m du sol, altitude %2 m</translation>
    </message>
    <message id="MESS_PROFILE_ANTENNA_LEVEL">
        <source>antenna %1 m</source>
        <translation>antenne à %1 m du sol</translation>
    </message>
    <message id="MESS_PROFILE_METRES">
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message id="MESS_PROFILE_GROUND">
        <source>ground</source>
        <translation>terrain</translation>
    </message>
    <message id="MESS_PROFILE_BULGE">
        <source>curvature of the earth (k = %1)</source>
        <translation>courbure de la Terre (k = %1)</translation>
    </message>
    <message id="MESS_PROFILE_RAY">
        <source>line of sight</source>
        <translation>ligne de visée</translation>
    </message>
    <message id="MESS_PROFILE_ZONE">
        <source>first Fresnel zone</source>
        <translation>première zone de Fresnel</translation>
    </message>
    <message id="MESS_PROFILE_SHARE">
        <source>%1 % of it, to be clear</source>
        <translation>%1&#xa0;% de la zone, à dégager</translation>
    </message>
    <message id="MESS_PROFILE_ROW">
        <source>link of row %1</source>
        <translation>liaison de la ligne %1</translation>
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
        <translation>pas de terrain&#xa0;: le sol est dessiné plat</translation>
    </message>
    <message id="MESS_PROFILE_HEIGHT_SHORT">
        <source>height (m)</source>
        <translation>altitude (m)</translation>
    </message>
    <message id="MESS_PROFILE_FROM_A">
        <source>%1 km from A</source>
        <translation>à %1 km de A</translation>
    </message>
    <message id="MESS_PROFILE_GROUND_AT">
        <source>ground at %1 m</source>
        <translation>terrain à %1 m d'altitude</translation>
    </message>
    <message id="MESS_PROFILE_RAY_AT">
        <source>line of sight at %1 m</source>
        <translation>ligne de visée à %1 m d'altitude</translation>
    </message>
    <message id="MESS_PROFILE_CUT">
        <source>terrain %1 m above the line</source>
        <translation>visée %1 m sous le terrain</translation>
    </message>
    <message id="MESS_PROFILE_FREE_SHARE">
        <source>%1 m free (%2 % of the Fresnel zone)</source>
        <translation>%1 m dégagés (%2&#xa0;% de la zone de Fresnel)</translation>
    </message>
    <message id="MESS_PROFILE_FREE">
        <source>%1 m free</source>
        <translation>%1 m dégagés</translation>
    </message>
</context>
</TS>
