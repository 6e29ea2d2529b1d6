<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Layer of buildings</name>
    <message id="MESS_BUILDINGS">
        <source>Buildings</source>
        <extracomment>Title of the layer, before the name of its source in brackets.</extracomment>
        <translation>Bâtiments</translation>
    </message>
    <message id="MESS_TEXB_TEXTURED_ON">
        <source>Textured: %1</source>
        <extracomment>%1: roofs, walls or storeys.</extracomment>
        <translation>Texturé&#xa0;: %1</translation>
    </message>
    <message id="MESS_TEXB_IMAGES">
        <source>Images: %1</source>
        <extracomment>%1: their number.</extracomment>
        <translation>Images&#xa0;: %1</translation>
    </message>
    <message id="MESS_TEXB_HEIGHTS">
        <source>Heights above the ground: %1</source>
        <extracomment>%1: heights, "1.5 · 6 m".</extracomment>
        <translation>Hauteurs au-dessus du sol&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Layer of buildings on the command line</name>
    <message id="MESS_CLI_READING_SCENE">
        <source>Reading the scene</source>
        <translation>Lecture de la scène</translation>
    </message>
    <message id="MESS_CLI_NO_BUILDINGS">
        <source>the project names no buildings: give their file</source>
        <translation>le projet n'indique pas de bâtiments&#xa0;: donnez leur fichier</translation>
    </message>
    <message id="MESS_CLI_NO_DTM">
        <source>the project names no terrain: give --dtm</source>
        <extracomment>Keep the option.</extracomment>
        <translation>le projet n'indique pas de terrain&#xa0;: donnez --dtm</translation>
    </message>
    <message id="MESS_CLI_NO_SUCH_LAYER">
        <source>there is no layer of polygons "%1"; the layers are: %2</source>
        <translation>il n'y a pas de couche de polygones « %1 » ; les couches sont : %2</translation>
    </message>
    <message id="MESS_CLI_NO_SUCH_FIELD">
        <source>there is no field of heights "%1"; the fields are: %2</source>
        <translation>il n'y a pas de champ de hauteurs « %1 » ; les champs sont : %2</translation>
    </message>
    <message id="MESS_CLI_NO_HEIGHT_FIELD">
        <source>no field with the heights was found: give its name with --height-field; the fields are: %1</source>
        <extracomment>Keep the option.</extracomment>
        <translation>aucun champ de hauteurs n'a été trouvé&#xa0;: indiquez-le avec --height-field&#xa0;; les champs sont&#xa0;: %1</translation>
    </message>
    <message id="MESS_CLI_NO_SUCH_CMAP">
        <source>there is no color map and no file with this name; the color maps are: %1</source>
        <translation>aucune palette ni aucun fichier ne porte ce nom ; les palettes sont : %1</translation>
    </message>
    <message id="MESS_CLI_SUBDATASETS">
        <source>it holds several images; give the name of one of them: %1</source>
        <translation>il contient plusieurs images ; indiquez le nom de l'une d'elles : %1</translation>
    </message>
    <message id="MESS_CLI_NO_VALUES">
        <source>none of its pixels has a value</source>
        <extracomment>Follows the name of an image.</extracomment>
        <translation>aucun de ses pixels n'a de valeur</translation>
    </message>
    <message id="MESS_CLI_TEXTURE_HEIGHT">
        <source>the height of this image is not known: give --texture FILE=HEIGHT</source>
        <extracomment>Keep the option.</extracomment>
        <translation>la hauteur de cette image est inconnue : indiquez --texture FILE=HEIGHT</translation>
    </message>
    <message id="MESS_CLI_BAD_HEIGHT">
        <source>the height is not a number</source>
        <extracomment>Follows the name of an image.</extracomment>
        <translation>la hauteur n'est pas un nombre</translation>
    </message>
    <message id="MESS_CLI_PLAIN">
        <source>the buildings have no images: neither --texture nor --textures is given</source>
        <extracomment>Keep the options.</extracomment>
        <translation>les bâtiments n'ont pas d'image : ni --texture ni --textures n'est indiquée</translation>
    </message>
    <message id="MESS_CLI_NO_TEXTURES">
        <source>no image of its set was found</source>
        <extracomment>Follows the name of an image.</extracomment>
        <translation>aucune image de son ensemble n'a été trouvée</translation>
    </message>
    <message id="MESS_CLI_NO_HEIGHTS">
        <source>images without a stated height, 0 m is used: %1</source>
        <translation>images sans hauteur indiquée, 0 m est utilisé : %1</translation>
    </message>
    <message id="MESS_TIP_DRAG_TEXB">
        <source>Drag the layer file into the builder; Ctrl+C copies it to be pasted there.
Its files are temporary: Ctrl+S saves the layer permanently, together with its document and legend.</source>
        <translation>Faites glisser le fichier de couche dans Veltaro Builder ; Ctrl+C le copie pour l'y coller.
Ses fichiers sont temporaires : Ctrl+S enregistre durablement la couche, avec son document et sa légende.</translation>
    </message>
    <message id="MESS_NOTICES">
        <source>%1 notices...</source>
        <extracomment>%1: their number, two or more.</extracomment>
        <translation>%1 remarques...</translation>
    </message>
    <message id="MESS_TIP_NOTICES">
        <source>Show all notices about the layer, to read or copy them</source>
        <translation>Afficher toutes les remarques sur la couche, pour les lire ou les copier</translation>
    </message>
    <message id="MESS_NOTICES_TITLE">
        <source>Notices about the layer</source>
        <translation>Remarques sur la couche</translation>
    </message>
    <message id="MESS_COPY_NOTICES">
        <source>&amp;Copy all</source>
        <translation>&amp;Tout copier</translation>
    </message>
</context>
</TS>
