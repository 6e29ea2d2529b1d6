#pragma once

#include "links/LinkFileInfo.h"
#include "links/LinkRepresentation.h"
#include "sites/SiteLayer.h"

namespace vlt::links {

/// Everything that a link layer is made of.
struct LinkLayerInput
{
    LinkFileInfo file;
    QString sourceSrs; ///< as chosen, may be empty
    QString targetSrs; ///< as chosen, may be empty
    sites::SiteRepresentation pylons;
    LinkRepresentation links;
    sites::SiteCatalogues catalogues;
    project::ProjectContext project;
    QString installDir;
    QString language; ///< language code
};

/// The query of the layer; empty where no pylon type or no colour set is chosen.
QString linkQuery(const LinkLayerInput &input);

/// The connection by which the links of a layer are read and placed, without their look; its path
/// is absolute.
QString placingConnection(const LinkLayerInput &input);

/// The text of the layer file, out of the installation's "template_links.lay".
///
/// @par Errors   those of sites::missingChoice(); MESS_MISSING_CONF_FILE with the template's path.
Result<tables::TableLayer> makeLinkLayer(const LinkLayerInput &input);

/// The name under which the scene library loads the demonstration: three pylons, two links with
/// their Fresnel ellipsoids. Empty where no pylon type or no colour set is chosen.
QString buildPreviewLinkUrl(const sites::SiteRepresentation &pylons,
                            const LinkRepresentation &links,
                            const sites::SiteCatalogues &catalogues, const QString &installDir);

} // namespace vlt::links
