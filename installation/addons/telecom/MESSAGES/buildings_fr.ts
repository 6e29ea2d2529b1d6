<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Building source page</name>
    <message id="MESS_PROJECT_FILES_MISSING">
        <source>The project names files that do not exist</source>
        <extracomment>The files follow, one in a line.</extracomment>
        <translation>Le projet nomme des fichiers qui n'existent pas</translation>
    </message>
    <message id="MESS_BUILDINGS_DS">
        <source>Building datasource</source>
        <translation>Source des bâtiments</translation>
    </message>
    <message id="MESS_BUILDINGS_LY">
        <source>Layer</source>
        <translation>Couche</translation>
    </message>
    <message id="MESS_HEIGHT_FIELD">
        <source>Height Field</source>
        <translation>Champ de hauteur</translation>
    </message>
    <message id="MESS_TERRAIN_GROUP">
        <source>Terrain</source>
        <translation>Terrain</translation>
    </message>
    <message id="MESS_MNT_EXP">
        <source>Digital terrain model</source>
        <translation>Modèle numérique de terrain</translation>
    </message>
    <message id="MESS_NO_DATA">
        <source>No Data Value</source>
        <translation>Valeur d'absence de donnée</translation>
    </message>
    <message id="MESS_GUESS_FROM_IMG">
        <source>Guess from image...</source>
        <translation>Deviner d'après l'image...</translation>
    </message>
    <message id="MESS_BUILDING_REPR">
        <source>Building representation</source>
        <translation>Représentation des bâtiments</translation>
    </message>
    <message id="MESS_TEX_BUILDINGS">
        <source>Textured</source>
        <translation>Texturée</translation>
    </message>
    <message id="MESS_TEX_BUILDINGS2">
        <source>Roof, walls or storeys of each building are textured using 
raster images (ortho images, coverages plots, ...).</source>
        <translation>Le toit, les murs ou les étages de chaque bâtiment sont texturés 
avec des images raster (orthophotos, cartes de couverture, ...).</translation>
    </message>
    <message id="MESS_COL_BUILDINGS">
        <source>Colored</source>
        <translation>Colorée</translation>
    </message>
    <message id="MESS_COL_BUILDINGS2">
        <source>&lt;p&gt;Each building is colored either with a color derived from an &lt;br/&gt;attribute value or with a color derived from a raster coverage :&lt;br/&gt;a formula (min, max, ...) is applied to all pixels it covers in a &lt;br/&gt;raster coverage .&lt;/p&gt;</source>
        <translation>&lt;p&gt;Chaque bâtiment reçoit une couleur tirée soit d'un attribut, &lt;br/&gt;soit d'une couverture raster&#xa0;: une formule (min, max, ...) &lt;br/&gt;est appliquée à tous les pixels que le bâtiment &lt;br/&gt;recouvre dans cette couverture.&lt;/p&gt;</translation>
    </message>
    <message id="MESS_INTEGER">
        <source>Integer</source>
        <translation>Entier</translation>
    </message>
    <message id="MESS_REAL">
        <source>Real</source>
        <translation>Réel</translation>
    </message>
    <message id="MESS_STRING">
        <source>String</source>
        <translation>Texte</translation>
    </message>
    <message id="MESS_SELECT_BUILDINGS_F">
        <source>Select the buildings file to display</source>
        <translation>Choisir le fichier de bâtiments à afficher</translation>
    </message>
    <message id="MESS_SELECT_DTM">
        <source>Select the raster DTM</source>
        <translation>Choisir le MNT raster</translation>
    </message>
    <message id="MESS_VECTOR_FILES">
        <source>Vector Files</source>
        <translation>Fichiers vectoriels</translation>
    </message>
    <message id="MESS_RASTER_FILES">
        <source>Raster Files</source>
        <translation>Fichiers raster</translation>
    </message>
    <message id="MESS_BUILDINGS_KINDS">
        <source>Vector file with the outlines of the buildings</source>
        <translation>Fichier vectoriel des contours des bâtiments</translation>
    </message>
    <message id="MESS_DTM_KINDS">
        <source>Raster with the heights of the ground</source>
        <translation>Raster des altitudes du sol</translation>
    </message>
    <message id="MESS_TIP_BUILDINGS_DS">
        <source>Path of the vector file with the outlines of the buildings; press Enter after typing one, or drop a file on the page</source>
        <translation>Chemin du fichier vectoriel des contours des bâtiments&#xa0;; appuyez sur Entrée après l'avoir saisi, ou déposez un fichier sur la page</translation>
    </message>
    <message id="MESS_TIP_BUILDINGS_LY">
        <source>Layer of polygons with the outlines of the buildings</source>
        <translation>Couche de polygones des contours des bâtiments</translation>
    </message>
    <message id="MESS_TIP_HEIGHT_FIELD">
        <source>Field with the height of each building above the ground</source>
        <translation>Champ de la hauteur de chaque bâtiment au-dessus du sol</translation>
    </message>
    <message id="MESS_TIP_MNT_EXP">
        <source>Path of the raster with the heights of the ground; press Enter after typing one, or drop a file on the page</source>
        <translation>Chemin du raster des altitudes du sol&#xa0;; appuyez sur Entrée après l'avoir saisi, ou déposez un fichier sur la page</translation>
    </message>
    <message id="MESS_TIP_NO_DATA">
        <source>Value in the raster for an unknown height of the ground; empty if there is none</source>
        <translation>Valeur du raster pour une altitude du sol inconnue ; vide s'il n'y en a pas</translation>
    </message>
    <message id="MESS_TIP_GUESS_FROM_IMG">
        <source>Search the raster for a value that is too low or too high for a height of the ground</source>
        <translation>Chercher dans le raster une valeur trop basse ou trop haute pour une altitude du sol</translation>
    </message>
    <message id="MESS_READING_BUILDINGS">
        <source>Reading the buildings...</source>
        <translation>Lecture des bâtiments...</translation>
    </message>
    <message id="MESS_READING_EXTENT">
        <source>Computing the extent of the buildings...</source>
        <translation>Calcul de l'étendue des bâtiments...</translation>
    </message>
    <message id="MESS_READING_DTM">
        <source>Reading the terrain...</source>
        <translation>Lecture du terrain...</translation>
    </message>
