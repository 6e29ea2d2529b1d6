#pragma once

#include "plugins/tables/cells/Cell.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vlt::driver {

/// Walks over the rows of a table from the first to the last.
///
/// Framing a row is cheap, so that rows are counted without their cells being built.
/// Every operation throws RefusedFile where the file is damaged.
class RowReader
{
public:
    virtual ~RowReader() = default;

    /// Goes to the next row of the file; false at its end.
    virtual bool advance() = 0;
    /// Row of the file as a spreadsheet counts it, from 1.
    virtual int64_t rowNumber() const = 0;
    /// Whether a cell of this row in the columns 0 .. lastColumn holds more than white space.
    virtual bool hasContent(int lastColumn) = 0;
    /// A number that equals that of another row when both begin with the same value; cheap, and may
    /// collide.
    virtual uint64_t fingerprint() = 0;
    /// The cells of this row that hold more than white space; texts are untrimmed.
    virtual void cells(Row &row) = 0;
    /// From now on cells() may leave out texts of these columns that would have to be looked up
    /// elsewhere in the file; null for none. Counting a large sheet then does without its list of
    /// texts.
    virtual void leaveOutTexts(const std::vector<char> *columns) { static_cast<void>(columns); }
    /// Where this row starts, for Sheet::rowsFrom(); 0 where the format cannot say.
    virtual uint64_t position() const { return 0; }
};

/// How the characters of a text are written.
struct TextEncoding
{
    std::string name;
    bool isGuess = false; ///< it only is the likeliest
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
    /// Rows from the row that starts at `position` and has `rowNumber`; null where the format
    /// cannot jump.
    virtual std::unique_ptr<RowReader> rowsFrom(uint64_t position, int64_t rowNumber) const
    {
        static_cast<void>(position);
        static_cast<void>(rowNumber);
        return nullptr;
    }
    /// Called after all rows were framed: false when they showed that the encoding is another one.
    /// Rows read from now on come in the right one.
    virtual bool settleEncoding() { return true; }
    /// Called once before the rows are read with their cells; `rowCount` is how many there are.
    virtual void prepareStrings(uint64_t rowCount) const { static_cast<void>(rowCount); }
    /// The encoding of a text; nameless for other formats.
    virtual TextEncoding encoding() const { return {}; }
};

/// A file of tables.
class Workbook
{
public:
    virtual ~Workbook() = default;

    /// The next table that was not yet given out; null after the last. Tables come in the file's
    /// order.
    virtual std::shared_ptr<Sheet> nextSheet() = 0;
};

/// Fingerprint of the raw form of a row's first value.
inline uint64_t fingerprintOf(std::string_view value)
{
    return std::hash<std::string_view>()(value);
}

} // namespace vlt::driver
