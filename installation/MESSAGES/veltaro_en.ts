<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>General</name>
    <message id="MESS_ERR_NOM_FICHIER">
        <source>Invalid file name</source>
        <translation>Invalid file name</translation>
    </message>
    <message id="MESS_OUV_PRJ_IMP">
        <source>Cannot open project</source>
        <translation>Cannot open project</translation>
    </message>
</context>
</TS>
