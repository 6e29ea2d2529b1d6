#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::scene {

/// Which part of a building has the image.
enum class TextureMode { Roofs, Walls, Storeys };

/// An image of a document: a georeferenced prediction at a height above ground.
struct TexbImage
{
    std::string path; ///< as written; maybe the library's name of a part of a file
    double heightM = 0;
};

struct TexbTextures
{
    TextureMode mode = TextureMode::Roofs;
    std::string edgeColor; ///< "#RRGGBB"; empty: none
    bool forceEdgeCreation = false;
    bool processComplexBuildings = false;
    bool isCompressed = false;   ///< one of the compressions of graphics hardware
    double bufferM = 0;          ///< how far from a wall its image is taken
    double dilatationPixels = 0; ///< how far colours grow into pixels that have none
    bool isSmooth = false;       ///< pixels are mixed where they are magnified
    std::vector<TexbImage> images;
};

/// What a building document says; both variants. What it says of a cache is for builders that keep
/// what they make; this one keeps nothing.
struct TexbDocument
{
    std::string vectorFile;
    std::string layer; ///< empty: the first
    std::string heightField;
    double tileSizeM = 250;
    double extrudedVisibilityM = 2000;
    double texturedVisibilityM = 0;
    std::string wallColor; ///< "#RRGGBB", "IMAGE;..." or "cmap:..."; empty: the usual colour
    std::string roofColor; ///< the same; empty: that of the walls
    double skirtHeightM = 0;
    bool checkClockwise = false; ///< of no effect: every ring is turned the right way anyway
    std::string terrainFile;
    std::string terrainNoData; ///< as typed; may be empty
    std::optional<TexbTextures> textures;
};

/// Reads the text of a building document. Values are taken as they stand, whether somebody escaped
/// them or not: a value ends at a quotation mark behind which the element goes on as such.
///
/// @throws BadLayer  no building document, no footprints, no height field, a number that is none
TexbDocument parseTexbDocument(std::string_view text);

/// The same for a local file.
TexbDocument readTexbDocument(const std::string &path);

} // namespace vlt::scene
