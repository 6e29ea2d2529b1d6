#pragma once

#include "linkpath/Clearance.h"
#include "plugins/scene/layers/SiteStyle.h"
#include "plugins/scene/parametric/LinkObject.h"

namespace vlt::scene {

/// The appearance of the links of a layer and of the pylons at their ends, and the required
/// clearance.
struct LinkLayerStyle
{
    SiteStyle pylons;
    LinkAppearance appearance;

    linkpath::ClearanceRule rule() const { return {appearance.fresnelShare, appearance.kFactor}; }
};

/// Reads the options of readSiteStyle() and readLinkAppearance().
///
/// @throws BadQuery  An option is missing or invalid; the text names it.
LinkLayerStyle readLinkLayerStyle(const contract::ConnectionString &source);

} // namespace vlt::scene
