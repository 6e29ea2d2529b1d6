#pragma once

#include "support/Cases.h"
#include "support/Files.h"

#include <QDirIterator>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// Result of a run of the program.
struct Run
{
    int status = -1; ///< -1 after a crash
    QByteArray output;
    QByteArray errors;
};

/// The text of an element of a layer file.
inline QByteArray element(const QByteArray &layer, const QByteArray &name)
{
    const QByteArray open = '<' + name + "><![CDATA[";
    const qsizetype start = layer.indexOf(open) + open.size();
    return layer.mid(start, layer.indexOf("]]></" + name + '>') - start);
}

/// A table of refused command lines; the name of a row is its arguments.
struct Refusals : Cases<int, QByteArray>
{
    Refusals() : Cases({"status", "message"}) {} // message: a part of it
};

/// A private installation ("install dir") and the program, run in another directory ("elsewhere").
class ProgramRun
{
public:
    ProgramRun()
    {
        const QString install = path(QStringLiteral("install dir"));
        QVERIFY(QDir().mkpath(install + QStringLiteral("/addons/telecom")));
        QVERIFY(QFile::link(QStringLiteral(VLT_DRIVERS), install + QStringLiteral("/driver")));
        QVERIFY(QFile::link(QStringLiteral(VLT_INSTALLATION "/addons/telecom/pylons"),
                            install + QStringLiteral("/addons/telecom/pylons")));
        QVERIFY(QDir().mkpath(path(QStringLiteral("elsewhere"))));
    }

    QString path(const QString &name) const { return m_dir.filePath(name); }

    Run
    start(QStringList arguments,
          const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment()) const
    {
        if (!arguments.contains(QStringLiteral("--install")))
            arguments << QStringLiteral("--install") << path(QStringLiteral("install dir"));
        if (!arguments.contains(QStringLiteral("--language")))
            arguments << QStringLiteral("--language") << QStringLiteral("en");
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(path(QStringLiteral("elsewhere")));
        process.start(QStringLiteral(VLT_PROGRAM), arguments);
        process.waitForFinished(-1);
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput(), process.readAllStandardError()};
    }

    /// The same; no argument has a blank.
    Run start(const QString &arguments) const { return start(split(arguments)); }

    /// Checks a row of a table of refusals: the program reports the reason and changes no file.
    void checkRefusal(
        const QStringList &arguments,
        const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment()) const
    {
        QFETCH(int, status);
        QFETCH(QByteArray, message);
        const QMap<QString, QByteArray> before = files();

        const Run run = start(arguments, environment);

        QCOMPARE(run.status, status);
        QVERIFY2(run.errors.contains(message), run.errors.constData());
        QCOMPARE(run.output, QByteArray());
        QVERIFY2(files() == before, "a file was written");
    }

    /// The same with the name of the row as arguments; none of them has a blank.
    void checkRefusal(const QString &arguments = QString::fromUtf8(QTest::currentDataTag())) const
    {
        checkRefusal(split(arguments));
    }

private:
    static QStringList split(const QString &arguments)
    {
        return arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }

    /// All files that a run may change, with their contents, except those that the installation
    /// links to.
    QMap<QString, QByteArray> files() const
    {
        QMap<QString, QByteArray> files;
        QDirIterator found(m_dir.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (found.hasNext()) {
            const QString path = found.next();
            files.insert(path, readFile(path));
        }
        return files;
    }

    QTemporaryDir m_dir;
};
