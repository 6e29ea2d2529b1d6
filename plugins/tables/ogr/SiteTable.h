#pragma once

#include "bytes/InputFile.h"
#include "sites/SiteLayout.h"
#include "sites/SitePlacer.h"
#include "table/Table.h"

#include <memory>
#include <string>
#include <vector>

namespace vlt::tables {

/// What the caller says about a table file; empty members are found out.
struct TableOptions
{
    std::string sheet;
    std::string encoding;
    char delimiter = 0;
    bool textOnly = false;

    bool operator==(const TableOptions &) const = default;
};

/// What is known about a table of sites. Never changes once made, so that datasets and threads
/// share it.
struct SiteTableFacts
{
    TableProfile table;
    SiteLayout layout;
};

/// A table of sites in a file.
class SiteTable
{
public:
    /// Opens a table; an unchanged file that was open before is known already and is not read
    /// again. Throws RefusedFile.
    static std::shared_ptr<SiteTable> open(const std::string &path, const TableOptions &options);

    const SiteTableFacts &facts() const { return *m_facts; }
    /// A new walk over the rows.
    std::unique_ptr<DataRows> rows();

private:
    SiteTable(std::shared_ptr<const InputFile> file, std::string name, TableOptions options)
        : m_file(std::move(file))
        , m_name(std::move(name))
        , m_options(std::move(options))
    {}
    std::unique_ptr<Workbook> openFile() const;

    std::shared_ptr<const InputFile> m_file;
    std::string m_name;
    TableOptions m_options;
    std::shared_ptr<const SiteTableFacts> m_facts;
    std::shared_ptr<Sheet> m_sheet;
    bool m_stringsPrepared = false;
};

/// The fields of a row by field number, and what is wrong with their values.
class FieldCells
{
public:
    explicit FieldCells(const TableProfile &table);

    /// Takes the cells of a row; values that do not fit the type of their column are null and get a
    /// problem, as do cells behind the last column. Views live as long as the row.
    void take(const Row &row, std::vector<RowProblem> &problems);
    /// The cell of each field, null where it is empty.
    const std::vector<const Cell *> &cells() const { return m_cells; }
    /// The number of a field of numeric type; only where its cell is not null.
    double number(size_t field) const { return m_numbers[field]; }
    bool isNull(size_t field) const { return m_null[field]; }

private:
    const TableProfile *m_table;
    std::vector<int> m_fieldOfColumn;
    std::vector<const Cell *> m_cells;
    std::vector<double> m_numbers;
    std::vector<char> m_null;
};

} // namespace vlt::tables
