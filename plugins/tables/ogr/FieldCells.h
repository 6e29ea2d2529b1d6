#pragma once

#include "plugins/tables/table/RowProblem.h"
#include "plugins/tables/table/Table.h"

#include <vector>

namespace vlt::driver {

/// The fields of a row by field number, and what is wrong with their values.
class FieldCells
{
public:
    explicit FieldCells(const TableProfile &table);

    /// Takes the cells of a row; values that do not fit the type of their column are null and get a
    /// problem, as do cells behind the last column. Views live as long as the row.
    void take(const Row &row, std::vector<RowProblem> &problems);
    /// Makes problems of what could not be read in a row, as take() does; for the header, too.
    void takeFaults(int64_t row, const std::vector<CellFault> &faults,
                    std::vector<RowProblem> &problems) const;
    /// The cell of each field, null where it is empty.
    const std::vector<const Cell *> &cells() const { return m_cells; }
    /// The number of a field of numeric type; only where its cell is not null.
    double number(std::size_t field) const { return m_numbers[field]; }
    bool isNull(std::size_t field) const { return m_null[field]; }

private:
    const TableProfile *m_table;
    std::vector<int> m_fieldOfColumn;
    std::vector<const Cell *> m_cells;
    std::vector<double> m_numbers;
    std::vector<char> m_null;
};

} // namespace vlt::driver
