#include "geodata/LibraryVersions.h"

#include <gdal.h>
#include <ogr_srs_api.h>

namespace vlt::geodata {

QStringList libraryVersions()
{
    int major = 0;
    int minor = 0;
    int patch = 0;
    OSRGetPROJVersion(&major, &minor, &patch);
    return {QStringLiteral("GDAL ") + QString::fromUtf8(GDALVersionInfo("RELEASE_NAME")),
            QStringLiteral("PROJ %1.%2.%3").arg(major).arg(minor).arg(patch)};
}

} // namespace vlt::geodata
