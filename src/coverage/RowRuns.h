#pragma once

#include "coverage/CoverageRaster.h"

#include <functional>
#include <vector>

namespace vlt::coverage {

/// Finds the pixels whose centres lie within the rings of a footprint, row by row. It keeps its
/// memory from one footprint to the next. Not for two threads at once.
class RowRuns
{
public:
    /// Receives a row and its columns begin .. end - 1.
    using Use = std::function<void(int row, int begin, int end)>;

    /// Finds the pixels by the even-odd rule: a ring within another is a hole. A pixel centre on an
    /// edge belongs to the footprint on one side of it only, so that adjacent footprints share no
    /// pixel.
    ///
    /// @param rings          in pixels from the raster's first corner; finite
    /// @param columns, rows  size of the raster; pixels outside it are not found
    void find(const std::vector<std::vector<Place>> &rings, int columns, int rows, const Use &use);

private:
    struct Edge
    {
        int firstRow = 0;
        int endRow = 0;
        double x = 0; ///< at the centre of firstRow
        double step = 0;
    };

    void addEdge(const Place &from, const Place &to, int rows);
    void useRow(int row, int columns, const Use &use);

    std::vector<Edge> m_edges;
    std::vector<std::size_t> m_active; ///< edges that cross the current row
    std::vector<double> m_crossings;
};

} // namespace vlt::coverage
