#include "buildings/BuildingLayer.h"

#include "contract/Installation.h"
#include "platform/ConfigurationFile.h"
#include "platform/LayerFile.h"
#include "platform/Paths.h"
#include "text/Numbers.h"
#include "text/Templates.h"

namespace vlt::buildings {

QString subtypeName(TexbSubtype subtype)
{
    switch (subtype) {
    case TexbSubtype::Colored:
        return QStringLiteral("rf_colored_buildings");
    case TexbSubtype::Roofs:
        return QStringLiteral("rf_roofs");
    case TexbSubtype::Walls:
        return QStringLiteral("rf_walls");
    case TexbSubtype::Storeys:
        break;
    }
    return QStringLiteral("rf_storeys");
}

TexbSubtype subtypeOf(contract::TextureMode mode)
{
    switch (mode) {
    case contract::TextureMode::Roofs:
        return TexbSubtype::Roofs;
    case contract::TextureMode::Walls:
        return TexbSubtype::Walls;
    case contract::TextureMode::Storeys:
        break;
    }
    return TexbSubtype::Storeys;
}

QString texbUrl(const QString &documentPath)
{
    return QLatin1String(contract::BuildingSourcePrefix) + documentPath +
           QLatin1String(contract::BuildingDocumentSuffix);
}

QString texbTemplatePath(const QString &installDir)
{
    return platform::installedFile(installDir, contract::BuildingTemplateFolder,
                                   QStringLiteral("template_texb.lay"));
}

Result<Done> createTexbLayerFile(const QString &outputPath, const QString &templatePath,
                                 const TexbLayer &layer, platform::Access access)
{
    const Result<QString> layerTemplate = platform::readConfigurationFile(templatePath);
    if (!layerTemplate)
        return layerTemplate.error();
    const QString text = text::replacePlaceholders(
        layerTemplate.value(), {{QStringLiteral("__TITLE__"), layer.title},
                                {QStringLiteral("__DESCRIPTION__"), layer.description},
                                {QStringLiteral("__SUBTYPE__"), subtypeName(layer.subtype)},
                                {QStringLiteral("__TEXB_URL__"), layer.url},
                                {QStringLiteral("__X_CENTER__"), text::g9(layer.xCenter)},
                                {QStringLiteral("__Y_CENTER__"), text::g9(layer.yCenter)}});
    return platform::writeLayerFile(outputPath, text, access);
}

} // namespace vlt::buildings
