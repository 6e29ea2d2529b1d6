#include "tables/TableLayer.h"

#include "contract/Installation.h"
#include "platform/ConfigurationFile.h"
#include "platform/Paths.h"

namespace vlt::tables {

Result<TableLayer> fillLayer(const QString &installDir, const QString &templateName,
                             std::vector<text::Replacement> values, const Result<QString> &page)
{
    const Result<QString> layerTemplate = platform::readConfigurationFile(
        platform::installedFile(installDir, contract::PylonFolder, templateName));
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
