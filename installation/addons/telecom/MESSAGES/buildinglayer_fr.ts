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
        <source>no layer of polygons has the name "%1"; there are: %2</source>
        <translation>aucune couche de polygones ne porte le nom «&#xa0;%1&#xa0;»&#xa0;; il y a&#xa0;: %2</translation>
    </message>
    <message id="MESS_CLI_NO_SUCH_FIELD">
        <source>no field of heights has the name "%1"; there are: %2</source>
        <translation>aucun champ de hauteurs ne porte le nom «&#xa0;%1&#xa0;»&#xa0;; il y a&#xa0;: %2</translation>
    </message>
    <message id="MESS_CLI_NO_HEIGHT_FIELD">
        <source>which field holds the heights? --height-field tells</source>
        <extracomment>Keep the option.</extracomment>
        <translation>quel champ contient les hauteurs&#xa0;? --height-field le dit</translation>
    </message>
    <message id="MESS_CLI_NO_SUCH_CMAP">
        <source>no color map has this name, nor any file; there are: %1</source>
        <translation>aucune palette ni aucun fichier ne porte ce nom&#xa0;; il y a&#xa0;: %1</translation>
    </message>
    <message id="MESS_CLI_SUBDATASETS">
        <source>it holds several images, each with a name: %1</source>
        <translation>il contient plusieurs images, chacune avec un nom&#xa0;: %1</translation>
    </message>
    <message id="MESS_CLI_NO_VALUES">
        <source>none of its pixels has a value</source>
        <extracomment>Follows the name of an image.</extracomment>
        <translation>aucun de ses pixels n'a de valeur</translation>
    </message>
    <message id="MESS_CLI_TEXTURE_HEIGHT">
        <source>for which height is this image? --texture FILE=HEIGHT tells</source>
        <extracomment>Keep the option.</extracomment>
        <translation>pour quelle hauteur est cette image&#xa0;? --texture FILE=HEIGHT le dit</translation>
    </message>
    <message id="MESS_CLI_BAD_HEIGHT">
        <source>the height is no number</source>
        <extracomment>Follows the name of an image.</extracomment>
        <translation>la hauteur n'est pas un nombre supérieur ou égal à 0</translation>
    </message>
    <message id="MESS_CLI_PLAIN">
        <source>no image lies on the buildings: neither --texture nor --textures is given</source>
        <extracomment>Keep the options.</extracomment>
        <translation>aucune image n'est posée sur les bâtiments&#xa0;: ni --texture ni --textures n'est donné</translation>
    </message>
    <message id="MESS_CLI_NO_TEXTURES">
        <source>no image is found by it</source>
        <extracomment>Follows the name of an image.</extracomment>
        <translation>elle ne mène à aucune image</translation>
    </message>
    <message id="MESS_CLI_NO_HEIGHTS">
        <source>images that state no height, 0 m is taken: %1</source>
        <translation>images qui n'indiquent pas de hauteur, prises pour 0 m&#xa0;: %1</translation>
    </message>
    <message id="MESS_TIP_DRAG_TEXB">
        <source>Drag the layer file into the builder; Ctrl+C copies it to be pasted there.
Its files are temporary: Ctrl+S saves it for good, with its document and legend beside it.</source>
        <translation>Faites glisser le fichier de couche dans Veltaro Builder&#xa0;; Ctrl+C le copie pour l'y coller.
Ses fichiers sont temporaires&#xa0;: Ctrl+S l'enregistre durablement, avec son document et sa légende à côté.</translation>
    </message>
</context>
</TS>
