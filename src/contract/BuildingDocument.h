#pragma once

#include "contract/BuildingColors.h"
#include "contract/BuildingHeights.h"
#include "contract/ChosenNumber.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The building document (".texb"): footprints that become buildings, the terrain below them, their
/// colours and images. The wizard and the command line write it, the scene readers read it.
namespace vlt::contract {

inline constexpr ChosenNumber<int> ExtrudedVisibilityM{100, 100000, 2000};
inline constexpr ChosenNumber<int> TexturedVisibilityM{100, 100000, 2000};
inline constexpr ChosenNumber<double> TileSizeM{10, 100000, 250};
inline constexpr ChosenNumber<double> SkirtHeightM{0, 1000, 5};
inline constexpr ChosenNumber<int> CacheCapacity{1, 1000000, 100}; ///< elements
inline constexpr ChosenNumber<double> TextureBufferM{0, 1000, 1};
inline constexpr ChosenNumber<int> TextureDilatationPixels{1, 100, 1};

/// Colours that a first run offers.
inline constexpr char FirstWallColor[] = "#d9d4c7";
inline constexpr char FirstRoofColor[] = "#b5634c";
inline constexpr char FirstEdgeColor[] = "#404040";

/// The buildings that a builder keeps after it has made them.
enum class CacheMode { None, All, Textured, Extruded };
inline constexpr const char *CacheModeWords[] = {"none", "all", "textured", "extruded"};

/// The part of a building that an image covers.
enum class TextureMode { Roofs, Walls, Storeys };
inline constexpr const char *TextureModeWords[] = {"roofs", "walls", "storeys"};

/// How images are compressed in graphics memory.
enum class TextureCompression { None, Arb, Dxt1, Dxt3, Dxt5 };
inline constexpr const char *TextureCompressionWords[] = {"none", "arb", "dxt1", "dxt3", "dxt5"};

/// How the pixels of an image are drawn at a short distance: as squares, or blended.
enum class MagFilter { None, Linear };
inline constexpr const char *MagFilterWords[] = {"none", "linear"};

/// The attributes of the root element.
struct BuildingCache
{
    CacheMode mode = CacheMode::None;
    bool delayedWrite = false;
    int capacity = CacheCapacity.firstRun; ///< elements that may wait to be written

    bool operator==(const BuildingCache &) const = default;
};

/// The elements "vector" and "heights": the footprints and how they are extruded. A number that a
/// document leaves out has the default given here.
struct BuildingFootprints
{
    std::string file;  ///< vector dataset
    std::string layer; ///< empty: the first layer
    std::string heightField;
    double tileSizeM = TileSizeM.firstRun;
    double extrudedVisibilityM = ExtrudedVisibilityM.firstRun; ///< maximum distance to the viewer
    double texturedVisibilityM = 0;                            ///< the same for their images
    std::string wallColor; ///< "#RRGGBB" or a text of RasterColors.h; empty: the reader's default
    std::string roofColor; ///< the same; empty: the colour of the walls
    double skirtHeightM = 0;
    bool checkClockwise = false;
    BuildingHeights heights = {};
    std::string where = {}; ///< SQL condition for the features that are buildings; empty: all

    bool operator==(const BuildingFootprints &) const = default;
};

/// The element "elevation": the terrain that the buildings stand on.
struct BuildingTerrain
{
    std::string file;
    std::string noData; ///< as typed; may be empty

    bool operator==(const BuildingTerrain &) const = default;
};

/// An element "texture": a georeferenced image at a height above ground.
struct BuildingImage
{
    std::string path; ///< of a file, or the geodata library's name of a part of one
    double heightM = 0;

    bool operator==(const BuildingImage &) const = default;
};

/// The element "textures": how images are put on the buildings.
struct BuildingTextures
{
    TextureMode mode = TextureMode::Roofs;
    std::string edgeColor; ///< "#RRGGBB"; empty: no colour
    bool forceEdgeCreation = false;
    bool processComplexBuildings = false;
    TextureCompression compression = TextureCompression::None; ///< None is not written
    std::optional<double> bufferM;          ///< distance from a wall at which its image is taken
    std::optional<double> dilatationPixels; ///< how far colours grow into pixels without one
    MagFilter magFilter = MagFilter::None;
    std::vector<BuildingImage> images;

