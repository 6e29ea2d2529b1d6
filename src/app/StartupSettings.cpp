#include "app/StartupSettings.h"

#include "platform/IniFile.h"
#include "platform/Paths.h"
#include "platform/Settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vlt::app {

namespace {

/// Contents of the ini file: values, or references "application/key" to values elsewhere.
struct IniSettings
{
    StartupSettings values;
    QString languageReference;
    QString installDirReference;
};

QString executableDirectory(const QString &executablePath)
{
    return executablePath.isEmpty() ? QString() : QFileInfo(executablePath).absolutePath();
}

IniSettings readIniSettings(const platform::IniFile &ini, const QString &executableDir,
                            bool wantMessagesDir)
{
    const QString direct = QStringLiteral("VltDirectSettings");
    const QString references = QStringLiteral("VltRegisterKeys");
    IniSettings found;

    found.values.language = ini.value(direct, QStringLiteral("LANGUAGE"));
    if (found.values.language.isEmpty())
        found.languageReference = ini.value(references, QStringLiteral("VltRegKey_Language"));

    found.values.installDir = ini.value(direct, QStringLiteral("INSTALL_DIR"));
    if (QDir::isRelativePath(found.values.installDir)) // also if it is empty
        found.values.installDir = executableDir;
    if (found.values.installDir.isEmpty())
        found.installDirReference = ini.value(references, QStringLiteral("VltRegKey_InstallDir"));

    // VltRegKey_MessagesDir is not used: without MESSAGES_DIR there is the default
    if (wantMessagesDir)
        found.values.messagesDir = ini.value(direct, QStringLiteral("MESSAGES_DIR"));
    return found;
}

/// The value of a reference: the name of the application, "/" and the key, which may also contain
/// "/".
QString referencedValue(const QString &reference, const QString &defaultValue)
{
    const QString application = reference.section(QLatin1Char('/'), 0, 0);
    const QString key = reference.section(QLatin1Char('/'), 1);
    if (application.isEmpty() || key.isEmpty())
        return defaultValue;
    return platform::userSettings(application)->value(key, defaultValue).toString();
}

} // namespace

QString environmentIniPath(const QString &executablePath)
{
    QString base = executablePath;
    if (base.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive))
        base.chop(4);
    QString own = base + QStringLiteral("_env.ini");
    if (QFileInfo::exists(own))
        return own;
    return executableDirectory(executablePath) + platform::separator(platform::nativePathStyle()) +
           QStringLiteral("setup_env.ini");
}

QString systemLanguage(const QLocale &locale)
{
    return locale.language() == QLocale::French ? QStringLiteral("FRENCH")
                                                : QStringLiteral("ENGLISH");
}

StartupSettings resolveStartupSettings(const QString &executablePath, bool wantMessagesDir)
{
    const QString executableDir = executableDirectory(executablePath);
    IniSettings found;
    if (const Result<platform::IniFile> ini =
            platform::IniFile::open(environmentIniPath(executablePath)))
        found = readIniSettings(ini.value(), executableDir, wantMessagesDir);

    StartupSettings settings = found.values;
    if (settings.language.isEmpty())
        settings.language =
            referencedValue(found.languageReference, systemLanguage(QLocale::system()));
    if (settings.installDir.isEmpty())
        settings.installDir = referencedValue(found.installDirReference, executableDir);
    if (wantMessagesDir && settings.messagesDir.isEmpty())
        settings.messagesDir = QStringLiteral("MESSAGES");

    qputenv("VLT_BIN_HOME", QFile::encodeName(settings.installDir));
    return settings;
}

} // namespace vlt::app
