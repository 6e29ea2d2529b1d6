#include "buildings/TexbDocument.h"
#include "layers/BadLayer.h"

#include <QtTest>

using namespace vlt::scene;

namespace {

/// A document with these attributes of its vector element besides the necessary ones.
QByteArray document(const QByteArray &attributes, const QByteArray &rest = {})
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><veltaroTexturedBuildings cache=\"none\">\n"
           "  <vector \n    filename=\"town.shp\"\n    hfield=\"H\"\n    " +
           attributes + "\n  />\n" + rest + "</veltaroTexturedBuildings>\n";
}

QByteArray textures(const QByteArray &attributes, const QByteArray &images = {})
{
    return document({}, "  <textures \n    mode=\"walls\"\n" + attributes + "  >\n" + images +
                            "  </textures>\n");
}

} // namespace

class tst_TexbDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesValuesAsTheyStand_data()
    {
        QTest::addColumn<QByteArray>("written");
        QTest::addColumn<QByteArray>("layer");
        QTest::newRow("plain") << QByteArray("layer=\"a b\"") << QByteArray("a b");
        QTest::newRow("ampersand") << QByteArray("layer=\"A & B\"") << QByteArray("A & B");
        QTest::newRow("escaped") << QByteArray("layer=\"A &amp; &quot;B&quot; &lt;C&gt;\"")
                                 << QByteArray("A & \"B\" <C>");
        QTest::newRow("quotes") << QByteArray("layer=\"the \"old\" town\"\n    tileSize=\"5\"")
                                << QByteArray("the \"old\" town");
        QTest::newRow("quote at the end") << QByteArray("layer=\"21\"\"") << QByteArray("21\"");
        QTest::newRow("part of a file") << QByteArray("layer=\"HDF5:\"/t/a b.h5\"://b\"")
                                        << QByteArray("HDF5:\"/t/a b.h5\"://b");
        QTest::newRow("what looks like an end")
            << QByteArray("layer=\"a\">b\" tileSize=\"5\"") << QByteArray("a\">b");
        QTest::newRow("tags") << QByteArray("layer=\"<elevation filename='x'/>\"")
                              << QByteArray("<elevation filename='x'/>");
        QTest::newRow("apostrophes around") << QByteArray("layer='l\"'") << QByteArray("l\"");
        QTest::newRow("empty") << QByteArray("layer=\"\"") << QByteArray();
        QTest::newRow("not UTF-8") << QByteArray("layer=\"\xe9t\xe9\"") << QByteArray("\xe9t\xe9");
        QTest::newRow("unknown ones around")
            << QByteArray("new=\"1\" layer=\"x\" other=\"2\"") << QByteArray("x");
    }

    void takesValuesAsTheyStand()
    {
        QFETCH(QByteArray, written);
        QFETCH(QByteArray, layer);

        const TexbDocument read = parseTexbDocument(document(written).toStdString());

        QCOMPARE(QByteArray::fromStdString(read.layer), layer);
        QCOMPARE(read.heightField, std::string("H"));
        QVERIFY(read.terrainFile.empty());
    }

    void readsEverything()
    {
        const TexbDocument read = parseTexbDocument(
            "<!-- <vector filename=\"no.shp\"/> --><veltaroTexturedBuildings \n"
            "  cache=\"all\" \n  delayedCacheWrite=\"true\" \n"
            "  delayedCacheWriteCapacity=\"9\">\n"
            "  <vector \n    filename=\"/d/a.shp\"\n    layer=\"a\"\n    hfield=\"HEIGHT\"\n"
            "    tileSize=\"1.5e+06\"\n    extrudedVisibility=\"3000\"\n"
            "    texturedVisibility=\"800.5\"\n    wallColor=\"IMAGE;r;m;minimum;absolute;x\"\n"
            "    roofColor=\"#A05030\"\n    skirtHeight=\"0.5\"\n    checkClockwise=\"true\"\n  "
            "/>\n"
            "  <elevation \n    source=\"dtm\"\n    filename=\"/d/dem.tif\"\n"
            "    nodata=\"-32768\"\n  />\n"
            "  <textures \n    mode=\"storeys\"\n    edgeColor=\"#0000FF\"\n"
            "    forceEdgeCreation=\"true\"\n    processComplexBuildings=\"true\"\n"
            "   compression=\"dxt5\"\n    bufferValue=\"2.5\"\n    dilatationValue=\"3\"\n"
            "    magFilter=\"linear\"\n  >\n"
            "    <texture \n      filename=\"h1.png\"\n      height=\"1.5\"\n    />\n"
            "    <texture \n      filename=\"h7.png\"\n      height=\"7\"\n    />\n"
            "  </textures>\n</veltaroTexturedBuildings>\n");

        QCOMPARE(read.vectorFile, std::string("/d/a.shp"));
        QCOMPARE(read.tileSizeM, 1.5e6);
        QCOMPARE(read.extrudedVisibilityM, 3000.0);
        QCOMPARE(read.texturedVisibilityM, 800.5);
        QCOMPARE(read.wallColor, std::string("IMAGE;r;m;minimum;absolute;x"));
        QCOMPARE(read.roofColor, std::string("#A05030"));
        QCOMPARE(read.skirtHeightM, 0.5);
        QVERIFY(read.checkClockwise);
        QCOMPARE(read.terrainFile, std::string("/d/dem.tif"));
        QCOMPARE(read.terrainNoData, std::string("-32768"));
        QVERIFY(read.textures);
        QCOMPARE(read.textures->mode, TextureMode::Storeys);
        QCOMPARE(read.textures->edgeColor, std::string("#0000FF"));
        QVERIFY(read.textures->forceEdgeCreation && read.textures->processComplexBuildings);
        QVERIFY(read.textures->isCompressed && read.textures->isSmooth);
        QCOMPARE(read.textures->bufferM, 2.5);
        QCOMPARE(read.textures->dilatationPixels, 3.0);
        QCOMPARE(read.textures->images.size(), std::size_t{2});
        QCOMPARE(read.textures->images[1].path, std::string("h7.png"));
        QCOMPARE(read.textures->images[1].heightM, 7.0);
    }

    void refusesOthers_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("named");
        const QByteArray good = document({});
        QTest::newRow("nothing") << QByteArray() << QByteArray("no building document");
        QTest::newRow("another root") << QByteArray("<veltaroLayer/>") << QByteArray("no building");
        QTest::newRow("only its name in a comment")
            << QByteArray("<!-- <veltaroTexturedBuildings> --><x/>") << QByteArray("no building");
        QTest::newRow("no end of a comment")
            << QByteArray("<veltaroTexturedBuildings><!-- ") + good << QByteArray("footprints");
        QTest::newRow("no footprints")
            << QByteArray("<veltaroTexturedBuildings></veltaroTexturedBuildings>")
            << QByteArray("footprints");
        QTest::newRow("no field") << QByteArray(good).replace("hfield", "field")
                                  << QByteArray("field of heights");
        QTest::newRow("a value without end")
            << document("layer=\"x").left(150) << QByteArray("layer");
        QTest::newRow("no number") << document("skirtHeight=\"5 m\"") << QByteArray("skirtHeight");
        QTest::newRow("decimal comma") << document("tileSize=\"2,5\"") << QByteArray("tileSize");
        QTest::newRow("not finite") << document("tileSize=\"inf\"") << QByteArray("tileSize");
        QTest::newRow("too great") << document("tileSize=\"1e999\"") << QByteArray("tileSize");
        QTest::newRow("no size") << document("tileSize=\"0\"") << QByteArray("tileSize");
        QTest::newRow("negative") << document("extrudedVisibility=\"-1\"")
                                  << QByteArray("extrudedVisibility");
        QTest::newRow("unknown mode")
            << textures({}).replace("walls", "doors") << QByteArray("\"doors\"");
        QTest::newRow("no height of an image")
            << textures({}, "<texture filename=\"a\" height=\"low\"/>") << QByteArray("height");
    }

    void refusesOthers()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, named);
        QByteArray fault;

        try {
            parseTexbDocument(text.toStdString());
        } catch (const BadLayer &bad) {
            fault = bad.what();
        }

        QVERIFY2(fault.contains(named), fault);
    }

    /// A mark in each place of a large document: cutting it anywhere ends in a result or a refusal.
    void survivesWhateverIsCutOff()
    {
        const std::string whole =
            textures("bufferValue=\"1\"", "<texture filename=\"a\" height=\"1\"/>").toStdString();
        std::size_t read = 0;
        for (std::size_t length = 0; length <= whole.size(); ++length) {
            try {
                parseTexbDocument(std::string_view(whole).substr(0, length));
                ++read;
            } catch (const BadLayer &) {
                continue;
            }
        }

        QVERIFY(read > 0 && read < whole.size());
    }

    void staysQuickWithManyQuotationMarks()
    {
        const QByteArray text = document("layer=\"" + QByteArray(200000, '"'));
        QElapsedTimer timer;
        timer.start();

        parseTexbDocument(text.toStdString());

        QVERIFY2(timer.elapsed() < 2000, QByteArray::number(timer.elapsed()));
    }
};

QTEST_GUILESS_MAIN(tst_TexbDocument)
#include "tst_TexbDocument.moc"
