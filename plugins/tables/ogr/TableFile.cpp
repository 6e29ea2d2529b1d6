#include "plugins/tables/ogr/TableFile.h"

#include "contract/TableTexts.h"
#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/formats/OpenWorkbook.h"
#include "plugins/tables/ogr/FieldCells.h"
#include "plugins/tables/ogr/LinkJoin.h"
#include "plugins/tables/ogr/SectorJoin.h"
#include "plugins/tables/ogr/ZoneSurvey.h"
#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/NameList.h"
#include "plugins/tables/sites/PositionCorrections.h"
#include "plugins/tables/sites/SectorTable.h"
#include "plugins/tables/table/SheetChoice.h"

#include <limits>
#include <list>
#include <mutex>

namespace vlt::driver {

namespace {

constexpr std::size_t TablesRemembered = 16;

struct Remembered
{
    std::string path;
    FileIdentity identity;
    FileIdentity second; ///< of the file that completes the table
    TableOptions options;
    std::shared_ptr<const TableFacts> facts;
};

/// The properties of recently opened tables, newest first.
class Memory
{
public:
    std::shared_ptr<const TableFacts> find(const std::string &path, const FileIdentity &identity,
                                           const FileIdentity &second, const TableOptions &options)
    {
        const std::lock_guard lock(m_mutex);
        for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
            if (entry->path == path && entry->identity == identity && entry->second == second &&
                entry->options == options) {
                m_entries.splice(m_entries.begin(), m_entries, entry);
                return entry->facts;
            }
        }
        return nullptr;
    }

    void add(Remembered entry)
    {
        const std::lock_guard lock(m_mutex);
        m_entries.remove_if([&](const Remembered &old) {
            return old.path == entry.path && old.options == entry.options;
        });
        m_entries.push_front(std::move(entry));
        if (m_entries.size() > TablesRemembered)
            m_entries.pop_back();
    }

private:
    std::mutex m_mutex;
    std::list<Remembered> m_entries;
};

Memory &memory()
{
    static Memory theMemory;
    return theMemory;
}

std::string fileName(const std::string &path)
{
    return path.substr(path.rfind('/') + 1);
}

std::string baseName(const std::string &path)
{
    const std::string file = fileName(path);
    const std::size_t dot = file.rfind('.');
    return dot == std::string::npos || dot == 0 ? file : file.substr(0, dot);
}

/// The columns of the positions in a row: that of a site, or those of both ends of a link.
std::vector<PointFields *> pointsOf(TableFacts &facts)
{
    if (SiteLayout *sites = std::get_if<SiteLayout>(&facts.layout))
        return {&sites->point};
    LinkLayout &links = std::get<LinkLayout>(facts.layout);
    return {&links.ends[0].point, &links.ends[1].point};
}

/// Calls a function that reads the second file; its refusal names that file.
template<typename Function, typename... Values>
auto usingSecond(const std::string &path, Function function, const Values &...values)
{
    try {
        return function(values...);
    } catch (const RefusedFile &refused) {
        throw RefusedFile(refused.reason(), "MESS_TAB_SECOND_FILE",
                          {fileName(path), refused.what()});
    }
}

TableHints hintsOf(const TableOptions &options, const Vocabulary &vocabulary)
{
    TableHints hints = {&vocabulary, options.kind, options.sheet, options.textOnly};
    if (options.kind == contract::TableKind::Links) {
        hints.suitability = [&vocabulary](const TableProfile &start) {
            return linkSuitability(start, vocabulary);
        };
        hints.highestSuitability = HighestLinkSuitability;
    } else {
        hints.suitability = [&vocabulary](const TableProfile &start) {
            return holdsLinks(start, vocabulary) ? 0 : siteSuitability(start, vocabulary);
        };
        hints.highestSuitability = HighestSiteSuitability;
    }
    return hints;
}

} // namespace

