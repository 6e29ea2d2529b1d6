#include "batch/LinkReport.h"

#include "batch/AlignedText.h"
#include "language/VltLanguageManager.h"
#include "links/ClearanceText.h"
#include "text/Numbers.h"

#include <QJsonArray>

#include <array>

namespace vlt::batch {

namespace {

using linkpath::ClearanceStatus;

constexpr std::array<ClearanceStatus, 4> Statuses = {
    ClearanceStatus::Clear, ClearanceStatus::Marginal, ClearanceStatus::Obstructed,
    ClearanceStatus::Unknown};
/// The first column with numbers; those before it have texts.
constexpr qsizetype FirstNumber = 5;
constexpr qsizetype NumberCount = 5;

/// The class of clearance in JSON.
QString clearanceKey(ClearanceStatus status)
{
    switch (status) {
    case ClearanceStatus::Clear:
        return QStringLiteral("clear");
    case ClearanceStatus::Marginal:
        return QStringLiteral("marginal");
    case ClearanceStatus::Obstructed:
        return QStringLiteral("obstructed");
    case ClearanceStatus::Unknown:
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
    case linkpath::Lack::Position:
        return QStringLiteral("position");
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

qint64 countOf(const geodata::LinkCheck &check, ClearanceStatus status)
{
    return std::count_if(
        check.links.begin(), check.links.end(),
        [status](const geodata::LinkReport &link) { return link.clearance.status == status; });
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
            dico_label("MESS_CLI_VERDICT", "clearance"),
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
            link.isPlaced ? links::clearanceText(link.clearance.status)
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
            {QStringLiteral("clearanceStatus"), clearanceKey(link.clearance.status)},
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
    for (const ClearanceStatus status : Statuses)
        counts << Line{links::clearanceText(status), {QString::number(countOf(check, status))}};
    return alignedTable(rows, FirstNumber, NumberCount) + QLatin1Char('\n') + aligned(counts);
}

QJsonObject linkReportJson(const geodata::LinkCheck &check)
{
    QJsonArray list;
    for (const geodata::LinkReport &link : check.links)
        list.append(linkJson(link));
    QJsonObject counts;
    for (const ClearanceStatus status : Statuses)
        counts.insert(clearanceKey(status), countOf(check, status));
    return {{QStringLiteral("links"), list}, {QStringLiteral("statusCounts"), counts}};
}

} // namespace vlt::batch
