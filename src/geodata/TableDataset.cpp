#include "geodata/TableDataset.h"

#include <QFile>

namespace vlt::geodata {

namespace {

bool isTableConnection(const QString &connection)
{
    return connection.startsWith(QLatin1String("site:"), Qt::CaseInsensitive) ||
           connection.startsWith(QLatin1String("link:"), Qt::CaseInsensitive);
}

} // namespace

Result<GDALDatasetUniquePtr> openTable(const QString &connection, const ErrorCollector &errors)
{
    if (!isTableConnection(connection))
        return Error{QString(), QStringLiteral("not a site or link table"), connection};

    // The path at the end has the file system's encoding; the options before it are ASCII.
    GDALDatasetUniquePtr dataset(
        GDALDataset::Open(QFile::encodeName(connection).constData(), GDAL_OF_VECTOR));
    if (!dataset)
        return Error{QString(), errors.failure(QStringLiteral("no driver for it was found")), {}};
    return dataset;
}

} // namespace vlt::geodata
