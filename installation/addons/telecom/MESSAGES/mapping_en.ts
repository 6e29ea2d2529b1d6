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
        <translation>(as recognized)</translation>
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
    <message id="MESS_SHEET">
        <source>S&amp;heet</source>
        <translation>S&amp;heet</translation>
    </message>
    <message id="MESS_TIP_SHEET">
        <source>The sheet of the workbook that is read</source>
        <translation>The sheet of the workbook that is read</translation>
    </message>
    <message id="MESS_HEADER_ROW">
        <source>Hea&amp;der row</source>
        <translation>Hea&amp;der row</translation>
    </message>
    <message id="MESS_TIP_HEADER_ROW">
        <source>The first row with the names of the columns; a click on the number of a row below chooses it as well</source>
        <translation>The first row with the names of the columns; a click on the number of a row below chooses it as well</translation>
    </message>
    <message id="MESS_NO_HEADER">
        <source>none</source>
        <translation>none</translation>
    </message>
    <message id="MESS_HEADER_ROWS">
        <source>N&amp;umber of rows</source>
        <translation>N&amp;umber of rows</translation>
    </message>
    <message id="MESS_TIP_HEADER_ROWS">
        <source>Rows whose texts together are the names of the columns, such as groups of columns above their names</source>
        <translation>Rows whose texts together are the names of the columns, such as groups of columns above their names</translation>
    </message>
    <message id="MESS_ROLES">
        <source>Meanings of the columns</source>
        <translation>Meanings of the columns</translation>
    </message>
    <message id="MESS_FIRST_ROWS">
        <source>F&amp;irst rows of the table</source>
        <translation>F&amp;irst rows of the table</translation>
    </message>
    <message id="MESS_TIP_ROW_NUMBER">
        <source>A click makes this the row with the names of the columns</source>
        <translation>A click makes this the row with the names of the columns</translation>
    </message>
    <message id="MESS_SAVE_MAPPING">
        <source>Sa&amp;ve beside the table</source>
        <translation>Sa&amp;ve beside the table</translation>
    </message>
    <message id="MESS_TIP_SAVE_MAPPING">
        <source>Write your choices to a file beside the table, so that every program and every user of the table has them</source>
        <translation>Write your choices to a file beside the table, so that every program and every user of the table has them</translation>
    </message>
    <message id="MESS_RESET_MAPPING">
        <source>Reset to what was reco&amp;gnised</source>
        <translation>Reset to what was reco&amp;gnised</translation>
    </message>
    <message id="MESS_TIP_RESET_MAPPING">
        <source>Forget all choices for this table</source>
        <translation>Forget all choices for this table</translation>
    </message>
    <message id="MESS_MAPPING_OF_USER">
        <source>Your choices are kept in %1, which the layer names.</source>
        <translation>Your choices are kept in %1, which the layer names.</translation>
    </message>
    <message id="MESS_MAPPING_BESIDE">
        <source>The choices in %1 are used.</source>
        <translation>The choices in %1 are used.</translation>
    </message>
    <message id="MESS_CANT_SAVE_MAPPING">
        <source>The choices for the columns cannot be saved</source>
        <translation>The choices for the columns cannot be saved</translation>
    </message>
    <message id="MESS_UNDO">
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message id="MESS_AXES_SWAPPED">
        <source>The coordinates are exchanged.</source>
        <translation>The coordinates are exchanged.</translation>
    </message>
    <message id="MESS_SYSTEM_STATED">
        <source>The coordinate system of the table is set to %1.</source>
        <translation>The coordinate system of the table is set to %1.</translation>
    </message>
    <message id="MESS_SECTORS_FROM">
        <source>The transmitters come from %1.</source>
        <translation>The transmitters come from %1.</translation>
    </message>
    <message id="MESS_END_SITES_FROM">
        <source>The sites at the ends come from %1.</source>
        <translation>The sites at the ends come from %1.</translation>
    </message>
    <message id="MESS_SWAP_AXES">
        <source>Exchange the coordinates</source>
        <translation>Exchange the coordinates</translation>
    </message>
    <message id="MESS_USE_SYSTEM">
        <source>Use %1</source>
        <translation>Use %1</translation>
    </message>
    <message id="MESS_NO_TRANSMITTERS">
        <source>The table has no transmitters.</source>
        <translation>The table has no transmitters.</translation>
    </message>
    <message id="MESS_CHOOSE_SECTORS">
        <source>Choose the table of sectors...</source>
        <translation>Choose the table of sectors...</translation>
    </message>
    <message id="MESS_NAMED_ENDS">
        <source>The ends of the links are only named.</source>
        <translation>The ends of the links are only named.</translation>
    </message>
    <message id="MESS_CHOOSE_END_SITES">
        <source>Choose the table of sites...</source>
        <translation>Choose the table of sites...</translation>
    </message>
    <message id="MESS_TABLES">
        <source>Tables</source>
        <translation>Tables</translation>
    </message>
    <message id="MESS_ONE_ROW">
        <source>1 row</source>
        <translation>1 row</translation>
    </message>
    <message id="MESS_N_ROWS">
        <source>%1 rows</source>
        <translation>%1 rows</translation>
    </message>
    <message id="MESS_THE_LONGITUDE">
        <source>the longitude</source>
        <translation>the longitude</translation>
    </message>
    <message id="MESS_THE_LATITUDE">
        <source>the latitude</source>
        <translation>the latitude</translation>
    </message>
    <message id="MESS_THE_EASTING">
        <source>the easting</source>
        <translation>the easting</translation>
    </message>
    <message id="MESS_THE_NORTHING">
        <source>the northing</source>
        <translation>the northing</translation>
    </message>
    <message id="MESS_THE_COORDINATES">
        <source>the coordinates</source>
        <translation>the coordinates</translation>
    </message>
    <message id="MESS_BOTH_COORDINATES">
        <source>both coordinates</source>
        <translation>both coordinates</translation>
    </message>
    <message id="MESS_OF_ROWS">
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message id="MESS_CORRECT_ROWS">
        <source>Correct the positions of %1</source>
        <translation>Correct the positions of %1</translation>
    </message>
    <message id="MESS_EXCHANGE">
        <source>Exchange %1</source>
        <translation>Exchange %1</translation>
    </message>
    <message id="MESS_TURN_SIGN">
        <source>Turn the sign of %1</source>
        <translation>Turn the sign of %1</translation>
    </message>
    <message id="MESS_MULTIPLY">
        <source>Multiply %1 by %2</source>
        <translation>Multiply %1 by %2</translation>
    </message>
    <message id="MESS_EXCHANGED">
        <source>Exchanged: %1</source>
        <translation>Exchanged: %1</translation>
    </message>
    <message id="MESS_SIGN_TURNED">
        <source>Sign turned: %1</source>
        <translation>Sign turned: %1</translation>
    </message>
    <message id="MESS_MULTIPLIED">
        <source>Multiplied by %2: %1</source>
        <translation>Multiplied by %2: %1</translation>
    </message>
</context>
</TS>
