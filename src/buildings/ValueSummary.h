#pragma once

#include "buildings/BuildingLayerFiles.h"

#include <QList>

#include <optional>
#include <vector>

namespace vlt::buildings {

/// The buildings whose values lie in a class of the legend.
struct ValueClass
{
    std::optional<double> from; ///< belongs to the class; nothing for the lowest one
    std::optional<double> to;   ///< belongs to the next class; nothing for the highest one
    colormaps::Rgba color;      ///< in the middle of the class
    std::size_t buildings = 0;
};

/// How the values of buildings are distributed.
struct ValueSummary
{
    std::size_t buildings = 0;          ///< that have a value
    QString unit;                       ///< empty if it is unknown
    std::optional<double> quantiles[7]; ///< at the shares of QuantileShares; nothing without values
    QList<ValueClass> classes;          ///< ascending

    /// Share of the buildings, 0 to 1, in a class or in a higher one.
    double shareFrom(qsizetype index) const;
};

/// The shares of the buildings that lie below the quantiles, with their names in reports.
struct QuantileShare
{
    const char *name;
    double share;
};
inline constexpr QuantileShare QuantileShares[7] = {{"minimum", 0},  {"p10", 0.1},  {"p25", 0.25},
                                                    {"median", 0.5}, {"p75", 0.75}, {"p90", 0.9},
                                                    {"maximum", 1}};

/// Classes have the limits that the legend shows. A gradient without values between its ends is
/// divided into eight classes, and more than 12 classes are combined.
ValueSummary summarize(std::vector<double> values, const LegendInput &legend, const QString &unit);

/// The unit of the values: that of the raster's band, else one that the name of the raster ends in,
/// else, if the map is not stretched, one in the map's name. Empty if there is none.
QString unitOf(const QString &bandUnit, const RasterColoring &coloring);

/// A value with as many decimals as the classes need, and the unit.
QString valueText(const ValueSummary &summary, double value);

/// The limits of a class: "< -110", "-110 … -100", "≥ -60".
QString classText(const ValueSummary &summary, qsizetype index);

/// "61 % at -85 dBm or more": of the limit that divides the buildings most evenly; empty without
/// values.
QString dividingText(const ValueSummary &summary);

/// The summary in one line, with at most five limits.
QString summaryText(const ValueSummary &summary);

/// The summary in lines: the dividing limit, the range, then each class, the highest one first.
QStringList summaryLines(const ValueSummary &summary);

/// These lines as rich text, with a bar for each class.
QString summaryInfoText(const ValueSummary &summary);

} // namespace vlt::buildings
