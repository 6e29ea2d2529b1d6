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
        <source>there is no layer of polygons "%1"; the layers are: %2</source>
        <translation>there is no layer of polygons "%1"; the layers are: %2</translation>
    </message>
    <message id="MESS_CLI_NO_SUCH_FIELD">
        <source>there is no field of heights "%1"; the fields are: %2</source>
        <translation>there is no field of heights "%1"; the fields are: %2</translation>
    </message>
    <message id="MESS_CLI_NO_HEIGHT_FIELD">
        <source>no field with the heights was found: give its name with --height-field; the fields are: %1</source>
        <extracomment>Keep the option.</extracomment>
        <translation>no field with the heights was found: give its name with --height-field; the fields are: %1</translation>
    </message>
    <message id="MESS_CLI_NO_SUCH_CMAP">
        <source>there is no color map and no file with this name; the color maps are: %1</source>
        <translation>there is no color map and no file with this name; the color maps are: %1</translation>
    </message>
    <message id="MESS_CLI_SUBDATASETS">
        <source>it holds several images; give the name of one of them: %1</source>
        <translation>it holds several images; give the name of one of them: %1</translation>
    </message>
    <message id="MESS_CLI_NO_VALUES">
        <source>none of its pixels has a value</source>
        <extracomment>Follows the name of an image.</extracomment>
        <translation>none of its pixels has a value</translation>
    </message>
    <message id="MESS_CLI_TEXTURE_HEIGHT">
        <source>the height of this image is not known: give --texture FILE=HEIGHT</source>
        <extracomment>Keep the option.</extracomment>
        <translation>the height of this image is not known: give --texture FILE=HEIGHT</translation>
    </message>
    <message id="MESS_CLI_BAD_HEIGHT">
        <source>the height is not a number</source>
        <extracomment>Follows the name of an image.</extracomment>
        <translation>the height is not a number</translation>
    </message>
    <message id="MESS_CLI_PLAIN">
        <source>the buildings have no images: neither --texture nor --textures is given</source>
        <extracomment>Keep the options.</extracomment>
        <translation>the buildings have no images: neither --texture nor --textures is given</translation>
    </message>
    <message id="MESS_CLI_NO_TEXTURES">
        <source>no image of its set was found</source>
        <extracomment>Follows the name of an image.</extracomment>
        <translation>no image of its set was found</translation>
    </message>
    <message id="MESS_CLI_NO_HEIGHTS">
        <source>images without a stated height, 0 m is used: %1</source>
        <translation>images without a stated height, 0 m is used: %1</translation>
    </message>
    <message id="MESS_TIP_DRAG_TEXB">
        <source>Drag the layer file into the builder; Ctrl+C copies it to be pasted there.
Its files are temporary: Ctrl+S saves the layer permanently, together with its document and legend.</source>
        <translation>Drag the layer file into the builder; Ctrl+C copies it to be pasted there.
Its files are temporary: Ctrl+S saves the layer permanently, together with its document and legend.</translation>
    </message>
    <message id="MESS_NOTICES">
        <source>%1 notices...</source>
        <extracomment>%1: their number, two or more.</extracomment>
        <translation>%1 notices...</translation>
    </message>
    <message id="MESS_TIP_NOTICES">
        <source>Show all notices about the layer, to read or copy them</source>
        <translation>Show all notices about the layer, to read or copy them</translation>
    </message>
    <message id="MESS_NOTICES_TITLE">
        <source>Notices about the layer</source>
        <translation>Notices about the layer</translation>
    </message>
    <message id="MESS_COPY_NOTICES">
        <source>&amp;Copy all</source>
        <translation>&amp;Copy all</translation>
    </message>
</context>
</TS>
