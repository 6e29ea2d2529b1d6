#pragma once

#include "contract/Opened.h"
#include "contract/Place.h"
#include "contract/Progress.h"
#include "contract/RasterColors.h"

#include <cstdint>
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

/// A value and the number of pixels that have it.
struct ValueCount
{
    double value = 0;
    std::uint64_t pixels = 0;

    bool operator==(const ValueCount &) const = default;
};

/// What the pixels under a building give.
struct ValuesUnder
{
    std::optional<double> value;
    std::uint64_t pixels = 0;       ///< that have a value
    std::vector<ValueCount> counts; ///< of each value, ascending; empty unless they are asked for
};

/// The meaning of the values of a raster.
enum class ValueKind { Numbers, Integers, Classes };

/// A band of a local raster of values in any unit, such as signal levels. Not for two threads at
/// once.
class CoverageRaster
{
public:
    /// Opens a local raster file, or a part of one by the name under which the library lists it.
    ///
    /// @param path    absolute (see locateRaster()), in bytes of the file system
    /// @param noData  as typed: a "no data" value in addition to the file's own; may be empty
    /// @param band    from 1
    /// @return        none if it cannot be opened, is a picture of three or four bands of colour,
    /// or
    ///                does not have the band, or if `noData` is not a number
    static contract::Opened<std::unique_ptr<CoverageRaster>>
    open(const std::string &path, const std::string &noData, int band = 1);
    ~CoverageRaster();

    /// Minimum and maximum of all pixels that have a value, with scale and offset applied; nothing
    /// if no pixel has a value, and if `progress` (may be empty) stopped the function.
    std::optional<ValueRange> range(const Progress &progress = {});

    /// Two percentiles of these values, in per cent; otherwise as range().
    std::optional<ValueRange> percentiles(double low, double high, const Progress &progress = {});

    /// Number of pixels of the band.
    double pixelCount() const;

    /// The files that the raster consists of, in bytes of the file system.
    std::vector<std::string> files() const;

    /// System of the raster, x before y; null if the file does not declare one.
    const OGRSpatialReference *srs() const;

    /// Whether the raster is georeferenced, so that positions determine pixels.
    bool isPlaced() const;

    /// Integers of which the file names the classes or gives the colours are Classes.
    ValueKind valueKind() const;

    /// The unit that the file states; empty for none.
    std::string unit() const;

    /// The name that the file gives a class; empty for none.
    std::string className(double value) const;

    /// The values under a building. They are computed from the pixels whose centres lie within its
    /// rings (even-odd: a ring within another is a hole); if there are none, from the pixel under
    /// the centre of its first ring. Pixels without a value, or with one that is not finite, are
    /// ignored.
    ///
    /// If several values are most represented, the smallest of them is returned. In an average all
    /// pixels have the same weight.
    ///
    /// @param rings       in the system of the raster
    /// @param withCounts  whether the pixels of each value are counted
    ValuesUnder under(std::span<const Ring> rings, Reduction reduction, bool withCounts = false);

    /// The value of under().
    std::optional<double> valueUnder(std::span<const Ring> rings, Reduction reduction)
    {
        return under(rings, reduction).value;
    }

private:
    class Parts;
    explicit CoverageRaster(std::unique_ptr<Parts> parts);
    std::unique_ptr<Parts> m_parts;
};

} // namespace vlt::coverage
