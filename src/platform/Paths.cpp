#include "platform/Paths.h"

#include <QDir>

namespace vlt::platform {

namespace {

constexpr qsizetype MaxTempDirectoryLength = 259;

} // namespace

PathStyle nativePathStyle()
{
#ifdef Q_OS_WIN
    return PathStyle::Windows;
#else
    return PathStyle::Posix;
#endif
}

QChar separator(PathStyle style)
{
    return style == PathStyle::Windows ? u'\\' : u'/';
}

QChar listSeparator(PathStyle style)
{
    return style == PathStyle::Windows ? u';' : u':';
}

QString withSeparators(QString path, PathStyle style)
{
    return path.replace(QLatin1Char('/'), separator(style));
}

QString installedFile(const QString &installDir, const char *folder, const QString &name)
{
    return installDir + QLatin1Char('/') + QLatin1String(folder) + QLatin1Char('/') + name;
}

QString systemTempDirectory()
{
    const QString directory = QDir::tempPath() + QLatin1Char('/');
    // Qt returns the root if there is no such directory
    if (directory.size() > MaxTempDirectoryLength || QDir(directory).isRoot())
        return QStringLiteral(".");
    return withSeparators(directory, nativePathStyle());
}

} // namespace vlt::platform
