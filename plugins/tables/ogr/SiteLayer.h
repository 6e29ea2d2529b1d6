#pragma once

#include "plugins/tables/ogr/SiteRowReader.h"
#include "plugins/tables/ogr/TableLayer.h"

namespace vlt::driver {

/// The layer of sites: one point feature per site, which is one row of the table or begins in it.
/// The FID is the number of that row in the file.
class SiteLayer final : public TableLayer
{
public:
    explicit SiteLayer(const TableSource &source);

private:
    RowMeaning readRow(int64_t row, const FieldCells &cells,
                       std::vector<RowProblem> &problems) const override;
    void addPositions(SurveyedPositions &positions, const TableRow &row) const override;
    void mergeInto(OGREnvelope &extent, const TableRow &row) const override;
    void placeFeature(OGRFeature &feature, const TableRow &row, int part) const override;
    void fillFeature(OGRFeature &feature, const TableRow &row, int part) const override;
    void addFileProblems(ProblemList &problems) const override;

    bool hasFeatures(int64_t row) const override;
    GIntBig rowsWithFeatures() const override;
    CPLStringList rolesMetadata() const override;
    void setOffered(OGRFeature &feature, const TableRow &row) const;

    SiteRowReader m_reader;
};

} // namespace vlt::driver
