#pragma once

#include "ogr/ProblemList.h"
#include "ogr/SiteTable.h"

#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

#include <memory>
#include <optional>
#include <set>

namespace vlt::tables {

/// The layer of sites: one point feature per row of the table, its FID the number of the row in the
/// file.
class SiteLayer final : public OGRLayer
{
public:
    /// Systems as the caller gave them, empty where he gave none. Throws RefusedFile (BadOption).
    SiteLayer(std::shared_ptr<SiteTable> table, const std::string &sourceSrs,
              const std::string &targetSrs);
    ~SiteLayer() override;

    OGRFeatureDefn *GetLayerDefn() override { return m_definition; }
    void ResetReading() override;
    OGRFeature *GetNextFeature() override;
    OGRErr SetNextByIndex(GIntBig index) override;
    OGRFeature *GetFeature(GIntBig fid) override;
    GIntBig GetFeatureCount(int force) override;
    OGRErr GetExtent(OGREnvelope *extent, int force) override;
    OGRErr GetExtent(int geometryField, OGREnvelope *extent, int force) override
    {
        return OGRLayer::GetExtent(geometryField, extent, force);
    }
    int TestCapability(const char *capability) override;

    char **GetMetadata(const char *domain) override;
    const char *GetMetadataItem(const char *name, const char *domain) override;
    char **GetMetadataDomainList() override;

private:
    void setSystems(const std::string &sourceSrs, const std::string &targetSrs);
    void defineFields();
    std::unique_ptr<DataRows> startWalk();
    OGRFeature *readFeature();
    void setFields(OGRFeature &feature);
    Position placeRow(std::vector<RowProblem> &problems);
    void transform(int64_t row, Position &position, std::vector<RowProblem> &problems);
    void placeFeature(OGRFeature &feature, std::vector<RowProblem> &problems);
    void warn(const std::vector<RowProblem> &problems);
    bool survey(bool warns, OGREnvelope &extent, ProblemList &found);
    ProblemList fileProblems() const;
    char **problemsMetadata();
    template<typename Action>
    auto guarded(Action action) -> decltype(action());

    std::shared_ptr<SiteTable> m_table;
    OGRFeatureDefn *m_definition;
    std::unique_ptr<OGRSpatialReference, void (*)(OGRSpatialReference *)> m_fileSrs;
    std::unique_ptr<OGRCoordinateTransformation> m_transformation;
    bool m_unknownEpsg = false; ///< the file declares a system that nobody knows
    bool m_targetUnreachable =
        false; ///< a target system was asked for, but that of the file is not known
    FieldCells m_cells;
    SitePlacer m_placer;
    std::vector<char> m_ignored; ///< by field
    std::unique_ptr<DataRows> m_rows;
    bool m_failed = false;
    std::set<int64_t> m_warnedRows; ///< a row is read more than once, but warned of once
    size_t m_warnings = 0;
    bool m_problemsOmitted = false;      ///< there were more than are said as warnings
    std::optional<ProblemList> m_walked; ///< what the walk that is going on has met since the start
    std::optional<ProblemList> m_problems; ///< of all rows, once they are known
    CPLStringList m_problemsItems;         ///< the same as metadata
    OGREnvelope m_extent;
};

/// Forms the text of a problem as it is shown: row and column first.
std::string describe(const RowProblem &problem);

} // namespace vlt::tables
