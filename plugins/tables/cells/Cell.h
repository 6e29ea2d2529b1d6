#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::driver {

/// One cell of a table that holds something. Views point into the row's own memory or the
/// workbook's strings and live until the next row is read.
struct Cell
{
    enum class Kind : uint8_t {
        Text,
        Number,  ///< `text` is its decimal form, or empty when only `number` is known
        Boolean, ///< text TRUE or FALSE
        Date,    ///< text in ISO 8601 form
        Error,   ///< text such as #N/A
    };

    int column = 0; ///< from 0
    Kind kind = Kind::Text;
    std::string_view text;
    double number = 0; ///< meaningful for Number with an empty text
};

/// Most characters of a text: what a cell of a workbook holds.
constexpr std::size_t MaxTextSize = 32767;
/// Most bytes of all texts of a row, short ones apart.
constexpr std::size_t MaxRowTextSize = std::size_t{16} << 20;

/// What a cell holds in the file and could not be read.
struct CellFault
{
    int column = -1;  ///< from 0; -1 for the row as a whole
    std::string text; ///< English, of the table of texts
};

/// The non-empty cells of one row, by ascending column.
struct Row
{
    int64_t number = 0; ///< row of the file as a spreadsheet counts it, from 1
    std::vector<Cell> cells;
    std::vector<CellFault> faults;

    /// Keeps a text that lies nowhere else for the life of this row.
    std::string_view keep(std::string text)
    {
        m_kept.push_back(std::move(text));
        return m_kept.back();
    }

    /// Says that a cell refers to a text that the workbook does not hold.
    void addMissingText(int column, std::string_view textNumber);

    /// Appends a cell. A text that is too long is cut, and zeros are taken out of it; both are
    /// listed among the faults.
    void add(const Cell &cell)
    {
        m_textSize += cell.text.size();
        if (m_holdsZeros || cell.text.size() > MaxTextSize || m_textSize > MaxRowTextSize)
            addRepaired(cell);
        else
            cells.push_back(cell);
    }
    /// Says that there are zeros in texts of this row.
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
    std::size_t m_textSize = 0; ///< of the cells so far
    bool m_holdsZeros = false;
};

/// The first characters of a UTF-8 text, `count` at most.
std::string_view firstCharacters(std::string_view text, std::size_t count);

/// What trimmed() does, without its short cut.
std::string_view trimmedSlowly(std::string_view text);

/// White space at either end of `text` taken off (spaces, tabs, line ends, no-break spaces, zeros).
inline std::string_view trimmed(std::string_view text)
{
    const auto isPlain = [](char c) { return c > ' ' && c < '\x7F'; };
    return !text.empty() && isPlain(text.front()) && isPlain(text.back()) ? text
                                                                          : trimmedSlowly(text);
}

/// Whether a number is written with all the digits of its binary form, 0.10000000000000001 for 0.1.
bool isOverlong(const Cell &cell);

/// Text of a cell, a number in its shortest decimal form of at most 15 significant digits.
std::string cellText(const Cell &cell);

/// Most columns that a table may have: the width of an XLSX sheet.
constexpr int MaxColumns = 16384;
/// Most columns of a text table, which has no such width.
constexpr int MaxTextColumns = 65536;

} // namespace vlt::driver
