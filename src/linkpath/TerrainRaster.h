#pragma once

#include "contract/Opened.h"
#include "linkpath/TerrainExcerpt.h"
#include "localfiles/ReducedRead.h"

#include <gdal_priv.h>
#include <ogr_spatialref.h>

#include <list>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace vlt::linkpath {

/// Properties of a terrain file that the file itself may lack.
struct TerrainHints
{
    std::optional<double> noData;                    ///< in addition to the file's own
    const OGRSpatialReference *assumedSrs = nullptr; ///< for a file without one; x before y
};

/// Heights of a terrain file, from band 1, read when they are needed. Not for two threads at once.
class TerrainRaster
{
public:
    /// Opens a local raster file. There is none if it cannot be opened, is not georeferenced or has
    /// no coordinate system, neither its own nor an assumed one.
    static contract::Opened<std::unique_ptr<TerrainRaster>> open(const std::string &path,
                                                                 const TerrainHints &hints = {});

    /// Height above sea level in metres, interpolated between the centres of the four pixels around
    /// the point. Nothing outside the raster, and if one of the pixels has no data or a height that
    /// does not occur on earth. x and y are in the raster's system, x is east or longitude; a
    /// longitude may be larger or smaller by 360 degrees.
    std::optional<double> heightM(double x, double y);

    /// The heights within a rectangle of the raster's system, averaged if pixels are much smaller
    /// than `pixelSize`. Overviews of the file are used. Empty outside the raster.
    ///
    /// @param isRough    a few samples instead of averages where very many pixels would have to be
    ///                   read, for a first impression
    /// @param pixelSize  wanted size of the excerpt's pixels, in the raster's system; they are
    ///                   larger if there would be more than MaxExcerptPixels in a row or column
    TerrainExcerpt excerpt(double west, double south, double east, double north, double pixelSize,
                           bool isRough = false);

    static constexpr int MaxExcerptPixels = 2048;

    /// The raster's system, with x (east, longitude) before y.
    const OGRSpatialReference &srs() const { return m_srs; }
    /// Approximate length of the shorter side of a pixel in metres.
    double pixelSizeM() const { return m_pixelSizeM; }

private:
    struct Block
    {
        std::vector<double> values;
        std::list<std::int64_t>::iterator place;
    };

    /// Position in pixels, from the centre of the first one.
    struct Pixel
    {
        double column;
        double row;
    };

    /// A rectangle of the file, in its pixels; not empty.
    struct Window
    {
        double left, top, right, bottom;
    };

    /// The file, or the copy of it in memory: how many pixels of the file are one of its.
    struct Source
    {
        GDALDataset *file;
        double across, down;
    };

    explicit TerrainRaster(GDALDatasetUniquePtr dataset) : m_dataset(std::move(dataset)) {}
    const char *prepare(const TerrainHints &hints); ///< the reason of a refusal, else null
    double asStored(double value) const;            ///< rounded to the band's data type
    std::optional<double> pixelM(int column, int row);
    bool isHeight(double stored) const;
    std::optional<Pixel> pixelAt(double x, double y) const; ///< nothing outside the raster
    std::optional<Window> windowOf(double west, double south, double east, double north) const;
    GDALRIOResampleAlg reductionKind() const;
    TerrainExcerpt read(const Source &source, const localfiles::Reduction &part,
                        GDALRIOResampleAlg how) const;
    TerrainExcerpt roughExcerpt(const Window &window, int columns, int rows) const;
    Source sourceFor(const Window &window, double step);
    void makeSmallCopy(int columns, int rows);

    GDALDatasetUniquePtr m_dataset;
    GDALDatasetUniquePtr m_smallCopy; ///< in memory; null as long as it is not needed
    GDALRasterBand *m_band = nullptr;
    OGRSpatialReference m_srs;
    double m_toPixel[6] = {};
    double m_pixelSizeM = 0;
    double m_wholeTurn = 0; ///< 360 degrees in the unit of longitudes; 0: a projected system
    double m_scale = 1;     ///< metres per stored unit
    double m_offset = 0;    ///< metres
    std::optional<double> m_noData;
    std::optional<double> m_alsoNoData;
    std::unordered_map<std::int64_t, Block> m_blocks;
    std::list<std::int64_t> m_recent; ///< numbers of the blocks, the last used one first
};

} // namespace vlt::linkpath
