<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Colormaps</name>
    <message id="MESS_AUCUNE">
        <source>None</source>
        <extracomment>First entry of the list of colormaps.</extracomment>
        <translation>Aucune</translation>
    </message>
    <message id="MESS_ERR_OPEN_CMAP">
        <source>This file can't be read as a colormap</source>
        <translation>Ce fichier ne peut pas être lu comme palette de couleurs</translation>
    </message>
    <message id="MESS_COLORED_WITH">
        <source>Colored: %1</source>
        <extracomment>%1: name of the colormap.</extracomment>
        <translation>Coloré : %1</translation>
    </message>
    <message id="MESS_CMAP_NO_DATA">
        <source>No data</source>
        <extracomment>Legend: colour of what has no value.</extracomment>
        <translation>Sans donnée</translation>
    </message>
</context>
</TS>
