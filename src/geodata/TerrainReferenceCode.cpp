#include "geodata/TerrainReferenceCode.h"

#include "geodata/EpsgIdentification.h"
#include "geodata/ErrorCollector.h"
#include "geodata/LocalDataset.h"
#include "localfiles/NoNetwork.h"

#include <QFileInfo>

#include <ogr_spatialref.h>

#include <algorithm>
#include <array>
#include <memory>

namespace vlt::geodata {

namespace {

GDALDatasetUniquePtr openTerrain(const QString &rasterPath)
{
    return QFileInfo(rasterPath).isFile() ? openLocalDataset(rasterPath, GDAL_OF_RASTER) : nullptr;
}

} // namespace

std::optional<SrsBounds> terrainArea(const QString &rasterPath)
{
    constexpr int PointsPerSide = 21;
    const ErrorCollector quiet;
    const localfiles::NoNetwork offline;
    const GDALDatasetUniquePtr dataset = openTerrain(rasterPath);
    std::array<double, 6> grid = {};
    if (!dataset || !dataset->GetSpatialRef() || dataset->GetGeoTransform(grid.data()) != CE_None)
        return std::nullopt;

    OGRSpatialReference from = *dataset->GetSpatialRef();
    from.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRSpatialReference degrees;
    degrees.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    degrees.importFromWkt(SRS_WKT_WGS84_LAT_LONG);
    const std::unique_ptr<OGRCoordinateTransformation> way(
        OGRCreateCoordinateTransformation(&from, &degrees));
    const double east = grid[0] + grid[1] * dataset->GetRasterXSize();
    const double south = grid[3] + grid[5] * dataset->GetRasterYSize();
    SrsBounds area;
    if (!way || !way->TransformBounds(std::min(grid[0], east), std::min(grid[3], south),
                                      std::max(grid[0], east), std::max(grid[3], south), &area.west,
                                      &area.south, &area.east, &area.north, PointsPerSide))
        return std::nullopt;
    return area;
}

QString terrainReferenceCode(const QString &rasterPath)
{
    const ErrorCollector quiet;
    const localfiles::NoNetwork offline;
    const GDALDatasetUniquePtr dataset = openTerrain(rasterPath);
    const OGRSpatialReference *declared = dataset ? dataset->GetSpatialRef() : nullptr;
    return declared ? identifiedEpsgCode(*declared) : QString();
}

} // namespace vlt::geodata
