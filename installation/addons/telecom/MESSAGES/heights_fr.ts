<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Heights</name>
    <message id="MESS_HEIGHT_LIKELY">
        <source>The field "%1" probably has the heights.</source>
        <translation>Le champ «&#xa0;%1&#xa0;» contient probablement les hauteurs.</translation>
    </message>
    <message id="MESS_HEIGHT_MISSING">
        <source>Choose the field with the heights.</source>
        <translation>Choisissez le champ des hauteurs.</translation>
    </message>
</context>
</TS>
