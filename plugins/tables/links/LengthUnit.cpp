#include "plugins/tables/links/LengthUnit.h"

#include "plugins/tables/sites/PositionReader.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vlt::driver {

namespace {

constexpr std::array Units = {LengthUnit{"m", 1}, LengthUnit{"km", 1000}, LengthUnit{"ft", 0.3048},
                              LengthUnit{"mi", 1609.344}};
constexpr std::size_t MaxRows = 100;

/// The cells of a sampled row.
class SampledRow
{
public:
    SampledRow(const TableProfile &table, std::size_t row) : m_cells(table.fields.size())
    {
        for (std::size_t i = 0; i < m_cells.size(); ++i) {
            m_cells[i].text = table.sampledColumns[i][row];
            m_pointers.push_back(m_cells[i].text.empty() ? nullptr : &m_cells[i]);
        }
    }

    const std::vector<const Cell *> &cells() const { return m_pointers; }

private:
    std::vector<Cell> m_cells;
    std::vector<const Cell *> m_pointers;
};

} // namespace

std::optional<LengthUnit> lengthUnitByPositions(const TableProfile &table, const LinkLayout &layout)
{
    constexpr double MaxDeviation = 0.05;
    const std::array readers = {PositionReader(table, layout.ends[0].point, layout.unit),
                                PositionReader(table, layout.ends[1].point, layout.unit)};
    const std::size_t rowCount = std::min(table.sampledColumns.front().size(), MaxRows);
    std::array<std::size_t, Units.size()> counts = {};
    std::size_t compared = 0;
    for (std::size_t row = 0; row < rowCount; ++row) {
        const SampledRow sampled(table, row);
        std::vector<RowProblem> problems; // they are reported when the rows are read
        const Position a = readers[0].read(0, sampled.cells(), problems);
        const Position b = readers[1].read(0, sampled.cells(), problems);
        const auto stated = readLengthM(fieldText(sampled.cells(), layout.length.field), 1);
        if (!a.found || !b.found || !stated || *stated <= 0)
            continue;
        ++compared;
        const double ratio = distanceM(a, b, layout.unit) / *stated;
        for (std::size_t i = 0; i < Units.size(); ++i)
            counts[i] += std::abs(ratio / Units[i].metres - 1) <= MaxDeviation ? 1 : 0;
    }
    const auto best = std::max_element(counts.begin(), counts.end());
    if (compared == 0 || *best * 5 < compared * 4)
        return std::nullopt;
    return Units[static_cast<std::size_t>(best - counts.begin())];
}

} // namespace vlt::driver
