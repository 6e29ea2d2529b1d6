#pragma once

#include "colormaps/ColorLookup.h"

#include <optional>
#include <string>

namespace vlt::scene {

/// The colour of a text "#RRGGBB"; nothing for other texts.
std::optional<colormaps::Rgba> parseColor(const std::string &text);

} // namespace vlt::scene
