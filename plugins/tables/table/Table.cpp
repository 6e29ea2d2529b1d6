#include "plugins/tables/table/Table.h"

#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/table/SheetChoice.h"
#include "plugins/tables/table/TableScan.h"

#include <algorithm>
#include <limits>
#include <map>

namespace vlt::driver {

namespace {

constexpr uint64_t RowsOfStart = 200; ///< by which a sheet is chosen
/// A column without a name after the last named one counts if this share of the rows has a value in
/// it.
constexpr double FullShare = 0.9;

/// The name of a column as a field. Some exports mark mandatory columns by an asterisk at the end,
/// which the SQL of the library would expand to all columns, endlessly because that column is one
/// of them.
std::string fieldName(const Header &header, int column)
{
    const auto named = header.names.find(column);
    std::string name = named != header.names.end() ? named->second : std::string();
    name.erase(name.find_last_not_of("* ") + 1);
    return name.empty() ? "Column " + std::to_string(column + 1) : name;
}

/// `taken` holds the names so far, each with the number to try next for an equal one.
std::string uniqueName(const std::string &name, std::map<std::string, int> &taken)
{
    const auto [first, isNew] = taken.emplace(name, 2);
    if (isNew)
        return name;
    for (;;) {
        std::string numbered = name + '_' + std::to_string(first->second++);
        if (taken.emplace(numbered, 2).second)
            return numbered;
    }
}

void makeFields(TableProfile &profile, const TableSample &sample, const TableHints &hints)
{
    std::map<std::string, int> taken;
    const int lastNamed = profile.header.names.rbegin()->first;
    const int width = std::max(lastNamed + 1, static_cast<int>(sample.columns.size()));
    for (int column = 0; column < width; ++column) {
        const auto named = profile.header.names.find(column);
        const bool hasSample = static_cast<std::size_t>(column) < sample.columns.size();
        const ColumnStatistics statistics =
            hasSample ? sample.columns[static_cast<std::size_t>(column)] : ColumnStatistics();
        const bool within = column < lastNamed && statistics.filled() > 0;
        const bool common = static_cast<double>(statistics.filled()) >=
                                FullShare * static_cast<double>(sample.rows) &&
                            statistics.filled() > 1;
        if (named == profile.header.names.end() && !within && !common)
            continue;
        Field field;
        field.name = uniqueName(fieldName(profile.header, column), taken);
        field.column = column;
        if (const auto unit = profile.header.units.find(column); unit != profile.header.units.end())
            field.unit = unit->second;
        field.mark = statistics.mark();
        field.type = hints.textOnly ? FieldType::Text : statistics.type(profile.allRowsSampled);
        field.samples = statistics.samples();
        profile.fields.push_back(std::move(field));
    }
    profile.lastColumn = profile.fields.back().column;
    profile.sampledColumns = sample.sampledColumns(profile.fields);
}

/// The rows of a sheet, read once.
struct ReadSheet
{
    ReadSheet(const Sheet &read, const Header &header, const Vocabulary &vocabulary,
              uint64_t maxRows = std::numeric_limits<uint64_t>::max())
        : sheet(&read)
    {
        profile->sheet = read.name();
        profile->header = header;
        profile->lastColumn = header.names.rbegin()->first;
        scanTable(read, profile, vocabulary, sample, maxRows);
    }

