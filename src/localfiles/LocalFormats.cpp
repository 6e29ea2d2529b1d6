#include "localfiles/LocalFormats.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>

namespace vlt::localfiles {

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

bool isLocalFile(const std::string &absolutePath)
{
    constexpr std::string_view Virtual = "/vsi";
    const bool isVirtual =
        absolutePath.size() >= Virtual.size() &&
        std::equal(Virtual.begin(), Virtual.end(), absolutePath.begin(),
                   [](char a, char b) { return a == (b >= 'A' && b <= 'Z' ? b + 32 : b); });
    std::error_code error;
    return !isVirtual && absolutePath.starts_with('/') &&
           std::filesystem::is_regular_file(absolutePath, error);
}

} // namespace vlt::localfiles
