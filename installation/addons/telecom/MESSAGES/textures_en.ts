<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Texture list</name>
    <message id="MESS_USE">
        <source>Use</source>
        <extracomment>Header of a column: the tick that takes an image.</extracomment>
        <translation>Use</translation>
    </message>
    <message id="MESS_FICHIER">
        <source>File</source>
        <extracomment>Header of a column.</extracomment>
        <translation>File</translation>
    </message>
    <message id="MESS_HAUTEUR">
        <source>Height</source>
        <extracomment>Header of a column: height of an image.</extracomment>
        <translation>Height</translation>
    </message>
    <message id="MESS_DOSSIER">
        <source>Directory</source>
        <extracomment>Header of a column.</extracomment>
        <translation>Folder</translation>
    </message>
    <message id="MESS_NEED_TEX_IMG">
        <source>Vous devez sélectionner une ou plusieurs images pour texturer les bâtiments</source>
        <extracomment>Stands in the table while there is no image. The text in the program is French.</extracomment>
        <translation>You must select one or more images to texture the buildings</translation>
    </message>
</context>
</TS>
