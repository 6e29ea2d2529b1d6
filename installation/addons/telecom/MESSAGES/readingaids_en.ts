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
        <source>Scale, north, legend and coordinates</source>
        <translation>Scale, north, legend and coordinates</translation>
    </message>
    <message id="MESS_LEGEND_COUNTED">
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message id="MESS_LEGEND_SECTOR">
        <source>Sector %1</source>
        <translation>Sector %1</translation>
    </message>
    <message id="MESS_LEGEND_SECTORS">
        <source>Sectors %1</source>
        <translation>Sectors %1</translation>
    </message>
    <message id="MESS_LEGEND_ZONE">
        <source>Fresnel zone %1</source>
        <translation>Fresnel zone %1</translation>
    </message>
    <message id="MESS_LEGEND_PART_OF_ZONE">
        <source>%2 % of Fresnel zone %1</source>
        <translation>%2 % of Fresnel zone %1</translation>
    </message>
    <message id="MESS_LEGEND_IMAGE">
        <source>%1 m: %2</source>
        <translation>%1 m: %2</translation>
    </message>
    <message id="MESS_LEGEND_UNIT">
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="MESS_LEGEND_WALLS">
        <source>Walls: %1</source>
        <translation>Walls: %1</translation>
    </message>
    <message id="MESS_LEGEND_ROOFS">
        <source>Roofs: %1</source>
        <translation>Roofs: %1</translation>
    </message>
    <message id="MESS_LEGEND_LINK">
        <source>Line of sight</source>
        <translation>Line of sight</translation>
    </message>
    <message id="MESS_LEGEND_OTHERS">
        <source>other values</source>
        <translation>other values</translation>
    </message>
    <message id="MESS_LEGEND_NO_VALUE">
        <source>no value</source>
        <translation>no value</translation>
    </message>
    <message id="MESS_LEGEND_IMAGES">
        <source>Images by height</source>
        <translation>Images by height</translation>
    </message>
    <message id="MESS_LEGEND_MORE">
        <source>%1 more</source>
        <translation>%1 more</translation>
    </message>
    <message id="MESS_DEGREES_NORTH">
        <source>%1° N</source>
        <translation>%1° N</translation>
    </message>
    <message id="MESS_DEGREES_SOUTH">
        <source>%1° S</source>
        <translation>%1° S</translation>
    </message>
    <message id="MESS_DEGREES_EAST">
        <source>%1° E</source>
        <translation>%1° E</translation>
    </message>
    <message id="MESS_DEGREES_WEST">
        <source>%1° W</source>
        <translation>%1° W</translation>
    </message>
    <message id="MESS_GROUND_HEIGHT">
        <source>ground %1 m</source>
        <translation>ground %1 m</translation>
    </message>
    <message id="MESS_SELECTED_OBJECT">
        <source>Selected object</source>
        <translation>Selected object</translation>
    </message>
    <message id="MESS_CLOSE_CARD">
        <source>Close the card</source>
        <translation>Close the card</translation>
    </message>
    <message id="MESS_TIP_CLOSE_CARD">
        <source>Close the card (Esc)</source>
        <translation>Close the card (Esc)</translation>
    </message>
    <message id="MESS_OBJECT_INFORMATION">
        <source>Information about the object</source>
        <translation>Information about the object</translation>
    </message>
</context>
</TS>
