<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Colors of buildings</name>
    <message id="MESS_BAND">
        <source>Band</source>
        <translation>Band</translation>
    </message>
    <message id="MESS_TIP_BAND">
        <source>Band of the image whose values color the buildings</source>
        <translation>Band of the image whose values color the buildings</translation>
    </message>
    <message id="MESS_BAND_HINT">
        <source>Other programs that read the layer may take band 1.</source>
        <translation>Other programs that read the layer may take band 1.</translation>
    </message>
    <message id="MESS_NEED_VALUES">
        <source>Choose an image of values, not of colors.</source>
        <translation>Choose an image of values, not of colors.</translation>
    </message>
    <message id="MESS_OPT_BAND">
        <source>Band of the raster, from 1 (default 1). Other programs that read the layer may take band 1 in any case.</source>
        <translation>Band of the raster, from 1 (default 1). Other programs that read the layer may take band 1 in any case.</translation>
    </message>
    <message id="MESS_USE_BAND">
        <source>the number of a band, from 1</source>
        <translation>the number of a band, from 1</translation>
    </message>
    <message id="MESS_CLI_OTHER_BAND">
        <source>band %1 of the raster colors the buildings; other programs that read the layer may take band 1</source>
        <translation>band %1 of the raster colors the buildings; other programs that read the layer may take band 1</translation>
    </message>
    <message id="MESS_CLI_BANDS">
        <source>band 1 of the raster colors the buildings; --band chooses another one: %1</source>
        <translation>band 1 of the raster colors the buildings; --band chooses another one: %1</translation>
    </message>
    <message id="MESS_TIP_STRETCH_OVER">
        <source>Values that the colors are stretched over: all of the image, two percentiles of them, those under the buildings, a range, or all of several images</source>
        <translation>Values that the colors are stretched over: all of the image, two percentiles of them, those under the buildings, a range, or all of several images</translation>
    </message>
    <message id="MESS_STRETCH_RASTER">
        <source>whole image</source>
        <translation>whole image</translation>
    </message>
    <message id="MESS_STRETCH_PERCENTILE">
        <source>percentiles</source>
        <translation>percentiles</translation>
    </message>
    <message id="MESS_STRETCH_BUILDINGS">
        <source>buildings</source>
        <translation>buildings</translation>
    </message>
    <message id="MESS_STRETCH_RANGE">
        <source>range</source>
        <translation>range</translation>
    </message>
    <message id="MESS_STRETCH_SHARED">
        <source>several images</source>
        <translation>several images</translation>
    </message>
    <message id="MESS_TIP_STRETCH_LOW">
        <source>Percentile of the values with the first color</source>
        <translation>Percentile of the values with the first color</translation>
    </message>
    <message id="MESS_TIP_STRETCH_HIGH">
        <source>Percentile of the values with the last color</source>
        <translation>Percentile of the values with the last color</translation>
    </message>
    <message id="MESS_TIP_STRETCH_MIN">
        <source>Value with the first color</source>
        <translation>Value with the first color</translation>
    </message>
    <message id="MESS_TIP_STRETCH_MAX">
        <source>Value with the last color</source>
        <translation>Value with the last color</translation>
    </message>
    <message id="MESS_TIP_STRETCH_OTHERS">
        <source>Other images whose layers get the same colors for the same values</source>
        <translation>Other images whose layers get the same colors for the same values</translation>
    </message>
    <message id="MESS_SELECT_STRETCH_OTHERS">
        <source>Select the other images</source>
        <translation>Select the other images</translation>
    </message>
    <message id="MESS_STRETCH_NO_RANGE">
        <source>The range of the colors needs two numbers, the lower one first.</source>
        <translation>The range of the colors needs two numbers, the lower one first.</translation>
    </message>
    <message id="MESS_STRETCH_NO_OTHERS">
        <source>Choose the other images.</source>
        <translation>Choose the other images.</translation>
    </message>
    <message id="MESS_STRETCH_NO_VALUES">
        <source>None of the pixels has a value</source>
        <translation>None of the pixels has a value</translation>
    </message>
    <message id="MESS_OPT_STRETCH">
        <source>Values that the color map is stretched over: all of the image (raster, the default), percentiles of them, those under the buildings, a stated range, or all of the image and of others (with, may be given several times).</source>
        <translation>Values that the color map is stretched over: all of the image (raster, the default), percentiles of them, those under the buildings, a stated range, or all of the image and of others (with, may be given several times).</translation>
    </message>
    <message id="MESS_USE_BOTH_STRETCH">
        <source>--absolute and --stretch cannot be combined</source>
        <translation>--absolute and --stretch cannot be combined</translation>
    </message>
    <message id="MESS_OPT_COLOR_FIELD">
        <source>Field of the vector file that colors the buildings in place of an image: numbers through the color map, texts by distinct colors for the 12 most frequent ones. Other programs that read the layer show plain buildings.</source>
        <translation>Field of the vector file that colors the buildings in place of an image: numbers through the color map, texts by distinct colors for the 12 most frequent ones. Other programs that read the layer show plain buildings.</translation>
    </message>
    <message id="MESS_USE_ONLY_COLORS">
        <source>%1 needs --image or --color-field</source>
        <translation>%1 needs --image or --color-field</translation>
    </message>
    <message id="MESS_USE_NOT_FIELD">
        <source>%1 and --color-field cannot be combined</source>
        <translation>%1 and --color-field cannot be combined</translation>
    </message>
    <message id="MESS_CLI_NO_COLOR_FIELD">
        <source>there is no field "%1" of numbers or texts; the fields are: %2</source>
        <translation>there is no field "%1" of numbers or texts; the fields are: %2</translation>
    </message>
    <message id="MESS_FIELD_NO_VALUES">
        <source>the field "%1" has no values</source>
        <translation>the field "%1" has no values</translation>
    </message>
    <message id="MESS_FIELD_OTHERS">
        <source>others</source>
        <translation>others</translation>
    </message>
    <message id="MESS_READING_FIELD">
        <source>Reading the values of the field...</source>
        <translation>Reading the values of the field...</translation>
    </message>
    <message id="MESS_COLOR_BY">
        <source>Color by</source>
        <translation>Color by</translation>
    </message>
    <message id="MESS_COLOR_BY_RASTER">
        <source>raster</source>
        <translation>raster</translation>
    </message>
    <message id="MESS_TIP_COLOR_BY">
        <source>What the colors come from: a raster, or a field of the buildings, whose numbers get the colors of the colormap and whose texts distinct colors; other programs that read the layer may show a field's buildings plain</source>
        <translation>What the colors come from: a raster, or a field of the buildings, whose numbers get the colors of the colormap and whose texts distinct colors; other programs that read the layer may show a field's buildings plain</translation>
    </message>
    <message id="MESS_STRETCH_FIELD">
        <source>whole field</source>
        <translation>whole field</translation>
    </message>
    <message id="MESS_STRETCH_FIELD_CMAP">
        <source>Stretch on field min/max</source>
        <translation>Stretch on field min/max</translation>
    </message>
</context>
</TS>
