<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Mapping of columns</name>
    <message id="MESS_PART_DEGREES">
        <source>Degrees</source>
        <translation>Degrees</translation>
    </message>
    <message id="MESS_PART_MINUTES">
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message id="MESS_PART_SECONDS">
        <source>Seconds</source>
        <translation>Seconds</translation>
    </message>
    <message id="MESS_PART_HEMISPHERE">
        <source>Hemisphere</source>
        <translation>Hemisphere</translation>
    </message>
    <message id="MESS_PART_TRANSMITTER">
        <source>Transmitter %1</source>
        <translation>Transmitter %1</translation>
    </message>
    <message id="MESS_AS_RECOGNISED">
        <source>(as recognised)</source>
        <translation>(as recognised)</translation>
    </message>
    <message id="MESS_ROLE_COLUMNS">
        <source>%1 columns</source>
        <translation>%1 columns</translation>
    </message>
    <message id="MESS_TABLE_COLUMN">
        <source>Column of the table</source>
        <translation>Column of the table</translation>
    </message>
    <message id="MESS_EVIDENCE">
        <source>Evidence</source>
        <translation>Evidence</translation>
    </message>
    <message id="MESS_SAMPLES">
        <source>Values</source>
        <translation>Values</translation>
    </message>
</context>
</TS>
