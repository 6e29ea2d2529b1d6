<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Coloring of buildings</name>
    <message id="MESS_FICHIER_IMAGE">
        <source>Image file</source>
        <translation>Fichier image</translation>
    </message>
    <message id="MESS_TIP_COLOR_IMAGE">
        <source>Raster whose values color the buildings; press Enter after typing one, or drop a file on the page</source>
        <translation>Raster dont les valeurs colorent les bâtiments&#xa0;; validez par Entrée un chemin saisi, ou déposez un fichier sur la page</translation>
    </message>
    <message id="MESS_COLOR_IMAGE_KINDS">
        <source>.tif, .asc or other raster</source>
        <translation>.tif, .asc ou autre raster</translation>
    </message>
    <message id="MESS_SELECT_IMAGE_FILE">
        <source>Select the image to use</source>
        <translation>Choisir l'image à utiliser</translation>
    </message>
    <message id="MESS_SUBDATASETS">
        <source>Subdatasets</source>
        <translation>Sous-jeux de données</translation>
    </message>
    <message id="MESS_TIP_SUBDATASETS">
        <source>Image of the file that is used</source>
        <translation>Image du fichier qui est utilisée</translation>
    </message>
    <message id="MESS_VLTR3D_NODATA">
        <source>No Data Value</source>
        <translation>Valeur d'absence de donnée</translation>
    </message>
    <message id="MESS_TIP_COLOR_NODATA">
        <source>Value of pixels without data, in addition to the value that the file declares; may be empty</source>
        <translation>Valeur des pixels sans donnée, en plus de celle que le fichier déclare ; facultative</translation>
    </message>
    <message id="MESS_TIP_GUESS_COLOR_NODATA">
        <source>Search the image for a value that is far too low or too high</source>
        <translation>Chercher dans l'image une valeur beaucoup trop basse ou trop haute</translation>
    </message>
    <message id="MESS_FICH_TC">
        <source>Colormap file</source>
        <translation>Palette de couleurs</translation>
    </message>
    <message id="MESS_TIP_CMAP">
        <source>Colors of the values: the colormaps of the installation, then your own</source>
        <translation>Couleurs des valeurs : les palettes de l'installation, puis les vôtres</translation>
    </message>
    <message id="MESS_ADD_PPP">
        <source>Add...</source>
        <translation>Ajouter...</translation>
    </message>
    <message id="MESS_SELECT_CMAP_FILE">
        <source>Select the colormap to use</source>
        <translation>Choisir la palette de couleurs à utiliser</translation>
    </message>
    <message id="MESS_CMAP_FILES">
        <source>Colormap files</source>
        <translation>Palettes de couleurs</translation>
    </message>
    <message id="MESS_STRETCH_CMAP">
        <source>Stretch on raster min/max</source>
        <translation>Étirer sur le min/max du raster</translation>
    </message>
    <message id="MESS_TIP_STRETCH_CMAP">
        <source>Stretch the colors between the minimum and maximum value; otherwise the values of the colormap apply</source>
        <translation>Répartir les couleurs entre les valeurs minimale et maximale ; sinon, les valeurs de la palette s'appliquent</translation>
    </message>
    <message id="MESS_INTERP_COULEUR">
        <source>Color interpretation mode</source>
        <translation>Interprétation des couleurs</translation>
    </message>
    <message id="MESS_TIP_INTERP_COULEUR">
        <source>Color of a value between two values of the colormap: the color of the lower one, or a mixture of both</source>
        <translation>Couleur d'une valeur située entre deux valeurs de la palette : celle de la plus basse, ou un mélange des deux</translation>
    </message>
    <message id="MESS_PLAGE_COULEURS">
        <source>Plage de couleurs</source>
        <translation>Plage de couleurs</translation>
    </message>
    <message id="MESS_INTERPOLATION">
        <source>Interpolation</source>
        <translation>Interpolation</translation>
    </message>
    <message id="MESS_COMPUTE_MODE">
        <source>Compute mode</source>
        <translation>Mode de calcul</translation>
    </message>
    <message id="MESS_TIP_COMPUTE_MODE">
        <source>How the values of all pixels under a building are combined into one</source>
        <translation>Comment les valeurs de tous les pixels sous un bâtiment sont réduites à une seule</translation>
    </message>
    <message id="MESS_CM_MIN">
        <source>Minimum value</source>
        <translation>Valeur minimale</translation>
    </message>
    <message id="MESS_CM_MAX">
        <source>Maximum value</source>
        <translation>Valeur maximale</translation>
    </message>
    <message id="MESS_CM_AVG">
        <source>Average value</source>
        <translation>Valeur moyenne</translation>
    </message>
    <message id="MESS_CM_MOR">
        <source>Most represented value</source>
        <translation>Valeur la plus représentée</translation>
    </message>
    <message id="MESS_ERR_ONLY_GRAY">
        <source>The image-based coloring mode works only with one-band grey images</source>
        <translation>Le mode de coloration par image ne fonctionne qu'avec des images grises à une bande</translation>
    </message>
    <message id="MESS_READING_IMAGE">
        <source>Reading the image...</source>
        <translation>Lecture de l'image...</translation>
    </message>
    <message id="MESS_READING_RANGE">
        <source>Computing the minimum and maximum value...</source>
        <translation>Calcul des valeurs minimale et maximale...</translation>
    </message>
    <message id="MESS_NEED_COLOR_IMAGE">
        <source>Choose the image that colors the buildings.</source>
        <translation>Choisissez l'image qui colore les bâtiments.</translation>
    </message>
    <message id="MESS_NODATA_NO_NUMBER">
        <source>The no-data value is not a number.</source>
        <translation>La valeur d'absence de donnée n'est pas un nombre.</translation>
    </message>
    <message id="MESS_IMAGE_NOT_OPENED">
        <source>Press Enter to open the image of this path.</source>
        <translation>Appuyez sur Entrée pour ouvrir l'image de ce chemin.</translation>
    </message>
    <message id="MESS_CMAP_GONE">
        <source>The file of the colormap no longer exists: choose another colormap.</source>
        <translation>Le fichier de la palette n'existe plus&#xa0;: choisissez-en une autre.</translation>
    </message>
    <message id="MESS_NEED_CMAP">
        <source>Add a colormap.</source>
        <translation>Ajoutez une palette de couleurs.</translation>
    </message>
