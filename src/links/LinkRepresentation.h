#pragma once

#include "contract/QueryOptions.h"

#include <QColor>
#include <QString>
#include <QStringList>

namespace vlt::links {

using contract::LinkStyle;

/// The representation of links and the values that determine their clearance, with the values of a
/// first run. QueryOptions.h has the ranges.
struct LinkRepresentation
{
    LinkStyle style = LinkStyle::Line;
    /// Width of the line of sight in pixels or metres, see LinkStyle.
    double width = contract::query::LinkWidthPixelsOrM.firstRun;
    /// Colour of the line of sight; its alpha value is written too.
    QColor color{QLatin1String(contract::query::FirstLinkColor)};
    /// Whether links have the colour of their clearance if it is known.
    bool colorByClearance = false;
    /// Whether a Fresnel ellipsoid is drawn.
    bool showFresnel = true;
    int fresnelZone = contract::query::FresnelZoneNumber.firstRun;
    /// Share of the zone's radius that is drawn and that must be free of terrain.
    int fresnelSharePercent = contract::query::FresnelSharePercent.firstRun;
    QColor fresnelColor{QLatin1String(contract::query::FirstFresnelColor)};
    int fresnelTransparencyPercent = contract::query::FresnelTransparencyPercent.firstRun;
    /// Factor for the earth's radius.
    double kFactor = contract::query::KFactorNumber.firstRun;

    bool operator==(const LinkRepresentation &) const = default;
};

/// "LINE", "TUBE" or "BILLBOARD".
QString linkStyleText(LinkStyle style);

/// Whether the text of the link colour ends in the word that gives links the colour of their
/// clearance.
enum class ClearanceWord { Never, WhereChosen };

/// The options of links, "link_style=LINE" and so on to "k_factor=1.33333", in the order of
/// queries.
QStringList linkOptionTexts(const LinkRepresentation &representation, ClearanceWord clearance);

/// The part of a pylon query for links:
/// "link_style=LINE,link_width=2,link_color=e0218aff,fresnel_zone=1,fresnel_share=60,
/// fresnel_color=ffa50066,k_factor=1.33333". A zone of 0 means no ellipsoid. " clearance" follows
/// the link colour if the clearance gives the colour.
QString linkQueryPart(const LinkRepresentation &representation);

} // namespace vlt::links
