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
    LinkLook look;
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
/// Transmitters and dishes belong to the pylon before them, MaxTransmitters in all; else the items
/// may stand in any order. Metres, degrees, per cent; a diameter of 0 stands for the usual one, a
/// frequency of 0 for an unknown one. The data folder is accepted and not needed.
///
/// @throws BadQuery  naming the item that cannot be used and its value
LinkSceneQuery parseLinkQuery(std::string_view url);

} // namespace vlt::scene
