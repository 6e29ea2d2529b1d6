#include "buildings/BuildingDocument.h"
#include "buildings/BuildingLayer.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::buildings;

namespace {

const FootprintSettings Town{u"/data/town.shp"_s, u"town"_s, u"HEIGHT"_s, 250, 2000, 5, true};
const TerrainSettings Terrain{u"/data/dem.tif"_s, u"-32768"_s};
const RasterColoring Signal{u"/c/dbm.tif"_s,    u"/maps/signal.txt"_s, Reduction::Maximum,
                            /*stretched*/ true, /*interpolated*/ true, {}};

const QString ColoredText =
    uR"(<?xml version="1.0" encoding="UTF-8"?><veltaroTexturedBuildings cache="none">
  <vector~
    filename="/data/town.shp"
    layer="town"
    hfield="HEIGHT"
    tileSize="250"
    extrudedVisibility="2000"
    wallColor="IMAGE;/c/dbm.tif;/maps/signal.txt;maximum;stretched;interpolation"
    skirtHeight="5"
    checkClockwise="true"
  />
  <elevation~
    source="dtm"
    filename="/data/dem.tif"
    nodata="-32768"
  />
</veltaroTexturedBuildings>
)"_s;

const QString PlainText = uR"(<?xml version="1.0" encoding="UTF-8"?><veltaroTexturedBuildings~
  cache="none">
  <vector~
    filename="/data/town.shp"
    layer="town"
    hfield="HEIGHT"
    tileSize="250"
    extrudedVisibility="2000"
    texturedVisibility="800.5"
    wallColor="#C0C0C0"
    roofColor="#A05030"
    skirtHeight="5"
    checkClockwise="true"
  />
  <elevation~
    source="dtm"
    filename="/data/dem.tif"
    nodata="-32768"
  />
</veltaroTexturedBuildings>
)"_s;

const QString TexturedText = uR"(<?xml version="1.0" encoding="UTF-8"?><veltaroTexturedBuildings~
  cache="textured"~
  delayedCacheWrite="true"~
  delayedCacheWriteCapacity="1000000">
  <vector~
    filename="/data/town.shp"
    layer="town"
    hfield="HEIGHT"
    tileSize="250"
    extrudedVisibility="2000"
    texturedVisibility="800.5"
    wallColor="#C0C0C0"
    roofColor="#A05030"
    skirtHeight="5"
    checkClockwise="true"
  />
  <elevation~
    source="dtm"
    filename="/data/dem.tif"
    nodata="-32768"
  />
  <textures~
    mode="storeys"
    edgeColor="#000000"
    forceEdgeCreation="true"
    processComplexBuildings="false"
   compression="DXT1"
    bufferValue="2.5"
    dilatationValue="1"
    magFilter="LINEAR"
  >
    <texture~
      filename="/t/h 1.5.png"
      height="1.5"
    />
    <texture~
      filename="HDF5:"/t/a.h5"://b"
      height="1.23457e+06"
    />
  </textures>
</veltaroTexturedBuildings>
)"_s;

/// "~" at the end of a line stands for the blank there.
QString expected(QString text)
{
    return text.replace(u"~\n"_s, u" \n"_s);
}

/// The first line that differs says more than two long texts.
bool sameLines(const QString &actual, const QString &wanted)
{
    const QStringList a = actual.split(u'\n');
    const QStringList b = wanted.split(u'\n');
    for (qsizetype i = 0; i < std::min(a.size(), b.size()); ++i) {
        if (a[i] != b[i]) {
            qWarning("line %lld: %s instead of %s", static_cast<long long>(i + 1), qPrintable(a[i]),
                     qPrintable(b[i]));
            return false;
        }
    }
    return actual == wanted;
}

Texb plainTexb()
{
    return {{}, Town, 800.5, u"#C0C0C0"_s, u"#A05030"_s, Terrain, {}};
}

