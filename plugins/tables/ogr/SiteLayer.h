#pragma once

#include "plugins/tables/ogr/TableLayer.h"

namespace vlt::driver {

/// The layer of sites: one point feature per row of the table. The FID is the number of the row in
/// the file.
class SiteLayer final : public TableLayer
{
public:
    explicit SiteLayer(const TableSource &source);

private:
    RowMeaning readRow(int64_t row, const FieldCells &cells,
                       std::vector<RowProblem> &problems) const override;
    void mergeInto(OGREnvelope &extent, const TableRow &row) const override;
    void placeFeature(OGRFeature &feature, const TableRow &row, int part) const override;
    void fillFeature(OGRFeature &feature, const TableRow &row, int part) const override;
    void addFileProblems(ProblemList &problems) const override;

    PositionReader m_positions;
};

} // namespace vlt::driver