</context>
<context>
    <name>What is told of the sources</name>
    <message id="MESS_BUILDING_COUNT">
        <source>Buildings: %1</source>
        <translation>Bâtiments&#xa0;: %1</translation>
    </message>
    <message id="MESS_NO_SYSTEM">
        <source>no coordinate system</source>
        <translation>sans système de coordonnées</translation>
    </message>
    <message id="MESS_NO_BUILDING_PLACED">
        <source>no building has a position</source>
        <translation>aucun bâtiment n'a de position</translation>
    </message>
    <message id="MESS_PIXEL_COUNT">
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message id="MESS_DTM_COVERS">
        <source>covers the buildings</source>
        <translation>couvre les bâtiments</translation>
    </message>
    <message id="MESS_DTM_COVERS_PART">
        <source>covers only a part of the buildings</source>
        <translation>ne couvre qu'une partie des bâtiments</translation>
    </message>
    <message id="MESS_DTM_COVERS_NONE">
        <source>does not cover the buildings</source>
        <translation>ne couvre pas les bâtiments</translation>
    </message>
</context>
<context>
    <name>Refused sources</name>
    <message id="MESS_ERR_OPEN_VECTORDS">
        <source>This file can't be open as a vector file</source>
        <translation>Ce fichier ne peut pas être ouvert comme fichier vectoriel</translation>
    </message>
    <message id="MESS_ERR_NOPOLY_LAY">
        <source>This datasource doesn't contain any polygon layer</source>
        <translation>Cette source de données ne contient aucune couche de polygones</translation>
    </message>
    <message id="MESS_ERR_OPEN_RASTERDS">
        <source>This file can't be open as a raster dataset</source>
        <translation>Ce fichier ne peut pas être ouvert comme raster</translation>
    </message>
    <message id="MESS_ERR_NO_BANDS">
        <source>This image doesn't have any band</source>
        <translation>Cette image ne contient aucune bande</translation>
    </message>
    <message id="MESS_OUV_MNT_IMP">
        <source>Cannot open DTM</source>
        <translation>Impossible d'ouvrir le MNT</translation>
    </message>
    <message id="MESS_ERR_NO_EXTENT">
        <source>No building of this layer has a position</source>
        <translation>Aucun bâtiment de cette couche n'a de position</translation>
    </message>
    <message id="MESS_DTM_IS_PICTURE">
        <source>This raster is probably a picture: its first band holds colors, which would be read as heights</source>
        <translation>Ce raster est probablement une image : sa première bande contient des couleurs, qui seraient lues comme des altitudes</translation>
    </message>
    <message id="MESS_CARD_BUILDING">
        <source>Building %1</source>
        <translation>Bâtiment %1</translation>
    </message>
    <message id="MESS_CARD_HEIGHT">
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message id="MESS_CARD_GROUND">
        <source>Ground</source>
        <translation>Altitude du sol</translation>
    </message>
    <message id="MESS_CARD_COLOR">
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message id="MESS_CARD_WALLS">
        <source>Walls</source>
        <translation>Murs</translation>
    </message>
    <message id="MESS_CARD_ROOF">
        <source>Roof</source>
        <translation>Toit</translation>
    </message>
    <message id="MESS_CARD_NO_VALUE">
        <source>no value</source>
        <translation>aucune valeur</translation>
    </message>
</context>
</TS>
