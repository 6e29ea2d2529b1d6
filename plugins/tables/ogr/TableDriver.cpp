#include "contract/ConnectionString.h"
#include "contract/Installation.h"
#include "contract/QueryOptions.h"
#include "contract/TableMetadata.h"
#include "contract/TableReport.h"
#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/ogr/Guarded.h"
#include "plugins/tables/ogr/LinkEndLayer.h"
#include "plugins/tables/ogr/LinkLayer.h"
#include "plugins/tables/ogr/ReportLayer.h"
#include "plugins/tables/ogr/SiteLayer.h"
#include "plugins/tables/ogr/TableExcerpt.h"
#include "plugins/tables/roles/Vocabulary.h"

#include <cpl_error.h>
#include <gdal_priv.h>
#include <ogr_spatialref.h>

#include <filesystem>
#include <future>
#include <memory>
#include <string>
#include <vector>

namespace vlt::driver {

namespace {

class TableDataset final : public GDALDataset
{
public:
    /// @param files  paths of the files that the dataset reads
    TableDataset(const TableSource &source, std::vector<std::string> files)
        : m_source(source)
        , m_files(std::move(files))
    {
        if (std::holds_alternative<SiteLayout>(source.facts().layout)) {
            m_layers.push_back(std::make_unique<SiteLayer>(source));
            return;
        }
        if (source.file->options().isOverview) {
            LinkLayer::addRoles(m_roles, source.facts());
            return;
        }
        m_layers.push_back(std::make_unique<LinkLayer>(source));
        m_layers.push_back(std::make_unique<LinkEndLayer>(source));
    }

    int GetLayerCount() override { return static_cast<int>(m_layers.size()); }
    OGRLayer *GetLayer(int index) override
    {
        return index >= 0 && index < GetLayerCount()
                   ? m_layers[static_cast<std::size_t>(index)].get()
                   : nullptr;
    }

    /// Also the statements of contract/TableReport.h.
    OGRLayer *ExecuteSQL(const char *statement, OGRGeometry *filter, const char *dialect) override
    {
        OGRLayer *layer = nullptr;
        guarded(GetDescription(), [&] {
            if (EQUAL(statement, contract::report::Statement))
                layer = new FatesLayer(m_source);
            else if (EQUAL(statement, contract::report::RejectsStatement))
                layer = new RejectsLayer(m_source);
            else
                layer = GDALDataset::ExecuteSQL(statement, filter, dialect);
        });
        return layer;
    }

    char **GetFileList() override
    {
        CPLStringList list;
        for (const std::string &file : m_files)
            list.AddString(file.c_str());
        return list.StealList();
    }

    char **GetMetadata(const char *domain) override
    {
        if (domain && EQUAL(domain, contract::metadata::RolesDomain))
            return m_roles.List();
        if (!domain || !EQUAL(domain, contract::metadata::ExcerptDomain))
            return GDALDataset::GetMetadata(domain);
        if (m_excerpt.empty())
            readExcerpt();
        return m_excerpt.List();
    }

    char **GetMetadataDomainList() override
    {
        return BuildMetadataDomainList(GDALDataset::GetMetadataDomainList(), FALSE,
                                       contract::metadata::ExcerptDomain, nullptr);
    }

private:
    void readExcerpt()
    {
        guarded(m_files.front().c_str(),
                [this] { m_excerpt.AddString(tableExcerpt(*m_source.file).c_str()); });
    }

