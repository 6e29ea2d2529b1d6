#pragma once

#include "platform/Result.h"
#include "sites/PylonQuery.h"
#include "sites/SiteFileInfo.h"
#include "tables/TableLayer.h"

namespace vlt::sites {

/// All inputs of a site layer.
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

/// The connection that reads the sites of a layer with their coordinate systems, without the
/// options of their representation; its path is absolute.
QString placingConnection(const SiteLayerInput &input);

/// Makes the text of the layer file from the installation's "template_sites.lay".
///
/// @par Errors   those of missingChoice(); MESS_MISSING_CONF_FILE with the template's path.
Result<tables::TableLayer> makeSiteLayer(const SiteLayerInput &input);

} // namespace vlt::sites
