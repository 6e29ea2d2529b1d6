#include "geodata/TerrainReferenceCode.h"

#include "geodata/EpsgIdentification.h"
#include "geodata/ErrorCollector.h"
#include "localfiles/LocalFormats.h"
#include "localfiles/NoNetwork.h"

#include <QFile>
#include <QFileInfo>

#include <gdal_priv.h>

namespace vlt::geodata {

QString terrainReferenceCode(const QString &rasterPath)
{
    const QByteArray path = rasterPath.isEmpty()
                                ? QByteArray()
                                : QFile::encodeName(QFileInfo(rasterPath).absoluteFilePath());
    if (!localfiles::isLocalFile(path.toStdString()))
        return {};

    const ErrorCollector quiet;
    const localfiles::NoNetwork offline;
    const GDALDatasetUniquePtr dataset(
        GDALDataset::Open(path.constData(), GDAL_OF_RASTER, localfiles::localRasterFormats()));
    const OGRSpatialReference *declared = dataset ? dataset->GetSpatialRef() : nullptr;
    return declared ? identifiedEpsgCode(*declared) : QString();
}

} // namespace vlt::geodata
