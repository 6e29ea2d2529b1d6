#pragma once

#include "contract/TextPatterns.h"

#include <array>

namespace vlt::contract {

/// The messages of the scene readers.
inline constexpr auto SceneTexts = [] {
    using enum ValueKind;
    return std::to_array<Text>({
        // layers and documents that cannot be read
        {"MESS_SCENE_NO_FILE", "it is not a file"},
        {"MESS_SCENE_UNREADABLE", "it cannot be read"},
        {"MESS_SCENE_LARGE_FILE", "it is too large for a file of its kind"},
        {"MESS_SCENE_NO_ROOT", "there is no element veltaroLayer"},
        {"MESS_SCENE_NO_KIND", "the kind of the layer is missing"},
        {"MESS_SCENE_BAD_KIND",
         "layers of the kind \"%1\" cannot be shown, only \"sites\", \"links\" and \"buildings\""},
        {"MESS_SCENE_NO_SOURCE", "the element source is missing or empty"},
        {"MESS_SCENE_LONG_SOURCE", "the element source is too long"},
        {"MESS_SCENE_NO_END", "the element %1 does not end"},
        {"MESS_SCENE_OTHER_SOURCE", "the source \"%1\" does not start with \"%2\""},
        {"MESS_SCENE_NO_DOCUMENT", "the building document \"%1\" does not exist"},
        {"MESS_SCENE_OTHER_DOCUMENT", "it is not a building document: it does not start with the "
                                      "element veltaroTexturedBuildings"},
        {"MESS_SCENE_NO_VALUE_END", "the value of %1 does not end"},
        {"MESS_SCENE_BAD_NUMBER", "the %1 \"%2\" is not a number of zero or more", {Item, Name}},
        {"MESS_SCENE_NO_NUMBER", "the %1 \"%2\" is not a number", {Item, Name}},
        {"MESS_SCENE_BAD_MODE", "the texture mode \"%1\" is none of roofs, walls and storeys"},
        {"MESS_SCENE_UNNAMED_FOOTPRINTS", "the document names no file of footprints"},
        {"MESS_SCENE_UNNAMED_FIELD", "the document names no field of heights"},
        {"MESS_SCENE_NO_TILES", "the tileSize is not greater than zero"},

        // tables of sites and links
        {"MESS_SCENE_UNNAMED_TABLE", "the source names no table"},
        {"MESS_SCENE_NO_TABLE", "the table \"%1\" does not exist"},
        {"MESS_SCENE_NO_TABLE_IN", "the table \"%1\" does not exist (searched in %2)"},
        {"MESS_SCENE_NO_DRIVER",
         "the table driver %1 was not found; GDAL_DRIVER_PATH must name its folder"},
        {"MESS_SCENE_NO_OPTION", "the option %1 is missing in the layer's source", {Item}},
        {"MESS_SCENE_NO_END_LAYER", "the table \"%1\" has no layer of link ends"},
        {"MESS_SCENE_NO_END_FIELDS", "the layer of link ends has no field \"%1\" or \"%2\""},
        {"MESS_SCENE_UNPLACED_LINKS",
         "none of %1 links of the table \"%2\" has a position",
         {Count, Name}},
        {"MESS_SCENE_UNPLACED_SITES",
         "none of %1 sites of the table \"%2\" has a position",
         {Count, Name}},
        {"MESS_SCENE_NO_FRAME",
         "the coordinate system of the layer is neither projected nor geographic"},
        {"MESS_SCENE_NO_PROJECTION", "the coordinate system of the layer cannot be projected"},

        // links without terrain
        {"MESS_SCENE_LINK_TERRAIN",
         "the terrain \"%1\" cannot be used (%2); the links stand at height 0",
         {Name, Nested}},
        {"MESS_SCENE_LINK_GROUND",
         "%1 of %2 pylons stand at height 0: there is no terrain height under them",
         {Count, Count}},
        {"MESS_SCENE_NO_SURFACE", "no terrain is shown: there are no heights under the links"},

        // footprints that cannot be read
        {"MESS_SCENE_NO_FOOTPRINTS", "there is no local file of footprints \"%1\""},
        {"MESS_SCENE_BAD_FOOTPRINTS", "the footprints \"%1\" cannot be read: %2", {Name, Nested}},
        {"MESS_SCENE_NO_LAYER", "the footprints have no layer \"%1\""},
        {"MESS_SCENE_NO_FIELD", "the footprints have no field \"%1\""},
        {"MESS_SCENE_NO_NUMBERS", "the field \"%1\" of the footprints holds no numbers"},

        // buildings that are left out or moved
        {"MESS_SCENE_NO_HEIGHT",
         "%1 of %2 buildings are left out: no height in the field \"%3\"",
         {Count, Count, Name}},
        {"MESS_SCENE_ZERO_HEIGHT",
         "%1 of %2 buildings are left out: a height of zero or less in the field \"%3\"",
         {Count, Count, Name}},
        {"MESS_SCENE_NO_POLYGON",
         "%1 of %2 buildings are left out: no polygon with an area",
         {Count, Count}},
        {"MESS_SCENE_NO_PLACE",
         "%1 of %2 buildings are left out: their position lies outside their coordinate system",
         {Count, Count}},
        {"MESS_SCENE_COINCIDENT",
         "%1 of %2 buildings have the same outline as another one",
         {Count, Count}},
        {"MESS_SCENE_READ_PARTLY", "only the first %1 footprints can be read: %2", {Count, Nested}},
        {"MESS_SCENE_SHOWN_PARTLY",
         "only the first %1 footprints are shown: there are too many",
         {Count}},
        {"MESS_SCENE_NO_TERRAIN", "the document names no terrain; the buildings stand at height 0"},
        {"MESS_SCENE_BAD_TERRAIN",
         "the terrain \"%1\" cannot be used (%2); the buildings stand at height 0",
         {Name, Nested}},
        {"MESS_SCENE_NO_GROUND",
         "there is no terrain height under the buildings; they stand at height 0"},
        {"MESS_SCENE_LOWEST_GROUND",
         "%1 of %2 buildings stand on the lowest ground: there is no terrain height under them",
         {Count, Count}},

        // colours and images
        {"MESS_SCENE_NO_MAP", "the color map \"%1\" does not exist"},
        {"MESS_SCENE_BAD_MAP", "the color map \"%1\" cannot be used (%2)", {Name, Nested}},
        {"MESS_SCENE_EMPTY_RASTER", "the raster \"%1\" has no values"},
        {"MESS_SCENE_BAD_RASTER",
         "the raster \"%1\" cannot be used for colors (%2)",
         {Name, Nested}},
        {"MESS_SCENE_NO_VALUE",
         "%1 of %2 buildings have no value in the raster \"%3\"",
         {Count, Count, Name}},
        {"MESS_SCENE_NO_COLORS", "\"%1\" does not describe colors of buildings"},
        {"MESS_SCENE_BAD_IMAGE", "the image \"%1\" is not shown (%2)", {Name, Nested}},
        {"MESS_SCENE_MORE_IMAGES", "%1 more images are not shown", {Count}},

        // reasons
        {"MESS_SCENE_OTHER_COMPUTER", "not a file or folder of this computer"},
        {"MESS_SCENE_VIRTUAL_RASTER",
         "virtual rasters are not opened: convert this one with gdal_translate"},
        {"MESS_SCENE_VIRTUAL_VECTOR",
         "virtual vector files are not opened: convert this one with ogr2ogr"},
        {"MESS_SCENE_NOT_IN_FILE", "not in a file of this computer"},
        {"MESS_SCENE_NO_PART", "the file holds no such image"},
        {"MESS_TERRAIN_NOT_LOCAL", "there is no such local file"},
        {"MESS_TERRAIN_NO_RASTER", "its format is not a known raster format"},
        {"MESS_TERRAIN_NOT_PLACED",
         "it has no band of heights, no georeference or no coordinate system"},
        {"MESS_TERRAIN_TOO_LARGE", "it is stored in blocks that are too large"},
        {"MESS_SCENE_NO_TRANSFORMATION", "there is no transformation to its coordinate system"},
        {"MESS_SCENE_NO_TRANSFORMATION_FROM",
         "there is no transformation from the buildings' coordinate system to its own"},
        {"MESS_SCENE_NOT_A_MAP", "it is not a color map"},
        {"MESS_SCENE_NO_MAP_IN", "No color association found in %1"},
        {"MESS_SCENE_NO_COLOR", "Unknown color : %1"},
        {"MESS_SCENE_BAD_SHARE", "Wrong value for a percentage : %1"},
        {"MESS_SCENE_NO_MAP_FILE", "Cannot find %1"},
        {"MESS_SCENE_LARGE_MAP", "the file %1 is too large for a color map"},
        {"MESS_SCENE_NOT_ONE_BAND", "it does not have exactly one band"},
        {"MESS_SCENE_COMPLEX", "its values are complex numbers"},
        {"MESS_SCENE_BAD_NODATA", "the no-data value \"%1\" is not a number"},
        {"MESS_SCENE_NOT_PLACED", "it is not georeferenced"},
        {"MESS_SCENE_NO_BANDS", "it has no bands"},
        {"MESS_SCENE_WITHOUT_HEIGHT", "it has no height"},
        {"MESS_SCENE_SAME_HEIGHT", "another image has the same height"},
        {"MESS_SCENE_NO_FORMAT", "`%1' not recognized as a supported file format."},
        {"MESS_SCENE_NO_FORMAT", "`%1' not recognized as being in a supported file format."},

        // queries of pylons and links
        {"MESS_QUERY_OTHER_FORM", "\"%1\" is not a query \"inline://parametric/query?...\""},
        {"MESS_QUERY_UNKNOWN_ITEM", "the item \"%1\" is unknown"},
        {"MESS_QUERY_NO_ITEM", "the item %1 is missing", {Item}},
        {"MESS_QUERY_TWO_ITEMS",
         "the item %1 is given more than once: \"%2\", \"%3\"",
         {Item, Name, Name}},
        {"MESS_QUERY_MANY_ITEMS",
         "there are %1 items \"%2\": no more than %3 are allowed",
         {Count, Item, Count}},
        {"MESS_QUERY_BEFORE_PYLON", "%1 stands before the first pylon", {Item}},
        {"MESS_QUERY_SAME_POSITION", "%1: both ends have the same position", {Item}},
        {"MESS_QUERY_OTHER_WORDS", "%1: \"%2\" is not \"%3\"", {Item, Name, Name}},
        {"MESS_QUERY_NO_NUMBER", "%1: the %2 \"%3\" is not a number", {Item, Nested, Name}},
        {"MESS_QUERY_NOT_WHOLE", "%1: the %2 \"%3\" is not a whole number", {Item, Nested, Name}},
        {"MESS_QUERY_OUT_OF_RANGE",
         "%1: the %2 \"%3\" is not within %4 to %5",
         {Item, Nested, Name, Name, Name}},
        {"MESS_QUERY_LOW_FREQUENCY",
         "%1: the frequency \"%2\" is neither 0 nor 1 MHz or more",
         {Item, Name}},
        {"MESS_QUERY_NO_COLOR", "%1: the color \"%2\" is not rrggbbaa", {Item, Name}},
        {"MESS_QUERY_UNKNOWN_WORD", "%1: the %2 \"%3\" is unknown", {Item, Nested, Name}},

        // their quantities
        {"MESS_QUANTITY_X", "x"},
        {"MESS_QUANTITY_Y", "y"},
        {"MESS_QUANTITY_Z", "z"},
        {"MESS_QUANTITY_HEIGHT", "height"},
        {"MESS_QUANTITY_WIDTH", "width"},
        {"MESS_QUANTITY_RADIUS", "radius"},
        {"MESS_QUANTITY_SPACING", "spacing"},
        {"MESS_QUANTITY_SECTOR_RADIUS", "sector radius"},
        {"MESS_QUANTITY_SECTOR_HEIGHT", "sector height"},
        {"MESS_QUANTITY_SECTOR_SPACING", "sector spacing"},
        {"MESS_QUANTITY_AZIMUTH", "azimuth"},
        {"MESS_QUANTITY_TILT", "tilt"},
        {"MESS_QUANTITY_BEAM_WIDTH", "beam width"},
        {"MESS_QUANTITY_ANTENNA_LENGTH", "antenna length"},
        {"MESS_QUANTITY_DIAMETER", "diameter"},
        {"MESS_QUANTITY_FREQUENCY", "frequency"},
        {"MESS_QUANTITY_SCALE", "scale"},
        {"MESS_QUANTITY_SYMBOLIC", "symbolic distance"},
        {"MESS_QUANTITY_REALISTIC", "realistic distance"},
        {"MESS_QUANTITY_ZONE", "zone"},
        {"MESS_QUANTITY_SHARE", "share"},
        {"MESS_QUANTITY_K_FACTOR", "factor"},
        {"MESS_QUANTITY_KIND", "kind"},
        {"MESS_QUANTITY_TYPE", "type"},
        {"MESS_QUANTITY_STYLE", "style"},
        {"MESS_QUANTITY_WORD", "word"},
    });
}();

using SceneTextId = TextIdOf<SceneTexts>;

/// The English text with the values in place of its placeholders.
inline std::string formatted(SceneTextId id, std::initializer_list<std::string_view> values = {})
{
    return formatted(id.text(), values);
}

} // namespace vlt::contract
