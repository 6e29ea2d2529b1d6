<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Mapping of columns</name>
    <message id="MESS_PART_DEGREES">
        <source>Degrees</source>
        <translation>Degrés</translation>
    </message>
    <message id="MESS_PART_MINUTES">
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message id="MESS_PART_SECONDS">
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message id="MESS_PART_HEMISPHERE">
        <source>Hemisphere</source>
        <translation>Hémisphère</translation>
    </message>
    <message id="MESS_PART_TRANSMITTER">
        <source>Transmitter %1</source>
        <translation>Émetteur %1</translation>
    </message>
    <message id="MESS_AS_RECOGNISED">
        <source>(as recognised)</source>
        <translation>(comme reconnu)</translation>
    </message>
    <message id="MESS_ROLE_COLUMNS">
        <source>%1 columns</source>
        <translation>%1 colonnes</translation>
    </message>
    <message id="MESS_TABLE_COLUMN">
        <source>Column of the table</source>
        <translation>Colonne du tableau</translation>
    </message>
    <message id="MESS_EVIDENCE">
        <source>Evidence</source>
        <translation>Indices</translation>
    </message>
    <message id="MESS_SAMPLES">
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
</context>
</TS>
