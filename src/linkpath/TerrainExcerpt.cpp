#include "linkpath/TerrainExcerpt.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace vlt::linkpath {

TerrainExcerpt::TerrainExcerpt(const double (&toPixel)[6], int columns, int rows,
                               std::vector<float> heightsM)
    : m_columns(columns)
    , m_rows(rows)
    , m_heightsM(std::move(heightsM))
{
    std::copy(std::begin(toPixel), std::end(toPixel), m_toPixel);
}

float TerrainExcerpt::heightM(double x, double y) const
{
    constexpr float None = std::numeric_limits<float>::quiet_NaN();
    constexpr double Rim = 0.5; // from the centre of a pixel at the edge to the edge
    const double column = m_toPixel[0] + m_toPixel[1] * x + m_toPixel[2] * y - Rim;
    const double row = m_toPixel[3] + m_toPixel[4] * x + m_toPixel[5] * y - Rim;
    if (!(column >= -Rim && row >= -Rim && column < m_columns && row < m_rows) || m_columns == 0)
        return None;
    const double c = std::clamp(column, 0.0, m_columns - 1.0);
    const double r = std::clamp(row, 0.0, m_rows - 1.0);
    const int left = static_cast<int>(c);
    const int top = static_cast<int>(r);
    const auto at = [this](int atColumn, int atRow) {
        return static_cast<double>(
            m_heightsM[static_cast<std::size_t>(std::min(atRow, m_rows - 1)) *
                           static_cast<std::size_t>(m_columns) +
                       static_cast<std::size_t>(std::min(atColumn, m_columns - 1))]);
    };
    const double right = c - left;
    const double down = r - top;
    const double upper = at(left, top) * (1 - right) + at(left + 1, top) * right;
    const double lower = at(left, top + 1) * (1 - right) + at(left + 1, top + 1) * right;
    return static_cast<float>(upper * (1 - down) + lower * down);
}

} // namespace vlt::linkpath
