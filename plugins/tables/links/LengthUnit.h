#pragma once

#include "plugins/tables/links/LinkLayout.h"

#include <optional>

namespace vlt::driver {

/// The unit of stated lengths, as the positions show it.
struct LengthUnit
{
    const char *name = "";
    double metres = 1;
};

/// The unit in which the sampled lengths of a layout agree with the distances between the ends,
/// within 5 % in four of five rows. Nothing if there is none.
std::optional<LengthUnit> lengthUnitByPositions(const TableProfile &table,
                                                const LinkLayout &layout);

} // namespace vlt::driver
