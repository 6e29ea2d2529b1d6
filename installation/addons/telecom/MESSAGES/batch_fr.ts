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
        <source>Makes a layer of 3D buildings, the same that the wizard makes: colored from a raster (--image), with images on roofs, walls or storeys (--texture, --textures), or plain.</source>
        <translation>Crée une couche de bâtiments 3D, la même que celle de l'assistant&#xa0;: colorés d'après un raster (--image), avec des images sur les toits, les murs ou les étages (--texture, --textures), ou unis.</translation>
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
        <source>Raster of one band that the buildings are colored from: a file, or the name of one of its subdatasets.</source>
        <translation>Raster à une bande d'après lequel les bâtiments sont colorés&#xa0;: un fichier, ou le nom de l'une des images qu'il contient.</translation>
    </message>
    <message id="MESS_OPT_IMAGE_NODATA">
        <source>Value of the image's pixels without a value, besides those that the file states (default none).</source>
        <translation>Valeur des pixels de l'image sans donnée, en plus de celles que le fichier indique (par défaut&#xa0;: aucune).</translation>
    </message>
    <message id="MESS_OPT_COLORMAP">
        <source>Color map: one of the installation's by its name, or a file (default: the installation's first one).</source>
        <translation>Palette de couleurs&#xa0;: l'une de celles de l'installation, par son nom, ou un fichier (par défaut&#xa0;: la première de l'installation).</translation>
    </message>
    <message id="MESS_OPT_ABSOLUTE">
        <source>Take the color map's own values (default: it is stretched over the image's least and greatest value).</source>
        <translation>Prendre les valeurs propres de la palette (par défaut, elle est étirée entre la plus petite et la plus grande valeur de l'image).</translation>
    </message>
    <message id="MESS_OPT_COLOR_RANGES">
        <source>Color ranges of values (default: colors between two values of the map are interpolated).</source>
        <translation>Colorer des plages de valeurs (par défaut, les couleurs entre deux valeurs de la palette sont interpolées).</translation>
    </message>
    <message id="MESS_OPT_MODE">
        <source>Which of the values under a building colors it (default minimum).</source>
        <translation>Celle des valeurs sous un bâtiment qui lui donne sa couleur (par défaut minimum).</translation>
    </message>
    <message id="MESS_OPT_TEXTURE">
        <source>Image for the height above the ground that is given, or that it or its name states. May be given several times.</source>
        <translation>Image pour la hauteur au-dessus du sol qui est indiquée, ou que l'image ou son nom donne. Peut être répétée.</translation>
    </message>
    <message id="MESS_OPT_TEXTURES">
        <source>One image of a set; the others are found by it.</source>
        <translation>Une image d'un ensemble&#xa0;; les autres sont trouvées d'après elle.</translation>
    </message>
    <message id="MESS_OPT_STRUCTURE">
        <source>Where they are: in the template's folder (default), in the folders beside it, or in the folders of the folders beside its parent.</source>
        <translation>Où elles se trouvent&#xa0;: dans le dossier du modèle (par défaut), dans les dossiers voisins, ou dans les dossiers des dossiers voisins de son parent.</translation>
    </message>
    <message id="MESS_OPT_FILTER">
        <source>Of the set only images with this in their file name, folder, description or height.</source>
        <translation>De l'ensemble, seulement les images avec ce texte dans le nom, le dossier, la description ou la hauteur.</translation>
    </message>
    <message id="MESS_OPT_TEXTURE_ON">
        <source>Where the images go: roofs take the one nearest to their height, walls have a band for each, storeys are floors at the images' heights (default roofs).</source>
        <translation>Où vont les images&#xa0;: les toits (roofs) prennent la plus proche de leur hauteur, les murs (walls) ont une bande pour chacune, les étages (storeys) sont des planchers à leurs hauteurs (par défaut roofs).</translation>
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
        <source>Draw edges in any case.</source>
        <translation>Tracer les arêtes dans tous les cas.</translation>
    </message>
    <message id="MESS_OPT_NO_COMPLEX_BUILDINGS">
        <source>No images on buildings with courtyards or many corners.</source>
        <translation>Pas d'image sur les bâtiments avec des cours ou beaucoup d'angles.</translation>
    </message>
    <message id="MESS_OPT_CACHE">
        <source>What the builder keeps of the finished buildings (default none).</source>
        <translation>Ce que l'outil 3D garde des bâtiments terminés (par défaut none, rien).</translation>
    </message>
    <message id="MESS_OPT_DELAYED_WRITE">
        <source>Write to the cache only when --cache-capacity elements wait.</source>
        <translation>N'écrire dans le cache que lorsque --cache-capacity éléments attendent.</translation>
    </message>
    <message id="MESS_OPT_COMPRESSION">
        <source>Compression of the images in graphics memory (default none).</source>
        <translation>Compression des images en mémoire graphique (par défaut none, aucune).</translation>
    </message>
    <message id="MESS_OPT_MAGNIFY">
        <source>How pixels are drawn from near: as squares (default), or blended.</source>
        <translation>Affichage des pixels de près&#xa0;: en carrés (par défaut), ou fondus.</translation>
    </message>
    <message id="MESS_OPT_DISTANCE">
        <source>Distance in metres up to which the buildings are shown</source>
        <translation>Distance en mètres jusqu'à laquelle les bâtiments sont affichés</translation>
    </message>
    <message id="MESS_OPT_TILE_SIZE">
        <source>Side in metres of the tiles that the buildings are shared out to</source>
        <translation>Côté en mètres des tuiles entre lesquelles les bâtiments sont répartis</translation>
    </message>
    <message id="MESS_OPT_SKIRT">
        <source>Metres that walls go down below the ground</source>
        <translation>Mètres dont les murs descendent sous le sol</translation>
    </message>
    <message id="MESS_OPT_TEXTURED_DISTANCE">
        <source>Distance in metres up to which the images are shown</source>
        <translation>Distance en mètres jusqu'à laquelle les images sont affichées</translation>
    </message>
    <message id="MESS_OPT_CACHE_CAPACITY">
        <source>Elements that wait before they are written to the cache</source>
        <translation>Nombre d'éléments qui attendent avant l'écriture dans le cache</translation>
    </message>
    <message id="MESS_OPT_BUFFER">
        <source>Metres outside a wall at which its colors are taken</source>
        <translation>Mètres à l'extérieur d'un mur où ses couleurs sont prises</translation>
    </message>
    <message id="MESS_OPT_DILATATION">
        <source>Pixels by which the colors of an image grow into empty ones</source>
        <translation>Pixels dont les couleurs d'une image débordent sur les pixels vides</translation>
    </message>
    <message id="MESS_OPT_TOWN_OUTPUT">
        <source>Layer file to write; the building document is written beside it as OUT.texb, the legend of a color map as NAME_gradient.png.</source>
        <translation>Fichier de couche à écrire&#xa0;; le document des bâtiments est écrit à côté sous le nom OUT.texb, la légende d'une palette sous le nom NOM_gradient.png.</translation>
    </message>
    <message id="MESS_OPT_DTM">
        <source>Terrain raster that the buildings stand on (default: the project's).</source>
        <translation>Raster du terrain sur lequel les bâtiments se dressent (par défaut&#xa0;: celui du projet).</translation>
    </message>
    <message id="MESS_OPT_DTM_NODATA">
        <source>Value of the terrain where its height is not known (default: what the file states).</source>
        <translation>Valeur du terrain là où sa hauteur n'est pas connue (par défaut&#xa0;: celle que le fichier indique).</translation>
    </message>
    <message id="MESS_OPT_VECTOR_LAYER">
        <source>Layer of the vector file (default: the first one of polygons).</source>
        <translation>Couche du fichier vectoriel (par défaut&#xa0;: la première de polygones).</translation>
    </message>
    <message id="MESS_OPT_HEIGHT_FIELD">
        <source>Field with the heights of the buildings (default: AGL, H, HEIGHT or COLOR, else the second one).</source>
        <translation>Champ des hauteurs des bâtiments (par défaut&#xa0;: AGL, H, HEIGHT ou COLOR, sinon le deuxième).</translation>
    </message>
    <message id="MESS_OPT_CHECK_CLOCKWISE">
        <source>Have the directions of the outlines checked.</source>
        <translation>Faire vérifier le sens des contours.</translation>
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
        <source>--texture and --textures do not go together</source>
        <translation>--texture et --textures ne vont pas ensemble</translation>
    </message>
    <message id="MESS_USE_ONLY_IMAGE">
        <source>%1 is only for --image</source>
        <translation>%1 ne va qu'avec --image</translation>
    </message>
    <message id="MESS_USE_ONLY_SET">
        <source>%1 is only for --textures</source>
        <translation>%1 ne va qu'avec --textures</translation>
    </message>
    <message id="MESS_USE_ONLY_TEXTURES">
        <source>%1 is only for --texture and --textures</source>
        <translation>%1 ne va qu'avec --texture et --textures</translation>
    </message>
    <message id="MESS_USE_NOT_IMAGE">
        <source>%1 is not for buildings that --image colors alone</source>
        <translation>%1 n'est pas pour les bâtiments que --image seule colore</translation>
    </message>
    <message id="MESS_USE_NO_VALUE">
        <source>%1 needs a value</source>
        <translation>%1 attend une valeur</translation>
    </message>
    <message id="MESS_USE_NEEDS_CACHE">
        <source>--%1 needs a --cache</source>
        <translation>--%1 ne va qu'avec --cache</translation>
    </message>
    <message id="MESS_USE_NEEDS_IMAGE">
        <source>colormap as a color needs --image</source>
        <translation>colormap comme couleur ne va qu'avec --image</translation>
    </message>
    <message id="MESS_USE_NEEDS_COLORMAP">
        <source>--image colors these buildings only with --wall-color colormap or --roof-color colormap</source>
        <translation>--image ne colore ces bâtiments qu'avec --wall-color colormap ou --roof-color colormap</translation>
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
        <source>'-o -': a layer of buildings lies beside its document, it has to be a file</source>
        <translation>'-o -'&#xa0;: une couche de bâtiments se trouve à côté de son document, elle doit être un fichier</translation>
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
        <source>'-': the standard input is not read, inputs are files</source>
        <translation>«&#xa0;-&#xa0;»&#xa0;: l'entrée standard n'est pas lue, les entrées sont des fichiers</translation>
    </message>
    <message id="MESS_OPT_INSTALL">
        <source>Root of the installation (default: where the program's settings say, else the program's own directory).</source>
        <translation>Racine de l'installation (par défaut&#xa0;: là où les réglages du programme l'indiquent, sinon le dossier du programme).</translation>
    </message>
    <message id="MESS_OPT_PROJECT">
        <source>Target project: its reference system and terrain choose the coordinate systems, and the layer names the table relative to it; buildings: its buildings and terrain are the defaults.</source>
        <translation>Projet cible&#xa0;: son système de référence et son terrain choisissent les systèmes de coordonnées, et la couche nomme le tableau par rapport à lui&#xa0;; bâtiments&#xa0;: les siens et son terrain sont pris par défaut.</translation>
    </message>
    <message id="MESS_OPT_LANGUAGE">
        <source>Language of messages and of the layer.</source>
        <translation>Langue des messages et de la couche.</translation>
    </message>
    <message id="MESS_OPT_JSON">
        <source>Print one JSON object (UTF-8); errors, too.</source>
        <translation>Afficher un objet JSON (UTF-8), pour les erreurs aussi.</translation>
    </message>
    <message id="MESS_OPT_QUIET">
        <source>Tell nothing on the error output but errors.</source>
        <translation>Ne rien dire d'autre que les erreurs sur la sortie d'erreur.</translation>
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
        <source>'-o -' and %1 do not go together: both write to the standard output</source>
        <translation>'-o -' et %1 ne vont pas ensemble&#xa0;: les deux écrivent sur la sortie standard</translation>
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
        <source>the options of a command</source>
        <translation>les options d'une commande</translation>
    </message>
    <message id="MESS_HELP_PROGRAM_USAGE">
        <source>COMMAND [OPTION]...</source>
        <translation>COMMANDE [OPTION]...</translation>
    </message>
    <message id="MESS_HELP_PROGRAM">
        <source>Makes layers of telecom tables and of buildings for a 3D project.</source>
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
        <source>what tables hold</source>
        <translation>ce que des tableaux contiennent</translation>
    </message>
    <message id="MESS_HELP_INFO">
        <source>Tells what a table of sites or links holds: format, unit, coordinate systems, recognised columns, and the rows that cannot be used.</source>
        <translation>Indique ce que contient un tableau de sites ou de liaisons&#xa0;: format, unité, systèmes de coordonnées, colonnes reconnues, et les lignes qui ne peuvent pas être utilisées.</translation>
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
        <source>Coordinate system of the table (default: what the table declares, else 4326 for degrees, else the terrain's).</source>
        <translation>Système de coordonnées du tableau (par défaut&#xa0;: ce que le tableau déclare, sinon 4326 pour des degrés, sinon celui du terrain).</translation>
    </message>
    <message id="MESS_OPT_TARGET_SRS">
        <source>Coordinate system of the project (default: the project's, else the terrain's, else 4326 for degrees, else the table's).</source>
        <translation>Système de coordonnées du projet (par défaut&#xa0;: celui du projet, sinon celui du terrain, sinon 4326 pour des degrés, sinon celui du tableau).</translation>
    </message>
    <message id="MESS_OPT_SHEET">
        <source>Sheet of a workbook (default: the one whose header names sites or links).</source>
        <translation>Feuille d'un classeur (par défaut&#xa0;: celle dont l'en-tête nomme des sites ou des liaisons).</translation>
    </message>
    <message id="MESS_OPT_ENCODING">
        <source>Encoding of a text file, such as CP1250 (default: found from its bytes).</source>
        <translation>Encodage d'un fichier texte, tel que CP1250 (par défaut&#xa0;: trouvé d'après ses octets).</translation>
    </message>
    <message id="MESS_OPT_DELIMITER">
        <source>What separates the columns of a text file (default: found from its lines).</source>
        <translation>Ce qui sépare les colonnes d'un fichier texte (par défaut&#xa0;: trouvé d'après ses lignes).</translation>
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
        <source>Makes the same layer from a table of microwave links as the wizard, and checks the clearance of each link over the terrain.</source>
        <translation>Crée la même couche que l'assistant à partir d'un tableau de liaisons hertziennes, et vérifie le dégagement de chaque liaison au-dessus du terrain.</translation>
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
        <source>Width of the links, pixels for lines, else metres</source>
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
        <source>How links are drawn (default %1).</source>
        <translation>Manière de tracer les liaisons (par défaut %1).</translation>
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
        <source>Makes a site layer of a table, the same that the wizard makes.</source>
        <translation>Crée une couche de sites à partir d'un tableau, la même que celle de l'assistant.</translation>
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
        <source>Sector colors: a set's number in the catalogue, from 1, or its name in any language (default 1).</source>
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
        <source>Makes a picture (PNG) of a layer or of another scene file. It needs an X server; without a screen xvfb-run gives one.</source>
        <translation>Crée une image (PNG) d'une couche ou d'un autre fichier de scène. Un serveur X est nécessaire&#xa0;; sans écran, xvfb-run en fournit un.</translation>
    </message>
    <message id="MESS_HELP_SNAPSHOT_LAYER">
        <source>Layer (.lay), building document (.texb), any scene file that the scene library reads, or a parametric object inline://parametric/query?...</source>
        <translation>Couche (.lay), document de bâtiments (.texb), tout fichier de scène que la bibliothèque de scènes sait lire, ou un objet paramétrique inline://parametric/query?...</translation>
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
        <source>all: everything, from the south-west (default); symbolic: the sectors of the site in the middle; precise: its mast and antennas.</source>
        <translation>all&#xa0;: l'ensemble, depuis le sud-ouest (par défaut)&#xa0;; symbolic&#xa0;: les secteurs du site du milieu&#xa0;; precise&#xa0;: son mât et ses antennes.</translation>
    </message>
    <message id="MESS_OPT_SHOW_TERRAIN">
        <source>Links: show the surface of the project's terrain, too.</source>
        <translation>Liaisons&#xa0;: montrer aussi la surface du terrain du projet.</translation>
    </message>
    <message id="MESS_USE_NO_PICTURE">
        <source>no output file given (-o PICTURE.png)</source>
        <translation>aucun fichier de sortie n'est indiqué (-o PICTURE.png)</translation>
    </message>
    <message id="MESS_USE_PNG">
        <source>the picture is a PNG: its name has to end in .png</source>
        <translation>l'image est un PNG&#xa0;: son nom doit finir par .png</translation>
    </message>
    <message id="MESS_USE_SIZE">
        <source>WxH, each of %1 to %2 pixels</source>
        <translation>LxH, de %1 à %2 pixels chacune</translation>
    </message>
    <message id="MESS_CLI_TABLE_NO_SCENE">
        <source>a table becomes a layer first, by "vltlayers site" or "vltlayers link"</source>
        <translation>un tableau devient d'abord une couche, par «&#xa0;vltlayers site&#xa0;» ou «&#xa0;vltlayers link&#xa0;»</translation>
    </message>
    <message id="MESS_CLI_NO_INSTALL_DIR">
        <source>no such install directory</source>
        <translation>ce dossier d'installation n'existe pas</translation>
    </message>
    <message id="MESS_USE_DID_YOU_MEAN">
        <source>; did you mean '%1'?</source>
        <translation>&#xa0;; vouliez-vous dire '%1'&#xa0;?</translation>
    </message>
    <message id="MESS_USE_NO_COMMAND">
        <source>no such command: %1</source>
        <translation>commande inconnue&#xa0;: %1</translation>
    </message>
    <message id="MESS_USE_COMMAND_MISSING">
        <source>no command given</source>
        <translation>aucune commande n'est indiquée</translation>
    </message>
    <message id="MESS_CLI_NAME_NOT_UTF8">
        <source>this name is not in UTF-8: give the file another one</source>
        <translation>ce nom n'est pas en UTF-8&#xa0;: donnez-en un autre au fichier</translation>
    </message>
</context>
</TS>
