#pragma once

#include <gdal_priv.h>
#include <ogr_spatialref.h>

#include <list>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace vlt::linkpath {

/// What a caller knows of a terrain file better than the file itself.
struct TerrainHints
{
    std::optional<double> noData;                    ///< besides the file's own
    const OGRSpatialReference *assumedSrs = nullptr; ///< where the file states none; x before y
};

/// Heights of a terrain file, band 1, read as they are needed. Not for two threads at once.
class TerrainRaster
{
public:
    /// Opens a local raster file; null where it cannot be opened, is not georeferenced or has no
    /// coordinate system, neither its own nor an assumed one. `reason` takes why: a text of
    /// contract/SceneTexts.h, else GDAL's words.
    static std::unique_ptr<TerrainRaster> open(const std::string &path, std::string *reason,
                                               const TerrainHints &hints = {});

    /// Height above sea level in metres, between the centres of the four pixels around the point;
    /// nothing outside the raster and where one of them has no data or tells no height of this
    /// earth. x, y in the raster's system, x being east or longitude, of which a whole turn more or
    /// less is the same.
    std::optional<double> heightM(double x, double y);

    /// Axis order: x (east, longitude) first.
    const OGRSpatialReference &srs() const { return m_srs; }
    /// The smaller side of a pixel in metres, about.
    double pixelSizeM() const { return m_pixelSizeM; }

private:
    struct Block
    {
        std::vector<double> values;
        std::list<std::int64_t>::iterator place;
    };

    /// Counted from the centre of the first one.
    struct Pixel
    {
        double column;
        double row;
    };

    explicit TerrainRaster(GDALDatasetUniquePtr dataset) : m_dataset(std::move(dataset)) {}
    const char *prepare(const TerrainHints &hints); ///< the reason of a refusal, else null
    double asStored(double value) const;            ///< as the band can hold it
    std::optional<double> pixelM(int column, int row);
    std::optional<Pixel> pixelAt(double x, double y) const; ///< nothing outside

    GDALDatasetUniquePtr m_dataset;
    GDALRasterBand *m_band = nullptr;
    OGRSpatialReference m_srs;
    double m_toPixel[6] = {};
    double m_pixelSizeM = 0;
    double m_wholeTurn = 0; ///< in the unit of longitudes; 0: a projected system
    double m_scale = 1;     ///< metres per stored unit
    double m_offset = 0;    ///< metres
    std::optional<double> m_noData;
    std::optional<double> m_alsoNoData;
    std::unordered_map<std::int64_t, Block> m_blocks;
    std::list<std::int64_t> m_recent; ///< numbers of the blocks, the latest first
};

} // namespace vlt::linkpath
