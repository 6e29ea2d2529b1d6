#include "geodata/LocalFormats.h"

#include <QFileInfo>

#include <array>

namespace vlt::geodata {

const char *const *localRasterFormats()
{
    static constexpr std::array<const char *, 19> Formats = {
        "GTiff",       "HFA", "AAIGrid", "EHdr", "ENVI", "DTED", "SRTMHGT",
        "USGSDEM",     "BT",  "RST",     "SAGA", "GSAG", "GSBG", "GS7BG",
        "JP2OpenJPEG", "PNG", "JPEG",    "BMP",  nullptr};
    return Formats.data();
}

const char *const *localVectorFormats()
{
    static constexpr std::array<const char *, 14> Formats = {"ESRI Shapefile",
                                                             "MapInfo File",
                                                             "GPKG",
                                                             "GeoJSON",
                                                             "GeoJSONSeq",
                                                             "FlatGeobuf",
                                                             "SQLite",
                                                             "KML",
                                                             "LIBKML",
                                                             "GPX",
                                                             "DGN",
                                                             "DXF",
                                                             "CSV",
                                                             nullptr};
    return Formats.data();
}

bool isLocalFile(const QString &absolutePath)
{
    return !absolutePath.startsWith(QLatin1String("/vsi"), Qt::CaseInsensitive) &&
           QFileInfo(absolutePath).isFile();
}

} // namespace vlt::geodata
