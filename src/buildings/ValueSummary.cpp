#include "buildings/ValueSummary.h"

#include "colormaps/LegendRows.h"
#include "language/Numbers.h"
#include "language/VltLanguageManager.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

namespace vlt::buildings {

namespace {

using colormaps::Interpretation;

constexpr std::size_t MaxLimits = 11;
constexpr std::size_t ClassesOfGradient = 8; ///< if only its ends have values
constexpr qsizetype MaxLimitsInLine = 5;

/// A unit and how names of files write it.
struct NamedUnit
{
    const char *name;
    const char *unit;
};
constexpr NamedUnit Units[] = {{"dbm", "dBm"}, {"db", "dB"},    {"dbuvm", "dBµV/m"},
                               {"vm", "V/m"},  {"km2", "/km²"}, {"degrees", "°"},
                               {"m", "m"}};

/// The last word of a file's name that is a unit. In that of a raster "m" is rather a part of a
/// height.
QString unitInName(const QString &path, bool isRaster)
{
    static const QRegularExpression Separator(QStringLiteral("[^A-Za-z0-9]+"));
    const QStringList words = QFileInfo(path).completeBaseName().toLower().split(Separator);
    for (qsizetype last = words.size() - 1; last >= 0; --last) {
        for (const NamedUnit &known : Units) {
            const bool isMetres = known.unit == std::string_view("m");
            if (words.at(last) == QLatin1String(known.name) && !(isRaster && isMetres))
                return QString::fromUtf8(known.unit);
        }
    }
    return {};
}

/// Limits that are evenly taken out of too many.
std::vector<double> thinned(const std::vector<double> &limits)
{
    if (limits.size() <= MaxLimits)
        return limits;
    std::vector<double> some;
    for (std::size_t i = 0; i < MaxLimits; ++i)
        some.push_back(limits[i * (limits.size() - 1) / (MaxLimits - 1)]);
    return some;
}

/// The values of the map, then the limits of the classes between the first and the last of them.
std::vector<double> edgesOf(const LegendInput &legend)
{
    std::vector<double> values;
    for (const colormaps::ColorAssociation &one : legend.map.associations()) {
        if (values.empty() || one.value > values.back())
            values.push_back(one.value);
    }
    if (values.empty())
        return values;
    const bool isGradient = legend.interpretation == Interpretation::Interpolation;
    std::vector<double> limits;
    if (isGradient && values.size() == 2) {
        for (std::size_t i = 1; i < ClassesOfGradient; ++i)
            limits.push_back(std::lerp(values.front(), values.back(),
                                       static_cast<double>(i) / ClassesOfGradient));
    } else {
        // The colour of the last value of a range map begins there, that of a gradient ends.
        const std::size_t end = values.size() - (isGradient && values.size() > 1 ? 1 : 0);
        for (std::size_t i = 1; i < end; ++i)
            limits.push_back(values[i]);
    }
    std::vector<double> edges = thinned(limits);
    edges.insert(edges.begin(), values.front());
    edges.push_back(values.back());
    return edges;
}

/// A quantile by linear interpolation between the sorted values.
double quantile(const std::vector<double> &sorted, double share)
{
    const double place = share * static_cast<double>(sorted.size() - 1);
    const auto below = static_cast<std::size_t>(place);
    const std::size_t above = std::min(below + 1, sorted.size() - 1);
    return std::lerp(sorted[below], sorted[above], place - std::floor(place));
}

QString percent(double share)
{
    return dico_label("MESS_PERCENT", "%1 %").arg(std::lround(100 * share));
}

/// A number with the decimals that the classes need.
QString plainText(const ValueSummary &summary, double value)
{
    double gap = std::numeric_limits<double>::infinity();
    for (const ValueClass &one : summary.classes) {
        if (one.from && one.to)
            gap = std::min(gap, *one.to - *one.from);
    }
    if (!std::isfinite(gap))
        return colormaps::numberForGap(value, 0);
    // Rounded to a hundredth of a class: limits themselves have no superfluous decimals.
    const double step = std::pow(10, std::floor(std::log10(gap)) - 1);
    return colormaps::numberForGap(std::round(value / step) * step, gap);
}

/// The indexes of the classes whose lower limits divide the buildings. Of several limits that do so
/// in the same way, the highest one counts.
QList<qsizetype> dividingClasses(const ValueSummary &summary)
{
    QList<qsizetype> indexes;
    for (qsizetype i = 1; i < summary.classes.size(); ++i) {
        const double share = summary.shareFrom(i);
        if (summary.classes.at(i).buildings > 0 && share < 1)
            indexes << i;
    }
    return indexes;
}

QString shareText(const ValueSummary &summary, qsizetype index)
{
    return dico_label("MESS_VALUES_FROM", "%1 at %2 or more")
        .arg(percent(summary.shareFrom(index)),
             valueText(summary, *summary.classes.at(index).from));
}

QString spreadText(const ValueSummary &summary)
{
    if (summary.buildings == 0)
        return dico_label("MESS_VALUES_NONE", "no building has a value");
    return dico_label("MESS_VALUES_SPREAD", "buildings with a value: %1, from %2 to %3, median %4")
        .arg(language::wholeNumber(static_cast<qint64>(summary.buildings)),
             plainText(summary, *summary.quantiles[0]), valueText(summary, *summary.quantiles[6]),
             valueText(summary, *summary.quantiles[3]));
}

QString classShare(const ValueSummary &summary, const ValueClass &one)
{
    const auto all = static_cast<double>(std::max<std::size_t>(summary.buildings, 1));
    return percent(static_cast<double>(one.buildings) / all);
}

/// The lines above those of the classes, as sentences.
QStringList headLines(const ValueSummary &summary)
{
    QStringList lines;
    for (const QString &line : {dividingText(summary), spreadText(summary)}) {
        if (!line.isEmpty())
            lines << line.left(1).toUpper() + line.mid(1);
    }
    return lines;
}

/// A row of a table: a class, its bar of coloured blanks, its share of the buildings.
QString barRow(const ValueSummary &summary, qsizetype index, std::size_t most)
{
    constexpr double MaxBlanks = 22;
    const ValueClass &one = summary.classes.at(index);
    const double length =
        MaxBlanks * static_cast<double>(one.buildings) / static_cast<double>(most);
    const colormaps::Rgba &color = one.color;
    const QString blank = QStringLiteral("&nbsp;");
    const QString bar =
        QStringLiteral("<span style=\"background-color:#%1\">%2</span>")
            .arg(color.red << 16 | color.green << 8 | color.blue, 6, 16, QLatin1Char('0'))
            .arg(blank.repeated(static_cast<int>(std::ceil(length))));
    const QString row =
        QStringLiteral("<tr><td align=\"right\">%1&nbsp;</td><td>%2&nbsp;%3</td></tr>");
    return row.arg(classText(summary, index).toHtmlEscaped().replace(u' ', blank),
                   one.buildings > 0 ? bar : QString(),
                   classShare(summary, one).replace(u' ', blank));
}

} // namespace

double ValueSummary::shareFrom(qsizetype index) const
{
    std::size_t count = 0;
    for (qsizetype i = index; i < classes.size(); ++i)
        count += classes.at(i).buildings;
    return buildings == 0 ? 0 : static_cast<double>(count) / static_cast<double>(buildings);
}

ValueSummary summarize(std::vector<double> values, const LegendInput &legend, const QString &unit)
{
    ValueSummary summary;
    summary.unit = unit;
    summary.buildings = values.size();
    std::sort(values.begin(), values.end());
    if (!values.empty()) {
        for (std::size_t i = 0; i < std::size(QuantileShares); ++i)
            summary.quantiles[i] = quantile(values, QuantileShares[i].share);
    }
    const std::vector<double> edges = edgesOf(legend);
    auto begin = values.cbegin();
    for (std::size_t i = 0; i + 1 < edges.size(); ++i) {
        ValueClass one;
        const bool isLast = i + 2 == edges.size();
        if (i > 0)
            one.from = edges[i];
        if (!isLast)
            one.to = edges[i + 1];
        const auto end =
            isLast ? values.cend() : std::lower_bound(begin, values.cend(), edges[i + 1]);
        one.buildings = static_cast<std::size_t>(end - begin);
        begin = end;
        one.color =
            colorOf(legend.map, std::midpoint(edges[i], edges[i + 1]), legend.interpretation)
                .value_or(colormaps::Rgba{});
        summary.classes << one;
    }
    return summary;
}

QString unitOf(const QString &bandUnit, const RasterColoring &coloring)
{
    if (!bandUnit.isEmpty())
        return bandUnit;
    QString unit = unitInName(coloring.rasterFile, true);
    if (!unit.isEmpty() || coloring.stretched)
        return unit;
    return unitInName(coloring.colorMap, false);
}

QString valueText(const ValueSummary &summary, double value)
{
    const QString number = plainText(summary, value);
    return summary.unit.isEmpty() ? number : number + QChar(u' ') + summary.unit;
}

QString classText(const ValueSummary &summary, qsizetype index)
{
    const ValueClass &one = summary.classes.at(index);
    if (one.from && one.to)
        return plainText(summary, *one.from) + QStringLiteral(" \u2026 ") +
               plainText(summary, *one.to);
    if (one.from)
        return QStringLiteral("\u2265 ") + plainText(summary, *one.from);
    return one.to ? QStringLiteral("< ") + plainText(summary, *one.to) : QString();
}

QString dividingText(const ValueSummary &summary)
{
    const QList<qsizetype> indexes = dividingClasses(summary);
    const auto fromHalf = [&summary](qsizetype index) {
        return std::abs(summary.shareFrom(index) - 0.5);
    };
    const auto best =
        std::min_element(indexes.begin(), indexes.end(),
                         [&](qsizetype a, qsizetype b) { return fromHalf(a) < fromHalf(b); });
    return best == indexes.end() ? QString() : shareText(summary, *best);
}

QString summaryText(const ValueSummary &summary)
{
    QStringList parts{spreadText(summary)};
    const QList<qsizetype> indexes = dividingClasses(summary);
    const qsizetype shown = std::min(indexes.size(), MaxLimitsInLine);
    for (qsizetype i = 0; i < shown; ++i)
        parts << shareText(summary,
                           indexes.at(shown > 1 ? i * (indexes.size() - 1) / (shown - 1) : 0));
    return parts.join(QStringLiteral(", "));
}

QStringList summaryLines(const ValueSummary &summary)
{
    QStringList lines = headLines(summary);
    for (qsizetype i = summary.classes.size() - 1; i >= 0; --i)
        lines << classText(summary, i) + QStringLiteral(": ") +
                     QStringLiteral("%1 (%2)").arg(language::wholeNumber(static_cast<qint64>(
                                                       summary.classes.at(i).buildings)),
                                                   classShare(summary, summary.classes.at(i)));
    return lines;
}

QString summaryInfoText(const ValueSummary &summary)
{
    QString text = QStringLiteral("<p>");
    for (const QString &line : headLines(summary))
        text += line.toHtmlEscaped() + QStringLiteral("<br/>");
    std::size_t most = 1;
    for (const ValueClass &one : summary.classes)
        most = std::max(most, one.buildings);
    text += QStringLiteral("</p><table cellspacing=\"1\" cellpadding=\"0\">");
    for (qsizetype i = summary.classes.size() - 1; i >= 0; --i)
        text += barRow(summary, i, most);
    return text + QStringLiteral("</table>");
}

} // namespace vlt::buildings
