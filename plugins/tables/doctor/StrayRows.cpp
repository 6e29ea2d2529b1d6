#include "plugins/tables/doctor/StrayRows.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/doctor/FindingTexts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>
#include <utility>

namespace vlt::driver {

namespace {

using contract::formatted;
using Positions = std::vector<SurveyedPosition>;

/// Below this number of positions nothing can be said about single ones.
constexpr std::size_t MinPositions = 4;
constexpr double MinNearM = 5e3;
constexpr double MinFarM = 50e3;
constexpr double MinOutlierM = 200e3;
/// Distances from the middle, in multiples of that below which most positions lie. A country is
/// long, so that its ends are far from the middle.
constexpr double NearSpreads = 3;
constexpr double FarSpreads = 8;
constexpr double OutlierSpreads = 10;
/// Positions of one cell, or of cells that touch, support each other.
constexpr double CellM = 300e3;
constexpr double HalfEarthM = 20015087; ///< half a meridian's circle

/// Distances from the middle of a table's positions.
class Distances
{
public:
    Distances(const Positions &positions, const SystemFacts &system)
        : m_middle(middleOf(positions))
        , m_fullTurn(2 * system.halfTurn)
        , m_scaleY(system.isGeographic() ? HalfEarthM / system.halfTurn : system.metresPerUnit)
        , m_scaleX(m_scaleY)
    {
        constexpr double MinCosine = 0.05;
        if (system.isGeographic())
            m_scaleX *= std::max(MinCosine, std::cos(m_middle.y / system.halfTurn * M_PI));
    }

    double eastM(double x) const
    {
        const double dx = x - m_middle.x;
        return m_scaleX * (m_fullTurn > 0 && 2 * std::abs(x) <= m_fullTurn
                               ? std::remainder(dx, m_fullTurn)
                               : dx);
    }
    double northM(double y) const { return m_scaleY * (y - m_middle.y); }
    double metres(double x, double y) const { return std::hypot(eastM(x), northM(y)); }

