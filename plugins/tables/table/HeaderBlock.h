#pragma once

#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/table/HeaderRow.h"

#include <map>
#include <string>
#include <vector>

namespace vlt::driver {

/// Maximum number of rows that name the columns together.
constexpr std::size_t MaxNameRows = 3;
/// Number of rows below the one with the most names that say whether further ones belong to it.
constexpr std::size_t RowsBelowNames = 4;

/// The rows that name the columns together.
struct HeaderBlock
{
    std::vector<HeaderRow> rows; ///< from the top
    /// By column: the texts of its rows, such as "Sector 1 Azimuth" for a group over two columns.
    std::map<int, std::string> names;
    std::vector<HeaderRow> furtherRows; ///< below: the same names in other words, units
    std::map<int, std::string> units;   ///< by column
};

/// Joins the row with the most names to the rows of groups above it and to those of names and of
/// units below it:
///
///     Site ; Sector 1 ;        ; Sector 2 ;
///          ; Azimuth  ; Height ; Azimuth  ; Height
///
/// The group may stand in its first column only, as merged cells leave it, or in all of its
/// columns.
///
/// @param above  the rows before, the nearest one last
/// @param below  the rows behind
HeaderBlock joinHeader(const std::vector<HeaderRow> &above, const HeaderRow &row,
                       const std::vector<HeaderRow> &below, const Vocabulary &vocabulary);

/// The names in rows that are known to name the columns together.
///
/// @param rows   at least one; they have texts
/// @param below  rows behind, of which those of names in other words and of units are found
HeaderBlock joinRows(std::vector<HeaderRow> rows, const std::vector<HeaderRow> &below,
                     const Vocabulary &vocabulary);

} // namespace vlt::driver
