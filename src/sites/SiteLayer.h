#pragma once

#include "platform/Result.h"
#include "sites/PylonQuery.h"
#include "sites/SiteFileInfo.h"
#include "text/Templates.h"

#include <optional>

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

/// A finished layer.
struct SiteLayer
{
    QString text;
    /// MESS_MISSING_CONF_FILE where the information page's template is missing: the layer has no
    /// page then.
    std::optional<Error> warning;
};

/// The query of the layer, buildPylonQuery() for a site table.
QString siteQuery(const SiteLayerInput &input);

/// The connection by which the sites of a layer are read and placed, without their look; its path
/// is absolute.
QString placingConnection(const SiteLayerInput &input);

/// The text of the layer file, out of the installation's "template_sites.lay".
///
/// @par Errors   those of missingChoice(); MESS_MISSING_CONF_FILE with the template's path.
Result<SiteLayer> makeSiteLayer(const SiteLayerInput &input);

/// The text of a layer file out of a template of the pylons' folder.
///
/// @param values  placeholders and their texts, but for the page's
/// @param page    HTML page of the picked object; without it the layer comes with a warning
/// @par Errors    MESS_MISSING_CONF_FILE with the template's path.
Result<SiteLayer> fillLayer(const QString &installDir, const QString &templateName,
                            std::vector<text::Replacement> values, const Result<QString> &page);

} // namespace vlt::sites
