#include "plugins/tables/ogr/LinkLayer.h"

#include "contract/TableMetadata.h"
#include "contract/TableTexts.h"
#include "plugins/tables/ogr/MetadataItems.h"

namespace vlt::driver {

LinkLayer::LinkLayer(const TableSource &source)
    : TableLayer(source, source.facts().table.sheet, 1)
    , m_reader(source)
{
    defineColumns();
    setGeometryType(wkbLineString);
}

RowMeaning LinkLayer::readRow(int64_t row, const FieldCells &cells,
                              std::vector<RowProblem> &problems) const
{
    return m_reader.read(row, cells.cells(), problems);
}

void LinkLayer::mergeInto(OGREnvelope &extent, const TableRow &row) const
{
    if (!row.link().isPlaced())
        return;
    for (const Position &end : row.link().placed)
        extent.Merge(end.x, end.y);
}

void LinkLayer::placeFeature(OGRFeature &feature, const TableRow &row, int) const
{
    if (!row.link().isPlaced())
        return;
    auto line = std::make_unique<OGRLineString>();
    for (const Position &end : row.link().placed)
        line->addPoint(end.x, end.y);
    setGeometry(feature, std::move(line));
}

void LinkLayer::fillFeature(OGRFeature &feature, const TableRow &row, int) const
{
    setColumns(feature, row);
}

void LinkLayer::addFileProblems(ProblemList &problems) const
{
    m_reader.addFileProblems(problems);
}

CPLStringList LinkLayer::rolesMetadata() const
{
    const std::string rows = std::to_string(facts().table.rowCount);
    CPLStringList items;
    items.SetNameValue(contract::metadata::ShapeItem,
                       contract::formatted(facts().endSites
                                               ? contract::TableTextId("MESS_TAB_SHAPE_NAMED_LINKS")
                                               : contract::TableTextId("MESS_TAB_SHAPE_LINKS"),
                                           {rows})
                           .c_str());
    addRoles(items, facts());
    return items;
}

void LinkLayer::addRoles(CPLStringList &items, const TableFacts &facts)
{
    for (const LinkColumnRole &column : facts.links().columns)
        addRoleItem(items, column.name(), {},
                    facts.table.fields[static_cast<std::size_t>(column.field)].name,
                    column.evidence);
}

} // namespace vlt::driver
