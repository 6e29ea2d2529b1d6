#include "plugins/tables/doctor/WholeTable.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/doctor/FindingTexts.h"

#include <algorithm>
#include <cmath>

namespace vlt::driver {

namespace {

using contract::formatted;
using Positions = std::vector<SurveyedPosition>;

/// Shares of the positions for "nearly all" and "nearly none": a table may have further mistakes.
constexpr double NearlyAll = 0.9;
constexpr double NearlyNone = 0.1;

template<typename Condition>
std::size_t countOf(const Positions &positions, Condition condition)
{
    return static_cast<std::size_t>(std::count_if(positions.begin(), positions.end(), condition));
}

bool isShare(std::size_t count, const Positions &positions, double share)
{
    return static_cast<double>(count) >= share * static_cast<double>(positions.size());
}

std::optional<Finding> wrongUnit(const Positions &positions, const SystemFacts &system)
{
    if (!system.isKnown)
        return std::nullopt;
    constexpr double TooLarge = 2.3; // half turns; beyond any slip of a longitude
    constexpr double HalfTurnDegrees = 180;
    std::size_t count = 0;
    if (system.isGeographic())
        count = countOf(positions, [&](const SurveyedPosition &of) {
            return std::max(std::abs(of.x), std::abs(of.y)) > TooLarge * system.halfTurn;
        });
    else
        count = countOf(positions, [](const SurveyedPosition &of) {
            return std::abs(of.x) <= HalfTurnDegrees && std::abs(of.y) <= HalfTurnDegrees / 2;
        });
    if (!isShare(count, positions, NearlyAll))
        return std::nullopt;
    const std::string wrong = std::to_string(count);
    const std::string all = std::to_string(positions.size());
    if (system.isGeographic())
        return Finding{FindingKind::UnitSystem,
                       count,
                       {},
                       {},
                       formatted("MESS_TAB_DOCTOR_NOT_DEGREES", {wrong, all})};
    return Finding{FindingKind::UnitSystem,
                   count,
                   {},
                   "sourceSrs=EPSG:4326",
                   formatted("MESS_TAB_DOCTOR_NOT_METERS", {wrong, all})};
}

/// Whether the values of a coordinate look like thousands with a separator: 353,619. Several of
/// them must have three decimals, else they are measured in the thousand itself.
bool areThousands(const Positions &positions, double SurveyedPosition::*coordinate)
{
    constexpr double Precision = 1e-6;
    std::size_t withThird = 0;
    for (const SurveyedPosition &position : positions) {
        const double thousand = 1000 * (position.*coordinate);
        if (std::abs(thousand) >= 1e6 || std::abs(thousand - std::round(thousand)) > Precision)
            return false;
        withThird += std::fmod(std::round(thousand), 10) != 0 ? 1 : 0;
    }
    return 2 * withThird >= positions.size();
}

std::optional<Finding> lostThousands(const Positions &positions, const SystemFacts &system)
{
    constexpr double MinOther = 10000; // of a coordinate that is read correctly
    if (system.isGeographic())
        return std::nullopt;
    const bool inX = areThousands(positions, &SurveyedPosition::x);
    const bool inY = areThousands(positions, &SurveyedPosition::y);
    const SurveyedPosition middle = middleOf(positions);
    const bool otherFits =
        (inX || std::abs(middle.x) >= MinOther) && (inY || std::abs(middle.y) >= MinOther);
    const double x = inX ? 1000 * middle.x : middle.x;
    const double y = inY ? 1000 * middle.y : middle.y;
    if ((!inX && !inY) || !otherFits || (system.area && !system.area->holds(x, y)))
        return std::nullopt;
    const Correction where{FindingKind::Thousands, false, inX ? 1000.0 : 1, inY ? 1000.0 : 1};
    return Finding{FindingKind::Thousands,
                   positions.size(),
                   {},
                   {},
                   formatted("MESS_TAB_DOCTOR_THOUSANDS",
                             {coordinatesText(where, false), std::to_string(positions.size())}),
                   statementOf(where)};
}

/// Longitudes in the place of latitudes lie beyond 90 degrees, at least some of them.
std::optional<Finding> swappedOnGlobe(const Positions &positions, const SystemFacts &system)
{
    const double quarter = system.halfTurn / 2;
    Positions beyond;
    Positions rest;
    for (const SurveyedPosition &position : positions) {
        const bool isBeyond = std::abs(position.y) > quarter &&
                              std::abs(position.y) <= 2 * quarter &&
                              std::abs(position.x) <= quarter;
        (isBeyond ? beyond : rest).push_back(position);
    }
    if (beyond.empty())
        return std::nullopt;
    if (beyond.size() <= rest.size()) {
        // Around the meridian of 90 degrees a part of the longitudes lies below it.
        const SurveyedPosition a = middleOf(beyond);
        const SurveyedPosition b = middleOf(rest);
        if (std::hypot(a.x - b.x, a.y - b.y) > std::hypot(a.y - b.x, a.x - b.y))
            return std::nullopt;
    }
    return Finding{FindingKind::Swapped,
                   positions.size(),
                   {},
                   "swapAxes",
                   formatted("MESS_TAB_DOCTOR_SWAPPED_GLOBE",
                             {std::to_string(beyond.size()), std::to_string(positions.size())})};
}

std::string textOf(const Correction &correction, std::size_t corrected, std::size_t all,
                   const std::string &place, bool isGeographic)
{
    const std::string count = std::to_string(corrected);
    const std::string of = std::to_string(all);
    const std::string where = coordinatesText(correction, isGeographic);
    if (correction.kind == FindingKind::Swapped)
        return formatted("MESS_TAB_DOCTOR_SWAPPED", {count, of, place});
    if (correction.kind == FindingKind::Sign)
        return formatted("MESS_TAB_DOCTOR_SIGN", {where, count, of, place});
    const double factor = correction.factorX != 1 ? correction.factorX : correction.factorY;
    return formatted("MESS_TAB_DOCTOR_DECIMAL", {where, numberText(factor), count, of, place});
}

/// A correction that moves the positions into an area in which they do not lie.
std::optional<Finding> outsideAs(const Positions &positions, const CoordinateBox &area,
                                 const std::string &place, bool isGeographic, bool withDecimals)
{
    const auto inside = [&](const Correction &by) {
        return countOf(positions,
                       [&](const SurveyedPosition &of) { return area.holds(by.x(of), by.y(of)); });
    };
    if (isShare(inside({}), positions, NearlyNone))
        return std::nullopt;
    const SurveyedPosition middle = middleOf(positions);
    for (const Correction &correction : corrections()) {
        if ((correction.kind == FindingKind::Decimal && !withDecimals) ||
            !area.holds(correction.x(middle), correction.y(middle)))
            continue;
        const std::size_t corrected = inside(correction);
        if (!isShare(corrected, positions, NearlyAll))
            continue;
        Finding finding = {correction.kind,
                           positions.size(),
                           {},
                           {},
                           textOf(correction, corrected, positions.size(), place, isGeographic)};
        if (correction.isSwap)
            finding.cure = "swapAxes";
        else
            finding.correction = statementOf(correction);
        return finding;
    }
    return std::nullopt;
}

} // namespace

std::optional<Finding> mistakeOfAll(const Positions &positions, const SystemFacts &system)
{
    if (auto found = lostThousands(positions, system))
        return found;
    if (system.terrain) {
        if (auto found = outsideAs(positions, *system.terrain, formatted("MESS_TAB_DOCTOR_TERRAIN"),
                                   system.isGeographic(), true))
            return found;
    }
    if (auto found = wrongUnit(positions, system))
        return found;
    if (auto found = swappedOnGlobe(positions, system))
        return found;
    // An area of use is so large that a displaced decimal mark puts many wrong positions into it.
    if (system.area)
        return outsideAs(positions, *system.area, formatted("MESS_TAB_DOCTOR_AREA"),
                         system.isGeographic(), false);
    return std::nullopt;
}

} // namespace vlt::driver
