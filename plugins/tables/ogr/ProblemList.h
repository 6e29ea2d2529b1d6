#pragma once

#include "plugins/tables/table/RowProblem.h"

#include <algorithm>
#include <vector>

namespace vlt::driver {

/// The problems of a table in the order of reading. All of them are counted, the first ones are
/// kept.
class ProblemList
{
public:
    static constexpr std::size_t MaxKept = 1000;

    void add(RowProblem problem)
    {
        ++m_count;
        if (m_kept.size() < MaxKept)
            m_kept.push_back(std::move(problem));
    }
    void add(std::vector<RowProblem> &&problems)
    {
        for (RowProblem &problem : problems)
            add(std::move(problem));
    }

    /// Adds a problem before those that were added already.
    void addFirst(RowProblem problem)
    {
        ++m_count;
        m_kept.insert(m_kept.begin(), std::move(problem));
        if (m_kept.size() > MaxKept)
            m_kept.pop_back();
    }

    void add(const ProblemList &others)
    {
        const std::size_t kept = std::min(others.m_kept.size(), MaxKept - m_kept.size());
        m_kept.insert(m_kept.end(), others.m_kept.begin(),
                      others.m_kept.begin() + static_cast<std::ptrdiff_t>(kept));
        m_count += others.m_count;
    }

    std::size_t count() const { return m_count; }
    const std::vector<RowProblem> &kept() const { return m_kept; }

private:
    std::size_t m_count = 0;
    std::vector<RowProblem> m_kept;
};

} // namespace vlt::driver