Texb texturedTexb()
{
    Texb document = plainTexb();
    document.cache = CacheSettings{u"textured"_s, true, 1000000};
    document.textures = TextureSettings{u"storeys"_s,
                                        u"#000000"_s,
                                        true,
                                        false,
                                        u"DXT1"_s,
                                        2.5,
                                        1.,
                                        u"LINEAR"_s,
                                        {{u"/t/h 1.5.png"_s, 1.5, 0, {}, true, {}},
                                         {u"/t/unused.png"_s, 3, 0, {}, false, {}},
                                         {u"HDF5:\"/t/a.h5\"://b"_s, 1234567, 1, {}, true, {}}}};
    return document;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

} // namespace

class tst_BuildingDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesDocuments_data()
    {
        QTest::addColumn<QString>("actual");
        QTest::addColumn<QString>("wanted");
        QTest::newRow("coloured") << writeColoredTexbDocument({Town, Terrain, Signal})
                                  << expected(ColoredText);
        QTest::newRow("plain") << writeTexbDocument(plainTexb()) << expected(PlainText);
        QTest::newRow("textured") << writeTexbDocument(texturedTexb()) << expected(TexturedText);

        Texb bare = texturedTexb();
        bare.cache->delayedWrite = false;
        bare.textures->compression.reset();
        bare.textures->bufferValue.reset();
        bare.textures->dilatationValue.reset();
        bare.textures->images.clear();
        QString bareText = expected(TexturedText);
        const qsizetype images = bareText.indexOf(u"    <texture \n"_s);
        bareText.remove(images, bareText.indexOf(u"  </textures>"_s) - images);
        bareText.remove(u"   compression=\"DXT1\"\n    bufferValue=\"2.5\"\n"
                        "    dilatationValue=\"1\"\n"_s);
        bareText.replace(u"delayedCacheWrite=\"true\""_s, u"delayedCacheWrite=\"false\""_s);
        QTest::newRow("textured without options") << writeTexbDocument(bare) << bareText;

        FootprintSettings odd{
            u"/a&b/\"c\".shp"_s, u"%2 %1"_s, u"<h>%9"_s, 0.5, 1234567, 0.1, false};
        QString oddText = expected(ColoredText);
        oddText.replace(u"\"/data/town.shp\""_s, u"\"/a&b/\"c\".shp\""_s)
            .replace(u"\"town\""_s, u"\"%2 %1\""_s)
            .replace(u"\"HEIGHT\""_s, u"\"<h>%9\""_s)
            .replace(u"\"250\""_s, u"\"0.5\""_s)
            .replace(u"\"2000\""_s, u"\"1.23457e+06\""_s)
            .replace(u"skirtHeight=\"5\""_s, u"skirtHeight=\"0.1\""_s)
            .replace(u"\"true\""_s, u"\"false\""_s);
        QTest::newRow("values as they are")
            << writeColoredTexbDocument({odd, Terrain, Signal}) << oddText;
    }

    void writesDocuments()
    {
        QFETCH(QString, actual);
        QFETCH(QString, wanted);
        QVERIFY(sameLines(actual, wanted));
    }

    void namesColorsOfARaster_data()
    {
        QTest::addColumn<int>("reduction");
        QTest::addColumn<bool>("stretched");
        QTest::addColumn<bool>("interpolated");
        QTest::addColumn<QString>("noData");
        QTest::addColumn<QString>("image");
        QTest::addColumn<QString>("colorMap");
        QTest::newRow("minimum") << 0 << true << false << QString()
                                 << u"IMAGE;r;%1;minimum;stretched;colorrange"_s
                                 << u"cmap:datasource=r;cmap=%1;stretchcmap=TRUE;"
                                    "interpolatecmap=FALSE;band=1;type=minimum"_s;
        QTest::newRow("maximum") << 1 << false << true << u"-9999"_s
                                 << u"IMAGE;r;%1;maximum;absolute;interpolation;-9999"_s
                                 << u"cmap:datasource=r;nd=-9999;cmap=%1;stretchcmap=FALSE;"
                                    "interpolatecmap=TRUE;band=1;type=maximum"_s;
        QTest::newRow("average") << 2 << true << true << u"%3"_s
                                 << u"IMAGE;r;%1;average;stretched;interpolation;%3"_s
                                 << u"cmap:datasource=r;nd=%3;cmap=%1;stretchcmap=TRUE;"
                                    "interpolatecmap=TRUE;band=1;type=average"_s;
        QTest::newRow("most represented") << 3 << false << false << QString()
                                          << u"IMAGE;r;%1;mostRepresented;absolute;colorrange"_s
                                          << u"cmap:datasource=r;cmap=%1;stretchcmap=FALSE;"
                                             "interpolatecmap=FALSE;band=1;type=mostRepresented"_s;
    }

    void namesColorsOfARaster()
    {
        QFETCH(int, reduction);
        QFETCH(bool, stretched);
        QFETCH(bool, interpolated);
        QFETCH(QString, noData);
        const RasterColoring coloring{u"r"_s,    u"%1"_s,      static_cast<Reduction>(reduction),
                                      stretched, interpolated, noData};

        QTEST(imageColor(coloring), "image");
        QTEST(colorMapColor(coloring), "colorMap");
    }

    void fillsTheLayerTemplate()
    {
        const QTemporaryDir dir;
        const QString layerTemplate = dir.filePath(u"t.lay"_s);
        QFile file(layerTemplate);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("__TITLE__|__TITLE__|__title__|__SUBTYPE__|__TEXB_URL__\n__X_CENTER__ "
                   "__Y_CENTER__\n__DESCRIPTION__\n\xC3\xA9");
        file.close();
        const QString output = dir.filePath(u"out.lay"_s);
        const TexbLayer layer{u"Bât \"&\" %1"_s,    texbUrl(u"/tmp/a b.c/doc"_s),
                              651234.56789,         -6789012.3,
                              TexbSubtype::Storeys, u"<p>__SUBTYPE__</p>\nx"_s};

        QVERIFY(createTexbLayerFile(output, layerTemplate, layer, vlt::platform::Access::UserOnly));

        QCOMPARE(contentOf(output),
                 u"Bât \"&\" %1|Bât \"&\" %1|__title__|rf_storeys|TEXB:/tmp/a b.c/doc.texb\n"
                 "651234.568 -6789012.3\n<p>rf_storeys</p>\nx\né"_s.toUtf8());
    }

    void saysWhichFileKeepsALayerFromBeingMade()
    {
        const QTemporaryDir dir;
        const QString output = dir.filePath(u"out.lay"_s);
        const QString missing = dir.filePath(u"no.lay"_s);
        const auto shared = vlt::platform::Access::Shared;

        const auto withoutTemplate = createTexbLayerFile(output, missing, {}, shared);
        QCOMPARE(withoutTemplate.error().key, u"MESS_MISSING_CONF_FILE"_s);
        QCOMPARE(withoutTemplate.error().display(),
                 u"A configuration file is missing\n"_s + missing);
        QVERIFY(QDir(dir.path()).isEmpty());

        const QString shipped = texbTemplatePath(QStringLiteral(VLT_INSTALLATION));
        const auto unwritable = createTexbLayerFile(dir.path(), shipped, {}, shared);
        QCOMPARE(unwritable.error().display(), u"Can't create the layer file\n"_s + dir.path());
        QCOMPARE(unwritable.error().key, u"MESS_CANT_CREATE_LAYER"_s);
    }

    void theShippedTemplateTakesEveryValue()
    {
        const QTemporaryDir dir;
        const QString output = dir.filePath(u"out.lay"_s);
        const TexbLayer layer{u"A"_s, u"B"_s, 1, 2, TexbSubtype::Colored, u"C"_s};

        QVERIFY(createTexbLayerFile(output, texbTemplatePath(QStringLiteral(VLT_INSTALLATION)),
                                    layer, vlt::platform::Access::Shared));

        const QByteArray text = contentOf(output);
        QVERIFY(!text.contains("__"));
        for (const char *part : {"<title><![CDATA[A]]></title>", "<source><![CDATA[B]]></source>",
                                 "<subtype>rf_colored_buildings</subtype>", "<xCenter>1</xCenter>",
                                 "<yCenter>2</yCenter>", "<![CDATA[C]]></description>"})
            QVERIFY2(text.contains(part), part);
    }
};

QTEST_GUILESS_MAIN(tst_BuildingDocument)
#include "tst_BuildingDocument.moc"
