<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>General</name>
    <message id="MESS_ERREUR">
        <source>Error</source>
        <extracomment>Title of message boxes.</extracomment>
        <translation>Erreur</translation>
    </message>
    <message id="MESS_ERR_NOM_FICHIER">
        <source>Invalid file name</source>
        <translation>Nom de fichier non valide</translation>
    </message>
    <message id="MESS_OUV_PRJ_IMP">
        <source>Cannot open project</source>
        <translation>Impossible d'ouvrir le projet</translation>
    </message>
</context>
</TS>
