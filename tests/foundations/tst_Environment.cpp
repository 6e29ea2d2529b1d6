#include "app/Environment.h"
#include "app/GeodataLibrary.h"
#include "platform/IniFile.h"
#include "platform/Settings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gdal_priv.h>

using namespace Qt::StringLiterals;
using namespace vlt::app;
using vlt::platform::PathStyle;

class TestEnvironment : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QTemporaryDir m_settings;

    QString put(const QString &name, const QByteArray &content) const
    {
        QFile file(m_dir.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
                   ? file.fileName()
                   : QString();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        const auto settings = vlt::platform::builderSettings();
        settings->setValue(u"General/UI/Language"_s, u"French"_s);
        settings->setValue(u"INSTALL_DIR"_s, u"/from/settings"_s);
        settings->setValue(u"MESSAGES_DIR"_s, u"FROM_SETTINGS"_s);
    }

    void readsIniFiles()
    {
        const QString path =
            put(u"données.ini"_s, "[One]\nKey = plain ; comment\nPath=\"a;b#c\"\nTwice=1\ntwice=2\n"
                                  "Place=Orl\xE9\x61ns\n[Empty]\nNone=\n");

        const vlt::platform::IniFile ini = vlt::platform::IniFile::open(path).value();

        QCOMPARE(ini.value(u"one"_s, u"KEY"_s), u"plain"_s);
        QCOMPARE(ini.value(u"One"_s, u"Path"_s), u"a;b#c"_s);
        QCOMPARE(ini.value(u"One"_s, u"Twice"_s), u"2"_s);
        QCOMPARE(ini.value(u"One"_s, u"Place"_s), u"Orléans"_s);
        for (const QString &key : {u"None"_s, u"Missing"_s, u""_s})
            QCOMPARE(ini.value(u"Empty"_s, key), QString());
        QVERIFY(!vlt::platform::IniFile::open(m_dir.path()).ok());
        QVERIFY(!vlt::platform::IniFile::open(put(u"long.ini"_s, "[a]\nb=" + QByteArray(5000, 'x')))
                     .ok());
    }

    void looksForTheIniFileBesideTheExecutable_data()
    {
        QTest::addColumn<QString>("executable");
        QTest::addColumn<QString>("existing");
        QTest::addColumn<QString>("expected");

        QTest::newRow("suffix dropped") << u"TOOL.EXE"_s << u"TOOL_env.ini"_s << u"TOOL_env.ini"_s;
        QTest::newRow("no suffix") << u"tool"_s << u"tool_env.ini"_s << u"tool_env.ini"_s;
        QTest::newRow("only .exe is a suffix")
            << u"tool.bin"_s << u"tool_env.ini"_s << u"setup_env.ini"_s;
        QTest::newRow("neither is there") << u"other"_s << QString() << u"setup_env.ini"_s;
    }

    void looksForTheIniFileBesideTheExecutable()
    {
        QFETCH(QString, executable);
        QFETCH(QString, existing);
        QFETCH(QString, expected);
        if (!existing.isEmpty())
            put(existing, "");
        QCOMPARE(environmentIniPath(m_dir.filePath(executable)), m_dir.filePath(expected));
    }

    void resolvesStartupSettings_data()
    {
        QTest::addColumn<QByteArray>("ini");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("installDir"); // "." stands for the executable's directory
        QTest::addColumn<QString>("messagesDir");
        const QByteArray direct = "[VltDirectSettings]\n";
        const QByteArray references = "[VltRegisterKeys]\n";

        QTest::newRow("nothing configured, German system")
            << QByteArray() << u"ENGLISH"_s << u"."_s << u"MESSAGES"_s;
        QTest::newRow("all given")
            << direct + "LANGUAGE=FRENCH\nINSTALL_DIR=/opt/v\nMESSAGES_DIR=M\n"
            << u"FRENCH"_s << u"/opt/v"_s << u"M"_s;
        QTest::newRow("given language wins over its reference")
            << direct + "LANGUAGE=Dutch\n" + references +
                   "VltRegKey_Language=Veltaro/General/UI/Language\n"
            << u"Dutch"_s << u"."_s << u"MESSAGES"_s;
        QTest::newRow("referenced language, key with slashes")
            << references + "VltRegKey_Language=Veltaro/General/UI/Language\n"
            << u"French"_s << u"."_s << u"MESSAGES"_s;
        QTest::newRow("reference to nothing") << references + "VltRegKey_Language=Veltaro/Missing\n"
                                              << u"ENGLISH"_s << u"."_s << u"MESSAGES"_s;
        QTest::newRow("reference without a key") << references + "VltRegKey_Language=Veltaro\n"
                                                 << u"ENGLISH"_s << u"."_s << u"MESSAGES"_s;
        QTest::newRow("relative install directory") << direct + "INSTALL_DIR=..\\\n"
                                                    << u"ENGLISH"_s << u"."_s << u"MESSAGES"_s;
        QTest::newRow("other references are not followed")
            << references + "VltRegKey_InstallDir=Veltaro/"
                            "INSTALL_DIR\nVltRegKey_MessagesDir=Veltaro/MESSAGES_DIR\n"
            << u"ENGLISH"_s << u"."_s << u"MESSAGES"_s;
        QTest::newRow("syntax error") << direct + "LANGUAGE=FRENCH\nnonsense\n"
                                      << u"ENGLISH"_s << u"."_s << u"MESSAGES"_s;
        QTest::newRow("longer than 1024")
            << direct + "INSTALL_DIR=/" + QByteArray(900, 'x') + "\n"
            << u"ENGLISH"_s << u"/"_s + QString(900, u'x') << u"MESSAGES"_s;
    }

    void resolvesStartupSettings()
    {
        QFETCH(QByteArray, ini);
        QFETCH(QString, installDir);
        QVERIFY(!put(u"setup_env.ini"_s, ini).isEmpty());
        qputenv("LC_ALL", "de_DE.UTF-8");

        const StartupSettings settings = resolveStartupSettings(m_dir.filePath(u"program"_s), true);

        QTEST(settings.language, "language");
        QCOMPARE(settings.installDir, installDir == u"."_s ? m_dir.path() : installDir);
        QTEST(settings.messagesDir, "messagesDir");
        QCOMPARE(qgetenv("VLT_BIN_HOME"), QFile::encodeName(settings.installDir));
        QVERIFY(resolveStartupSettings(m_dir.filePath(u"program"_s), false).messagesDir.isEmpty());
    }

    void speaksFrenchOnFrenchSystemsOnly()
    {
        QCOMPARE(systemLanguage(QLocale(u"fr_CA"_s)), u"FRENCH"_s);
        QCOMPARE(systemLanguage(QLocale(u"en_GB"_s)), u"ENGLISH"_s);
        QCOMPARE(systemLanguage(QLocale::c()), u"ENGLISH"_s);
    }

    void writesTheGeodataEnvironment()
    {
        const auto all = [](const QString &) { return true; };
        const auto onlyPosixGdal = [](const QString &path) {
            return path == u"/opt/v é/share/gdal"_s;
        };

        QCOMPARE(geodataEnvironment(u"C:\\v"_s, PathStyle::Windows, "C:\\w", all),
                 (EnvironmentValues{{"PATH", "C:\\v;C:\\w"},
                                    {"GDAL_DRIVER_PATH", "C:\\v\\driver;C:\\v\\driver\\qt4"},
                                    {"OGR_DRIVER_PATH", "C:\\v\\driver;C:\\v\\driver\\qt4"},
                                    {"GDAL_FILENAME_IS_UTF8", "NO"},
                                    {"SHAPE_ENCODING", ""},
                                    {"GDAL_DATA", "C:\\v\\share\\gdal"},
                                    {"PROJ_LIB", "C:\\v\\share\\proj"}}));
        QCOMPARE(geodataEnvironment(u"/opt/v é"_s, PathStyle::Posix, "/bin:/r\xE9p", onlyPosixGdal),
                 (EnvironmentValues{{"PATH", "/opt/v é:/bin:/r\xE9p"},
                                    {"GDAL_DRIVER_PATH", "/opt/v é/driver:/opt/v é/driver/qt4"},
                                    {"OGR_DRIVER_PATH", "/opt/v é/driver:/opt/v é/driver/qt4"},
                                    {"GDAL_FILENAME_IS_UTF8", "NO"},
                                    {"SHAPE_ENCODING", ""},
                                    {"GDAL_DATA", "/opt/v é/share/gdal"}}));
        QCOMPARE(geodataEnvironment(u"/v"_s, PathStyle::Posix, "", all).front().second,
                 QByteArray("/v"));
    }

    void exportsAndRegisters()
    {
        QVERIFY(QDir(m_dir.path()).mkpath(u"share/gdal"_s));
        qunsetenv("PROJ_LIB");
        const QString tracePath = put(u"trace"_s, "");
        std::FILE *trace = std::fopen(QFile::encodeName(tracePath).constData(), "w");
        QVERIFY(trace != nullptr);

        exportGeodataEnvironment(m_dir.path(), PathStyle::Posix, trace);
        std::fclose(trace);

        const QByteArray drivers =
            QFile::encodeName(m_dir.path() + u"/driver:"_s + m_dir.path() + u"/driver/qt4"_s);
        QFile written(tracePath);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll(), "Adding path (" + drivers + ") to GDAL/OGR Driver path\n");
        QCOMPARE(qgetenv("GDAL_DRIVER_PATH"), drivers);
        QCOMPARE(qgetenv("GDAL_DATA"), QFile::encodeName(m_dir.filePath(u"share/gdal"_s)));
        QVERIFY(!qEnvironmentVariableIsSet("PROJ_LIB"));

        qunsetenv("GDAL_DATA");
        registerGeodataDrivers();
        QVERIFY(GDALGetDriverByName("GTiff") != nullptr);
        QVERIFY(GDALGetDriverByName("SEGY") == nullptr);
        QVERIFY(listOpenDatasets().isEmpty());
        const GDALDatasetUniquePtr dataset(GetGDALDriverManager()->GetDriverByName("MEM")->Create(
            "left open", 1, 1, 1, GDT_Byte, nullptr));
        QCOMPARE(listOpenDatasets(), QStringList{u"Open Dataset 1/1 : left open"_s});
    }
};

QTEST_GUILESS_MAIN(TestEnvironment)
#include "tst_Environment.moc"
