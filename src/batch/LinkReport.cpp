#include "batch/LinkReport.h"

#include "batch/AlignedText.h"
#include "language/VltLanguageManager.h"
#include "links/VerdictText.h"
#include "text/Numbers.h"

#include <QJsonArray>

#include <array>

namespace vlt::batch {

namespace {

using linkpath::Verdict;

constexpr std::array<Verdict, 4> Verdicts = {Verdict::Clear, Verdict::Marginal, Verdict::Obstructed,
                                             Verdict::Unknown};
/// The first column with numbers; those before it have texts.
constexpr qsizetype FirstNumber = 5;
constexpr qsizetype NumberCount = 5;

/// The class of clearance in JSON.
QString verdictKey(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Clear:
        return QStringLiteral("clear");
    case Verdict::Marginal:
        return QStringLiteral("marginal");
    case Verdict::Obstructed:
        return QStringLiteral("obstructed");
    case Verdict::Unknown:
        break;
    }
    return QStringLiteral("unknown");
}

/// The missing input of a link in JSON.
QJsonValue lackKey(linkpath::Lack lack)
{
    switch (lack) {
    case linkpath::Lack::Nothing:
        break;
    case linkpath::Lack::Place:
        return QStringLiteral("place");
    case linkpath::Lack::Terrain:
        return QStringLiteral("terrain");
    case linkpath::Lack::HeightA:
        return QStringLiteral("heightA");
    case linkpath::Lack::HeightB:
        return QStringLiteral("heightB");
    case linkpath::Lack::Frequency:
        return QStringLiteral("frequency");
    case linkpath::Lack::TerrainOfPath:
        return QStringLiteral("terrainOfPath");
    case linkpath::Lack::Length:
        return QStringLiteral("length");
    }
    return QJsonValue(QJsonValue::Null);
}

qint64 countOf(const geodata::LinkCheck &check, Verdict verdict)
{
    return std::count_if(
        check.links.begin(), check.links.end(),
        [verdict](const geodata::LinkReport &link) { return link.clearance.verdict == verdict; });
}

QString fixed(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

QString orDash(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("-") : text;
}

QStringList tableHead()
{
    return {dico_label("MESS_CLI_ROW", "row"),
            dico_label("MESS_CLI_LINK", "link"),
            dico_label("MESS_CLI_END_A", "end A"),
            dico_label("MESS_CLI_END_B", "end B"),
            dico_label("MESS_CLI_VERDICT", "verdict"),
            QStringLiteral("km"),
            QStringLiteral("MHz"),
            dico_label("MESS_CLI_WORST_KM", "worst at km"),
            dico_label("MESS_CLI_CLEARANCE_M", "clearance m"),
            dico_label("MESS_CLI_CLEARANCE_SHARE", "% of zone 1"),
            dico_label("MESS_CLI_WHY", "why")};
}

QStringList tableRow(const geodata::LinkReport &link)
{
    const auto &worst = link.clearance.worst;
    return {QString::number(link.row),
            orDash(link.name),
            orDash(link.endA),
            orDash(link.endB),
            link.isPlaced ? links::verdictText(link.clearance.verdict)
                          : dico_label("MESS_CLI_NOT_PLACED", "not placed"),
            orDash(link.lengthM ? fixed(*link.lengthM / 1000, 3) : QString()),
            orDash(link.frequencyMHz ? text::g9(*link.frequencyMHz) : QString()),
            orDash(worst ? fixed(worst->distanceM / 1000, 3) : QString()),
            orDash(worst ? fixed(worst->clearanceM, 1) : QString()),
            orDash(worst ? fixed(worst->freeShare() * 100, 0) : QString()),
            links::lackText(link.clearance.lack)};
}

QJsonValue orNull(const std::optional<double> &value)
{
    return value ? QJsonValue(*value) : QJsonValue(QJsonValue::Null);
}

QJsonValue worstJson(const std::optional<linkpath::WorstPoint> &worst)
{
    if (!worst)
        return QJsonValue(QJsonValue::Null);
    return QJsonObject{{QStringLiteral("distanceM"), worst->distanceM},
                       {QStringLiteral("terrainM"), worst->terrainM},
                       {QStringLiteral("lineM"), worst->lineM},
                       {QStringLiteral("bulgeM"), worst->bulgeM},
                       {QStringLiteral("radiusM"), worst->radiusM},
                       {QStringLiteral("clearanceM"), worst->clearanceM},
                       {QStringLiteral("freeShare"), worst->freeShare()}};
}

QJsonObject linkJson(const geodata::LinkReport &link)
{
    return {{QStringLiteral("row"), link.row},
            {QStringLiteral("name"), link.name},
            {QStringLiteral("endA"), link.endA},
            {QStringLiteral("endB"), link.endB},
            {QStringLiteral("placed"), link.isPlaced},
            {QStringLiteral("lengthM"), orNull(link.lengthM)},
            {QStringLiteral("frequencyMHz"), orNull(link.frequencyMHz)},
            {QStringLiteral("verdict"), verdictKey(link.clearance.verdict)},
            {QStringLiteral("why"), lackKey(link.clearance.lack)},
            {QStringLiteral("worst"), worstJson(link.clearance.worst)}};
}

} // namespace

QString linkReportText(const geodata::LinkCheck &check)
{
    QList<QStringList> rows = {tableHead()};
    for (const geodata::LinkReport &link : check.links)
        rows << tableRow(link);
    QList<Line> counts = {{dico_label("MESS_CLI_LINK_COUNT", "Number of links"),
                           {QString::number(check.placement.features)}}};
    for (const Verdict verdict : Verdicts)
        counts << Line{links::verdictText(verdict), {QString::number(countOf(check, verdict))}};
    return alignedTable(rows, FirstNumber, NumberCount) + QLatin1Char('\n') + aligned(counts);
}

QJsonObject linkReportJson(const geodata::LinkCheck &check)
{
    QJsonArray list;
    for (const geodata::LinkReport &link : check.links)
        list.append(linkJson(link));
    QJsonObject counts;
    for (const Verdict verdict : Verdicts)
        counts.insert(verdictKey(verdict), countOf(check, verdict));
    return {{QStringLiteral("links"), list}, {QStringLiteral("verdicts"), counts}};
}

} // namespace vlt::batch
