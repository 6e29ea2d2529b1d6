#pragma once

#include <cmath>
#include <optional>
#include <vector>

namespace vlt::linkpath {

/// The heights of a part of a terrain, at its resolution or at a lower one.
class TerrainExcerpt
{
public:
    /// A part without heights.
    TerrainExcerpt() = default;

    /// @param toPixel  coefficients of column and row, from the corner of the first pixel, by x and
    ///                 y in the terrain's system
    /// @param heightsM [rows * columns] metres above sea level, NaN where there is none
    TerrainExcerpt(const double (&toPixel)[6], int columns, int rows, std::vector<float> heightsM);

    /// Height interpolated between the centres of the four pixels around the point; NaN outside the
    /// part, and if one of the pixels has no height.
    float heightM(double x, double y) const;

private:
    double m_toPixel[6] = {};
    int m_columns = 0;
    int m_rows = 0;
    std::vector<float> m_heightsM;
};

} // namespace vlt::linkpath
