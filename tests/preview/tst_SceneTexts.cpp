#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"
#include "snapshot/SceneNotices.h"
#include "snapshot/SceneSource.h"
#include "support/Cases.h"
#include "support/Files.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using vlt::language::readerText;

namespace {

const QByteArray Document =
    R"(<veltaroTexturedBuildings cache="none"><vector filename="town.geojson" layer="" hfield="H"
 tileSize="250" wallColor="#808080" texturedVisibility="500"/><elevation source="dtm" filename="flat.asc" nodata=""/>
<textures mode="roofs" magFilter="none"></textures></veltaroTexturedBuildings>)";

QByteArray square(const char *x, const char *heights)
{
    return QByteArray(R"({"type":"Feature","properties":{"H":)") + heights +
           R"(,"Day":"2024/01/31"},"geometry":{"type":"Polygon","coordinates":[[[)" + x +
           ".001,45.001],[" + x + ".002,45.001],[" + x + ".002,45.002],[" + x + ".001,45.001]]]}}";
}

QByteArray townOf(const QByteArrayList &features)
{
    return R"({"type":"FeatureCollection","features":[)" + features.join(',') + "]}";
}

/// A grid of 2 x 2 pixels from 5 degrees east, 45 degrees north.
QByteArray grid(const char *pixels, const char *side = "0.01")
{
    return QByteArray("ncols 2\nnrows 2\nxllcorner 5\nyllcorner 45\ncellsize ") + side +
           "\nNODATA_value -99\n" + pixels + "\n";
}

} // namespace

class tst_SceneTexts : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString write(const QString &name, const QByteArray &content)
    {
        return writeFile(m_dir.filePath(name), content);
    }

    /// The dictionary's text for a key, with its values.
    static QString reported(const char *key, const QStringList &values)
    {
        QString text = dico_label(key, "?");
        for (qsizetype i = 0; i < values.size(); ++i)
            text.replace(u"%%1"_s.arg(i + 1), values.at(i));
        return text;
    }

