#pragma once

#include "contract/Opened.h"
#include "contract/Place.h"
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

using contract::Place;

/// A ring of a footprint in either direction, closed or not.
using Ring = std::span<const Place>;

struct ValueRange
{
    double minimum = 0;
    double maximum = 0;
};

/// A local one-band raster of values in any unit, such as signal levels. Not for two threads at
/// once.
class CoverageRaster
{
public:
    /// Opens a local raster file, or a part of one by the name under which the library lists it.
    ///
    /// @param path    absolute (see locateRaster()), in bytes of the file system
    /// @param noData  as typed: a "no data" value in addition to the file's own; may be empty
    /// @return        none if it cannot be opened, does not have exactly one band, or `noData` is
    ///                not a number
    static contract::Opened<std::unique_ptr<CoverageRaster>> open(const std::string &path,
                                                                  const std::string &noData);
    ~CoverageRaster();

    /// Minimum and maximum of all pixels that have a value, with scale and offset applied; nothing
    /// if no pixel has a value, and if `progress` (may be empty) stopped the function.
    std::optional<ValueRange> range(const Progress &progress = {});

    /// System of the raster, x before y; null if the file does not declare one.
    const OGRSpatialReference *srs() const;

    /// Whether the raster is georeferenced, so that positions determine pixels.
    bool isPlaced() const;

    /// The value under a building. It is computed from the pixels whose centres lie within its
    /// rings (even-odd: a ring within another is a hole); if there are none, from the pixel under
    /// the centre of its first ring. Pixels without a value, or with one that is not finite, are
    /// ignored.
    ///
    /// If several values are most represented, the smallest of them is returned. In an average all
    /// pixels have the same weight.
    ///
    /// @param rings  in the system of the raster
    /// @return       nothing if no pixel under the building has a value
    std::optional<double> valueUnder(std::span<const Ring> rings, Reduction reduction);

private:
    class Parts;
    explicit CoverageRaster(std::unique_ptr<Parts> parts);
    std::unique_ptr<Parts> m_parts;
};

} // namespace vlt::coverage
