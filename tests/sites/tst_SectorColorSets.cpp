#include "sites/SiteRepresentation.h"
#include "support/Cases.h"
#include "support/Files.h"

#include <QTemporaryDir>
#include <QTest>

using namespace vlt::sites;

namespace {

void writeCatalogue(const QString &installDir, const QString &name, const QByteArray &content)
{
    writeFile(installDir + QStringLiteral("/addons/telecom/pylons/") + name, content);
}

} // namespace

class tst_SectorColorSets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesColorTexts_data()
    {
        const Cases<QColor, int, QString> row({"color", "transparency", "expected"});
        row("opaque", QColor(1, 171, 255), 0, "01abffff");
        row("transparent", QColor(1, 171, 255), 100, "01abff00");
        row("128 * 50 / 100 = 64", QColor(0, 0, 0, 128), 50, "00000040");
        row("255 * 99 / 100 = 252.45", QColor(0, 0, 0), 1, "000000fc");
        row("255 * 1 / 100 = 2.55", QColor(0, 0, 0), 99, "00000002");
    }

    void writesColorTexts()
    {
        QFETCH(QColor, color);
        QFETCH(int, transparency);
        QFETCH(QString, expected);

        const SectorColorSet set{{color, color}, {}, {}};

        QCOMPARE(colorText(set, 3, transparency), expected);
        QCOMPARE(colorSetText(set, transparency), expected + QLatin1Char(' ') + expected);
    }

    void readsTheCatalogues()
    {
        const QTemporaryDir dir;
        writeCatalogue(dir.path(), QStringLiteral("list.xml"),
                       "<pylons><group><pylon type='a b' description_fr='M\xc3\xa2t'/></group>"
                       "<pylon type='c' description_en='Mast'/></pylons>");
        writeCatalogue(
            dir.path(), QStringLiteral("colors/sectors.xml"),
            "<sectors><colorset description_fr='Deux'><!-- a -->\n  <list>"
            "\n    <!-- b --><c r='1' g='2' b='3'/>\n    <d r='300' g='-4' b='x' a='128'/>\n"
            "  </list>\n  <list><c r='9'/></list></colorset><colorset/></sectors>");

        const SiteCatalogues read = loadSiteCatalogues(dir.path(), QStringLiteral("fr"));

        QCOMPARE(read.pylonTypes.size(), 2);
        QCOMPARE(read.pylonTypes.at(0).type, QStringLiteral("a b"));
        QCOMPARE(read.pylonTypes.at(0).description, QStringLiteral("M\u00e2t"));
        QCOMPARE(read.pylonTypes.at(1).description, QString());
        QCOMPARE(read.colorSets.size(), 2);
        QCOMPARE(read.colorSets.at(0).description, QStringLiteral("Deux"));
        const QList<QColor> expected = {QColor(1, 2, 3), QColor(255, 0, 0, 128)};
        QCOMPARE(read.colorSets.at(0).colors, expected);
        QVERIFY(colorSetText(read.colorSets.at(1), 0).isEmpty());
    }

    void givesNothingForABrokenCatalogue()
    {
        const QTemporaryDir dir;
        QVERIFY(loadPylonTypes(dir.path(), QStringLiteral("en")).isEmpty());
        writeCatalogue(dir.path(), QStringLiteral("list.xml"), "<pylons><pylon type='a'/>");
        writeCatalogue(dir.path(), QStringLiteral("colors/sectors.xml"), "no document");

        const SiteCatalogues read = loadSiteCatalogues(dir.path(), QStringLiteral("en"));

        QVERIFY(read.pylonTypes.isEmpty());
        QVERIFY(read.colorSets.isEmpty());
    }

    void drawsTheSwatch()
    {
        const QImage image = swatchImage({QColor(255, 0, 0), QColor(0, 0, 255)});

        QCOMPARE(image.size(), QSize(63, 34)); // 2 * 29 + 5
        const QColor white(255, 255, 255);
        const QColor grey(128, 128, 128);
        QCOMPARE(image.pixelColor(4, 10), white);
        QCOMPARE(image.pixelColor(5, 5), grey);
        QCOMPARE(image.pixelColor(6, 10), grey);
        QCOMPARE(image.pixelColor(7, 7), QColor(255, 0, 0));
        QCOMPARE(image.pixelColor(26, 26), QColor(255, 0, 0));
        QCOMPARE(image.pixelColor(28, 28), grey);
        QCOMPARE(image.pixelColor(29, 28), white);
        QCOMPARE(image.pixelColor(36, 7), QColor(0, 0, 255));
    }
};

QTEST_GUILESS_MAIN(tst_SectorColorSets)
#include "tst_SectorColorSets.moc"
