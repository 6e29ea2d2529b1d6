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

/// How links look. LinkFactory.h draws them.
struct LinkLook
{
    LinkStyle style = LinkStyle::Line;
    double width = 1; ///< pixels or metres, see LinkStyle
    Color color;
    bool colorByClearance = false; ///< whoever knows the verdicts sets the links' own colours
    int fresnelZone = 0;           ///< number of the zone; 0: no ellipsoid
    double fresnelShare = 1;       ///< of the ellipsoid's half axis across the link
    Color fresnelColor;            ///< its opacity counts for a look through both walls
    /// Of the earth's radius; for the clearance, the drawing is straight.
    double kFactor = contract::query::KFactorNumber.firstRun;
};

inline constexpr double LowestMHz = 1;    ///< below, ellipsoids are balls of hundreds of metres
inline constexpr double HighestMHz = 1e6; ///< 1 THz

/// A link between the centres of two antennas; x east, y north, z up, metres.
struct LinkObject
{
    osg::Vec3d a;
    osg::Vec3d b;
    double frequencyMHz = 0;    ///< 0: unknown, no ellipsoid
    std::optional<Color> color; ///< of the line of sight, instead of the look's
};

/// Gives the text of an item ("link_style"). @throws BadQuery  missing or doubled
using ItemText = std::function<std::string(std::string_view key)>;

/// What " clearance" behind the colour of links stands for.
enum class ClearanceWord { Refused, Accepted };

/// Reads link_style ("LINE", "TUBE", "BILLBOARD"), link_width, link_color ("rrggbbaa", perhaps
/// "rrggbbaa clearance"), fresnel_zone, fresnel_share (per cent), fresnel_color and k_factor.
///
/// @throws BadQuery  naming the item that is missing or cannot be used
LinkLook readLinkLook(const ItemText &item, ClearanceWord clearance);

} // namespace vlt::scene
