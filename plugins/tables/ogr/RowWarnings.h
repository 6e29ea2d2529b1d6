#pragma once

#include "plugins/tables/table/RowProblem.h"

#include <set>
#include <string>
#include <vector>

namespace vlt::driver {

/// Gives the problems of rows out as the library's warnings: a row is read more than once, but
/// warned of once, and only the first problems are said.
class RowWarnings
{
public:
    void warn(const std::string &table, const std::vector<RowProblem> &problems);

private:
    std::set<int64_t> m_rows;
    std::size_t m_count = 0;
    bool m_areOmitted = false; ///< there were more than are said
};

} // namespace vlt::driver
