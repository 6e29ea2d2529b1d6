#include "tables/ResolvedConnection.h"

#include "contract/ConnectionString.h"

#include <QFile>

namespace vlt::tables {

QString resolvedConnection(const QString &connection, const QString &projectDirectory)
{
    if (projectDirectory.isEmpty())
        return connection;
    return QFile::decodeName(QByteArray::fromStdString(
        contract::resolvedConnection(QFile::encodeName(connection).toStdString(),
                                     QFile::encodeName(projectDirectory).toStdString())));
}

} // namespace vlt::tables
