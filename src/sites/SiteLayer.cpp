#include "sites/SiteLayer.h"

#include "language/VltLanguageManager.h"
#include "sites/SiteInfoPage.h"
#include "text/Templates.h"

#include <QFileInfo>

namespace vlt::sites {

QString siteQuery(const SiteLayerInput &input)
{
    return buildPylonQuery(
        {QStringLiteral("site"), input.sourceSrs, input.targetSrs, input.file.filePath, {}},
        input.representation, input.catalogues, input.project);
}

QString placingConnection(const SiteLayerInput &input)
{
    QString connection = QStringLiteral("site:");
    if (!input.sourceSrs.isEmpty())
        connection += QStringLiteral("s_srs=") + input.sourceSrs + QLatin1Char(',');
    if (!input.targetSrs.isEmpty())
        connection += QStringLiteral("t_srs=") + input.targetSrs + QLatin1Char(',');
    return connection + QFileInfo(input.file.filePath).absoluteFilePath();
}

Result<SiteLayer> makeSiteLayer(const SiteLayerInput &input)
{
    const Result<QString> layerTemplate = readConfigurationFile(
        input.installDir + QStringLiteral("/addons/telecom/pylons/template_sites.lay"));
    if (!layerTemplate)
        return layerTemplate.error();

    SiteLayer layer;
    const QString query = siteQuery(input);
    const Result<QString> page =
        buildSiteInfoHtml(query, input.language, input.installDir, input.project.directory());
    if (!page)
        layer.warning = page.error();
    layer.text = text::replacePlaceholders(
        layerTemplate.value(), {{QStringLiteral("__TITLE__"), dico_label("MESS_SITES", "Sites")},
                                {QStringLiteral("__SITE_URL__"), query},
                                {QStringLiteral("__LAYER__"), input.file.layerName},
                                {QStringLiteral("__SITE_FIELD__"), input.file.nameField},
                                {QStringLiteral("__Desc__"), page ? page.value() : QString()}});
    return layer;
}

Result<Done> writeSiteLayer(const QString &path, const QString &text, platform::Access access,
                            QString *reason)
{
    Result<Done> written = platform::writeWhole(path, text.toUtf8(), access);
    if (written)
        return written;
    if (reason)
        *reason = written.error().text;
    return Error{QStringLiteral("MESS_CANT_CREATE_LAYER"),
                 QStringLiteral("Can't create the layer file"), path};
}

} // namespace vlt::sites