    /// The distance below which a share of the positions lies.
    double spreadM(const Positions &positions, double share) const
    {
        std::vector<double> all;
        all.reserve(positions.size());
        for (const SurveyedPosition &position : positions)
            all.push_back(metres(position.x, position.y));
        const auto at =
            all.begin() + static_cast<std::ptrdiff_t>(share * static_cast<double>(all.size() - 1));
        std::nth_element(all.begin(), at, all.end());
        return *at;
    }

private:
    SurveyedPosition m_middle;
    double m_fullTurn;
    double m_scaleY;
    double m_scaleX;
};

/// What becomes of the positions far from the middle.
struct Strays
{
    struct Corrected
    {
        const SurveyedPosition *position;
        const Correction *correction;
    };
    std::vector<Corrected> corrected;
    std::vector<const SurveyedPosition *> outliers; ///< alone
    std::size_t supported = 0;                      ///< far from the middle, but near to others
    double outlierM = 0; ///< minimum distance of the outliers from the middle
};

using CellNumber = std::pair<int64_t, int64_t>;

CellNumber cellOf(const SurveyedPosition &position, const Distances &distances)
{
    const auto number = [](double metres) {
        constexpr double Limit = 1e12;
        return static_cast<int64_t>(std::floor(std::clamp(metres / CellM, -Limit, Limit)));
    };
    return {number(distances.eastM(position.x)), number(distances.northM(position.y))};
}

/// Separates positions that others support from those that stand alone. Several rows at one point
/// do not support each other.
void separate(const std::vector<const SurveyedPosition *> &unexplained, const Distances &distances,
              double outlierM, Strays &strays)
{
    std::map<CellNumber, std::set<std::pair<double, double>>> points; // two of a cell suffice
    for (const SurveyedPosition *position : unexplained) {
        auto &ofCell = points[cellOf(*position, distances)];
        if (ofCell.size() < 2)
            ofCell.insert({position->x, position->y});
    }
    for (const SurveyedPosition *position : unexplained) {
        const CellNumber cell = cellOf(*position, distances);
        std::size_t near = 0;
        for (int64_t i = -1; i <= 1; ++i) {
            for (int64_t j = -1; j <= 1; ++j) {
                const auto found = points.find({cell.first + i, cell.second + j});
                near += found == points.end() ? 0 : found->second.size();
            }
        }
        if (near > 1 || distances.metres(position->x, position->y) <= outlierM)
            ++strays.supported;
        else
            strays.outliers.push_back(position);
    }
}

Strays findStrays(const Positions &positions, const SystemFacts &system, const Distances &distances,
                  double spreadM)
{
    const double nearM = std::max(MinNearM, NearSpreads * spreadM);
    const double farM = std::max(MinFarM, FarSpreads * spreadM);
    Strays strays;
    strays.outlierM = std::max(MinOutlierM, OutlierSpreads * spreadM);
    std::vector<const SurveyedPosition *> unexplained;
    for (const SurveyedPosition &position : positions) {
        if (distances.metres(position.x, position.y) <= farM)
            continue;
        const auto all = corrections();
        const auto found = std::find_if(all.begin(), all.end(), [&](const Correction &by) {
            const double x = by.x(position);
            const double y = by.y(position);
            return system.arePossible(x, y) && distances.metres(x, y) <= nearM;
        });
        // The reader reports a position beyond the globe by its row and column.
        const bool isSwap = found != all.end() && found->isSwap;
        if (!isSwap && !system.arePossible(position.x, position.y))
            continue;
        if (found == all.end())
            unexplained.push_back(&position);
        else
            strays.corrected.push_back({&position, &*found});
    }
    separate(unexplained, distances, strays.outlierM, strays);
    return strays;
}

void addRow(Finding &finding, int64_t row)
{
    ++finding.count;
    if (finding.rows.size() < Finding::MaxRows &&
        (finding.rows.empty() || finding.rows.back() != row))
        finding.rows.push_back(row);
}

std::string textOf(const Finding &finding, const Correction &where, const std::string &all,
                   bool isGeographic)
{
    const std::string count = std::to_string(finding.count);
    const std::string coordinates = coordinatesText(where, isGeographic);
    if (finding.kind == FindingKind::SwappedRows)
        return formatted("MESS_TAB_DOCTOR_SWAPPED_ROWS", {count, all, rowsText(finding)});
    if (finding.kind == FindingKind::Sign)
        return formatted("MESS_TAB_DOCTOR_SIGN_ROWS", {coordinates, count, all, rowsText(finding)});
    return formatted("MESS_TAB_DOCTOR_DECIMAL_ROWS", {coordinates, count, all, rowsText(finding)});
}

/// The findings of each kind of correction.
std::vector<Finding> correctedRows(const Strays &strays, std::size_t all, bool isGeographic)
{
    std::vector<Finding> findings;
    for (const FindingKind kind : {FindingKind::Swapped, FindingKind::Sign, FindingKind::Decimal}) {
        Finding finding;
        finding.kind = kind == FindingKind::Swapped ? FindingKind::SwappedRows : kind;
        Correction where; // of all its rows
        for (const Strays::Corrected &stray : strays.corrected) {
            if (stray.correction->kind != kind)
                continue;
            addRow(finding, stray.position->row);
            if (finding.count <= contract::MaxCorrectedRows)
                finding.strays.push_back(
                    {stray.position->row, stray.position->x, stray.position->y, stray.correction});
            if (stray.correction->factorX != 1)
                where.factorX = stray.correction->factorX;
            if (stray.correction->factorY != 1)
                where.factorY = stray.correction->factorY;
        }
        if (finding.count == 0)
            continue;
        if (finding.count > contract::MaxCorrectedRows)
            finding.strays.clear();
        finding.text = textOf(finding, where, std::to_string(all), isGeographic);
        findings.push_back(finding);
    }
    return findings;
}

} // namespace

std::vector<Finding> mistakesOfSome(const Positions &positions, const SystemFacts &system,
                                    std::vector<int64_t> &rows)
{
    if (positions.size() < MinPositions)
        return {};
    const Distances distances(positions, system);
    Strays strays = findStrays(positions, system, distances, distances.spreadM(positions, 0.75));
    // Of a table that covers distant places a part lies far away without any mistake.
    if (strays.corrected.size() < strays.supported)
        strays.corrected.clear();
    if (strays.corrected.empty() && strays.outliers.empty()) {
        // Half of the positions may be wrong, if that explains everything.
        strays = findStrays(positions, system, distances, distances.spreadM(positions, 0.5));
        if (strays.supported > 0 || !strays.outliers.empty())
            return {};
    }
    std::vector<Finding> findings = correctedRows(strays, positions.size(), system.isGeographic());
    for (const Strays::Corrected &stray : strays.corrected)
        rows.push_back(stray.position->row);
    Finding alone;
    alone.kind = FindingKind::Outlier;
    for (const SurveyedPosition *outlier : strays.outliers) {
        addRow(alone, outlier->row);
        rows.push_back(outlier->row);
    }
    if (alone.count > 0) {
        alone.text = formatted("MESS_TAB_DOCTOR_OUTLIER",
                               {std::to_string(alone.count), std::to_string(positions.size()),
                                numberText(std::round(strays.outlierM / 1000)), rowsText(alone)});
        findings.push_back(alone);
    }
    return findings;
}

} // namespace vlt::driver
