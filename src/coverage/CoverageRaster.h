#pragma once

#include "contract/Progress.h"
#include "contract/RasterColors.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

class OGRSpatialReference;

namespace vlt::coverage {

using contract::Reduction;

struct Place
{
    double x = 0; ///< east, longitude
    double y = 0;
};

/// A ring of a footprint, closed or not, of either direction.
using Ring = std::span<const Place>;

struct ValueRange
{
    double minimum = 0;
    double maximum = 0;
};

/// A local one-band raster of values such as levels, in whatever unit. Not for two threads at once.
class CoverageRaster
{
public:
    /// Opens a local raster file, or a part of one by its name as the library lists it.
    ///
    /// @param path    absolute (see locateRaster()), in bytes of the file system
    /// @param noData  as typed: the value that pixels without a value have, besides the file's own;
    ///                may be empty
    /// @param reason  takes why there is none
    /// @return        null where it cannot be opened, has not one band, or `noData` is no number
    static std::unique_ptr<CoverageRaster> open(const std::string &path, const std::string &noData,
                                                std::string *reason);
    ~CoverageRaster();

    /// Least and greatest value of all pixels that have one (scale and offset applied); nothing
    /// where none has, and where `progress` (may be empty) stopped it.
    std::optional<ValueRange> range(const Progress &progress = {});

    /// System of the raster, x before y; null where it states none.
    const OGRSpatialReference *srs() const;

    /// Whether pixels can be told by places.
    bool isPlaced() const;

    /// The value under a building: of the pixels whose centre lies within its rings (even-odd: a
    /// ring within another is a hole), or, where there is none, of the pixel under the middle of
    /// its first ring. Pixels without a value, among them those that are not finite, do not count.
    ///
    /// Of several most represented values the least is taken. Average: of the pixels' values, each
    /// with the same weight.
    ///
    /// @param rings  in the system of the raster
    /// @return       nothing where no pixel with a value is under it
    std::optional<double> valueUnder(std::span<const Ring> rings, Reduction reduction);

private:
    class Parts;
    explicit CoverageRaster(std::unique_ptr<Parts> parts);
    std::unique_ptr<Parts> m_parts;
};

} // namespace vlt::coverage
