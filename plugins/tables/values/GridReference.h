#pragma once

#include <string_view>

namespace vlt::driver {

/// Whether a text is a position in the MGRS grid: 18TWL8562811322, 31U DQ 48251 11932.
bool isMgrsReference(std::string_view text);

/// Whether a text is a square of the Maidenhead grid: JN18eu, JN18EU43.
bool isMaidenheadSquare(std::string_view text);

} // namespace vlt::driver