    TableSource m_source;
    CPLStringList m_excerpt;
    CPLStringList m_roles; ///< of an overview of links
    std::vector<std::string> m_files;
    std::vector<std::unique_ptr<TableLayer>> m_layers;
};

/// The delimiter with a name; 0 for any other word, which means that the driver finds the
/// delimiter.
char delimiterOf(const std::string &word)
{
    constexpr std::pair<const char *, char> Words[] = {
        {"COMMA", ','}, {"SEMICOLON", ';'}, {"TAB", '\t'}, {"BAR", '|'}};
    for (const auto &[name, delimiter] : Words) {
        if (EQUAL(word.c_str(), name))
            return delimiter;
    }
    return 0;
}

/// An open option, else the option in the connection string, with which a layer stores the choice
/// of its author.
std::string either(const GDALOpenInfo &info, const contract::ConnectionString &connection,
                   const char *option, const char *key)
{
    const char *value = CSLFetchNameValue(info.papszOpenOptions, option);
    return value && *value ? value : connection.option(key);
}

/// Refuses the names of GDAL's virtual file systems, because tables are local files.
void refuseRemote(const std::string &path)
{
    if (path.empty())
        throw RefusedFile(Refusal::CannotRead, "MESS_TAB_NO_FILE_NAME");
    if (path.starts_with("/vsi") || path.find("://") != std::string::npos)
        throw RefusedFile(Refusal::CannotRead, "MESS_TAB_NOT_LOCAL");
}

/// The options for reading the table.
TableOptions optionsOf(const GDALOpenInfo &info, const contract::ConnectionString &connection)
{
    const auto option = [&](const char *name, const char *key) {
        return either(info, connection, name, key);
    };
    TableOptions options;
    options.kind = connection.kind;
    options.mapping =
        readMappingFile(connection.path, options.kind, option("COLUMNS", contract::query::Columns));
    const contract::ColumnMapping &mapping = options.mapping.mapping;
    options.sheet = option("SHEET", contract::query::Sheet);
    options.encoding = option("ENCODING", contract::query::Encoding);
    options.isOverview =
        CSLFetchBoolean(info.papszOpenOptions, contract::metadata::OverviewOption, FALSE);
    options.textOnly = EQUAL(CSLFetchNameValueDef(info.papszOpenOptions, "TYPES", ""), "TEXT");
    const std::string axes = option("AXES", contract::query::Axes);
    options.swapsAxes =
        axes.empty() ? mapping.swapsAxes : EQUAL(axes.c_str(), contract::query::SwappedAxes);
    options.delimiter = delimiterOf(option("DELIMITER", contract::query::Delimiter));
    const bool isLinks = options.kind == contract::TableKind::Links;
    std::string second = isLinks ? option("SITES", contract::query::EndSites)
                                 : option("SECTORS", contract::query::Sectors);
    if (options.isOverview)
        return options;
    if (second.empty())
        second = isLinks ? mapping.sites : mapping.sectors;
    if (!second.empty()) {
        refuseRemote(second);
        options.second = std::filesystem::path(connection.path).parent_path() / second;
    }
    return options;
}

StatedSystems systemsOf(const GDALOpenInfo &info, const contract::ConnectionString &connection)
{
    return {connection.option(contract::query::SourceSystem),
            connection.option(contract::query::TargetSystem),
            either(info, connection, "EXTENT", contract::query::Extent)};
}

int identify(GDALOpenInfo *info)
{
    return contract::connectionKind(info->pszFilename).has_value();
}

void report(CPLErrorNum number, const std::string &path, const std::string &reason)
{
    const std::string where = path.empty() ? std::string() : path + ": ";
    CPLError(CE_Failure, number, "%s%s", where.c_str(), reason.c_str());
}

/// Reads the vocabulary beside opening the database of systems, at the first table of a process:
/// each takes milliseconds, and every table needs both.
void prepare()
{
    static const bool isPrepared = [] {
        const auto words = std::async(std::launch::async, [] {
            try {
                installedVocabulary();
            } catch (const RefusedFile &) { // the table reports it
            }
        });
        OGRSpatialReference().importFromEPSG(4326);
        return true;
    }();
    (void)isPrepared;
}

GDALDataset *open(GDALOpenInfo *info)
{
    if (!identify(info))
        return nullptr;
    const auto connection = contract::parseConnection(info->pszFilename);
    if (info->eAccess == GA_Update) // no error: programs try this before they open for reading
        return nullptr;
    try {
        refuseRemote(connection->path);
        prepare();
        TableSource source;
        const TableOptions options = optionsOf(*info, *connection);
        source.file = TableFile::open(connection->path, options);
        source.systems = std::make_shared<TableSystems>(source.facts().declaration(),
                                                        systemsOf(*info, *connection));
        source.warnings = std::make_shared<RowWarnings>();
        source.survey = std::make_shared<std::optional<TableSurvey>>();
        std::vector<std::string> files{connection->path};
        if (!options.second.empty())
            files.push_back(options.second);
        if (!options.mapping.path.empty())
            files.push_back(options.mapping.path);
        auto dataset = std::make_unique<TableDataset>(source, std::move(files));
        dataset->SetDescription(info->pszFilename);
        return dataset.release();
    } catch (const RefusedFile &refused) {
        report(CPLE_OpenFailed, connection->path, refused.what());
    } catch (const std::bad_alloc &) {
        report(CPLE_OutOfMemory, connection->path, contract::formatted("MESS_TAB_OUT_OF_MEMORY"));
    }
    return nullptr;
}

constexpr char OpenOptions[] = "<OpenOptionList>"
                               "<Option name='SHEET' type='string' description='Sheet of a "
                               "workbook to read; by default the one whose header "
                               "names sites or links'/>"
                               "<Option name='ENCODING' type='string' description='Encoding of a "
                               "text file, such as CP1250; by default found from "
                               "its bytes'/>"
                               "<Option name='DELIMITER' type='string-select' description='What "
                               "separates the columns of a text file' "
                               "default='AUTO'>"
                               "<Value>AUTO</Value><Value>COMMA</Value><Value>SEMICOLON</"
                               "Value><Value>TAB</Value><Value>BAR</Value></Option>"
                               "<Option name='AXES' type='string-select' description='Whether the "
                               "columns of x and y are exchanged' default='AUTO'>"
                               "<Value>AUTO</Value><Value>SWAPPED</Value></Option>"
                               "<Option name='EXTENT' type='string' description='Area of the "
                               "project: west,south,east,north in degrees; sites outside it are "
                               "reported'/>"
                               "<Option name='SECTORS' type='string' description='File with the "
                               "transmitters of a table of sites, relative to its folder'/>"
                               "<Option name='SITES' type='string' description='File with the "
                               "sites at the ends of a table of links, relative to its folder'/>"
                               "<Option name='COLUMNS' type='string' description='Mapping file of "
                               "the columns, relative to the folder of the table; by default the "
                               "one beside it; none to read without'/>"
                               "<Option name='OVERVIEW' type='boolean' description='Whether a "
                               "table is opened although it has no header or no positions of "
                               "links; links then have no layers, but an excerpt and roles' "
                               "default='NO'/>"
                               "<Option name='TYPES' type='string-select' description='Whether "
                               "columns of numbers become numeric fields' "
                               "default='AUTO'><Value>AUTO</Value><Value>TEXT</Value></Option>"
                               "</OpenOptionList>";

} // namespace

} // namespace vlt::driver

