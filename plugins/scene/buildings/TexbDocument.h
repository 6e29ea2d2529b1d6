#pragma once

#include "contract/BuildingDocument.h"

#include <string_view>

namespace vlt::scene {

/// Reads the text of a building document. Values may be escaped or not; therefore a value ends at a
/// quotation mark that another attribute or the end of the element follows. The attributes of the
/// cache are ignored: they are for builders that keep buildings.
///
/// @throws BadLayer  the text is not a building document, the footprints or the height field are
///                   missing, or a number is invalid
contract::BuildingDocument parseTexbDocument(std::string_view text);

/// The same for a local file.
contract::BuildingDocument readTexbDocument(const std::string &path);

} // namespace vlt::scene
