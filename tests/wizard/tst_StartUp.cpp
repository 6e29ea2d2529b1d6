#include "app/LoadMessages.h"
#include "app/StyleSheet.h"
#include "app/ToolkitTexts.h"
#include "language/VltLanguageManager.h"
#include "resources/Resources.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::app;

namespace {

bool put(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray dictionary(const QByteArray &key, const QByteArray &text)
{
    return "<TS><context><message id=\"" + key + "\"><translation>" + text +
           "</translation></message></context></TS>";
}

} // namespace

class TestStartUp : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void initTestCase() { vlt::registerResources(); }

    void composesStyleSheets_data()
    {
        QTest::addColumn<QString>("requested");
        QTest::addColumn<QString>("second");

        const QString own = readStyleSheet(u":/VltTelecomLayers/qss/VltTelecomLayers.qss"_s);
        QVERIFY(!own.isEmpty());
        // main() below has started the application with this option
        QTest::newRow("as Qt hands it over") << qApp->styleSheet() << u"/* \u00E9t\u00E9 %1 */"_s;
        QTest::newRow("no such file") << u"file:////no/such.qss"_s << QString();
        QTest::newRow("none requested") << QString() << own;
    }

    void composesStyleSheets()
    {
        QFETCH(QString, requested);
        QFETCH(QString, second);
        const QString global = readStyleSheet(u":/VltTelecomLayers/qss/global.qss"_s);
        QVERIFY(!global.isEmpty());
        QCOMPARE(startupStyleSheet(requested), global + u"\n\n"_s + second);
    }

    void loadsBuildersAndOwnTexts()
    {
        const QString tree = m_dir.filePath(u"tree"_s);
        const QString builders = tree + u"/TEXTS/veltaro_fr.ts"_s;
        const QString addOn = tree + u"/addons/telecom/MESSAGES/telecom_fr.ts"_s;
        QVERIFY(put(builders, dictionary("MESS_OK", "du constructeur")));
        QVERIFY(put(addOn, dictionary("MESS_QT_YES", "&amp;Si fait")));

        loadMessages(tree, u"TEXTS"_s, u"FRENCH"_s);

        QCOMPARE(VltLanguageManager::getInstance().getCurrentLanguage().text, u"fr"_s);
        QCOMPARE(QCoreApplication::translate("AnyForm", "OK", "MESS_OK"), u"du constructeur"_s);
        const ToolkitTexts buttons;
        QCOMPARE(buttons.translate("QPlatformTheme", "&Yes", nullptr, -1), u"&Si fait"_s);
        QVERIFY(buttons.translate("QPlatformTheme", "&No", nullptr, -1).isNull());
        QVERIFY(buttons.translate("AnyForm", "&Yes", nullptr, -1).isNull());
    }

    void speaksFrenchWithAndWithoutQtsOwnTexts()
    {
        loadMessages(QStringLiteral(VLT_INSTALLATION), u"MESSAGES"_s, u"FRENCH"_s);
        const ToolkitTexts withoutQt;
        installToolkitTexts(u"fr"_s);

        QCOMPARE(withoutQt.translate("QPlatformTheme", "&Yes", nullptr, -1), u"&Oui"_s);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "&Yes"), u"&Oui"_s);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Annuler"_s);
    }

    void programSetsTheEnvironmentBeforeItsDrivers()
    {
        const QString tree = m_dir.filePath(u"100% d'\u00E9t\u00E9"_s);
        const QString program = tree + u"/Prog"_s;
        const QString output = m_dir.filePath(u"probe.txt"_s);
        QVERIFY(QDir().mkpath(tree + u"/driver"_s));
        QVERIFY(QDir().mkpath(tree + u"/share/gdal"_s));
        QVERIFY(QFile::copy(QStringLiteral(VLT_PROGRAM), program));
        QVERIFY(
            QFile::copy(QStringLiteral(VLT_PROBE), tree + u"/driver/ogr_EnvironmentProbe.so"_s));
        // relative: the executable's own directory
        QVERIFY(put(tree + u"/Prog_env.ini"_s, "[VltDirectSettings]\nINSTALL_DIR=elsewhere\n"));

        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"PROBE_OUTPUT"_s, output);
        environment.insert(u"PATH"_s, u"/usr/bin"_s);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(QDir::tempPath());
        process.start(program, {});
        const bool told =
            QTest::qWaitFor([&] { return contentOf(output).endsWith("end\n"); }, 30000);
        process.kill();
        process.waitForFinished();

        QVERIFY2(told, process.readAllStandardError().constData());
        const QByteArray dir = tree.toUtf8();
        const QByteArray drivers = dir + "/driver:" + dir + "/driver/qt4";
        QCOMPARE(contentOf(output),
                 "VLT_BIN_HOME=" + dir + "\nPATH=" + dir +
                     ":/usr/bin\nGDAL_DRIVER_PATH=" + drivers + "\nOGR_DRIVER_PATH=" + drivers +
                     "\nGDAL_FILENAME_IS_UTF8=NO\nSHAPE_ENCODING=\nGDAL_DATA=" + dir +
                     "/share/gdal\nOGR_SKIP=SEGY\n1.5=1.5\nend\n");
        QCOMPARE(process.readAllStandardOutput(),
                 "Adding path (" + drivers + ") to GDAL/OGR Driver path\n");
    }
};

int main(int argc, char **argv)
{
    const QTemporaryDir dir;
    const QByteArray sheet = QFile::encodeName(dir.filePath(u"my.qss"_s));
    if (!put(QFile::decodeName(sheet), "/* \xE9t\xE9 %1 */"))
        return EXIT_FAILURE;
    QByteArray option = "-stylesheet";
    QByteArray file = sheet;
    char *arguments[] = {argv[0], option.data(), file.data(), nullptr};
    int count = 3;
    const QApplication application(count, arguments);
    TestStartUp test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_StartUp.moc"
