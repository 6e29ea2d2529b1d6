#include "geodata/SystemCheck.h"

#include "geodata/ErrorCollector.h"
#include "geodata/SrsDefinition.h"

#include <ogr_geometry.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>

namespace vlt::geodata {

namespace {

constexpr std::size_t PositionsAtOnce = 1024;
constexpr double MarginDeg = 0.5;

/// The transformation of a table's positions to degrees of WGS 84; null if there is none.
OGRCoordinateTransformation *wayToDegrees(const SystemPair &systems,
                                          const OGRSpatialReference *placed)
{
    OGRSpatialReference from;
    if (placed)
        from = *placed;
    else if (systems.source.isEmpty() ||
             from.SetFromUserInput(listedCode(systems.source).toUtf8().constData(),
                                   OGRSpatialReference::SET_FROM_USER_INPUT_LIMITATIONS_get()) !=
                 OGRERR_NONE)
        return nullptr;
    from.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRSpatialReference degrees;
    degrees.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    degrees.importFromWkt(SRS_WKT_WGS84_LAT_LONG);
    return OGRCreateCoordinateTransformation(&from, &degrees);
}

bool isOutside(const SrsFacts &facts, bool isPlaced, double longitude, double latitude)
{
    return facts.area && (!isPlaced || !isInside(*facts.area, longitude, latitude, MarginDeg));
}

void extend(std::optional<SrsBounds> &extent, double longitude, double latitude)
{
    if (!extent) {
        extent = SrsBounds{longitude, latitude, longitude, latitude};
        return;
    }
    extent->west = std::min(extent->west, longitude);
    extent->south = std::min(extent->south, latitude);
    extent->east = std::max(extent->east, longitude);
    extent->north = std::max(extent->north, latitude);
}

} // namespace

void SystemChecker::TransformationRelease::operator()(
    OGRCoordinateTransformation *transformation) const
{
    OGRCoordinateTransformation::DestroyCT(transformation);
}

SystemChecker::SystemChecker(const SystemPair &systems, const OGRSpatialReference *placed)
{
    const ErrorCollector quiet;
    m_check.source = srsFacts(systems.source);
    m_check.target = srsFacts(systems.target);
    m_toDegrees.reset(wayToDegrees(systems, placed));
}

SystemChecker::~SystemChecker() = default;

void SystemChecker::add(const OGRGeometry &geometry)
{
    if (!m_toDegrees || geometry.IsEmpty())
        return;
    const OGRwkbGeometryType type = wkbFlatten(geometry.getGeometryType());
    if (type == wkbPoint) {
        addPosition(geometry.toPoint()->getX(), geometry.toPoint()->getY());
    } else if (type == wkbLineString) {
        const OGRLineString *line = geometry.toLineString();
        const int last = line->getNumPoints() - 1;
        addPosition(line->getX(0), line->getY(0));
        addPosition(line->getX(last), line->getY(last));
    }
}

SystemCheck SystemChecker::result()
{
    compare();
    return m_check;
}

void SystemChecker::addPosition(double x, double y)
{
    m_x.push_back(x);
    m_y.push_back(y);
    if (m_x.size() == PositionsAtOnce)
        compare();
}

void SystemChecker::compare()
{
    if (m_x.empty())
        return;
    const ErrorCollector quiet;
    std::vector<int> isDone(m_x.size());
    m_toDegrees->Transform(static_cast<int>(m_x.size()), m_x.data(), m_y.data(), nullptr,
                           isDone.data());
    for (std::size_t i = 0; i < m_x.size(); ++i) {
        const bool isPlaced = isDone[i] && std::abs(m_x[i]) <= 180 && std::abs(m_y[i]) <= 90;
        ++m_check.positions;
        m_check.outsideSource += isOutside(m_check.source, isPlaced, m_x[i], m_y[i]) ? 1 : 0;
        m_check.outsideTarget += isOutside(m_check.target, isPlaced, m_x[i], m_y[i]) ? 1 : 0;
        if (isPlaced)
            extend(m_check.extent, m_x[i], m_y[i]);
    }
    m_x.clear();
    m_y.clear();
}

} // namespace vlt::geodata
