#include "sites/PylonTypes.h"

#include "contract/Installation.h"
#include "platform/Paths.h"
#include "sites/CatalogueNames.h"

#include <QDomDocument>
#include <QFile>

namespace vlt::sites {

QList<PylonType> loadPylonTypes(const QString &installDir, const QString &language)
{
    QFile file(platform::installedFile(installDir, contract::PylonFolder, PylonCatalogue));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return {};

    QList<PylonType> types;
    const QDomNodeList elements = document.elementsByTagName(QStringLiteral("pylon"));
    for (int i = 0; i < elements.size(); ++i) {
        const QDomElement element = elements.at(i).toElement();
        types << PylonType{element.attribute(QStringLiteral("type")),
                           element.attribute(QStringLiteral("description_") + language),
                           {},
                           catalogueNames(element)};
    }
    return types;
}

} // namespace vlt::sites
