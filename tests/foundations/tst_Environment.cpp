#include "app/Environment.h"
#include "app/GeodataLibrary.h"
#include "platform/IniFile.h"
#include "platform/Settings.h"
#include "support/Cases.h"
#include "support/Files.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gdal_priv.h>

using namespace Qt::StringLiterals;
using namespace vlt::app;
using vlt::platform::PathStyle;

class tst_Environment : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QTemporaryDir m_settings;

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
        const QString path = writeFile(m_dir.filePath(u"données.ini"_s),
                                       "[One]\nPath=\"a;b#c\" ; comment\nPlace=Orl\xE9\x61ns\n");

        const vlt::platform::IniFile ini = vlt::platform::IniFile::open(path).value();

        QCOMPARE(ini.value(u"one"_s, u"PATH"_s), u"a;b#c"_s);
        QCOMPARE(ini.value(u"One"_s, u"Place"_s), u"Orléans"_s);
        QCOMPARE(ini.value(u"One"_s, u"Missing"_s), QString());
        const QString marked =
            writeFile(m_dir.filePath(u"marked.ini"_s), "\xEF\xBB\xBF[One]\nPath=b\n");
        QCOMPARE(vlt::platform::IniFile::open(marked).value().value(u"One"_s, u"Path"_s), u"b"_s);
        QVERIFY(!vlt::platform::IniFile::open(m_dir.path()).ok());
    }

    void looksForTheIniFileBesideTheExecutable()
    {
        writeFile(m_dir.filePath(u"TOOL_env.ini"_s), "");
        const auto found = [this](const QString &executable) {
            return QFileInfo(environmentIniPath(m_dir.filePath(executable))).fileName();
        };
        QCOMPARE(found(u"TOOL.EXE"_s), u"TOOL_env.ini"_s);
        QCOMPARE(found(u"TOOL"_s), u"TOOL_env.ini"_s);
        QCOMPARE(found(u"TOOL.bin"_s), u"setup_env.ini"_s);
    }

    void resolvesStartupSettings_data()
    {
        // The executable's directory and "MESSAGES" stand where the others are left out.
        const Cases<QByteArray, QString, QString, QString> row(
            {"ini", "language", "installDir", "messagesDir"});
        const QByteArray direct = "[VltDirectSettings]\n";
        const QByteArray references = "[VltRegisterKeys]\n";

        row("all given", direct + "LANGUAGE=FRENCH\nINSTALL_DIR=/opt/v\nMESSAGES_DIR=M\n", "FRENCH",
            "/opt/v", "M");
        row("nothing configured, German system", "", "ENGLISH");
        row("given language wins over its reference",
            direct + "LANGUAGE=Dutch\n" + references +
                "VltRegKey_Language=Veltaro/General/UI/Language\n",
            "Dutch");
        row("referenced language, key with slashes",
            references + "VltRegKey_Language=Veltaro/General/UI/Language\n", "French");
        row("relative install directory", direct + "INSTALL_DIR=..\\\n", "ENGLISH");
        row("other references are not followed",
            references + "VltRegKey_InstallDir=Veltaro/INSTALL_DIR\n"
                         "VltRegKey_MessagesDir=Veltaro/MESSAGES_DIR\n",
            "ENGLISH");
        row("syntax error", direct + "LANGUAGE=FRENCH\nnonsense\n", "ENGLISH");
    }

    void resolvesStartupSettings()
    {
        QFETCH(QByteArray, ini);
        QFETCH(QString, installDir);
        QFETCH(QString, messagesDir);
        writeFile(m_dir.filePath(u"setup_env.ini"_s), ini);
        qputenv("LC_ALL", "de_DE.UTF-8");

        const StartupSettings settings = resolveStartupSettings(m_dir.filePath(u"program"_s), true);

        QTEST(settings.language, "language");
        QCOMPARE(settings.installDir, installDir.isEmpty() ? m_dir.path() : installDir);
        QCOMPARE(settings.messagesDir, messagesDir.isEmpty() ? u"MESSAGES"_s : messagesDir);
        QCOMPARE(qgetenv("VLT_BIN_HOME"), QFile::encodeName(settings.installDir));
        QVERIFY(resolveStartupSettings(m_dir.filePath(u"program"_s), false).messagesDir.isEmpty());
    }

    void speaksFrenchOnFrenchSystemsOnly()
    {
        QCOMPARE(systemLanguage(QLocale(u"fr_CA"_s)), u"FRENCH"_s);
        QCOMPARE(systemLanguage(QLocale(u"en_GB"_s)), u"ENGLISH"_s);
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
        const EnvironmentValues posix =
            geodataEnvironment(u"/opt/v é"_s, PathStyle::Posix, "/bin:/r\xE9p", onlyPosixGdal);
        QCOMPARE(posix.front().second, QByteArray("/opt/v é:/bin:/r\xE9p"));
        QCOMPARE(posix.at(1).second, QByteArray("/opt/v é/driver:/opt/v é/driver/qt4"));
        QCOMPARE(posix.back().second, QByteArray("/opt/v é/share/gdal"));
        QCOMPARE(geodataEnvironment(u"/v"_s, PathStyle::Posix, "", all).front().second,
                 QByteArray("/v"));
    }

    void registersDriversAndListsWhatIsOpen()
    {
        registerGeodataDrivers();
        QVERIFY(GDALGetDriverByName("SEGY") == nullptr);
        const GDALDatasetUniquePtr dataset(GetGDALDriverManager()->GetDriverByName("MEM")->Create(
            "left open", 1, 1, 1, GDT_Byte, nullptr));
        QCOMPARE(listOpenDatasets(), QStringList{u"Open Dataset 1/1 : left open"_s});
    }
};

QTEST_GUILESS_MAIN(tst_Environment)
#include "tst_Environment.moc"