    bool operator==(const BuildingTextures &) const = default;
};

/// A whole document.
struct BuildingDocument
{
    BuildingCache cache;
    BuildingFootprints footprints;
    BuildingTerrain terrain;
    std::optional<BuildingTextures> textures; ///< nothing: no images
    BuildingColors colors = {};

    bool operator==(const BuildingDocument &) const = default;
};

inline constexpr char BuildingDocumentSuffix[] = ".texb";

/// Start of the source of a layer of buildings; the path of the document follows.
inline constexpr char BuildingSourcePrefix[] = "TEXB:";

/// Names of the elements and attributes. Values stand in a document as they are, without escaping.
namespace texb {

inline constexpr char RootElement[] = "veltaroTexturedBuildings";
inline constexpr char Cache[] = "cache";
inline constexpr char DelayedCacheWrite[] = "delayedCacheWrite";
inline constexpr char DelayedCacheWriteCapacity[] = "delayedCacheWriteCapacity";

inline constexpr char VectorElement[] = "vector";
inline constexpr char FileName[] = "filename"; ///< also in "elevation" and "texture"
inline constexpr char Layer[] = "layer";
inline constexpr char HeightField[] = "hfield";
inline constexpr char TileSize[] = "tileSize";
inline constexpr char ExtrudedVisibility[] = "extrudedVisibility";
inline constexpr char TexturedVisibility[] = "texturedVisibility"; ///< absent if a raster colours
inline constexpr char WallColor[] = "wallColor";
inline constexpr char RoofColor[] = "roofColor"; ///< absent if a raster colours
inline constexpr char SkirtHeight[] = "skirtHeight";
inline constexpr char CheckClockwise[] = "checkClockwise";

inline constexpr char ElevationElement[] = "elevation";
inline constexpr char Source[] = "source"; ///< always TerrainSource
inline constexpr char TerrainSource[] = "dtm";
inline constexpr char NoData[] = "nodata";

// Readers that do not know the next two elements pass over them: they are absent, and each of their
// attributes is, where the value is the default.
inline constexpr char HeightsElement[] = "heights";
inline constexpr char Unit[] = "unit";
inline constexpr char Factor[] = "factor";
inline constexpr char LevelHeight[] = "levelHeight";
inline constexpr char ElseField[] = "elseField";
inline constexpr char ElseUnit[] = "elseUnit";
inline constexpr char DefaultHeight[] = "default";
inline constexpr char Reference[] = "reference";
inline constexpr char Base[] = "base";
inline constexpr char BaseField[] = "baseField";
inline constexpr char BottomField[] = "bottomField";
inline constexpr char Where[] = "where"; ///< with percentEncoded()

inline constexpr char ColorsElement[] = "colors";
inline constexpr char Band[] = "band";
inline constexpr char Minimum[] = "minimum"; ///< the four values of the range stand together
inline constexpr char Maximum[] = "maximum";
inline constexpr char RasterSize[] = "size";
inline constexpr char RasterTime[] = "time";
inline constexpr char ColorField[] = "field";
inline constexpr char ColorMap[] = "map";

inline constexpr char TexturesElement[] = "textures";
inline constexpr char Mode[] = "mode"; ///< also in "colors"
inline constexpr char EdgeColor[] = "edgeColor";
inline constexpr char ForceEdgeCreation[] = "forceEdgeCreation";
inline constexpr char ProcessComplexBuildings[] = "processComplexBuildings";
inline constexpr char Compression[] = "compression";
inline constexpr char Buffer[] = "bufferValue";
inline constexpr char Dilatation[] = "dilatationValue";
inline constexpr char MagnificationFilter[] = "magFilter";

inline constexpr char TextureElement[] = "texture";
inline constexpr char Height[] = "height";

inline constexpr char True[] = "true";
inline constexpr char False[] = "false";

/// A text with "%22" and the like for quotation marks, brackets, "&", "%" and control characters.
std::string percentEncoded(std::string_view text);

/// The text that percentEncoded() was given.
std::string percentDecoded(std::string_view text);

} // namespace texb

} // namespace vlt::contract
