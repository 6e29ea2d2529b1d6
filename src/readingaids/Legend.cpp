#include "readingaids/Legend.h"

#include "contract/SceneLegend.h"
#include "language/Numbers.h"
#include "language/VltLanguageManager.h"
#include "readingaids/ViewScale.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>

namespace vlt::readingaids {

namespace {

namespace legend = contract::legend;

QString textAt(const legend::Row &row, std::size_t index)
{
    return index < row.texts.size() ? QString::fromStdString(row.texts[index]) : QString();
}

QString numberAt(const legend::Row &row, std::size_t index)
{
    return language::roundNumber(textAt(row, index).toDouble());
}

QString counted(const QString &name, const legend::Row &row)
{
    return dico_label("MESS_LEGEND_COUNTED", "%1: %2").arg(name, numberAt(row, 0));
}

QString sectorText(const legend::Row &row)
{
    QStringList numbers;
    for (std::size_t i = 0; i < row.texts.size(); ++i)
        numbers << textAt(row, i);
    return (numbers.size() == 1 ? dico_label("MESS_LEGEND_SECTOR", "Sector %1")
                                : dico_label("MESS_LEGEND_SECTORS", "Sectors %1"))
        .arg(numbers.join(QStringLiteral(", ")));
}

QString fresnelText(const legend::Row &row)
{
    return textAt(row, 1) == QLatin1String("100")
               ? dico_label("MESS_LEGEND_ZONE", "Fresnel zone %1").arg(numberAt(row, 0))
               : dico_label("MESS_LEGEND_PART_OF_ZONE", "%2 % of Fresnel zone %1")
                     .arg(numberAt(row, 0), numberAt(row, 1));
}

QString imageText(const legend::Row &row)
{
    return dico_label("MESS_LEGEND_IMAGE", "%1 m: %2").arg(numberAt(row, 0), textAt(row, 1));
}

using EntryText = std::function<QString(const legend::Row &)>;

EntryText always(const QString &text)
{
    return [text](const legend::Row &) { return text; };
}

EntryText countedAs(const QString &name)
{
    return [name](const legend::Row &row) { return counted(name, row); };
}

/// Title of a colour map: what it colours, the values' name and their unit.
QString mapTitle(const legend::Row &row)
{
    const QString unit = textAt(row, 2);
    QString title = textAt(row, 1);
    if (!unit.isEmpty())
        title = dico_label("MESS_LEGEND_UNIT", "%1 (%2)").arg(title, unit);
    if (textAt(row, 0) == QLatin1String(legend::Walls))
        return dico_label("MESS_LEGEND_WALLS", "Walls: %1").arg(title);
    if (textAt(row, 0) == QLatin1String(legend::Roofs))
        return dico_label("MESS_LEGEND_ROOFS", "Roofs: %1").arg(title);
    return title;
}

QColor colorOf(const legend::Row &row)
{
    return {row.color[0], row.color[1], row.color[2], row.color[3]};
}

/// Few ranges of values become entries, the highest first.
void listRanges(LegendPart &part)
{
    constexpr qsizetype MaxRanges = 10;
    const QList<LegendRamp::Stop> stops = part.ramp.stops;
    if (part.ramp.isGradient || stops.isEmpty() || stops.size() > MaxRanges)
        return;
    double step = std::abs(stops.constLast().value - stops.constFirst().value);
    for (qsizetype i = 1; i < stops.size(); ++i)
        step = std::min(step, stops[i].value - stops[i - 1].value);
    const auto text = [&](qsizetype i) { return tickText(stops[i].value, step); };
    QList<LegendEntry> entries;
    for (qsizetype i = stops.size() - 1; i >= 0; --i) {
        QString range = QStringLiteral("< ") + text(std::min<qsizetype>(1, stops.size() - 1));
        if (i > 0)
            range = i + 1 == stops.size() ? QStringLiteral("\u2265 ") + text(i)
                                          : text(i) + QStringLiteral(" \u2026 ") + text(i + 1);
        if (stops.size() == 1)
            range = text(0);
        entries.append({stops[i].color, range});
    }
    part.entries = entries + part.entries;
    part.ramp.stops.clear();
}

} // namespace

bool LegendRamp::isEven() const
{
    constexpr double MinShareOfMean = 0.125;
    return gapShare() * static_cast<double>(stops.size()) > MinShareOfMean;
}

/// The smallest distance of two values / that of the first and last one.
double LegendRamp::gapShare() const
{
    double gap = std::numeric_limits<double>::infinity();
    for (qsizetype i = 1; i < stops.size(); ++i) {
        if (stops[i].value > stops[i - 1].value)
            gap = std::min(gap, stops[i].value - stops[i - 1].value);
    }
    return gap / (stops.constLast().value - stops.constFirst().value);
}

double LegendRamp::shareOf(double value) const
{
    const double first = stops.constFirst().value;
    const double last = stops.constLast().value;
    if (!(last > first))
        return 0;
    if (isEven())
        return (value - first) / (last - first);
    for (qsizetype i = 1; i < stops.size(); ++i) {
        const double from = stops[i - 1].value;
        if (value <= stops[i].value && stops[i].value > from)
            return (static_cast<double>(i - 1) + (value - from) / (stops[i].value - from)) /
                   static_cast<double>(stops.size() - 1);
    }
    return 1;
}

QList<double> LegendRamp::ticks(int most) const
{
    const double first = stops.constFirst().value;
    const double last = stops.constLast().value;
    QList<double> found;
    if (!(last > first))
        return {first};
    if (isEven()) {
        double step = roundNumberUpTo((last - first) / most);
        while ((last - first) / step > most)
            step = roundNumberUpTo(2.5 * step);
        for (double i = std::ceil(first / step); i * step <= last; ++i)
            found << i * step;
        return found;
    }
    const qsizetype every = 1 + (stops.size() - 1) / most;
    for (qsizetype i = 0; i < stops.size(); i += every)
        found << stops[i].value;
    return found;
}

QString tickText(double value, double step)
{
    constexpr int MaxDecimals = 6;
    int decimals = 0;
    double scaled = std::abs(step);
    while (decimals < MaxDecimals && scaled > 0 &&
           std::abs(scaled - std::round(scaled)) > 1e-6 * scaled) {
        scaled *= 10;
        ++decimals;
    }
    return language::fixedNumber(value, decimals);
}

Legend legendOf(std::string_view text)
{
    const std::map<std::string_view, EntryText> entries = {
        {legend::Sector, sectorText},
        {legend::Link, always(dico_label("MESS_LEGEND_LINK", "Line of sight"))},
        {legend::Clear, countedAs(dico_label("MESS_CLEAR", "clear"))},
        {legend::Marginal, countedAs(dico_label("MESS_MARGINAL", "marginal"))},
        {legend::Obstructed, countedAs(dico_label("MESS_OBSTRUCTED", "obstructed"))},
        {legend::Unknown, countedAs(dico_label("MESS_UNJUDGED", "unknown"))},
        {legend::Fresnel, fresnelText},
        {legend::Value, [](const legend::Row &row) { return textAt(row, 0); }},
        {legend::Others, always(dico_label("MESS_LEGEND_OTHERS", "other values"))},
        {legend::NoValue, always(dico_label("MESS_LEGEND_NO_VALUE", "no value"))},
        {legend::Image, imageText},
    };
    Legend parts;
    const auto current = [&parts]() -> LegendPart & {
        if (parts.isEmpty())
            parts.append(LegendPart());
        return parts.last();
    };
    bool isImages = false;
    for (const legend::Row &row : contract::legend::rowsOf(text)) {
        if (row.kind == legend::Map) {
            parts.append(
                {mapTitle(row), {{}, textAt(row, 3) == QLatin1String(legend::Gradient)}, {}});
        } else if (row.kind == legend::Field) {
            parts.append({textAt(row, 0), {}, {}});
        } else if (row.kind == legend::Stop) {
            current().ramp.stops.append({textAt(row, 0).toDouble(), colorOf(row)});
        } else if (const auto entry = entries.find(row.kind); entry != entries.end()) {
            if (row.kind == legend::Image && !std::exchange(isImages, true))
                parts.append({dico_label("MESS_LEGEND_IMAGES", "Images by height"), {}, {}});
            current().entries.append(
                {row.kind == legend::Image ? QColor() : colorOf(row), entry->second(row)});
        }
    }
    std::for_each(parts.begin(), parts.end(), listRanges);
    return parts;
}

} // namespace vlt::readingaids
