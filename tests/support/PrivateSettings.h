#pragma once

#include "platform/Settings.h"
#include "support/Files.h"

#include <QTemporaryDir>

/// While it lives, the settings lie in a directory of its own, and the installation with its ini
/// file as well.
class PrivateSettings
{
public:
    PrivateSettings()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir.path());
        QDir().mkpath(m_install);
    }

    /// No settings but the install directory, and this in its ini file; no file without any.
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
