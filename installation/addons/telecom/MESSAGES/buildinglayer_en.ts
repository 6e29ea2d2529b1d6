<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Layer of buildings</name>
    <message id="MESS_BUILDINGS">
        <source>Buildings</source>
        <extracomment>Title of the layer, before the name of its source in brackets.</extracomment>
        <translation>Buildings</translation>
    </message>
    <message id="MESS_TEXB_TEXTURED_ON">
        <source>Textured: %1</source>
        <extracomment>%1: roofs, walls or storeys.</extracomment>
        <translation>Textured: %1</translation>
    </message>
    <message id="MESS_TEXB_IMAGES">
        <source>Images: %1</source>
        <extracomment>%1: their number.</extracomment>
        <translation>Images: %1</translation>
    </message>
    <message id="MESS_TEXB_HEIGHTS">
        <source>Heights above the ground: %1</source>
        <extracomment>%1: heights, "1.5 · 6 m".</extracomment>
        <translation>Heights above the ground: %1</translation>
    </message>
</context>
<context>
    <name>Layer of buildings on the command line</name>
    <message id="MESS_CLI_READING_SCENE">
        <source>Reading the scene</source>
        <translation>Reading the scene</translation>
    </message>
    <message id="MESS_CLI_NO_BUILDINGS">
        <source>the project names no buildings: give their file</source>
        <translation>the project names no buildings: give their file</translation>
    </message>
    <message id="MESS_CLI_NO_DTM">
        <source>the project names no terrain: give --dtm</source>
        <extracomment>Keep the option.</extracomment>
        <translation>the project names no terrain: give --dtm</translation>
    </message>
    <message id="MESS_CLI_NO_SUCH_LAYER">
        <source>no layer of polygons has the name "%1"; there are: %2</source>
        <translation>no layer of polygons has the name "%1"; there are: %2</translation>
    </message>
    <message id="MESS_CLI_NO_SUCH_FIELD">
        <source>no field of heights has the name "%1"; there are: %2</source>
        <translation>no field of heights has the name "%1"; there are: %2</translation>
    </message>
    <message id="MESS_CLI_NO_HEIGHT_FIELD">
        <source>which field holds the heights? --height-field tells</source>
        <extracomment>Keep the option.</extracomment>
        <translation>which field holds the heights? --height-field tells</translation>
    </message>
    <message id="MESS_CLI_NO_SUCH_CMAP">
        <source>no color map has this name, nor any file; there are: %1</source>
        <translation>no color map has this name, nor any file; there are: %1</translation>
    </message>
    <message id="MESS_CLI_SUBDATASETS">
        <source>it holds several images, each with a name: %1</source>
        <translation>it holds several images, each with a name: %1</translation>
    </message>
    <message id="MESS_CLI_NO_VALUES">
        <source>none of its pixels has a value</source>
        <extracomment>Follows the name of an image.</extracomment>
        <translation>none of its pixels has a value</translation>
    </message>
    <message id="MESS_CLI_TEXTURE_HEIGHT">
        <source>for which height is this image? --texture FILE=HEIGHT tells</source>
        <extracomment>Keep the option.</extracomment>
        <translation>for which height is this image? --texture FILE=HEIGHT tells</translation>
    </message>
    <message id="MESS_CLI_BAD_HEIGHT">
        <source>the height is no number</source>
        <extracomment>Follows the name of an image.</extracomment>
        <translation>the height is no number</translation>
    </message>
    <message id="MESS_CLI_PLAIN">
        <source>no image lies on the buildings: neither --texture nor --textures is given</source>
        <extracomment>Keep the options.</extracomment>
        <translation>no image lies on the buildings: neither --texture nor --textures is given</translation>
    </message>
    <message id="MESS_CLI_NO_TEXTURES">
        <source>no image is found by it</source>
        <extracomment>Follows the name of an image.</extracomment>
        <translation>no image is found by it</translation>
    </message>
    <message id="MESS_CLI_NO_HEIGHTS">
        <source>images that state no height, 0 m is taken: %1</source>
        <translation>images that state no height, 0 m is taken: %1</translation>
    </message>
    <message id="MESS_TIP_DRAG_TEXB">
        <source>Drag the layer file into the builder; Ctrl+C copies it to be pasted there.
Its files are temporary: Ctrl+S saves it for good, with its document and legend beside it.</source>
        <translation>Drag the layer file into the builder; Ctrl+C copies it to be pasted there.
Its files are temporary: Ctrl+S saves it for good, with its document and legend beside it.</translation>
    </message>
</context>
</TS>
