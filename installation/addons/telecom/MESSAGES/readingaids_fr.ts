<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Reading aids</name>
    <message id="MESS_SCALE_M">
        <source>%1 m</source>
        <translation>%1&#xa0;m</translation>
    </message>
    <message id="MESS_SCALE_KM">
        <source>%1 km</source>
        <translation>%1&#xa0;km</translation>
    </message>
    <message id="MESS_NORTH_LETTER">
        <source>N</source>
        <translation>N</translation>
    </message>
    <message id="MESS_NORTH_UP">
        <source>North up</source>
        <translation>Nord en haut</translation>
    </message>
    <message id="MESS_TIP_NORTH_UP">
        <source>True north. A click, or the key N, turns it up.</source>
        <translation>Nord géographique. Un clic, ou la touche N, le met en haut.</translation>
    </message>
    <message id="MESS_VIEW_ABOVE">
        <source>From above</source>
        <translation>Vue de dessus</translation>
    </message>
    <message id="MESS_VIEW_WHOLE">
        <source>Whole scene</source>
        <translation>Toute la scène</translation>
    </message>
    <message id="MESS_VIEW_FIRST">
        <source>First view</source>
        <translation>Première vue</translation>
    </message>
    <message id="MESS_SHOW_AIDS">
        <source>Scale, north and legend</source>
        <translation>Échelle, nord et légende</translation>
    </message>
</context>
</TS>
