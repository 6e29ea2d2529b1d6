#pragma once

#include "contract/ChosenNumber.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vlt::contract {

/// How the values of a field become colours: between those of a colour map, by its ranges, or one
/// colour for each value.
enum class FieldColoring { Interpolation, ColorRange, Distinct };
inline constexpr const char *FieldColoringWords[] = {"interpolation", "colorrange", "distinct"};

inline constexpr ChosenNumber<int> RasterBand{1, 65535, 1};

/// The minimum and maximum of a raster, with the size and time of its files when they were read.
struct KnownRasterRange
{
    double minimum = 0;
    double maximum = 0;
    std::int64_t sizeBytes = 0; ///< of all files
    std::int64_t timeS = 0;     ///< of the last change, in seconds since 1970

    bool operator==(const KnownRasterRange &) const = default;
};

/// What the texts of RasterColors.h cannot say about the colours of buildings. The defaults are the
/// meaning of a document without these values.
struct BuildingColors
{
    int band = RasterBand.firstRun;        ///< of the raster
    std::optional<KnownRasterRange> range; ///< of this band; only large rasters need it

    std::string field; ///< colours come from this field of the footprints; empty: they do not
    std::string map;   ///< path of the colour map file for the values of `field`
    FieldColoring coloring = FieldColoring::Interpolation;

    bool operator==(const BuildingColors &) const = default;
};

} // namespace vlt::contract
