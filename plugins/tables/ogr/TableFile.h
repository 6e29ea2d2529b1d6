#pragma once

#include "contract/TableTexts.h"
#include "plugins/tables/bytes/InputFile.h"
#include "plugins/tables/links/LinkLayout.h"
#include "plugins/tables/ogr/MappingFile.h"
#include "plugins/tables/ogr/ProblemList.h"
#include "plugins/tables/ogr/SecondTable.h"
#include "plugins/tables/ogr/SectorJoin.h"
#include "plugins/tables/sites/SiteIndex.h"
#include "plugins/tables/sites/SiteLayout.h"
#include "plugins/tables/table/Table.h"

#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace vlt::driver {

/// What the caller states about a table file; empty members are found automatically.
struct TableOptions
{
    contract::TableKind kind = contract::TableKind::Sites;
    std::string sheet;
    std::string encoding;
    char delimiter = 0;
    bool textOnly = false;
    bool swapsAxes = false; ///< the columns of x hold y and the reverse
    /// A table without a header, or without the positions of links, is read as far as it goes.
    bool isOverview = false;
    /// Path of a file that completes the table: the transmitters of sites, the sites of links.
    std::string second;
    MappingFile mapping; ///< the members above go before it

    bool operator==(const TableOptions &) const = default;
};

/// All properties of a table. They never change, so that datasets and threads can share them.
struct TableFacts
{
    TableProfile table;
    std::variant<SiteLayout, LinkLayout> layout;
    /// The sites of a table with a row per transmitter, or with transmitters in another table;
    /// else null.
    std::shared_ptr<const SiteIndex> siteIndex;
    /// The sites at the ends of links that only name them; else null.
    std::shared_ptr<const SiteDirectory> endSites = {};
    ProblemList joinProblems = {};               ///< of the other table
    JoinFields joinFields = {};                  ///< if the transmitters stand in another table
    std::optional<SecondRoles> secondRoles = {}; ///< of the other table
    std::vector<RowProblem> mappingProblems = {};

    const SiteLayout &sites() const { return std::get<SiteLayout>(layout); }
    const LinkLayout &links() const { return std::get<LinkLayout>(layout); }
    /// The columns of the position, of links those of end A.
    const PointFields &point() const
    {
        const auto *sites = std::get_if<SiteLayout>(&layout);
        return sites ? sites->point : std::get<LinkLayout>(layout).ends[0].point;
    }
    const TableDeclaration &declaration() const
    {
        return std::visit([](const TableDeclaration &of) -> const TableDeclaration & { return of; },
                          layout);
    }
    TableDeclaration &declaration()
    {
        return std::visit([](TableDeclaration &of) -> TableDeclaration & { return of; }, layout);
    }
};

/// A table in a file.
class TableFile
{
public:
    /// Opens a table. An unchanged file that was open recently is not read again. Throws
    /// RefusedFile.
    static std::shared_ptr<TableFile> open(const std::string &path, const TableOptions &options);

    const std::string &path() const { return m_path; }
    const TableOptions &options() const { return m_options; }
    const TableFacts &facts() const { return *m_facts; }
    /// Starts reading the rows from the first one.
    std::unique_ptr<DataRows> rows();
    /// The tables of the file from the first one.
    std::unique_ptr<Workbook> openFile() const;
    /// The table that completes this one; nothing if none does. Throws RefusedFile.
    std::optional<SecondTable> secondTable() const;
    /// What separates the columns; 0 if the file is no text.
    char delimiter();

private:
    using Suitability = int(const TableProfile &start, const Vocabulary &vocabulary);

    TableFile(std::shared_ptr<const InputFile> file, std::string path, TableOptions options)
        : m_file(std::move(file))
        , m_path(std::move(path))
        , m_options(std::move(options))
    {}
    Table readByMapping(std::vector<RowProblem> &problems) const;
    void recognise(TableFacts &facts, const TableProfile &profile);
    void readSites(TableFacts &facts);
    void readLinks(TableFacts &facts, const TableProfile &profile, const StatedRoles &stated);
    bool joinTransmitters(TableFacts &facts);
    void reportOtherSheets(TableFacts &facts) const;
    std::optional<SecondTable> otherSheet(Suitability suitability) const;
    [[noreturn]] void refuseSecond(contract::TableTextId why) const;
    SecondTable secondFile(Suitability suitability) const;
    std::optional<SecondTable> find(Suitability suitability) const;
    const Sheet &sheet();

    std::shared_ptr<const InputFile> m_file;
    std::shared_ptr<const InputFile> m_secondFile; ///< null without one
    std::string m_path;
    TableOptions m_options;
    std::shared_ptr<const TableFacts> m_facts;
    mutable std::unique_ptr<Workbook> m_workbook; ///< null before the file is read
    std::shared_ptr<Sheet> m_sheet;
    bool m_stringsPrepared = false;
};

} // namespace vlt::driver
