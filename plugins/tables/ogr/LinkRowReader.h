#pragma once

#include "linkpath/PathProfiler.h"
#include "plugins/tables/links/LinkPlacer.h"
#include "plugins/tables/links/LinkValues.h"
#include "plugins/tables/ogr/TableLayer.h"

#include <array>
#include <optional>

namespace vlt::driver {

/// A link as a row tells it.
struct LinkRow
{
    LinkValues values;
    std::array<Position, 2> inFile; ///< ends in the file's system, offsets applied
    std::array<Position, 2> placed; ///< the same in the target system
    std::optional<double> lengthM;  ///< of the placed ends, on the earth's surface
};

/// Reads links; both layers of a link table use it, so that they tell the same.
class LinkRowReader
{
public:
    explicit LinkRowReader(const TableSource &source);

    const LinkRow &row() const { return m_row; }
    void read(int64_t row, const std::vector<const Cell *> &cells,
              std::vector<RowProblem> &problems);
    /// Azimuth of an end (0 or 1) as the table has it, else that of the other end seen from it.
    std::optional<double> azimuthDeg(std::size_t end) const;
    void addFileProblems(ProblemList &problems) const;

private:
    const std::string &fieldName(int field) const;
    linkpath::LinkEnd endOf(std::size_t end) const;
    void measure(int64_t row, std::vector<RowProblem> &problems);

    const TableFacts *m_facts;
    std::shared_ptr<const TableSystems> m_systems;
    LinkPlacer m_placer;
    LinkValueReader m_values;
    linkpath::PathProfiler m_path; ///< in the file's system, where nothing is lost on the way
    LinkRow m_row;
};

} // namespace vlt::driver
