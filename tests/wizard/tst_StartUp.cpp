#include "app/LoadMessages.h"
#include "app/StyleSheet.h"
#include "app/ToolkitTexts.h"
#include "resources/Resources.h"

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

    void composesStyleSheets()
    {
        const QString sheet = m_dir.filePath(u"my.qss"_s);
        QVERIFY(put(sheet, "/* \xE9t\xE9 %1 */"));
        const QString global = readStyleSheet(u":/VltTelecomLayers/qss/global.qss"_s);
        const QString own = readStyleSheet(u":/VltTelecomLayers/qss/VltTelecomLayers.qss"_s);
        QVERIFY(!global.isEmpty() && !own.isEmpty());

        QCOMPARE(startupStyleSheet(u"file:///"_s + sheet),
                 global + u"\n\n/* \u00E9t\u00E9 %1 */"_s);
        QCOMPARE(startupStyleSheet(u"file:////no/such.qss"_s), global + u"\n\n"_s);
        QCOMPARE(startupStyleSheet(QString()), global + u"\n\n"_s + own);
    }

    void loadsBuildersAndOwnTexts()
    {
        const QString tree = m_dir.filePath(u"tree"_s);
        const QString builders = tree + u"/TEXTS/veltaro_fr.ts"_s;
        const QString addOn = tree + u"/addons/telecom/MESSAGES/telecom_fr.ts"_s;
        QVERIFY(put(builders, dictionary("MESS_OK", "du constructeur")));
        QVERIFY(put(addOn, dictionary("MESS_QT_YES", "&amp;Si fait")));

        loadMessages(tree, u"TEXTS"_s, u"FRENCH"_s);

        QCOMPARE(QCoreApplication::translate("AnyForm", "OK", "MESS_OK"), u"du constructeur"_s);
        QCOMPARE(QCoreApplication::translate("AnyForm", "Other", "MESS_NO_KEY"), u"Other"_s);
        const ToolkitTexts buttons;
        QCOMPARE(buttons.translate("QPlatformTheme", "&Yes", nullptr, -1), u"&Si fait"_s);
        QVERIFY(buttons.translate("QPlatformTheme", "&No", nullptr, -1).isNull());
        installToolkitTexts(u"fr"_s);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Annuler"_s);
    }

    void programSetsTheEnvironmentBeforeItsDrivers()
    {
        const QString tree = m_dir.filePath(u"100% d'\u00E9t\u00E9"_s);
        const QString program = tree + u"/Prog"_s;
        const QString output = m_dir.filePath(u"probe.txt"_s);
        QVERIFY(QDir().mkpath(tree + u"/driver"_s));
        QVERIFY(QFile::copy(QStringLiteral(VLT_PROGRAM), program));
        QVERIFY(
            QFile::copy(QStringLiteral(VLT_PROBE), tree + u"/driver/ogr_EnvironmentProbe.so"_s));
        // relative: the executable's own directory
        QVERIFY(put(tree + u"/Prog_env.ini"_s, "[VltDirectSettings]\nINSTALL_DIR=elsewhere\n"));

        QProcess process;
        qputenv("PROBE_OUTPUT", QFile::encodeName(output));
        process.start(program, {});
        const bool told =
            QTest::qWaitFor([&] { return contentOf(output).endsWith("end\n"); }, 30000);
        process.kill();
        process.waitForFinished();

        QVERIFY2(told, process.readAllStandardError().constData());
        const QByteArray dir = tree.toUtf8();
        const QByteArray drivers = dir + "/driver:" + dir + "/driver/qt4";
        QCOMPARE(contentOf(output), drivers + "\n1.5=1.5\nend\n");
        QCOMPARE(process.readAllStandardOutput(),
                 "Adding path (" + drivers + ") to GDAL/OGR Driver path\n");
    }
};

QTEST_MAIN(TestStartUp)
#include "tst_StartUp.moc"
