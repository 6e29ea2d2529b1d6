<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Pictures</name>
    <message id="MESS_SNAP_NOT_LOCAL">
        <source>only local files are read</source>
        <translation>seuls les fichiers locaux sont lus</translation>
    </message>
    <message id="MESS_SNAP_NO_FILE">
        <source>no such file</source>
        <translation>ce fichier n'existe pas</translation>
    </message>
    <message id="MESS_SNAP_UNREADABLE">
        <source>no scene that can be read</source>
        <translation>ce n'est pas une scène qui puisse être lue</translation>
    </message>
    <message id="MESS_SNAP_EMPTY">
        <source>the scene is empty</source>
        <translation>la scène est vide</translation>
    </message>
    <message id="MESS_SNAP_TOO_FAR">
        <source>all is in view only from where nothing is drawn any more; a longer apparition distance or --view symbolic helps</source>
        <translation>l'ensemble n'entre dans l'image que de plus loin que la distance d'apparition ; augmentez cette distance ou choisissez --view symbolic</translation>
    </message>
    <message id="MESS_SNAP_NO_SITES">
        <source>there are no sites in it: only --view all can be made of it</source>
        <translation>elle ne contient pas de site : seule la vue --view all est possible</translation>
    </message>
    <message id="MESS_SNAP_NO_LEVEL">
        <source>its sites are never drawn that way</source>
        <translation>ses sites ne sont jamais représentés ainsi</translation>
    </message>
    <message id="MESS_SNAP_NO_DISPLAY">
        <source>no OpenGL display; run under xvfb-run</source>
        <translation>aucun affichage OpenGL ; lancez la commande sous xvfb-run</translation>
    </message>
    <message id="MESS_SNAP_NO_ROOM">
        <source>the display has no room for a picture of this size</source>
        <translation>l'affichage n'a pas la place pour une image de cette taille</translation>
    </message>
    <message id="MESS_SNAP_NOT_WRITTEN">
        <source>the picture cannot be written</source>
        <translation>l'image ne peut pas être écrite</translation>
    </message>
</context>
</TS>
