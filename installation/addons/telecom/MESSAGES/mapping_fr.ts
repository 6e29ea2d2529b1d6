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
    <message id="MESS_SHEET">
        <source>S&amp;heet</source>
        <translation>Feu&amp;ille</translation>
    </message>
    <message id="MESS_TIP_SHEET">
        <source>The sheet of the workbook that is read</source>
        <translation>Feuille du classeur qui est lue</translation>
    </message>
    <message id="MESS_HEADER_ROW">
        <source>Hea&amp;der row</source>
        <translation>Ligne d'&amp;en-tête</translation>
    </message>
    <message id="MESS_TIP_HEADER_ROW">
        <source>The first row with the names of the columns; a click on the number of a row below chooses it as well</source>
        <translation>Première ligne avec les noms des colonnes&#xa0;; un clic sur le numéro d'une ligne ci-dessous la choisit aussi</translation>
    </message>
    <message id="MESS_NO_HEADER">
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message id="MESS_HEADER_ROWS">
        <source>N&amp;umber of rows</source>
        <translation>No&amp;mbre de lignes</translation>
    </message>
    <message id="MESS_TIP_HEADER_ROWS">
        <source>Rows whose texts together are the names of the columns, such as groups of columns above their names</source>
        <translation>Lignes dont les textes réunis donnent les noms des colonnes, par exemple des groupes de colonnes au-dessus de leurs noms</translation>
    </message>
    <message id="MESS_ROLES">
        <source>Meanings of the columns</source>
        <translation>Significations des colonnes</translation>
    </message>
    <message id="MESS_FIRST_ROWS">
        <source>F&amp;irst rows of the table</source>
        <translation>&amp;Premières lignes du tableau</translation>
    </message>
    <message id="MESS_TIP_ROW_NUMBER">
        <source>A click makes this the row with the names of the columns</source>
        <translation>Un clic fait de cette ligne celle des noms des colonnes</translation>
    </message>
    <message id="MESS_SAVE_MAPPING">
        <source>Sa&amp;ve beside the table</source>
        <translation>Enregistrer à côté &amp;du tableau</translation>
    </message>
    <message id="MESS_TIP_SAVE_MAPPING">
        <source>Write your choices to a file beside the table, so that every program and every user of the table has them</source>
        <translation>Écrit vos choix dans un fichier à côté du tableau&#xa0;: tous les programmes et tous les utilisateurs du tableau les ont alors</translation>
    </message>
    <message id="MESS_RESET_MAPPING">
        <source>Reset to what was reco&amp;gnised</source>
        <translation>Re&amp;venir à ce qui a été reconnu</translation>
    </message>
    <message id="MESS_TIP_RESET_MAPPING">
        <source>Forget all choices for this table</source>
        <translation>Oublie tous les choix pour ce tableau</translation>
    </message>
    <message id="MESS_MAPPING_OF_USER">
        <source>Your choices are kept in %1, which the layer names.</source>
        <translation>Vos choix sont conservés dans %1&#xa0;; la couche y fait référence.</translation>
    </message>
    <message id="MESS_MAPPING_BESIDE">
        <source>The choices in %1 are used.</source>
        <translation>Les choix de %1 sont utilisés.</translation>
    </message>
    <message id="MESS_CANT_SAVE_MAPPING">
        <source>The choices for the columns cannot be saved</source>
        <translation>Les choix pour les colonnes ne peuvent pas être enregistrés</translation>
    </message>
    <message id="MESS_UNDO">
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message id="MESS_AXES_SWAPPED">
        <source>The coordinates are exchanged.</source>
        <translation>Les coordonnées sont échangées.</translation>
    </message>
    <message id="MESS_SYSTEM_STATED">
        <source>The coordinate system of the table is set to %1.</source>
        <translation>Le système de coordonnées du tableau est fixé à %1.</translation>
    </message>
    <message id="MESS_SECTORS_FROM">
        <source>The transmitters come from %1.</source>
        <translation>Les émetteurs viennent de %1.</translation>
    </message>
    <message id="MESS_END_SITES_FROM">
        <source>The sites at the ends come from %1.</source>
        <translation>Les sites des extrémités viennent de %1.</translation>
    </message>
    <message id="MESS_SWAP_AXES">
        <source>Exchange the coordinates</source>
        <translation>Échanger les coordonnées</translation>
    </message>
    <message id="MESS_USE_SYSTEM">
        <source>Use %1</source>
        <translation>Utiliser %1</translation>
    </message>
    <message id="MESS_NO_TRANSMITTERS">
        <source>The table has no transmitters.</source>
        <translation>Le tableau n'a pas d'émetteurs.</translation>
    </message>
    <message id="MESS_CHOOSE_SECTORS">
        <source>Choose the table of sectors...</source>
        <translation>Choisir le tableau des secteurs...</translation>
    </message>
    <message id="MESS_NAMED_ENDS">
        <source>The ends of the links are only named.</source>
        <translation>Les extrémités des liaisons sont seulement nommées.</translation>
    </message>
    <message id="MESS_CHOOSE_END_SITES">
        <source>Choose the table of sites...</source>
        <translation>Choisir le tableau des sites...</translation>
    </message>
    <message id="MESS_TABLES">
        <source>Tables</source>
        <translation>Tableaux</translation>
    </message>
    <message id="MESS_ONE_ROW">
        <source>1 row</source>
        <translation>1 ligne</translation>
    </message>
    <message id="MESS_N_ROWS">
        <source>%1 rows</source>
        <translation>%1 lignes</translation>
    </message>
    <message id="MESS_THE_LONGITUDE">
        <source>the longitude</source>
        <translation>la longitude</translation>
    </message>
    <message id="MESS_THE_LATITUDE">
        <source>the latitude</source>
        <translation>la latitude</translation>
    </message>
    <message id="MESS_THE_EASTING">
        <source>the easting</source>
        <translation>l'abscisse (X)</translation>
    </message>
    <message id="MESS_THE_NORTHING">
        <source>the northing</source>
        <translation>l'ordonnée (Y)</translation>
    </message>
    <message id="MESS_THE_COORDINATES">
        <source>the coordinates</source>
        <translation>les coordonnées</translation>
    </message>
    <message id="MESS_BOTH_COORDINATES">
        <source>both coordinates</source>
        <translation>chaque coordonnée</translation>
    </message>
    <message id="MESS_OF_ROWS">
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message id="MESS_CORRECT_ROWS">
        <source>Correct the positions of %1</source>
        <translation>Corriger les positions de %1</translation>
    </message>
    <message id="MESS_EXCHANGE">
        <source>Exchange %1</source>
        <translation>Échanger %1</translation>
    </message>
    <message id="MESS_TURN_SIGN">
        <source>Turn the sign of %1</source>
        <translation>Inverser le signe de %1</translation>
    </message>
    <message id="MESS_MULTIPLY">
        <source>Multiply %1 by %2</source>
        <translation>Multiplier %1 par %2</translation>
    </message>
    <message id="MESS_EXCHANGED">
        <source>Exchanged: %1</source>
        <translation>Échange&#xa0;: %1</translation>
    </message>
    <message id="MESS_SIGN_TURNED">
        <source>Sign turned: %1</source>
        <translation>Signe inversé&#xa0;: %1</translation>
    </message>
    <message id="MESS_MULTIPLIED">
        <source>Multiplied by %2: %1</source>
        <translation>Multiplication par %2&#xa0;: %1</translation>
    </message>
</context>
</TS>
