#pragma once

#include <QColor>
#include <QList>
#include <QString>

#include <string_view>

namespace vlt::readingaids {

struct LegendEntry
{
    QColor color; ///< not valid: none
    QString text;
};

/// The colours of values, in ascending order.
struct LegendRamp
{
    struct Stop
    {
        double value = 0;
        QColor color;
    };
    QList<Stop> stops;
    bool isGradient = true; ///< false: each colour applies up to the next value

    /// Whether values may be drawn in proportion: no two are too near to each other for that.
    bool isEven() const;

    /// Position of a value as a share of the bar's height, from the bottom.
    double shareOf(double value) const;

    /// Values that get a label: round numbers, or some of the stops if these are uneven.
    QList<double> ticks(int most) const;

private:
    double gapShare() const;
};

/// The texts of numbers at equal steps, with as many decimals as these need.
QString tickText(double value, double step);

struct LegendPart
{
    QString title;
    LegendRamp ramp; ///< without stops: none
    QList<LegendEntry> entries;
};

using Legend = QList<LegendPart>;

/// The legend of a text of contract/SceneLegend.h, in the user's language.
Legend legendOf(std::string_view text);

} // namespace vlt::readingaids
