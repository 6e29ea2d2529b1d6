#pragma once

#include <QLocale>
#include <QString>

namespace vlt::app {

/// Settings that are determined once at the start.
struct StartupSettings
{
    QString language;    ///< in a form that the language manager accepts: "FRENCH", "fr" ...
    QString installDir;  ///< root of addons/, driver/, share/
    QString messagesDir; ///< relative to installDir; empty unless requested
};

/// The environment ini file of an executable: its path without ".exe" (in upper or lower case),
/// followed by "_env.ini". If that file does not exist, "setup_env.ini" in the directory of the
/// executable, even if that one does not exist either.
QString environmentIniPath(const QString &executablePath);

/// FRENCH for a French locale, ENGLISH for any other.
QString systemLanguage(const QLocale &locale);

/// Reads the start-up settings from the environment ini file and from the user's settings to which
/// it refers, and sets VLT_BIN_HOME = installDir in the process environment. Missing values have
/// defaults, without a report: the system's language, the executable's directory, "MESSAGES".
///
/// @param executablePath   full path of the running program
/// @param wantMessagesDir  whether to fill messagesDir
StartupSettings resolveStartupSettings(const QString &executablePath, bool wantMessagesDir);

} // namespace vlt::app
