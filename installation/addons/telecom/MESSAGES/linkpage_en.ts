<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Colour button</name>
    <message id="MESS_COLOR_OF">
        <source>%1: %2</source>
        <extracomment>What a colour is for, and the colour.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message id="MESS_COLOR_TRANSPARENT">
        <source>%1, %2 % transparent</source>
        <extracomment>A colour, and how transparent it is.</extracomment>
        <translation>%1, %2 % transparent</translation>
    </message>
</context>
<context>
    <name>Add-link page</name>
    <message id="MESS_LINK_LAYER_TITLE">
        <source>Link layer</source>
        <translation>Link layer</translation>
    </message>
    <message id="MESS_LINK_FILE">
        <source>Link file</source>
        <translation>Link file</translation>
    </message>
    <message id="MESS_LINK_FILE2">
        <source>Links file to display</source>
        <translation>Link file to display</translation>
    </message>
    <message id="MESS_NO_LINK_DEFINED">
        <source>No links file defined.
Select the links file to display.</source>
        <translation>No link file is chosen yet.
Choose the link file to display.</translation>
    </message>
    <message id="MESS_SELECT_LINK_FILE">
        <source>Select the link file to use</source>
        <translation>Select the link file to use</translation>
    </message>
    <message id="MESS_LINK_FILES">
        <source>Link files</source>
        <translation>Link files</translation>
    </message>
    <message id="MESS_PROJ_OF_THE_FILE">
        <source>Projection of the file</source>
        <translation>Projection of the file</translation>
    </message>
    <message id="MESS_READING_LINKS">
        <source>Reading the link file...</source>
        <translation>Reading the link file...</translation>
    </message>
    <message id="MESS_DRAG_ICON_LINK">
        <source>Drag this icon into
Veltaro Builder
to add the link layer
</source>
        <translation>Drag this icon into
Veltaro Builder
to add the link layer
</translation>
    </message>
    <message id="MESS_DRAG_NAME_LINK">
        <source>Link layer to drag into the builder</source>
        <translation>Link layer to drag into the builder</translation>
    </message>
    <message id="MESS_OWN_LINKS">
        <source>Links of the layer</source>
        <translation>Links of the layer</translation>
    </message>
    <message id="MESS_TIP_OWN_LINKS">
        <source>Show the links of the layer just written</source>
        <translation>Show the links of the layer just written</translation>
    </message>
    <message id="MESS_LOADING_LINKS">
        <source>Loading the links...</source>
        <translation>Loading the links...</translation>
    </message>
