<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Reading aids</name>
    <message id="MESS_SCALE_M">
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message id="MESS_SCALE_KM">
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message id="MESS_NORTH_LETTER">
        <source>N</source>
        <translation>N</translation>
    </message>
    <message id="MESS_NORTH_UP">
        <source>North up</source>
        <translation>North up</translation>
    </message>
    <message id="MESS_TIP_NORTH_UP">
        <source>True north. A click, or the key N, turns it up.</source>
        <translation>True north. A click, or the key N, turns it up.</translation>
    </message>
    <message id="MESS_VIEW_ABOVE">
        <source>From above</source>
        <translation>From above</translation>
    </message>
    <message id="MESS_VIEW_WHOLE">
        <source>Whole scene</source>
        <translation>Whole scene</translation>
    </message>
    <message id="MESS_VIEW_FIRST">
        <source>First view</source>
        <translation>First view</translation>
    </message>
    <message id="MESS_SHOW_AIDS">
        <source>Scale, north and legend</source>
        <translation>Scale, north and legend</translation>
    </message>
</context>
</TS>
