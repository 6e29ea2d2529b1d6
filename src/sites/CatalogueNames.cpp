#include "sites/CatalogueNames.h"

#include <QMap>

namespace vlt::sites {

QStringList catalogueNames(const QDomElement &entry)
{
    QMap<QString, QString> byLanguage;
    const QDomNamedNodeMap attributes = entry.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        if (attribute.name().startsWith(QLatin1String("description_")) &&
            !attribute.value().isEmpty())
            byLanguage.insert(attribute.name(), attribute.value());
    }
    QStringList names = byLanguage.values();
    names.removeDuplicates();
    return names;
}

} // namespace vlt::sites
