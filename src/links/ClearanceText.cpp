#include "links/ClearanceText.h"

#include "language/Numbers.h"
#include "language/VltLanguageManager.h"

namespace vlt::links {

QString clearanceText(linkpath::ClearanceStatus status)
{
    switch (status) {
    case linkpath::ClearanceStatus::Clear:
        return dico_label("MESS_CLEAR", "clear");
    case linkpath::ClearanceStatus::Marginal:
        return dico_label("MESS_MARGINAL", "marginal");
    case linkpath::ClearanceStatus::Obstructed:
        return dico_label("MESS_OBSTRUCTED", "obstructed");
    case linkpath::ClearanceStatus::Unknown:
        break;
    }
    return dico_label("MESS_UNJUDGED", "unknown");
}

QString lackText(linkpath::Lack lack)
{
    switch (lack) {
    case linkpath::Lack::Nothing:
        break;
    case linkpath::Lack::Position:
        return dico_label("MESS_LACK_PLACE", "an end has no position");
    case linkpath::Lack::Terrain:
        return dico_label("MESS_LACK_TERRAIN", "no terrain");
    case linkpath::Lack::HeightA:
        return dico_label("MESS_LACK_HEIGHT_A", "no antenna height at end A");
    case linkpath::Lack::HeightB:
        return dico_label("MESS_LACK_HEIGHT_B", "no antenna height at end B");
    case linkpath::Lack::Frequency:
        return dico_label("MESS_LACK_FREQUENCY", "no frequency");
    case linkpath::Lack::TerrainOfPath:
        return dico_label("MESS_LACK_PATH", "the terrain does not cover the whole path");
    case linkpath::Lack::Length:
        return dico_label("MESS_LACK_LENGTH", "both ends have the same position");
    }
    return {};
}

QString worstText(const linkpath::WorstPoint &worst)
{
    constexpr double MetresPerKm = 1000;
    constexpr int PerCent = 100;
    const QString place = language::shortNumber(worst.distanceM / MetresPerKm, 2);
    const QString metres = language::shortNumber(qAbs(worst.clearanceM), 1);
    if (worst.clearanceM < 0)
        return dico_label("MESS_WORST_CUT", "%1 km from A, terrain %2 m above the line")
            .arg(place, metres);
    return dico_label("MESS_WORST_FREE", "%1 km from A, %2 m free (%3 %)")
        .arg(place, metres, language::shortNumber(worst.freeShare() * PerCent, 0));
}

QColor colorOfClearance(linkpath::ClearanceStatus status)
{
    const auto [red, green, blue] = linkpath::clearanceColor(status);
    return QColor(red, green, blue);
}

} // namespace vlt::links
