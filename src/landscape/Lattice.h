#pragma once

#include "contract/Place.h"

#include <cstddef>
#include <vector>

namespace vlt::landscape {

using contract::Place;

/// A square of the ground in the frame of a scene, metres.
struct Square
{
    Place centre;
    double halfM = 0;
};

/// Heights at the corners of the cells of a square.
struct Lattice
{
    Square square;
    int cells = 0;              ///< in a row
    double resolutionM = 0;     ///< of the terrain from which the heights are
    std::vector<float> heightM; ///< [(cells + 1)^2] row by row from the south-west; NaN: unknown

    int points() const { return cells + 1; }
    double stepM() const { return 2 * square.halfM / cells; }
    std::size_t index(int column, int row) const
    {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(points()) +
               static_cast<std::size_t>(column);
    }
    Place at(int column, int row) const
    {
        return {square.centre.x - square.halfM + column * stepM(),
                square.centre.y - square.halfM + row * stepM()};
    }
};

} // namespace vlt::landscape
