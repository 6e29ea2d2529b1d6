#pragma once

#include "contract/ColumnMapping.h"
#include "plugins/tables/table/RowProblem.h"
#include "plugins/tables/table/Table.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::driver {

/// What the mapping of a table states about its columns, as far as the table has them.
struct StatedRoles
{
    /// By role: field numbers in the order of StatedColumns, -1 for none; empty if no column has
    /// the role. The roles of coordinates are x, y and pair, of links with the end behind: xA.
    std::map<std::string, std::vector<int>, std::less<>> roles;
    std::set<int> fields; ///< all fields that have a stated role
    std::string evidence; ///< English, from contract/TableTexts.h

    /// The fields of a role; null if nothing is stated about it.
    const std::vector<int> *find(std::string_view role) const
    {
        const auto found = roles.find(role);
        return found == roles.end() ? nullptr : &found->second;
    }
};

/// Finds the columns of a mapping by their names, and those of a table without a header also as
/// "Column 3". A role with a column that the table lacks is not stated.
///
/// @param file      name of the mapping file, for texts
/// @param problems  gets what cannot be used, each kind of mistake once
StatedRoles findStatedRoles(const contract::ColumnMapping &mapping, contract::TableKind kind,
                            const TableProfile &table, const std::string &file,
                            std::vector<RowProblem> &problems);

} // namespace vlt::driver