</context>
<context>
    <name>Extrusion of buildings</name>
    <message id="MESS_VECTOR_SOURCE">
        <source>Vector source</source>
        <translation>Source vectorielle</translation>
    </message>
    <message id="MESS_TIP_EXTRUDED_DISTANCE">
        <source>Maximum distance at which the extruded buildings are drawn</source>
        <translation>Distance maximale à laquelle les bâtiments extrudés sont dessinés</translation>
    </message>
    <message id="MESS_TILE_SIZE">
        <source>Tile size</source>
        <translation>Taille des tuiles</translation>
    </message>
    <message id="MESS_TIP_TILE_SIZE">
        <source>Side of the square tiles of buildings</source>
        <translation>Côté des tuiles carrées de bâtiments</translation>
    </message>
    <message id="MESS_CHECK_GEOM_CW">
        <source>Check that geometries are clockwise</source>
        <translation>Vérifier que les géométries tournent dans le sens horaire</translation>
    </message>
    <message id="MESS_TIP_CHECK_GEOM_CW">
        <source>For sources with polygons in both directions: without this check, some walls may be lit from the wrong side. The builder needs it; the preview shows both directions in the same manner.</source>
        <translation>Pour les sources dont les polygones tournent dans les deux sens : sans cette vérification, certains murs peuvent être éclairés du mauvais côté. Elle sert à Veltaro Builder ; l'aperçu montre les deux sens de la même façon.</translation>
    </message>
    <message id="MESS_EXTRUSION">
        <source>Extrusion</source>
        <translation>Extrusion</translation>
    </message>
    <message id="MESS_SKIRT_SIZE">
        <source>Skirt size</source>
        <translation>Taille de la jupe</translation>
    </message>
    <message id="MESS_TIP_SKIRT_SIZE">
        <source>Depth of the walls below the ground, so that no gap is visible on slopes</source>
        <translation>Profondeur des murs sous le sol, pour qu'aucun vide n'apparaisse dans les pentes</translation>
    </message>
</context>
<context>
    <name>Preview of buildings</name>
    <message id="MESS_AUTO_REFRESH">
        <source>Auto refresh</source>
        <translation>Actualisation automatique</translation>
    </message>
    <message id="MESS_TIP_AUTO_REFRESH">
        <source>Write and show the layer again after every change</source>
        <translation>Récrire et afficher la couche après chaque changement</translation>
    </message>
    <message id="MESS_MAJ_VUE">
        <source>Refresh the view</source>
        <translation>Actualiser la vue</translation>
    </message>
    <message id="MESS_RESET_VIEW">
        <source>Reset the view</source>
        <translation>Réinitialiser la vue</translation>
    </message>
    <message id="MESS_TIP_RESET_VIEW">
        <source>Show all buildings, or as many as the view can hold</source>
        <translation>Afficher tous les bâtiments, ou autant que la vue peut en contenir</translation>
    </message>
    <message id="MESS_LOADING_BUILDINGS">
        <source>Loading the buildings...</source>
        <translation>Chargement des bâtiments...</translation>
    </message>
    <message id="MESS_LOADING_STOPPED">
        <source>Loading was stopped; the layer itself is complete.</source>
        <translation>Le chargement a été arrêté&#xa0;; la couche elle-même est complète.</translation>
    </message>
    <message id="MESS_BUILDINGS_NOT_SHOWN">
        <source>The buildings cannot be shown: %1</source>
        <translation>Les bâtiments ne peuvent pas être affichés&#xa0;: %1</translation>
    </message>
    <message id="MESS_BUILDINGS_SHOWN">
        <source>Buildings: %1</source>
        <translation>Bâtiments&#xa0;: %1</translation>
    </message>
    <message id="MESS_BUILDINGS_LEFT_OUT">
        <source>Buildings: %1, left out: %2</source>
        <translation>Bâtiments&#xa0;: %1, omis&#xa0;: %2</translation>
    </message>
    <message id="MESS_DRAWN_FROM_HERE">
        <source>%1 of %2 buildings are drawn from here</source>
        <translation>%1 bâtiments sur %2 sont dessinés depuis ce point</translation>
    </message>
    <message id="MESS_VIEW_IS_STALE">
        <source>The settings have changed: refresh the view to see them.</source>
        <translation>Les réglages ont changé&#xa0;: actualisez la vue pour les voir.</translation>
    </message>
    <message id="MESS_LAYER_NOT_MADE">
        <source>The layer was not made.</source>
        <translation>La couche n'a pas été créée.</translation>
    </message>
</context>
<context>
    <name>Coloured page</name>
    <message id="MESS_PROP_DISPLAY">
        <source>Display properties</source>
        <translation>Propriétés d'affichage</translation>
    </message>
    <message id="MESS_STD_PROPS">
        <source>Standard Properties</source>
        <translation>Propriétés standard</translation>
    </message>
    <message id="MESS_ADV_PROPS">
        <source>Advanced Properties</source>
        <translation>Propriétés avancées</translation>
    </message>
    <message id="MESS_NEED_BUILDINGS">
        <source>There are no buildings yet.</source>
        <translation>Il n'y a pas encore de bâtiments.</translation>
    </message>
</context>
</TS>
