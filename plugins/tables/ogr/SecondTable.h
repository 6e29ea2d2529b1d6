#pragma once

#include "plugins/tables/table/RowProblem.h"
#include "plugins/tables/table/Table.h"

#include <memory>
#include <string>

namespace vlt::driver {

/// A table that completes another one: a further sheet of its file.
class SecondTable
{
public:
    explicit SecondTable(Table table);

    const TableProfile &profile() const { return *m_table.profile; }
    std::unique_ptr<DataRows> rows() const;
    /// A problem of this table as one of the dataset: its text names the sheet.
    RowProblem located(RowProblem problem) const;

private:
    Table m_table;
};

} // namespace vlt::driver