</context>
<context>
    <name>Link panel</name>
    <message id="MESS_LINE_OF_SIGHT">
        <source>Line of sight</source>
        <translation>Line of sight</translation>
    </message>
    <message id="MESS_LINK_STYLE">
        <source>Line &amp;style</source>
        <translation>Line &amp;style</translation>
    </message>
    <message id="MESS_TIP_LINK_STYLE">
        <source>Representation of the line between the two antennas</source>
        <translation>Representation of the line between the two antennas</translation>
    </message>
    <message id="MESS_STYLE_LINE">
        <source>Line</source>
        <extracomment>Same width in pixels at every distance.</extracomment>
        <translation>Line</translation>
    </message>
    <message id="MESS_STYLE_TUBE">
        <source>Tube</source>
        <translation>Tube</translation>
    </message>
    <message id="MESS_STYLE_BAND">
        <source>Band</source>
        <extracomment>Flat, turned to the viewer.</extracomment>
        <translation>Band</translation>
    </message>
    <message id="MESS_LINK_WIDTH">
        <source>&amp;Width</source>
        <translation>&amp;Width</translation>
    </message>
    <message id="MESS_TIP_LINK_WIDTH">
        <source>Width of the line: in pixels for a line, in metres for a tube or a band</source>
        <translation>Width of the line: in pixels for a line, in meters for a tube or a band</translation>
    </message>
    <message id="MESS_PIXELS">
        <source> px</source>
        <extracomment>Follows a number; keep the blank.</extracomment>
        <translation> px</translation>
    </message>
    <message id="MESS_LINK_COLOR">
        <source>&amp;Color</source>
        <translation>&amp;Color</translation>
    </message>
    <message id="MESS_TIP_LINK_COLOR">
        <source>Color of the line, also of links with an unknown clearance</source>
        <translation>Color of the line, also of links with an unknown clearance</translation>
    </message>
    <message id="MESS_PURPOSE_LINK_COLOR">
        <source>Color of the links</source>
        <translation>Color of the links</translation>
    </message>
    <message id="MESS_FRESNEL_ZONE">
        <source>&amp;Fresnel zone</source>
        <translation>&amp;Fresnel zone</translation>
    </message>
    <message id="MESS_TIP_FRESNEL_ZONE">
        <source>Draw an ellipsoid around the line of sight</source>
        <translation>Draw an ellipsoid around the line of sight</translation>
    </message>
    <message id="MESS_ZONE_NUMBER">
        <source>&amp;Number of the zone</source>
        <translation>&amp;Number of the zone</translation>
    </message>
    <message id="MESS_TIP_ZONE_NUMBER">
        <source>The first zone carries most of the power</source>
        <translation>The first zone carries most of the power</translation>
    </message>
    <message id="MESS_FRESNEL_COLOR">
        <source>C&amp;olor</source>
        <translation>C&amp;olor</translation>
    </message>
    <message id="MESS_TIP_FRESNEL_COLOR">
        <source>Color of the ellipsoid</source>
        <translation>Color of the ellipsoid</translation>
    </message>
    <message id="MESS_PURPOSE_FRESNEL_COLOR">
        <source>Color of the Fresnel zones</source>
        <translation>Color of the Fresnel zones</translation>
    </message>
    <message id="MESS_FRESNEL_TRANSPARENCY">
        <source>&amp;Transparency of the ellipsoid</source>
        <translation>&amp;Transparency of the ellipsoid</translation>
    </message>
    <message id="MESS_TIP_FRESNEL_TRANSPARENCY">
        <source>Transparency of the ellipsoid in per cent</source>
        <translation>Transparency of the ellipsoid in percent</translation>
    </message>
    <message id="MESS_CLEARANCE">
        <source>Clearance</source>
        <translation>Clearance</translation>
    </message>
    <message id="MESS_FRESNEL_SHARE">
        <source>Free &amp;radius</source>
        <translation>Free &amp;radius</translation>
    </message>
    <message id="MESS_TIP_FRESNEL_SHARE">
        <source>Share of the radius of the first Fresnel zone that must be free for a clear link; the ellipsoid is drawn with the same share</source>
        <translation>Share of the radius of the first Fresnel zone that must be free for a clear link; the ellipsoid is drawn with the same share</translation>
    </message>
    <message id="MESS_K_FACTOR">
        <source>&amp;k factor</source>
        <translation>&amp;k factor</translation>
    </message>
    <message id="MESS_TIP_K_FACTOR">
        <source>Effective radius of the earth divided by its real radius: the effect of refraction on the ray. 4/3 is the value of a standard atmosphere, smaller values are more cautious</source>
        <translation>Effective radius of the earth divided by its real radius: the effect of refraction on the ray. 4/3 is the value of a standard atmosphere, smaller values are more cautious</translation>
    </message>
    <message id="MESS_COLOR_BY_CLEARANCE">
        <source>Color the lines by clear&amp;ance</source>
        <translation>Color the lines by clear&amp;ance</translation>
    </message>
    <message id="MESS_TIP_COLOR_BY_CLEARANCE">
        <source>Clear, marginal and obstructed links each have their own color; the target project must have a terrain</source>
        <translation>Clear, marginal and obstructed links each have their own color; the target project must have a terrain</translation>
    </message>
