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
    <message id="MESS_NO_LAYER_SRS">
        <source>No layer can be made: the coordinate system "%1" is not known</source>
        <translation>Aucune couche ne peut être produite&#xa0;: le système de coordonnées «&#xa0;%1&#xa0;» est inconnu</translation>
    </message>
    <message id="MESS_NO_LOOK_CHOSEN">
        <source>No type of pylons or no sector colors are chosen</source>
        <translation>Le type de pylône ou les couleurs des secteurs ne sont pas choisis</translation>
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
        <source>rows that could not be placed: %1</source>
        <translation>lignes qui ne peuvent pas être placées&#xa0;: %1</translation>
    </message>
    <message id="MESS_CLI_NO_NAME_FIELD">
        <source>the table has no such column: its sites have no name in the layer</source>
        <extracomment>Follows the name of the column.</extracomment>
        <translation>le tableau n'a pas cette colonne&#xa0;: ses sites n'ont pas de nom dans la couche</translation>
    </message>
    <message id="MESS_CLI_NO_SRS">
        <source>no coordinate system is known: give --source-srs and --target-srs</source>
        <extracomment>Keep the two options.</extracomment>
        <translation>aucun système de coordonnées n'est connu&#xa0;: indiquez --source-srs et --target-srs</translation>
    </message>
    <message id="MESS_CLI_NONE_PLACED">
        <source>none of its sites has a position; "vltlayers info" shows why</source>
        <extracomment>Follows the name of the table.</extracomment>
        <translation>aucun de ses sites n'a de position ; « vltlayers info » indique pourquoi</translation>
    </message>
    <message id="MESS_CLI_OUTPUT_IS_INPUT">
        <source>the output is one of the input files</source>
        <translation>le fichier à écrire est l'un des fichiers lus</translation>
    </message>
