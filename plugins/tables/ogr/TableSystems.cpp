#include "plugins/tables/ogr/TableSystems.h"

#include "plugins/tables/bytes/Refusal.h"

#include <cpl_conv.h>
#include <cpl_error.h>
#include <cpl_string.h>

#include <array>
#include <cmath>

namespace vlt::driver {

using contract::formatted;

namespace {

using Transformation = std::unique_ptr<OGRCoordinateTransformation>;

/// The area in a text of four numbers; nothing for an empty text.
std::optional<CoordinateBox> areaIn(const std::string &text)
{
    if (text.empty())
        return std::nullopt;
    const CPLStringList parts(CSLTokenizeString2(text.c_str(), ", ", 0));
    std::array<double, 4> values{};
    bool isArea = parts.Count() == static_cast<int>(values.size());
    for (std::size_t i = 0; isArea && i < values.size(); ++i) {
        const char *part = parts[static_cast<int>(i)];
        isArea = CPLGetValueType(part) != CPL_VALUE_STRING;
        values[i] = CPLAtof(part);
    }
    if (!isArea)
        throw RefusedFile(Refusal::BadOption, "MESS_TAB_BAD_EXTENT", {text});
    return CoordinateBox{values[0], values[1], values[2], values[3]};
}

} // namespace

/// A system from a code, a WKT or another text that the library accepts; digits alone are an EPSG
/// code.
TableSystems::Srs TableSystems::make(const std::string &text)
{
    Srs srs(new OGRSpatialReference());
    srs->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    // Most tables use this system. Reading it from the database would take longer than reading the
    // header of the table.
    if (text == "4326" || text == "EPSG:4326") {
        srs->importFromWkt(SRS_WKT_WGS84_LAT_LONG);
        return srs;
    }
    const bool digits = text.find_first_not_of("0123456789") == std::string::npos;
    // The limitations exclude URLs and names of files.
    const OGRErr error =
        digits ? srs->importFromEPSG(atoi(text.c_str()))
               : srs->SetFromUserInput(text.c_str(),
                                       OGRSpatialReference::SET_FROM_USER_INPUT_LIMITATIONS_get());
    if (error != OGRERR_NONE)
        throw RefusedFile(Refusal::BadOption, "MESS_TAB_UNKNOWN_SRS", {text});
    // A vertical system has no positions, and a geocentric one has no horizontal plane.
    if (srs->IsGeocentric() || (srs->IsVertical() && !srs->IsCompound()))
        throw RefusedFile(Refusal::BadOption, "MESS_TAB_NOT_HORIZONTAL", {text});
    return srs;
}

TableSystems::TableSystems(const TableDeclaration &table, const StatedSystems &stated)
    : m_knownEpsg(table.epsg)
    , m_extent(areaIn(stated.extent))
{
    std::string source = stated.source;
    if (source.empty() && !table.epsg.empty()) {
        const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
        if (OGRSpatialReference().importFromEPSG(atoi(table.epsg.c_str())) != OGRERR_NONE)
            m_unknownEpsg.swap(m_knownEpsg);
        source = m_knownEpsg;
    }
    if (source.empty() && table.unit != CoordinateUnit::Meters)
        source = "4326";
    if (!source.empty())
        m_file = make(source);
    if (!stated.target.empty())
        m_target = make(stated.target);
    if (m_target && m_file && !m_target->IsSame(m_file.get())) {
        m_transformation.reset(OGRCreateCoordinateTransformation(m_file.get(), m_target.get()));
        if (!m_transformation)
            throw RefusedFile(Refusal::BadOption, "MESS_TAB_NO_WAY", {source, stated.target});
    }
    // If the file's system is not known, its coordinates are used as those of the target system,
    // and a problem reports it.
    m_isUnreachable = m_target && !m_file;
}

double TableSystems::halfTurn() const
{
    return m_file && m_file->IsGeographic() ? M_PI / m_file->GetAngularUnits() : 0;
}

/// An area in the file's system, or in the target system if that takes its place; nothing if it
/// crosses the edge of the map.
std::optional<CoordinateBox> TableSystems::inFile(const CoordinateBox &degrees) const
{
    constexpr int PointsOnAnEdge = 21;
    const OGRSpatialReference *system = m_file ? m_file.get() : m_target.get();
    if (!system || degrees.minX > degrees.maxX)
        return std::nullopt;
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const Srs from = make("4326");
    const Transformation way(OGRCreateCoordinateTransformation(from.get(), system));
    CoordinateBox area;
    if (!way ||
        !way->TransformBounds(degrees.minX, degrees.minY, degrees.maxX, degrees.maxY, &area.minX,
                              &area.minY, &area.maxX, &area.maxY, PointsOnAnEdge) ||
        !(area.minX <= area.maxX) || !std::isfinite(area.maxX - area.minX + area.maxY - area.minY))
        return std::nullopt;
    return area;
}

SystemFacts TableSystems::facts() const
{
    SystemFacts facts;
    facts.isKnown = m_file != nullptr;
    facts.halfTurn = halfTurn();
    if (m_file && facts.halfTurn == 0)
        facts.metresPerUnit = m_file->GetLinearUnits();
    if (m_extent)
        facts.terrain = inFile(*m_extent);
    CoordinateBox area;
    const char *name = nullptr;
    constexpr double World = 359; // degrees
    constexpr double West = -180; // the library gives -1000 for a system without an area
    if (m_file && m_file->GetAreaOfUse(&area.minX, &area.minY, &area.maxX, &area.maxY, &name) &&
        area.minX >= West && area.maxX - area.minX < World)
        facts.area = inFile(area);
    return facts;
}

void TableSystems::transform(int64_t row, Position &position,
                             std::vector<RowProblem> &problems) const
{
    if (!position.found || !m_transformation)
        return;
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler); // the row gets a problem instead
    if (m_transformation->Transform(1, &position.x, &position.y) && std::isfinite(position.x) &&
        std::isfinite(position.y))
        return;
    position.found = false;
    problems.push_back({row, {}, true, formatted("MESS_TAB_OUTSIDE_TARGET")});
}

void TableSystems::addProblems(ProblemList &problems) const
{
    if (!m_unknownEpsg.empty())
        problems.add({0, {}, false, formatted("MESS_TAB_UNKNOWN_EPSG", {m_unknownEpsg})});
}

} // namespace vlt::driver
