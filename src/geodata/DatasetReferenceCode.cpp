#include "geodata/DatasetReferenceCode.h"

#include "geodata/EpsgIdentification.h"
#include "geodata/ErrorCollector.h"
#include "localfiles/LocalFormats.h"
#include "localfiles/NoNetwork.h"

#include <QFile>
#include <QFileInfo>

#include <gdal_priv.h>
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
    const QString absolute = QFileInfo(path).absoluteFilePath();
    const QByteArray name = QFile::encodeName(absolute);
    if (!localfiles::isLocalFile(name.toStdString()))
        return noVectorSystem;

    const ErrorCollector quiet;
    const localfiles::NoNetwork offline;
    const GDALDatasetUniquePtr raster(
        GDALDataset::Open(name.constData(), GDAL_OF_RASTER, localfiles::localRasterFormats()));
    if (raster)
        return codeOrError(
            raster->GetSpatialRef(),
            {QStringLiteral("MESS_ERR_NO_SRS_DSR"),
             QStringLiteral(
                 "This raster dataset doesn't contain any valid coordinate system information"),
             {}});

    const GDALDatasetUniquePtr vector(
        GDALDataset::Open(name.constData(), GDAL_OF_VECTOR, localfiles::localVectorFormats()));
    OGRLayer *layer = vector ? vector->GetLayer(0) : nullptr;
    return codeOrError(layer ? layer->GetSpatialRef() : nullptr, noVectorSystem);
}

} // namespace vlt::geodata
