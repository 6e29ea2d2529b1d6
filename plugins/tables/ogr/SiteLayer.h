#pragma once

#include "plugins/tables/ogr/TableLayer.h"

namespace vlt::driver {

/// The layer of sites: one point feature per row of the table, its FID the number of the row in the
/// file.
class SiteLayer final : public TableLayer
{
public:
    explicit SiteLayer(const TableSource &source);

private:
    void readRow(int64_t row, std::vector<RowProblem> &problems) override;
    void mergeInto(OGREnvelope &extent) const override;
    void placeFeature(OGRFeature &feature, int part) const override;
    void fillFeature(OGRFeature &feature, int part) const override;
    void addFileProblems(ProblemList &problems) const override;

    PointPlacer m_placer;
    Position m_position; ///< of the row that was read
};

} // namespace vlt::driver
