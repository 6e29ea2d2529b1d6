<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Command line</name>
    <message id="MESS_CLI_WHY">
        <source>why</source>
        <translation>raison</translation>
    </message>
</context>
</TS>
