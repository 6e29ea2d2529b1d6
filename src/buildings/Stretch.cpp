#include "buildings/Stretch.h"

#include "contract/NoDataText.h"

#include <QLocale>

#include <cmath>

namespace vlt::buildings {

namespace {

const QString With = QStringLiteral("with=");

QString exact(double number)
{
    return QLocale::c().toString(number, 'g', QLocale::FloatingPointShortest);
}

/// Two ascending numbers with a mark between them; a sign is not such a mark.
std::optional<Stretch> ascending(Stretch::Kind kind, const QString &text, QLatin1Char mark)
{
    const qsizetype at = text.indexOf(mark, 1);
    if (at < 0)
        return std::nullopt;
    const auto low = stretchNumber(text.first(at));
    const auto high = stretchNumber(text.sliced(at + 1));
    if (!low || !high || !(*low < *high))
        return std::nullopt;
    return Stretch{kind, *low, *high, {}};
}

std::optional<Stretch> percentiles(const QString &text)
{
    const auto stretch = ascending(Stretch::Percentile, text, QLatin1Char('-'));
    return stretch && stretch->low >= 0 && stretch->high <= 100 ? stretch : std::nullopt;
}

} // namespace

QStringList stretchTexts(const Stretch &stretch)
{
    switch (stretch.kind) {
    case Stretch::Raster:
        break;
    case Stretch::Percentile:
        return {QStringLiteral("percentile=%1-%2").arg(exact(stretch.low), exact(stretch.high))};
    case Stretch::Buildings:
        return {QStringLiteral("buildings")};
    case Stretch::Range:
        return {QStringLiteral("range=%1,%2").arg(exact(stretch.low), exact(stretch.high))};
    case Stretch::Shared: {
        QStringList texts = stretch.others;
        for (QString &text : texts)
            text.prepend(With);
        return texts;
    }
    }
    return {QStringLiteral("raster")};
}

std::optional<Stretch> parseStretch(const QStringList &texts)
{
    Stretch shared{Stretch::Shared, 0, 0, {}};
    for (const QString &text : texts) {
        if (text.startsWith(With) && text.size() > With.size())
            shared.others << text.sliced(With.size());
    }
    if (!shared.others.isEmpty())
        return shared.others.size() == texts.size() ? std::optional(shared) : std::nullopt;
    if (texts.size() != 1)
        return std::nullopt;
    const QString &text = texts.constFirst();
    const QString value = text.section(QLatin1Char('='), 1);
    if (text == QLatin1String("raster"))
        return Stretch();
    if (text == QLatin1String("buildings"))
        return Stretch{Stretch::Buildings, 0, 0, {}};
    if (text == QLatin1String("percentile"))
        return Stretch{Stretch::Percentile, FirstLowPercentile, FirstHighPercentile, {}};
    if (text.startsWith(QLatin1String("percentile=")))
        return percentiles(value);
    if (text.startsWith(QLatin1String("range=")))
        return ascending(Stretch::Range, value, QLatin1Char(','));
    return std::nullopt;
}

std::optional<double> stretchNumber(const QString &text)
{
    const std::optional<double> number = contract::noDataNumber(text.toStdString());
    return number && std::isfinite(*number) ? number : std::nullopt;
}

} // namespace vlt::buildings