std::shared_ptr<TableFile> TableFile::open(const std::string &path, const TableOptions &options)
{
    std::shared_ptr<const InputFile> file = InputFile::open(path);
    std::shared_ptr<TableFile> table(new TableFile(file, path, options));
    FileIdentity second;
    if (!options.second.empty()) {
        table->m_secondFile = usingSecond(options.second, InputFile::open, options.second);
        second = table->m_secondFile->identity();
    }
    table->m_facts = memory().find(path, file->identity(), second, options);
    if (table->m_facts)
        return table;
    std::vector<RowProblem> problems;
    const Table read = table->readByMapping(problems);
    auto facts = std::make_shared<TableFacts>(TableFacts{*read.profile, {}, {}});
    facts->mappingProblems = std::move(problems);
    for (Field &field : facts->table.fields) // the samples are not needed any more
        field.samples = {};
    facts->table.sampledColumns = {};
    table->m_sheet = read.sheet;
    table->m_facts = facts;
    table->recognise(*facts, *read.profile);
    table->reportOtherSheets(*facts);
    memory().add({path, file->identity(), second, options, facts});
    return table;
}

/// Reports the sheets that hold tables like the one that was chosen: one of each region.
void TableFile::reportOtherSheets(TableFacts &facts) const
{
    if (!facts.table.encoding.name.empty() || !m_options.sheet.empty() ||
        !m_options.mapping.mapping.sheet.empty() || facts.table.header.rows.empty())
        return;
    TableHints hints = {&installedVocabulary().words, m_options.kind, {}, m_options.textOnly};
    hints.otherThan = facts.table.sheet;
    NameList names;
    for (const std::string &name : sheetsWithColumns(*openFile(), facts.table.header, hints))
        names.add(name);
    if (!names.text().empty())
        facts.joinProblems.add(
            {0,
             {},
             false,
             contract::formatted("MESS_TAB_OTHER_SHEETS", {facts.table.sheet, names.text()})});
}

/// Reads the sheet with the header that the mapping states. If the table lacks them, they are
/// found.
Table TableFile::readByMapping(std::vector<RowProblem> &problems) const
{
    const contract::ColumnMapping &mapping = m_options.mapping.mapping;
    if (!m_options.mapping.fault.empty())
        problems.push_back({0, {}, false, m_options.mapping.fault});
    TableHints hints = hintsOf(m_options, installedVocabulary().words);
    hints.headerRows = mapping.headerRows;
    const auto readBy = [&](TableHints of) {
        try {
            m_workbook = openFile();
            return readTable(*m_workbook, of);
        } catch (const RefusedFile &refused) { // perhaps no row is left below the header
            const bool mayDoWithout = m_options.isOverview && refused.reason() == Refusal::NoHeader;
            if (!of.headerRows && !mayDoWithout)
                throw;
            of.headerRows = of.headerRows ? std::nullopt : std::optional(HeaderRowNumbers());
        }
        return readTable(*openFile(), of);
    };
    const auto read = [&] {
        if (!hints.sheet.empty() || mapping.sheet.empty())
            return readBy(hints);
        TableHints ofSheet = hints;
        ofSheet.sheet = mapping.sheet;
        try {
            return readBy(ofSheet);
        } catch (const RefusedFile &refused) {
            if (refused.reason() != Refusal::BadOption)
                throw;
        }
        problems.push_back(
            {0,
             {},
             false,
             contract::formatted("MESS_TAB_MAPPING_SHEET",
                                 {fileName(m_options.mapping.path), mapping.sheet})});
        return readBy(hints);
    };
    Table table = read();
    const auto &header = table.profile->header.rows;
    const auto isAt = [](const HeaderRow &row, int64_t number) { return row.number == number; };
    if (mapping.headerRows && !std::equal(header.begin(), header.end(), mapping.headerRows->begin(),
                                          mapping.headerRows->end(), isAt))
        problems.push_back(
            {0,
             {},
             false,
             contract::formatted("MESS_TAB_MAPPING_HEADER", {fileName(m_options.mapping.path)})});
    return table;
}

/// Finds the columns, as far as the mapping does not state them.
void TableFile::recognise(TableFacts &facts, const TableProfile &profile)
{
    const contract::ColumnMapping &mapping = m_options.mapping.mapping;
    const StatedRoles stated = findStatedRoles(
        mapping, m_options.kind, profile, fileName(m_options.mapping.path), facts.mappingProblems);
    const bool links = m_options.kind == contract::TableKind::Links;
    if (links)
        readLinks(facts, profile, stated);
    else
        facts.layout = recogniseSiteLayout(profile, installedVocabulary().words, stated);
    surveyZones(pointsOf(facts), facts.declaration(), facts.table, [this] { return rows(); });
    if (m_options.swapsAxes)
        for (PointFields *point : pointsOf(facts))
            point->swapAxes();
    if (!mapping.corrections.empty()) {
        const auto corrections = std::make_shared<PositionCorrections>(mapping.corrections);
        for (PointFields *point : pointsOf(facts))
            point->corrections = corrections;
    }
    if (!mapping.sourceSrs.empty())
        facts.declaration().epsg = mapping.sourceSrs.substr(mapping.sourceSrs.find(':') + 1);
    if (!links)
        readSites(facts);
    else if (!facts.endSites)
        findLengthUnit(profile, std::get<LinkLayout>(facts.layout));
}

