#pragma once

#include "plugins/tables/table/RowProblem.h"

#include <set>
#include <string>
#include <vector>

namespace vlt::driver {

/// Reports problems of rows as warnings of the library. Each row is reported once, even if it is
/// read more than once, and only a limited number of problems is reported.
class RowWarnings
{
public:
    void warn(const std::string &table, const std::vector<RowProblem> &problems);

private:
    std::set<int64_t> m_rows;
    std::size_t m_count = 0;
    bool m_areOmitted = false; ///< the limit was reached
};

} // namespace vlt::driver
