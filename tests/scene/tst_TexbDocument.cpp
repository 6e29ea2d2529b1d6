#include "buildings/DocumentWriter.h"
#include "plugins/scene/buildings/TexbDocument.h"
#include "plugins/scene/reading/BadLayer.h"
#include "support/Cases.h"
#include "support/ProcessorTime.h"

#include <QtTest>

using namespace vlt::contract;
using namespace vlt::scene;

namespace {

/// A document with these additional attributes of its vector element.
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
        const Cases<QByteArray, QByteArray> row({"written", "layer"});
        row("plain", "layer=\"a b\"", "a b");
        row("ampersand", "layer=\"A & B\"", "A & B");
        row("escaped", "layer=\"A &amp; &quot;B&quot; &lt;C&gt;\"", "A & \"B\" <C>");
        row("quotes", "layer=\"the \"old\" town\"\n    tileSize=\"5\"", "the \"old\" town");
        row("quote at the end", "layer=\"21\"\"", "21\"");
        row("part of a file", "layer=\"HDF5:\"/t/a b.h5\"://b\"", "HDF5:\"/t/a b.h5\"://b");
        row("what looks like an end", "layer=\"a\">b\" tileSize=\"5\"", "a\">b");
        row("tags", "layer=\"<elevation filename='x'/>\"", "<elevation filename='x'/>");
        row("apostrophes around", "layer='l\"'", "l\"");
        row("empty", "layer=\"\"", {});
        row("not UTF-8", "layer=\"\xe9t\xe9\"", "\xe9t\xe9");
        row("unknown ones around", "new=\"1\" layer=\"x\" other=\"2\"", "x");
    }

    void takesReferencesWhereValuesAreEscaped()
    {
        const QByteArray plain = document("layer=\"donn&#233;es\"");
        QByteArray escaped = plain;
        escaped.replace("<vector \n", "<vector\n");

        QCOMPARE(parseTexbDocument(plain.toStdString()).footprints.layer,
                 std::string("donn&#233;es"));
        QCOMPARE(parseTexbDocument(escaped.toStdString()).footprints.layer,
                 std::string("donn\u00e9es"));
    }

    void takesValuesAsTheyStand()
    {
        QFETCH(QByteArray, written);
        QFETCH(QByteArray, layer);

        const BuildingDocument read = parseTexbDocument(document(written).toStdString());

        QCOMPARE(QByteArray::fromStdString(read.footprints.layer), layer);
        QCOMPARE(read.footprints.heightField, std::string("H"));
        QVERIFY(read.terrain.file.empty());
    }

    void readsWhatIsWritten_data()
    {
        const Cases<BuildingDocument> row({"document"});
        BuildingDocument document;
        document.footprints = {"/a&b/\"c\".shp", "%2 %1", "<h>%9", 0.5, 123456, 800.5,
                               "#C0C0C0",        "cmap:", 0.25,    true};
        document.terrain = {"/d/dem.tif", "-32768"};
        row("without images", document);
        document.textures = BuildingTextures{TextureMode::Storeys,
                                             "#0000FF",
                                             true,
                                             true,
                                             TextureCompression::Dxt5,
                                             2.5,
                                             3,
                                             MagFilter::Linear,
                                             {{"HDF5:\"/t/a.h5\"://b", 1.5}, {"cellar.png", -2}}};
        row("with images", document);
        document.cache = {CacheMode::All, true, 9};
        row("with a cache", document);
        document.footprints.heights = {HeightUnit::Levels,   0.3048,           2.7,
                                       "NB \"d'étages\"",    HeightUnit::Feet, 7.5,
                                       HeightReference::Sea, BaseRule::Field,  "Z_SOL=\"x",
                                       "MIN_HEIGHT"};
        document.footprints.where = "\"USE\" = 'A & B' AND x<>1\n OR y LIKE '%22%' OR z > 1e-3";
        document.colors = {3, KnownRasterRange{-120.1, 1e-17, 1LL << 40, 1700000000}, "USAGE",
                           "/maps/use.txt", FieldColoring::Distinct};
        row("with heights and colors", document);
    }

    void readsWhatIsWritten()
    {
        QFETCH(BuildingDocument, document);

        const QString text = vlt::buildings::writeTexbDocument(document);

        document.cache = {}; // not used by scenes
        QVERIFY2(parseTexbDocument(text.toStdString()) == document, qPrintable(text));
    }

    void isLenientWithWords()
    {
        const auto read = [](const QByteArray &attributes) {
            return *parseTexbDocument(textures(attributes).toStdString()).textures;
        };

        QCOMPARE(read("compression=\"ETC\"").compression, TextureCompression::Arb);
        QCOMPARE(read("compression=\"None\"").compression, TextureCompression::None);
        QCOMPARE(read("magFilter=\"LINEAR\"").magFilter, MagFilter::Linear);
        QCOMPARE(read("magFilter=\"cubic\"").magFilter, MagFilter::None);
        QVERIFY(read("forceEdgeCreation=\"1\"").forceEdgeCreation);
    }

    void refusesOthers_data()
    {
        const Cases<QByteArray, QByteArray> row({"text", "named"});
        const QByteArray good = document({});
        row("nothing", {}, "not a building document");
        row("only its name in a comment", "<!-- <veltaroTexturedBuildings> --><x/>",
            "not a building");
        row("no end of a comment", "<veltaroTexturedBuildings><!-- " + good, "footprints");
        row("no footprints", "<veltaroTexturedBuildings></veltaroTexturedBuildings>", "footprints");
        row("no number", document("skirtHeight=\"5 m\""), "skirtHeight");
        row("decimal comma", document("tileSize=\"2,5\""), "tileSize");
        row("not finite", document("tileSize=\"inf\""), "tileSize");
        row("too great", document("tileSize=\"1e999\""), "tileSize");
        row("negative", document("extrudedVisibility=\"-1\""), "extrudedVisibility");
        row("unit", document({}, "<heights \n unit=\"miles\" />"), "the unit \"miles\"");
        row("factor", document({}, "<heights factor=\"0\" />"), "\"0\" is not a number from 0.001");
        row("default height", document({}, "<heights default=\"6 m\" />"), "default");
        row("band", document({}, "<colors band=\"0\" />"), "band");
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

    /// A document cut at any position is read or refused.
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
        const ProcessorTime time;

        parseTexbDocument(text.toStdString());

        QVERIFY2(time.seconds() < 2, QByteArray::number(time.seconds()));
    }
};

QTEST_GUILESS_MAIN(tst_TexbDocument)
#include "tst_TexbDocument.moc"
