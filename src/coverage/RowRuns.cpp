#include "coverage/RowRuns.h"

#include <algorithm>
#include <cmath>

namespace vlt::coverage {

namespace {

/// The first pixel whose centre is at `at` or after it, within 0 .. count.
int firstFrom(double at, int count)
{
    return static_cast<int>(std::clamp(std::ceil(at - 0.5), 0.0, static_cast<double>(count)));
}

} // namespace

void RowRuns::addEdge(const Place &from, const Place &to, int rows)
{
    const auto &[top, bottom] =
        std::minmax(from, to, [](const Place &a, const Place &b) { return a.y < b.y; });
    Edge edge;
    edge.firstRow = firstFrom(top.y, rows);
    edge.endRow = firstFrom(bottom.y, rows);
    if (edge.firstRow >= edge.endRow)
        return;
    edge.step = (bottom.x - top.x) / (bottom.y - top.y);
    edge.x = top.x + (edge.firstRow + 0.5 - top.y) * edge.step;
    m_edges.push_back(edge);
}

void RowRuns::useRow(int row, int columns, const Use &use)
{
    m_crossings.clear();
    for (const std::size_t i : m_active) {
        const Edge &edge = m_edges[i];
        m_crossings.push_back(edge.x + (row - edge.firstRow) * edge.step);
    }
    std::sort(m_crossings.begin(), m_crossings.end());
    for (std::size_t i = 0; i + 1 < m_crossings.size(); i += 2) {
        const int begin = firstFrom(m_crossings[i], columns);
        const int end = firstFrom(m_crossings[i + 1], columns);
        if (begin < end)
            use(row, begin, end);
    }
}

void RowRuns::find(const std::vector<std::vector<Place>> &rings, int columns, int rows,
                   const Use &use)
{
    m_edges.clear();
    m_active.clear();
    for (const std::vector<Place> &ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i)
            addEdge(ring[i], ring[(i + 1) % ring.size()], rows);
    }
    std::sort(m_edges.begin(), m_edges.end(),
              [](const Edge &a, const Edge &b) { return a.firstRow < b.firstRow; });
    std::size_t next = 0;
    for (int row = 0; next < m_edges.size() || !m_active.empty(); ++row) {
        if (m_active.empty())
            row = m_edges[next].firstRow;
        for (; next < m_edges.size() && m_edges[next].firstRow == row; ++next)
            m_active.push_back(next);
        useRow(row, columns, use);
        std::erase_if(m_active, [&](std::size_t i) { return m_edges[i].endRow == row + 1; });
    }
}

} // namespace vlt::coverage
