<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Values of buildings</name>
    <message id="MESS_OPT_VALUES">
        <source>Also write a list of all buildings, with the value of the image under each: a CSV file, or a GeoPackage with the outlines.</source>
        <translation>Also write a list of all buildings, with the value of the image under each: a CSV file, or a GeoPackage with the outlines.</translation>
    </message>
    <message id="MESS_OPT_ID_FIELD">
        <source>Field that names the buildings in this list (default: ID, osm_id, cleabs or gml_id, if there is one).</source>
        <translation>Field that names the buildings in this list (default: ID, osm_id, cleabs or gml_id, if there is one).</translation>
    </message>
    <message id="MESS_USE_VALUES_FILE">
        <source>the name of a file .csv or .gpkg</source>
        <translation>the name of a file .csv or .gpkg</translation>
    </message>
    <message id="MESS_WRITING_VALUES">
        <source>Writing the values of the buildings...</source>
        <translation>Writing the values of the buildings...</translation>
    </message>
    <message id="MESS_PERCENT">
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message id="MESS_VALUES_FROM">
        <source>%1 at %2 or more</source>
        <translation>%1 at %2 or more</translation>
    </message>
    <message id="MESS_VALUES_NONE">
        <source>no building has a value</source>
        <translation>no building has a value</translation>
    </message>
    <message id="MESS_VALUES_SPREAD">
        <source>buildings with a value: %1, from %2 to %3, median %4</source>
        <translation>buildings with a value: %1, from %2 to %3, median %4</translation>
    </message>
    <message id="MESS_SAVE_VALUES">
        <source>Save values...</source>
        <translation>Save values...</translation>
    </message>
    <message id="MESS_TIP_SAVE_VALUES">
        <source>Save a list of all buildings with their values, as a GeoPackage with the outlines or as a CSV file</source>
        <translation>Save a list of all buildings with their values, as a GeoPackage with the outlines or as a CSV file</translation>
    </message>
    <message id="MESS_QUEST_REPLACE">
        <source>%1 already exists. Replace it?</source>
        <translation>%1 already exists. Replace it?</translation>
    </message>
</context>
</TS>
