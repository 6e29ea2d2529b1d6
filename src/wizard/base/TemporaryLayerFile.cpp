#include "wizard/base/TemporaryLayerFile.h"

#include "platform/Paths.h"

#include <QCoreApplication>

namespace vlt::wizard {

QString temporaryLayerFileName(const QString &name)
{
    // One call of arg() for all three, so that a directory named "%2" is not replaced.
    const QString path = QStringLiteral("%1/tempLayer_%2_%3.lay")
                             .arg(platform::systemTempDirectory(), name,
                                  QString::number(QCoreApplication::applicationPid()));
    return platform::withSeparators(path, platform::nativePathStyle());
}

} // namespace vlt::wizard
