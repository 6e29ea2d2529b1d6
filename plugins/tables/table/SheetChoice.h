#pragma once

#include "plugins/tables/table/Table.h"

namespace vlt::driver {

/// The sheet that holds a table.
struct ChosenSheet
{
    std::shared_ptr<Sheet> sheet;
    Header header;
    int suitability = 0; ///< see TableHints; not determined if there is no other sheet to choose
};

/// Finds the sheet that suits best: visible sheets come first, then those with the highest
/// suitability, then those with rows, then the one with more words of its kind, then the earlier
/// one. At most the first 200 rows of 64 sheets are read. Throws RefusedFile (NoHeader, OneColumn,
/// Empty, BadOption).
///
/// @param readRows  is called with the first sheet that may be chosen, if the next one has
///                  to be searched; it may read all rows of that sheet
ChosenSheet chooseSheet(Workbook &workbook, const TableHints &hints,
                        const std::function<void(const ChosenSheet &)> &readRows);

/// The names of the visible sheets whose columns have the same names as those of a header, apart
/// from the sheet `hints.otherThan`. The limits are those of chooseSheet(); damaged sheets are left
/// out.
std::vector<std::string> sheetsWithColumns(Workbook &workbook, const Header &header,
                                           const TableHints &hints);

} // namespace vlt::driver
