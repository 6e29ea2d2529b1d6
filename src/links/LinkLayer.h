#pragma once

#include "links/LinkFileInfo.h"
#include "links/LinkRepresentation.h"
#include "sites/SiteLayer.h"

namespace vlt::links {

/// All inputs of a link layer.
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

/// The query of the layer; empty if no pylon type or no colour set is chosen.
QString linkQuery(const LinkLayerInput &input);

/// The connection that reads the links of a layer with their coordinate systems, without the
/// options of their representation; its path is absolute.
QString placingConnection(const LinkLayerInput &input);

/// Makes the text of the layer file from the installation's "template_links.lay".
///
/// @par Errors   those of sites::missingChoice(); MESS_MISSING_CONF_FILE with the template's path.
Result<tables::TableLayer> makeLinkLayer(const LinkLayerInput &input);

/// The name by which the scene library loads the demonstration: three pylons, two links with their
/// Fresnel ellipsoids. Empty if no pylon type or no colour set is chosen.
QString buildPreviewLinkUrl(const sites::SiteRepresentation &pylons,
                            const LinkRepresentation &links,
                            const sites::SiteCatalogues &catalogues, const QString &installDir);

} // namespace vlt::links
