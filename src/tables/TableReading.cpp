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
    // The name of a sheet may contain commas; the parser then needs a key after it to find its end.
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
