#include "plugins/tables/ogr/TableSystems.h"

#include "plugins/tables/bytes/Refusal.h"

#include <cpl_error.h>

#include <cmath>

namespace vlt::driver {

using contract::formatted;

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
    // If the file's system is not known, its coordinates are used as those of the target system,
    // and a problem reports it.
    m_isUnreachable = m_target && !m_file;
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
    if (m_isUnreachable)
        problems.add({0, {}, false, formatted("MESS_TAB_NO_SOURCE_SRS")});
}

} // namespace vlt::driver
