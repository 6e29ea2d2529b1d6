#pragma once

#include "plugins/tables/ogr/RowReport.h"

#include <ogrsf_frmts.h>

#include <memory>
#include <optional>
#include <string>

namespace vlt::driver {

/// A layer without geometries, whose features are made from the report of the rows while it is
/// read: nothing of it is held.
class ReportLayer : public OGRLayer
{
public:
    ~ReportLayer() override;

    OGRFeatureDefn *GetLayerDefn() override { return m_definition; }
    void ResetReading() override;
    OGRFeature *GetNextFeature() override;
    int TestCapability(const char *capability) override;

protected:
    ReportLayer(TableSource source, const char *name);

    const TableSource &source() const { return m_source; }
    void defineField(const char *name, OGRFieldType type);
    /// The feature before those of the rows; null for none.
    virtual std::unique_ptr<OGRFeature> firstFeature() { return nullptr; }
    /// The feature of a row; null if it has none.
    virtual std::unique_ptr<OGRFeature> featureOf(RowReport &report) = 0;

private:
    std::unique_ptr<OGRFeature> readFeature();

    TableSource m_source;
    OGRFeatureDefn *m_definition;
    std::optional<RowReport> m_report; ///< empty before the first feature
    GIntBig m_nextFid = 0;
    bool m_ended = false;
};

/// The fate of every row, see contract/TableReport.h.
class FatesLayer final : public ReportLayer
{
public:
    explicit FatesLayer(const TableSource &source);

    GIntBig GetFeatureCount(int force) override;

private:
    std::unique_ptr<OGRFeature> featureOf(RowReport &report) override;

    std::optional<GIntBig> m_count;
};

/// The rows to be corrected as lines of delimited text, see contract/TableReport.h.
class RejectsLayer final : public ReportLayer
{
public:
    explicit RejectsLayer(const TableSource &source);

private:
    std::unique_ptr<OGRFeature> firstFeature() override;
    std::unique_ptr<OGRFeature> featureOf(RowReport &report) override;
    std::unique_ptr<OGRFeature> lineFeature(int64_t row, const std::string &line);

    char m_delimiter;
};

/// Counts all rows by fate as the items of a metadata domain. Reads them; throws RefusedFile.
CPLStringList countRows(const TableSource &source);

} // namespace vlt::driver