</context>
<context>
    <name>Links of the table</name>
    <message id="MESS_LINK">
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message id="MESS_END_A">
        <source>End A</source>
        <translation>End A</translation>
    </message>
    <message id="MESS_END_B">
        <source>End B</source>
        <translation>End B</translation>
    </message>
    <message id="MESS_LENGTH_KM">
        <source>Length (km)</source>
        <translation>Length (km)</translation>
    </message>
    <message id="MESS_FREQUENCY_MHZ">
        <source>Frequency (MHz)</source>
        <translation>Frequency (MHz)</translation>
    </message>
    <message id="MESS_VERDICT">
        <source>Clearance</source>
        <translation>Clearance</translation>
    </message>
    <message id="MESS_WORST_POINT">
        <source>Worst point</source>
        <translation>Worst point</translation>
    </message>
    <message id="MESS_WORST_FREE">
        <source>%1 km from A, %2 m free (%3 %)</source>
        <extracomment>Distance, free height, share of the zone.</extracomment>
        <translation>%1 km from A, %2 m free (%3 %)</translation>
    </message>
    <message id="MESS_WORST_CUT">
        <source>%1 km from A, terrain %2 m above the line</source>
        <translation>%1 km from A, terrain %2 m above the line</translation>
    </message>
    <message id="MESS_TIP_UNJUDGED">
        <source>The clearance of a link needs the positions and antenna heights of both ends, a frequency and the terrain under the whole path</source>
        <translation>The clearance of a link needs the positions and antenna heights of both ends, a frequency and the terrain under the whole path</translation>
    </message>
    <message id="MESS_VERDICT_COUNTS">
        <source>%1 clear, %2 marginal, %3 obstructed</source>
        <translation>%1 clear, %2 marginal, %3 obstructed</translation>
    </message>
    <message id="MESS_UNJUDGED_COUNT">
        <source>, %1 unknown</source>
        <extracomment>Follows MESS_VERDICT_COUNTS.</extracomment>
        <translation>, %1 unknown</translation>
    </message>
    <message id="MESS_LINKS_NOT_JUDGED">
        <source>The clearance of the links is not known: %1</source>
        <translation>The clearance of the links is not known: %1</translation>
    </message>
    <message id="MESS_PROJECT_WITHOUT_TERRAIN">
        <source>the project has no terrain</source>
        <translation>the project has no terrain</translation>
    </message>
    <message id="MESS_LINKS_PLACED">
        <source>links placed: %1 of %2</source>
        <translation>links placed: %1 of %2</translation>
    </message>
    <message id="MESS_NO_LINK_PLACED">
        <source>no link can be placed</source>
        <translation>no link can be placed</translation>
    </message>
    <message id="MESS_COPY_ROWS">
        <source>&amp;Copy the rows</source>
        <translation>&amp;Copy the rows</translation>
    </message>
    <message id="MESS_TIP_LINK_DETAILS">
        <source>Show the recognised columns, the rows with problems and the clearance of every link</source>
        <translation>Show the recognized columns, the rows with problems and the clearance of every link</translation>
    </message>
    <message id="MESS_PROFILE">
        <source>Profile</source>
        <translation>Profile</translation>
    </message>
    <message id="MESS_TIP_PROFILE">
        <source>Show the path of the selected link over the terrain</source>
        <translation>Show the path of the selected link over the terrain</translation>
    </message>
    <message id="MESS_PROFILE_READING">
        <source>Reading the terrain...</source>
        <translation>Reading the terrain...</translation>
    </message>
    <message id="MESS_PROFILE_OF">
        <source>Profile of %1</source>
        <translation>Profile of %1</translation>
    </message>
    <message id="MESS_COPY_PROFILE">
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message id="MESS_TIP_COPY_PROFILE">
        <source>Copy the profile as a picture and its figures as text</source>
        <translation>Copy the profile as a picture and its figures as text</translation>
    </message>
    <message id="MESS_SAVE_PROFILE">
        <source>Save as...</source>
        <translation>Save as...</translation>
    </message>
    <message id="MESS_TIP_SAVE_PROFILE">
        <source>Save the profile as an SVG or PNG picture</source>
        <translation>Save the profile as an SVG or PNG picture</translation>
    </message>
    <message id="MESS_SAVE_PROFILE_TITLE">
        <source>Save the profile as</source>
        <translation>Save the profile as</translation>
    </message>
    <message id="MESS_CANT_SAVE_PROFILE">
        <source>The profile cannot be saved</source>
        <translation>The profile cannot be saved</translation>
    </message>
</context>
</TS>
