#pragma once

#include "coverage/CoverageRaster.h"

#include <gdal_priv.h>

#include <cstdint>
#include <functional>
#include <list>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace vlt::coverage {

/// The values of a band, read in square blocks when they are needed. The blocks used last are kept,
/// up to 128 MiB. Pixels that have no value, are masked or cannot be read are NaN. Not for two
/// threads at once.
class RasterBlocks
{
public:
    /// @param band     must exist longer than this object
    /// @param noData   a stored "no data" value in addition to the band's own
    RasterBlocks(GDALRasterBand &band, std::optional<double> noData);

    GDALRasterBand &band() const { return m_band; }
    int columns() const { return m_band.GetXSize(); }
    int rows() const { return m_band.GetYSize(); }

    /// The values of a part of a row, with scale and offset applied, piece by piece.
    void read(int row, int begin, int end, const std::function<void(std::span<const double>)> &use);

    /// All values, piece by piece, without use of the kept blocks.
    ///
    /// @param progress  may be empty
    /// @return          false if `progress` stopped the function
    bool forEachPiece(const Progress &progress,
                      const std::function<void(std::span<const double>)> &use);

    /// Minimum and maximum of all values, with scale and offset applied, without use of the kept
    /// blocks; nothing if there are no values or `progress` (may be empty) stopped the function.
    std::optional<ValueRange> range(const Progress &progress);

private:
    struct Block
    {
        std::vector<double> values;
        int width = 0;
        std::list<std::int64_t>::iterator place;
    };

    const Block &block(int column, int row);
    void applyMask(int left, int top, int width, int height, std::vector<double> &values);
    void readWindow(int left, int top, int width, int height, std::vector<double> &values);

    GDALRasterBand &m_band;
    std::vector<double> m_noData;
    double m_scale = 1;
    double m_offset = 0;
    std::unordered_map<std::int64_t, Block> m_blocks;
    std::list<std::int64_t> m_recent; ///< numbers of the blocks, the last used one first
};

} // namespace vlt::coverage
