#pragma once

#include <QStringList>

#include <optional>

namespace vlt::buildings {

/// What a stretched colour map covers.
struct Stretch
{
    enum Kind {
        Raster,     ///< the minimum to the maximum of the raster
        Percentile, ///< two percentiles of its values
        Buildings,  ///< the minimum to the maximum of the values of the buildings
        Range,      ///< a stated range
        Shared      ///< the minimum to the maximum of the raster and of others
    };

    Kind kind = Raster;
    double low = 0; ///< Percentile: per cent; Range: value
    double high = 0;
    QStringList others; ///< Shared: rasters, at least one

    bool operator==(const Stretch &) const = default;
};

inline constexpr double FirstLowPercentile = 2;
inline constexpr double FirstHighPercentile = 98;

/// The texts for a stretch, as the command line takes them and settings store them: "raster",
/// "percentile=2-98", "buildings", "range=-110,-60", or "with=RASTER" for each other raster.
QStringList stretchTexts(const Stretch &stretch);

/// The stretch for these texts; nothing if they describe none. Percentiles are ascending and within
/// 0 .. 100, a range is ascending; "percentile" alone has the first values.
std::optional<Stretch> parseStretch(const QStringList &texts);

/// The number in a text, with a point or a comma; nothing if it is none or not finite.
std::optional<double> stretchNumber(const QString &text);

} // namespace vlt::buildings
