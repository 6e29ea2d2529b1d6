<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Colors of buildings</name>
    <message id="MESS_BAND">
        <source>Band</source>
        <translation>Bande</translation>
    </message>
    <message id="MESS_TIP_BAND">
        <source>Band of the image whose values color the buildings</source>
        <translation>Bande de l'image dont les valeurs colorent les bâtiments</translation>
    </message>
    <message id="MESS_BAND_HINT">
        <source>Other programs that read the layer may take band 1.</source>
        <translation>D'autres programmes qui lisent la couche peuvent prendre la bande 1.</translation>
    </message>
    <message id="MESS_NEED_VALUES">
        <source>Choose an image of values, not of colors.</source>
        <translation>Choisissez une image de valeurs, non de couleurs.</translation>
    </message>
    <message id="MESS_OPT_BAND">
        <source>Band of the raster, from 1 (default 1). Other programs that read the layer may take band 1 in any case.</source>
        <translation>Bande du raster, à partir de 1 (1 par défaut). D'autres programmes qui lisent la couche peuvent prendre la bande 1 dans tous les cas.</translation>
    </message>
    <message id="MESS_USE_BAND">
        <source>the number of a band, from 1</source>
        <translation>le numéro d'une bande, à partir de 1</translation>
    </message>
    <message id="MESS_CLI_OTHER_BAND">
        <source>band %1 of the raster colors the buildings; other programs that read the layer may take band 1</source>
        <translation>la bande %1 du raster colore les bâtiments&#xa0;; d'autres programmes qui lisent la couche peuvent prendre la bande 1</translation>
    </message>
    <message id="MESS_CLI_BANDS">
        <source>band 1 of the raster colors the buildings; --band chooses another one: %1</source>
        <translation>la bande 1 du raster colore les bâtiments&#xa0;; --band en choisit une autre&#xa0;: %1</translation>
    </message>
</context>
</TS>
