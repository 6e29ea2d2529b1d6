#pragma once

#include "contract/QueryOptions.h"
#include "plugins/scene/mesh/Mesh.h"

#include <osg/Vec3d>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vlt::scene {

using contract::LinkStyle;

/// The appearance of links, which LinkFactory.h draws.
struct LinkAppearance
{
    LinkStyle style = LinkStyle::Line;
    double width = 1; ///< pixels or metres, see LinkStyle
    Color color;
    bool colorByClearance = false; ///< the class of a link's clearance sets LinkObject::color
    int fresnelZone = 0;           ///< number of the zone; 0: no ellipsoid
    double fresnelShare = 1;       ///< share of the ellipsoid's semi-axis across the link
    Color fresnelColor;            ///< with the opacity of both walls together
    /// Factor of the earth's radius, for the clearance; links are drawn straight.
    double kFactor = contract::query::KFactorNumber.firstRun;
};

inline constexpr double MinMHz = 1;   ///< at lower ones ellipsoids are hundreds of metres wide
inline constexpr double MaxMHz = 1e6; ///< 1 THz

/// A link between the centres of two antennas; x east, y north, z up, metres.
struct LinkObject
{
    osg::Vec3d a;
    osg::Vec3d b;
    double frequencyMHz = 0;    ///< 0: unknown, no ellipsoid
    std::optional<Color> color; ///< of the line of sight, instead of LinkAppearance::color
};

/// Returns the text of an item, such as "link_style".
/// @throws BadQuery  the item is missing or occurs twice
using ItemText = std::function<std::string(std::string_view key)>;

/// Whether " clearance" may follow the colour of links.
enum class ClearanceWord { Refused, Accepted };

/// Reads link_style ("LINE", "TUBE", "BILLBOARD"), link_width, link_color ("rrggbbaa" or, if
/// accepted, "rrggbbaa clearance"), fresnel_zone, fresnel_share (per cent), fresnel_color and
/// k_factor.
///
/// @throws BadQuery  An item is missing or invalid; the text names it.
LinkAppearance readLinkAppearance(const ItemText &item, ClearanceWord clearance);

} // namespace vlt::scene
