#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::driver {

/// A cell that is not empty. Its text belongs to the row or to the strings of the workbook and is
/// valid until the next row is read.
struct Cell
{
    enum class Kind : uint8_t {
        Text,
        Number,  ///< `text` is its decimal form, or empty if only `number` is known
        Boolean, ///< text TRUE or FALSE
        Date,    ///< text in ISO 8601 form
        Error,   ///< text such as #N/A
    };

    int column = 0; ///< from 0
    Kind kind = Kind::Text;
    std::string_view text;
    double number = 0; ///< value of a Number whose text is empty
};

/// Maximum number of characters of a text: the limit of a cell in a workbook.
constexpr std::size_t MaxTextSize = 32767;
/// Maximum number of bytes of all texts of a row; a short text is kept beyond it.
constexpr std::size_t MaxRowTextSize = std::size_t{16} << 20;

/// A value in the file that could not be read in full.
struct CellFault
{
    int column = -1;  ///< from 0; -1 for the whole row
    std::string text; ///< English, from contract/TableTexts.h
};

/// The non-empty cells of a row, by ascending column.
struct Row
{
    int64_t number = 0; ///< number of the row in the file, from 1
    std::vector<Cell> cells;
    std::vector<CellFault> faults;

    /// Stores a text that no other object holds, for the lifetime of this row.
    std::string_view keep(std::string text)
    {
        m_kept.push_back(std::move(text));
        return m_kept.back();
    }

    /// Reports a cell that refers to a text which the workbook does not have.
    void addMissingText(int column, std::string_view textNumber);

    /// Appends a cell. Cuts a text that is too long and removes zero bytes from it; both are listed
    /// in `faults`.
    void add(const Cell &cell)
    {
        m_textSize += cell.text.size();
        if (m_holdsZeros || cell.text.size() > MaxTextSize || m_textSize > MaxRowTextSize)
            addRepaired(cell);
        else
            cells.push_back(cell);
    }
    /// Announces that texts of this row may contain zero bytes; add() checks for them only then.
    void expectZeros() { m_holdsZeros = true; }

    void clear()
    {
        cells.clear();
        faults.clear();
        m_textSize = 0;
        m_holdsZeros = false;
        if (!m_kept.empty())
            m_kept.clear();
    }

private:
    void addRepaired(Cell cell);

    std::deque<std::string> m_kept;
    std::size_t m_textSize = 0; ///< total of the cells so far
    bool m_holdsZeros = false;
};

/// The first characters of a UTF-8 text, at most `count`.
std::string_view firstCharacters(std::string_view text, std::size_t count);

/// The general case of trimmed().
std::string_view trimmedSlowly(std::string_view text);

/// `text` without white space at both ends (spaces, tabs, line ends, no-break spaces, zero bytes).
inline std::string_view trimmed(std::string_view text)
{
    const auto isPlain = [](char c) { return c > ' ' && c < '\x7F'; };
    return !text.empty() && isPlain(text.front()) && isPlain(text.back()) ? text
                                                                          : trimmedSlowly(text);
}

/// Whether a number has all the digits of its binary form, such as 0.10000000000000001 for 0.1.
bool isOverlong(const Cell &cell);

/// Text of a cell; a number in its shortest decimal form with at most 15 significant digits.
std::string cellText(const Cell &cell);

/// Maximum number of columns of a table: the width of an XLSX sheet.
constexpr int MaxColumns = 16384;
/// Maximum number of columns of a text table, whose format has no limit.
constexpr int MaxTextColumns = 65536;

} // namespace vlt::driver
