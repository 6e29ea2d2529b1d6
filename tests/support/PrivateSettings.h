#pragma once

#include "platform/Settings.h"
#include "support/Files.h"

#include <QTemporaryDir>

/// Keeps the settings, and the installation with its ini file, in a private directory as long as it
/// exists.
class PrivateSettings
{
public:
    PrivateSettings()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir.path());
        QDir().mkpath(m_install);
    }

    /// Removes all settings except the install directory and writes its ini file; no file if `ini`
    /// is empty.
    void reset(const QByteArray &ini = {})
    {
        const auto settings = vlt::platform::builderSettings();
        settings->clear();
        settings->setValue(QStringLiteral("INSTALL_DIR"), m_install);
        const QString file = m_install + QStringLiteral("/VltSrsUtils.ini");
        QFile::remove(file);
        if (!ini.isEmpty())
            writeFile(file, ini);
    }

private:
    QTemporaryDir m_dir;
    QString m_install = m_dir.filePath(QStringLiteral("donn\u00e9es \u0394"));
};
