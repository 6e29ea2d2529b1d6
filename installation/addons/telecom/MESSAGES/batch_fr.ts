<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Command line</name>
    <message id="MESS_CLI_WHY">
        <source>why</source>
        <translation>raison</translation>
    </message>
    <message id="MESS_HELP_BUILDINGS_SUMMARY">
        <source>make a layer of buildings</source>
        <translation>créer une couche de bâtiments</translation>
    </message>
    <message id="MESS_HELP_BUILDINGS">
        <source>Makes a layer of 3D buildings, like the wizard: colored from a raster (--image), with images on roofs, walls or storeys (--texture, --textures), or plain.</source>
        <translation>Crée une couche de bâtiments 3D, comme l'assistant : colorés d'après un raster (--image), avec des images sur les toits, les murs ou les étages (--texture, --textures), ou unis.</translation>
    </message>
    <message id="MESS_HELP_BUILDINGS_VECTOR">
        <source>Vector file with the outlines of the buildings (default: the project's).</source>
        <translation>Fichier vectoriel des emprises des bâtiments (par défaut&#xa0;: celui du projet).</translation>
    </message>
    <message id="MESS_USE_NO_VECTOR">
        <source>no vector file given</source>
        <translation>aucun fichier vectoriel n'est indiqué</translation>
    </message>
    <message id="MESS_USE_NO_VECTOR_NOR_PROJECT">
        <source>no vector file given, and no --project</source>
        <translation>ni fichier vectoriel ni --project ne sont indiqués</translation>
    </message>
    <message id="MESS_USE_NO_DTM_NOR_PROJECT">
        <source>no terrain given (--dtm), and no --project</source>
        <translation>ni terrain (--dtm) ni --project ne sont indiqués</translation>
    </message>
    <message id="MESS_CLI_OUTPUT_FAILED">
        <source>the output cannot be written</source>
        <translation>la sortie ne peut pas être écrite</translation>
    </message>
    <message id="MESS_OPT_IMAGE">
        <source>Raster whose values color the buildings: a file, or the name of an image in a file; no picture of colors.</source>
        <translation>Raster dont les valeurs colorent les bâtiments : un fichier, ou le nom d'une image d'un fichier  ; pas d'image en couleurs.</translation>
    </message>
    <message id="MESS_OPT_IMAGE_NODATA">
        <source>Value of pixels without data, in addition to the value that the file declares (default none).</source>
        <translation>Valeur des pixels sans donnée, en plus de celle que le fichier déclare (par défaut : aucune).</translation>
    </message>
    <message id="MESS_OPT_COLORMAP">
        <source>Color map: one of the installation's by its name, or a file (default: the installation's first one).</source>
        <translation>Palette de couleurs&#xa0;: l'une de celles de l'installation, par son nom, ou un fichier (par défaut&#xa0;: la première de l'installation).</translation>
    </message>
    <message id="MESS_OPT_ABSOLUTE">
        <source>Use the color map's own values (default: the map is stretched between the image's minimum and maximum value).</source>
        <translation>Utiliser les valeurs propres de la palette (par défaut, elle est étirée entre les valeurs minimale et maximale de l'image).</translation>
    </message>
    <message id="MESS_OPT_COLOR_RANGES">
        <source>Use one color for each range of values (default: colors between two values of the map are interpolated).</source>
        <translation>Utiliser une seule couleur par plage de valeurs (par défaut, les couleurs entre deux valeurs de la palette sont interpolées).</translation>
    </message>
    <message id="MESS_OPT_MODE">
        <source>Value under a building that determines its color (default minimum).</source>
        <translation>Valeur sous un bâtiment qui détermine sa couleur (par défaut minimum).</translation>
    </message>
    <message id="MESS_OPT_TEXTURE">
        <source>Image for a height in metres above the ground: the given height, else the height in the image's metadata or name. May be given several times.</source>
        <translation>Image pour une hauteur en mètres au-dessus du sol : la hauteur indiquée, sinon celle des métadonnées ou du nom de l'image. Peut être répétée.</translation>
    </message>
    <message id="MESS_OPT_TEXTURES">
        <source>One image of a set; the others are those with the same suffix.</source>
        <translation>Une image d'un ensemble ; les autres sont celles de même extension.</translation>
    </message>
    <message id="MESS_OPT_STRUCTURE">
        <source>Folders of the set: the image's folder (default), its sibling folders, or the folders in the sibling folders of its parent.</source>
        <translation>Dossiers de l'ensemble : le dossier de l'image (par défaut), les dossiers voisins, ou les dossiers des dossiers voisins de son parent.</translation>
    </message>
    <message id="MESS_OPT_FILTER">
        <source>Use only images of the set with this text in their file name, folder, description or height.</source>
        <translation>N'utiliser que les images de l'ensemble avec ce texte dans le nom de fichier, le dossier, la description ou la hauteur.</translation>
    </message>
    <message id="MESS_OPT_TEXTURE_ON">
        <source>Position of the images: roofs show the image with the nearest height, walls have a band for each image, storeys are floors at the images' heights (default roofs).</source>
        <translation>Position des images : les toits (roofs) prennent l'image de hauteur la plus proche, les murs (walls) ont une bande pour chaque image, les étages (storeys) sont des planchers aux hauteurs des images (par défaut roofs).</translation>
    </message>
    <message id="MESS_OPT_WALL_COLOR">
        <source>Color of walls without an image, or colormap: from --image (default %1).</source>
        <translation>Couleur des murs sans image, ou colormap&#xa0;: d'après --image (par défaut %1).</translation>
    </message>
    <message id="MESS_OPT_ROOF_COLOR">
        <source>Color of roofs without an image, or colormap: from --image (default %1).</source>
        <translation>Couleur des toits sans image, ou colormap&#xa0;: d'après --image (par défaut %1).</translation>
    </message>
    <message id="MESS_OPT_EDGE_COLOR">
        <source>Color of edges (default %1).</source>
        <translation>Couleur des arêtes (par défaut %1).</translation>
    </message>
    <message id="MESS_OPT_FORCE_EDGES">
        <source>Always draw edges.</source>
        <translation>Toujours tracer les arêtes.</translation>
    </message>
    <message id="MESS_OPT_NO_COMPLEX_BUILDINGS">
        <source>No images on buildings with courtyards or many corners.</source>
        <translation>Pas d'image sur les bâtiments avec des cours ou beaucoup d'angles.</translation>
    </message>
    <message id="MESS_OPT_CACHE">
        <source>Finished buildings that the builder stores (default none).</source>
        <translation>Bâtiments terminés que l'outil 3D conserve (par défaut none, aucun).</translation>
    </message>
    <message id="MESS_OPT_DELAYED_WRITE">
        <source>Write to the cache only when --cache-capacity elements are waiting.</source>
        <translation>N'écrire dans le cache que lorsque --cache-capacity éléments sont en attente.</translation>
    </message>
    <message id="MESS_OPT_COMPRESSION">
        <source>Compression of the images in graphics memory (default none).</source>
        <translation>Compression des images en mémoire graphique (par défaut none, aucune).</translation>
    </message>
    <message id="MESS_OPT_MAGNIFY">
        <source>Drawing of pixels at a short distance: as squares (default), or blended.</source>
        <translation>Affichage des pixels à courte distance : en carrés (par défaut), ou fondus.</translation>
    </message>
    <message id="MESS_OPT_DISTANCE">
        <source>Maximum distance in metres at which the buildings are shown</source>
        <translation>Distance maximale en mètres à laquelle les bâtiments sont affichés</translation>
    </message>
    <message id="MESS_OPT_TILE_SIZE">
        <source>Side of the tiles of buildings in metres</source>
        <translation>Côté des tuiles de bâtiments en mètres</translation>
    </message>
    <message id="MESS_OPT_SKIRT">
        <source>Depth of the walls below the ground in metres</source>
        <translation>Profondeur des murs sous le sol en mètres</translation>
    </message>
    <message id="MESS_OPT_TEXTURED_DISTANCE">
        <source>Maximum distance in metres at which the images are shown</source>
        <translation>Distance maximale en mètres à laquelle les images sont affichées</translation>
    </message>
    <message id="MESS_OPT_CACHE_CAPACITY">
        <source>Number of elements that wait before they are written to the cache</source>
        <translation>Nombre d'éléments qui attendent avant l'écriture dans le cache</translation>
    </message>
    <message id="MESS_OPT_BUFFER">
        <source>Distance in metres from a wall to the positions of its colors, outside the building</source>
        <translation>Distance en mètres d'un mur aux positions de ses couleurs, à l'extérieur du bâtiment</translation>
    </message>
    <message id="MESS_OPT_DILATATION">
        <source>Number of pixels by which the colors of an image grow into empty pixels</source>
        <translation>Nombre de pixels dont les couleurs d'une image débordent sur les pixels vides</translation>
    </message>
    <message id="MESS_OPT_TOWN_OUTPUT">
        <source>Layer file to write; the building document is written beside it as OUT.texb, and the legend of a color map as NAME_gradient.png.</source>
        <translation>Fichier de couche à écrire&#xa0;; le document des bâtiments est écrit à côté sous le nom OUT.texb, la légende d'une palette sous le nom NOM_gradient.png.</translation>
    </message>
    <message id="MESS_OPT_DTM">
        <source>Terrain raster under the buildings (default: the project's).</source>
        <translation>Raster du terrain sous les bâtiments (par défaut : celui du projet).</translation>
    </message>
    <message id="MESS_OPT_DTM_NODATA">
        <source>Value of the terrain for unknown heights (default: the value that the file declares).</source>
        <translation>Valeur du terrain pour les altitudes inconnues (par défaut : celle que le fichier déclare).</translation>
    </message>
    <message id="MESS_OPT_VECTOR_LAYER">
        <source>Layer of the vector file (default: the first one of polygons).</source>
        <translation>Couche du fichier vectoriel (par défaut&#xa0;: la première de polygones).</translation>
    </message>
    <message id="MESS_OPT_HEIGHT_FIELD">
        <source>Field with the heights of the buildings (default: AGL, H, HEIGHT or COLOR, else the second one, else the likeliest by its name).</source>
        <translation>Champ des hauteurs des bâtiments (par défaut&#xa0;: AGL, H, HEIGHT ou COLOR, sinon le deuxième, sinon le plus vraisemblable par son nom).</translation>
    </message>
    <message id="MESS_OPT_CHECK_CLOCKWISE">
        <source>Check the directions of the outlines.</source>
        <translation>Vérifier le sens des contours.</translation>
    </message>
    <message id="MESS_USE_COLOR_OR_MAP">
        <source>RRGGBB, a name such as red or the word colormap</source>
        <translation>RRGGBB, un nom tel que red, ou le mot colormap</translation>
    </message>
    <message id="MESS_USE_COLOR">
        <source>RRGGBB or a name such as red</source>
        <translation>RRGGBB ou un nom tel que red</translation>
    </message>
    <message id="MESS_USE_ANY_NUMBER">
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message id="MESS_USE_BOTH_TEXTURES">
        <source>--texture and --textures cannot be combined</source>
        <translation>--texture et --textures ne peuvent pas être combinées</translation>
    </message>
    <message id="MESS_USE_ONLY_IMAGE">
        <source>%1 needs --image</source>
        <translation>%1 ne va qu'avec --image</translation>
    </message>
    <message id="MESS_USE_ONLY_SET">
        <source>%1 needs --textures</source>
        <translation>%1 ne va qu'avec --textures</translation>
    </message>
    <message id="MESS_USE_ONLY_TEXTURES">
        <source>%1 needs --texture or --textures</source>
        <translation>%1 ne va qu'avec --texture ou --textures</translation>
    </message>
    <message id="MESS_USE_NOT_IMAGE">
        <source>%1 cannot be used when --image alone colors the buildings</source>
        <translation>%1 ne peut pas être utilisée lorsque --image seule colore les bâtiments</translation>
    </message>
    <message id="MESS_USE_NO_VALUE">
        <source>%1 needs a value</source>
        <translation>%1 attend une valeur</translation>
    </message>
    <message id="MESS_USE_NEEDS_CACHE">
        <source>--%1 needs --cache</source>
        <translation>--%1 ne va qu'avec --cache</translation>
    </message>
    <message id="MESS_USE_NEEDS_IMAGE">
        <source>the color colormap needs --image</source>
        <translation>la couleur colormap ne va qu'avec --image</translation>
    </message>
    <message id="MESS_USE_NEEDS_COLORMAP">
        <source>--image needs --wall-color colormap or --roof-color colormap for these buildings</source>
        <translation>pour ces bâtiments, --image ne va qu'avec --wall-color colormap ou --roof-color colormap</translation>
    </message>
    <message id="MESS_USE_TEXTURES_EMPTY">
        <source>--texture and --textures need a value</source>
        <translation>--texture et --textures attendent une valeur</translation>
    </message>
    <message id="MESS_USE_NO_OUTPUT">
        <source>no output file given (-o OUT.lay)</source>
        <translation>aucun fichier de sortie n'est indiqué (-o OUT.lay)</translation>
    </message>
    <message id="MESS_USE_NO_STANDARD_OUTPUT">
        <source>'-o -': a layer of buildings must be a file, because its document is written beside it</source>
        <translation>'-o -' : une couche de bâtiments doit être un fichier, car son document est écrit à côté</translation>
    </message>
    <message id="MESS_USE_UNKNOWN_OPTION">
        <source>unknown option '%1'</source>
        <translation>option inconnue&#xa0;: '%1'</translation>
    </message>
    <message id="MESS_USE_A_VALUE">
        <source>%1 takes no value</source>
        <translation>%1 ne prend pas de valeur</translation>
    </message>
    <message id="MESS_USE_TWICE">
        <source>%1 is given more than once</source>
        <translation>%1 est indiquée plus d'une fois</translation>
    </message>
    <message id="MESS_USE_TOO_MANY">
        <source>too many arguments: %1</source>
        <translation>trop d'arguments&#xa0;: %1</translation>
    </message>
    <message id="MESS_USE_NO_INPUT">
        <source>'-': inputs are files, the standard input is not read</source>
        <translation>« - » : les entrées sont des fichiers, l'entrée standard n'est pas lue</translation>
    </message>
    <message id="MESS_OPT_INSTALL">
        <source>Root of the installation (default: the directory in the program's settings, else the program's own directory).</source>
        <translation>Racine de l'installation (par défaut : le dossier indiqué par les réglages du programme, sinon celui du programme).</translation>
    </message>
    <message id="MESS_OPT_PROJECT">
        <source>Target project: its reference system and terrain determine the default coordinate systems, and the path of the table in the layer is relative to its directory. For buildings, its buildings and terrain are the defaults.</source>
        <translation>Projet cible : son système de référence et son terrain déterminent les systèmes de coordonnées par défaut, et le chemin du tableau dans la couche est relatif à son dossier. Pour les bâtiments, les siens et son terrain sont pris par défaut.</translation>
    </message>
    <message id="MESS_OPT_LANGUAGE">
        <source>Language of messages and of the layer.</source>
        <translation>Langue des messages et de la couche.</translation>
    </message>
    <message id="MESS_OPT_JSON">
        <source>Print one JSON object (UTF-8), also for errors.</source>
        <translation>Afficher un objet JSON (UTF-8), pour les erreurs aussi.</translation>
    </message>
    <message id="MESS_OPT_QUIET">
        <source>Print only errors on the error output.</source>
        <translation>N'afficher que les erreurs sur la sortie d'erreur.</translation>
    </message>
    <message id="MESS_OPT_HELP">
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message id="MESS_OPT_VERSION">
        <source>Show the versions of the program and of its libraries.</source>
        <translation>Afficher les versions du programme et de ses bibliothèques.</translation>
    </message>
    <message id="MESS_USE_TWO_OUTPUTS">
        <source>'-o -' and %1 cannot be combined: both write to the standard output</source>
        <translation>'-o -' et %1 ne peuvent pas être combinées : les deux écrivent sur la sortie standard</translation>
    </message>
    <message id="MESS_USE_WRONG_VALUE">
        <source>--%1 is %2, not "%3"</source>
        <translation>--%1 attend %2, pas «&#xa0;%3&#xa0;»</translation>
    </message>
    <message id="MESS_HELP_EXAMPLES">
        <source>Examples:</source>
        <translation>Exemples&#xa0;:</translation>
    </message>
    <message id="MESS_HELP_EXIT">
        <source>Exit status: 0 done, 1 an input was refused (nothing is written), 2 wrong usage.</source>
        <translation>Code de retour&#xa0;: 0 terminé, 1 entrée refusée (rien n'est écrit), 2 utilisation incorrecte.</translation>
    </message>
    <message id="MESS_HELP_USAGE">
        <source>Usage: %1</source>
        <translation>Utilisation&#xa0;: %1</translation>
    </message>
    <message id="MESS_HELP_GENERAL_OPTIONS">
        <source>Options of every command:</source>
        <translation>Options de toutes les commandes&#xa0;:</translation>
    </message>
    <message id="MESS_HELP_OPTION">
        <source>[OPTION]...</source>
        <translation>[OPTION]...</translation>
    </message>
    <message id="MESS_HELP_ARGUMENTS">
        <source>Arguments:</source>
        <translation>Arguments&#xa0;:</translation>
    </message>
    <message id="MESS_HELP_OPTIONS">
        <source>Options:</source>
        <translation>Options&#xa0;:</translation>
    </message>
    <message id="MESS_HELP_HELP">
        <source>help [COMMAND]</source>
        <translation>help [COMMANDE]</translation>
    </message>
    <message id="MESS_HELP_HELP_SUMMARY">
        <source>show the options of a command</source>
        <translation>afficher les options d'une commande</translation>
    </message>
    <message id="MESS_HELP_PROGRAM_USAGE">
        <source>COMMAND [OPTION]...</source>
        <translation>COMMANDE [OPTION]...</translation>
    </message>
    <message id="MESS_HELP_PROGRAM">
        <source>Makes layers of a 3D project from telecom tables and buildings.</source>
        <translation>Crée des couches d'un projet 3D à partir de tableaux télécom et de bâtiments.</translation>
    </message>
    <message id="MESS_HELP_COMMANDS">
        <source>Commands:</source>
        <translation>Commandes&#xa0;:</translation>
    </message>
    <message id="MESS_USE_TRY">
        <source>try '%1'</source>
        <translation>essayez '%1'</translation>
    </message>
    <message id="MESS_HELP_INFO_SUMMARY">
        <source>show the properties of tables</source>
        <translation>afficher les propriétés de tableaux</translation>
    </message>
    <message id="MESS_HELP_INFO">
        <source>Shows the properties of tables of sites or links: format, unit, coordinate systems, recognised columns, and the rows that cannot be used.</source>
        <translation>Affiche les propriétés de tableaux de sites ou de liaisons : format, unité, systèmes de coordonnées, colonnes reconnues, et les lignes qui ne peuvent pas être utilisées.</translation>
    </message>
    <message id="MESS_HELP_INFO_TABLE">
        <source>Site or link table (.xls .xlsx .xml .csv); one or more.</source>
        <translation>Tableau de sites ou de liaisons (.xls .xlsx .xml .csv)&#xa0;; un ou plusieurs.</translation>
    </message>
    <message id="MESS_USE_NO_TABLE">
        <source>no table given</source>
        <translation>aucun tableau n'est indiqué</translation>
    </message>
    <message id="MESS_OPT_INFO_LINK">
        <source>The tables have microwave links, not sites.</source>
        <translation>Les tableaux contiennent des liaisons hertziennes, pas des sites.</translation>
    </message>
    <message id="MESS_CLI_ENCODING">
        <source>Encoding</source>
        <translation>Encodage</translation>
    </message>
    <message id="MESS_OPT_OUTPUT">
        <source>Layer file to write; - for the standard output.</source>
        <translation>Fichier de couche à écrire&#xa0;; - pour la sortie standard.</translation>
    </message>
    <message id="MESS_OPT_SOURCE_SRS">
        <source>Coordinate system of the table (default: the one that the table declares, else 4326 for degrees, else the terrain's, the one that the table names, or the project's).</source>
        <translation>Système de coordonnées du tableau (par défaut : celui que le tableau déclare, sinon 4326 pour des degrés, sinon celui du terrain, celui que le tableau nomme ou celui du projet).</translation>
    </message>
    <message id="MESS_OPT_TARGET_SRS">
        <source>Coordinate system of the project (default: the project's, else the terrain's, else 4326 for degrees, else the table's).</source>
        <translation>Système de coordonnées du projet (par défaut&#xa0;: celui du projet, sinon celui du terrain, sinon 4326 pour des degrés, sinon celui du tableau).</translation>
    </message>
    <message id="MESS_OPT_SHEET">
        <source>Sheet of a workbook (default: the sheet that holds sites or links).</source>
        <translation>Feuille d'un classeur (par défaut : celle qui contient des sites ou des liaisons).</translation>
    </message>
    <message id="MESS_OPT_ENCODING">
        <source>Encoding of a text file, such as CP1250 (default: the encoding that fits its bytes).</source>
        <translation>Encodage d'un fichier texte, tel que CP1250 (par défaut : celui qui correspond à ses octets).</translation>
    </message>
    <message id="MESS_OPT_DELIMITER">
        <source>Separator of the columns of a text file (default: the separator that fits its lines).</source>
        <translation>Séparateur des colonnes d'un fichier texte (par défaut : celui qui correspond à ses lignes).</translation>
    </message>
    <message id="MESS_USE_ENCODING">
        <source>the name of an encoding</source>
        <translation>le nom d'un encodage</translation>
    </message>
    <message id="MESS_HELP_LINK_SUMMARY">
        <source>make a layer of links, check their clearance</source>
        <translation>créer une couche de liaisons, vérifier leur dégagement</translation>
    </message>
    <message id="MESS_HELP_LINK">
        <source>Makes a layer from a table of microwave links, like the wizard, and checks the clearance of each link over the terrain.</source>
        <translation>Crée une couche à partir d'un tableau de liaisons hertziennes, comme l'assistant, et vérifie le dégagement de chaque liaison au-dessus du terrain.</translation>
    </message>
    <message id="MESS_HELP_LINK_TABLE">
        <source>Link table (.xls .xlsx .xml .csv).</source>
        <translation>Tableau de liaisons (.xls .xlsx .xml .csv).</translation>
    </message>
    <message id="MESS_OPT_TERRAIN">
        <source>Terrain file under the links (default: the project's; empty: none).</source>
        <translation>Fichier du terrain sous les liaisons (par défaut&#xa0;: celui du projet&#xa0;; vide&#xa0;: aucun).</translation>
    </message>
    <message id="MESS_OPT_REPORT">
        <source>Print length, frequency, clearance and worst point of each link. The layer file is then optional.</source>
        <translation>Afficher la longueur, la fréquence, le dégagement et le point le plus défavorable de chaque liaison. Le fichier de couche est alors facultatif.</translation>
    </message>
    <message id="MESS_USE_NO_OUTPUT_NOR_REPORT">
        <source>no output file given (-o OUT.lay), and no --report</source>
        <translation>ni fichier de sortie (-o OUT.lay) ni --report ne sont indiqués</translation>
    </message>
    <message id="MESS_OPT_LINK_WIDTH">
        <source>Width of the links, in pixels for lines, else in metres</source>
        <translation>Largeur des liaisons, en pixels pour les lignes, sinon en mètres</translation>
    </message>
    <message id="MESS_OPT_FRESNEL_ZONE">
        <source>Number of the Fresnel zone that is drawn, 0 for none</source>
        <translation>Numéro de la zone de Fresnel qui est tracée, 0 pour aucune</translation>
    </message>
    <message id="MESS_OPT_FRESNEL_SHARE">
        <source>Share of the zone's radius that is drawn, and share of the first zone's radius that must be free, in per cent</source>
        <translation>Part du rayon de la zone qui est tracée, et part du rayon de la première zone qui doit être libre, en pour cent</translation>
    </message>
    <message id="MESS_OPT_FRESNEL_TRANSPARENCY">
        <source>Transparency of the Fresnel zone in per cent</source>
        <translation>Transparence de la zone de Fresnel en pour cent</translation>
    </message>
    <message id="MESS_OPT_K_FACTOR">
        <source>Effective radius of the earth divided by its real radius, 1.33333 for a standard atmosphere</source>
        <translation>Rayon effectif de la Terre divisé par son rayon réel, 1.33333 pour une atmosphère standard</translation>
    </message>
    <message id="MESS_USE_COLOR_ALPHA">
        <source>RRGGBB, RRGGBBAA or a name such as red</source>
        <translation>RRGGBB, RRGGBBAA ou un nom tel que red</translation>
    </message>
    <message id="MESS_OPT_LINK_STYLE">
        <source>Representation of the links (default %1).</source>
        <translation>Représentation des liaisons (par défaut %1).</translation>
    </message>
    <message id="MESS_OPT_LINK_COLOR">
        <source>Color of the links (default %1).</source>
        <translation>Couleur des liaisons (par défaut %1).</translation>
    </message>
    <message id="MESS_OPT_COLOR_BY_CLEARANCE">
        <source>Color each link by its clearance, if it can be computed.</source>
        <translation>Colorer chaque liaison selon son dégagement, s'il peut être calculé.</translation>
    </message>
    <message id="MESS_OPT_FRESNEL_COLOR">
        <source>Color of the Fresnel zone (default %1).</source>
        <translation>Couleur de la zone de Fresnel (par défaut %1).</translation>
    </message>
    <message id="MESS_OPT_RANGE">
        <source>%1, %2 to %3 (default %4).</source>
        <translation>%1, de %2 à %3 (par défaut %4).</translation>
    </message>
    <message id="MESS_OPT_RANGE_UNUSED">
        <source>%1, %2 to %3 (default: not used).</source>
        <translation>%1, de %2 à %3 (par défaut&#xa0;: non utilisé).</translation>
    </message>
    <message id="MESS_USE_INTEGER">
        <source>an integer of %1 to %2</source>
        <translation>un entier de %1 à %2</translation>
    </message>
    <message id="MESS_USE_NUMBER">
        <source>a number of %1 to %2</source>
        <translation>un nombre de %1 à %2</translation>
    </message>
    <message id="MESS_HELP_SITE_SUMMARY">
        <source>make a layer of sites</source>
        <translation>créer une couche de sites</translation>
    </message>
    <message id="MESS_HELP_SITE">
        <source>Makes a site layer from a table, like the wizard.</source>
        <translation>Crée une couche de sites à partir d'un tableau, comme l'assistant.</translation>
    </message>
    <message id="MESS_HELP_SITE_TABLE">
        <source>Site table (.xls .xlsx .xml .csv).</source>
        <translation>Tableau de sites (.xls .xlsx .xml .csv).</translation>
    </message>
    <message id="MESS_OPT_SECTOR_HEIGHT">
        <source>Sector height in metres</source>
        <translation>Hauteur des secteurs en mètres</translation>
    </message>
    <message id="MESS_OPT_SECTOR_RADIUS">
        <source>Sector radius in metres</source>
        <translation>Rayon des secteurs en mètres</translation>
    </message>
    <message id="MESS_OPT_SECTOR_SPACING">
        <source>Vertical spacing between sectors in metres</source>
        <translation>Espacement vertical entre les secteurs en mètres</translation>
    </message>
    <message id="MESS_OPT_TRANSPARENCY">
        <source>Transparency of the sectors in per cent</source>
        <translation>Transparence des secteurs en pour cent</translation>
    </message>
    <message id="MESS_OPT_SYMBOLIC_DISTANCE">
        <source>Apparition distance of the symbolic representation in metres</source>
        <translation>Distance d'apparition de la représentation symbolique en mètres</translation>
    </message>
    <message id="MESS_OPT_PYLON_WIDTH">
        <source>Width of the pylons in metres</source>
        <translation>Largeur des pylônes en mètres</translation>
    </message>
    <message id="MESS_OPT_ANTENNA_SIZE">
        <source>Antennas size in per cent</source>
        <translation>Taille des antennes en pour cent</translation>
    </message>
    <message id="MESS_OPT_REALISTIC_DISTANCE">
        <source>Apparition distance of the precise representation in metres</source>
        <translation>Distance d'apparition de la représentation précise en mètres</translation>
    </message>
    <message id="MESS_USE_NOT_IN_CATALOGUE">
        <source>--%1: no "%2" (%3)</source>
        <translation>--%1&#xa0;: «&#xa0;%2&#xa0;» n'existe pas (%3)</translation>
    </message>
    <message id="MESS_OPT_SECTOR_COLORS">
        <source>Sector colors: the number of a set in the catalogue, from 1, or its name in any language (default 1).</source>
        <translation>Couleurs des secteurs&#xa0;: le numéro d'un jeu dans le catalogue, à partir de 1, ou son nom dans n'importe quelle langue (par défaut 1).</translation>
    </message>
    <message id="MESS_OPT_PYLON_TYPE">
        <source>Type of pylons, or its number in the catalogue, from 1, or its name in any language (default 1).</source>
        <translation>Type des pylônes, ou son numéro dans le catalogue, à partir de 1, ou son nom dans n'importe quelle langue (par défaut 1).</translation>
    </message>
    <message id="MESS_HELP_COLOR_SETS">
        <source>Sector colors:</source>
        <translation>Couleurs des secteurs&#xa0;:</translation>
    </message>
    <message id="MESS_HELP_PYLON_TYPES">
        <source>Types of pylons:</source>
        <translation>Types de pylônes&#xa0;:</translation>
    </message>
    <message id="MESS_HELP_SNAPSHOT_SUMMARY">
        <source>make a picture of a layer</source>
        <translation>créer une image d'une couche</translation>
    </message>
    <message id="MESS_HELP_SNAPSHOT">
        <source>Makes a picture (PNG) of a layer or of another scene file. It needs an X server; xvfb-run provides one on a computer without a screen.</source>
        <translation>Crée une image (PNG) d'une couche ou d'un autre fichier de scène. Un serveur X est nécessaire&#xa0;; sans écran, xvfb-run en fournit un.</translation>
    </message>
    <message id="MESS_HELP_SNAPSHOT_LAYER">
        <source>Layer (.lay), building document (.texb), any scene file that the scene library reads, or a parametric object inline://parametric/query?... Several layers are shown together at their places.</source>
        <translation>Couche (.lay), document de bâtiments (.texb), tout fichier de scène que la bibliothèque de scènes sait lire, ou un objet paramétrique inline://parametric/query?... Plusieurs couches sont montrées ensemble, à leur place.</translation>
    </message>
    <message id="MESS_USE_NO_LAYER">
        <source>no layer given</source>
        <translation>aucune couche n'est indiquée</translation>
    </message>
    <message id="MESS_OPT_PICTURE">
        <source>Picture to write, *.png; - for the standard output.</source>
        <translation>Image à écrire, *.png&#xa0;; - pour la sortie standard.</translation>
    </message>
    <message id="MESS_OPT_SIZE">
        <source>Width and height in pixels, %1 to %2 each (default 1280x960).</source>
        <translation>Largeur et hauteur en pixels, de %1 à %2 chacune (par défaut 1280x960).</translation>
    </message>
    <message id="MESS_OPT_VIEW">
        <source>all: everything, from the south-west (default); north: the same towards true north; top: from above, true north up; symbolic: the sectors of the site in the middle; precise: its mast and antennas; site:ID or link:ID: the site or the link of this name, or #N for the one in row N.</source>
        <translation>all&#xa0;: l'ensemble, depuis le sud-ouest (par défaut)&#xa0;; north&#xa0;: la même chose vers le nord géographique&#xa0;; top&#xa0;: vue de dessus, nord géographique en haut&#xa0;; symbolic&#xa0;: les secteurs du site du milieu&#xa0;; precise&#xa0;: son mât et ses antennes&#xa0;; site:ID ou link:ID&#xa0;: le site ou la liaison de ce nom, ou #N pour celui ou celle de la ligne N.</translation>
    </message>
    <message id="MESS_OPT_SHOW_TERRAIN">
        <source>Terrain for the ground (default: that of the layer, else of the project). Without any, the ground is level and has a metric grid.</source>
        <translation>Terrain du sol (par défaut : celui de la couche, sinon celui du projet). Sans terrain, le sol est plat et porte une grille métrique.</translation>
    </message>
    <message id="MESS_OPT_IMAGERY">
        <source>Image to lay over the ground: any local raster with a georeference, in colors, gray or with a palette.</source>
        <translation>Image à poser sur le sol : tout raster local géoréférencé, en couleurs, en niveaux de gris ou avec palette.</translation>
    </message>
    <message id="MESS_OPT_TRANSPARENT">
        <source>Leave the background transparent: no sky and no level ground. A terrain stays unless --no-ground is given.</source>
        <translation>Laisser le fond transparent : ni ciel ni sol plat. Un terrain reste, sauf avec --no-ground.</translation>
    </message>
    <message id="MESS_OPT_PICTURE_TITLE">
        <source>Title on the picture, in its upper left corner.</source>
        <translation>Titre sur l'image, dans son coin supérieur gauche.</translation>
    </message>
    <message id="MESS_OPT_PICTURE_NORTH">
        <source>Draw an arrow to true north, and a scale bar that is valid in the middle of the picture.</source>
        <translation>Tracer une flèche vers le nord géographique et une barre d'échelle valable au milieu de l'image.</translation>
    </message>
    <message id="MESS_OPT_PICTURE_LEGEND">
        <source>Draw the legend: colors of sectors, of clearances, of values of buildings.</source>
        <translation>Tracer la légende&#xa0;: couleurs des secteurs, des dégagements, des valeurs des bâtiments.</translation>
    </message>
    <message id="MESS_OPT_NO_GROUND">
        <source>Show no ground below the layer.</source>
        <translation>Ne montrer aucun sol sous la couche.</translation>
    </message>
    <message id="MESS_OPT_LABELS">
        <source>Names of sites and links: as many as suit the picture (some, the default), as many as have room (all), or none.</source>
        <translation>Noms des sites et des liaisons : autant qu'il convient à l'image (some, par défaut), tous ceux qui ont la place (all) ou aucun (none).</translation>
    </message>
    <message id="MESS_USE_NO_PICTURE">
        <source>no output file given (-o PICTURE.png)</source>
        <translation>aucun fichier de sortie n'est indiqué (-o PICTURE.png)</translation>
    </message>
    <message id="MESS_USE_PNG">
        <source>the picture is in PNG format: its name must end in .png</source>
        <translation>l'image est au format PNG : son nom doit finir par .png</translation>
    </message>
    <message id="MESS_USE_SIZE">
        <source>WxH, each of %1 to %2 pixels</source>
        <translation>LxH, de %1 à %2 pixels chacune</translation>
    </message>
    <message id="MESS_CLI_TABLE_NO_SCENE">
        <source>this is a table: make a layer of it with "vltlayers site" or "vltlayers link" first</source>
        <translation>c'est un tableau : faites-en d'abord une couche avec « vltlayers site » ou « vltlayers link »</translation>
    </message>
    <message id="MESS_CLI_NO_INSTALL_DIR">
        <source>this install directory does not exist</source>
        <translation>ce dossier d'installation n'existe pas</translation>
    </message>
    <message id="MESS_USE_DID_YOU_MEAN">
        <source>; did you mean '%1'?</source>
        <translation>&#xa0;; vouliez-vous dire '%1'&#xa0;?</translation>
    </message>
    <message id="MESS_USE_NO_COMMAND">
        <source>unknown command: %1</source>
        <translation>commande inconnue&#xa0;: %1</translation>
    </message>
    <message id="MESS_USE_COMMAND_MISSING">
        <source>no command given</source>
        <translation>aucune commande n'est indiquée</translation>
    </message>
    <message id="MESS_CLI_NAME_NOT_UTF8">
        <source>this name is not in UTF-8: rename the file</source>
        <translation>ce nom n'est pas en UTF-8 : renommez le fichier</translation>
    </message>
    <message id="MESS_OPT_SWAP_AXES">
        <source>Exchange the coordinates: the table has latitudes in the column of longitudes, or northings in that of eastings.</source>
        <translation>Inverse les coordonnées&#xa0;: le tableau a les latitudes dans la colonne des longitudes, ou les ordonnées dans celle des abscisses.</translation>
    </message>
    <message id="MESS_OPT_SITES">
        <source>Table of the sites at the ends of links that are only named (default: another sheet of the workbook).</source>
        <translation>Tableau des sites aux extrémités des liaisons qui sont seulement nommées (par défaut&#xa0;: une autre feuille du classeur).</translation>
    </message>
    <message id="MESS_OPT_SECTORS">
        <source>Table of the transmitters, each with the id of its site (default: another sheet of the workbook).</source>
        <translation>Tableau des émetteurs, chacun avec l'identifiant de son site (par défaut&#xa0;: une autre feuille du classeur).</translation>
    </message>
    <message id="MESS_USE_SECTORS_OF_LINKS">
        <source>--sectors and --link cannot be combined</source>
        <translation>--sectors et --link ne peuvent pas être combinées</translation>
    </message>
    <message id="MESS_USE_SITES_OF_LINKS">
        <source>--sites needs --link</source>
        <translation>--sites ne va qu'avec --link</translation>
    </message>
    <message id="MESS_CLI_ROWS">
        <source>Rows</source>
        <translation>Lignes</translation>
    </message>
    <message id="MESS_CLI_SECOND_ROWS">
        <source>Rows of %1</source>
        <translation>Lignes de %1</translation>
    </message>
    <message id="MESS_CLI_READING_ROWS">
        <source>Reading the rows</source>
        <translation>Lecture des lignes</translation>
    </message>
    <message id="MESS_OPT_REJECTS">
        <source>Write the rows that are left out, with the columns of the table, to be corrected and opened again; of one table.</source>
        <translation>Écrire les lignes laissées de côté, avec les colonnes du tableau, pour les corriger et les ouvrir de nouveau&#xa0;; pour un seul tableau.</translation>
    </message>
    <message id="MESS_USE_FILE">
        <source>the name of a file</source>
        <translation>le nom d'un fichier</translation>
    </message>
    <message id="MESS_USE_ONE_TABLE_ROWS">
        <source>--report and --rejects can be used with one table only</source>
        <translation>--report et --rejects ne s'utilisent qu'avec un seul tableau</translation>
    </message>
    <message id="MESS_USE_SAME_ROW_FILE">
        <source>--report and --rejects need different files</source>
        <translation>--report et --rejects demandent des fichiers différents</translation>
    </message>
    <message id="MESS_OPT_MAPPING">
        <source>Mapping file that states the columns of the table, or none (default: the file TABLE.columns.json beside the table).</source>
        <translation>Fichier de correspondance qui indique les colonnes du tableau, ou none (par défaut&#xa0;: le fichier TABLE.columns.json à côté du tableau).</translation>
    </message>
    <message id="MESS_OPT_HEADER_ROW">
        <source>Rows of the file that name the columns, or none; for the mapping.</source>
        <translation>Lignes du fichier qui nomment les colonnes, ou none&#xa0;; pour la correspondance.</translation>
    </message>
    <message id="MESS_OPT_MAPPING_SRS">
        <source>Coordinate system of the table, as an EPSG code; for the mapping.</source>
        <translation>Système de coordonnées du tableau, sous forme de code EPSG&#xa0;; pour la correspondance.</translation>
    </message>
    <message id="MESS_OPT_WRITE_MAPPING">
        <source>Write what was understood as a mapping file, to be corrected: to FILE, else beside the table, else into the user's folder of data.</source>
        <translation>Écrire ce qui a été compris dans un fichier de correspondance, à corriger&#xa0;: dans FILE, sinon à côté du tableau, sinon dans le dossier de données de l'utilisateur.</translation>
    </message>
    <message id="MESS_USE_HEADER_ROW">
        <source>numbers of rows from 1 to %1, ascending, or none</source>
        <translation>des numéros de lignes de 1 à %1, croissants, ou none</translation>
    </message>
    <message id="MESS_USE_EPSG">
        <source>an EPSG code</source>
        <translation>un code EPSG</translation>
    </message>
    <message id="MESS_USE_ONE_MAPPING">
        <source>--write-mapping with the name of a file can be used with one table only</source>
        <translation>--write-mapping avec le nom d'un fichier ne s'utilise qu'avec un seul tableau</translation>
    </message>
    <message id="MESS_CLI_MAPPING">
        <source>Mapping file written: %1</source>
        <translation>Fichier de correspondance écrit&#xa0;: %1</translation>
    </message>
    <message id="MESS_OPT_ROW_REPORT">
        <source>Write a CSV file with the fate of every row (used, merged into a site, left out) and the reasons; of one table.</source>
        <translation>Écrire un fichier CSV avec le sort de chaque ligne (utilisée, réunie à un site, laissée de côté) et les raisons&#xa0;; pour un seul tableau.</translation>
    </message>
    <message id="MESS_OPT_CURES">
        <source>Put the cures of all mistakes in positions into the mapping that is written.</source>
        <translation>Ajoute à la correspondance écrite les corrections de toutes les erreurs de position.</translation>
    </message>
    <message id="MESS_USE_CURES">
        <source>--cures needs --write-mapping</source>
        <translation>--cures ne va qu'avec --write-mapping</translation>
    </message>
</context>
<context>
    <name>Link profile</name>
    <message id="MESS_OPT_PROFILE">
        <source>Draw the path of a link, given by its name or as #ROW, into the file of -o (.svg or .png), instead of a layer.</source>
        <translation>Dessiner le trajet d'une liaison, donnée par son nom ou par #LIGNE, dans le fichier de -o (.svg ou .png), au lieu d'une couche.</translation>
    </message>
    <message id="MESS_USE_PROFILE_OUTPUT">
        <source>the profile is a picture: give -o PROFILE.svg or PROFILE.png</source>
        <translation>le profil est une image&#xa0;: indiquez -o PROFIL.svg ou PROFIL.png</translation>
    </message>
    <message id="MESS_CLI_NO_SUCH_LINK">
        <source>there is no link '%1'%2</source>
        <translation>il n'y a pas de liaison «&#xa0;%1&#xa0;»%2</translation>
    </message>
    <message id="MESS_CLI_SAME_LINKS">
        <source>several links have the name '%1': give one of %2</source>
        <translation>plusieurs liaisons ont le nom «&#xa0;%1&#xa0;»&#xa0;: indiquez l'une de %2</translation>
    </message>
    <message id="MESS_CLI_LINK_NO_LENGTH">
        <source>the link '%1' has no profile: an end has no position, or both have the same</source>
        <translation>la liaison «&#xa0;%1&#xa0;» n'a pas de profil&#xa0;: une extrémité n'a pas de position, ou les deux ont la même</translation>
    </message>
</context>
</TS>
