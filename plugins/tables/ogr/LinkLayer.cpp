#include "plugins/tables/ogr/LinkLayer.h"

namespace vlt::driver {

LinkLayer::LinkLayer(const TableSource &source)
    : TableLayer(source, source.facts().table.sheet, 1)
    , m_reader(source)
{
    defineColumns();
    setGeometryType(wkbLineString);
}

void LinkLayer::readRow(int64_t row, std::vector<RowProblem> &problems)
{
    m_reader.read(row, cells().cells(), problems);
}

bool LinkLayer::isPlaced() const
{
    return m_reader.row().placed[0].found && m_reader.row().placed[1].found;
}

void LinkLayer::mergeInto(OGREnvelope &extent) const
{
    for (const Position &end : m_reader.row().placed) {
        if (isPlaced())
            extent.Merge(end.x, end.y);
    }
}

void LinkLayer::placeFeature(OGRFeature &feature, int) const
{
    if (!isPlaced())
        return;
    auto line = std::make_unique<OGRLineString>();
    for (const Position &end : m_reader.row().placed)
        line->addPoint(end.x, end.y);
    setGeometry(feature, std::move(line));
}

void LinkLayer::fillFeature(OGRFeature &feature, int) const
{
    setColumns(feature);
}

void LinkLayer::addFileProblems(ProblemList &problems) const
{
    m_reader.addFileProblems(problems);
}

} // namespace vlt::driver
