#include "geodata/DatasetReferenceCode.h"

#include "geodata/EpsgIdentification.h"
#include "geodata/ErrorCollector.h"
#include "geodata/LocalDataset.h"
#include "localfiles/NoNetwork.h"

#include <QFileInfo>

#include <ogrsf_frmts.h>

namespace vlt::geodata {

namespace {

Result<QString> codeOrError(const OGRSpatialReference *system, const Error &error)
{
    const QString code = system ? identifiedEpsgCode(*system) : QString();
    return code.isEmpty() ? Result<QString>(error) : Result<QString>(code);
}

} // namespace

Result<QString> datasetReferenceCode(const QString &path)
{
    const Error noVectorSystem{
        QStringLiteral("MESS_ERR_NO_SRS_DSV"),
        QStringLiteral(
            "This vector dataset doesn't contain any valid coordinate system information"),
        {}};
    if (!QFileInfo(path).isFile())
        return noVectorSystem;

    const ErrorCollector quiet;
    const localfiles::NoNetwork offline;
    if (const GDALDatasetUniquePtr raster = openLocalDataset(path, GDAL_OF_RASTER))
        return codeOrError(
            raster->GetSpatialRef(),
            {QStringLiteral("MESS_ERR_NO_SRS_DSR"),
             QStringLiteral(
                 "This raster dataset doesn't contain any valid coordinate system information"),
             {}});

    const GDALDatasetUniquePtr vector = openLocalDataset(path, GDAL_OF_VECTOR);
    OGRLayer *layer = vector ? vector->GetLayer(0) : nullptr;
    return codeOrError(layer ? layer->GetSpatialRef() : nullptr, noVectorSystem);
}

} // namespace vlt::geodata
