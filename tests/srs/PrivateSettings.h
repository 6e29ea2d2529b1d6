#pragma once

#include "platform/Settings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// While it lives, the settings lie in a directory of its own, and the installation with its ini
/// file as well.
class PrivateSettings
{
public:
    PrivateSettings()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir.path());
        reset();
    }

    /// No settings but the install directory, and no ini file in it.
    void reset(const QString &installName = QStringLiteral("install"))
    {
        vlt::platform::builderSettings()->clear();
        m_install = QDir(m_dir.filePath(installName));
        m_install.removeRecursively();
        QVERIFY(QDir().mkpath(m_install.path()));
        store(QStringLiteral("INSTALL_DIR"), m_install.path());
    }

    /// Path of a file of the installation.
    QString installed(const QString &name) const { return m_install.filePath(name); }

    void writeIni(const QByteArray &content)
    {
        QFile file(installed(QStringLiteral("VltSrsUtils.ini")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    void store(const QString &key, const QVariant &value)
    {
        vlt::platform::builderSettings()->setValue(key, value);
    }

    /// What a group of the settings holds, "key=value", sorted.
    QStringList stored(const QString &group) const
    {
        const auto settings = vlt::platform::builderSettings();
        settings->beginGroup(group);
        QStringList lines;
        for (const QString &key : settings->allKeys())
            lines += key + QLatin1Char('=') + settings->value(key).toString();
        lines.sort();
        return lines;
    }

private:
    QTemporaryDir m_dir;
    QDir m_install;
};
