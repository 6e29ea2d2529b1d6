#pragma once

#include "coverage/CoverageRaster.h"

#include <functional>
#include <vector>

namespace vlt::coverage {

/// Finds the pixels whose centre lies within the rings of a footprint, row by row. Keeps its memory
/// from one footprint to the next. Not for two threads at once.
class RowRuns
{
public:
    /// Takes a row and the columns begin .. end - 1 of it.
    using Use = std::function<void(int row, int begin, int end)>;

    /// By even-odd: a ring within another is a hole. A centre that lies on an edge belongs to the
    /// footprint on one side of it only, so that footprints that touch share no pixel.
    ///
    /// @param rings          in pixels from the raster's first corner; finite
    /// @param columns, rows  of the raster; nothing beyond is found
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
    std::vector<std::size_t> m_active; ///< edges that cross the row
    std::vector<double> m_crossings;
};

} // namespace vlt::coverage
