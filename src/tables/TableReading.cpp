#include "tables/TableReading.h"

#include "contract/QueryOptions.h"

#include <QLocale>
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
    if (!encoding.isEmpty() ||
        (sheet.contains(QLatin1Char(',')) && delimiter.isEmpty() && !swapsAxes))
        add(contract::query::Encoding, encoding);
    if (!delimiter.isEmpty())
        add(contract::query::Delimiter, delimiter);
    if (swapsAxes)
        add(contract::query::Axes, QLatin1String(contract::query::SwappedAxes));
    if (!sectors.isEmpty())
        add(contract::query::Sectors, sectors);
    if (!endSites.isEmpty())
        add(contract::query::EndSites, endSites);
    if (!columns.isEmpty())
        add(contract::query::Columns, columns);
    return parts.join(QLatin1Char(','));
}

QString TableReading::connection(contract::TableKind kind, const QString &path,
                                 const QString &systems) const
{
    const QString how = parameters();
    return QLatin1String(contract::connectionPrefix(kind).data()) + systems +
           (how.isEmpty() ? how : how + QLatin1Char(',')) + path;
}

QString withTerrain(const QString &connection, const std::optional<geodata::SrsBounds> &area)
{
    if (!area)
        return connection;
    QStringList sides;
    for (const double side : {area->west, area->south, area->east, area->north})
        sides << QString::number(side, 'g', QLocale::FloatingPointShortest);
    QString text = connection;
    return text.insert(connection.indexOf(QLatin1Char(':')) + 1,
                       QLatin1String(contract::query::Extent) + QLatin1Char('=') +
                           sides.join(QLatin1Char(' ')) + QLatin1Char(','));
}

} // namespace vlt::tables
