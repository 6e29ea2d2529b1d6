#include "geodata/TerrainReferenceCode.h"

#include "geodata/EpsgIdentification.h"
#include "geodata/ErrorCollector.h"
#include "geodata/LocalDataset.h"
#include "localfiles/NoNetwork.h"

#include <QFileInfo>

namespace vlt::geodata {

QString terrainReferenceCode(const QString &rasterPath)
{
    if (!QFileInfo(rasterPath).isFile())
        return {};

    const ErrorCollector quiet;
    const localfiles::NoNetwork offline;
    const GDALDatasetUniquePtr dataset = openLocalDataset(rasterPath, GDAL_OF_RASTER);
    const OGRSpatialReference *declared = dataset ? dataset->GetSpatialRef() : nullptr;
    return declared ? identifiedEpsgCode(*declared) : QString();
}

} // namespace vlt::geodata
