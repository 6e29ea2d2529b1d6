<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Coordinate system field</name>
    <message id="MESS_AUTRE...">
        <source>Other...</source>
        <translation>Other...</translation>
    </message>
    <message id="MESS_NDEF">
        <source>Undefined</source>
        <translation>Undefined</translation>
    </message>
    <message id="MESS_RESET_SRS">
        <source>Back to the initial coordinate system</source>
        <translation>Back to the initial coordinate system</translation>
    </message>
    <message id="MESS_SRS_TYPE_TIP">
        <source>An EPSG code, a PROJ text or WKT, then Return; "Other..." in the list opens the search of all systems</source>
        <translation>An EPSG code, a PROJ text or WKT, then Return; "Other..." in the list opens the search of all systems</translation>
    </message>
    <message id="MESS_SRS_TYPE_HERE">
        <source>EPSG code, PROJ text or WKT</source>
        <translation>EPSG code, PROJ text or WKT</translation>
    </message>
    <message id="MESS_SRS_CHOOSE_IN_LIST">
        <source>Choose a system in the list; "Other...", tab "User-defined", accepts a definition of your own</source>
        <translation>Choose a system in the list; "Other...", tab "User-defined", accepts a definition of your own</translation>
    </message>
</context>
<context>
    <name>Choice of a coordinate system</name>
    <message id="MESS_PROJ_ALIAS_EXIST">
        <source> this alias is already exists. Please enter another alias</source>
        <translation> this alias is already exists. Please enter another alias</translation>
    </message>
    <message id="MESS_SRS_CHOOSE">
        <source>Choose a coordinate system</source>
        <translation>Choose a coordinate system</translation>
    </message>
    <message id="MESS_SRS_TAB_SEARCH">
        <source>&amp;Search</source>
        <translation>&amp;Search</translation>
    </message>
    <message id="MESS_SRS_TAB_DEFAULT">
        <source>De&amp;fault</source>
        <translation>De&amp;fault</translation>
    </message>
    <message id="MESS_SRS_TAB_LAST_USED">
        <source>&amp;Last used</source>
        <translation>&amp;Last used</translation>
    </message>
    <message id="MESS_SRS_TAB_USER">
        <source>&amp;User-defined</source>
        <translation>&amp;User-defined</translation>
    </message>
    <message id="MESS_SRS_SEARCH_FOR">
        <source>Sea&amp;rch for:</source>
        <translation>Sea&amp;rch for:</translation>
    </message>
    <message id="MESS_SRS_SEARCH_TIP">
        <source>Words of the name, of the code or of the area of use, in any order</source>
        <translation>Words of the name, of the code or of the area of use, in any order</translation>
    </message>
    <message id="MESS_SRS_SEARCH_HINT">
        <source>Lambert 93, EPSG:2154, France...</source>
        <translation>Lambert 93, EPSG:2154, France...</translation>
    </message>
    <message id="MESS_SRS_KIND">
        <source>&amp;Kind:</source>
        <translation>&amp;Kind:</translation>
    </message>
    <message id="MESS_SRS_ALL_KINDS">
        <source>All kinds</source>
        <translation>All kinds</translation>
    </message>
    <message id="MESS_SRS_DEPRECATED">
        <source>Deprecated &amp;too</source>
        <translation>Deprecated &amp;too</translation>
    </message>
    <message id="MESS_SRS_DEPRECATED_TIP">
        <source>Also list the systems that have been withdrawn; a complete code always finds them</source>
        <translation>Also list the systems that have been withdrawn; a complete code always finds them</translation>
    </message>
    <message id="MESS_SRS_RESULTS">
        <source>Systems found</source>
        <extracomment>Read out by screen readers, as the other names of tables.</extracomment>
        <translation>Systems found</translation>
    </message>
    <message id="MESS_SRS_DEFAULTS">
        <source>Default systems</source>
        <translation>Default systems</translation>
    </message>
    <message id="MESS_SRS_LAST">
        <source>Last used systems</source>
        <translation>Last used systems</translation>
    </message>
    <message id="MESS_SRS_USERS">
        <source>User-defined systems</source>
        <translation>User-defined systems</translation>
    </message>
    <message id="MESS_SRS_LOADING">
        <source>Reading the list of coordinate systems...</source>
        <translation>Reading the list of coordinate systems...</translation>
    </message>
    <message id="MESS_SRS_NO_LIST">
        <source>The list of coordinate systems cannot be read</source>
        <translation>The list of coordinate systems cannot be read</translation>
    </message>
    <message id="MESS_SRS_FOUND">
        <source>Systems found: %1</source>
        <translation>Systems found: %1</translation>
    </message>
    <message id="MESS_SRS_NONE_FOUND">
        <source>No system matches</source>
        <translation>No system matches</translation>
    </message>
    <message id="MESS_SRS_COLUMN_NAME">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="MESS_SRS_COLUMN_CODE">
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message id="MESS_SRS_COLUMN_KIND">
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message id="MESS_SRS_COLUMN_AREA">
        <source>Area of use</source>
        <translation>Area of use</translation>
    </message>
    <message id="MESS_SRS_COLUMN_ALIAS">
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message id="MESS_SRS_COLUMN_DEFINITION">
        <source>Definition</source>
        <translation>Definition</translation>
    </message>
    <message id="MESS_SRS_KIND_PROJECTED">
        <source>Projected</source>
        <translation>Projected</translation>
    </message>
    <message id="MESS_SRS_KIND_GEOGRAPHIC_2D">
        <source>Geographic 2D</source>
        <translation>Geographic 2D</translation>
    </message>
    <message id="MESS_SRS_KIND_GEOGRAPHIC_3D">
        <source>Geographic 3D</source>
        <translation>Geographic 3D</translation>
    </message>
    <message id="MESS_SRS_KIND_COMPOUND">
        <source>Compound</source>
        <translation>Compound</translation>
    </message>
    <message id="MESS_SRS_KIND_OTHER">
        <source>Other</source>
        <translation>Other</translation>
    </message>
    <message id="MESS_SRS_DETAILS">
        <source>Selected system</source>
        <translation>Selected system</translation>
    </message>
    <message id="MESS_SRS_DETAIL_NAME">
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message id="MESS_SRS_DETAIL_CODE">
        <source>Code:</source>
        <translation>Code:</translation>
    </message>
    <message id="MESS_SRS_DETAIL_KIND">
        <source>Kind:</source>
        <translation>Kind:</translation>
    </message>
    <message id="MESS_SRS_DETAIL_AREA">
        <source>Area of use:</source>
        <translation>Area of use:</translation>
    </message>
    <message id="MESS_SRS_DETAIL_EXTENT">
        <source>Extent:</source>
        <translation>Extent:</translation>
    </message>
    <message id="MESS_SRS_EXTENT">
        <source>longitude %1° to %2°, latitude %3° to %4°</source>
        <extracomment>%1 west, %2 east, %3 south, %4 north.</extracomment>
        <translation>longitude %1° to %2°, latitude %3° to %4°</translation>
    </message>
    <message id="MESS_SRS_COPY">
        <source>&amp;Copy code</source>
        <translation>&amp;Copy code</translation>
    </message>
    <message id="MESS_SRS_ADD">
        <source>&amp;Add...</source>
        <translation>&amp;Add...</translation>
    </message>
    <message id="MESS_SRS_EDIT">
        <source>&amp;Edit...</source>
        <translation>&amp;Edit...</translation>
    </message>
    <message id="MESS_SRS_REMOVE">
        <source>Re&amp;move</source>
        <translation>Re&amp;move</translation>
    </message>
    <message id="MESS_SRS_ASK_REMOVE">
        <source>Remove %1 from the user-defined coordinate systems?</source>
        <translation>Remove %1 from the user-defined coordinate systems?</translation>
    </message>
    <message id="MESS_SRS_ALIAS_TITLE">
        <source>User-defined coordinate system</source>
        <translation>User-defined coordinate system</translation>
    </message>
    <message id="MESS_SRS_ALIAS">
        <source>&amp;Alias:</source>
        <translation>&amp;Alias:</translation>
    </message>
    <message id="MESS_SRS_ALIAS_TIP">
        <source>Name of the system in the lists</source>
        <translation>Name of the system in the lists</translation>
    </message>
    <message id="MESS_SRS_DEFINITION">
        <source>&amp;Definition:</source>
        <translation>&amp;Definition:</translation>
    </message>
    <message id="MESS_SRS_DEFINITION_TIP">
        <source>A code such as EPSG:2154, a PROJ text or WKT</source>
        <translation>A code such as EPSG:2154, a PROJ text or WKT</translation>
    </message>
    <message id="MESS_SRS_NOT_DEFINED">
        <source>This is not yet a definition of a coordinate system</source>
        <translation>This is not yet a definition of a coordinate system</translation>
    </message>
    <message id="MESS_SRS_NOT_LATIN1">
        <source>A definition may contain only the characters of Western European languages</source>
        <translation>A definition may contain only the characters of Western European languages</translation>
    </message>
    <message id="MESS_SRS_HEIGHTS_ONLY">
        <source>This system has heights only: it cannot define a position on a map</source>
        <translation>This system has heights only: it cannot define a position on a map</translation>
    </message>
    <message id="MESS_SRS_GEOCENTRIC">
        <source>This system is geocentric: it cannot define a position on a map</source>
        <translation>This system is geocentric: it cannot define a position on a map</translation>
    </message>
    <message id="MESS_SRS_NO_DEFAULT">
        <source>There are no default systems: the file %1 is missing, cannot be read or lists none</source>
        <translation>There are no default systems: the file %1 is missing, cannot be read or lists none</translation>
    </message>
    <message id="MESS_SRS_NO_LAST">
        <source>No coordinate system has been chosen yet</source>
        <translation>No coordinate system has been chosen yet</translation>
    </message>
    <message id="MESS_SRS_NO_USER">
        <source>You have not defined a coordinate system yet</source>
        <translation>You have not defined a coordinate system yet</translation>
    </message>
    <message id="MESS_SRS_IS_DEFINITION">
        <source>This text defines a coordinate system</source>
        <translation>This text defines a coordinate system</translation>
    </message>
    <message id="MESS_SRS_FOUND_NEAR">
        <source>No system matches; found for "%1": %2</source>
        <translation>No system matches; found for "%1": %2</translation>
    </message>
    <message id="MESS_SRS_FOUND_AREA">
        <source>Systems: %1; systems whose area of use contains your data come first</source>
        <translation>Systems: %1; systems whose area of use contains your data come first</translation>
    </message>
    <message id="MESS_SRS_ADD_TYPED">
        <source>Add it to your o&amp;wn systems...</source>
        <translation>Add it to your o&amp;wn systems...</translation>
    </message>
    <message id="MESS_SRS_ADD_TYPED_TIP">
        <source>Add the definition under an alias to the user-defined systems</source>
        <translation>Add the definition under an alias to the user-defined systems</translation>
    </message>
