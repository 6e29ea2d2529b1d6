#include "app/LoadMessages.h"
#include "app/ReadablePalette.h"
#include "app/StyleSheet.h"
#include "app/ToolkitTexts.h"
#include "resources/Resources.h"
#include "support/Cases.h"
#include "support/Files.h"
#include "support/Patience.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::app;

namespace {

QByteArray dictionary(const QByteArray &key, const QByteArray &text)
{
    return "<TS><context><message id=\"" + key + "\"><translation>" + text +
           "</translation></message></context></TS>";
}

} // namespace

class tst_StartUp : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void initTestCase() { vlt::registerResources(); }

    /// The expected greys are the lightest one on white and the darkest one on black that reach 4.5
    /// to 1.
    void makesHintsReadable_data()
    {
        const Cases<QColor, QColor, int, int> row({"ground", "text", "darkest", "lightest"});
        row("white", Qt::white, Qt::black, 0x60, 0x76);
        row("black", Qt::black, Qt::white, 0x75, 0x8b);
        row("text of little contrast", Qt::white, QColor(0x99, 0x99, 0x99), 0x99, 0x99);
    }

    void makesHintsReadable()
    {
        QFETCH(QColor, ground);
        QFETCH(QColor, text);
        QFETCH(int, darkest);
        QFETCH(int, lightest);
        QPalette desktop;
        desktop.setColor(QPalette::Base, ground);
        desktop.setColor(QPalette::Window, ground);
        desktop.setColor(QPalette::Link, Qt::blue);
        desktop.setColor(QPalette::Text, text);
        const int hint = readableHints(desktop).color(QPalette::PlaceholderText).red();
        QVERIFY2(hint >= darkest && hint <= lightest, qPrintable(QString::number(hint, 16)));
        const QColor link = readableHints(desktop).color(QPalette::Link);
        if (ground == Qt::white)
            QCOMPARE(link.name(), u"#0000ff"_s);
        else
            QVERIFY2(link.blue() == 0xff && link.red() >= 0x60, qPrintable(link.name()));
    }

    void composesStyleSheets()
    {
        const QString sheet = m_dir.filePath(u"my.qss"_s);
        writeFile(sheet, "/* \xE9t\xE9 %1 */");
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
        writeFile(builders, dictionary("MESS_OK", "du constructeur"));
        writeFile(addOn, dictionary("MESS_QT_YES", "&amp;Si fait"));

        loadMessages(tree, u"TEXTS"_s, u"FRENCH"_s);

        QCOMPARE(QCoreApplication::translate("AnyForm", "OK", "MESS_OK"), u"du constructeur"_s);
        QCOMPARE(QCoreApplication::translate("AnyForm", "Other", "MESS_NO_KEY"), u"Other"_s);
        const ToolkitTexts buttons;
        QCOMPARE(buttons.translate("QPlatformTheme", "&Yes", nullptr, -1), u"&Si fait"_s);
        QVERIFY(buttons.translate("QPlatformTheme", "&No", nullptr, -1).isNull());
        installToolkitTexts(u"fr"_s);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Annuler"_s);
    }

    void readsTheCommandLine_data()
    {
        // output: start of the output
        const Cases<QStringList, QString, int, QByteArray, QByteArray> row(
            {"arguments", "display", "status", "output", "errors"});
        const QString here = QString::fromLocal8Bit(qgetenv("DISPLAY"));
        const QByteArray help = "Usage: VltTelecomLayers [options] [FILE]\n";
        const QByteArray hint = "try 'VltTelecomLayers --help'\n";
        row("help", {u"--help"_s}, here, 0, help, {});
        row("help without a display", {u"-style"_s, u"Windows"_s, u"-h"_s}, {}, 0, help, {});
        row("version", {u"--version"_s}, {}, 0, "VltTelecomLayers 0.", {});
        row("unknown option beside the toolkit's own",
            {u"-style"_s, u"Windows"_s, u"-stylesheet"_s, u"my.qss"_s, u"--frob"_s}, here, 2, {},
            QByteArray("VltTelecomLayers: unknown option \"--frob\"\n" + hint));
        row("two files", {u"a.csv"_s, u"--"_s, u"--help"_s}, here, 2, {},
            QByteArray("VltTelecomLayers: more than one file is given\n" + hint));
        row("no display", {u"a.csv"_s}, ":987654", 1, {},
            "VltTelecomLayers: no window can be opened here (could not connect to "
            "display :987654); vltlayers makes the same layers without one\n");
    }

    void readsTheCommandLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, display);
        QFETCH(QByteArray, output);
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DISPLAY"_s, display);
        environment.insert(u"XDG_RUNTIME_DIR"_s, m_dir.path()); // prevents a warning
        process.setProcessEnvironment(environment);

        process.start(QStringLiteral(VLT_PROGRAM), arguments);
        QVERIFY(process.waitForFinished(-1));

        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QTEST(process.exitCode(), "status");
        const QByteArray printed = process.readAllStandardOutput();
        QVERIFY2(output.isEmpty() ? printed.isEmpty() : printed.startsWith(output), printed);
        QTEST(process.readAllStandardError(), "errors");
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
        // A relative path is replaced by the executable's directory.
        writeFile(tree + u"/Prog_env.ini"_s, "[VltDirectSettings]\nINSTALL_DIR=elsewhere\n");

        QProcess process;
        qputenv("PROBE_OUTPUT", QFile::encodeName(output));
        process.start(program, {});
        const bool reported =
            QTest::qWaitFor([&] { return readFile(output).endsWith("end\n"); }, PatienceMs);
        process.kill();
        process.waitForFinished(-1);

        QVERIFY2(reported, process.readAllStandardError().constData());
        const QByteArray dir = tree.toUtf8();
        const QByteArray drivers = dir + "/driver:" + dir + "/driver/qt4";
        QCOMPARE(readFile(output), drivers + "\n1.5=1.5\nend\n");
        QCOMPARE(process.readAllStandardOutput(),
                 "Adding path (" + drivers + ") to GDAL/OGR Driver path\n");
    }
};

QTEST_MAIN(tst_StartUp)
#include "tst_StartUp.moc"
