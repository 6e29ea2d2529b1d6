#pragma once

#include "support/Files.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// How a run of the program ended.
struct Run
{
    int status = -1; ///< -1 after a crash
    QByteArray output;
    QByteArray errors;
};

/// What stands between two marks of a layer file.
inline QByteArray element(const QByteArray &layer, const QByteArray &name)
{
    const QByteArray open = '<' + name + "><![CDATA[";
    const qsizetype start = layer.indexOf(open) + open.size();
    return layer.mid(start, layer.indexOf("]]></" + name + '>') - start);
}

/// A private installation ("install dir") and the program, run in a directory apart from all its
/// files ("elsewhere").
class ProgramRun
{
public:
    ProgramRun()
    {
        const QString install = path(QStringLiteral("install dir"));
        QVERIFY(QDir().mkpath(install + QStringLiteral("/addons/telecom")));
        QVERIFY(QFile::link(QStringLiteral(VLT_DRIVERS), install + QStringLiteral("/driver")));
        QVERIFY(QFile::link(QStringLiteral(VLT_PYLONS),
                            install + QStringLiteral("/addons/telecom/pylons")));
        QVERIFY(QDir().mkpath(path(QStringLiteral("elsewhere"))));
    }

    QString path(const QString &name) const { return m_dir.filePath(name); }

    Run start(QStringList arguments) const
    {
        if (!arguments.contains(QStringLiteral("--install")))
            arguments << QStringLiteral("--install") << path(QStringLiteral("install dir"));
        if (!arguments.contains(QStringLiteral("--language")))
            arguments << QStringLiteral("--language") << QStringLiteral("en");
        QProcess process;
        process.setWorkingDirectory(path(QStringLiteral("elsewhere")));
        process.start(QStringLiteral(VLT_PROGRAM), arguments);
        process.waitForFinished(-1);
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput(), process.readAllStandardError()};
    }

    /// The same; no argument has a blank.
    Run start(const QString &arguments) const
    {
        return start(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }

private:
    QTemporaryDir m_dir;
};
