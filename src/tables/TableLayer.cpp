#include "tables/TableLayer.h"

#include "contract/Installation.h"
#include "platform/ConfigurationFile.h"

namespace vlt::tables {

Result<TableLayer> fillLayer(const QString &installDir, const QString &templateName,
                             std::vector<text::Replacement> values, const Result<QString> &page)
{
    const Result<QString> layerTemplate = platform::readConfigurationFile(
        installDir + QLatin1Char('/') + QLatin1String(contract::PylonFolder) + QLatin1Char('/') +
        templateName);
    if (!layerTemplate)
        return layerTemplate.error();

    TableLayer layer;
    if (!page)
        layer.warning = page.error();
    values.emplace_back(QStringLiteral("__Desc__"), page ? page.value() : QString());
    layer.text = text::replacePlaceholders(layerTemplate.value(), values);
    return layer;
}

} // namespace vlt::tables
