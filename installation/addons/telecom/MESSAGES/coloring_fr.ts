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
    <message id="MESS_TIP_STRETCH_OVER">
        <source>Values that the colors are stretched over: all of the image, two percentiles of them, those under the buildings, a range, or all of several images</source>
        <translation>Valeurs sur lesquelles les couleurs sont étirées&#xa0;: toutes celles de l'image, deux centiles de celles-ci, celles des bâtiments, un intervalle, ou toutes celles de plusieurs images</translation>
    </message>
    <message id="MESS_STRETCH_RASTER">
        <source>whole image</source>
        <translation>image entière</translation>
    </message>
    <message id="MESS_STRETCH_PERCENTILE">
        <source>percentiles</source>
        <translation>centiles</translation>
    </message>
    <message id="MESS_STRETCH_BUILDINGS">
        <source>buildings</source>
        <translation>bâtiments</translation>
    </message>
    <message id="MESS_STRETCH_RANGE">
        <source>range</source>
        <translation>intervalle</translation>
    </message>
    <message id="MESS_STRETCH_SHARED">
        <source>several images</source>
        <translation>plusieurs images</translation>
    </message>
    <message id="MESS_TIP_STRETCH_LOW">
        <source>Percentile of the values with the first color</source>
        <translation>Centile des valeurs qui a la première couleur</translation>
    </message>
    <message id="MESS_TIP_STRETCH_HIGH">
        <source>Percentile of the values with the last color</source>
        <translation>Centile des valeurs qui a la dernière couleur</translation>
    </message>
    <message id="MESS_TIP_STRETCH_MIN">
        <source>Value with the first color</source>
        <translation>Valeur qui a la première couleur</translation>
    </message>
    <message id="MESS_TIP_STRETCH_MAX">
        <source>Value with the last color</source>
        <translation>Valeur qui a la dernière couleur</translation>
    </message>
    <message id="MESS_TIP_STRETCH_OTHERS">
        <source>Other images whose layers get the same colors for the same values</source>
        <translation>Autres images dont les couches ont les mêmes couleurs pour les mêmes valeurs</translation>
    </message>
    <message id="MESS_SELECT_STRETCH_OTHERS">
        <source>Select the other images</source>
        <translation>Choisir les autres images</translation>
    </message>
    <message id="MESS_STRETCH_NO_RANGE">
        <source>The range of the colors needs two numbers, the lower one first.</source>
        <translation>L'intervalle des couleurs demande deux nombres, le plus petit d'abord.</translation>
    </message>
    <message id="MESS_STRETCH_NO_OTHERS">
        <source>Choose the other images.</source>
        <translation>Choisissez les autres images.</translation>
    </message>
    <message id="MESS_STRETCH_NO_VALUES">
        <source>None of the pixels has a value</source>
        <translation>Aucun pixel n'a de valeur</translation>
    </message>
    <message id="MESS_OPT_STRETCH">
        <source>Values that the color map is stretched over: all of the image (raster, the default), percentiles of them, those under the buildings, a stated range, or all of the image and of others (with, may be given several times).</source>
        <translation>Valeurs sur lesquelles la palette est étirée&#xa0;: toutes celles de l'image (raster, par défaut), des centiles (percentile), celles des bâtiments (buildings), un intervalle donné (range), ou toutes celles de l'image et d'autres (with, peut être répété).</translation>
    </message>
    <message id="MESS_USE_BOTH_STRETCH">
        <source>--absolute and --stretch cannot be combined</source>
        <translation>--absolute et --stretch sont incompatibles</translation>
    </message>
    <message id="MESS_OPT_COLOR_FIELD">
        <source>Field of the vector file that colors the buildings in place of an image: numbers through the color map, texts by distinct colors for the 12 most frequent ones. Other programs that read the layer show plain buildings.</source>
        <translation>Champ du fichier vecteur qui colore les bâtiments à la place d'une image&#xa0;: les nombres par la palette, les textes par des couleurs distinctes pour les 12 plus fréquents. D'autres programmes qui lisent la couche montrent des bâtiments unis.</translation>
    </message>
    <message id="MESS_USE_ONLY_COLORS">
        <source>%1 needs --image or --color-field</source>
        <translation>%1 demande --image ou --color-field</translation>
    </message>
    <message id="MESS_USE_NOT_FIELD">
        <source>%1 and --color-field cannot be combined</source>
        <translation>%1 et --color-field sont incompatibles</translation>
    </message>
    <message id="MESS_CLI_NO_COLOR_FIELD">
        <source>there is no field "%1" of numbers or texts; the fields are: %2</source>
        <translation>il n'y a pas de champ «&#xa0;%1&#xa0;» de nombres ou de textes&#xa0;; les champs sont&#xa0;: %2</translation>
    </message>
    <message id="MESS_FIELD_NO_VALUES">
        <source>the field "%1" has no values</source>
        <translation>le champ «&#xa0;%1&#xa0;» n'a pas de valeurs</translation>
    </message>
    <message id="MESS_FIELD_OTHERS">
        <source>others</source>
        <translation>autres</translation>
    </message>
    <message id="MESS_READING_FIELD">
        <source>Reading the values of the field...</source>
        <translation>Lecture des valeurs du champ...</translation>
    </message>
    <message id="MESS_COLOR_BY">
        <source>Color by</source>
        <translation>Colorer selon</translation>
    </message>
    <message id="MESS_COLOR_BY_RASTER">
        <source>raster</source>
        <translation>un raster</translation>
    </message>
    <message id="MESS_TIP_COLOR_BY">
        <source>What the colors come from: a raster, or a field of the buildings, whose numbers get the colors of the colormap and whose texts distinct colors; other programs that read the layer may show a field's buildings plain</source>
        <translation>Ce dont viennent les couleurs&#xa0;: un raster, ou un champ des bâtiments, dont les nombres ont les couleurs de la palette et les textes des couleurs distinctes&#xa0;; d'autres programmes qui lisent la couche peuvent montrer unis les bâtiments d'un champ</translation>
    </message>
    <message id="MESS_STRETCH_FIELD">
        <source>whole field</source>
        <translation>champ entier</translation>
    </message>
    <message id="MESS_STRETCH_FIELD_CMAP">
        <source>Stretch on field min/max</source>
        <translation>Étirer sur le min/max du champ</translation>
    </message>
</context>
</TS>
