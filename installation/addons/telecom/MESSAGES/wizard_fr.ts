<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Wizard</name>
    <message id="MESS_TELECOM_LAYERS">
        <source>Add sites, links and predictions wizard</source>
        <translation>Assistant d'ajout de sites, de liaisons et de prédictions</translation>
    </message>
    <message id="MESS_SUIVANT">
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message id="MESS_PRECEDENT">
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message id="MESS_QUITTER">
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message id="MESS_QUEST_QUIT_APP">
        <source>Voulez-vous quitter l'application ?</source>
        <extracomment>The source is French.</extracomment>
        <translation>Voulez-vous quitter l'application&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Start of the program</name>
    <message id="MESS_APP_NO_SHEET">
        <source>%1 needs a file</source>
        <translation>%1 attend un fichier</translation>
    </message>
    <message id="MESS_APP_UNKNOWN_OPTION">
        <source>unknown option "%1"</source>
        <translation>option «&#xa0;%1&#xa0;» inconnue</translation>
    </message>
    <message id="MESS_APP_ONE_FILE">
        <source>more than one file is given</source>
        <translation>plusieurs fichiers sont indiqués</translation>
    </message>
    <message id="MESS_APP_TRY_HELP">
        <source>try 'VltTelecomLayers --help'</source>
        <translation>voir 'VltTelecomLayers --help'</translation>
    </message>
    <message id="MESS_APP_NO_DISPLAY">
        <source>no window can be opened here%1; vltlayers makes the same layers without one</source>
        <translation>aucune fenêtre ne peut être ouverte ici%1&#xa0;; vltlayers produit les mêmes couches sans fenêtre</translation>
    </message>
    <message id="MESS_LOOKING_AT_FILE">
        <source>Reading the file...</source>
        <translation>Lecture du fichier...</translation>
    </message>
    <message id="MESS_FILE_IS_LAYER">
        <source>This layer is finished: drag its file into Veltaro Builder</source>
        <translation>Cette couche est terminée&#xa0;: faites glisser son fichier dans Veltaro Builder</translation>
    </message>
    <message id="MESS_FILE_IS_MISSING">
        <source>This file does not exist</source>
        <translation>Ce fichier n'existe pas</translation>
    </message>
    <message id="MESS_FILE_IS_UNKNOWN">
        <source>This file is neither a project nor a table of sites or links, footprints of buildings or a raster</source>
        <translation>Ce fichier n'est ni un projet, ni un tableau de sites ou de liaisons, ni des emprises de bâtiments, ni une image raster</translation>
    </message>
    <message id="MESS_APP_HELP">
        <source>Usage: VltTelecomLayers [options] [FILE]

Opens the wizard that makes layers of telecom sites, links and buildings.

  FILE                A project (.gvw) is offered on the project page. A table of
                      sites or links, footprints of buildings or a raster is
                      opened on its page, with the first recent project.

  -h, --help          Prints this text.
  -v, --version       Prints the version.
  -stylesheet SHEET   Uses this Qt style sheet.

The options of every Qt program, such as -platform and -style, work too.
vltlayers makes the same layers without a window.</source>
        <translation>Utilisation&#xa0;: VltTelecomLayers [options] [FICHIER]

Ouvre l'assistant qui produit des couches de sites, de liaisons et de bâtiments.

  FICHIER             Un projet (.gvw) est proposé sur la page du projet. Un
                      tableau de sites ou de liaisons, des emprises de bâtiments
                      ou une image raster s'ouvrent sur leur page, avec le premier
                      des projets récents.

  -h, --help          Affiche ce texte.
  -v, --version       Affiche la version.
  -stylesheet FICHIER Emploie cette feuille de style Qt.

Les options de tout programme Qt, comme -platform et -style, sont acceptées.
vltlayers produit les mêmes couches sans fenêtre.</translation>
    </message>
