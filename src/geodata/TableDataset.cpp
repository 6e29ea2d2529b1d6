#include "geodata/TableDataset.h"

#include "contract/TableKind.h"
#include "contract/TableTexts.h"

#include <QFile>

namespace vlt::geodata {

namespace {

/// The reason without the table's path at its start: messages name the file separately.
QString withoutPath(const QString &reason, const QString &connection)
{
    const QLatin1String mark(": ");
    for (qsizetype at = reason.indexOf(mark); at > 0; at = reason.indexOf(mark, at + 1)) {
        if (connection.endsWith(reason.left(at)))
            return reason.mid(at + mark.size());
    }
    return reason;
}

} // namespace

Result<GDALDatasetUniquePtr> openTable(const QString &connection, const ErrorCollector &errors,
                                       const char *const *options)
{
    if (!contract::connectionKind(connection.toStdString()))
        return Error::asIs(QStringLiteral("not a site or link table"), connection);

    // The path at the end is in the file system's encoding; the options before it are ASCII.
    GDALDatasetUniquePtr dataset(GDALDataset::Open(QFile::encodeName(connection).constData(),
                                                   GDAL_OF_VECTOR, nullptr, options));
    if (!dataset) {
        const QString noReader = QString::fromStdString(contract::formatted("MESS_TAB_NO_READER"));
        return Error::fromLibrary(withoutPath(errors.failure(noReader), connection));
    }
    return dataset;
}

} // namespace vlt::geodata