    const Sheet *sheet;
    std::shared_ptr<TableProfile> profile = std::make_shared<TableProfile>();
    TableSample sample;
};

} // namespace

std::string TableProfile::nameInHeader(int field) const
{
    const auto named = header.names.find(fields[static_cast<std::size_t>(field)].column);
    return named == header.names.end() ? std::string() : named->second;
}

std::string TableProfile::nameInGroup(int field) const
{
    if (header.rows.empty())
        return nameInHeader(field);
    const std::map<int, std::string> &lowest = header.rows.back().texts;
    const auto named = lowest.find(fields[static_cast<std::size_t>(field)].column);
    return named == lowest.end() ? nameInHeader(field) : named->second;
}

std::string TableProfile::nameWithUnit(int field) const
{
    const std::string &unit = fields[static_cast<std::size_t>(field)].unit;
    return unit.empty() ? nameInHeader(field) : nameInHeader(field) + ' ' + unit;
}

std::string nameWithUnit(const Field &field)
{
    return field.unit.empty() ? field.name : field.name + ' ' + field.unit;
}

Table readTable(Workbook &workbook, const TableHints &hints)
{
    std::optional<ReadSheet> first;
    ChosenSheet chosen = chooseSheet(workbook, hints, [&](const ChosenSheet &of) {
        try {
            first.emplace(*of.sheet, of.header, *hints.vocabulary);
        } catch (const RefusedFile &) { // the damage matters only if the sheet is chosen
        }
    });
    std::shared_ptr<TableProfile> profile;
    for (bool settled = false; !settled;) {
        const ReadSheet read = first && first->sheet == chosen.sheet.get()
                                   ? std::move(*first)
                                   : ReadSheet(*chosen.sheet, chosen.header, *hints.vocabulary);
        first.reset();
        profile = read.profile;
        settled = chosen.sheet->settleEncoding();
        if (!settled) {
            std::size_t widest = 0;
            chosen.header =
                findHeader(*chosen.sheet, hints.kind, *hints.vocabulary, hints.headerRows, widest)
                    .value_or(chosen.header);
        } else if (profile->rowCount == 0)
            throw RefusedFile(Refusal::Empty, "MESS_TAB_NO_ROW",
                              {std::to_string(profile->header.row)});
        else
            makeFields(*profile, read.sample, hints);
    }
    if (profile->fields.size() < 2)
        throw RefusedFile(Refusal::OneColumn, "MESS_TAB_TABLE_OF_ONE_COLUMN");
    profile->encoding = chosen.sheet->encoding();
    return {chosen.sheet, profile};
}

std::shared_ptr<const TableProfile> readStart(const Sheet &sheet, const Header &header,
                                              const TableHints &hints)
{
    const ReadSheet read(sheet, header, *hints.vocabulary, RowsOfStart);
    makeFields(*read.profile, read.sample, hints);
    return read.profile;
}

std::shared_ptr<Sheet> findSheet(Workbook &workbook, const std::string &name)
{
    while (std::shared_ptr<Sheet> sheet = workbook.nextSheet()) {
        if (sheet->name() == name)
            return sheet;
    }
    throw RefusedFile(Refusal::Malformed, "MESS_TAB_FILE_CHANGED");
}

DataRows::DataRows(const Sheet &sheet, std::shared_ptr<const TableProfile> profile)
    : m_sheet(&sheet)
    , m_profile(std::move(profile))
    , m_rows(sheet.rows())
{}

RowKind DataRows::readKind()
{
    m_parsed = false;
    // Columns without a name become fields only after the rows were counted, so they do not count
    // here.
    const int lastNamed = m_profile->header.names.rbegin()->first;
    const Header &header = m_profile->header;
    const int64_t number = m_rows->rowNumber();
    if (!m_rows->hasContent(lastNamed))
        return RowKind::Nothing;
    if (number <= header.lastRow())
        return RowKind::Head;
    const auto isIn = [number](const std::vector<int64_t> &rows) {
        return std::binary_search(rows.begin(), rows.end(), number);
    };
    if (isIn(m_profile->leftOutRows))
        return isIn(m_profile->totalRows) ? RowKind::Total : RowKind::RepeatedHeader;
    const uint64_t fingerprint = m_rows->fingerprint();
    const auto isRepeated = [&](const HeaderRow &row) {
        return row.fingerprint == fingerprint && repeats(cellsWithTexts(), row);
    };
    return std::any_of(header.rows.begin(), header.rows.end(), isRepeated) ||
                   std::any_of(header.furtherRows.begin(), header.furtherRows.end(), isRepeated)
               ? RowKind::RepeatedHeader
               : RowKind::Data;
}

const Row &DataRows::cellsWithTexts()
{
    m_parsed = m_parsed && !m_leftOut;
    m_rows->leaveOutTexts(nullptr);
    const Row &row = cells();
    m_rows->leaveOutTexts(m_leftOut);
    return row;
}

bool DataRows::advance()
{
    while (m_rows->advance()) {
        const RowKind kind = readKind();
        if (kind == RowKind::Data)
            return true;
        m_repeatedHeaders += kind == RowKind::RepeatedHeader ? 1 : 0;
    }
    return false;
}

RowKind DataRows::advanceToAny()
{
    while (m_rows->advance()) {
        if (const RowKind kind = readKind(); kind != RowKind::Nothing)
            return kind;
    }
    return RowKind::Nothing;
}

bool DataRows::seek(int64_t row)
{
    const std::vector<RowMark> &marks = m_profile->marks;
    const auto behind =
        std::upper_bound(marks.begin(), marks.end(), row,
                         [](int64_t r, const RowMark &mark) { return r < mark.row; });
    std::unique_ptr<RowReader> there;
    if (behind != marks.begin())
        there = m_sheet->rowsFrom(std::prev(behind)->position, std::prev(behind)->row);
    m_rows = there ? std::move(there) : m_sheet->rows();
    while (advance()) {
        if (rowNumber() >= row)
            return true;
    }
    return false;
}

const Row &DataRows::cells()
{
    if (!m_parsed)
        m_rows->cells(m_row);
    m_parsed = true;
    return m_row;
}

} // namespace vlt::driver
