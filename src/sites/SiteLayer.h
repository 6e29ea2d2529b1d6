#pragma once

#include "platform/Result.h"
#include "sites/PylonQuery.h"
#include "sites/SiteFileInfo.h"
#include "tables/TableLayer.h"

namespace vlt::sites {

/// Everything that a site layer is made of.
struct SiteLayerInput
{
    SiteFileInfo file;
    QString sourceSrs; ///< as chosen, may be empty
    QString targetSrs; ///< as chosen, may be empty
    SiteRepresentation representation;
    SiteCatalogues catalogues;
    project::ProjectContext project;
    QString installDir;
    QString language; ///< language code
};

/// The query of the layer, buildPylonQuery() for a site table.
QString siteQuery(const SiteLayerInput &input);

/// The connection by which the sites of a layer are read and placed, without their look; its path
/// is absolute.
QString placingConnection(const SiteLayerInput &input);

/// The text of the layer file, out of the installation's "template_sites.lay".
///
/// @par Errors   those of missingChoice(); MESS_MISSING_CONF_FILE with the template's path.
Result<tables::TableLayer> makeSiteLayer(const SiteLayerInput &input);

} // namespace vlt::sites
