#include "plugins/tables/ogr/TableSystems.h"

#include "plugins/tables/bytes/Refusal.h"

#include <cpl_error.h>

#include <cmath>

namespace vlt::driver {

using contract::formatted;

/// A system from a code, a WKT or whatever the library understands; bare digits are EPSG codes.
TableSystems::Srs TableSystems::make(const std::string &text)
{
    Srs srs(new OGRSpatialReference());
    srs->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    // The system of most tables needs no look into the database, which costs more than a table's
    // header.
    if (text == "4326" || text == "EPSG:4326") {
        srs->importFromWkt(SRS_WKT_WGS84_LAT_LONG);
        return srs;
    }
    const bool digits = text.find_first_not_of("0123456789") == std::string::npos;
    // Only texts: a coordinate system is never fetched nor read from a file.
    const OGRErr error =
        digits ? srs->importFromEPSG(atoi(text.c_str()))
               : srs->SetFromUserInput(text.c_str(),
                                       OGRSpatialReference::SET_FROM_USER_INPUT_LIMITATIONS_get());
    if (error != OGRERR_NONE)
        throw RefusedFile(Refusal::BadOption, "MESS_TAB_UNKNOWN_SRS", {text});
    // Heights alone place nothing, and a geocentric system has no horizontal plane.
    if (srs->IsGeocentric() || (srs->IsVertical() && !srs->IsCompound()))
        throw RefusedFile(Refusal::BadOption, "MESS_TAB_NOT_HORIZONTAL", {text});
    return srs;
}

TableSystems::TableSystems(const TableDeclaration &table, const std::string &sourceSrs,
                           const std::string &targetSrs)
    : m_knownEpsg(table.epsg)
{
    std::string source = sourceSrs;
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
    if (!targetSrs.empty())
        m_target = make(targetSrs);
    if (m_target && m_file && !m_target->IsSame(m_file.get())) {
        m_transformation.reset(OGRCreateCoordinateTransformation(m_file.get(), m_target.get()));
        if (!m_transformation)
            throw RefusedFile(Refusal::BadOption, "MESS_TAB_NO_WAY", {source, targetSrs});
    }
    // Where the file's system is not known its numbers are taken as the target's, which is said
    // among the problems.
    m_isUnreachable = m_target && !m_file;
}

void TableSystems::transform(int64_t row, Position &position,
                             std::vector<RowProblem> &problems) const
{
    if (!position.found || !m_transformation)
        return;
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler); // it becomes a problem of the row
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
    if (m_isUnreachable)
        problems.add({0, {}, false, formatted("MESS_TAB_NO_SOURCE_SRS")});
}

} // namespace vlt::driver
