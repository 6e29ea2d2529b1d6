#include "tables/TableReading.h"

#include <QStringList>

namespace vlt::tables {

QString TableReading::parameters() const
{
    QStringList parts;
    if (!sheet.isEmpty())
        parts << QStringLiteral("sheet=") + sheet;
    // a sheet's name may hold commas: then it reaches up to the next key
    if (!encoding.isEmpty() || (sheet.contains(QLatin1Char(',')) && delimiter.isEmpty()))
        parts << QStringLiteral("encoding=") + encoding;
    if (!delimiter.isEmpty())
        parts << QStringLiteral("delimiter=") + delimiter;
    return parts.join(QLatin1Char(','));
}

QString TableReading::connection(const QString &prefix, const QString &path) const
{
    const QString how = parameters();
    return prefix + (how.isEmpty() ? how : how + QLatin1Char(',')) + path;
}

} // namespace vlt::tables
