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
        <source>it cannot be read as a scene</source>
        <translation>ce fichier ne peut pas être lu comme une scène</translation>
    </message>
    <message id="MESS_SNAP_EMPTY">
        <source>the scene is empty</source>
        <translation>la scène est vide</translation>
    </message>
    <message id="MESS_SNAP_TOO_FAR">
        <source>the whole scene is only in view from beyond the apparition distance: increase this distance or use --view symbolic</source>
        <translation>l'ensemble n'entre dans l'image que de plus loin que la distance d'apparition ; augmentez cette distance ou choisissez --view symbolic</translation>
    </message>
    <message id="MESS_SNAP_NO_SITES">
        <source>it contains no sites: only --view all is possible</source>
        <translation>elle ne contient pas de site : seule la vue --view all est possible</translation>
    </message>
    <message id="MESS_SNAP_NO_LEVEL">
        <source>its sites do not have this representation</source>
        <translation>ses sites n'ont pas cette représentation</translation>
    </message>
    <message id="MESS_SNAP_NO_DISPLAY">
        <source>no OpenGL display; run under xvfb-run</source>
        <translation>aucun affichage OpenGL ; lancez la commande sous xvfb-run</translation>
    </message>
    <message id="MESS_SNAP_NO_ROOM">
        <source>the display cannot hold a picture of this size</source>
        <translation>l'affichage ne peut pas contenir une image de cette taille</translation>
    </message>
    <message id="MESS_SNAP_NOT_WRITTEN">
        <source>the picture cannot be written</source>
        <translation>l'image ne peut pas être écrite</translation>
    </message>
    <message id="MESS_SNAP_NO_SITE">
        <source>the layer has no such site</source>
        <translation>la couche ne contient pas ce site</translation>
    </message>
    <message id="MESS_SNAP_NO_LINK">
        <source>the layer has no such link</source>
        <translation>la couche ne contient pas cette liaison</translation>
    </message>
    <message id="MESS_SNAP_SIMILAR">
        <source>%1; similar names: %2</source>
        <translation>%1&#xa0;; noms proches&#xa0;: %2</translation>
    </message>
    <message id="MESS_SNAP_NOT_JOINED">
        <source>one of the scenes does not state where on the earth it lies: they cannot be shown together</source>
        <translation>une des scènes n'indique pas sa place sur la Terre&#xa0;: elles ne peuvent pas être montrées ensemble</translation>
    </message>
</context>
</TS>
