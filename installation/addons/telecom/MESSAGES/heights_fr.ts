<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Heights</name>
    <message id="MESS_HEIGHT_LIKELY">
        <source>The field "%1" probably has the heights.</source>
        <translation>Le champ «&#xa0;%1&#xa0;» contient probablement les hauteurs.</translation>
    </message>
    <message id="MESS_HEIGHT_MISSING">
        <source>Choose the field with the heights.</source>
        <translation>Choisissez le champ des hauteurs.</translation>
    </message>
    <message id="MESS_OPT_HEIGHT_FACTOR">
        <source>Factor of the numbers in the field of heights</source>
        <translation>Facteur des nombres du champ des hauteurs</translation>
    </message>
    <message id="MESS_OPT_LEVEL_HEIGHT">
        <source>Height of a level in metres</source>
        <translation>Hauteur d'un niveau en mètres</translation>
    </message>
    <message id="MESS_OPT_DEFAULT_HEIGHT">
        <source>Height in metres of buildings that have none in a field; without it they are left out</source>
        <translation>Hauteur en mètres des bâtiments dont aucun champ n'indique la hauteur&#xa0;; sans elle, ils sont omis</translation>
    </message>
    <message id="MESS_OPT_HEIGHT_UNIT">
        <source>Unit of the numbers in the field of heights (default: levels or feet if its name says so, else metres). A unit in a text goes first.</source>
        <translation>Unité des nombres du champ des hauteurs (par défaut&#xa0;: niveaux ou pieds si son nom l'indique, sinon mètres). L'unité écrite dans un texte l'emporte.</translation>
    </message>
    <message id="MESS_OPT_ELSE_FIELD">
        <source>Field with the height of buildings that have none in the field of heights.</source>
        <translation>Champ de la hauteur des bâtiments qui n'en ont pas dans le champ des hauteurs.</translation>
    </message>
    <message id="MESS_OPT_ELSE_UNIT">
        <source>Unit of the numbers in that field (default as for --height-unit).</source>
        <translation>Unité des nombres de ce champ (par défaut comme pour --height-unit).</translation>
    </message>
    <message id="MESS_OPT_HEIGHT_REFERENCE">
        <source>Level from which the values of both fields are measured: the ground (default) or the sea.</source>
        <translation>Niveau à partir duquel les valeurs des deux champs sont mesurées&#xa0;: le sol (ground, par défaut) ou la mer (sea).</translation>
    </message>
    <message id="MESS_OPT_BASE">
        <source>Ground height of a building: mean (default), minimum or maximum of the terrain under its vertices, a field (--base-field), or zero.</source>
        <translation>Altitude de la base d'un bâtiment&#xa0;: moyenne (mean, par défaut), minimum ou maximum du terrain sous ses sommets, champ (field, avec --base-field) ou zéro.</translation>
    </message>
    <message id="MESS_OPT_BASE_FIELD">
        <source>Field with the ground height in metres above sea level.</source>
        <translation>Champ de l'altitude du sol en mètres.</translation>
    </message>
    <message id="MESS_OPT_BOTTOM_FIELD">
        <source>Field with the height in metres of the underside above the ground.</source>
        <translation>Champ de la hauteur de la sous-face au-dessus du sol, en mètres.</translation>
    </message>
    <message id="MESS_OPT_WHERE">
        <source>SQL condition for the features that are buildings, such as "USAGE = 'home'" (default: all).</source>
        <translation>Condition SQL des entités qui sont des bâtiments, par exemple "USAGE = 'home'" (par défaut&#xa0;: toutes).</translation>
    </message>
    <message id="MESS_USE_NEEDS_OPTION">
        <source>--%1 needs --%2</source>
        <translation>--%1 ne va qu'avec --%2</translation>
    </message>
    <message id="MESS_CLI_TAKEN_AS_LEVELS">
        <source>The values of "%1" are taken as levels of %2 m; %3 states another unit.</source>
        <translation>Les valeurs de «&#xa0;%1&#xa0;» sont prises pour des niveaux de %2 m&#xa0;; %3 indique une autre unité.</translation>
    </message>
    <message id="MESS_CLI_TAKEN_AS_FEET">
        <source>The values of "%1" are taken as feet; %2 states another unit.</source>
        <translation>Les valeurs de «&#xa0;%1&#xa0;» sont prises pour des pieds&#xa0;; %2 indique une autre unité.</translation>
    </message>
    <message id="MESS_ERR_WHERE">
        <source>this condition cannot be used</source>
        <translation>cette condition est inutilisable</translation>
    </message>
    <message id="MESS_ERR_WHERE_EMPTY">
        <source>no feature meets this condition</source>
        <translation>aucune entité ne remplit cette condition</translation>
    </message>
    <message id="MESS_HEIGHT_UNIT">
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message id="MESS_UNIT_METRES">
        <source>metres</source>
        <translation>mètres</translation>
    </message>
    <message id="MESS_UNIT_FEET">
        <source>feet</source>
        <translation>pieds</translation>
    </message>
    <message id="MESS_UNIT_LEVELS">
        <source>levels</source>
        <translation>niveaux</translation>
    </message>
    <message id="MESS_TIP_HEIGHT_UNIT">
        <source>Unit of the numbers in the field of heights; a unit in a text goes first</source>
        <translation>Unité des nombres du champ des hauteurs&#xa0;; l'unité écrite dans un texte l'emporte</translation>
    </message>
    <message id="MESS_TIP_HEIGHT_FACTOR">
        <source>Factor of the numbers in the field of heights</source>
        <translation>Facteur des nombres du champ des hauteurs</translation>
    </message>
    <message id="MESS_LEVEL_HEIGHT">
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message id="MESS_TIP_LEVEL_HEIGHT">
        <source>Height of a level, for heights that are numbers of levels</source>
        <translation>Hauteur d'un niveau, pour les hauteurs données en nombre de niveaux</translation>
    </message>
    <message id="MESS_ELSE_FROM">
        <source>Else from</source>
        <translation>À défaut</translation>
    </message>
    <message id="MESS_TIP_ELSE_FROM">
        <source>Field with the height of buildings that have none in the height field</source>
        <translation>Champ de la hauteur des bâtiments qui n'en ont pas dans le champ des hauteurs</translation>
    </message>
    <message id="MESS_TIP_ELSE_UNIT">
        <source>Unit of the numbers in the second field</source>
        <translation>Unité des nombres du second champ</translation>
    </message>
    <message id="MESS_WITHOUT_HEIGHT">
        <source>Without height</source>
        <translation>Sans hauteur</translation>
    </message>
    <message id="MESS_TIP_WITHOUT_HEIGHT">
        <source>Height of buildings that have none in a field; without it they are left out</source>
        <translation>Hauteur des bâtiments dont aucun champ n'indique la hauteur&#xa0;; sans elle, ils sont omis</translation>
    </message>
    <message id="MESS_LEAVE_OUT">
        <source>leave out</source>
        <translation>omettre</translation>
    </message>
    <message id="MESS_VALUES_ABOVE">
        <source>Values above</source>
        <translation>Hauteurs depuis</translation>
    </message>
    <message id="MESS_TIP_VALUES_ABOVE">
        <source>Level from which the heights are measured</source>
        <translation>Niveau à partir duquel les hauteurs sont mesurées</translation>
    </message>
    <message id="MESS_ABOVE_GROUND">
        <source>ground</source>
        <translation>le sol</translation>
    </message>
    <message id="MESS_ABOVE_SEA">
        <source>sea</source>
        <translation>la mer</translation>
    </message>
    <message id="MESS_BASE">
        <source>Base</source>
        <translation>Base</translation>
    </message>
    <message id="MESS_TIP_BASE">
        <source>Ground height of a building: from the terrain under its vertices, from a field, or 0</source>
        <translation>Altitude de la base d'un bâtiment&#xa0;: du terrain sous ses sommets, d'un champ, ou 0</translation>
    </message>
    <message id="MESS_BASE_MEAN">
        <source>mean</source>
        <translation>moyenne</translation>
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
        <translation>champ</translation>
    </message>
    <message id="MESS_BASE_ZERO">
        <source>0</source>
        <translation>0</translation>
    </message>
    <message id="MESS_TIP_BASE_FIELD">
        <source>Field with the ground height in metres above sea level</source>
        <translation>Champ de l'altitude du sol en mètres</translation>
    </message>
    <message id="MESS_UNDERSIDE">
        <source>Underside</source>
        <translation>Sous-face</translation>
    </message>
    <message id="MESS_TIP_UNDERSIDE">
        <source>Field with the height of the underside above the ground, in metres</source>
        <translation>Champ de la hauteur de la sous-face au-dessus du sol, en mètres</translation>
    </message>
    <message id="MESS_ONLY">
        <source>Only</source>
        <translation>Filtre</translation>
    </message>
    <message id="MESS_TIP_ONLY">
        <source>SQL condition for the features that are buildings; empty for all</source>
        <translation>Condition SQL des entités qui sont des bâtiments&#xa0;; vide pour toutes</translation>
    </message>
    <message id="MESS_NO_FIELD">
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message id="MESS_HEIGHT_LIKELY_ELSE">
        <source>The field "%1" probably has the heights: choose it at "%2".</source>
        <translation>Le champ «&#xa0;%1&#xa0;» contient probablement les hauteurs&#xa0;: choisissez-le sous «&#xa0;%2&#xa0;».</translation>
    </message>
    <message id="MESS_BASE_FIELD_MISSING">
        <source>Choose the field with the ground height.</source>
        <translation>Choisissez le champ de l'altitude du sol.</translation>
    </message>
    <message id="MESS_CLI_COUNTING_BUILDINGS">
        <source>Counting the buildings</source>
        <translation>Comptage des bâtiments</translation>
    </message>
    <message id="MESS_CLI_NO_BUILDING">
        <source>no building can be drawn: %1</source>
        <translation>aucun bâtiment ne peut être dessiné&#xa0;: %1</translation>
    </message>
    <message id="MESS_COUNT_ELSE_FIELD">
        <source>second field: %1</source>
        <translation>second champ&#xa0;: %1</translation>
    </message>
    <message id="MESS_COUNT_DEFAULT_HEIGHT">
        <source>default height: %1</source>
        <translation>hauteur par défaut&#xa0;: %1</translation>
    </message>
    <message id="MESS_COUNT_TERRAIN_BASE">
        <source>on the terrain: %1</source>
        <translation>posés sur le terrain&#xa0;: %1</translation>
    </message>
    <message id="MESS_COUNT_LOWEST_GROUND">
        <source>on the lowest ground: %1</source>
        <translation>sur le sol le plus bas&#xa0;: %1</translation>
    </message>
    <message id="MESS_COUNT_ZERO_GROUND">
        <source>at height 0: %1</source>
        <translation>à l'altitude 0&#xa0;: %1</translation>
    </message>
    <message id="MESS_COUNT_RAISED_BOTTOM">
        <source>underside ignored: %1</source>
        <translation>sous-face ignorée&#xa0;: %1</translation>
    </message>
    <message id="MESS_COUNT_NO_VALUE">
        <source>without a value: %1</source>
        <translation>sans valeur&#xa0;: %1</translation>
    </message>
    <message id="MESS_COUNT_TRANSPARENT">
        <source>transparent: %1</source>
        <translation>transparents&#xa0;: %1</translation>
    </message>
    <message id="MESS_COUNTING_BUILDINGS">
        <source>Counting the buildings...</source>
        <translation>Comptage des bâtiments...</translation>
    </message>
    <message id="MESS_COUNTING_STOPPED">
        <source>Counting was stopped: refresh the view to make the layer.</source>
        <translation>Le comptage a été interrompu&#xa0;: actualisez la vue pour créer la couche.</translation>
    </message>
    <message id="MESS_ADVICE_ELSE">
        <source>%1 of %2 buildings have no height in "%3"; "%4" would give it for %5 of them</source>
        <translation>%1 bâtiments sur %2 n'ont pas de hauteur dans «&#xa0;%3&#xa0;»&#xa0;; «&#xa0;%4&#xa0;» la donnerait pour %5 d'entre eux</translation>
    </message>
    <message id="MESS_ADVICE_SEA">
        <source>The values of "%1" are probably heights above sea level</source>
        <translation>Les valeurs de «&#xa0;%1&#xa0;» sont probablement des altitudes, mesurées depuis la mer</translation>
    </message>
    <message id="MESS_ALL_DRAWN">
        <source>Buildings: %1, none left out</source>
        <translation>Bâtiments&#xa0;: %1, aucun omis</translation>
    </message>
    <message id="MESS_USE_SEA">
        <source>Values above sea</source>
        <translation>Hauteurs depuis la mer</translation>
    </message>
    <message id="MESS_USE_FIELD">
        <source>Use "%1"</source>
        <translation>Utiliser «&#xa0;%1&#xa0;»</translation>
    </message>
    <message id="MESS_TWO_REASONS">
        <source>%1; %2</source>
        <translation>%1&#xa0;; %2</translation>
    </message>
</context>
</TS>
