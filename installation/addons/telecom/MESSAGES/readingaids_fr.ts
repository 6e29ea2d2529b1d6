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
        <source>Scale, north, legend and coordinates</source>
        <translation>Échelle, nord, légende et coordonnées</translation>
    </message>
    <message id="MESS_LEGEND_COUNTED">
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message id="MESS_LEGEND_SECTOR">
        <source>Sector %1</source>
        <translation>Secteur %1</translation>
    </message>
    <message id="MESS_LEGEND_SECTORS">
        <source>Sectors %1</source>
        <translation>Secteurs %1</translation>
    </message>
    <message id="MESS_LEGEND_ZONE">
        <source>Fresnel zone %1</source>
        <translation>Zone de Fresnel %1</translation>
    </message>
    <message id="MESS_LEGEND_PART_OF_ZONE">
        <source>%2 % of Fresnel zone %1</source>
        <translation>%2&#xa0;% de la zone de Fresnel %1</translation>
    </message>
    <message id="MESS_LEGEND_IMAGE">
        <source>%1 m: %2</source>
        <translation>%1&#xa0;m&#xa0;: %2</translation>
    </message>
    <message id="MESS_LEGEND_UNIT">
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="MESS_LEGEND_WALLS">
        <source>Walls: %1</source>
        <translation>Murs&#xa0;: %1</translation>
    </message>
    <message id="MESS_LEGEND_ROOFS">
        <source>Roofs: %1</source>
        <translation>Toits&#xa0;: %1</translation>
    </message>
    <message id="MESS_LEGEND_LINK">
        <source>Line of sight</source>
        <translation>Ligne de visée</translation>
    </message>
    <message id="MESS_LEGEND_OTHERS">
        <source>other values</source>
        <translation>autres valeurs</translation>
    </message>
    <message id="MESS_LEGEND_NO_VALUE">
        <source>no value</source>
        <translation>sans valeur</translation>
    </message>
    <message id="MESS_LEGEND_IMAGES">
        <source>Images by height</source>
        <translation>Images par hauteur</translation>
    </message>
    <message id="MESS_LEGEND_MORE">
        <source>%1 more</source>
        <translation>%1 de plus</translation>
    </message>
    <message id="MESS_DEGREES_NORTH">
        <source>%1° N</source>
        <translation>%1°&#xa0;N</translation>
    </message>
    <message id="MESS_DEGREES_SOUTH">
        <source>%1° S</source>
        <translation>%1°&#xa0;S</translation>
    </message>
    <message id="MESS_DEGREES_EAST">
        <source>%1° E</source>
        <translation>%1°&#xa0;E</translation>
    </message>
    <message id="MESS_DEGREES_WEST">
        <source>%1° W</source>
        <translation>%1°&#xa0;O</translation>
    </message>
    <message id="MESS_GROUND_HEIGHT">
        <source>ground %1 m</source>
        <translation>sol à %1&#xa0;m</translation>
    </message>
    <message id="MESS_SELECTED_OBJECT">
        <source>Selected object</source>
        <translation>Objet sélectionné</translation>
    </message>
    <message id="MESS_CLOSE_CARD">
        <source>Close the card</source>
        <translation>Fermer la fiche</translation>
    </message>
    <message id="MESS_TIP_CLOSE_CARD">
        <source>Close the card (Esc)</source>
        <translation>Fermer la fiche (Échap)</translation>
    </message>
    <message id="MESS_OBJECT_INFORMATION">
        <source>Information about the object</source>
        <translation>Informations sur l'objet</translation>
    </message>
</context>
</TS>
