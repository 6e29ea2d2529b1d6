#include "geodata/TableExcerpt.h"

#include "contract/TableMetadata.h"
#include "geodata/TableDataset.h"
#include "geodata/TableRoles.h"

#include <cpl_string.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vlt::geodata {

namespace {

namespace excerpt = contract::metadata::excerpt;

QJsonArray listIn(const QJsonObject &object, const char *name)
{
    return object.value(QLatin1String(name)).toArray();
}

QStringList textsIn(const QJsonObject &object, const char *name)
{
    return QVariant(listIn(object, name).toVariantList()).toStringList();
}

QList<qint64> numbersIn(const QJsonObject &object, const char *name)
{
    QList<qint64> numbers;
    for (const QJsonValue number : listIn(object, name))
        numbers << number.toInteger();
    return numbers;
}

TableExcerpt excerptOf(GDALDataset &dataset)
{
    char **items = dataset.GetMetadata(contract::metadata::ExcerptDomain);
    const QJsonObject object =
        QJsonDocument::fromJson(items && *items ? QByteArray(*items) : QByteArray()).object();
    TableExcerpt read;
    read.sheet = object.value(QLatin1String(excerpt::Sheet)).toString();
    read.sheets = textsIn(object, excerpt::Sheets);
    read.headerRows = numbersIn(object, excerpt::HeaderRows);
    read.furtherRows = numbersIn(object, excerpt::FurtherRows);
    for (const QJsonValue column : listIn(object, excerpt::Columns))
        read.columns.append({column[QLatin1String(excerpt::Name)].toString(),
                             column[QLatin1String(excerpt::Position)].toInt()});
    for (const QJsonValue row : listIn(object, excerpt::Rows))
        read.rows.append({row[QLatin1String(excerpt::Row)].toInteger(),
                          textsIn(row.toObject(), excerpt::Cells)});
    return read;
}

} // namespace

Result<TableExcerpt> readTableExcerpt(const QString &connection)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    return dataset ? excerptOf(*dataset.value()) : Result<TableExcerpt>(dataset.error());
}

Result<TableOverview> readTableOverview(const QString &connection)
{
    const ErrorCollector errors;
    CPLStringList options;
    options.SetNameValue(contract::metadata::OverviewOption, "YES");
    const auto dataset = openTable(connection, errors, options.List());
    if (!dataset)
        return dataset.error();

    OGRLayer *layer = dataset.value()->GetLayer(0);
    GDALMajorObject *understood = dataset.value().get();
    return TableOverview{excerptOf(*dataset.value()), rolesIn(layer ? *layer : *understood)};
}

} // namespace vlt::geodata
