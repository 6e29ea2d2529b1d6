#pragma once

#include "contract/ConnectionString.h"
#include "plugins/scene/parametric/PylonObject.h"

#include <string>
#include <string_view>
#include <vector>

namespace vlt::scene {

/// The appearance of the sites of a layer.
struct SiteStyle
{
    PylonDesign pylon;         ///< without height and transmitters, which differ between sites
    std::vector<Color> colors; ///< of the transmitters, used in turn; at least one
};

/// The text of an option of a layer's source. @throws BadQuery  the option is missing
std::string styleOption(const contract::ConnectionString &source, std::string_view key);

/// Reads the options pylon_type, pylon_width, sector_colors, sector_properties, transmitter_scale
/// and lods.
///
/// @throws BadQuery  An option is missing or invalid; the text names it.
SiteStyle readSiteStyle(const contract::ConnectionString &source);

} // namespace vlt::scene
