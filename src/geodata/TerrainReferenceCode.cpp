#include "geodata/TerrainReferenceCode.h"

#include "geodata/EpsgIdentification.h"
#include "geodata/ErrorCollector.h"
#include "geodata/LocalFormats.h"
#include "geodata/NoNetwork.h"

#include <QFile>
#include <QFileInfo>

#include <gdal_priv.h>

namespace vlt::geodata {

QString terrainReferenceCode(const QString &rasterPath)
{
    const QString path =
        rasterPath.isEmpty() ? QString() : QFileInfo(rasterPath).absoluteFilePath();
    if (!isLocalFile(path))
        return {};

    const ErrorCollector quiet;
    const NoNetwork offline;
    const GDALDatasetUniquePtr dataset(GDALDataset::Open(QFile::encodeName(path).constData(),
                                                         GDAL_OF_RASTER, localRasterFormats()));
    const OGRSpatialReference *declared = dataset ? dataset->GetSpatialRef() : nullptr;
    return declared ? identifiedEpsgCode(*declared) : QString();
}

} // namespace vlt::geodata
