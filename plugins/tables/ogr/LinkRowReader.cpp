#include "plugins/tables/ogr/LinkRowReader.h"

#include "contract/TableTexts.h"
#include "plugins/tables/ogr/ZoneSurvey.h"
#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/CoordinateScale.h"

#include <algorithm>
#include <cmath>

namespace vlt::driver {

namespace {

using contract::formatted;

constexpr double MinLengthM = 1;
/// Maximum deviations of a stated length; it is wrong if it exceeds both.
constexpr double MaxDeviationShare = 0.05;
constexpr double MaxDeviationM = 100;
/// Of a stated azimuth: magnetic north and short links deviate less.
constexpr double MaxDeviationDeg = 45;
constexpr double WholeTurnDeg = 360;

linkpath::LinkEnd endOf(const LinkRow &link, std::size_t end)
{
    return {link.inFile[end].x, link.inFile[end].y, {}};
}

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
    , m_positions(m_facts->table, m_facts->links(),
                  scaleOf(m_systems->file(), m_facts->links().unit), m_facts->endSites.get())
    , m_values(m_facts->table, m_facts->links(), installedVocabulary().words)
    , m_path(nullptr, m_systems->file())
{}

LinkRow LinkRowReader::read(int64_t row, const std::vector<const Cell *> &cells,
                            std::vector<RowProblem> &problems) const
{
    LinkRow link;
    link.inFile = m_positions.read(row, cells, problems);
    link.placed = link.inFile;
    for (std::size_t end = 0; end < link.placed.size(); ++end) {
        const std::size_t before = problems.size();
        m_systems->transform(row, link.placed[end], problems);
        if (problems.size() > before) // the column identifies the end
            problems.back().column = fieldName(m_facts->links().ends[end].positionField());
    }
    link.values = m_values.read(row, cells, problems);
    measure(row, link, problems);
    return link;
}

const std::string &LinkRowReader::fieldName(int field) const
{
    return m_facts->table.fields[static_cast<std::size_t>(field)].name;
}

/// Sets the length of the link and compares the stated one with it.
void LinkRowReader::measure(int64_t row, LinkRow &link, std::vector<RowProblem> &problems) const
{
    if (!link.inFile[0].found || !link.inFile[1].found)
        return;
    link.lengthM = m_path.lengthM(endOf(link, 0), endOf(link, 1));
    if (!link.lengthM)
        return;
    if (*link.lengthM < MinLengthM) {
        problems.push_back({row, {}, false, formatted("MESS_TAB_ENDS_COINCIDE")});
        return;
    }
    compareAzimuths(row, link, problems);
    const std::optional<double> stated = link.values.lengthM;
    if (!stated)
        return;
    const double deviationM = std::abs(*stated - *link.lengthM);
    if (deviationM <= MaxDeviationM || deviationM <= MaxDeviationShare * *link.lengthM)
        return;
    problems.push_back(
        {row, fieldName(m_facts->links().length.field), false,
         formatted("MESS_TAB_LENGTH_DIFFERS",
                   {numberText(std::round(*stated)), numberText(std::round(*link.lengthM))})});
}

/// Reports stated azimuths that do not point to the other end. Dishes over a repeater need not.
void LinkRowReader::compareAzimuths(int64_t row, const LinkRow &link,
                                    std::vector<RowProblem> &problems) const
{
    const LinkLayout &layout = m_facts->links();
    const bool hasRepeaters =
        std::any_of(layout.columns.begin(), layout.columns.end(),
                    [](const LinkColumnRole &of) { return of.role == Role::Repeater; });
    for (std::size_t end = 0; end < link.inFile.size() && !hasRepeaters; ++end) {
        const std::optional<double> stated = link.values.ends[end].azimuthDeg;
        const auto direction =
            stated ? m_path.azimuthDeg(endOf(link, end), endOf(link, 1 - end)) : std::nullopt;
        if (!direction ||
            std::abs(std::remainder(*stated - *direction, WholeTurnDeg)) <= MaxDeviationDeg)
            continue;
        problems.push_back(
            {row, fieldName(layout.ends[end].azimuth.field), false,
             formatted("MESS_TAB_AZIMUTH_DIFFERS",
                       {numberText(std::round(*stated)), numberText(std::round(*direction))})});
    }
}

std::optional<double> LinkRowReader::azimuthDeg(const LinkRow &link, std::size_t end) const
{
    if (link.values.ends[end].azimuthDeg)
        return link.values.ends[end].azimuthDeg;
    if (!link.lengthM || *link.lengthM < MinLengthM)
        return std::nullopt;
    return m_path.azimuthDeg(endOf(link, end), endOf(link, 1 - end));
}

void LinkRowReader::addPositions(SurveyedPositions &positions, const TableRow &row)
{
    for (const Position &end : row.link().inFile) {
        if (end.found || end.isOutside)
            positions.add(row.number, end.x, end.y);
    }
}

void LinkRowReader::addFileProblems(ProblemList &problems) const
{
    problems.add(m_values.tableProblems());
    addZoneProblems(m_facts->links().ends[0].point, problems);
    if (const std::string &text = m_facts->links().systemProblem; !text.empty())
        problems.add({0, {}, false, text});
    std::vector<RowProblem> ofScale;
    for (const LinkEndFields &end : m_facts->links().ends)
        addScaleProblem(end.point, m_facts->table.fields, ofScale);
    problems.add(std::move(ofScale));
}

} // namespace vlt::driver
