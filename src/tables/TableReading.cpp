#include "tables/TableReading.h"

#include "contract/QueryOptions.h"

#include <QStringList>

namespace vlt::tables {

QString TableReading::parameters() const
{
    QStringList parts;
    const auto add = [&parts](const char *key, const QString &value) {
        parts << QLatin1String(key) + QLatin1Char('=') + value;
    };
    if (!sheet.isEmpty())
        add(contract::query::Sheet, sheet);
    // a sheet's name may hold commas: then it reaches up to the next key
    if (!encoding.isEmpty() || (sheet.contains(QLatin1Char(',')) && delimiter.isEmpty()))
        add(contract::query::Encoding, encoding);
    if (!delimiter.isEmpty())
        add(contract::query::Delimiter, delimiter);
    return parts.join(QLatin1Char(','));
}

QString TableReading::connection(contract::TableKind kind, const QString &path,
                                 const QString &systems) const
{
    const QString how = parameters();
    return QLatin1String(contract::connectionPrefix(kind).data()) + systems +
           (how.isEmpty() ? how : how + QLatin1Char(',')) + path;
}

} // namespace vlt::tables
