#pragma once

#include "contract/QueryOptions.h"

#include <QColor>
#include <QString>
#include <QStringList>

namespace vlt::links {

using contract::LinkStyle;

/// How links are drawn and by what their clearance is found; the values are those of a first run.
/// QueryOptions.h has the ranges.
struct LinkRepresentation
{
    LinkStyle style = LinkStyle::Line;
    /// Pixels or metres, see LinkStyle.
    double width = contract::query::LinkWidthPixelsOrM.firstRun;
    /// Of the line of sight; its alpha is written.
    QColor color{QLatin1String(contract::query::FirstLinkColor)};
    /// Whether links take the colour of their clearance where it is known.
    bool colorByClearance = false;
    /// Whether a Fresnel ellipsoid is drawn.
    bool showFresnel = true;
    int fresnelZone = contract::query::FresnelZoneNumber.firstRun;
    /// Of the radius: drawn, and to be left free by the terrain.
    int fresnelSharePercent = contract::query::FresnelSharePercent.firstRun;
    QColor fresnelColor{QLatin1String(contract::query::FirstFresnelColor)};
    int fresnelTransparencyPercent = contract::query::FresnelTransparencyPercent.firstRun;
    /// Of the earth's radius.
    double kFactor = contract::query::KFactorNumber.firstRun;

    bool operator==(const LinkRepresentation &) const = default;
};

/// "LINE", "TUBE" or "BILLBOARD".
QString linkStyleText(LinkStyle style);

/// Whether the text of the link colour ends in the word by which links take the colour of their
/// clearance.
enum class ClearanceWord { Never, WhereChosen };

/// The options of links, "link_style=LINE" and so on to "k_factor=1.33333", in the order of
/// queries.
QStringList linkOptionTexts(const LinkRepresentation &representation, ClearanceWord clearance);

/// The part of a pylon query that is about links:
/// "link_style=LINE,link_width=2,link_color=e0218aff,fresnel_zone=1,fresnel_share=60,
/// fresnel_color=ffa50066,k_factor=1.33333". A zone of 0 stands for no ellipsoid; behind the link
/// colour " clearance" stands where the clearance gives the colour.
QString linkQueryPart(const LinkRepresentation &representation);

} // namespace vlt::links
