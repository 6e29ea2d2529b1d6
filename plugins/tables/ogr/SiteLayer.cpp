#include "plugins/tables/ogr/SiteLayer.h"

#include "contract/TableTexts.h"

#include <cmath>

namespace vlt::driver {

namespace {

/// Half a turn in the unit of a geographic system; 0 for others and for none.
double halfTurn(const OGRSpatialReference *srs)
{
    return srs && srs->IsGeographic() ? M_PI / srs->GetAngularUnits() : 0;
}

} // namespace

SiteLayer::SiteLayer(const TableSource &source)
    : TableLayer(source, source.facts().table.sheet, 1)
    , m_placer(source.facts().table, source.facts().sites().point, source.facts().sites().unit,
               halfTurn(source.systems->file()))
{
    defineColumns();
    setGeometryType(facts().sites().point.found() ? wkbPoint : wkbNone);
}

void SiteLayer::readRow(int64_t row, std::vector<RowProblem> &problems)
{
    m_position = m_placer.place(row, cells().cells(), problems);
    systems().transform(row, m_position, problems);
}

void SiteLayer::mergeInto(OGREnvelope &extent) const
{
    if (m_position.found)
        extent.Merge(m_position.x, m_position.y);
}

void SiteLayer::placeFeature(OGRFeature &feature, int) const
{
    if (m_position.found)
        setGeometry(feature, std::make_unique<OGRPoint>(m_position.x, m_position.y));
}

void SiteLayer::fillFeature(OGRFeature &feature, int) const
{
    setColumns(feature);
}

void SiteLayer::addFileProblems(ProblemList &problems) const
{
    if (!facts().sites().point.found())
        problems.add({0, {}, true, contract::formatted("MESS_TAB_NO_COORDINATES")});
}

} // namespace vlt::driver
