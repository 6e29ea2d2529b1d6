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
        <source>no scene that can be read</source>
        <translation>no scene that can be read</translation>
    </message>
    <message id="MESS_SNAP_EMPTY">
        <source>the scene is empty</source>
        <translation>the scene is empty</translation>
    </message>
    <message id="MESS_SNAP_TOO_FAR">
        <source>all is in view only from where nothing is drawn any more; a longer apparition distance or --view symbolic helps</source>
        <translation>all is in view only from where nothing is drawn any more; a longer apparition distance or --view symbolic helps</translation>
    </message>
    <message id="MESS_SNAP_NO_SITES">
        <source>there are no sites in it: only --view all can be made of it</source>
        <translation>there are no sites in it: only --view all can be made of it</translation>
    </message>
    <message id="MESS_SNAP_NO_LEVEL">
        <source>its sites are never drawn that way</source>
        <translation>its sites are never drawn that way</translation>
    </message>
    <message id="MESS_SNAP_NO_DISPLAY">
        <source>no OpenGL display; run under xvfb-run</source>
        <translation>no OpenGL display; run under xvfb-run</translation>
    </message>
    <message id="MESS_SNAP_NO_ROOM">
        <source>the display has no room for a picture of this size</source>
        <translation>the display has no room for a picture of this size</translation>
    </message>
    <message id="MESS_SNAP_NOT_WRITTEN">
        <source>the picture cannot be written</source>
        <translation>the picture cannot be written</translation>
    </message>
</context>
</TS>
