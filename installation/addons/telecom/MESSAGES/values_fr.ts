<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Values of buildings</name>
    <message id="MESS_OPT_VALUES">
        <source>Also write a list of all buildings, with the value of the image under each: a CSV file, or a GeoPackage with the outlines.</source>
        <translation>Écrire aussi la liste de tous les bâtiments, avec la valeur de l'image sous chacun&#xa0;: un fichier CSV, ou un GeoPackage avec les emprises.</translation>
    </message>
    <message id="MESS_OPT_ID_FIELD">
        <source>Field that names the buildings in this list (default: ID, osm_id, cleabs or gml_id, if there is one).</source>
        <translation>Champ qui nomme les bâtiments dans cette liste (par défaut&#xa0;: ID, osm_id, cleabs ou gml_id, s'il y en a un).</translation>
    </message>
    <message id="MESS_USE_VALUES_FILE">
        <source>the name of a file .csv or .gpkg</source>
        <translation>un nom de fichier .csv ou .gpkg</translation>
    </message>
    <message id="MESS_WRITING_VALUES">
        <source>Writing the values of the buildings...</source>
        <translation>Écriture des valeurs des bâtiments...</translation>
    </message>
    <message id="MESS_PERCENT">
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message id="MESS_VALUES_FROM">
        <source>%1 at %2 or more</source>
        <translation>%1 à %2 ou plus</translation>
    </message>
    <message id="MESS_VALUES_NONE">
        <source>no building has a value</source>
        <translation>aucun bâtiment n'a de valeur</translation>
    </message>
    <message id="MESS_VALUES_SPREAD">
        <source>buildings with a value: %1, from %2 to %3, median %4</source>
        <translation>bâtiments avec une valeur&#xa0;: %1, de %2 à %3, médiane %4</translation>
    </message>
    <message id="MESS_SAVE_VALUES">
        <source>Save values...</source>
        <translation>Enregistrer les valeurs...</translation>
    </message>
    <message id="MESS_TIP_SAVE_VALUES">
        <source>Save a list of all buildings with their values, as a GeoPackage with the outlines or as a CSV file</source>
        <translation>Enregistrer la liste de tous les bâtiments avec leurs valeurs, en GeoPackage avec les emprises ou en fichier CSV</translation>
    </message>
    <message id="MESS_QUEST_REPLACE">
        <source>%1 already exists. Replace it?</source>
        <translation>%1 existe déjà. Le remplacer&#xa0;?</translation>
    </message>
</context>
</TS>