</context>
<context>
    <name>Site panels</name>
    <message id="MESS_SRS_LINK_FILE">
        <source>Cartographic system of the link file</source>
        <translation>Système cartographique du fichier de liaisons</translation>
    </message>
    <message id="MESS_READ_SRS_FROM_DS">
        <source>Read system from a datasource...</source>
        <translation>Lire le système dans un jeu de données...</translation>
    </message>
    <message id="MESS_TIP_READ_SRS">
        <source>Take the target system from a raster or vector file</source>
        <translation>Reprendre le système cible d'un fichier raster ou vecteur</translation>
    </message>
    <message id="MESS_SELECT_DS">
        <source>Select a geodataset (raster or vector)</source>
        <translation>Choisir un jeu de données géographiques (raster ou vecteur)</translation>
    </message>
    <message id="MESS_ALL_FILES">
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message id="MESS_ATTENTION">
        <source>Warning</source>
        <translation>Attention</translation>
    </message>
    <message id="MESS_ERR_NO_SRS_DSR">
        <source>This raster dataset doesn't contain any valid coordinate system information</source>
        <translation>Ce jeu de données raster ne contient aucun système de coordonnées valide</translation>
    </message>
    <message id="MESS_ERR_NO_SRS_DSV">
        <source>This vector dataset doesn't contain any valid coordinate system information</source>
        <translation>Ce jeu de données vecteur ne contient aucun système de coordonnées valide</translation>
    </message>
    <message id="MESS_SYMBOLIC_REPR">
        <source>Symbolic representation</source>
        <translation>Représentation symbolique</translation>
    </message>
    <message id="MESS_PRECISE_REPR">
        <source>Precise representation</source>
        <translation>Représentation précise</translation>
    </message>
    <message id="MESS_VIEW_SYMBOLIC">
        <source>Symbolic</source>
        <translation>Symbolique</translation>
    </message>
    <message id="MESS_VIEW_PRECISE">
        <source>Precise</source>
        <translation>Précise</translation>
    </message>
    <message id="MESS_EXAMPLE">
        <source>Example</source>
        <translation>Exemple</translation>
    </message>
    <message id="MESS_SECTOR_HEIGHT">
        <source>Sector height</source>
        <translation>Hauteur des secteurs</translation>
    </message>
    <message id="MESS_TIP_SECTOR_HEIGHT">
        <source>Height of a sector wedge</source>
        <translation>Hauteur du dessin d'un secteur</translation>
    </message>
    <message id="MESS_SECTOR_RADIUS">
        <source>Sector radius</source>
        <translation>Rayon des secteurs</translation>
    </message>
    <message id="MESS_TIP_SECTOR_RADIUS">
        <source>Radius of a sector wedge; the layer has its integer part</source>
        <translation>Rayon du dessin d'un secteur&#xa0;; la couche en retient la partie entière</translation>
    </message>
    <message id="MESS_SECTOR_SPACE">
        <source>Vertical spacing between sectors</source>
        <translation>Espacement vertical des secteurs</translation>
    </message>
    <message id="MESS_TIP_SECTOR_SPACE">
        <source>Vertical distance between two sectors of a site</source>
        <translation>Distance verticale entre deux secteurs d'un site</translation>
    </message>
    <message id="MESS_SECTOR_COLORS">
        <source>Sector colors</source>
        <translation>Couleurs des secteurs</translation>
    </message>
    <message id="MESS_TIP_SECTOR_COLORS">
        <source>Colors of the sectors of a site, one after the other</source>
        <translation>Couleurs des secteurs d'un site, l'une après l'autre</translation>
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
        <translation>Transparence des secteurs</translation>
    </message>
    <message id="MESS_TIP_TRANSPARENCY">
        <source>Transparency of the sectors in per cent</source>
        <translation>Transparence des secteurs en pour cent</translation>
    </message>
    <message id="MESS_APP_DISTANCE">
        <source>Apparition distance</source>
        <translation>Distance d'apparition</translation>
    </message>
    <message id="MESS_TIP_SYMBOLIC_DISTANCE">
        <source>Maximum distance at which the sectors are drawn</source>
        <translation>Distance maximale à laquelle les secteurs sont dessinés</translation>
    </message>
    <message id="MESS_PYLON_TYPE">
        <source>Type of pylons</source>
        <translation>Type de pylônes</translation>
    </message>
    <message id="MESS_TIP_PYLON_TYPE">
        <source>Mast that carries the antennas of every site</source>
        <translation>Mât qui porte les antennes de chaque site</translation>
    </message>
    <message id="MESS_PYLON_WIDTH">
        <source>Width of the pylons</source>
        <translation>Largeur des pylônes</translation>
    </message>
    <message id="MESS_TIP_PYLON_WIDTH">
        <source>Width of the mast at its foot</source>
        <translation>Largeur du mât à sa base</translation>
    </message>
    <message id="MESS_ANTENNAS_SIZE">
        <source>Antennas size</source>
        <translation>Taille des antennes</translation>
    </message>
    <message id="MESS_TIP_ANTENNAS_SIZE">
        <source>Size of the antennas; 100 % is their real size</source>
        <translation>Taille des antennes&#xa0;; 100&#xa0;% correspond à leur taille réelle</translation>
    </message>
    <message id="MESS_TIP_REALISTIC_DISTANCE">
        <source>Maximum distance at which masts and antennas are drawn</source>
        <translation>Distance maximale à laquelle les mâts et les antennes sont dessinés</translation>
    </message>
