#include "platform/Paths.h"
#include "platform/TextDecoding.h"
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
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QStringList>("values");
        QTest::addColumn<QString>("expected");

        QTest::newRow("lowest number first")
            << u"%7-%3-%7"_s << QStringList{u"a"_s, u"b"_s} << u"b-a-b"_s;
        QTest::newRow("value with a slot")
            << u"%1 %2"_s << QStringList{u"%2"_s, u"b"_s} << u"b b"_s;
        QTest::newRow("more values than slots") << u"%1"_s << QStringList{u"a"_s, u"b"_s} << u"a"_s;
        QTest::newRow("percent sign, no slot")
            << u"100% %x"_s << QStringList{u"a"_s} << u"100% %x"_s;
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
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("general6");
        QTest::addColumn<QString>("general9");
        QTest::addColumn<QString>("fixed6");

        QTest::newRow("fraction") << 2.5 << u"2.5"_s << u"2.5"_s << u"2.500000"_s;
        QTest::newRow("whole") << 3.0 << u"3"_s << u"3"_s << u"3.000000"_s;
        QTest::newRow("exponent") << 1e8 << u"1e+08"_s << u"100000000"_s << u"100000000.000000"_s;
        QTest::newRow("metres") << 512345.678 << u"512346"_s << u"512345.678"_s
                                << u"512345.678000"_s;
        QTest::newRow("small") << -0.00001234 << u"-1.234e-05"_s << u"-1.234e-05"_s
                               << u"-0.000012"_s;
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
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("expected");

        QTest::newRow("UTF-8") << QByteArray("b\xC3\xA2t \xE2\x82\xAC") << u"b\u00E2t \u20AC"_s;
        QTest::newRow("Latin-1") << QByteArray("b\xE2t 5\xB0") << u"b\u00E2t 5\u00B0"_s;
        QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF\xC3\xA9") << u"\u00E9"_s;
        QTest::newRow("mark before Latin-1") << QByteArray("\xEF\xBB\xBF\xE9!") << u"\u00E9!"_s;
        QTest::newRow("UTF-8 cut short") << QByteArray("a\xC3") << u"a\u00C3"_s;
        QTest::newRow("nothing") << QByteArray() << QString();
    }

    void decodesEightBitText()
    {
        QFETCH(QByteArray, bytes);
        QTEST(vlt::platform::decodeText(bytes), "expected");
    }

    void namesTemporaryLayerFiles_data()
    {
        QTest::addColumn<QString>("below");
        QTest::addColumn<QString>("expected"); // "%T": temporary directory, "%P": process id

        QTest::newRow("plain") << u"t"_s << u"%T/t//tempLayer_sites_%P.lay"_s;
        QTest::newRow("directory that looks like a slot")
            << u"%2"_s << u"%T/%2//tempLayer_sites_%P.lay"_s;
        QTest::newRow("no such directory") << QString() << u"./tempLayer_sites_%P.lay"_s;
        QTest::newRow("too long") << QString(130, u'x') + u'/' + QString(130, u'y')
                                  << u"./tempLayer_sites_%P.lay"_s;
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
