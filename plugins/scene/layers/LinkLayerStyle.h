#pragma once

#include "linkpath/Clearance.h"
#include "plugins/scene/layers/SiteStyle.h"
#include "plugins/scene/parametric/LinkObject.h"

namespace vlt::scene {

/// How the links of a layer and the pylons at their ends look, and by what they are judged.
struct LinkLayerStyle
{
    SiteStyle pylons;
    LinkLook look;

    linkpath::ClearanceRule rule() const { return {look.fresnelShare, look.kFactor}; }
};

/// Reads the options of readSiteStyle() and readLinkLook().
///
/// @throws BadQuery  naming an option that is missing or a value that cannot be used
LinkLayerStyle readLinkLayerStyle(const contract::ConnectionString &source);

} // namespace vlt::scene