/// Finds the columns of links. If their ends are only named, the positions come from the second
/// file, or from another sheet of the workbook.
void TableFile::readLinks(TableFacts &facts, const TableProfile &profile, const StatedRoles &stated)
{
    const Vocabulary &vocabulary = installedVocabulary().words;
    if (m_options.isOverview) {
        facts.layout = incompleteLinkLayout(profile, vocabulary, stated);
        return;
    }
    const bool isComplete = holdsLinks(profile, vocabulary, stated);
    if (m_secondFile && isComplete)
        facts.joinProblems.add(
            {0,
             {},
             false,
             contract::formatted("MESS_TAB_END_SITES_NOT_USED", {fileName(m_options.second)})});
    const std::optional<SecondTable> second = isComplete ? std::nullopt : find(endSiteSuitability);
    std::optional<EndSites> sites = second ? readEndSites(*second) : std::nullopt;
    if (m_secondFile && !isComplete && !sites)
        refuseSecond("MESS_TAB_NO_NAMED_SITES");
    const auto named = sites ? recogniseNamedLinks(profile, vocabulary, *sites->directory,
                                                   sites->declaration, stated)
                             : std::nullopt;
    if (named) {
        facts.layout = *named;
        facts.endSites = sites->directory;
        facts.secondRoles = std::move(sites->roles);
        facts.joinProblems = std::move(sites->problems);
    } else if (m_secondFile && !isComplete)
        refuseSecond("MESS_TAB_NO_END_SITES");
    else
        facts.layout = recogniseLinkLayout(profile, vocabulary, stated);
}

/// Reads all rows if the number of transmitters or the rows of a site are not known before.
void TableFile::readSites(TableFacts &facts)
{
    SiteLayout &layout = std::get<SiteLayout>(facts.layout);
    const SiteRoles &roles = layout.roles;
    if (joinTransmitters(facts))
        return;
    std::size_t transmitters = roles.transmitters.size();
    if (roles.shape == SiteShape::Lists || roles.shape == SiteShape::Tall) {
        const TransmitterReader reader(facts.table, roles, installedVocabulary().words);
        const PositionReader positions(facts.table, layout.point, layout.unit);
        auto index = std::make_shared<SiteIndex>(facts.table, roles, layout.unit,
                                                 installedVocabulary().words);
        FieldCells cells(facts.table);
        std::vector<RowProblem> problems; // they are reported when the rows are read again
        const std::unique_ptr<DataRows> walk = rows();
        while (walk->advance()) {
            problems.clear();
            cells.take(walk->cells(), problems);
            const int64_t row = walk->rowNumber();
            const auto found = reader.read(row, cells.cells(), problems);
            if (roles.shape == SiteShape::Lists)
                transmitters = std::max(transmitters, found.size());
            else
                index->add(row, cells.cells(), positions.read(row, cells.cells(), problems), found);
        }
        index->finish();
        if (roles.shape == SiteShape::Tall) {
            transmitters = index->transmitterRange().second;
            facts.siteIndex = index;
        }
    }
    layout.maxTransmitters = transmitters;
    if (layout.isLinkEnd) // readers are to see that this is no table of sites
        return;
    layout.offered = offeredFields(facts.table, roles, layout.point, layout.unit,
                                   roles.transmitters, transmitters);
}

