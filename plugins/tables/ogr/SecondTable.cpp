#include "plugins/tables/ogr/SecondTable.h"

#include "contract/TableTexts.h"

namespace vlt::driver {

SecondTable::SecondTable(Table table, std::string file)
    : m_table(std::move(table))
    , m_file(std::move(file))
{
    m_table.sheet->prepareStrings(m_table.profile->rowCount);
}

std::unique_ptr<DataRows> SecondTable::rows() const
{
    return std::make_unique<DataRows>(*m_table.sheet, m_table.profile);
}

SecondRoles SecondTable::rolesOf(const std::vector<ColumnRole> &columns) const
{
    SecondRoles roles = {name(), {}};
    for (const ColumnRole &column : columns)
        roles.columns.push_back(
            {column.role, column.sector < 0 ? "" : std::to_string(column.sector),
             profile().fields[static_cast<std::size_t>(column.field)].name, column.evidence});
    return roles;
}

RowProblem SecondTable::located(RowProblem problem) const
{
    problem.text = m_file.empty() ? contract::formatted("MESS_TAB_IN_SHEET",
                                                        {m_table.profile->sheet, problem.text})
                                  : contract::formatted("MESS_TAB_IN_FILE", {m_file, problem.text});
    return problem;
}

} // namespace vlt::driver
