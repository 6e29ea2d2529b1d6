#include "platform/ConfigurationFile.h"

#include "platform/TextDecoding.h"

#include <QFile>

namespace vlt::platform {

Result<QString> readConfigurationFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error{QStringLiteral("MESS_MISSING_CONF_FILE"),
                     QStringLiteral("A configuration file is missing"), path};
    return decodeText(file.readAll());
}

} // namespace vlt::platform
