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
</context>
</TS>
