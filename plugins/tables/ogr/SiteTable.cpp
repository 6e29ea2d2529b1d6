#include "ogr/SiteTable.h"

#include "cells/OpenWorkbook.h"
#include "tabletexts/TextPatterns.h"

#include <cmath>
#include <list>
#include <mutex>

namespace vlt::tables {

namespace {

constexpr size_t TablesRemembered = 16;

struct Remembered
{
    std::string path;
    FileIdentity identity;
    TableOptions options;
    std::shared_ptr<const SiteTableFacts> facts;
};

/// What was found out about files that were opened lately; the newest first.
class Memory
{
public:
    std::shared_ptr<const SiteTableFacts>
    find(const std::string &path, const FileIdentity &identity, const TableOptions &options)
    {
        const std::lock_guard lock(m_mutex);
        for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry)
            if (entry->path == path && entry->identity == identity && entry->options == options) {
                m_entries.splice(m_entries.begin(), m_entries, entry);
                return entry->facts;
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

std::string baseName(const std::string &path)
{
    const size_t slash = path.rfind('/');
    const std::string file = slash == std::string::npos ? path : path.substr(slash + 1);
    const size_t dot = file.rfind('.');
    return dot == std::string::npos || dot == 0 ? file : file.substr(0, dot);
}

} // namespace

std::shared_ptr<SiteTable> SiteTable::open(const std::string &path, const TableOptions &options)
{
    std::shared_ptr<const InputFile> file = InputFile::open(path);
    std::shared_ptr<SiteTable> table(new SiteTable(file, baseName(path), options));
    table->m_facts = memory().find(path, file->identity(), options);
    if (table->m_facts)
        return table;
    const std::unique_ptr<Workbook> workbook = table->openFile();
    const Table read = readTable(*workbook, {options.sheet, options.textOnly});
    auto facts = std::make_shared<SiteTableFacts>(
        SiteTableFacts{*read.profile, recogniseSiteLayout(*read.profile)});
    for (Field &field : facts->table.fields) // they have told what they had to
        field.samples = {};
    table->m_sheet = read.sheet;
    table->m_facts = facts;
    memory().add({path, file->identity(), options, facts});
    return table;
}

std::unique_ptr<Workbook> SiteTable::openFile() const
{
    // An encoding that only the whole file told is not looked for again.
    const bool known = m_options.encoding.empty() && m_facts;
    return openWorkbook(
        m_file, m_name,
        {known ? m_facts->table.encoding : m_options.encoding, m_options.delimiter});
}

std::unique_ptr<DataRows> SiteTable::rows()
{
    if (!m_sheet) {
        const std::unique_ptr<Workbook> workbook = openFile();
        m_sheet = findSheet(*workbook, m_facts->table.sheet);
    }
    if (!m_stringsPrepared)
        m_sheet->prepareStrings(m_facts->table.rowCount);
    m_stringsPrepared = true;
    return std::make_unique<DataRows>(
        *m_sheet, std::shared_ptr<const TableProfile>(m_facts, &m_facts->table));
}

FieldCells::FieldCells(const TableProfile &table)
    : m_table(&table)
    , m_fieldOfColumn(static_cast<size_t>(table.lastColumn) + 1, -1)
    , m_cells(table.fields.size())
    , m_numbers(table.fields.size())
    , m_null(table.fields.size())
{
    for (size_t field = 0; field < table.fields.size(); ++field)
        m_fieldOfColumn[static_cast<size_t>(table.fields[field].column)] = static_cast<int>(field);
}

void FieldCells::take(const Row &row, std::vector<RowProblem> &problems)
{
    std::fill(m_cells.begin(), m_cells.end(), nullptr);
    for (const Cell &cell : row.cells) {
        if (cell.column > m_table->lastColumn) {
            problems.push_back(
                {row.number,
                 {},
                 false,
                 tabletexts::formatted("MESS_TAB_BEHIND_LAST",
                                       {cellText(cell), std::to_string(cell.column + 1)})});
            break;
        }
        const int field = m_fieldOfColumn[static_cast<size_t>(cell.column)];
        if (field < 0)
            continue;
        const auto at = static_cast<size_t>(field);
        const Field &of = m_table->fields[at];
        m_cells[at] = &cell;
        m_null[at] = 0;
        if (of.type == FieldType::Text)
            continue;
        const std::string_view text = trimmed(cell.text);
        if (cell.kind == Cell::Kind::Number && text.empty())
            m_numbers[at] = cell.number;
        else if (const auto number = parseNumber(text, of.mark))
            m_numbers[at] = *number;
        else if (const auto plain =
                     of.mark == DecimalMark::Comma ? parseNumber(text) : std::nullopt)
            m_numbers[at] = *plain;
        else {
            m_null[at] = 1;
            if (cell.kind != Cell::Kind::Error && !isMissingWord(text))
                problems.push_back({row.number, of.name, false,
                                    tabletexts::formatted("MESS_TAB_LOST_VALUE", {text})});
        }
    }
}

} // namespace vlt::tables
