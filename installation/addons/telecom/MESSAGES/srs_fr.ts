<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Coordinate system field</name>
    <message id="MESS_AUTRE...">
        <source>Other...</source>
        <translation>Autre...</translation>
    </message>
    <message id="MESS_NDEF">
        <source>Undefined</source>
        <translation>Non défini</translation>
    </message>
    <message id="MESS_RESET_SRS">
        <source>Back to the initial coordinate system</source>
        <translation>Revenir au système de coordonnées initial</translation>
    </message>
    <message id="MESS_SRS_TYPE_TIP">
        <source>An EPSG code, a PROJ text or WKT, then Return; "Other..." in the list opens the search of all systems</source>
        <translation>Un code EPSG, un texte PROJ ou WKT, puis Entrée ; « Autre... » dans la liste ouvre la recherche parmi tous les systèmes</translation>
    </message>
    <message id="MESS_SRS_TYPE_HERE">
        <source>EPSG code, PROJ text or WKT</source>
        <translation>Code EPSG, texte PROJ ou WKT</translation>
    </message>
    <message id="MESS_SRS_CHOOSE_IN_LIST">
        <source>Choose a system in the list; "Other...", tab "User-defined", accepts a definition of your own</source>
        <translation>Choisissez un système dans la liste&#xa0;; «&#xa0;Autre...&#xa0;», onglet «&#xa0;Définis par l'utilisateur&#xa0;», accepte votre propre définition</translation>
    </message>
