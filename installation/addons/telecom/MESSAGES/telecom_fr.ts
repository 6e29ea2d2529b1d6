<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Site file</name>
    <message id="MESS_ERR_OPEN_SITE">
        <source>This file can't be open as a site file</source>
        <translation>Ce fichier ne peut pas être ouvert comme fichier de sites</translation>
    </message>
    <message id="MESS_ERR_EMPTY_SITE">
        <source>This site file is empty</source>
        <translation>Ce fichier de sites est vide</translation>
    </message>
    <message id="MESS_INFO_SITE_FILE">
        <source>File format is : %1
Coordinates are %2 and are specified in %3</source>
        <extracomment>Keep _F_ (format), _C_ (kind of coordinates) and _U_ (unit): they are replaced. The %n of the source are not.</extracomment>
        <translation>Format du fichier&#xa0;: _F_
Les coordonnées sont _C_ et exprimées en _U_</translation>
    </message>
    <message id="MESS_CR_CARTOGRAPHIQUES">
        <source>cartographic</source>
        <extracomment>Goes into _C_ of MESS_INFO_SITE_FILE.</extracomment>
        <translation>cartographiques</translation>
    </message>
    <message id="MESS_CR_GEOGRAPHIQUES">
        <source>geographic</source>
        <extracomment>Goes into _C_ of MESS_INFO_SITE_FILE.</extracomment>
        <translation>géographiques</translation>
    </message>
    <message id="MESS_METERS">
        <source>meters</source>
        <extracomment>Goes into _U_ of MESS_INFO_SITE_FILE.</extracomment>
        <translation>mètres</translation>
    </message>
    <message id="MESS_DMS_FORM">
        <source>D/M/S form</source>
        <extracomment>Goes into _U_ of MESS_INFO_SITE_FILE.</extracomment>
        <translation>degrés, minutes et secondes</translation>
    </message>
    <message id="MESS_DEC_DEGREES">
        <source>decimal degrees</source>
        <extracomment>Goes into _U_ of MESS_INFO_SITE_FILE.</extracomment>
        <translation>degrés décimaux</translation>
    </message>
    <message id="MESS_SRS_SITE_FILE">
        <source>Cartographic system of the site file</source>
        <translation>Système cartographique du fichier de sites</translation>
    </message>
    <message id="MESS_SRS_PROJECT">
        <source>Cartographic system of the target project</source>
        <translation>Système cartographique du projet cible</translation>
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
        <translation>Un fichier de configuration est absent</translation>
    </message>
    <message id="MESS_CANT_CREATE_LAYER">
        <source>Can't create the layer file</source>
        <translation>Impossible de créer le fichier de couche</translation>
    </message>
</context>
<context>
    <name>Command line</name>
    <message id="MESS_CLI_READING">
        <source>Reading the sites</source>
        <translation>Lecture des sites</translation>
    </message>
    <message id="MESS_CLI_FILE">
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message id="MESS_CLI_FORMAT">
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message id="MESS_CLI_UNIT">
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message id="MESS_CLI_EPSG">
        <source>EPSG code</source>
        <translation>Code EPSG</translation>
    </message>
    <message id="MESS_CLI_SITE_COUNT">
        <source>Number of sites</source>
        <translation>Nombre de sites</translation>
    </message>
    <message id="MESS_CLI_LAYER">
        <source>Layer</source>
        <translation>Couche</translation>
    </message>
    <message id="MESS_CLI_NAME_FIELD">
        <source>Column that names a site</source>
        <translation>Colonne qui nomme un site</translation>
    </message>
    <message id="MESS_CLI_COLUMN_NAME">
        <source>Name column</source>
        <translation>Colonne du nom</translation>
    </message>
    <message id="MESS_CLI_COLUMN_X">
        <source>X column</source>
        <translation>Colonne X</translation>
    </message>
    <message id="MESS_CLI_COLUMN_Y">
        <source>Y column</source>
        <translation>Colonne Y</translation>
    </message>
    <message id="MESS_CLI_COLUMN_TERRAIN">
        <source>Terrain height column</source>
        <translation>Colonne de la hauteur du terrain</translation>
    </message>
    <message id="MESS_CLI_COLUMN_SECTORS">
        <source>Sector columns</source>
        <translation>Colonnes des secteurs</translation>
    </message>
    <message id="MESS_CLI_COLUMN_HEIGHTS">
        <source>Height columns</source>
        <translation>Colonnes des hauteurs</translation>
    </message>
    <message id="MESS_CLI_COLUMN_AZIMUTHS">
        <source>Azimuth columns</source>
        <translation>Colonnes des azimuts</translation>
    </message>
    <message id="MESS_CLI_COLUMN_TILTS">
        <source>Tilt columns</source>
        <translation>Colonnes des inclinaisons</translation>
    </message>
    <message id="MESS_CLI_PROBLEMS">
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message id="MESS_CLI_ROW">
        <source>row</source>
        <extracomment>Followed by a number.</extracomment>
        <translation>ligne</translation>
    </message>
    <message id="MESS_CLI_COLUMN">
        <source>column</source>
        <extracomment>Followed by a name.</extracomment>
        <translation>colonne</translation>
    </message>
    <message id="MESS_CLI_UNPLACED">
        <source>rows that could not be placed</source>
        <extracomment>Followed by a colon and a number.</extracomment>
        <translation>lignes qui ne peuvent pas être placées</translation>
    </message>
    <message id="MESS_CLI_NO_NAME_FIELD">
        <source>the table has no such column: its sites have no name in the layer</source>
        <extracomment>Follows the name of the column.</extracomment>
        <translation>la table n'a pas cette colonne&#xa0;: ses sites n'ont pas de nom dans la couche</translation>
    </message>
    <message id="MESS_CLI_NO_SRS">
        <source>no coordinate system is known: give --source-srs and --target-srs</source>
        <extracomment>Keep the two options.</extracomment>
        <translation>aucun système de coordonnées n'est connu&#xa0;: indiquez --source-srs et --target-srs</translation>
    </message>
    <message id="MESS_CLI_NONE_PLACED">
        <source>none of its sites can be placed; "vltlayers info" tells why</source>
        <extracomment>Follows the name of the table.</extracomment>
        <translation>aucun de ses sites ne peut être placé&#xa0;; «&#xa0;vltlayers info&#xa0;» dit pourquoi</translation>
    </message>
    <message id="MESS_CLI_OUTPUT_IS_INPUT">
        <source>the output is one of the input files</source>
        <translation>le fichier à écrire est l'un des fichiers lus</translation>
    </message>
</context>
</TS>
