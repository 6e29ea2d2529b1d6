<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Display of buildings</name>
    <message id="MESS_TAB_COLORING">
        <source>Color map</source>
        <translation>Palette</translation>
    </message>
    <message id="MESS_DRAG_ICON_TEXB">
        <source>Drag this icon into
Veltaro Builder
to add the building layer
</source>
        <translation>Faites glisser cette icône
dans Veltaro Builder pour
ajouter la couche de bâtiments
</translation>
    </message>
    <message id="MESS_TEXTURED_REPR">
        <source>Textured representation</source>
        <translation>Représentation texturée</translation>
    </message>
    <message id="MESS_TEXTURE_TYPE">
        <source>Images on</source>
        <translation>Images sur</translation>
    </message>
    <message id="MESS_TIP_TEXTURE_TYPE">
        <source>Roofs: the image nearest to the height of the building. Walls: bands of colors around each image height. Storeys: a floor at each image height</source>
        <translation>Toits&#xa0;: l'image dont la hauteur est la plus proche de celle du bâtiment. Murs&#xa0;: une bande de couleurs autour de la hauteur de chaque image. Étages&#xa0;: un plancher à la hauteur de chaque image</translation>
    </message>
    <message id="MESS_TEX_ROOFS">
        <source>Roofs</source>
        <translation>Toits</translation>
    </message>
    <message id="MESS_TEX_WALLS">
        <source>Walls</source>
        <translation>Murs</translation>
    </message>
    <message id="MESS_TEX_STOREYS">
        <source>Storeys</source>
        <translation>Étages</translation>
    </message>
    <message id="MESS_TEXTURED_DISTANCE">
        <source>Shown up to</source>
        <translation>Visibles jusqu'à</translation>
    </message>
    <message id="MESS_TIP_TEXTURED_DISTANCE">
        <source>Maximum distance at which the images are shown; beyond it the buildings are plain</source>
        <translation>Distance maximale à laquelle les images sont affichées ; au-delà, les bâtiments sont unis</translation>
    </message>
    <message id="MESS_EDGES">
        <source>Edges</source>
        <translation>Arêtes</translation>
    </message>
    <message id="MESS_TIP_EDGE_COLOR">
        <source>Color of the lines along the edges of the buildings and the storeys</source>
        <translation>Couleur des traits le long des arêtes des bâtiments et des étages</translation>
    </message>
    <message id="MESS_TIP_FORCE_EDGES">
        <source>Draw the edges also with images on roofs or walls</source>
        <translation>Tracer les arêtes même avec des images sur les toits ou les murs</translation>
    </message>
    <message id="MESS_FORCE_EDGES">
        <source>Always draw edges</source>
        <translation>Toujours tracées</translation>
    </message>
    <message id="MESS_TIP_COMPLEX_BUILDINGS">
        <source>Put images also on buildings with courtyards or many corners, which takes longer</source>
        <translation>Poser aussi des images sur les bâtiments à cour ou à nombreux angles, ce qui prend plus de temps</translation>
    </message>
    <message id="MESS_COMPLEX_BUILDINGS">
        <source>Images on complex buildings too</source>
        <translation>Images aussi sur les bâtiments complexes</translation>
    </message>
    <message id="MESS_TEX_IMAGES">
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message id="MESS_TEX_COMPRESSION">
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message id="MESS_TIP_TEX_COMPRESSION">
        <source>Format of the images in the memory of the graphics card</source>
        <translation>Format des images dans la mémoire de la carte graphique</translation>
    </message>
    <message id="MESS_TEX_UNCOMPRESSED">
        <source>Uncompressed</source>
        <translation>Sans compression</translation>
    </message>
    <message id="MESS_TEX_RESAMPLING">
        <source>Resampling</source>
        <translation>Rééchantillonnage</translation>
    </message>
    <message id="MESS_TIP_TEX_RESAMPLING">
        <source>Drawing of an image at a short distance: each pixel as it is, or blended with its neighbours</source>
        <translation>Aspect d'une image à courte distance : chaque pixel tel quel, ou fondu avec ses voisins</translation>
    </message>
    <message id="MESS_RESAMPLING_NONE">
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message id="MESS_RESAMPLING_LINEAR">
        <source>Linear</source>
        <translation>Linéaire</translation>
    </message>
    <message id="MESS_TIP_TEX_BUFFER">
        <source>Distance from a wall to the positions of its colors, outside the building</source>
        <translation>Distance d'un mur aux positions de ses couleurs, à l'extérieur du bâtiment</translation>
    </message>
    <message id="MESS_TEX_BUFFER">
        <source>Buffer</source>
        <translation>Tampon</translation>
    </message>
    <message id="MESS_TIP_TEX_DILATATION">
        <source>Number of pixels by which the colors of an image grow into empty pixels</source>
        <translation>Nombre de pixels dont les couleurs d'une image débordent sur les pixels vides</translation>
    </message>
    <message id="MESS_TEX_DILATATION">
        <source>Dilatation</source>
        <translation>Dilatation</translation>
    </message>
    <message id="MESS_UNIT_PIXELS">
        <source> px</source>
        <translation> px</translation>
    </message>
    <message id="MESS_CACHE">
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message id="MESS_CACHE_KEEP">
        <source>Keep</source>
        <translation>Conserver</translation>
    </message>
    <message id="MESS_TIP_CACHE">
        <source>Finished buildings that the builder stores on the disk</source>
        <translation>Bâtiments terminés que Veltaro Builder conserve sur le disque</translation>
    </message>
    <message id="MESS_CACHE_NOTHING">
        <source>Nothing</source>
        <translation>Rien</translation>
    </message>
    <message id="MESS_CACHE_EVERYTHING">
        <source>Everything</source>
        <translation>Tout</translation>
    </message>
    <message id="MESS_CACHE_TEXTURED">
        <source>Textured only</source>
        <translation>Texturés seulement</translation>
    </message>
    <message id="MESS_CACHE_EXTRUDED">
        <source>Extruded only</source>
        <translation>Extrudés seulement</translation>
    </message>
    <message id="MESS_TIP_CACHE_DELAYED">
        <source>Write several elements together instead of each one at once</source>
        <translation>Écrire plusieurs éléments ensemble au lieu de chacun aussitôt</translation>
    </message>
    <message id="MESS_CACHE_DELAYED">
        <source>Write later</source>
        <translation>Écriture différée</translation>
    </message>
    <message id="MESS_CACHE_CAPACITY">
        <source>Waiting elements</source>
        <translation>Éléments en attente</translation>
    </message>
    <message id="MESS_TIP_CACHE_CAPACITY">
        <source>Number of elements that wait before they are written</source>
        <translation>Nombre d'éléments qui attendent avant d'être écrits</translation>
    </message>
    <message id="MESS_EXTRUDED_REPR">
        <source>Colors of the extruded representation</source>
        <translation>Couleurs de la représentation extrudée</translation>
    </message>
    <message id="MESS_COLORS_WALLS">
        <source>Walls</source>
        <translation>Murs</translation>
    </message>
    <message id="MESS_TIP_WALL_KIND">
        <source>Source of the color of walls without an image</source>
        <translation>Source de la couleur des murs sans image</translation>
    </message>
    <message id="MESS_COLOR_ONE">
        <source>One color</source>
        <translation>Une couleur</translation>
    </message>
    <message id="MESS_COLOR_FROM_MAP">
        <source>From a color map</source>
        <translation>D'une palette</translation>
    </message>
    <message id="MESS_TIP_ONE_COLOR">
        <source>Choose the color</source>
        <translation>Choisir la couleur</translation>
    </message>
    <message id="MESS_COLORS_ROOFS">
        <source>Roofs</source>
        <translation>Toits</translation>
    </message>
    <message id="MESS_TIP_ROOF_KIND">
        <source>Source of the color of roofs without an image</source>
        <translation>Source de la couleur des toits sans image</translation>
    </message>
    <message id="MESS_TIP_COLORING">
        <source>Choose the image and the color map for both walls and roofs</source>
        <translation>Choisir l'image et la palette, communes aux murs et aux toits</translation>
    </message>
    <message id="MESS_COLORING_ADD">
        <source>Image and color map...</source>
        <translation>Image et palette...</translation>
    </message>
    <message id="MESS_NO_IMAGE_TICKED">
        <source>No image is ticked: the buildings are shown without images.</source>
        <translation>Aucune image n'est cochée&#xa0;: les bâtiments sont affichés sans images.</translation>
    </message>
    <message id="MESS_EDGE_COLOR">
        <source>Color of the edges</source>
        <translation>Couleur des arêtes</translation>
    </message>
    <message id="MESS_WALL_COLOR">
        <source>Color of the walls</source>
        <translation>Couleur des murs</translation>
    </message>
    <message id="MESS_ROOF_COLOR">
        <source>Color of the roofs</source>
        <translation>Couleur des toits</translation>
    </message>
    <message id="MESS_DRAG_NAME_TEXB">
        <source>Layer of buildings to drag into the builder</source>
        <translation>Couche de bâtiments à faire glisser dans Veltaro Builder</translation>
    </message>
</context>
</TS>
