#pragma once

#include "colormaps/ColorLookup.h"

#include <QList>
#include <QString>

namespace vlt::colormaps {

/// The scale of a legend. All values of a map have the same distance in it, even if they are
/// unevenly distributed, so that every colour of the map is visible.
class LegendScale
{
public:
    LegendScale(const ColorMap &map, Interpretation interpretation);

    /// Number of distinct values: the number of labels of a gradient (at its ends and joints), or
    /// of colour ranges.
    int count() const { return static_cast<int>(m_values.size()); }

    /// Colour at a share 0 .. 1 of the height, from the bottom.
    Rgba colorAt(double share) const;

    /// Text beside the value at an index, from the bottom. For colour ranges it has both ends.
    QString label(int index) const;

    /// Position of that text, as a share of the height from the bottom.
    double labelShare(int index) const;

private:
    QString numberAt(int index) const;

    const ColorMap &m_map;
    Interpretation m_interpretation;
    QList<double> m_values;
};

/// A number for people, with enough decimals to distinguish it from another one that differs by
/// `gap`. If `gap` is not above 0, it has 6 significant digits.
QString numberForGap(double value, double gap);

} // namespace vlt::colormaps
