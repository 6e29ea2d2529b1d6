#include "plugins/tables/ogr/RowWarnings.h"

#include "contract/TableTexts.h"

#include <cpl_error.h>

namespace vlt::driver {

namespace {

using contract::formatted;

constexpr std::size_t MaxWarnings = 50;

/// The text of a warning: row and column, then the problem.
std::string describe(const RowProblem &problem)
{
    std::string text;
    if (problem.row > 0)
        text = "row " + std::to_string(problem.row) + (problem.column.empty() ? ": " : ", ");
    if (!problem.column.empty())
        text += "column \"" + problem.column + "\": ";
    return text + problem.text;
}

} // namespace

void RowWarnings::warn(const std::string &table, const std::vector<RowProblem> &problems)
{
    if (problems.empty())
        return;
    const bool isNew = !m_areOmitted && m_rows.insert(problems.front().row).second;
    for (const RowProblem &problem : problems) {
        if (!isNew || m_areOmitted)
            break;
        m_areOmitted = ++m_count > MaxWarnings;
        if (!m_areOmitted) {
            CPLError(CE_Warning, CPLE_AppDefined, "%s, %s", table.c_str(),
                     describe(problem).c_str());
            continue;
        }
        CPLError(CE_Warning, CPLE_AppDefined, "%s: %s", table.c_str(),
                 formatted("MESS_TAB_FURTHER_PROBLEMS").c_str());
    }
}

} // namespace vlt::driver
