#pragma once

#include <optional>
#include <string_view>

namespace vlt::driver {

/// The texts of both coordinates of a position.
struct PairTexts
{
    std::string_view x;
    std::string_view y;
};

/// The coordinates of a text whose notation fixes which is which: a point in WKT or GeoJSON, or
/// names beside the coordinates, as in a dictionary. Nothing for any other text.
std::optional<PairTexts> namedPair(std::string_view text);

} // namespace vlt::driver
