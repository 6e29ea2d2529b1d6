#pragma once

#include "plugins/tables/cells/Cell.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vlt::driver {

/// Reads the rows of a table from the first to the last.
///
/// advance() only finds the limits of a row, so that counting rows does not decode their cells.
/// Every function throws RefusedFile if the file is damaged.
class RowReader
{
public:
    virtual ~RowReader() = default;

    /// Goes to the next row of the file; false at its end.
    virtual bool advance() = 0;
    /// Number of the row in the file, from 1.
    virtual int64_t rowNumber() const = 0;
    /// Whether office programs do not show this row, because it is hidden or filtered out.
    virtual bool isHidden() const { return false; }
    /// Whether one of the columns 0 .. lastColumn of this row holds more than white space.
    virtual bool hasContent(int lastColumn) = 0;
    /// A number that is equal for two rows that begin with the same value, in text tables also if
    /// its capital letters differ. It takes little time and may be equal by chance.
    virtual uint64_t fingerprint() = 0;
    /// Gets the cells of this row that hold more than white space; their texts are not trimmed.
    virtual void cells(Row &row) = 0;
    /// From now on, cells() may omit texts of these columns that are stored elsewhere in the file;
    /// null for no columns. A large sheet can then be counted without reading its list of texts.
    virtual void leaveOutTexts(const std::vector<char> *columns) { static_cast<void>(columns); }
    /// How much the row holds, in a unit of the format: a row with few values is much smaller than
    /// the others.
    virtual std::size_t size() const = 0;
    /// Position of this row for Sheet::rowsFrom(); 0 if the format does not support it.
    virtual uint64_t position() const { return 0; }
};

/// The character encoding of a text.
struct TextEncoding
{
    std::string name;
    bool isGuess = false; ///< the file does not state it
};

/// One table of a file.
class Sheet
{
public:
    virtual ~Sheet() = default;

    virtual const std::string &name() const = 0;
    virtual bool hidden() const { return false; }
    /// Rows from the first one.
    virtual std::unique_ptr<RowReader> rows() const = 0;
    /// Rows from the one at `position`, whose number is `rowNumber`; null if the format does not
    /// support it.
    virtual std::unique_ptr<RowReader> rowsFrom(uint64_t position, int64_t rowNumber) const
    {
        static_cast<void>(position);
        static_cast<void>(rowNumber);
        return nullptr;
    }
    /// To be called after all rows were read once. Returns false if they showed that the encoding
    /// is another one; rows that are read from now on have the correct one.
    virtual bool settleEncoding() { return true; }
    /// To be called once before the cells of `rowCount` rows are read.
    virtual void prepareStrings(uint64_t rowCount) const { static_cast<void>(rowCount); }
    /// The encoding of a text table; its name is empty for other formats.
    virtual TextEncoding encoding() const { return {}; }
    /// What separates the columns of a text table; 0 for other formats.
    virtual char delimiter() const { return 0; }
};

/// A file of tables.
class Workbook
{
public:
    virtual ~Workbook() = default;

    /// The next table, in the order of the file; null after the last.
    virtual std::shared_ptr<Sheet> nextSheet() = 0;
    /// Whether the next table is only found by a search through the rows of the last one. If these
    /// were read before, there is no search.
    virtual bool searchesSheets() const { return false; }
    /// The same file before its first table, with what the searches found; null if there are none.
    virtual std::unique_ptr<Workbook> fromStart() const { return nullptr; }
};

/// Fingerprint of a row whose first value has this raw form.
inline uint64_t fingerprintOf(std::string_view value)
{
    return std::hash<std::string_view>()(value);
}

} // namespace vlt::driver
