#pragma once

#include "plugins/tables/ogr/LinkRowReader.h"
#include "plugins/tables/ogr/TableLayer.h"

namespace vlt::driver {

/// The layer of link ends: two points per row of the table, end A and end B, as sites with one
/// antenna each.
class LinkEndLayer final : public TableLayer
{
public:
    explicit LinkEndLayer(const TableSource &source);

private:
    void readRow(int64_t row, std::vector<RowProblem> &problems) override;
    void mergeInto(OGREnvelope &extent) const override;
    void placeFeature(OGRFeature &feature, int part) const override;
    void fillFeature(OGRFeature &feature, int part) const override;
    void addFileProblems(ProblemList &problems) const override;
    bool listsProblems() const override { return false; }
    void set(OGRFeature &feature, int field, const std::string &text) const;
    void set(OGRFeature &feature, int field, const std::optional<double> &number) const;

    LinkRowReader m_reader;
    int64_t m_row = 0; ///< that was read
};

} // namespace vlt::driver
