#pragma once

#include <QLocale>
#include <QString>

namespace vlt::app {

/// What is worked out once, before anything else runs.
struct StartupSettings
{
    QString language;    ///< as the language manager understands it: "FRENCH", "fr" ...
    QString installDir;  ///< root of addons/, driver/, share/
    QString messagesDir; ///< relative to installDir; empty unless it was asked for
};

/// The environment ini file of an executable: its path, less ".exe" in any case, followed by
/// "_env.ini"; where that file does not exist, "setup_env.ini" in the executable's directory,
/// whether or not that one exists.
QString environmentIniPath(const QString &executablePath);

/// FRENCH for a French locale, ENGLISH for any other.
QString systemLanguage(const QLocale &locale);

/// Reads the start-up settings from the environment ini file and the per-user settings it refers
/// to, and exports VLT_BIN_HOME = installDir to the process environment. Whatever is missing takes
/// its fallback: the system's language, the executable's directory, "MESSAGES"; nothing is
/// reported.
///
/// @param executablePath   full path of the running program
/// @param wantMessagesDir  whether to fill messagesDir
StartupSettings resolveStartupSettings(const QString &executablePath, bool wantMessagesDir);

} // namespace vlt::app
