#pragma once

#include "contract/ConnectionString.h"
#include "plugins/scene/parametric/PylonObject.h"

#include <string>
#include <string_view>
#include <vector>

namespace vlt::scene {

/// How the sites of a layer look.
struct SiteStyle
{
    PylonDesign pylon;         ///< without height and transmitters, which each site has of its own
    std::vector<Color> colors; ///< of the transmitters in turn; at least one
};

/// The text of an option of a layer's source. @throws BadQuery  missing
std::string styleOption(const contract::ConnectionString &source, std::string_view key);

/// Reads the options pylon_type, pylon_width, sector_colors, sector_properties, transmitter_scale
/// and lods.
///
/// @throws BadQuery  naming an option that is missing or a value that cannot be used
SiteStyle readSiteStyle(const contract::ConnectionString &source);

} // namespace vlt::scene
