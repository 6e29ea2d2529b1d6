<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Pictures</name>
    <message id="MESS_SNAP_NOT_LOCAL">
        <source>only local files are read</source>
        <translation>only local files are read</translation>
    </message>
    <message id="MESS_SNAP_NO_FILE">
        <source>no such file</source>
        <translation>no such file</translation>
    </message>
    <message id="MESS_SNAP_UNREADABLE">
        <source>it cannot be read as a scene</source>
        <translation>it cannot be read as a scene</translation>
    </message>
    <message id="MESS_SNAP_EMPTY">
        <source>the scene is empty</source>
        <translation>the scene is empty</translation>
    </message>
    <message id="MESS_SNAP_TOO_FAR">
        <source>the whole scene is only in view from beyond the apparition distance: increase this distance or use --view symbolic</source>
        <translation>the whole scene is only in view from beyond the apparition distance: increase this distance or use --view symbolic</translation>
    </message>
    <message id="MESS_SNAP_NO_SITES">
        <source>it contains no sites: only --view all is possible</source>
        <translation>it contains no sites: only --view all is possible</translation>
    </message>
    <message id="MESS_SNAP_NO_LEVEL">
        <source>its sites do not have this representation</source>
        <translation>its sites do not have this representation</translation>
    </message>
    <message id="MESS_SNAP_NO_DISPLAY">
        <source>no OpenGL display; run under xvfb-run</source>
        <translation>no OpenGL display; run under xvfb-run</translation>
    </message>
    <message id="MESS_SNAP_NO_ROOM">
        <source>the display cannot hold a picture of this size</source>
        <translation>the display cannot hold a picture of this size</translation>
    </message>
    <message id="MESS_SNAP_NOT_WRITTEN">
        <source>the picture cannot be written</source>
        <translation>the picture cannot be written</translation>
    </message>
    <message id="MESS_SNAP_NO_SITE">
        <source>the layer has no such site</source>
        <translation>the layer has no such site</translation>
    </message>
    <message id="MESS_SNAP_NO_LINK">
        <source>the layer has no such link</source>
        <translation>the layer has no such link</translation>
    </message>
    <message id="MESS_SNAP_SIMILAR">
        <source>%1; similar names: %2</source>
        <translation>%1; similar names: %2</translation>
    </message>
    <message id="MESS_SNAP_NOT_JOINED">
        <source>one of the scenes does not state where on the earth it lies: they cannot be shown together</source>
        <translation>one of the scenes does not state where on the earth it lies: they cannot be shown together</translation>
    </message>
</context>
</TS>