private Q_SLOTS:
    void initTestCase()
    {
        VltLanguageManager::getInstance().defaultSetup(QStringLiteral(VLT_MESSAGES), u"fr"_s, {});
        const QByteArray high = square("5", "10");
        write(u"town.geojson"_s, townOf({high, high}));
        write(u"flawed.geojson"_s,
              townOf({high, square("5", "null"), square("5", "0"),
                      R"({"type":"Feature","properties":{"H":3},"geometry":null})"}));
        write(u"apart.geojson"_s, townOf({high, square("6", "10")}));
        write(u"text.tif"_s, "no image");
        write(u"flat.asc"_s, grid("7 7\n7 7"));
        write(u"hollow.asc"_s, grid("-99 -99\n-99 -99"));
        write(u"map.txt"_s, "0 0 0 0\n100 200 0 0\n");
        write(u"bad.txt"_s, "5 pink\n");
        write(u"void.txt"_s, {});
    }

    void translatesNotices_data()
    {
        const Cases<QByteArray, QByteArray, QByteArray, QStringList> table(
            {"instead", "document", "key", "values"});
        const auto row = [&table](const char *instead, const QByteArray &document, const char *key,
                                  const QStringList &values = {}) {
            const QByteArray name = QByteArray(key) + ": " + document.left(60);
            table(name.constData(), instead, document, key, values);
        };
        const QStringList one{u"1"_s, u"4"_s, u"H"_s};
        row("town", "flawed", "MESS_SCENE_NO_HEIGHT", one);
        row("town", "flawed", "MESS_SCENE_ZERO_HEIGHT", one);
        row("town", "flawed", "MESS_SCENE_NO_POLYGON", one);
        row("flat.asc", "", "MESS_SCENE_NO_TERRAIN");
        row("flat.asc", "hollow.asc", "MESS_SCENE_NO_GROUND");
        row("town", "apart", "MESS_SCENE_LOWEST_GROUND", {u"1"_s, u"2"_s});
        row("flat.asc", "gone %1.asc", "MESS_SCENE_BAD_TERRAIN",
            {u"gone %1.asc"_s, reported("MESS_TERRAIN_NOT_LOCAL", {})});
        row("flat.asc", "text.tif", "MESS_SCENE_BAD_TERRAIN",
            {u"text.tif"_s, reported("MESS_SCENE_NO_FORMAT", {m_dir.filePath(u"text.tif"_s)})});

        const auto colors = [&row](const char *words, const char *key, const QStringList &values) {
            row("#808080", words, key, values);
        };
        colors("IMAGE;no.asc;map.txt;minimum;absolute;interpolation", "MESS_SCENE_BAD_RASTER",
               {u"no.asc"_s, reported("MESS_TERRAIN_NOT_LOCAL", {})});
        colors("IMAGE;flat.asc;map.txt;minimum;absolute;interpolation;x", "MESS_SCENE_BAD_RASTER",
               {u"flat.asc"_s, reported("MESS_SCENE_BAD_NODATA", {u"x"_s})});
        colors("IMAGE;flat.asc;no.txt;minimum;absolute;interpolation", "MESS_SCENE_NO_MAP",
               {u"no.txt"_s});
        colors("IMAGE;flat.asc;bad.txt;minimum;absolute;interpolation", "MESS_SCENE_BAD_MAP",
               {u"bad.txt"_s, reported("MESS_SCENE_NO_COLOR", {u"pink"_s})});
        colors("IMAGE;flat.asc;void.txt;minimum;absolute;interpolation", "MESS_SCENE_BAD_MAP",
               {u"void.txt"_s, reported("MESS_SCENE_NO_MAP_IN", {m_dir.filePath(u"void.txt"_s)})});
        colors("IMAGE;hollow.asc;map.txt;minimum;stretched;interpolation",
               "MESS_SCENE_EMPTY_RASTER", {u"hollow.asc"_s});
        colors("IMAGE;hollow.asc;map.txt;minimum;absolute;interpolation", "MESS_SCENE_NO_VALUE",
               {u"2"_s, u"2"_s, u"hollow.asc"_s});
        colors("pinkish", "MESS_SCENE_NO_COLORS", {u"pinkish"_s});

        const auto images = [&row](const char *list, const char *reason) {
            row("</textures>", list, "MESS_SCENE_BAD_IMAGE", {u"flat.asc"_s, reported(reason, {})});
        };
        QByteArray many;
        for (int height = 1; height <= 1002; ++height)
            many += "<texture filename='no.tif' height='" + QByteArray::number(height) + "'/>";
        row("</textures>", many + "</textures>", "MESS_SCENE_MORE_IMAGES", {u"2"_s});
        images(R"(<texture filename="flat.asc" height="2"/><texture filename="flat.asc" height="2"/>
</textures>)",
               "MESS_SCENE_SAME_HEIGHT");
    }

    void translatesNotices()
    {
        QFETCH(const QByteArray, instead);
        QFETCH(const QByteArray, document);
        QFETCH(const QByteArray, key);
        QFETCH(const QStringList, values);
        const QString path =
            write(u"a: 1 of 2 b.texb"_s, QByteArray(Document).replace(instead, document));

        vlt::snapshot::SceneNotices notices;
        const auto scene = vlt::snapshot::readScene(path, {}, {});
        QStringList texts;
        for (const QString &notice : notices.take())
            texts << readerText(notice);

        QVERIFY2(scene, scene ? "" : qPrintable(scene.error().detail));
        const QString expected = path + u": "_s + reported(key, values);
        QVERIFY2(texts.contains(expected), qPrintable(texts.join(u'\n') + u"\n# "_s + expected));
    }

    void translatesRefusals_data()
    {
        const Cases<QString, QByteArray, QByteArray, QStringList> row(
            {"name", "content", "key", "values"});
        const auto document = [&row](const char *instead, const char *words, const char *key,
                                     const QStringList &values = {}) {
            row(key, "a.texb", QByteArray(Document).replace(instead, words), key, values);
        };
        document("town.geojson", "no \"town\".shp", "MESS_SCENE_NO_FOOTPRINTS",
                 {u"no \"town\".shp"_s});
        document("town.geojson", "text.tif", "MESS_SCENE_BAD_FOOTPRINTS",
                 {u"%1"_s, reported("MESS_SCENE_NO_FORMAT", {u"%1"_s})});
        document("layer=\"\"", "layer=\"L\"", "MESS_SCENE_NO_LAYER", {u"L"_s});
        document("hfield=\"H\"", "hfield=\"G\"", "MESS_SCENE_NO_FIELD", {u"G"_s});
        document("hfield=\"H\"", "hfield=\"Day\"", "MESS_SCENE_NO_NUMBERS", {u"Day"_s});
        document("veltaro", "other", "MESS_SCENE_OTHER_DOCUMENT");
        document("250", "wide", "MESS_SCENE_BAD_NUMBER", {u"tileSize"_s, u"wide"_s});
        document("250", "0", "MESS_SCENE_NO_TILES");
        document("</textures>", "<texture filename='a' height='low'/>", "MESS_SCENE_NO_NUMBER",
                 {u"height"_s, u"low"_s});
        document("roofs", "doors", "MESS_SCENE_BAD_MODE", {u"doors"_s});
        document("town.geojson", "", "MESS_SCENE_UNNAMED_FOOTPRINTS");
        document("hfield=\"H\"", "", "MESS_SCENE_UNNAMED_FIELD");

        row("cut short", "a.texb", Document.left(Document.indexOf("own.geo")),
            "MESS_SCENE_NO_VALUE_END", {u"filename"_s});

        const auto layer = [&row](const char *content, const char *key,
                                  const QStringList &values = {}) {
            row(key, "a.lay", content, key, values);
        };
        layer("<a/>", "MESS_SCENE_NO_ROOT");
        layer("<veltaroLayer version=\"1\">", "MESS_SCENE_NO_KIND");
        layer("<veltaroLayer kind=\"%2\">", "MESS_SCENE_BAD_KIND", {u"%2"_s});
        layer("<veltaroLayer kind=\"buildings\"><source/>", "MESS_SCENE_NO_SOURCE");
        layer("<veltaroLayer kind=\"buildings\"><source>TEXB:a", "MESS_SCENE_NO_END",
              {u"source"_s});
        layer("<veltaroLayer kind=\"buildings\"><source>b.texb</source>", "MESS_SCENE_OTHER_SOURCE",
              {u"b.texb"_s, u"TEXB:"_s});
        layer("<veltaroLayer kind=\"buildings\"><source>TEXB:b.texb</source>",
              "MESS_SCENE_NO_DOCUMENT", {u"b.texb"_s});
        layer("<veltaroLayer kind=\"sites\"><source>site:/gone/s.csv</source>",
              "MESS_SCENE_NO_TABLE", {u"/gone/s.csv"_s});
        layer("<veltaroLayer kind=\"links\"><source>link:map.txt</source>", "MESS_SCENE_NO_OPTION",
              {u"pylon_type"_s});
        layer("<veltaroLayer kind=\"sites\">"
              "<source>site:pylon_type=wood_panel,pylon_width=wide,map.txt</source>",
              "MESS_QUERY_NO_NUMBER",
              {u"pylon_width"_s, reported("MESS_QUANTITY_WIDTH", {}), u"wide"_s});
    }

    void translatesRefusals()
    {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, content);
        QFETCH(const QByteArray, key);
        QFETCH(QStringList, values);
        values.replaceInStrings(u"%1"_s, m_dir.filePath(u"text.tif"_s));

        const vlt::snapshot::SceneNotices notices; // keeps the output quiet
        const auto scene = vlt::snapshot::readScene(write(name, content), {}, {});

        QVERIFY(!scene);
        QCOMPARE(readerText(scene.error().detail), reported(key, values));
    }

    void knowsTheLibraryInEveryVersion()
    {
        for (const char *form : {"`%1' not recognized as a supported file format.",
                                 "`%1' not recognized as being in a supported file format."})
            QCOMPARE(readerText(QString::fromUtf8(form).arg(u"a.tif"_s)),
                     reported("MESS_SCENE_NO_FORMAT", {u"a.tif"_s}));
    }

    void passesOtherTextsOn()
    {
        const QString other = u"/a.ive: 3 of 4 nodes are left out: no reason"_s;

        QCOMPARE(readerText(other), other);
    }
};

QTEST_GUILESS_MAIN(tst_SceneTexts)
#include "tst_SceneTexts.moc"
