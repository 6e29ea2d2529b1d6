#pragma once

#include "plugins/tables/table/RowProblem.h"
#include "plugins/tables/table/Table.h"

#include <vector>

namespace vlt::driver {

/// The cells of a row by field number, with the numbers in them.
class FieldCells
{
public:
    explicit FieldCells(const TableProfile &table);

    /// Takes the cells of a row, which must exist as long as they are used here. A value that does
    /// not fit the type of its column is null and gets a problem; a cell behind the last column
    /// gets one too.
    void take(const Row &row, std::vector<RowProblem> &problems);
    /// Adds a problem for each fault of a row; take() does it for its row. Also for the header.
    void takeFaults(int64_t row, const std::vector<CellFault> &faults,
                    std::vector<RowProblem> &problems) const;
    /// The cell of each field, null if it is empty.
    const std::vector<const Cell *> &cells() const { return m_cells; }
    /// The number in a field of numeric type whose cell is not null.
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
