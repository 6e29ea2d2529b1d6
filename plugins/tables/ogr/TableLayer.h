#pragma once

#include "plugins/tables/ogr/FieldCells.h"
#include "plugins/tables/ogr/ProblemList.h"
#include "plugins/tables/ogr/RowWarnings.h"
#include "plugins/tables/ogr/TableFile.h"
#include "plugins/tables/ogr/TableSystems.h"

#include <ogrsf_frmts.h>

#include <memory>
#include <optional>

namespace vlt::driver {

/// What the layers of one dataset share.
struct TableSource
{
    std::shared_ptr<TableFile> file;
    std::shared_ptr<const TableSystems> systems;
    std::shared_ptr<RowWarnings> warnings; ///< a row is warned of once, whichever layer meets it
    /// Of all rows, once a layer has gone through them: whichever does meets the same ones.
    std::shared_ptr<std::optional<ProblemList>> problems;

    const TableFacts &facts() const { return file->facts(); }
};

/// A layer over the rows of a table: walks, filters, extents and problems; what a row becomes is
/// for its kinds to say. A row gives the same number of features, whatever is in it: `part` 0 ..
/// partCount - 1; FIDs are row * partCount + part.
class TableLayer : public OGRLayer
{
public:
    ~TableLayer() override;

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

protected:
    TableLayer(TableSource source, const std::string &name, int partCount);

    const TableFacts &facts() const { return m_source.facts(); }
    const TableSystems &systems() const { return *m_source.systems; }
    const FieldCells &cells() const { return m_cells; }
    bool isIgnored(std::size_t field) const { return m_ignored[field]; }

    /// Fields of the layer: the columns of the table, for setColumns(), or others.
    void defineColumns();
    void defineField(const char *name, OGRFieldType type);
    void setGeometryType(OGRwkbGeometryType type);
    /// Sets the fields of defineColumns() from the row that was read.
    void setColumns(OGRFeature &feature) const;
    /// Gives `geometry` the layer's system and hands it to the feature.
    void setGeometry(OGRFeature &feature, std::unique_ptr<OGRGeometry> geometry) const;

private:
    /// Makes what it can of the row whose cells() are there.
    virtual void readRow(int64_t row, std::vector<RowProblem> &problems) = 0;
    /// Widens an envelope by the geometries of the row that was read.
    virtual void mergeInto(OGREnvelope &extent) const = 0;
    virtual void placeFeature(OGRFeature &feature, int part) const = 0;
    virtual void fillFeature(OGRFeature &feature, int part) const = 0;
    /// What is wrong with the table as a whole, the coordinate systems apart.
    virtual void addFileProblems(ProblemList &problems) const = 0;
    /// Whether the domain "problems" is this layer's.
    virtual bool listsProblems() const { return true; }

    std::unique_ptr<DataRows> startWalk();
    std::unique_ptr<OGRFeature> makeFeature(int part);
    OGRFeature *readFeature();
    bool nextRow();
    void retakeRow();
    void takeRow(std::vector<RowProblem> &problems);
    bool survey(bool warns, OGREnvelope &extent, ProblemList &found);
    ProblemList fileProblems() const;
    bool isProblemsDomain(const char *domain) const;
    char **problemsMetadata();
    template<typename Action>
    auto guarded(Action action) -> decltype(action());

    TableSource m_source;
    OGRFeatureDefn *m_definition;
    const int m_partCount;
    FieldCells m_cells;
    std::vector<char> m_ignored; ///< by field
    std::unique_ptr<DataRows> m_rows;
    int m_nextPart = 0; ///< of the row that was read last; 0: the next row is due
    bool m_failed = false;
    std::optional<ProblemList> m_walked; ///< what the walk that is going on has met since the start
    CPLStringList m_problemsItems;       ///< the problems of all rows as metadata
    OGREnvelope m_extent;
};

} // namespace vlt::driver
