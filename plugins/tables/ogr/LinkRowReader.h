#pragma once

#include "linkpath/PathProfiler.h"
#include "plugins/tables/links/LinkPositionReader.h"
#include "plugins/tables/links/LinkValues.h"
#include "plugins/tables/ogr/TableLayer.h"

#include <optional>

namespace vlt::driver {

/// Reads links. Both layers of a link table use it, so that their values agree.
class LinkRowReader
{
public:
    explicit LinkRowReader(const TableSource &source);

    LinkRow read(int64_t row, const std::vector<const Cell *> &cells,
                 std::vector<RowProblem> &problems) const;

    /// Azimuth of an end (0 or 1): the one in the table, else the direction to the other end.
    std::optional<double> azimuthDeg(const LinkRow &link, std::size_t end) const;

    /// Adds the positions of both ends as they stand in the file.
    static void addPositions(SurveyedPositions &positions, const TableRow &row);

    void addFileProblems(ProblemList &problems) const;

private:
    const std::string &fieldName(int field) const;
    void measure(int64_t row, LinkRow &link, std::vector<RowProblem> &problems) const;
    void compareAzimuths(int64_t row, const LinkRow &link, std::vector<RowProblem> &problems) const;

    const TableFacts *m_facts;
    std::shared_ptr<const TableSystems> m_systems;
    LinkPositionReader m_positions;
    LinkValueReader m_values;
    /// Works in the file's system, so that no transformation reduces the accuracy.
    linkpath::PathProfiler m_path;
};

} // namespace vlt::driver
