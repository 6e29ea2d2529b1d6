#include "localfiles/LocalFormats.h"

#include "contract/Installation.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <vector>

#include <gdal_priv.h>

namespace vlt::localfiles {

namespace {

// Formats whose files refer to other sources, web services, databases on a server, and formats that
// run other programs.
constexpr std::array Refused = {"VRT",
                                "OGR_VRT",
                                "DERIVED",
                                "GDALG",
                                "GTI",
                                "STACTA",
                                "STACIT",
                                "MRF",
                                "MEM",
                                "Memory",
                                "HTTP",
                                "WCS",
                                "WMS",
                                "WMTS",
                                "WFS",
                                "CSW",
                                "OAPIF",
                                "OGCAPI",
                                "EEDA",
                                "EEDAI",
                                "DAAS",
                                "PLMOSAIC",
                                "PLSCENES",
                                "NGW",
                                "AmigoCloud",
                                "Carto",
                                "CouchDB",
                                "Cloudant",
                                "GFT",
                                "GME",
                                "Elasticsearch",
                                "MongoDBv3",
                                "PostgreSQL",
                                "PostGISRaster",
                                "PGDUMP",
                                "MySQL",
                                "MSSQLSpatial",
                                "ODBC",
                                "OCI",
                                "GeoRaster",
                                "DB2ODBC",
                                "Ingres",
                                "HANA",
                                "ADBC",
                                "SDE",
                                "OGR_OGDI",
                                "GMLAS",
                                "GPSBabel",
                                "JPIPKAK",
                                "KMLSUPEROVERLAY",
                                "RASDAMAN",
                                "TileDB",
                                contract::TableDriver};

/// Names of formats with a null at the end. They exist as long as the program runs.
class FormatList
{
public:
    explicit FormatList(const char *capability)
    {
        GDALDriverManager &manager = *GetGDALDriverManager();
        if (manager.GetDriverCount() == 0)
            GDALAllRegister();
        for (int i = 0; i < manager.GetDriverCount(); ++i) {
            GDALDriver &driver = *manager.GetDriver(i);
            const std::string_view name = driver.GetDescription();
            if (driver.GetMetadataItem(capability) && driver.GetMetadataItem(GDAL_DCAP_OPEN) &&
                std::find(Refused.begin(), Refused.end(), name) == Refused.end())
                m_names.emplace_back(name);
        }
        for (const std::string &name : m_names)
            m_list.push_back(name.c_str());
        m_list.push_back(nullptr);
    }

    const char *const *data() const { return m_list.data(); }

private:
    std::vector<std::string> m_names;
    std::vector<const char *> m_list;
};

bool isVirtual(const std::string &path)
{
    constexpr std::string_view Virtual = "/vsi";
    return path.size() >= Virtual.size() &&
           std::equal(Virtual.begin(), Virtual.end(), path.begin(),
                      [](char a, char b) { return a == (b >= 'A' && b <= 'Z' ? b + 32 : b); });
}

/// Type of the file at a path, links followed; none if it is not a path of the local disk.
std::filesystem::file_type kindOf(const std::string &absolutePath)
{
    std::error_code error;
    return isVirtual(absolutePath) || !absolutePath.starts_with('/')
               ? std::filesystem::file_type::none
               : std::filesystem::status(absolutePath, error).type();
}

} // namespace

const char *const *localRasterFormats()
{
    static const FormatList Formats(GDAL_DCAP_RASTER);
    return Formats.data();
}

const char *const *localVectorFormats()
{
    static const FormatList Formats(GDAL_DCAP_VECTOR);
    return Formats.data();
}

bool isLocalFile(const std::string &absolutePath)
{
    return kindOf(absolutePath) == std::filesystem::file_type::regular;
}

bool isLocalDataset(const std::string &absolutePath)
{
    const std::filesystem::file_type kind = kindOf(absolutePath);
    return kind == std::filesystem::file_type::regular ||
           kind == std::filesystem::file_type::directory;
}

std::string locateDataset(const std::string &name, const std::vector<std::string> &directories)
{
    for (const std::string &directory : directories) {
        if (name.empty())
            break;
        std::string path = (std::filesystem::path(directory) / name).lexically_normal().string();
        if (isLocalDataset(path))
            return path;
    }
    return {};
}

} // namespace vlt::localfiles