</context>
<context>
    <name>First page</name>
    <message id="MESS_PAGE_LAYER_KIND">
        <source>Kind of layer</source>
        <translation>Type de couche</translation>
    </message>
    <message id="MESS_ADD_SITE">
        <source>Add site file</source>
        <translation>Ajouter un fichier de sites</translation>
    </message>
    <message id="MESS_ADD_SITE2">
        <source>Create a layer to display sites files (pylons with antennas) in the 3D model.</source>
        <translation>Créer une couche pour afficher un fichier de sites (pylônes et antennes) dans le modèle 3D.
À partir d'un tableau de sites&#xa0;: CSV, Excel (.xlsx, .xls) ou XML.</translation>
    </message>
    <message id="MESS_ADD_LINK">
        <source>Add link file</source>
        <translation>Ajouter un fichier de liaisons</translation>
    </message>
    <message id="MESS_ADD_LINK2">
        <source>Create a layer to display links files (pylons with antennas, microwave link and Fresnel zone) in the 3D model.</source>
        <translation>Créer une couche pour afficher un fichier de liaisons (pylônes et antennes, faisceau hertzien et zone de Fresnel) dans le modèle 3D.
À partir d'un tableau de liaisons&#xa0;: CSV, Excel (.xlsx, .xls) ou XML.</translation>
    </message>
    <message id="MESS_ADD_MULTI_HGT">
        <source>Add multi-heights predictions</source>
        <translation>Ajouter des prédictions multi-hauteurs</translation>
    </message>
    <message id="MESS_ADD_TEXB2">
        <source>Create a layer to display 3D buildings in the 3D model.
Buildings can be colored or textured with images (ortho-images, coverage plots, ...).</source>
        <translation>Créer une couche pour afficher des bâtiments 3D dans le modèle 3D.
Les bâtiments peuvent être colorés ou texturés avec des images (orthophotos, cartes de couverture...).
À partir d'un fichier d'emprises de bâtiments et d'un raster de valeurs ou d'images.</translation>
    </message>
</context>
<context>
    <name>Project page</name>
    <message id="MESS_PAGE_PROJECT">
        <source>Target project</source>
        <translation>Projet cible</translation>
    </message>
    <message id="MESS_SEL_PRJ_AD_GEN_LAY">
        <source>Select a project in which it will be loaded the generated layer</source>
        <translation>Choisissez le projet dans lequel la couche générée sera chargée</translation>
    </message>
    <message id="MESS_RECENT_PRJS">
        <source>Recent projects</source>
        <translation>Projets récents</translation>
    </message>
    <message id="MESS_TIP_RECENT_PRJS">
        <source>Select a project; a double click or Enter continues with it</source>
        <translation>Choisissez un projet&#xa0;; un double-clic ou la touche Entrée poursuit avec celui-ci</translation>
    </message>
    <message id="MESS_NO_RECENT_PRJS">
        <source>There are no recent projects. Choose a project file below, or drop one here.</source>
        <translation>Il n'y a pas de projet récent. Choisissez un fichier de projet ci-dessous ou déposez-en un ici.</translation>
    </message>
    <message id="MESS_PROJET">
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message id="MESS_PROJECT_PATH">
        <source>Project file (*.gvw)</source>
        <translation>Fichier de projet (*.gvw)</translation>
    </message>
    <message id="MESS_TIP_PROJECT_PATH">
        <source>Project file to which the layer will be added; it can also be dropped on this page</source>
        <translation>Le fichier de projet qui recevra la couche&#xa0;; il peut aussi être déposé sur cette page</translation>
    </message>
    <message id="MESS_BROWSE">
        <source>&amp;Browse...</source>
        <translation>Parco&amp;urir...</translation>
    </message>
    <message id="MESS_TIP_BROWSE_PROJECT">
        <source>Choose a project file</source>
        <translation>Choisir un fichier de projet</translation>
    </message>
    <message id="MESS_SEL_NOM_PROJ_USE">
        <source>Select name of Veltaro project to be used</source>
        <translation>Choisir le projet Veltaro à utiliser</translation>
    </message>
    <message id="MESS_PROJET_VLT">
        <source>Veltaro project</source>
        <translation>Projet Veltaro</translation>
    </message>
