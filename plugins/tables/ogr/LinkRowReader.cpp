#include "plugins/tables/ogr/LinkRowReader.h"

#include "contract/TableTexts.h"

#include <cmath>

namespace vlt::driver {

namespace {

using contract::formatted;

constexpr double LeastLengthM = 1;
constexpr double MostDeviation = 0.05; ///< of a stated length
constexpr double MostDeviationM = 100;

OffsetScale scaleOf(const OGRSpatialReference *srs, CoordinateUnit unit)
{
    OffsetScale scale;
    scale.isOnEarth = srs ? srs->IsGeographic() : unit != CoordinateUnit::Meters;
    if (!scale.isOnEarth) {
        scale.unit = srs ? srs->GetLinearUnits() : 1;
        return scale;
    }
    const double inverse = srs ? srs->GetInvFlattening() : SRS_WGS84_INVFLATTENING;
    scale.unit = srs ? srs->GetAngularUnits() * 180 / M_PI : 1;
    scale.semiMajorM = srs ? srs->GetSemiMajor() : SRS_WGS84_SEMIMAJOR;
    scale.flattening = inverse > 0 ? 1 / inverse : 0;
    return scale;
}

} // namespace

LinkRowReader::LinkRowReader(const TableSource &source)
    : m_facts(&source.facts())
    , m_systems(source.systems)
    , m_placer(m_facts->table, m_facts->links(), scaleOf(m_systems->file(), m_facts->links().unit))
    , m_values(m_facts->table, m_facts->links())
    , m_path(nullptr, m_systems->file())
{}

void LinkRowReader::read(int64_t row, const std::vector<const Cell *> &cells,
                         std::vector<RowProblem> &problems)
{
    m_row.inFile = m_placer.place(row, cells, problems);
    m_row.placed = m_row.inFile;
    for (std::size_t end = 0; end < m_row.placed.size(); ++end) {
        const std::size_t before = problems.size();
        m_systems->transform(row, m_row.placed[end], problems);
        if (problems.size() > before) // which of the ends it is
            problems.back().column = fieldName(m_facts->links().ends[end].point.xField());
    }
    m_row.values = m_values.read(row, cells, problems);
    measure(row, problems);
}

const std::string &LinkRowReader::fieldName(int field) const
{
    return m_facts->table.fields[static_cast<std::size_t>(field)].name;
}

linkpath::LinkEnd LinkRowReader::endOf(std::size_t end) const
{
    return {m_row.inFile[end].x, m_row.inFile[end].y, {}};
}

void LinkRowReader::measure(int64_t row, std::vector<RowProblem> &problems)
{
    m_row.lengthM.reset();
    if (!m_row.inFile[0].found || !m_row.inFile[1].found)
        return;
    m_row.lengthM = m_path.lengthM(endOf(0), endOf(1));
    if (!m_row.lengthM)
        return;
    if (*m_row.lengthM < LeastLengthM) {
        problems.push_back({row, {}, false, formatted("MESS_TAB_ENDS_COINCIDE")});
        return;
    }
    const std::optional<double> stated = m_row.values.lengthM;
    if (!stated)
        return;
    const double deviation = std::abs(*stated - *m_row.lengthM);
    if (deviation <= MostDeviationM || deviation <= MostDeviation * *m_row.lengthM)
        return;
    problems.push_back(
        {row, fieldName(m_facts->links().length.field), false,
         formatted("MESS_TAB_LENGTH_DIFFERS",
                   {numberText(std::round(*stated)), numberText(std::round(*m_row.lengthM))})});
}

std::optional<double> LinkRowReader::azimuthDeg(std::size_t end) const
{
    if (m_row.values.ends[end].azimuthDeg)
        return m_row.values.ends[end].azimuthDeg;
    if (!m_row.lengthM || *m_row.lengthM < LeastLengthM)
        return std::nullopt;
    return m_path.azimuthDeg(endOf(end), endOf(1 - end));
}

void LinkRowReader::addFileProblems(ProblemList &problems) const
{
    problems.add(m_values.tableProblems());
}

} // namespace vlt::driver