/// Takes the transmitters from the second file, or from another sheet of the workbook. False if
/// there is no such sheet.
bool TableFile::joinTransmitters(TableFacts &facts)
{
    SiteLayout &layout = std::get<SiteLayout>(facts.layout);
    const bool isComplete = hasKnownTransmitters(facts.table);
    if (m_secondFile && isComplete)
        facts.joinProblems.add(
            {0,
             {},
             false,
             contract::formatted("MESS_TAB_SECTORS_NOT_USED", {fileName(m_options.second)})});
    const bool isBare = layout.point.found() && layout.roles.transmitters.empty();
    if (isComplete || layout.isLinkEnd || (!m_secondFile && !isBare))
        return false;
    const std::optional<SecondTable> sectors = find(sectorSuitability);
    if (!sectors)
        return false;
    auto joined = joinSectors(
        facts.table, layout, [this] { return rows(); }, *sectors, m_secondFile != nullptr);
    if (!joined && m_secondFile)
        refuseSecond("MESS_TAB_NO_SECTORS");
    if (!joined)
        return false;
    layout.roles.transmitters.clear();
    layout.roles.shape = SiteShape::Joined;
    facts.siteIndex = joined->index;
    layout.maxTransmitters = facts.siteIndex->transmitterRange().second;
    facts.secondRoles = std::move(joined->roles);
    facts.joinProblems = std::move(joined->problems);
    facts.joinFields = joined->fields;
    layout.offered = offeredFields(facts.table, layout.roles, layout.point, layout.unit,
                                   joined->transmitters, layout.maxTransmitters);
    return true;
}

/// The other sheet of the workbook that suits best; nothing if none does.
std::optional<SecondTable> TableFile::otherSheet(Suitability suitability) const
{
    if (!m_facts->table.encoding.name.empty()) // a text
        return std::nullopt;
    const Vocabulary &vocabulary = installedVocabulary().words;
    TableHints hints = {&vocabulary, contract::TableKind::Sites, {}, m_options.textOnly};
    hints.otherThan = m_facts->table.sheet;
    hints.mustSuit = true;
    hints.suitability = [&](const TableProfile &start) { return suitability(start, vocabulary); };
    hints.highestSuitability = std::numeric_limits<int>::max();
    try {
        return SecondTable(readTable(*openFile(), hints));
    } catch (const RefusedFile &) { // there is none, or it is damaged
        return std::nullopt;
    }
}

/// The table in the second file, or else in another sheet.
std::optional<SecondTable> TableFile::find(Suitability suitability) const
{
    return m_secondFile ? std::optional(secondFile(suitability)) : otherSheet(suitability);
}

std::optional<SecondTable> TableFile::secondTable() const
{
    if (m_facts->endSites)
        return find(endSiteSuitability);
    return m_facts->joinFields.sector >= 0 ? find(sectorSuitability) : std::nullopt;
}

void TableFile::refuseSecond(contract::TableTextId why) const
{
    throw RefusedFile(Refusal::BadOption, "MESS_TAB_SECOND_FILE",
                      {fileName(m_options.second), contract::formatted(why)});
}

/// The table in the second file. Throws RefusedFile.
SecondTable TableFile::secondFile(Suitability suitability) const
{
    const Vocabulary &vocabulary = installedVocabulary().words;
    TableHints hints = {&vocabulary, contract::TableKind::Sites, {}, m_options.textOnly};
    hints.suitability = [&](const TableProfile &start) { return suitability(start, vocabulary); };
    hints.highestSuitability = std::numeric_limits<int>::max();
    return usingSecond(m_options.second, [&] {
        const auto workbook = openWorkbook(m_secondFile, baseName(m_options.second), {});
        return SecondTable(readTable(*workbook, hints), fileName(m_options.second));
    });
}

std::unique_ptr<Workbook> TableFile::openFile() const
{
    if (auto again = m_workbook ? m_workbook->fromStart() : nullptr)
        return again;
    // An encoding that was found by reading the whole file is not searched again.
    const bool known = m_options.encoding.empty() && m_facts;
    return openWorkbook(
        m_file, baseName(m_path),
        {known ? m_facts->table.encoding.name : m_options.encoding, m_options.delimiter});
}

const Sheet &TableFile::sheet()
{
    if (!m_sheet) {
        const std::unique_ptr<Workbook> workbook = openFile();
        m_sheet = findSheet(*workbook, m_facts->table.sheet);
    }
    return *m_sheet;
}

char TableFile::delimiter()
{
    return sheet().delimiter();
}

std::unique_ptr<DataRows> TableFile::rows()
{
    const Sheet &read = sheet();
    if (!m_stringsPrepared)
        read.prepareStrings(m_facts->table.rowCount);
    m_stringsPrepared = true;
    return std::make_unique<DataRows>(
        read, std::shared_ptr<const TableProfile>(m_facts, &m_facts->table));
}

} // namespace vlt::driver
