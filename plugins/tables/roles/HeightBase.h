#pragma once

#include "plugins/tables/roles/Vocabulary.h"

#include <string_view>

namespace vlt::driver {

/// The height above ground in a cell that says what its heights are measured from, without these
/// words: "30 m" of "30 m AGL / 245 m AMSL". Any other text stays as it is.
std::string_view heightAboveGround(std::string_view text, const Vocabulary &vocabulary);

} // namespace vlt::driver
