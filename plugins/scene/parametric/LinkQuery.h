#pragma once

#include "plugins/scene/parametric/LinkObject.h"
#include "plugins/scene/parametric/PylonObject.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace vlt::scene {

/// Links with the pylons that carry their antennas.
struct LinkSceneQuery
{
    std::vector<PylonObject> pylons;
    std::vector<LinkObject> links;
    LinkAppearance appearance;
};

inline constexpr std::size_t MaxQueryPylons = 500;
inline constexpr std::size_t MaxQueryLinks = 10000;

/// Reads the query of links:
///
///     inline://parametric/query?object=link&data_folder=PATH&pylon_type=TYPE
///     &pylon=X Y Z HEIGHT WIDTH RADIUS SECTORHEIGHT SPACING          (0 to MaxQueryPylons)
///     &transmitter=HEIGHT AZIMUTH TILT BEAMWIDTH ANTENNALENGTH rrggbbaa
///     &dish=HEIGHT AZIMUTH TILT DIAMETER rrggbbaa
///     &transmitter_scale=PERCENT&lod=SYMBOLIC REALISTIC
///     &link=X1 Y1 Z1 X2 Y2 Z2 FREQUENCYMHZ [rrggbbaa]                (1 to MaxQueryLinks)
///     &link_style=TUBE&link_width=4&link_color=rrggbbaa
///     &fresnel_zone=1&fresnel_share=60&fresnel_color=rrggbbaa&k_factor=1.33333.inlinepylonurl
///
/// A transmitter or dish belongs to the pylon before it; there may be MaxTransmitters of them in
/// all. The other items may be in any order. Units are metres, degrees and per cent. A diameter of
/// 0 means the default, a frequency of 0 an unknown one. The data folder is accepted but not used.
///
/// @throws BadQuery  An item is invalid; the text names it and its value.
LinkSceneQuery parseLinkQuery(std::string_view url);

} // namespace vlt::scene
