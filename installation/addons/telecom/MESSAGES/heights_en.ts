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
    <message id="MESS_OPT_HEIGHT_FACTOR">
        <source>Factor of the numbers in the field of heights</source>
        <translation>Factor of the numbers in the field of heights</translation>
    </message>
    <message id="MESS_OPT_LEVEL_HEIGHT">
        <source>Height of a level in metres</source>
        <translation>Height of a level in meters</translation>
    </message>
    <message id="MESS_OPT_DEFAULT_HEIGHT">
        <source>Height in metres of buildings that have none in a field; without it they are left out</source>
        <translation>Height in meters of buildings that have none in a field; without it they are left out</translation>
    </message>
    <message id="MESS_OPT_HEIGHT_UNIT">
        <source>Unit of the numbers in the field of heights (default: levels or feet if its name says so, else metres). A unit in a text goes first.</source>
        <translation>Unit of the numbers in the field of heights (default: levels or feet if its name says so, else meters). A unit in a text goes first.</translation>
    </message>
    <message id="MESS_OPT_ELSE_FIELD">
        <source>Field with the height of buildings that have none in the field of heights.</source>
        <translation>Field with the height of buildings that have none in the field of heights.</translation>
    </message>
    <message id="MESS_OPT_ELSE_UNIT">
        <source>Unit of the numbers in that field (default as for --height-unit).</source>
        <translation>Unit of the numbers in that field (default as for --height-unit).</translation>
    </message>
    <message id="MESS_OPT_HEIGHT_REFERENCE">
        <source>Level from which the values of both fields are measured: the ground (default) or the sea.</source>
        <translation>Level from which the values of both fields are measured: the ground (default) or the sea.</translation>
    </message>
    <message id="MESS_OPT_BASE">
        <source>Ground height of a building: mean (default), minimum or maximum of the terrain under its vertices, a field (--base-field), or zero.</source>
        <translation>Ground height of a building: mean (default), minimum or maximum of the terrain under its vertices, a field (--base-field), or zero.</translation>
    </message>
    <message id="MESS_OPT_BASE_FIELD">
        <source>Field with the ground height in metres above sea level.</source>
        <translation>Field with the ground height in meters above sea level.</translation>
    </message>
    <message id="MESS_OPT_BOTTOM_FIELD">
        <source>Field with the height in metres of the underside above the ground.</source>
        <translation>Field with the height in meters of the underside above the ground.</translation>
    </message>
    <message id="MESS_OPT_WHERE">
        <source>SQL condition for the features that are buildings, such as "USAGE = 'home'" (default: all).</source>
        <translation>SQL condition for the features that are buildings, such as "USAGE = 'home'" (default: all).</translation>
    </message>
    <message id="MESS_USE_NEEDS_OPTION">
        <source>--%1 needs --%2</source>
        <translation>--%1 needs --%2</translation>
    </message>
    <message id="MESS_CLI_TAKEN_AS_LEVELS">
        <source>The values of "%1" are taken as levels of %2 m; %3 states another unit.</source>
        <translation>The values of "%1" are taken as levels of %2 m; %3 states another unit.</translation>
    </message>
    <message id="MESS_CLI_TAKEN_AS_FEET">
        <source>The values of "%1" are taken as feet; %2 states another unit.</source>
        <translation>The values of "%1" are taken as feet; %2 states another unit.</translation>
    </message>
    <message id="MESS_ERR_WHERE">
        <source>this condition cannot be used</source>
        <translation>this condition cannot be used</translation>
    </message>
    <message id="MESS_ERR_WHERE_EMPTY">
        <source>no feature meets this condition</source>
        <translation>no feature meets this condition</translation>
    </message>
    <message id="MESS_HEIGHT_UNIT">
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message id="MESS_UNIT_METRES">
        <source>metres</source>
        <translation>meters</translation>
    </message>
    <message id="MESS_UNIT_FEET">
        <source>feet</source>
        <translation>feet</translation>
    </message>
    <message id="MESS_UNIT_LEVELS">
        <source>levels</source>
        <translation>levels</translation>
    </message>
    <message id="MESS_TIP_HEIGHT_UNIT">
        <source>Unit of the numbers in the field of heights; a unit in a text goes first</source>
        <translation>Unit of the numbers in the field of heights; a unit in a text goes first</translation>
    </message>
    <message id="MESS_TIP_HEIGHT_FACTOR">
        <source>Factor of the numbers in the field of heights</source>
        <translation>Factor of the numbers in the field of heights</translation>
    </message>
    <message id="MESS_LEVEL_HEIGHT">
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message id="MESS_TIP_LEVEL_HEIGHT">
        <source>Height of a level, for heights that are numbers of levels</source>
        <translation>Height of a level, for heights that are numbers of levels</translation>
    </message>
    <message id="MESS_ELSE_FROM">
        <source>Else from</source>
        <translation>Else from</translation>
    </message>
    <message id="MESS_TIP_ELSE_FROM">
        <source>Field with the height of buildings that have none in the height field</source>
        <translation>Field with the height of buildings that have none in the height field</translation>
    </message>
    <message id="MESS_TIP_ELSE_UNIT">
        <source>Unit of the numbers in the second field</source>
        <translation>Unit of the numbers in the second field</translation>
    </message>
    <message id="MESS_WITHOUT_HEIGHT">
        <source>Without height</source>
        <translation>Without height</translation>
    </message>
    <message id="MESS_TIP_WITHOUT_HEIGHT">
        <source>Height of buildings that have none in a field; without it they are left out</source>
        <translation>Height of buildings that have none in a field; without it they are left out</translation>
    </message>
    <message id="MESS_LEAVE_OUT">
        <source>leave out</source>
        <translation>leave out</translation>
    </message>
    <message id="MESS_VALUES_ABOVE">
        <source>Values above</source>
        <translation>Values above</translation>
    </message>
    <message id="MESS_TIP_VALUES_ABOVE">
        <source>Level from which the heights are measured</source>
        <translation>Level from which the heights are measured</translation>
    </message>
    <message id="MESS_ABOVE_GROUND">
        <source>ground</source>
        <translation>ground</translation>
    </message>
    <message id="MESS_ABOVE_SEA">
        <source>sea</source>
        <translation>sea</translation>
    </message>
    <message id="MESS_BASE">
        <source>Base</source>
        <translation>Base</translation>
    </message>
    <message id="MESS_TIP_BASE">
        <source>Ground height of a building: from the terrain under its vertices, from a field, or 0</source>
        <translation>Ground height of a building: from the terrain under its vertices, from a field, or 0</translation>
    </message>
    <message id="MESS_BASE_MEAN">
        <source>mean</source>
        <translation>mean</translation>
    </message>
    <message id="MESS_BASE_MINIMUM">
        <source>minimum</source>
        <translation>minimum</translation>
    </message>
    <message id="MESS_BASE_MAXIMUM">
        <source>maximum</source>
        <translation>maximum</translation>
    </message>
    <message id="MESS_BASE_FIELD">
        <source>field</source>
        <translation>field</translation>
    </message>
    <message id="MESS_BASE_ZERO">
        <source>0</source>
        <translation>0</translation>
    </message>
    <message id="MESS_TIP_BASE_FIELD">
        <source>Field with the ground height in metres above sea level</source>
        <translation>Field with the ground height in meters above sea level</translation>
    </message>
    <message id="MESS_UNDERSIDE">
        <source>Underside</source>
        <translation>Underside</translation>
    </message>
    <message id="MESS_TIP_UNDERSIDE">
        <source>Field with the height of the underside above the ground, in metres</source>
        <translation>Field with the height of the underside above the ground, in meters</translation>
    </message>
    <message id="MESS_ONLY">
        <source>Only</source>
        <translation>Only</translation>
    </message>
    <message id="MESS_TIP_ONLY">
        <source>SQL condition for the features that are buildings; empty for all</source>
        <translation>SQL condition for the features that are buildings; empty for all</translation>
    </message>
    <message id="MESS_NO_FIELD">
        <source>none</source>
        <translation>none</translation>
    </message>
    <message id="MESS_HEIGHT_LIKELY_ELSE">
        <source>The field "%1" probably has the heights: choose it at "%2".</source>
        <translation>The field "%1" probably has the heights: choose it at "%2".</translation>
    </message>
    <message id="MESS_BASE_FIELD_MISSING">
        <source>Choose the field with the ground height.</source>
        <translation>Choose the field with the ground height.</translation>
    </message>
    <message id="MESS_CLI_COUNTING_BUILDINGS">
        <source>Counting the buildings</source>
        <translation>Counting the buildings</translation>
    </message>
    <message id="MESS_CLI_NO_BUILDING">
        <source>no building can be drawn: %1</source>
        <translation>no building can be drawn: %1</translation>
    </message>
    <message id="MESS_COUNT_ELSE_FIELD">
        <source>second field: %1</source>
        <translation>second field: %1</translation>
    </message>
    <message id="MESS_COUNT_DEFAULT_HEIGHT">
        <source>default height: %1</source>
        <translation>default height: %1</translation>
    </message>
    <message id="MESS_COUNT_TERRAIN_BASE">
        <source>on the terrain: %1</source>
        <translation>on the terrain: %1</translation>
    </message>
    <message id="MESS_COUNT_LOWEST_GROUND">
        <source>on the lowest ground: %1</source>
        <translation>on the lowest ground: %1</translation>
    </message>
    <message id="MESS_COUNT_ZERO_GROUND">
        <source>at height 0: %1</source>
        <translation>at height 0: %1</translation>
    </message>
    <message id="MESS_COUNT_RAISED_BOTTOM">
        <source>underside ignored: %1</source>
        <translation>underside ignored: %1</translation>
    </message>
    <message id="MESS_COUNT_NO_VALUE">
        <source>without a value: %1</source>
        <translation>without a value: %1</translation>
    </message>
    <message id="MESS_COUNT_TRANSPARENT">
        <source>transparent: %1</source>
        <translation>transparent: %1</translation>
    </message>
    <message id="MESS_COUNTING_BUILDINGS">
        <source>Counting the buildings...</source>
        <translation>Counting the buildings...</translation>
    </message>
    <message id="MESS_COUNTING_STOPPED">
        <source>Counting was stopped: refresh the view to make the layer.</source>
        <translation>Counting was stopped: refresh the view to make the layer.</translation>
    </message>
    <message id="MESS_ADVICE_ELSE">
        <source>%1 of %2 buildings have no height in "%3"; "%4" would give it for %5 of them</source>
        <translation>%1 of %2 buildings have no height in "%3"; "%4" would give it for %5 of them</translation>
    </message>
    <message id="MESS_ADVICE_SEA">
        <source>The values of "%1" are probably heights above sea level</source>
        <translation>The values of "%1" are probably heights above sea level</translation>
    </message>
    <message id="MESS_ALL_DRAWN">
        <source>Buildings: %1, none left out</source>
        <translation>Buildings: %1, none left out</translation>
    </message>
    <message id="MESS_USE_SEA">
        <source>Values above sea</source>
        <translation>Values above sea</translation>
    </message>
    <message id="MESS_USE_FIELD">
        <source>Use "%1"</source>
        <translation>Use "%1"</translation>
    </message>
    <message id="MESS_TWO_REASONS">
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
</context>
</TS>
