<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Scenes</name>
    <message id="MESS_SCENE_NO_FILE">
        <source>it is not a file</source>
        <translation>ce n'est pas un fichier</translation>
    </message>
    <message id="MESS_SCENE_UNREADABLE">
        <source>it cannot be read</source>
        <translation>lecture impossible</translation>
    </message>
    <message id="MESS_SCENE_LARGE_FILE">
        <source>it is too large for a file of its kind</source>
        <translation>trop grand pour un fichier de ce type</translation>
    </message>
    <message id="MESS_SCENE_NO_ROOT">
        <source>there is no element veltaroLayer</source>
        <translation>il n'y a pas d'élément veltaroLayer</translation>
    </message>
    <message id="MESS_SCENE_NO_KIND">
        <source>the kind of the layer is missing</source>
        <translation>le type de la couche manque</translation>
    </message>
    <message id="MESS_SCENE_BAD_KIND">
        <source>layers of the kind "%1" cannot be shown, only "sites", "links" and "buildings"</source>
        <translation>les couches du type «&#xa0;%1&#xa0;» ne peuvent pas être affichées, seulement «&#xa0;sites&#xa0;», «&#xa0;links&#xa0;» et «&#xa0;buildings&#xa0;»</translation>
    </message>
    <message id="MESS_SCENE_NO_SOURCE">
        <source>the element source is missing or empty</source>
        <translation>l'élément source manque ou est vide</translation>
    </message>
    <message id="MESS_SCENE_LONG_SOURCE">
        <source>the element source is too long</source>
        <translation>l'élément source est trop long</translation>
    </message>
    <message id="MESS_SCENE_NO_END">
        <source>the element %1 does not end</source>
        <translation>l'élément %1 ne se termine pas</translation>
    </message>
    <message id="MESS_SCENE_OTHER_SOURCE">
        <source>the source "%1" does not start with "%2"</source>
        <translation>la source «&#xa0;%1&#xa0;» ne commence pas par «&#xa0;%2&#xa0;»</translation>
    </message>
    <message id="MESS_SCENE_NO_DOCUMENT">
        <source>the building document "%1" does not exist</source>
        <translation>le document de bâtiments «&#xa0;%1&#xa0;» n'existe pas</translation>
    </message>
    <message id="MESS_SCENE_OTHER_DOCUMENT">
        <source>it is not a building document: it does not start with the element veltaroTexturedBuildings</source>
        <translation>ce n'est pas un document de bâtiments&#xa0;: il ne commence pas par l'élément veltaroTexturedBuildings</translation>
    </message>
    <message id="MESS_SCENE_NO_VALUE_END">
        <source>the value of %1 does not end</source>
        <translation>la valeur de %1 ne se termine pas</translation>
    </message>
    <message id="MESS_SCENE_BAD_NUMBER">
        <source>the %1 "%2" is not a number of zero or more</source>
        <translation>la valeur de %1, «&#xa0;%2&#xa0;», n'est pas un nombre supérieur ou égal à zéro</translation>
    </message>
    <message id="MESS_SCENE_NO_NUMBER">
        <source>the %1 "%2" is not a number</source>
        <translation>la valeur de %1, «&#xa0;%2&#xa0;», n'est pas un nombre</translation>
    </message>
    <message id="MESS_SCENE_OUT_OF_RANGE">
        <source>the %1 "%2" is not a number from %3 to %4</source>
        <translation>la valeur de %1, «&#xa0;%2&#xa0;», n'est pas un nombre de %3 à %4</translation>
    </message>
    <message id="MESS_SCENE_BAD_WORD">
        <source>the %1 "%2" is not a known word</source>
        <translation>la valeur de %1, «&#xa0;%2&#xa0;», n'est pas un mot connu</translation>
    </message>
    <message id="MESS_SCENE_BAD_MODE">
        <source>the texture mode "%1" is none of roofs, walls and storeys</source>
        <translation>le mode de texture «&#xa0;%1&#xa0;» n'est ni roofs, ni walls, ni storeys</translation>
    </message>
    <message id="MESS_SCENE_UNNAMED_FOOTPRINTS">
        <source>the document names no file of footprints</source>
        <translation>le document n'indique pas de fichier d'emprises</translation>
    </message>
    <message id="MESS_SCENE_UNNAMED_FIELD">
        <source>the document names no field of heights</source>
        <translation>le document n'indique pas de champ de hauteurs</translation>
    </message>
    <message id="MESS_SCENE_NO_TILES">
        <source>the tileSize is not greater than zero</source>
        <translation>tileSize n'est pas supérieur à zéro</translation>
    </message>
    <message id="MESS_SCENE_UNNAMED_TABLE">
        <source>the source names no table</source>
        <translation>la source n'indique pas de tableau</translation>
    </message>
    <message id="MESS_SCENE_NO_TABLE">
        <source>the table "%1" does not exist</source>
        <translation>le tableau «&#xa0;%1&#xa0;» n'existe pas</translation>
    </message>
    <message id="MESS_SCENE_NO_TABLE_IN">
        <source>the table "%1" does not exist (searched in %2)</source>
        <translation>le tableau «&#xa0;%1&#xa0;» n'existe pas (dossiers parcourus&#xa0;: %2)</translation>
    </message>
    <message id="MESS_SCENE_NO_DRIVER">
        <source>the table driver %1 was not found; GDAL_DRIVER_PATH must name its folder</source>
        <translation>le pilote de tableaux %1 est introuvable&#xa0;; GDAL_DRIVER_PATH doit indiquer son dossier</translation>
    </message>
    <message id="MESS_SCENE_NO_OPTION">
        <source>the option %1 is missing in the layer's source</source>
        <translation>l'option %1 manque dans la source de la couche</translation>
    </message>
    <message id="MESS_SCENE_NO_END_LAYER">
        <source>the table "%1" has no layer of link ends</source>
        <translation>le tableau «&#xa0;%1&#xa0;» n'a pas de couche des extrémités de liaisons</translation>
    </message>
    <message id="MESS_SCENE_NO_END_FIELDS">
        <source>the layer of link ends has no field "%1" or "%2"</source>
        <translation>la couche des extrémités de liaisons n'a pas de champ «&#xa0;%1&#xa0;» ou «&#xa0;%2&#xa0;»</translation>
    </message>
    <message id="MESS_SCENE_UNPLACED_LINKS">
        <source>none of %1 links of the table "%2" has a position</source>
        <translation>aucune liaison du tableau «&#xa0;%2&#xa0;» n'a de position (nombre de liaisons&#xa0;: %1)</translation>
    </message>
    <message id="MESS_SCENE_UNPLACED_SITES">
        <source>none of %1 sites of the table "%2" has a position</source>
        <translation>aucun site du tableau «&#xa0;%2&#xa0;» n'a de position (nombre de sites&#xa0;: %1)</translation>
    </message>
    <message id="MESS_SCENE_NO_FRAME">
        <source>the coordinate system of the layer is neither projected nor geographic</source>
        <translation>le système de coordonnées de la couche n'est ni projeté ni géographique</translation>
    </message>
    <message id="MESS_SCENE_NO_PROJECTION">
        <source>the coordinate system of the layer cannot be projected</source>
        <translation>le système de coordonnées de la couche ne peut pas être projeté</translation>
    </message>
    <message id="MESS_SCENE_LINK_TERRAIN">
        <source>the terrain "%1" cannot be used (%2); the links stand at height 0</source>
        <translation>le terrain «&#xa0;%1&#xa0;» ne peut pas être utilisé (%2)&#xa0;; les liaisons sont à l'altitude 0</translation>
    </message>
    <message id="MESS_SCENE_LINK_GROUND">
        <source>%1 of %2 pylons stand at height 0: there is no terrain height under them</source>
        <translation>pylônes posés à l'altitude 0, faute d'altitude du terrain sous eux&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_NO_SURFACE">
        <source>no terrain is shown: there are no heights under the layer</source>
        <translation>aucun terrain n'est montré : il n'y a pas d'altitude sous la couche</translation>
    </message>
    <message id="MESS_SCENE_BAD_IMAGERY">
        <source>the image "%1" cannot be used (%2); the ground is drawn without it</source>
        <translation>l'image «&#xa0;%1&#xa0;» ne peut pas être utilisée (%2)&#xa0;; le sol est dessiné sans elle</translation>
    </message>
    <message id="MESS_SCENE_NO_IMAGERY">
        <source>no image is shown: it does not cover the ground under the layer</source>
        <translation>aucune image n'est affichée&#xa0;: elle ne couvre pas le sol sous la couche</translation>
    </message>
    <message id="MESS_IMAGERY_NOT_PLACED">
        <source>it has no georeference</source>
        <translation>elle n'a pas de géoréférencement</translation>
    </message>
    <message id="MESS_SCENE_NOWHERE">
        <source>the scene does not state where on the earth it lies</source>
        <translation>la scène n'indique pas où elle se trouve sur la Terre</translation>
    </message>
    <message id="MESS_SCENE_NO_FOOTPRINTS">
        <source>there is no local file of footprints "%1"</source>
        <translation>le fichier local d'emprises «&#xa0;%1&#xa0;» n'existe pas</translation>
    </message>
    <message id="MESS_SCENE_BAD_FOOTPRINTS">
        <source>the footprints "%1" cannot be read: %2</source>
        <translation>les emprises «&#xa0;%1&#xa0;» ne peuvent pas être lues&#xa0;: %2</translation>
    </message>
    <message id="MESS_SCENE_NO_LAYER">
        <source>the footprints have no layer "%1"</source>
        <translation>les emprises n'ont pas de couche «&#xa0;%1&#xa0;»</translation>
    </message>
    <message id="MESS_SCENE_NO_FIELD">
        <source>the footprints have no field "%1"</source>
        <translation>les emprises n'ont pas de champ «&#xa0;%1&#xa0;»</translation>
    </message>
    <message id="MESS_SCENE_NO_NUMBERS">
        <source>the field "%1" of the footprints holds no numbers</source>
        <translation>le champ «&#xa0;%1&#xa0;» des emprises ne contient pas de nombres</translation>
    </message>
    <message id="MESS_SCENE_BAD_FILTER">
        <source>the filter "%1" cannot be used: %2</source>
        <translation>le filtre «&#xa0;%1&#xa0;» est inutilisable&#xa0;: %2</translation>
    </message>
    <message id="MESS_SCENE_EMPTY_FILTER">
        <source>the filter "%1" leaves no building</source>
        <translation>le filtre «&#xa0;%1&#xa0;» ne retient aucun bâtiment</translation>
    </message>
    <message id="MESS_SCENE_CHANGED_FOOTPRINTS">
        <source>the footprints have changed since they were read</source>
        <translation>les emprises ont changé depuis leur lecture</translation>
    </message>
    <message id="MESS_SCENE_NO_HEIGHT">
        <source>%1 of %2 buildings are left out: no height in the field "%3"</source>
        <translation>bâtiments omis, sans hauteur dans le champ «&#xa0;%3&#xa0;»&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_ZERO_HEIGHT">
        <source>%1 of %2 buildings are left out: a height of zero or less in the field "%3"</source>
        <translation>bâtiments omis, de hauteur nulle ou négative dans le champ «&#xa0;%3&#xa0;»&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_TOO_HIGH">
        <source>%1 of %2 buildings are left out: a height of more than 10,000 m in the field "%3"</source>
        <translation>bâtiments omis, de plus de 10&#xa0;000&#xa0;m de haut dans le champ «&#xa0;%3&#xa0;»&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_BELOW_GROUND">
        <source>%1 of %2 buildings are left out: their roof above sea level is not above the ground</source>
        <translation>bâtiments omis, dont le toit, en altitude, n'est pas au-dessus du sol&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_NO_POLYGON">
        <source>%1 of %2 buildings are left out: no polygon with an area</source>
        <translation>bâtiments omis, sans polygone ayant une surface&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_NO_PLACE">
        <source>%1 of %2 buildings are left out: their position lies outside their coordinate system</source>
        <translation>bâtiments omis, de position hors de leur système de coordonnées&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_ELSE_HEIGHT">
        <source>%1 of %2 buildings have their height from the field "%3"</source>
        <translation>bâtiments dont la hauteur vient du champ «&#xa0;%3&#xa0;»&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_DEFAULT_HEIGHT">
        <source>%1 of %2 buildings without a height are %3 m high</source>
        <translation>bâtiments sans hauteur, dessinés hauts de %3 m&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_TERRAIN_BASE">
        <source>%1 of %2 buildings stand on the terrain: no ground height in the field "%3"</source>
        <translation>bâtiments posés sur le terrain, sans altitude du sol dans le champ «&#xa0;%3&#xa0;»&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_RAISED_BOTTOM">
        <source>%1 of %2 buildings start at the ground: their underside is not below their roof</source>
        <translation>bâtiments partant du sol, leur sous-face n'étant pas plus basse que leur toit&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_FAR_AWAY">
        <source>%1 of %2 buildings lie far from all others, up to %3 km away; the farthest is at %4</source>
        <translation>bâtiments très éloignés de tous les autres&#xa0;: %1 sur %2, jusqu'à %3 km&#xa0;; le plus lointain est en %4</translation>
    </message>
    <message id="MESS_SCENE_COINCIDENT">
        <source>%1 of %2 buildings have the same outline as another one</source>
        <translation>%1 bâtiments sur %2 ont la même emprise qu'un autre</translation>
    </message>
    <message id="MESS_SCENE_READ_PARTLY">
        <source>only the first %1 footprints can be read: %2</source>
        <translation>seules les premières emprises peuvent être lues, au nombre de %1&#xa0;: %2</translation>
    </message>
    <message id="MESS_SCENE_SHOWN_PARTLY">
        <source>only the first %1 footprints are shown: there are too many</source>
        <translation>seules les premières emprises sont affichées, au nombre de %1&#xa0;: il y en a trop</translation>
    </message>
    <message id="MESS_SCENE_NO_TERRAIN">
        <source>the document names no terrain; the buildings stand at height 0</source>
        <translation>le document n'indique pas de terrain&#xa0;; les bâtiments sont à l'altitude 0</translation>
    </message>
    <message id="MESS_SCENE_BAD_TERRAIN">
        <source>the terrain "%1" cannot be used (%2); the buildings stand at height 0</source>
        <translation>le terrain «&#xa0;%1&#xa0;» ne peut pas être utilisé (%2)&#xa0;; les bâtiments sont à l'altitude 0</translation>
    </message>
    <message id="MESS_SCENE_NO_GROUND">
        <source>there is no terrain height under the buildings; they stand at height 0</source>
        <translation>le terrain n'a pas d'altitudes sous les bâtiments&#xa0;; ils sont à l'altitude 0</translation>
    </message>
    <message id="MESS_SCENE_LOWEST_GROUND">
        <source>%1 of %2 buildings stand on the lowest ground: there is no terrain height under them</source>
        <translation>bâtiments posés sur le sol le plus bas, faute d'altitude du terrain sous eux&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_NO_MAP">
        <source>the color map "%1" does not exist</source>
        <translation>la palette «&#xa0;%1&#xa0;» n'existe pas</translation>
    </message>
    <message id="MESS_SCENE_BAD_MAP">
        <source>the color map "%1" cannot be used (%2)</source>
        <translation>la palette «&#xa0;%1&#xa0;» ne peut pas être utilisée (%2)</translation>
    </message>
    <message id="MESS_SCENE_EMPTY_RASTER">
        <source>the raster "%1" has no values</source>
        <translation>le raster «&#xa0;%1&#xa0;» n'a pas de valeurs</translation>
    </message>
    <message id="MESS_SCENE_BAD_RASTER">
        <source>the raster "%1" cannot be used for colors (%2)</source>
        <translation>le raster «&#xa0;%1&#xa0;» ne peut pas donner les couleurs (%2)</translation>
    </message>
    <message id="MESS_SCENE_NO_VALUE">
        <source>%1 of %2 buildings have no value in the raster "%3"</source>
        <translation>bâtiments sans valeur dans le raster «&#xa0;%3&#xa0;»&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_TRANSPARENT">
        <source>%1 of %2 buildings are not visible: their color is transparent</source>
        <translation>bâtiments invisibles, leur couleur étant transparente&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_NO_FIELD_VALUE">
        <source>%1 of %2 buildings have no value in the field "%3"</source>
        <translation>bâtiments sans valeur dans le champ «&#xa0;%3&#xa0;»&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SCENE_NO_BAND">
        <source>it has no band %1</source>
        <translation>il n'a pas de bande %1</translation>
    </message>
    <message id="MESS_SCENE_BAD_TERRAIN_NODATA">
        <source>the no-data value "%1" of the terrain is not a number and has no effect</source>
        <translation>la valeur «&#xa0;sans données&#xa0;» «&#xa0;%1&#xa0;» du terrain n'est pas un nombre et reste sans effet</translation>
    </message>
    <message id="MESS_SCENE_NO_COLORS">
        <source>"%1" does not describe colors of buildings</source>
        <translation>«&#xa0;%1&#xa0;» ne décrit pas de couleurs de bâtiments</translation>
    </message>
    <message id="MESS_SCENE_BAD_IMAGE">
        <source>the image "%1" is not shown (%2)</source>
        <translation>l'image «&#xa0;%1&#xa0;» n'est pas affichée (%2)</translation>
    </message>
    <message id="MESS_SCENE_MORE_IMAGES">
        <source>%1 more images are not shown</source>
        <translation>autres images non affichées&#xa0;: %1</translation>
    </message>
    <message id="MESS_SCENE_OTHER_COMPUTER">
        <source>not a file or folder of this computer</source>
        <translation>ce n'est ni un fichier ni un dossier de cet ordinateur</translation>
    </message>
    <message id="MESS_SCENE_VIRTUAL_RASTER">
        <source>virtual rasters are not opened: convert this one with gdal_translate</source>
        <translation>les rasters virtuels ne sont pas ouverts&#xa0;: convertissez celui-ci avec gdal_translate</translation>
    </message>
    <message id="MESS_SCENE_VIRTUAL_VECTOR">
        <source>virtual vector files are not opened: convert this one with ogr2ogr</source>
        <translation>les fichiers vecteur virtuels ne sont pas ouverts&#xa0;: convertissez celui-ci avec ogr2ogr</translation>
    </message>
    <message id="MESS_SCENE_NOT_IN_FILE">
        <source>not in a file of this computer</source>
        <translation>pas dans un fichier de cet ordinateur</translation>
    </message>
    <message id="MESS_SCENE_NO_PART">
        <source>the file holds no such image</source>
        <translation>le fichier ne contient pas cette image</translation>
    </message>
    <message id="MESS_TERRAIN_NOT_LOCAL">
        <source>there is no such local file</source>
        <translation>ce fichier local n'existe pas</translation>
    </message>
    <message id="MESS_TERRAIN_NOT_PLACED">
        <source>it has no band of heights, no georeference or no coordinate system</source>
        <translation>il n'a pas de bande d'altitudes, pas de géoréférencement ou pas de système de coordonnées</translation>
    </message>
    <message id="MESS_TERRAIN_TOO_LARGE">
        <source>it is stored in blocks that are too large</source>
        <translation>il est enregistré en blocs trop grands</translation>
    </message>
    <message id="MESS_SCENE_NO_TRANSFORMATION">
        <source>there is no transformation to its coordinate system</source>
        <translation>il n'existe pas de transformation vers son système de coordonnées</translation>
    </message>
    <message id="MESS_SCENE_NO_TRANSFORMATION_FROM">
        <source>there is no transformation from the buildings' coordinate system to its own</source>
        <translation>il n'existe pas de transformation du système de coordonnées des bâtiments vers le sien</translation>
    </message>
    <message id="MESS_SCENE_NOT_A_MAP">
        <source>it is not a color map</source>
        <translation>ce n'est pas une palette</translation>
    </message>
    <message id="MESS_SCENE_NO_MAP_IN">
        <source>No color association found in %1</source>
        <translation>aucune couleur n'est définie dans %1</translation>
    </message>
    <message id="MESS_SCENE_NO_COLOR">
        <source>Unknown color : %1</source>
        <translation>couleur inconnue&#xa0;: %1</translation>
    </message>
    <message id="MESS_SCENE_BAD_SHARE">
        <source>Wrong value for a percentage : %1</source>
        <translation>pourcentage incorrect&#xa0;: %1</translation>
    </message>
    <message id="MESS_SCENE_NO_MAP_FILE">
        <source>Cannot find %1</source>
        <translation>impossible de trouver %1</translation>
    </message>
    <message id="MESS_SCENE_LARGE_MAP">
        <source>the file %1 is too large for a color map</source>
        <translation>le fichier %1 est trop grand pour une palette</translation>
    </message>
    <message id="MESS_SCENE_NOT_ONE_BAND">
        <source>it does not have exactly one band</source>
        <translation>il n'a pas exactement une bande</translation>
    </message>
    <message id="MESS_SCENE_COMPLEX">
        <source>its values are complex numbers</source>
        <translation>ses valeurs sont des nombres complexes</translation>
    </message>
    <message id="MESS_SCENE_BAD_NODATA">
        <source>the no-data value "%1" is not a number</source>
        <translation>la valeur d'absence de données «&#xa0;%1&#xa0;» n'est pas un nombre</translation>
    </message>
    <message id="MESS_SCENE_NOT_PLACED">
        <source>it is not georeferenced</source>
        <translation>pas de géoréférencement</translation>
    </message>
    <message id="MESS_SCENE_NO_BANDS">
        <source>it has no bands</source>
        <translation>pas de bande</translation>
    </message>
    <message id="MESS_SCENE_WITHOUT_HEIGHT">
        <source>it has no height</source>
        <translation>pas de hauteur</translation>
    </message>
    <message id="MESS_SCENE_SAME_HEIGHT">
        <source>another image has the same height</source>
        <translation>une autre image a la même hauteur</translation>
    </message>
    <message id="MESS_SCENE_NO_FORMAT">
        <source>`%1' not recognized as a supported file format.</source>
        <translation>le format de «&#xa0;%1&#xa0;» n'est pas connu</translation>
    </message>
    <message id="MESS_QUERY_OTHER_FORM">
        <source>"%1" is not a query "inline://parametric/query?..."</source>
        <translation>«&#xa0;%1&#xa0;» n'est pas une requête «&#xa0;inline://parametric/query?...&#xa0;»</translation>
    </message>
    <message id="MESS_QUERY_UNKNOWN_ITEM">
        <source>the item "%1" is unknown</source>
        <translation>l'élément «&#xa0;%1&#xa0;» est inconnu</translation>
    </message>
    <message id="MESS_QUERY_NO_ITEM">
        <source>the item %1 is missing</source>
        <translation>l'élément %1 manque</translation>
    </message>
    <message id="MESS_QUERY_TWO_ITEMS">
        <source>the item %1 is given more than once: "%2", "%3"</source>
        <translation>l'élément %1 est indiqué plus d'une fois&#xa0;: «&#xa0;%2&#xa0;», «&#xa0;%3&#xa0;»</translation>
    </message>
    <message id="MESS_QUERY_MANY_ITEMS">
        <source>there are %1 items "%2": no more than %3 are allowed</source>
        <translation>il y a %1 éléments «&#xa0;%2&#xa0;»&#xa0;: %3 au plus sont admis</translation>
    </message>
    <message id="MESS_QUERY_BEFORE_PYLON">
        <source>%1 stands before the first pylon</source>
        <translation>%1 précède le premier pylône</translation>
    </message>
    <message id="MESS_QUERY_SAME_POSITION">
        <source>%1: both ends have the same position</source>
        <translation>%1&#xa0;: les deux extrémités ont la même position</translation>
    </message>
    <message id="MESS_QUERY_OTHER_WORDS">
        <source>%1: "%2" is not "%3"</source>
        <translation>%1&#xa0;: «&#xa0;%2&#xa0;» n'a pas la forme «&#xa0;%3&#xa0;»</translation>
    </message>
    <message id="MESS_QUERY_NO_NUMBER">
        <source>%1: the %2 "%3" is not a number</source>
        <translation>%1&#xa0;: la valeur «&#xa0;%3&#xa0;» n'est pas un nombre (%2)</translation>
    </message>
    <message id="MESS_QUERY_NOT_WHOLE">
        <source>%1: the %2 "%3" is not a whole number</source>
        <translation>%1&#xa0;: la valeur «&#xa0;%3&#xa0;» n'est pas un nombre entier (%2)</translation>
    </message>
    <message id="MESS_QUERY_OUT_OF_RANGE">
        <source>%1: the %2 "%3" is not within %4 to %5</source>
        <translation>%1&#xa0;: la valeur «&#xa0;%3&#xa0;» n'est pas comprise entre %4 et %5 (%2)</translation>
    </message>
    <message id="MESS_QUERY_LOW_FREQUENCY">
        <source>%1: the frequency "%2" is neither 0 nor 1 MHz or more</source>
        <translation>%1&#xa0;: la fréquence «&#xa0;%2&#xa0;» n'est ni 0, ni supérieure ou égale à 1 MHz</translation>
    </message>
    <message id="MESS_QUERY_NO_COLOR">
        <source>%1: the color "%2" is not rrggbbaa</source>
        <translation>%1&#xa0;: la couleur «&#xa0;%2&#xa0;» n'a pas la forme rrggbbaa</translation>
    </message>
    <message id="MESS_QUERY_UNKNOWN_WORD">
        <source>%1: the %2 "%3" is unknown</source>
        <translation>%1&#xa0;: la valeur «&#xa0;%3&#xa0;» est inconnue (%2)</translation>
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
        <translation>hauteur</translation>
    </message>
    <message id="MESS_QUANTITY_WIDTH">
        <source>width</source>
        <translation>largeur</translation>
    </message>
    <message id="MESS_QUANTITY_RADIUS">
        <source>radius</source>
        <translation>rayon</translation>
    </message>
    <message id="MESS_QUANTITY_SPACING">
        <source>spacing</source>
        <translation>espacement</translation>
    </message>
    <message id="MESS_QUANTITY_SECTOR_RADIUS">
        <source>sector radius</source>
        <translation>rayon des secteurs</translation>
    </message>
    <message id="MESS_QUANTITY_SECTOR_HEIGHT">
        <source>sector height</source>
        <translation>hauteur des secteurs</translation>
    </message>
    <message id="MESS_QUANTITY_SECTOR_SPACING">
        <source>sector spacing</source>
        <translation>espacement des secteurs</translation>
    </message>
    <message id="MESS_QUANTITY_AZIMUTH">
        <source>azimuth</source>
        <translation>azimut</translation>
    </message>
    <message id="MESS_QUANTITY_TILT">
        <source>tilt</source>
        <translation>inclinaison</translation>
    </message>
    <message id="MESS_QUANTITY_BEAM_WIDTH">
        <source>beam width</source>
        <translation>ouverture du faisceau</translation>
    </message>
    <message id="MESS_QUANTITY_ANTENNA_LENGTH">
        <source>antenna length</source>
        <translation>longueur de l'antenne</translation>
    </message>
    <message id="MESS_QUANTITY_DIAMETER">
        <source>diameter</source>
        <translation>diamètre</translation>
    </message>
    <message id="MESS_QUANTITY_FREQUENCY">
        <source>frequency</source>
        <translation>fréquence</translation>
    </message>
    <message id="MESS_QUANTITY_SCALE">
        <source>scale</source>
        <translation>échelle</translation>
    </message>
    <message id="MESS_QUANTITY_SYMBOLIC">
        <source>symbolic distance</source>
        <translation>distance symbolique</translation>
    </message>
    <message id="MESS_QUANTITY_REALISTIC">
        <source>realistic distance</source>
        <translation>distance réaliste</translation>
    </message>
    <message id="MESS_QUANTITY_ZONE">
        <source>zone</source>
        <translation>zone</translation>
    </message>
    <message id="MESS_QUANTITY_SHARE">
        <source>share</source>
        <translation>part</translation>
    </message>
    <message id="MESS_QUANTITY_K_FACTOR">
        <source>factor</source>
        <translation>facteur</translation>
    </message>
    <message id="MESS_QUANTITY_KIND">
        <source>kind</source>
        <translation>type d'objet</translation>
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
        <translation>mot</translation>
    </message>
</context>
</TS>
