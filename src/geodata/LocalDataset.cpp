#include "geodata/LocalDataset.h"

#include "localfiles/LocalFormats.h"

#include <QFile>
#include <QFileInfo>

namespace vlt::geodata {

GDALDatasetUniquePtr openLocalDataset(const QString &path, unsigned kind)
{
    if (path.isEmpty())
        return {};
    const QByteArray name = QFile::encodeName(QFileInfo(path).absoluteFilePath());
    if (!localfiles::isLocalDataset(name.toStdString())) {
        CPLError(CE_Failure, CPLE_OpenFailed, "not a file or folder of this computer");
        return {};
    }
    const char *const *formats = kind == GDAL_OF_RASTER ? localfiles::localRasterFormats()
                                                        : localfiles::localVectorFormats();
    return GDALDatasetUniquePtr(GDALDataset::Open(
        name.constData(), kind | GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR, formats));
}

} // namespace vlt::geodata
