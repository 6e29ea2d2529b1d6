<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Textured page</name>
    <message id="MESS_DATA_STRUCTURE">
        <source>Data structure</source>
        <translation>Data structure</translation>
    </message>
    <message id="MESS_TIP_DATA_STRUCTURE">
        <source>Folders of the images, relative to the template image; a change applies to the next choice of a template</source>
        <translation>Folders of the images, relative to the template image; a change applies to the next choice of a template</translation>
    </message>
    <message id="MESS_DS_SAME_FOLDER">
        <source>All images are in the same folder</source>
        <translation>All images are in the same folder</translation>
    </message>
    <message id="MESS_DS_FOLDER_ONE_LVL">
        <source>Images are in folders at the same level</source>
        <translation>Images are in folders at the same level</translation>
    </message>
    <message id="MESS_DS_FOLDER_TWO_LVL">
        <source>Images are in folders separated by two levels</source>
        <translation>Images are in folders separated by two levels</translation>
    </message>
    <message id="MESS_DEF_TMPLT_IMG">
        <source>Define  the template image...</source>
        <translation>Choose the template image...</translation>
    </message>
    <message id="MESS_TIP_TEMPLATE">
        <source>Choose one of the images; all images with the same suffix in these folders are listed. You can also drop a file on the page</source>
        <translation>Choose one of the images; all images with the same suffix in these folders are listed. You can also drop a file on the page</translation>
    </message>
    <message id="MESS_FILTER_PATTERN">
        <source>Filter images with this pattern</source>
        <translation>Filter images with this pattern</translation>
    </message>
    <message id="MESS_TIP_TEXTURE_FILTER">
        <source>Show only the images with this text in their file name, folder or description, or with a matching height</source>
        <translation>Show only the images with this text in their file name, folder or description, or with a matching height</translation>
    </message>
    <message id="MESS_USE_ALL_SHOWN">
        <source>Use all shown</source>
        <translation>Use all shown</translation>
    </message>
    <message id="MESS_TIP_USE_ALL_SHOWN">
        <source>Tick all images that the table shows</source>
        <translation>Tick all images that the table shows</translation>
    </message>
    <message id="MESS_USE_NONE_SHOWN">
        <source>Use none shown</source>
        <translation>Use none shown</translation>
    </message>
    <message id="MESS_TIP_USE_NONE_SHOWN">
        <source>Untick all images that the table shows</source>
        <translation>Untick all images that the table shows</translation>
    </message>
    <message id="MESS_TEXTURE_IMAGES">
        <source>Texture images</source>
        <translation>Texture images</translation>
    </message>
    <message id="MESS_COPIER">
        <source>copy</source>
        <translation>copy</translation>
    </message>
    <message id="MESS_SELECT_TMPT_TEX">
        <source>Select one of the texture files</source>
        <translation>Select one of the texture files</translation>
    </message>
    <message id="MESS_LOOKING_FOR_IMAGES">
        <source>Looking for images...</source>
        <translation>Looking for images...</translation>
    </message>
    <message id="MESS_TEXTURE_COUNTS">
        <source>Images: %1  •  shown: %2  •  used: %3</source>
        <translation>Images: %1  •  shown: %2  •  used: %3</translation>
    </message>
    <message id="MESS_NO_TEXTURE_MATCHES">
        <source>no image matches the filter</source>
        <translation>no image matches the filter</translation>
    </message>
    <message id="MESS_TEMPLATE_MEANING">
        <source>The template image is any one of the images: its folder and suffix select the others.</source>
        <translation>The template image is any one of the images: its folder and suffix select the others.</translation>
    </message>
    <message id="MESS_DROP_IMAGE">
        <source>Drop one of the images here</source>
        <translation>Drop one of the images here</translation>
    </message>
    <message id="MESS_DROP_IMAGE_KINDS">
        <source>Rasters with a position on the ground: GeoTIFF, PNG, JPEG or BMP with a world file, grids (.grc, .grd) and others.
One image for each height, which is read from the image or from its name, for example "coverage_12m.tif".</source>
        <translation>Rasters with a position on the ground: GeoTIFF, PNG, JPEG or BMP with a world file, grids (.grc, .grd) and others.
One image for each height, which is read from the image or from its name, for example "coverage_12m.tif".</translation>
    </message>
    <message id="MESS_IMAGE_UNREADABLE">
        <source>This image cannot be read</source>
        <translation>This image cannot be read</translation>
    </message>
    <message id="MESS_IMAGE_NOT_PLACED">
        <source>no position on the ground: it cannot be shown on buildings</source>
        <translation>no position on the ground: it cannot be shown on buildings</translation>
    </message>
</context>
</TS>
