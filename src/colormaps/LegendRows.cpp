#include "colormaps/LegendRows.h"

#include "language/Numbers.h"

#include <algorithm>
#include <cmath>

namespace vlt::colormaps {

LegendScale::LegendScale(const ColorMap &map, Interpretation interpretation)
    : m_map(map)
    , m_interpretation(interpretation)
{
    for (const ColorAssociation &one : map.associations()) {
        if (m_values.isEmpty() || one.value > m_values.last())
            m_values.append(one.value);
    }
}

Rgba LegendScale::colorAt(double share) const
{
    const bool isGradient = m_interpretation == Interpretation::Interpolation;
    const double place = share * (isGradient ? count() - 1 : count());
    const int index = std::clamp(static_cast<int>(place), 0, count() - 1);
    double value = m_values.at(index);
    if (isGradient && index + 1 < count())
        value = std::lerp(value, m_values.at(index + 1), place - index);
    return colorOf(m_map, value, m_interpretation).value_or(Rgba{0, 0, 0, 0});
}

QString LegendScale::label(int index) const
{
    if (m_interpretation == Interpretation::Interpolation || count() == 1)
        return numberAt(index);
    if (index == 0)
        return QStringLiteral("< ") + numberAt(1);
    if (index + 1 == count())
        return QStringLiteral("\u2265 ") + numberAt(index);
    return numberAt(index) + QStringLiteral(" \u2026 ") + numberAt(index + 1);
}

double LegendScale::labelShare(int index) const
{
    if (m_interpretation == Interpretation::ColorRanges || count() == 1)
        return (index + 0.5) / count();
    return double(index) / (count() - 1);
}

QString LegendScale::numberAt(int index) const
{
    const double value = m_values.at(index);
    double gap = std::numeric_limits<double>::infinity();
    if (index > 0)
        gap = value - m_values.at(index - 1);
    if (index + 1 < count())
        gap = std::min(gap, m_values.at(index + 1) - value);
    return numberForGap(value, std::isfinite(gap) ? gap : 0);
}

QString numberForGap(double value, double gap)
{
    constexpr int MaxDecimals = 6;
    constexpr double MaxInFull = 1e9;
    if (gap > 0 && std::abs(value) < MaxInFull) {
        double unit = 1;
        for (int decimals = 0; decimals <= MaxDecimals; ++decimals, unit /= 10) {
            const double rounded = std::round(value / unit) * unit;
            if (std::abs(rounded - value) <= gap / 100)
                return language::fixedNumber(value, decimals);
        }
    }
    return language::roundNumber(value);
}

} // namespace vlt::colormaps
