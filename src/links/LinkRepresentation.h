#pragma once

#include "sites/RepresentationLimits.h"

#include <QColor>
#include <QString>
#include <QStringList>

namespace vlt::links {

/// How the line of sight is drawn.
enum class LinkStyle {
    Line,      ///< width in pixels, the same from everywhere
    Tube,      ///< width in metres, round
    Billboard, ///< width in metres, a flat band that turns to the viewer
};

/// How links are drawn and judged; the values are those of a first run.
struct LinkRepresentation
{
    LinkStyle style = LinkStyle::Line;
    double width = 2;               ///< pixels or metres, see LinkStyle
    QColor color{0xe0, 0x21, 0x8a}; ///< of the line of sight; its alpha is written
    bool colorByClearance = false;  ///< judged links take the colour of their verdict
    bool showFresnel = true;        ///< whether a Fresnel ellipsoid is drawn
    int fresnelZone = 1;            ///< number of the zone
    int fresnelShare = 60;          ///< per cent of the radius: drawn, and asked to be free
    QColor fresnelColor{0xff, 0xa5, 0x00};
    int fresnelTransparency = 60; ///< per cent
    double kFactor = 1.33333;     ///< of the earth's radius

    bool operator==(const LinkRepresentation &) const = default;
};

inline constexpr sites::Limits LinkWidthLimits{0.1, 1000};
inline constexpr sites::Limits FresnelZoneLimits{1, 10};
inline constexpr sites::Limits FresnelShareLimits{1, 100};
inline constexpr sites::Limits FresnelTransparencyLimits{0, 100};
inline constexpr sites::Limits KFactorLimits{0.1, 100};

/// "LINE", "TUBE" or "BILLBOARD".
QString linkStyleText(LinkStyle style);

/// The parameters of linkQueryPart() one by one, without " clearance".
QStringList linkParameters(const LinkRepresentation &representation);

/// Where linkParameters() has the colour of links.
inline constexpr int LinkColorParameter = 2;

/// The part of a pylon query that is about links:
/// "link_style=LINE,link_width=2,link_color=e0218aff,fresnel_zone=1,fresnel_share=60,
/// fresnel_color=ffa50066,k_factor=1.33333". A zone of 0 stands for no ellipsoid; behind the link
/// colour " clearance" stands where the verdict gives the colour.
QString linkQueryPart(const LinkRepresentation &representation);

} // namespace vlt::links
