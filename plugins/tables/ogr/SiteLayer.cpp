#include "plugins/tables/ogr/SiteLayer.h"

#include "contract/TableTexts.h"

#include <cmath>

namespace vlt::driver {

namespace {

/// 180 degrees in the unit of a geographic system; 0 for any other system and without one.
double halfTurn(const OGRSpatialReference *srs)
{
    return srs && srs->IsGeographic() ? M_PI / srs->GetAngularUnits() : 0;
}

} // namespace

SiteLayer::SiteLayer(const TableSource &source)
    : TableLayer(source, source.facts().table.sheet, 1)
    , m_positions(source.facts().table, source.facts().sites().point, source.facts().sites().unit,
                  halfTurn(source.systems->file()))
{
    defineColumns();
    setGeometryType(facts().sites().point.found() ? wkbPoint : wkbNone);
}

RowMeaning SiteLayer::readRow(int64_t row, const FieldCells &cells,
                              std::vector<RowProblem> &problems) const
{
    Position position = m_positions.read(row, cells.cells(), problems);
    systems().transform(row, position, problems);
    return position;
}

void SiteLayer::mergeInto(OGREnvelope &extent, const TableRow &row) const
{
    if (row.position().found)
        extent.Merge(row.position().x, row.position().y);
}

void SiteLayer::placeFeature(OGRFeature &feature, const TableRow &row, int) const
{
    if (row.position().found)
        setGeometry(feature, std::make_unique<OGRPoint>(row.position().x, row.position().y));
}

void SiteLayer::fillFeature(OGRFeature &feature, const TableRow &row, int) const
{
    setColumns(feature, row);
}

void SiteLayer::addFileProblems(ProblemList &problems) const
{
    if (!facts().sites().point.found())
        problems.add({0, {}, true, contract::formatted("MESS_TAB_NO_COORDINATES")});
}

} // namespace vlt::driver
