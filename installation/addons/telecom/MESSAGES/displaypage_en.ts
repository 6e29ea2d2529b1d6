<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Display of buildings</name>
    <message id="MESS_TAB_COLORING">
        <source>Color map</source>
        <translation>Color map</translation>
    </message>
    <message id="MESS_DRAG_ICON_TEXB">
        <source>Drag this icon into
Veltaro Builder
to add the building layer
</source>
        <translation>Drag this icon into
Veltaro Builder
to add the building layer
</translation>
    </message>
    <message id="MESS_TEXTURED_REPR">
        <source>Textured representation</source>
        <translation>Textured representation</translation>
    </message>
    <message id="MESS_TEXTURE_TYPE">
        <source>Images on</source>
        <translation>Images on</translation>
    </message>
    <message id="MESS_TIP_TEXTURE_TYPE">
        <source>Roofs: the image nearest to the height of the building. Walls: bands of colors around each image height. Storeys: a floor at each image height</source>
        <translation>Roofs: the image nearest to the height of the building. Walls: bands of colors around each image height. Storeys: a floor at each image height</translation>
    </message>
    <message id="MESS_TEX_ROOFS">
        <source>Roofs</source>
        <translation>Roofs</translation>
    </message>
    <message id="MESS_TEX_WALLS">
        <source>Walls</source>
        <translation>Walls</translation>
    </message>
    <message id="MESS_TEX_STOREYS">
        <source>Storeys</source>
        <translation>Storeys</translation>
    </message>
    <message id="MESS_TEXTURED_DISTANCE">
        <source>Shown up to</source>
        <translation>Shown up to</translation>
    </message>
    <message id="MESS_TIP_TEXTURED_DISTANCE">
        <source>Maximum distance at which the images are shown; beyond it the buildings are plain</source>
        <translation>Maximum distance at which the images are shown; beyond it the buildings are plain</translation>
    </message>
    <message id="MESS_EDGES">
        <source>Edges</source>
        <translation>Edges</translation>
    </message>
    <message id="MESS_TIP_EDGE_COLOR">
        <source>Color of the lines along the edges of the buildings and the storeys</source>
        <translation>Color of the lines along the edges of the buildings and the storeys</translation>
    </message>
    <message id="MESS_TIP_FORCE_EDGES">
        <source>Draw the edges also with images on roofs or walls</source>
        <translation>Draw the edges also with images on roofs or walls</translation>
    </message>
    <message id="MESS_FORCE_EDGES">
        <source>Always draw edges</source>
        <translation>Always draw edges</translation>
    </message>
    <message id="MESS_TIP_COMPLEX_BUILDINGS">
        <source>Put images also on buildings with courtyards or many corners, which takes longer</source>
        <translation>Put images also on buildings with courtyards or many corners, which takes longer</translation>
    </message>
    <message id="MESS_COMPLEX_BUILDINGS">
        <source>Images on complex buildings too</source>
        <translation>Images on complex buildings too</translation>
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
        <translation>Format of the images in the memory of the graphics card</translation>
    </message>
    <message id="MESS_TEX_UNCOMPRESSED">
        <source>Uncompressed</source>
        <translation>Uncompressed</translation>
    </message>
    <message id="MESS_TEX_RESAMPLING">
        <source>Resampling</source>
        <translation>Resampling</translation>
    </message>
    <message id="MESS_TIP_TEX_RESAMPLING">
        <source>Drawing of an image at a short distance: each pixel as it is, or blended with its neighbours</source>
        <translation>Drawing of an image at a short distance: each pixel as it is, or blended with its neighbors</translation>
    </message>
    <message id="MESS_RESAMPLING_NONE">
        <source>None</source>
        <translation>None</translation>
    </message>
    <message id="MESS_RESAMPLING_LINEAR">
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message id="MESS_TIP_TEX_BUFFER">
        <source>Distance from a wall to the positions of its colors, outside the building</source>
        <translation>Distance from a wall to the positions of its colors, outside the building</translation>
    </message>
    <message id="MESS_TEX_BUFFER">
        <source>Buffer</source>
        <translation>Buffer</translation>
    </message>
    <message id="MESS_TIP_TEX_DILATATION">
        <source>Number of pixels by which the colors of an image grow into empty pixels</source>
        <translation>Number of pixels by which the colors of an image grow into empty pixels</translation>
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
        <translation>Keep</translation>
    </message>
    <message id="MESS_TIP_CACHE">
        <source>Finished buildings that the builder stores on the disk</source>
        <translation>Finished buildings that the builder stores on the disk</translation>
    </message>
    <message id="MESS_CACHE_NOTHING">
        <source>Nothing</source>
        <translation>Nothing</translation>
    </message>
    <message id="MESS_CACHE_EVERYTHING">
        <source>Everything</source>
        <translation>Everything</translation>
    </message>
    <message id="MESS_CACHE_TEXTURED">
        <source>Textured only</source>
        <translation>Textured only</translation>
    </message>
    <message id="MESS_CACHE_EXTRUDED">
        <source>Extruded only</source>
        <translation>Extruded only</translation>
    </message>
    <message id="MESS_TIP_CACHE_DELAYED">
        <source>Write several elements together instead of each one at once</source>
        <translation>Write several elements together instead of each one at once</translation>
    </message>
    <message id="MESS_CACHE_DELAYED">
        <source>Write later</source>
        <translation>Write later</translation>
    </message>
    <message id="MESS_CACHE_CAPACITY">
        <source>Waiting elements</source>
        <translation>Waiting elements</translation>
    </message>
    <message id="MESS_TIP_CACHE_CAPACITY">
        <source>Number of elements that wait before they are written</source>
        <translation>Number of elements that wait before they are written</translation>
    </message>
    <message id="MESS_EXTRUDED_REPR">
        <source>Colors of the extruded representation</source>
        <translation>Colors of the extruded representation</translation>
    </message>
    <message id="MESS_COLORS_WALLS">
        <source>Walls</source>
        <translation>Walls</translation>
    </message>
    <message id="MESS_TIP_WALL_KIND">
        <source>Source of the color of walls without an image</source>
        <translation>Source of the color of walls without an image</translation>
    </message>
    <message id="MESS_COLOR_ONE">
        <source>One color</source>
        <translation>One color</translation>
    </message>
    <message id="MESS_COLOR_FROM_MAP">
        <source>From a color map</source>
        <translation>From a color map</translation>
    </message>
    <message id="MESS_TIP_ONE_COLOR">
        <source>Choose the color</source>
        <translation>Choose the color</translation>
    </message>
    <message id="MESS_COLORS_ROOFS">
        <source>Roofs</source>
        <translation>Roofs</translation>
    </message>
    <message id="MESS_TIP_ROOF_KIND">
        <source>Source of the color of roofs without an image</source>
        <translation>Source of the color of roofs without an image</translation>
    </message>
    <message id="MESS_TIP_COLORING">
        <source>Choose the image and the color map for both walls and roofs</source>
        <translation>Choose the image and the color map for both walls and roofs</translation>
    </message>
    <message id="MESS_COLORING_ADD">
        <source>Image and color map...</source>
        <translation>Image and color map...</translation>
    </message>
    <message id="MESS_NO_IMAGE_TICKED">
        <source>No image is ticked: the buildings are shown without images.</source>
        <translation>No image is ticked: the buildings are shown without images.</translation>
    </message>
    <message id="MESS_EDGE_COLOR">
        <source>Color of the edges</source>
        <translation>Color of the edges</translation>
    </message>
    <message id="MESS_WALL_COLOR">
        <source>Color of the walls</source>
        <translation>Color of the walls</translation>
    </message>
    <message id="MESS_ROOF_COLOR">
        <source>Color of the roofs</source>
        <translation>Color of the roofs</translation>
    </message>
    <message id="MESS_DRAG_NAME_TEXB">
        <source>Layer of buildings to drag into the builder</source>
        <translation>Layer of buildings to drag into the builder</translation>
    </message>
</context>
</TS>
