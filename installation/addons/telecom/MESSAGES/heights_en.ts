<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Heights</name>
    <message id="MESS_HEIGHT_LIKELY">
        <source>The field "%1" probably has the heights.</source>
        <translation>The field "%1" probably has the heights.</translation>
    </message>
    <message id="MESS_HEIGHT_MISSING">
        <source>Choose the field with the heights.</source>
        <translation>Choose the field with the heights.</translation>
    </message>
</context>
</TS>
