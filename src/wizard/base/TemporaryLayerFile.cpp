#include "wizard/base/TemporaryLayerFile.h"

#include "platform/Paths.h"

#include <QCoreApplication>

namespace vlt::wizard {

QString temporaryLayerFileName(const QString &name)
{
    // the three arguments in one call: a directory called "%2" stays what it is
    const QString path = QStringLiteral("%1/tempLayer_%2_%3.lay")
                             .arg(platform::systemTempDirectory(), name,
                                  QString::number(QCoreApplication::applicationPid()));
    return platform::withSeparators(path, platform::nativePathStyle());
}

} // namespace vlt::wizard
