#include "platform/Paths.h"
#include "platform/TextDecoding.h"
#include "support/Cases.h"
#include "text/Numbers.h"
#include "text/Templates.h"
#include "wizard/base/TemporaryLayerFile.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_Texts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

    void fillsSlotsOneAfterAnother_data()
    {
        const Cases<QString, QStringList, QString> row({"pattern", "values", "expected"});
        row("lowest number first", "%7-%3-%7", {u"a"_s, u"b"_s}, "b-a-b");
        row("value with a slot", "%1 %2", {u"%2"_s, u"b"_s}, "b b");
        row("more values than slots", "%1", {u"a"_s, u"b"_s}, "a");
        row("percent sign, no slot", "100% %x", {u"a"_s}, "100% %x");
    }

    void fillsSlotsOneAfterAnother()
    {
        QFETCH(QString, pattern);
        QFETCH(QStringList, values);
        QTEST(vlt::text::fillSlots(pattern, values), "expected");
    }

    void replacesPlaceholdersInOrder()
    {
        const QString text = vlt::text::replacePlaceholders(u"__A__ __a__ __B__ __A__"_s,
                                                            {{u"__B__"_s, u"late __A__"_s},
                                                             {u"__A__"_s, u"1"_s},
                                                             {u""_s, u"never"_s},
                                                             {u"late"_s, u"__B__"_s}});

        QCOMPARE(text, u"1 __a__ __B__ 1 1"_s);
    }

    // The expected texts are those of printf in the C locale.
    void writesNumbersInTheCLocale_data()
    {
        const Cases<double, QString, QString, QString> row(
            {"value", "general6", "general9", "fixed6"});
        row("fraction", 2.5, "2.5", "2.5", "2.500000");
        row("whole", 3, "3", "3", "3.000000");
        row("exponent", 1e8, "1e+08", "100000000", "100000000.000000");
        row("metres", 512345.678, "512346", "512345.678", "512345.678000");
        row("small", -0.00001234, "-1.234e-05", "-1.234e-05", "-0.000012");
    }

    void writesNumbersInTheCLocale()
    {
        QFETCH(double, value);
        QTEST(vlt::text::g6(value), "general6");
        QTEST(vlt::text::g9(value), "general9");
        QTEST(vlt::text::f6(value), "fixed6");
    }

    void decodesEightBitText_data()
    {
        const Cases<QByteArray, QString> row({"bytes", "expected"});
        row("UTF-8", "b\xC3\xA2t \xE2\x82\xAC", "b\u00E2t \u20AC");
        row("Latin-1", "b\xE2t 5\xB0", "b\u00E2t 5\u00B0");
        row("byte order mark", "\xEF\xBB\xBF\xC3\xA9", "\u00E9");
        row("mark before Latin-1", "\xEF\xBB\xBF\xE9!", "\u00E9!");
        row("UTF-8 cut short", "a\xC3", "a\u00C3");
        row("nothing", {}, {});
    }

    void decodesEightBitText()
    {
        QFETCH(QByteArray, bytes);
        QTEST(vlt::platform::decodeText(bytes), "expected");
    }

    void namesTemporaryLayerFiles_data()
    {
        // expected: "%T": temporary directory, "%P": process id
        const Cases<QString, QString> row({"below", "expected"});
        row("plain", "t", "%T/t//tempLayer_sites_%P.lay");
        row("directory that looks like a slot", "%2", "%T/%2//tempLayer_sites_%P.lay");
        row("no such directory", {}, "./tempLayer_sites_%P.lay");
        row("too long", QString(130, u'x') + u'/' + QString(130, u'y'), "./tempLayer_sites_%P.lay");
    }

    void namesTemporaryLayerFiles()
    {
        QFETCH(QString, below);
        QFETCH(QString, expected);
        const QTemporaryDir root;
        QVERIFY(below.isEmpty() || QDir(root.path()).mkpath(below));
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", QFile::encodeName(root.filePath(below.isEmpty() ? u"gone"_s : below)));

        const QString path = vlt::wizard::temporaryLayerFileName(u"sites"_s);

        qputenv("TMPDIR", before);
        expected.replace(u"%T"_s, root.path());
        expected.replace(u"%P"_s, QString::number(QCoreApplication::applicationPid()));
        QCOMPARE(path, expected);
    }
};

QTEST_GUILESS_MAIN(tst_Texts)
#include "tst_Texts.moc"
