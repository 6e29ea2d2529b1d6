#include "sites/SiteLayer.h"

#include "language/VltLanguageManager.h"
#include "sites/SiteInfoPage.h"

namespace vlt::sites {

namespace {

PylonQuery queryOf(const SiteLayerInput &input)
{
    return {contract::TableKind::Sites, input.sourceSrs, input.targetSrs, input.file.filePath, {},
            input.file.reading};
}

} // namespace

QString siteQuery(const SiteLayerInput &input)
{
    return buildPylonQuery(queryOf(input), input.representation, input.catalogues, input.project);
}

QString placingConnection(const SiteLayerInput &input)
{
    return placingConnection(queryOf(input));
}

Result<tables::TableLayer> makeSiteLayer(const SiteLayerInput &input)
{
    if (const auto missing =
            missingChoice(input.representation, input.catalogues, input.installDir))
        return *missing;
    const QString query = siteQuery(input);
    return tables::fillLayer(
        input.installDir, QStringLiteral("template_sites.lay"),
        {{QStringLiteral("__TITLE__"), dico_label("MESS_SITES", "Sites")},
         {QStringLiteral("__SITE_URL__"), query},
         {QStringLiteral("__LAYER__"), input.file.layerName},
         {QStringLiteral("__SITE_FIELD__"), input.file.nameField}},
        buildSiteInfoHtml(input.file.columns, input.language, input.installDir));
}

} // namespace vlt::sites
