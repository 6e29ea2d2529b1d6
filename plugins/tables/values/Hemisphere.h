#pragma once

#include "contract/TableTexts.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::driver {

enum class Axis {
    X, ///< longitude or easting
    Y, ///< latitude or northing
};

/// The meaning of the hemisphere letter O in a column.
enum class LetterO {
    Unknown,
    West, ///< Ouest, Oeste, Ovest
    East, ///< Ost, Oost
};

/// A hemisphere letter or word.
struct Hemisphere
{
    int sign = 0;                               ///< of its angles
    std::size_t size = 0;                       ///< in bytes
    std::optional<contract::TableTextId> fault; ///< reason why it is refused
};

/// The hemisphere at the start of a text: N, S, E, W, O, or a word of the vocabulary (Nord, South,
/// Est, Ouest). It has to fit the axis. O is refused while its meaning is unknown. A longer text
/// that starts with another letter than O stands for that letter.
Hemisphere readHemisphere(std::string_view text, Axis axis, LetterO letterO);

/// The meaning of O as the other hemispheres of its column show it: west beside E, east beside W,
/// and that of whole words, such as Ost. Without such texts `otherwise`; Unknown if they contradict
/// each other.
LetterO meaningOfO(const std::vector<std::string> &texts, LetterO otherwise);

} // namespace vlt::driver
