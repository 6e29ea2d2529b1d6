<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Wizard</name>
    <message id="MESS_TELECOM_LAYERS">
        <source>Add sites, links and predictions wizard</source>
        <translation>Wizard for sites, links and predictions</translation>
    </message>
    <message id="MESS_SUIVANT">
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message id="MESS_PRECEDENT">
        <source>Previous</source>
        <translation>Previous</translation>
    </message>
    <message id="MESS_QUITTER">
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message id="MESS_QUEST_QUIT_APP">
        <source>Voulez-vous quitter l'application ?</source>
        <extracomment>The source is French.</extracomment>
        <translation>Do you want to quit the application?</translation>
    </message>
</context>
<context>
    <name>Start of the program</name>
    <message id="MESS_APP_NO_SHEET">
        <source>%1 needs a file</source>
        <translation>%1 needs a file</translation>
    </message>
    <message id="MESS_APP_UNKNOWN_OPTION">
        <source>unknown option "%1"</source>
        <translation>unknown option "%1"</translation>
    </message>
    <message id="MESS_APP_ONE_FILE">
        <source>more than one file is given</source>
        <translation>more than one file is given</translation>
    </message>
    <message id="MESS_APP_TRY_HELP">
        <source>try 'VltTelecomLayers --help'</source>
        <translation>try 'VltTelecomLayers --help'</translation>
    </message>
    <message id="MESS_APP_NO_DISPLAY">
        <source>no window can be opened here%1; vltlayers makes the same layers without one</source>
        <translation>no window can be opened here%1; vltlayers makes the same layers without one</translation>
    </message>
    <message id="MESS_LOOKING_AT_FILE">
        <source>Reading the file...</source>
        <translation>Reading the file...</translation>
    </message>
    <message id="MESS_FILE_IS_LAYER">
        <source>This layer is finished: drag its file into Veltaro Builder</source>
        <translation>This layer is finished: drag its file into Veltaro Builder</translation>
    </message>
    <message id="MESS_FILE_IS_MISSING">
        <source>This file does not exist</source>
        <translation>This file does not exist</translation>
    </message>
    <message id="MESS_FILE_IS_UNKNOWN">
        <source>This file is neither a project nor a table of sites or links, footprints of buildings or a raster</source>
        <translation>This file is neither a project nor a table of sites or links, footprints of buildings or a raster</translation>
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
        <translation>Usage: VltTelecomLayers [options] [FILE]

Opens the wizard that makes layers of telecom sites, links and buildings.

  FILE                A project (.gvw) is offered on the project page. A table of
                      sites or links, footprints of buildings or a raster is
                      opened on its page, with the first recent project.

  -h, --help          Prints this text.
  -v, --version       Prints the version.
  -stylesheet SHEET   Uses this Qt style sheet.

The options of every Qt program, such as -platform and -style, work too.
vltlayers makes the same layers without a window.</translation>
    </message>
</context>
<context>
    <name>First page</name>
    <message id="MESS_PAGE_LAYER_KIND">
        <source>Kind of layer</source>
        <translation>Kind of layer</translation>
    </message>
    <message id="MESS_ADD_SITE">
        <source>Add site file</source>
        <translation>Add site file</translation>
    </message>
    <message id="MESS_ADD_SITE2">
        <source>Create a layer to display sites files (pylons with antennas) in the 3D model.</source>
        <translation>Create a layer that shows sites (pylons with antennas) in the 3D model.
From a table of sites: CSV, Excel (.xlsx, .xls) or XML.</translation>
    </message>
    <message id="MESS_ADD_LINK">
        <source>Add link file</source>
        <translation>Add link file</translation>
    </message>
    <message id="MESS_ADD_LINK2">
        <source>Create a layer to display links files (pylons with antennas, microwave link and Fresnel zone) in the 3D model.</source>
        <translation>Create a layer that shows links (pylons with antennas, microwave link and Fresnel zone) in the 3D model.
From a table of links: CSV, Excel (.xlsx, .xls) or XML.</translation>
    </message>
    <message id="MESS_ADD_MULTI_HGT">
        <source>Add multi-heights predictions</source>
        <translation>Add multi-heights predictions</translation>
    </message>
    <message id="MESS_ADD_TEXB2">
        <source>Create a layer to display 3D buildings in the 3D model.
Buildings can be colored or textured with images (ortho-images, coverage plots, ...).</source>
        <translation>Create a layer that shows buildings in the 3D model.
They can be colored, or textured with images (orthophotos, coverage plots, ...).
From a file of building outlines, with a raster of values or with images.</translation>
    </message>
