#pragma once

#include "contract/PositionCorrection.h"
#include "plugins/tables/sites/CoordinateColumns.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vlt::driver {

struct Cell;

/// The texts of the cells of a position, by which a correction finds it again.
struct PositionTexts
{
    std::string x;
    std::string y;

    bool operator==(const PositionTexts &) const = default;
};

/// @param cells  the cell of each field, null if it is empty
PositionTexts textsOf(const PointFields &point, const std::vector<const Cell *> &cells);

/// Changes coordinates as a correction says.
void change(double &x, double &y, const contract::PositionCorrection &correction);

/// The corrections of the positions of a table that its mapping states.
class PositionCorrections
{
public:
    explicit PositionCorrections(std::vector<contract::PositionCorrection> stated);

    /// Corrects a position that was read from the cells of a row. False if no correction concerns
    /// it.
    bool apply(int64_t row, const PointFields &point, const std::vector<const Cell *> &cells,
               double &x, double &y) const;

private:
    std::vector<contract::PositionCorrection> m_stated; ///< their rows are ascending
};

} // namespace vlt::driver