// NOLINTNEXTLINE(readability-identifier-naming): the loader derives this name from the file name
extern "C" CPL_DLL void RegisterOGRVltTables();

void RegisterOGRVltTables()
{
    constexpr auto &Name = vlt::contract::TableDriver;
    if (!GDAL_CHECK_VERSION(Name) || GDALGetDriverByName(Name))
        return;
    auto *driver = new GDALDriver();
    driver->SetDescription(Name);
    driver->SetMetadataItem(GDAL_DMD_LONGNAME,
                            "Tables of telecom sites (site:) and microwave links (link:) in CSV, "
                            "XLSX, XLS and SpreadsheetML 2003");
    driver->SetMetadataItem(GDAL_DCAP_VECTOR, "YES");
    driver->SetMetadataItem(GDAL_DCAP_OPEN, "YES");
    // the library can store only one prefix
    driver->SetMetadataItem(
        GDAL_DMD_CONNECTION_PREFIX,
        vlt::contract::connectionPrefix(vlt::contract::TableKind::Sites).data());
    driver->SetMetadataItem(GDAL_DMD_EXTENSIONS, "csv xlsx xls xml");
    driver->SetMetadataItem(GDAL_DMD_HELPTOPIC, "docs/tables.md");
    driver->SetMetadataItem(GDAL_DMD_OPENOPTIONLIST, vlt::driver::OpenOptions);
    driver->SetMetadataItem(GDAL_DMD_SUPPORTED_SQL_DIALECTS, "OGRSQL SQLITE");
    driver->pfnIdentify = vlt::driver::identify;
    driver->pfnOpen = vlt::driver::open;
    GetGDALDriverManager()->RegisterDriver(driver);
}
