#pragma once

#include "contract/TableKind.h"
#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/roles/Vocabulary.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// What the columns of a table without a header are.
struct ColumnsByValues
{
    /// By column, as a header would name them: "Site ID", "Latitude Degrees", "Longitude A"; empty
    /// for a column that is not known.
    std::map<int, std::string> names;
    std::string evidence; ///< text for the user
};

/// The values in the first rows of a sheet, which may have no header.
class FirstRows
{
public:
    /// Adds the next row. Only the first columns of it are kept.
    void add(const Row &row);

    /// The columns of the table in the vocabulary that has as many columns and whose tests all rows
    /// pass; nothing if there is none.
    std::optional<ColumnsByValues> columnsOfKnownTable(contract::TableKind kind,
                                                       const Vocabulary &vocabulary) const;
    /// The columns of a table of sites that the values show; nothing unless they hold a position.
    std::optional<ColumnsByValues> columnsOfSites(const Vocabulary &vocabulary) const;

private:
    std::vector<std::vector<std::string>> m_columns; ///< texts by column and row; empty for none
    std::size_t m_rowCount = 0;
    int m_lastColumn = -1;
};

} // namespace vlt::driver