</context>
<context>
    <name>Titles of pages</name>
    <message id="MESS_PAGE_BUILDINGS">
        <source>Buildings</source>
        <translation>Bâtiments</translation>
    </message>
    <message id="MESS_PAGE_TEXTURED">
        <source>Textured buildings</source>
        <translation>Bâtiments texturés</translation>
    </message>
    <message id="MESS_PAGE_COLORED">
        <source>Colored buildings</source>
        <translation>Bâtiments colorés</translation>
    </message>
    <message id="MESS_PAGE_DISPLAY">
        <source>Display of buildings</source>
        <translation>Affichage des bâtiments</translation>
    </message>
</context>
<context>
    <name>Standard buttons</name>
    <message id="MESS_QT_OK">
        <source>OK</source>
        <extracomment>Used where the system has no translations of Qt.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="MESS_QT_CANCEL">
        <source>Cancel</source>
        <extracomment>Used where the system has no translations of Qt.</extracomment>
        <translation>Annuler</translation>
    </message>
    <message id="MESS_QT_CLOSE">
        <source>Close</source>
        <extracomment>Used where the system has no translations of Qt.</extracomment>
        <translation>Fermer</translation>
    </message>
    <message id="MESS_QT_OPEN">
        <source>Open</source>
        <extracomment>Used where the system has no translations of Qt.</extracomment>
        <translation>Ouvrir</translation>
    </message>
    <message id="MESS_QT_SAVE">
        <source>Save</source>
        <extracomment>Used where the system has no translations of Qt.</extracomment>
        <translation>Enregistrer</translation>
    </message>
    <message id="MESS_QT_YES">
        <source>&amp;Yes</source>
        <extracomment>Used where the system has no translations of Qt.</extracomment>
        <translation>&amp;Oui</translation>
    </message>
    <message id="MESS_QT_NO">
        <source>&amp;No</source>
        <extracomment>Used where the system has no translations of Qt.</extracomment>
        <translation>&amp;Non</translation>
    </message>
    <message id="MESS_PROJECT_NAMES_NOTHING">
        <source>the project names neither a reference system nor a terrain nor buildings</source>
        <translation>le projet ne nomme ni système de référence, ni terrain, ni bâtiments</translation>
    </message>
    <message id="MESS_PROJECT_SYSTEM">
        <source>Coordinate system: %1</source>
        <translation>Système de coordonnées&#xa0;: %1</translation>
    </message>
    <message id="MESS_PROJECT_TERRAIN">
        <source>Terrain: %1</source>
        <translation>Terrain&#xa0;: %1</translation>
    </message>
    <message id="MESS_PROJECT_BUILDINGS">
        <source>Buildings: %1</source>
        <translation>Bâtiments&#xa0;: %1</translation>
    </message>
    <message id="MESS_PROJECT_STATES_NONE">
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message id="MESS_PROJECT_NO_SYSTEM">
        <source>that of the terrain</source>
        <translation>celui du terrain</translation>
    </message>
    <message id="MESS_PROJECT_LACKS_FILE">
        <source>%1 (this file does not exist)</source>
        <translation>%1 (ce fichier n'existe pas)</translation>
    </message>
    <message id="MESS_START_INTRO">
        <source>Makes layers for Veltaro Builder from tables of sites or links and from outlines of buildings, and shows them in 3D.</source>
        <translation>Crée des couches pour Veltaro Builder à partir de tableaux de sites ou de liaisons et d'emprises de bâtiments, et les montre en 3D.</translation>
    </message>
    <message id="MESS_TRY_SAMPLE">
        <source>&amp;Try the sample project</source>
        <translation>&amp;Essayer le projet d'exemple</translation>
    </message>
    <message id="MESS_TIP_TRY_SAMPLE">
        <source>Open the sites of a sample town, with its project and terrain</source>
        <translation>Ouvrir les sites d'une ville d'exemple, avec son projet et son terrain</translation>
    </message>
</context>
</TS>