</context>
<context>
    <name>Choice of a coordinate system</name>
    <message id="MESS_PROJ_ALIAS_EXIST">
        <source> this alias is already exists. Please enter another alias</source>
        <translation>Cet alias existe déjà. Veuillez en saisir un autre</translation>
    </message>
    <message id="MESS_SRS_CHOOSE">
        <source>Choose a coordinate system</source>
        <translation>Choisir un système de coordonnées</translation>
    </message>
    <message id="MESS_SRS_TAB_SEARCH">
        <source>&amp;Search</source>
        <translation>&amp;Recherche</translation>
    </message>
    <message id="MESS_SRS_TAB_DEFAULT">
        <source>De&amp;fault</source>
        <translation>Par dé&amp;faut</translation>
    </message>
    <message id="MESS_SRS_TAB_LAST_USED">
        <source>&amp;Last used</source>
        <translation>&amp;Derniers utilisés</translation>
    </message>
    <message id="MESS_SRS_TAB_USER">
        <source>&amp;User-defined</source>
        <translation>Définis par l'&amp;utilisateur</translation>
    </message>
    <message id="MESS_SRS_SEARCH_FOR">
        <source>Sea&amp;rch for:</source>
        <translation>Rec&amp;hercher&#xa0;:</translation>
    </message>
    <message id="MESS_SRS_SEARCH_TIP">
        <source>Words of the name, of the code or of the area of use, in any order</source>
        <translation>Mots du nom, du code ou de la zone d'emploi, dans n'importe quel ordre</translation>
    </message>
    <message id="MESS_SRS_SEARCH_HINT">
        <source>Lambert 93, EPSG:2154, France...</source>
        <translation>Lambert 93, EPSG:2154, France...</translation>
    </message>
    <message id="MESS_SRS_KIND">
        <source>&amp;Kind:</source>
        <translation>&amp;Type&#xa0;:</translation>
    </message>
    <message id="MESS_SRS_ALL_KINDS">
        <source>All kinds</source>
        <translation>Tous</translation>
    </message>
    <message id="MESS_SRS_DEPRECATED">
        <source>Deprecated &amp;too</source>
        <translation>&amp;Obsolètes aussi</translation>
    </message>
    <message id="MESS_SRS_DEPRECATED_TIP">
        <source>Also list the systems that have been withdrawn; a complete code always finds them</source>
        <translation>Lister aussi les systèmes retirés ; un code complet les trouve toujours</translation>
    </message>
    <message id="MESS_SRS_RESULTS">
        <source>Systems found</source>
        <extracomment>Read out by screen readers, as the other names of tables.</extracomment>
        <translation>Systèmes trouvés</translation>
    </message>
    <message id="MESS_SRS_DEFAULTS">
        <source>Default systems</source>
        <translation>Systèmes par défaut</translation>
    </message>
    <message id="MESS_SRS_LAST">
        <source>Last used systems</source>
        <translation>Derniers systèmes utilisés</translation>
    </message>
    <message id="MESS_SRS_USERS">
        <source>User-defined systems</source>
        <translation>Systèmes définis par l'utilisateur</translation>
    </message>
    <message id="MESS_SRS_LOADING">
        <source>Reading the list of coordinate systems...</source>
        <translation>Lecture de la liste des systèmes de coordonnées...</translation>
    </message>
    <message id="MESS_SRS_NO_LIST">
        <source>The list of coordinate systems cannot be read</source>
        <translation>La liste des systèmes de coordonnées est illisible</translation>
    </message>
    <message id="MESS_SRS_FOUND">
        <source>Systems found: %1</source>
        <translation>Systèmes trouvés&#xa0;: %1</translation>
    </message>
    <message id="MESS_SRS_NONE_FOUND">
        <source>No system matches</source>
        <translation>Aucun système ne correspond</translation>
    </message>
    <message id="MESS_SRS_COLUMN_NAME">
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message id="MESS_SRS_COLUMN_CODE">
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message id="MESS_SRS_COLUMN_KIND">
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message id="MESS_SRS_COLUMN_AREA">
        <source>Area of use</source>
        <translation>Zone d'emploi</translation>
    </message>
    <message id="MESS_SRS_COLUMN_ALIAS">
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message id="MESS_SRS_COLUMN_DEFINITION">
        <source>Definition</source>
        <translation>Définition</translation>
    </message>
    <message id="MESS_SRS_KIND_PROJECTED">
        <source>Projected</source>
        <translation>Projeté</translation>
    </message>
    <message id="MESS_SRS_KIND_GEOGRAPHIC_2D">
        <source>Geographic 2D</source>
        <translation>Géographique 2D</translation>
    </message>
    <message id="MESS_SRS_KIND_GEOGRAPHIC_3D">
        <source>Geographic 3D</source>
        <translation>Géographique 3D</translation>
    </message>
    <message id="MESS_SRS_KIND_COMPOUND">
        <source>Compound</source>
        <translation>Composé</translation>
    </message>
    <message id="MESS_SRS_KIND_OTHER">
        <source>Other</source>
        <translation>Autre</translation>
    </message>
    <message id="MESS_SRS_DETAILS">
        <source>Selected system</source>
        <translation>Système sélectionné</translation>
    </message>
    <message id="MESS_SRS_DETAIL_NAME">
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message id="MESS_SRS_DETAIL_CODE">
        <source>Code:</source>
        <translation>Code&#xa0;:</translation>
    </message>
    <message id="MESS_SRS_DETAIL_KIND">
        <source>Kind:</source>
        <translation>Type&#xa0;:</translation>
    </message>
    <message id="MESS_SRS_DETAIL_AREA">
        <source>Area of use:</source>
        <translation>Zone d'emploi&#xa0;:</translation>
    </message>
    <message id="MESS_SRS_DETAIL_EXTENT">
        <source>Extent:</source>
        <translation>Étendue&#xa0;:</translation>
    </message>
    <message id="MESS_SRS_EXTENT">
        <source>longitude %1° to %2°, latitude %3° to %4°</source>
        <extracomment>%1 west, %2 east, %3 south, %4 north.</extracomment>
        <translation>longitude de %1° à %2°, latitude de %3° à %4°</translation>
    </message>
    <message id="MESS_SRS_COPY">
        <source>&amp;Copy code</source>
        <translation>&amp;Copier le code</translation>
    </message>
    <message id="MESS_SRS_ADD">
        <source>&amp;Add...</source>
        <translation>&amp;Ajouter...</translation>
    </message>
    <message id="MESS_SRS_EDIT">
        <source>&amp;Edit...</source>
        <translation>&amp;Modifier...</translation>
    </message>
    <message id="MESS_SRS_REMOVE">
        <source>Re&amp;move</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message id="MESS_SRS_ASK_REMOVE">
        <source>Remove %1 from the user-defined coordinate systems?</source>
        <translation>Supprimer %1 des systèmes de coordonnées définis par l'utilisateur&#xa0;?</translation>
    </message>
    <message id="MESS_SRS_ALIAS_TITLE">
        <source>User-defined coordinate system</source>
        <translation>Système de coordonnées défini par l'utilisateur</translation>
    </message>
    <message id="MESS_SRS_ALIAS">
        <source>&amp;Alias:</source>
        <translation>&amp;Alias&#xa0;:</translation>
    </message>
    <message id="MESS_SRS_ALIAS_TIP">
        <source>Name of the system in the lists</source>
        <translation>Nom du système dans les listes</translation>
    </message>
    <message id="MESS_SRS_DEFINITION">
        <source>&amp;Definition:</source>
        <translation>&amp;Définition&#xa0;:</translation>
    </message>
    <message id="MESS_SRS_DEFINITION_TIP">
        <source>A code such as EPSG:2154, a PROJ text or WKT</source>
        <translation>Un code comme EPSG:2154, un texte PROJ ou WKT</translation>
    </message>
    <message id="MESS_SRS_NOT_DEFINED">
        <source>This is not yet a definition of a coordinate system</source>
        <translation>Ceci n'est pas encore une définition de système de coordonnées</translation>
    </message>
    <message id="MESS_SRS_NOT_LATIN1">
        <source>A definition may contain only the characters of Western European languages</source>
        <translation>Une définition ne peut contenir que les caractères des langues d'Europe de l'Ouest</translation>
    </message>
    <message id="MESS_SRS_HEIGHTS_ONLY">
        <source>This system has heights only: it cannot define a position on a map</source>
        <translation>Ce système n'a que des altitudes : il ne peut pas définir une position sur une carte</translation>
    </message>
    <message id="MESS_SRS_GEOCENTRIC">
        <source>This system is geocentric: it cannot define a position on a map</source>
        <translation>Ce système est géocentrique : il ne peut pas définir une position sur une carte</translation>
    </message>
    <message id="MESS_SRS_NO_DEFAULT">
        <source>There are no default systems: the file %1 is missing, cannot be read or lists none</source>
        <translation>Aucun système par défaut&#xa0;: le fichier %1 est absent, illisible ou n'en contient aucun</translation>
    </message>
    <message id="MESS_SRS_NO_LAST">
        <source>No coordinate system has been chosen yet</source>
        <translation>Aucun système de coordonnées n'a encore été choisi</translation>
    </message>
    <message id="MESS_SRS_NO_USER">
        <source>You have not defined a coordinate system yet</source>
        <translation>Vous n'avez encore défini aucun système de coordonnées</translation>
    </message>
    <message id="MESS_SRS_IS_DEFINITION">
        <source>This text defines a coordinate system</source>
        <translation>Ce texte définit un système de coordonnées</translation>
    </message>
    <message id="MESS_SRS_FOUND_NEAR">
        <source>No system matches; found for "%1": %2</source>
        <translation>Aucun système ne correspond&#xa0;; trouvés pour «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message id="MESS_SRS_FOUND_AREA">
        <source>Systems: %1; systems whose area of use contains your data come first</source>
        <translation>Systèmes&#xa0;: %1&#xa0;; ceux dont la zone d'emploi contient vos données viennent en premier</translation>
    </message>
    <message id="MESS_SRS_ADD_TYPED">
        <source>Add it to your o&amp;wn systems...</source>
        <translation>Ajouter à &amp;vos systèmes...</translation>
    </message>
    <message id="MESS_SRS_ADD_TYPED_TIP">
        <source>Add the definition under an alias to the user-defined systems</source>
        <translation>Ajouter la définition, sous un alias, aux systèmes définis par l'utilisateur</translation>
    </message>
