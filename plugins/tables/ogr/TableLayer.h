#pragma once

#include "plugins/tables/ogr/RowWarnings.h"
#include "plugins/tables/ogr/TableFile.h"
#include "plugins/tables/ogr/TableRow.h"
#include "plugins/tables/ogr/TableSurvey.h"
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
    std::shared_ptr<RowWarnings> warnings; ///< each row is reported once, by the first layer
    /// The survey of all rows, once one of the layers has read them; it is the same for both.
    std::shared_ptr<std::optional<TableSurvey>> survey;

    const TableFacts &facts() const { return file->facts(); }
};

/// A layer over the rows of a table: sequential and random reading, filters, extents and problems.
/// Derived classes define what a row becomes. Every row has the same number of features, numbered
/// by `part` from 0 to partCount - 1; FIDs are row * partCount + part.
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
    bool isIgnored(std::size_t field) const { return m_ignored[field]; }

    /// Defines the columns of the table as the fields of the layer; setColumns() sets them.
    void defineColumns();
    void defineField(const char *name, OGRFieldType type);
    void setGeometryType(OGRwkbGeometryType type);
    void setColumns(OGRFeature &feature, const TableRow &row) const;
    /// Assigns the layer's coordinate system to the geometry and moves it into the feature.
    void setGeometry(OGRFeature &feature, std::unique_ptr<OGRGeometry> geometry) const;

private:
    /// The meaning of a row with these cells, as far as it can be read.
    virtual RowMeaning readRow(int64_t row, const FieldCells &cells,
                               std::vector<RowProblem> &problems) const = 0;
    /// Adds the positions of a row as they stand in the file.
    virtual void addPositions(SurveyedPositions &positions, const TableRow &row) const = 0;
    /// Extends an envelope by the geometries of a row.
    virtual void mergeInto(OGREnvelope &extent, const TableRow &row) const = 0;
    virtual void placeFeature(OGRFeature &feature, const TableRow &row, int part) const = 0;
    /// Whether a row has features of its own; otherwise it adds to those of another row.
    virtual bool hasFeatures(int64_t row) const
    {
        static_cast<void>(row);
        return true;
    }
    virtual GIntBig rowsWithFeatures() const
    {
        return static_cast<GIntBig>(facts().table.rowCount);
    }
    virtual void fillFeature(OGRFeature &feature, const TableRow &row, int part) const = 0;
    /// Adds the problems of the table as a whole, except those of the coordinate systems.
    virtual void addFileProblems(ProblemList &problems) const = 0;
    /// The items of the domain "roles"; none if the layer does not have it.
    virtual CPLStringList rolesMetadata() const { return {}; }
    /// Whether this layer has the domain "problems".
    virtual bool listsProblems() const { return true; }

    /// Reading the rows one after the other. Several can be under way: GetFeature() and survey()
    /// use their own, so that sequential reading continues at its row.
    struct Walk
    {
        std::unique_ptr<DataRows> rows;
        TableRow row;     ///< the last row that was read
        int nextPart = 0; ///< of `row`; 0 if the next row has to be read
        /// The survey so far, if the walk began at the first row and the source has none.
        std::optional<TableSurvey> survey;
    };

    Walk startWalk();
    std::unique_ptr<OGRFeature> makeFeature(const TableRow &row, int part);
    std::unique_ptr<OGRFeature> readFeature();
    bool nextRow();
    std::vector<RowProblem> takeRow(Walk &walk) const;
    bool surveyRows(bool warns, OGREnvelope &extent, TableSurvey &found);
    TableSurvey startSurvey() const;
    void finish(TableSurvey &survey) const;
    const TableSurvey &surveyed();
    ProblemList fileProblems() const;
    /// The items of a domain that this layer makes itself; nothing for another one.
    std::optional<char **> ownMetadata(const char *domain);
    template<typename Action>
    bool guarded(Action action);

    TableSource m_source;
    OGRFeatureDefn *m_definition;
    const int m_partCount;
    std::size_t m_firstColumn = 0; ///< number of fields before the columns of the table
    std::vector<char> m_ignored;   ///< by field
    std::optional<Walk> m_walk;    ///< sequential reading; empty before the first row
    bool m_failed = false;
    std::optional<CPLStringList> m_rolesItems;
    CPLStringList m_mappingItems;  ///< the text of a mapping
    CPLStringList m_problemsItems; ///< the problems of all rows as metadata
    CPLStringList m_doctorItems;   ///< the findings about all positions as metadata
    CPLStringList m_rowsItems;     ///< the numbers of rows by fate as metadata
    OGREnvelope m_extent;
};

} // namespace vlt::driver