</context>
<context>
    <name>Check of coordinate systems</name>
    <message id="MESS_SRS_UNIT_METERS">
        <source>the coordinates of the table are in meters, but its system %1 uses degrees</source>
        <translation>the coordinates of the table are in meters, but its system %1 uses degrees</translation>
    </message>
    <message id="MESS_SRS_UNIT_DEGREES">
        <source>the coordinates of the table are in degrees, but its system %1 uses meters or feet</source>
        <translation>the coordinates of the table are in degrees, but its system %1 uses meters or feet</translation>
    </message>
    <message id="MESS_SRS_OUTSIDE_AREA">
        <source>outside the area of use of %3: %1 of %2 positions</source>
        <translation>outside the area of use of %3: %1 of %2 positions</translation>
    </message>
    <message id="MESS_SRS_FROM_TERRAIN">
        <source>it is that of the project's terrain</source>
        <translation>it is that of the project's terrain</translation>
    </message>
    <message id="MESS_SRS_FROM_NAME">
        <source>the table names it in words</source>
        <translation>the table names it in words</translation>
    </message>
    <message id="MESS_SRS_FROM_PROJECT">
        <source>it is that of the project</source>
        <translation>it is that of the project</translation>
    </message>
    <message id="MESS_SRS_FROM_POSITIONS">
        <source>the positions lie in the area of use of no other system that was tried</source>
        <translation>the positions lie in the area of use of no other system that was tried</translation>
    </message>
    <message id="MESS_SRS_FROM_CHOICE">
        <source>it is the one chosen now</source>
        <translation>it is the one chosen now</translation>
    </message>
    <message id="MESS_SRS_ASSUMED">
        <source>the table declares no coordinate system: %1 is assumed, because %2</source>
        <translation>the table declares no coordinate system: %1 is assumed, because %2</translation>
    </message>
    <message id="MESS_SRS_CANDIDATES">
        <source>possible coordinate systems: %1</source>
        <translation>possible coordinate systems: %1</translation>
    </message>
    <message id="MESS_SRS_CANDIDATE_PLACE">
        <source>%1 (%2): the sites lie near %3, %4</source>
        <translation>%1 (%2): the sites lie near %3, %4</translation>
    </message>
    <message id="MESS_NO_LAYER_UNDECLARED">
        <source>No layer can be made: the coordinates are in meters, and their coordinate system is not known</source>
        <translation>No layer can be made: the coordinates are in meters, and their coordinate system is not known</translation>
    </message>
</context>
</TS>
