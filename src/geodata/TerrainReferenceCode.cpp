#include "geodata/TerrainReferenceCode.h"

#include "geodata/ErrorCollector.h"

#include <QFile>
#include <QFileInfo>

#include <cpl_conv.h>
#include <gdal_priv.h>
#include <ogr_spatialref.h>

#include <array>

namespace vlt::geodata {

namespace {

// Formats that describe other sources (virtual rasters, web services) are left out on purpose.
constexpr std::array<const char *, 19> LocalRasterFormats = {
    "GTiff", "HFA",  "AAIGrid", "EHdr",  "ENVI",        "DTED", "SRTMHGT", "USGSDEM", "BT",   "RST",
    "SAGA",  "GSAG", "GSBG",    "GS7BG", "JP2OpenJPEG", "PNG",  "JPEG",    "BMP",     nullptr};

/// From here on a match describes the same system, under another name at most.
constexpr int EquivalentConfidence = 90;

bool isLocalFile(const QString &absolutePath)
{
    return !absolutePath.startsWith(QLatin1String("/vsi"), Qt::CaseInsensitive) &&
           QFileInfo(absolutePath).isFile();
}

QString epsgCode(const OGRSpatialReference &system)
{
    const char *authority = system.GetAuthorityName(nullptr);
    const char *code = system.GetAuthorityCode(nullptr);
    return authority && code && qstricmp(authority, "EPSG") == 0 ? QString::fromLatin1(code)
                                                                 : QString();
}

/// Looks the definition up among all of EPSG's: systems that come without a code, as in .prj files
/// beside rasters, are mostly found only so.
QString bestMatch(OGRSpatialReference &system)
{
    int count = 0;
    int *confidences = nullptr;
    OGRSpatialReferenceH *matches =
        OSRFindMatches(OGRSpatialReference::ToHandle(&system), nullptr, &count, &confidences);
    QString code;
    for (int i = 0; i < count && code.isEmpty(); ++i) {
        if (confidences[i] >= EquivalentConfidence)
            code = epsgCode(*OGRSpatialReference::FromHandle(matches[i]));
    }
    OSRFreeSRSArray(matches);
    CPLFree(confidences);
    return code;
}

} // namespace

QString terrainReferenceCode(const QString &rasterPath)
{
    const QString path =
        rasterPath.isEmpty() ? QString() : QFileInfo(rasterPath).absoluteFilePath();
    if (!isLocalFile(path))
        return {};

    const ErrorCollector quiet;
    const GDALDatasetUniquePtr dataset(GDALDataset::Open(
        QFile::encodeName(path).constData(), GDAL_OF_RASTER, LocalRasterFormats.data()));
    const OGRSpatialReference *declared = dataset ? dataset->GetSpatialRef() : nullptr;
    if (!declared)
        return {};

    OGRSpatialReference identified(*declared);
    identified.AutoIdentifyEPSG();
    const QString code = epsgCode(identified);
    return code.isEmpty() ? bestMatch(identified) : code;
}

} // namespace vlt::geodata