</context>
<context>
    <name>Add-site page</name>
    <message id="MESS_SITE_LAYER_TITLE">
        <source>Site layer</source>
        <translation>Couche de sites</translation>
    </message>
    <message id="MESS_SITE_FILE">
        <source>Site file</source>
        <translation>Fichier de sites</translation>
    </message>
    <message id="MESS_SITE_FILE2">
        <source>Sites file to display</source>
        <translation>Fichier de sites à afficher</translation>
    </message>
    <message id="MESS_TIP_SITE_FILE">
        <source>Path of the table; press Enter after typing one, or drop a file on the page</source>
        <translation>Chemin du tableau&#xa0;; validez par Entrée après la saisie, ou déposez un fichier sur la page</translation>
    </message>
    <message id="MESS_SITE_FILE_KINDS">
        <source>.xls, .xlsx, .xml or .csv table</source>
        <translation>tableau .xls, .xlsx, .xml ou .csv</translation>
    </message>
    <message id="MESS_SELECT_SITE_FILE">
        <source>Select the site file to use</source>
        <translation>Choisir le fichier de sites à utiliser</translation>
    </message>
    <message id="MESS_SITE_FILES">
        <source>Site files</source>
        <translation>Fichiers de sites</translation>
    </message>
    <message id="MESS_READING_SITES">
        <source>Reading the site file...</source>
        <translation>Lecture du fichier de sites...</translation>
    </message>
    <message id="MESS_FILE_REASON">
        <source>%1: %2</source>
        <extracomment>File name and why it was refused.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message id="MESS_READING_SRS">
        <source>Reading the coordinate system...</source>
        <translation>Lecture du système de coordonnées...</translation>
    </message>
    <message id="MESS_NO_SITE_DEFINED">
        <source>No sites file defined.
Select the sites file to display.</source>
        <translation>Aucun fichier de sites défini.
Choisissez le fichier de sites à afficher.</translation>
    </message>
    <message id="MESS_COORDINATE_SYSTEMS">
        <source>Coordinate systems</source>
        <translation>Systèmes de coordonnées</translation>
    </message>
    <message id="MESS_PREVIEW">
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message id="MESS_EMPTY_PREVIEW">
        <source>The layer appears here.</source>
        <translation>La couche s'affichera ici.</translation>
    </message>
    <message id="MESS_TIP_OWN_SITES">
        <source>Show the sites of the layer just written</source>
        <translation>Voir les sites de la couche qui vient d'être écrite</translation>
    </message>
    <message id="MESS_OWN_SITES">
        <source>Sites of the layer</source>
        <translation>Sites de la couche</translation>
    </message>
    <message id="MESS_LOADING_SITES">
        <source>Loading the sites...</source>
        <translation>Chargement des sites...</translation>
    </message>
    <message id="MESS_CANT_SHOW_LAYER">
        <source>The layer cannot be shown</source>
        <translation>La couche ne peut pas être affichée</translation>
    </message>
    <message id="MESS_3D_PREVIEW">
        <source>3D preview</source>
        <translation>Aperçu 3D</translation>
    </message>
    <message id="MESS_HINT_3D_PREVIEW">
        <source>Drag to rotate, Shift and drag to move, wheel to zoom</source>
        <translation>Glisser pour tourner, Maj et glisser pour déplacer, molette pour zoomer</translation>
    </message>
    <message id="MESS_TIP_3D_PREVIEW">
        <source>Drag to rotate, Shift and drag to move, wheel to zoom. Keys: the arrows rotate and tilt, with Shift they move; + and - zoom, T shows the view from above, F the whole scene, Home the first view, N turns north up, A shows or hides scale and legend.</source>
        <translation>Faites glisser pour tourner, avec Maj pour déplacer ; molette pour zoomer. Touches : les flèches tournent et inclinent, avec Maj elles déplacent ; + et - zooment, T montre la vue de dessus, F toute la scène, Origine la première vue, N met le nord en haut, A affiche ou masque l'échelle et la légende.</translation>
    </message>
    <message id="MESS_NO_3D_VIEW">
        <source>No 3D view is available on this system. The layer is complete without it.</source>
        <translation>Aucune vue 3D n'est disponible sur ce système. La couche est complète sans elle.</translation>
    </message>
    <message id="MESS_TIP_SYMBOLIC">
        <source>Show the symbolic representation, from a long distance</source>
        <translation>Voir la représentation symbolique, de loin</translation>
    </message>
    <message id="MESS_TIP_PRECISE">
        <source>Show the precise representation, from a short distance</source>
        <translation>Voir la représentation précise, de près</translation>
    </message>
    <message id="MESS_DRAG_ICON">
        <source>Drag this icon into
Veltaro Builder
to add the site layer
</source>
        <translation>Faites glisser cette icône
