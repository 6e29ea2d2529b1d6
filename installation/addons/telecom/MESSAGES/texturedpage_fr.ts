<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Textured page</name>
    <message id="MESS_DATA_STRUCTURE">
        <source>Data structure</source>
        <translation>Structure des données</translation>
    </message>
    <message id="MESS_TIP_DATA_STRUCTURE">
        <source>Folders of the images, relative to the template image; a change applies to the next choice of a template</source>
        <translation>Dossiers des images, par rapport à l'image modèle ; un changement s'applique au prochain choix d'un modèle</translation>
    </message>
    <message id="MESS_DS_SAME_FOLDER">
        <source>All images are in the same folder</source>
        <translation>Toutes les images sont dans le même dossier</translation>
    </message>
    <message id="MESS_DS_FOLDER_ONE_LVL">
        <source>Images are in folders at the same level</source>
        <translation>Les images sont dans des dossiers de même niveau</translation>
    </message>
    <message id="MESS_DS_FOLDER_TWO_LVL">
        <source>Images are in folders separated by two levels</source>
        <translation>Les images sont dans des dossiers séparés par deux niveaux</translation>
    </message>
    <message id="MESS_DEF_TMPLT_IMG">
        <source>Define  the template image...</source>
        <translation>Définir l'image modèle...</translation>
    </message>
    <message id="MESS_TIP_TEMPLATE">
        <source>Choose one of the images; all images with the same suffix in these folders are listed. You can also drop a file on the page</source>
        <translation>Choisissez l'une des images : toutes celles de même extension dans ces dossiers sont listées. Vous pouvez aussi déposer un fichier sur la page</translation>
    </message>
    <message id="MESS_FILTER_PATTERN">
        <source>Filter images with this pattern</source>
        <translation>Filtrer les images avec ce motif</translation>
    </message>
    <message id="MESS_TIP_TEXTURE_FILTER">
        <source>Show only the images with this text in their file name, folder or description, or with a matching height</source>
        <translation>N'afficher que les images dont le nom de fichier, le dossier ou la description contient ce texte, ou dont la hauteur y correspond</translation>
    </message>
    <message id="MESS_USE_ALL_SHOWN">
        <source>Use all shown</source>
        <translation>Cocher les affichées</translation>
    </message>
    <message id="MESS_TIP_USE_ALL_SHOWN">
        <source>Tick all images that the table shows</source>
        <translation>Cocher toutes les images du tableau</translation>
    </message>
    <message id="MESS_USE_NONE_SHOWN">
        <source>Use none shown</source>
        <translation>Décocher les affichées</translation>
    </message>
    <message id="MESS_TIP_USE_NONE_SHOWN">
        <source>Untick all images that the table shows</source>
        <translation>Décocher toutes les images du tableau</translation>
    </message>
    <message id="MESS_TEXTURE_IMAGES">
        <source>Texture images</source>
        <translation>Images de texture</translation>
    </message>
    <message id="MESS_COPIER">
        <source>copy</source>
        <translation>copier</translation>
    </message>
    <message id="MESS_SELECT_TMPT_TEX">
        <source>Select one of the texture files</source>
        <translation>Choisir l'un des fichiers de texture</translation>
    </message>
    <message id="MESS_LOOKING_FOR_IMAGES">
        <source>Looking for images...</source>
        <translation>Recherche des images...</translation>
    </message>
    <message id="MESS_TEXTURE_COUNTS">
        <source>Images: %1  •  shown: %2  •  used: %3</source>
        <translation>Images&#xa0;: %1  •  affichées&#xa0;: %2  •  utilisées&#xa0;: %3</translation>
    </message>
    <message id="MESS_NO_TEXTURE_MATCHES">
        <source>no image matches the filter</source>
        <translation>aucune image ne correspond au filtre</translation>
    </message>
    <message id="MESS_TEMPLATE_MEANING">
        <source>The template image is any one of the images: its folder and suffix select the others.</source>
        <translation>L'image modèle est l'une quelconque des images : son dossier et son extension déterminent les autres.</translation>
    </message>
    <message id="MESS_DROP_IMAGE">
        <source>Drop one of the images here</source>
        <translation>Déposez ici l'une des images</translation>
    </message>
    <message id="MESS_DROP_IMAGE_KINDS">
        <source>Rasters with a position on the ground: GeoTIFF, PNG, JPEG or BMP with a world file, grids (.grc, .grd) and others.
One image for each height, which is read from the image or from its name, for example "coverage_12m.tif".</source>
        <translation>Images géoréférencées : GeoTIFF, PNG, JPEG ou BMP avec fichier de calage, grilles (.grc, .grd) et autres formats.
Une image par hauteur ; celle-ci est lue dans l'image ou dans son nom, par exemple « coverage_12m.tif ».</translation>
    </message>
    <message id="MESS_IMAGE_UNREADABLE">
        <source>This image cannot be read</source>
        <translation>Cette image est illisible</translation>
    </message>
    <message id="MESS_IMAGE_NOT_PLACED">
        <source>no position on the ground: it cannot be shown on buildings</source>
        <translation>aucune position au sol : elle ne peut pas être affichée sur les bâtiments</translation>
    </message>
</context>
</TS>