</context>
<context>
    <name>Check of coordinate systems</name>
    <message id="MESS_SRS_UNIT_METERS">
        <source>the coordinates of the table are in meters, but its system %1 uses degrees</source>
        <translation>les coordonnées du tableau sont en mètres, mais son système %1 utilise des degrés</translation>
    </message>
    <message id="MESS_SRS_UNIT_DEGREES">
        <source>the coordinates of the table are in degrees, but its system %1 uses meters or feet</source>
        <translation>les coordonnées du tableau sont en degrés, mais son système %1 utilise des mètres ou des pieds</translation>
    </message>
    <message id="MESS_SRS_OUTSIDE_AREA">
        <source>outside the area of use of %3: %1 of %2 positions</source>
        <translation>positions hors de la zone d'emploi de %3&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_SRS_FROM_TERRAIN">
        <source>it is that of the project's terrain</source>
        <translation>c'est celui du terrain du projet</translation>
    </message>
    <message id="MESS_SRS_FROM_NAME">
        <source>the table names it in words</source>
        <translation>le tableau le nomme en toutes lettres</translation>
    </message>
    <message id="MESS_SRS_FROM_PROJECT">
        <source>it is that of the project</source>
        <translation>c'est celui du projet</translation>
    </message>
    <message id="MESS_SRS_FROM_POSITIONS">
        <source>the positions lie in the area of use of no other system that was tried</source>
        <translation>les positions ne se trouvent dans la zone d'emploi d'aucun autre système essayé</translation>
    </message>
    <message id="MESS_SRS_FROM_CHOICE">
        <source>it is the one chosen now</source>
        <translation>c'est celui qui est choisi actuellement</translation>
    </message>
    <message id="MESS_SRS_ASSUMED">
        <source>the table declares no coordinate system: %1 is assumed, because %2</source>
        <translation>le tableau ne déclare aucun système de coordonnées&#xa0;: %1 est supposé, car %2</translation>
    </message>
    <message id="MESS_SRS_CANDIDATES">
        <source>possible coordinate systems: %1</source>
        <translation>systèmes de coordonnées possibles&#xa0;: %1</translation>
    </message>
    <message id="MESS_SRS_CANDIDATE_PLACE">
        <source>%1 (%2): the sites lie near %3, %4</source>
        <translation>%1 (%2)&#xa0;: les sites se trouvent près de %3&#xa0;; %4</translation>
    </message>
    <message id="MESS_NO_LAYER_UNDECLARED">
        <source>No layer can be made: the coordinates are in meters, and their coordinate system is not known</source>
        <translation>Aucune couche ne peut être créée&#xa0;: les coordonnées sont en mètres et leur système de coordonnées n'est pas connu</translation>
    </message>
</context>
</TS>