</context>
<context>
    <name>Project page</name>
    <message id="MESS_PAGE_PROJECT">
        <source>Target project</source>
        <translation>Target project</translation>
    </message>
    <message id="MESS_SEL_PRJ_AD_GEN_LAY">
        <source>Select a project in which it will be loaded the generated layer</source>
        <translation>Select the project that the layer is for</translation>
    </message>
    <message id="MESS_RECENT_PRJS">
        <source>Recent projects</source>
        <translation>Recent projects</translation>
    </message>
    <message id="MESS_TIP_RECENT_PRJS">
        <source>Select a project; a double click or Enter continues with it</source>
        <translation>Select a project; a double click or Enter continues with it</translation>
    </message>
    <message id="MESS_NO_RECENT_PRJS">
        <source>There are no recent projects. Choose a project file below, or drop one here.</source>
        <translation>There are no recent projects. Choose a project file below, or drop one here.</translation>
    </message>
    <message id="MESS_PROJET">
        <source>Project</source>
        <translation>Project</translation>
    </message>
    <message id="MESS_PROJECT_PATH">
        <source>Project file (*.gvw)</source>
        <translation>Project file (*.gvw)</translation>
    </message>
    <message id="MESS_TIP_PROJECT_PATH">
        <source>Project file to which the layer will be added; it can also be dropped on this page</source>
        <translation>Project file to which the layer will be added; it can also be dropped on this page</translation>
    </message>
    <message id="MESS_BROWSE">
        <source>&amp;Browse...</source>
        <translation>&amp;Browse...</translation>
    </message>
    <message id="MESS_TIP_BROWSE_PROJECT">
        <source>Choose a project file</source>
        <translation>Choose a project file</translation>
    </message>
    <message id="MESS_SEL_NOM_PROJ_USE">
        <source>Select name of Veltaro project to be used</source>
        <translation>Select the Veltaro project to use</translation>
    </message>
    <message id="MESS_PROJET_VLT">
        <source>Veltaro project</source>
        <translation>Veltaro project</translation>
    </message>
</context>
<context>
    <name>Titles of pages</name>
    <message id="MESS_PAGE_BUILDINGS">
        <source>Buildings</source>
        <translation>Buildings</translation>
    </message>
    <message id="MESS_PAGE_TEXTURED">
        <source>Textured buildings</source>
        <translation>Textured buildings</translation>
    </message>
    <message id="MESS_PAGE_COLORED">
        <source>Colored buildings</source>
        <translation>Colored buildings</translation>
    </message>
    <message id="MESS_PAGE_DISPLAY">
        <source>Display of buildings</source>
        <translation>Display of buildings</translation>
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
        <translation>Cancel</translation>
    </message>
    <message id="MESS_QT_CLOSE">
        <source>Close</source>
        <extracomment>Used where the system has no translations of Qt.</extracomment>
        <translation>Close</translation>
    </message>
    <message id="MESS_QT_OPEN">
        <source>Open</source>
        <extracomment>Used where the system has no translations of Qt.</extracomment>
        <translation>Open</translation>
    </message>
    <message id="MESS_QT_SAVE">
        <source>Save</source>
        <extracomment>Used where the system has no translations of Qt.</extracomment>
        <translation>Save</translation>
    </message>
    <message id="MESS_QT_YES">
        <source>&amp;Yes</source>
        <extracomment>Used where the system has no translations of Qt.</extracomment>
        <translation>&amp;Yes</translation>
    </message>
    <message id="MESS_QT_NO">
        <source>&amp;No</source>
        <extracomment>Used where the system has no translations of Qt.</extracomment>
        <translation>&amp;No</translation>
    </message>
    <message id="MESS_PROJECT_NAMES_NOTHING">
        <source>the project names neither a reference system nor a terrain nor buildings</source>
        <translation>the project names neither a reference system nor a terrain nor buildings</translation>
    </message>
    <message id="MESS_PROJECT_SYSTEM">
        <source>Coordinate system: %1</source>
        <translation>Coordinate system: %1</translation>
    </message>
    <message id="MESS_PROJECT_TERRAIN">
        <source>Terrain: %1</source>
        <translation>Terrain: %1</translation>
    </message>
    <message id="MESS_PROJECT_BUILDINGS">
        <source>Buildings: %1</source>
        <translation>Buildings: %1</translation>
    </message>
    <message id="MESS_PROJECT_STATES_NONE">
        <source>none</source>
        <translation>none</translation>
    </message>
    <message id="MESS_PROJECT_NO_SYSTEM">
        <source>that of the terrain</source>
        <translation>that of the terrain</translation>
    </message>
    <message id="MESS_PROJECT_LACKS_FILE">
        <source>%1 (this file does not exist)</source>
        <translation>%1 (this file does not exist)</translation>
    </message>
    <message id="MESS_START_INTRO">
        <source>Makes layers for Veltaro Builder from tables of sites or links and from outlines of buildings, and shows them in 3D.</source>
        <translation>Makes layers for Veltaro Builder from tables of sites or links and from outlines of buildings, and shows them in 3D.</translation>
    </message>
    <message id="MESS_TRY_SAMPLE">
        <source>&amp;Try the sample project</source>
        <translation>&amp;Try the sample project</translation>
    </message>
    <message id="MESS_TIP_TRY_SAMPLE">
        <source>Open the sites of a sample town, with its project and terrain</source>
        <translation>Open the sites of a sample town, with its project and terrain</translation>
    </message>
</context>
</TS>
