#include "geodata/SystemInfo.h"

#include "geodata/EpsgIdentification.h"
#include "geodata/ErrorCollector.h"
#include "geodata/SrsDefinition.h"
#include "localfiles/NoNetwork.h"

#include <cpl_conv.h>
#include <ogr_spatialref.h>

#include <memory>

namespace vlt::geodata {

namespace {

using SystemPtr = std::unique_ptr<OGRSpatialReference>;

QString definitionOf(const OGRSpatialReference &system)
{
    const char *const options[] = {"FORMAT=WKT2", nullptr};
    char *text = nullptr;
    QString definition;
    if (system.exportToWkt(&text, options) == OGRERR_NONE)
        definition = QString::fromUtf8(text);
    CPLFree(text);
    return definition;
}

/// The system with the axis order x (east, longitude) first; null if there is none.
SystemPtr systemOf(const SystemInfo &info)
{
    SystemPtr system = std::make_unique<OGRSpatialReference>();
    if (info.definition.isEmpty() ||
        system->importFromWkt(info.definition.toUtf8().constData()) != OGRERR_NONE)
        return nullptr;
    system->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return system;
}

} // namespace

SystemInfo systemInfo(const OGRSpatialReference *system)
{
    if (system == nullptr)
        return {};
    SystemInfo info;
    const QString code = identifiedEpsgCode(*system);
    const char *name = system->GetName();
    info.name = code.isEmpty() ? QString::fromUtf8(name) : listedCode(code);
    info.isGeographic = system->IsGeographic();
    if (system->IsProjected())
        info.unitM = system->GetLinearUnits();
    info.definition = definitionOf(*system);
    return info;
}

std::optional<Extent> extentIn(const SystemInfo &to, const Extent &extent, const SystemInfo &from)
{
    constexpr int PointsOnAnEdge = 21;
    const ErrorCollector quiet;
    const localfiles::NoNetwork offline;
    const SystemPtr source = systemOf(from);
    const SystemPtr target = systemOf(to);
    if (!source || !target)
        return std::nullopt;
    const std::unique_ptr<OGRCoordinateTransformation> way(
        OGRCreateCoordinateTransformation(source.get(), target.get()));
    Extent seen;
    if (!way ||
        !way->TransformBounds(extent.minX, extent.minY, extent.maxX, extent.maxY, &seen.minX,
                              &seen.minY, &seen.maxX, &seen.maxY, PointsOnAnEdge))
        return std::nullopt;
    return seen.isPlaced() ? std::optional(seen) : std::nullopt;
}

} // namespace vlt::geodata
