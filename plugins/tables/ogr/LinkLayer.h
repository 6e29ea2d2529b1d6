#pragma once

#include "plugins/tables/ogr/LinkRowReader.h"
#include "plugins/tables/ogr/TableLayer.h"

namespace vlt::driver {

/// The layer of links: one line per row of the table, from end A to end B. The fields are the
/// columns, and the FID is the number of the row in the file.
class LinkLayer final : public TableLayer
{
public:
    explicit LinkLayer(const TableSource &source);

    /// The items of the domain "roles" for the columns of a table of links.
    static void addRoles(CPLStringList &items, const TableFacts &facts);

private:
    RowMeaning readRow(int64_t row, const FieldCells &cells,
                       std::vector<RowProblem> &problems) const override;
    void addPositions(SurveyedPositions &positions, const TableRow &row) const override
    {
        LinkRowReader::addPositions(positions, row);
    }
    void mergeInto(OGREnvelope &extent, const TableRow &row) const override;
    void placeFeature(OGRFeature &feature, const TableRow &row, int part) const override;
    void fillFeature(OGRFeature &feature, const TableRow &row, int part) const override;
    void addFileProblems(ProblemList &problems) const override;
    CPLStringList rolesMetadata() const override;

    LinkRowReader m_reader;
};

} // namespace vlt::driver
