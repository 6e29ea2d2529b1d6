#include "geodata/LocalDataset.h"

#include "contract/SceneTexts.h"
#include "coverage/LocalRaster.h"
#include "geodata/Subdatasets.h"
#include "localfiles/LocalFormats.h"
#include "localfiles/OpenLocal.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace vlt::geodata {

GDALDatasetUniquePtr openLocalDataset(const QString &path, unsigned kind)
{
    if (path.isEmpty())
        return {};
    const QByteArray name = QFile::encodeName(QFileInfo(path).absoluteFilePath());
    if (!localfiles::isLocalDataset(name.toStdString())) {
        CPLError(CE_Failure, CPLE_OpenFailed, "%s",
                 contract::formatted("MESS_SCENE_OTHER_COMPUTER").c_str());
        return {};
    }
    if (kind == GDAL_OF_RASTER)
        return localfiles::openRasterValues(name.toStdString());
    return localfiles::openVector(name.toStdString());
}

GDALDatasetUniquePtr openLocalRaster(const QString &path, const QString &part)
{
    GDALDatasetUniquePtr whole = openLocalDataset(path, GDAL_OF_RASTER);
    if (!whole || part.isEmpty())
        return whole;
    const QList<Subdataset> parts = subdatasets(*whole);
    const bool isListed = std::any_of(parts.begin(), parts.end(),
                                      [&part](const auto &one) { return one.name == part; });
    if (!isListed) {
        CPLError(CE_Failure, CPLE_OpenFailed, "%s",
                 contract::formatted("MESS_SCENE_NO_PART").c_str());
        return {};
    }
    return coverage::openListedPart(QFile::encodeName(part).toStdString());
}

} // namespace vlt::geodata
