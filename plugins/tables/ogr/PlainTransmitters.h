#pragma once

#include "contract/ChosenNumber.h"
#include "plugins/tables/ogr/FieldCells.h"
#include "plugins/tables/sites/SiteRoles.h"

#include <vector>

namespace vlt::driver {

/// Recognises the rows whose values of transmitters are plain numbers in their ranges. Nearly all
/// rows of large tables are so, and reading them from their numbers is much faster than from their
/// texts.
class PlainTransmitters
{
public:
    PlainTransmitters(const TableProfile &table, const SiteRoles &roles);

    /// Whether each value is empty or a number in its range: nothing is to be reported.
    bool accepts(const FieldCells &cells) const;

private:
    struct Column
    {
        std::size_t field = 0;
        contract::Range range; ///< in the unit of the column
    };

    void add(const TableProfile &table, const QuantityField &of, const contract::Range &range);

    bool m_possible = false; ///< all columns are numeric, without lists
    std::vector<Column> m_columns;
};

} // namespace vlt::driver
