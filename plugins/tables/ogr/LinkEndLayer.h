#pragma once

#include "plugins/tables/ogr/LinkRowReader.h"
#include "plugins/tables/ogr/TableLayer.h"

namespace vlt::driver {

/// The layer of link ends: two points per row of the table, end A and end B, in the form of sites
/// with one antenna each.
class LinkEndLayer final : public TableLayer
{
public:
    explicit LinkEndLayer(const TableSource &source);

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
    bool listsProblems() const override { return false; }
    void set(OGRFeature &feature, int field, const std::string &text) const;
    void set(OGRFeature &feature, int field, const std::optional<double> &number) const;

    LinkRowReader m_reader;
};

} // namespace vlt::driver