dans Veltaro Builder
pour ajouter la couche de sites
</translation>
    </message>
    <message id="MESS_DRAG_NAME">
        <source>Site layer to drag into the builder</source>
        <translation>Couche de sites à faire glisser dans Veltaro Builder</translation>
    </message>
    <message id="MESS_TIP_DRAG">
        <source>Drag the layer file into the builder; Ctrl+C copies it, Ctrl+S saves it under another name</source>
        <translation>Faites glisser le fichier de couche dans Veltaro Builder&#xa0;; Ctrl+C le copie, Ctrl+S l'enregistre sous un autre nom</translation>
    </message>
</context>
<context>
    <name>Recognised columns and problems</name>
    <message id="MESS_CANCEL">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="MESS_TIP_DETAILS">
        <source>Show the recognised columns and the rows with problems</source>
        <translation>Montrer les colonnes reconnues et les lignes qui posent problème</translation>
    </message>
    <message id="MESS_CHECKING_ROWS">
        <source>Checking the rows: %p%</source>
        <translation>Vérification des lignes&#xa0;: %p&#xa0;%</translation>
    </message>
    <message id="MESS_CHECK_PROGRESS">
        <source>Progress of the check</source>
        <translation>Avancement de la vérification</translation>
    </message>
    <message id="MESS_TIP_STOP_CHECK">
        <source>Stop checking the rows</source>
        <translation>Arrêter la vérification des lignes</translation>
    </message>
    <message id="MESS_MEANING">
        <source>Meaning</source>
        <translation>Signification</translation>
    </message>
    <message id="MESS_ROW">
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
    <message id="MESS_COLUMN">
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message id="MESS_PROBLEM">
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message id="MESS_COLUMNS">
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message id="MESS_PROBLEMS">
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message id="MESS_NO_COLUMN">
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message id="MESS_ONE_MORE_PROBLEM">
        <source>1 further problem is not listed</source>
        <translation>1 autre problème n'est pas listé</translation>
    </message>
    <message id="MESS_MORE_PROBLEMS">
        <source>%1 further problems are not listed</source>
        <translation>%1 autres problèmes ne sont pas listés</translation>
    </message>
    <message id="MESS_RECOGNISED_COLUMNS">
        <source>Recognised columns: %1</source>
        <translation>Colonnes reconnues&#xa0;: %1</translation>
    </message>
    <message id="MESS_ROWS_NOT_CHECKED">
        <source>the rows were not checked</source>
        <translation>les lignes n'ont pas été vérifiées</translation>
    </message>
    <message id="MESS_SITES_PLACED">
        <source>sites placed: %1 of %2</source>
        <translation>sites placés&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_NO_SITE_PLACED">
        <source>no site can be placed</source>
        <translation>aucun site ne peut être placé</translation>
    </message>
    <message id="MESS_PROBLEM_COUNT">
        <source>problems: %1</source>
        <translation>problèmes&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Layer icon</name>
    <message id="MESS_COPY_LAYER">
        <source>&amp;Copy the layer file</source>
        <translation>&amp;Copier le fichier de couche</translation>
    </message>
    <message id="MESS_COPIED">
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message id="MESS_SAVE_LAYER_AS">
        <source>&amp;Save the layer file as...</source>
        <translation>&amp;Enregistrer le fichier de couche sous...</translation>
    </message>
    <message id="MESS_SAVE_LAYER_TITLE">
        <source>Save the layer file as</source>
        <translation>Enregistrer le fichier de couche sous</translation>
    </message>
    <message id="MESS_LAYER_FILE_NAME">
        <source>layer</source>
        <translation>couche</translation>
    </message>
    <message id="MESS_LAYER_FILES">
        <source>Layer files</source>
        <translation>Fichiers de couche</translation>
    </message>
    <message id="MESS_LINKS_NOT_SITES">
        <source>this is a table of links, not of sites: its coordinates are those of both ends of links</source>
        <translation>ce tableau contient des liaisons, pas des sites&#xa0;: ses coordonnées sont celles des deux extrémités de liaisons</translation>
    </message>
</context>
</TS>
