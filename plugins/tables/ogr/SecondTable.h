#pragma once

#include "plugins/tables/sites/SiteRoles.h"
#include "plugins/tables/table/RowProblem.h"
#include "plugins/tables/table/Table.h"

#include <memory>
#include <string>
#include <vector>

namespace vlt::driver {

/// The role of a column in a table that completes another one.
struct SecondRole
{
    Role role = Role::None;
    std::string sector; ///< number of the transmitter; empty for none
    std::string column; ///< name
    std::string evidence;
};

struct SecondRoles
{
    std::string table; ///< name of the sheet or file
    std::vector<SecondRole> columns;
};

/// A table that completes another one: a further sheet of its file, or another file.
class SecondTable
{
public:
    /// @param file  name of the other file; empty for a sheet of the same file
    explicit SecondTable(Table table, std::string file = {});

    const TableProfile &profile() const { return *m_table.profile; }
    /// Of the file if it is another one, else of the sheet.
    const std::string &name() const { return m_file.empty() ? profile().sheet : m_file; }
    std::unique_ptr<DataRows> rows() const;
    /// A problem of this table as one of the dataset: its text names the sheet or file.
    RowProblem located(RowProblem problem) const;

    /// Columns of this table with their roles, as texts.
    SecondRoles rolesOf(const std::vector<ColumnRole> &columns) const;

private:
    Table m_table;
    std::string m_file;
};

} // namespace vlt::driver
