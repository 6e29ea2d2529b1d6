#include "buildings/CountsText.h"

#include "language/Numbers.h"
#include "language/VltLanguageManager.h"

namespace vlt::buildings {

namespace {

using contract::CityCounts;
using contract::Substitutes;

struct NamedSubstitute
{
    std::size_t Substitutes::*count;
    QString text; ///< with "%1"
};

QList<NamedSubstitute> namedSubstitutes()
{
    return {
        {&Substitutes::elseField, dico_label("MESS_COUNT_ELSE_FIELD", "second field: %1")},
        {&Substitutes::defaultHeight,
         dico_label("MESS_COUNT_DEFAULT_HEIGHT", "default height: %1")},
        {&Substitutes::terrainBase, dico_label("MESS_COUNT_TERRAIN_BASE", "on the terrain: %1")},
        {&Substitutes::lowestGround,
         dico_label("MESS_COUNT_LOWEST_GROUND", "on the lowest ground: %1")},
        {&Substitutes::zeroGround, dico_label("MESS_COUNT_ZERO_GROUND", "at height 0: %1")},
        {&Substitutes::raisedBottom,
         dico_label("MESS_COUNT_RAISED_BOTTOM", "underside ignored: %1")},
        {&Substitutes::noValue, dico_label("MESS_COUNT_NO_VALUE", "without a value: %1")},
        {&Substitutes::transparent, dico_label("MESS_COUNT_TRANSPARENT", "transparent: %1")},
    };
}

QString numberText(std::size_t count)
{
    return language::wholeNumber(static_cast<qint64>(count));
}

/// Reasons in one line.
QString joined(const QStringList &reasons)
{
    QString line = reasons.value(0);
    for (const QString &reason : reasons.mid(1))
        line = dico_label("MESS_TWO_REASONS", "%1; %2").arg(line, reason);
    return line;
}

} // namespace

QString countsText(const CityCounts &counts)
{
    const QString drawn = numberText(counts.drawn);
    const std::size_t leftOut = sumOf(counts.leftOut, contract::LeftOutCounts);
    QStringList parts{leftOut > 0
                          ? dico_label("MESS_BUILDINGS_LEFT_OUT", "Buildings: %1, left out: %2")
                                .arg(drawn, numberText(leftOut))
                          : dico_label("MESS_BUILDINGS_SHOWN", "Buildings: %1").arg(drawn)};
    for (const NamedSubstitute &substitute : namedSubstitutes()) {
        if (const std::size_t count = counts.substitutes.*substitute.count; count > 0)
            parts << substitute.text.arg(numberText(count));
    }
    return parts.join(QStringLiteral(", "));
}

QString countsInfoText(const CountedBuildings &counted)
{
    const CityCounts &counts = counted.counts;
    if (counts.leftOut == contract::LeftOut() && counts.substitutes == Substitutes())
        return {};
    QStringList lines{countsText(counts).toHtmlEscaped()};
    for (const QString &notice : counted.notices)
        lines << notice.toHtmlEscaped();
    return QStringLiteral("<p>") + lines.join(QStringLiteral("<br/>")) + QStringLiteral("</p>");
}

QString countsLines(const CountedBuildings &counted)
{
    const CityCounts &counts = counted.counts;
    if (counted.notices.isEmpty() && counts.drawn == counts.features)
        return dico_label("MESS_ALL_DRAWN", "Buildings: %1, none left out")
            .arg(numberText(counts.drawn));
    return countsText(counts) + QLatin1Char('\n') + asSentence(joined(counted.notices));
}

QString drawnText(qint64 drawn, qint64 all)
{
    if (drawn >= all)
        return {};
    return dico_label("MESS_DRAWN_FROM_HERE", "%1 of %2 buildings are drawn from here")
        .arg(numberText(drawn), numberText(all));
}

QString asSentence(const QString &text)
{
    return text.left(1).toUpper() + text.mid(1);
}

std::optional<QString> nothingDrawnText(const CountedBuildings &counted)
{
    if (counted.counts.drawn > 0)
        return std::nullopt;
    return dico_label("MESS_CLI_NO_BUILDING", "no building can be drawn: %1")
        .arg(joined(counted.notices));
}

} // namespace vlt::buildings
