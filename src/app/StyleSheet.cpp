#include "app/StyleSheet.h"

#include <QFile>

namespace vlt::app {

QString readStyleSheet(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

QString startupStyleSheet(const QString &requested)
{
    const QString folder = QStringLiteral(":/VltTelecomLayers/qss/");
    const QString second = requested.isEmpty() ? folder + QStringLiteral("VltTelecomLayers.qss")
                                               : requested.section(QStringLiteral("file:///"), 1);
    return QStringLiteral("%1\n\n%2")
        .arg(readStyleSheet(folder + QStringLiteral("global.qss")), readStyleSheet(second));
}

} // namespace vlt::app
