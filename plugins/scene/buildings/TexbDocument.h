#pragma once

#include "contract/BuildingDocument.h"

#include <string_view>

namespace vlt::scene {

/// Reads the text of a building document. Values are taken as they stand, whether somebody escaped
/// them or not: a value ends at a quotation mark behind which the element goes on as such. What it
/// says of a cache is for builders that keep what they make: it is left out.
///
/// @throws BadLayer  no building document, no footprints, no height field, a number that is none
contract::BuildingDocument parseTexbDocument(std::string_view text);

/// The same for a local file.
contract::BuildingDocument readTexbDocument(const std::string &path);

} // namespace vlt::scene
