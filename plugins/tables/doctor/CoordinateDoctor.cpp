#include "plugins/tables/doctor/CoordinateDoctor.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/doctor/FindingTexts.h"
#include "plugins/tables/doctor/StrayRows.h"
#include "plugins/tables/doctor/WholeTable.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace vlt::driver {

namespace {

using contract::formatted;
using Positions = std::vector<SurveyedPosition>;

/// Makes a finding of rows in any order.
Finding findingOf(FindingKind kind, std::vector<int64_t> rows)
{
    std::sort(rows.begin(), rows.end());
    Finding finding{kind, rows.size(), {}, {}, {}};
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    rows.resize(std::min(rows.size(), Finding::MaxRows));
    finding.rows = std::move(rows);
    return finding;
}

/// The rows of the sites whose ids occur more than once.
std::vector<int64_t> duplicateIds(const Positions &positions)
{
    std::vector<std::pair<std::size_t, int64_t>> ids;
    for (const SurveyedPosition &position : positions) {
        if (position.idHash != 0)
            ids.emplace_back(position.idHash, position.row);
    }
    std::sort(ids.begin(), ids.end());
    std::vector<int64_t> rows;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        const bool isAsBefore = i > 0 && ids[i - 1].first == ids[i].first;
        const bool isAsAfter = i + 1 < ids.size() && ids[i + 1].first == ids[i].first;
        if (isAsBefore || isAsAfter)
            rows.push_back(ids[i].second);
    }
    return rows;
}

/// The largest number of positions at one point, as a range of `sorted`.
std::pair<std::size_t, std::size_t> largestStack(const Positions &sorted)
{
    std::pair<std::size_t, std::size_t> largest;
    for (std::size_t first = 0, i = 0; i < sorted.size(); ++i) {
        if (sorted[i].x != sorted[first].x || sorted[i].y != sorted[first].y)
            first = i;
        if (i + 1 - first > largest.second - largest.first)
            largest = {first, i + 1};
    }
    return largest;
}

std::optional<Finding> stack(Positions positions)
{
    constexpr std::size_t MinStacked = 4;   // more than half of all
    constexpr std::size_t ManyStacked = 20; // operators and antennas on one mast
    std::sort(positions.begin(), positions.end(),
              [](const auto &a, const auto &b) { return std::tie(a.x, a.y) < std::tie(b.x, b.y); });
    const auto [first, end] = largestStack(positions);
    const std::size_t count = end - first;
    if (count <= ManyStacked && (count < MinStacked || 2 * count <= positions.size()))
        return std::nullopt;
    std::vector<int64_t> rows;
    for (std::size_t i = first; i < end; ++i)
        rows.push_back(positions[i].row);
    Finding finding = findingOf(FindingKind::Stacked, std::move(rows));
    finding.text = formatted("MESS_TAB_DOCTOR_STACKED",
                             {std::to_string(count), std::to_string(positions.size()),
                              numberText(positions[first].x) + " " + numberText(positions[first].y),
                              rowsText(finding)});
    return finding;
}

/// The positions outside the terrain, but for those of rows with a finding of their own.
std::optional<Finding> outsideTerrain(const Positions &positions, const SystemFacts &system,
                                      std::vector<int64_t> explained)
{
    std::sort(explained.begin(), explained.end());
    std::vector<int64_t> rows;
    for (const SurveyedPosition &position : positions) {
        if (!system.terrain->holds(position.x, position.y) &&
            system.arePossible(position.x, position.y) &&
            !std::binary_search(explained.begin(), explained.end(), position.row))
            rows.push_back(position.row);
    }
    if (rows.empty())
        return std::nullopt;
    Finding finding = findingOf(FindingKind::OutsideTerrain, std::move(rows));
    finding.text =
        formatted("MESS_TAB_DOCTOR_OUTSIDE", {std::to_string(finding.count),
                                              std::to_string(positions.size()), rowsText(finding)});
    return finding;
}

void add(std::vector<Finding> &findings, std::optional<Finding> finding)
{
    if (finding)
        findings.push_back(std::move(*finding));
}

} // namespace

bool SystemFacts::arePossible(double x, double y) const
{
    return !isGeographic() || (std::abs(x) <= halfTurn && 2 * std::abs(y) <= halfTurn);
}

std::vector<Finding> diagnose(const Positions &positions, const SystemFacts &system)
{
    std::vector<Finding> findings;
    if (!system.isKnown)
        findings.push_back({FindingKind::Undeclared,
                            positions.size(),
                            {},
                            {},
                            formatted("MESS_TAB_DOCTOR_UNDECLARED")});
    if (positions.empty())
        return findings;
    if (auto mistake = mistakeOfAll(positions, system)) {
        findings.push_back(std::move(*mistake));
    } else {
        std::vector<int64_t> rows;
        for (Finding &finding : mistakesOfSome(positions, system, rows))
            findings.push_back(std::move(finding));
        if (system.terrain)
            add(findings, outsideTerrain(positions, system, std::move(rows)));
    }
    if (std::vector<int64_t> rows = duplicateIds(positions); !rows.empty()) {
        Finding finding = findingOf(FindingKind::DuplicateId, std::move(rows));
        finding.text = formatted(
            "MESS_TAB_DOCTOR_DUPLICATE",
            {std::to_string(finding.count), std::to_string(positions.size()), rowsText(finding)});
        findings.push_back(std::move(finding));
    }
    add(findings, stack(positions));
    return findings;
}

} // namespace vlt::driver
