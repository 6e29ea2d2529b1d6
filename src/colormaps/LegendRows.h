#pragma once

#include "colormaps/ColorLookup.h"

#include <QList>
#include <QString>

namespace vlt::colormaps {

/// The scale of a legend: each value of a map takes the same room, however unevenly they lie, so
/// that every colour of the map is seen.
class LegendScale
{
public:
    LegendScale(const ColorMap &map, Interpretation interpretation);

    /// Number of distinct values: of labels beside the ends and joints of a gradient, of rows of
    /// colour ranges.
    int count() const { return static_cast<int>(m_values.size()); }

    /// Colour at a share 0 .. 1 of the height, from below.
    Rgba colorAt(double share) const;

    /// Text beside the value at an index, from below. Of colour ranges it tells both ends.
    QString label(int index) const;

    /// Where that text belongs, as a share of the height from below.
    double labelShare(int index) const;

private:
    QString numberAt(int index) const;

    const ColorMap &m_map;
    Interpretation m_interpretation;
    QList<double> m_values;
};

/// A number with as many decimals as tell it from another one that is `gap` away, in the C locale.
/// A gap that is not above 0 asks for 6 significant digits.
QString numberForGap(double value, double gap);

} // namespace vlt::colormaps
