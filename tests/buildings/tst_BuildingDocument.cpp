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

// "~" at the end of a line stands for the blank there.
const QString Root = uR"(<?xml version="1.0" encoding="UTF-8"?><veltaroTexturedBuildings)"_s;
const QString FirstLines = uR"(  <vector~
    filename="/data/town.shp"
    layer="town"
    hfield="HEIGHT"
    tileSize="250"
    extrudedVisibility="2000"
)"_s;
const QString TwoColors = uR"(    texturedVisibility="800.5"
    wallColor="#C0C0C0"
    roofColor="#A05030"
)"_s;
const QString LastLines = uR"(    skirtHeight="5"
    checkClockwise="true"
  />
  <elevation~
    source="dtm"
    filename="/data/dem.tif"
    nodata="-32768"
  />
)"_s;
const QString End = u"</veltaroTexturedBuildings>\n"_s;
const QString Textures = uR"(  <textures~
    mode="storeys"
    edgeColor="#000000"
    forceEdgeCreation="true"
    processComplexBuildings="false"
%1    magFilter="LINEAR"
  >
%2  </textures>
)"_s;
const QString Options = uR"(   compression="DXT1"
    bufferValue="2.5"
    dilatationValue="1"
)"_s;
const QString Images = uR"(    <texture~
      filename="/t/h 1.5.png"
      height="1.5"
    />
    <texture~
      filename="HDF5:"/t/a.h5"://b"
      height="1.23457e+06"
    />
)"_s;

const QString ColoredText =
    Root + u" cache=\"none\">\n"_s + FirstLines +
    u"    wallColor=\"IMAGE;/c/dbm.tif;/maps/signal.txt;maximum;stretched;interpolation\"\n"_s +
    LastLines + End;
const QString PlainText =
    Root + u"~\n  cache=\"none\">\n"_s + FirstLines + TwoColors + LastLines + End;

QString texturedText(bool delayed, const QString &options, const QString &images)
{
    return Root +
           u"~\n  cache=\"textured\"~\n  delayedCacheWrite=\"%1\"~\n"
           "  delayedCacheWriteCapacity=\"1000000\">\n"_s.arg(delayed ? u"true"_s : u"false"_s) +
           FirstLines + TwoColors + LastLines + Textures.arg(options, images) + End;
}

Texb plainTexb()
{
    return {{}, Town, 800.5, u"#C0C0C0"_s, u"#A05030"_s, Terrain, {}};
}

Texb texturedTexb()
{
    Texb document = plainTexb();
    document.cache = CacheSettings{u"textured"_s, true, 1000000};
    document.textures = TexbTextures{u"storeys"_s,
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
        const auto row = [](const char *name, const QString &actual, QString wanted) {
            QTest::newRow(name) << actual << wanted.replace(u"~\n"_s, u" \n"_s);
        };
        row("coloured", writeColoredTexbDocument({Town, Terrain, Signal}), ColoredText);
        row("plain", writeTexbDocument(plainTexb()), PlainText);
        Texb document = texturedTexb();
        row("textured", writeTexbDocument(document), texturedText(true, Options, Images));

        document.cache->delayedWrite = false;
        document.textures->compression.reset();
        document.textures->bufferValue.reset();
        document.textures->dilatationValue.reset();
        document.textures->images.clear();
        row("textured without options", writeTexbDocument(document), texturedText(false, {}, {}));

        const FootprintSettings odd{
            u"/a&b/\"c\".shp"_s, u"%2 %1"_s, u"<h>%9"_s, 0.5, 1234567, 0.1, false};
        QString oddText = ColoredText;
        oddText.replace(u"\"/data/town.shp\""_s, u"\"/a&b/\"c\".shp\""_s)
            .replace(u"\"town\""_s, u"\"%2 %1\""_s)
            .replace(u"\"HEIGHT\""_s, u"\"<h>%9\""_s)
            .replace(u"\"250\""_s, u"\"0.5\""_s)
            .replace(u"\"2000\""_s, u"\"1.23457e+06\""_s)
            .replace(u"skirtHeight=\"5\""_s, u"skirtHeight=\"0.1\""_s)
            .replace(u"\"true\""_s, u"\"false\""_s);
        row("values as they are", writeColoredTexbDocument({odd, Terrain, Signal}), oddText);
    }

    void writesDocuments()
    {
        QFETCH(QString, actual);
        QFETCH(QString, wanted);
        QCOMPARE(actual.split(u'\n'), wanted.split(u'\n')); // names the line that differs
    }

    void namesColorsOfARaster_data()
    {
        QTest::addColumn<QString>("image");
        QTest::addColumn<QString>("wantedImage");
        QTest::addColumn<QString>("map");
        QTest::addColumn<QString>("wantedMap");
        const auto row = [](const char *reduction, const RasterColoring &coloring,
                            const char *image, const char *map) {
            QTest::newRow(reduction)
                << imageColor(coloring) << QString::fromLatin1(image) << colorMapColor(coloring)
                << u"cmap:datasource=r;"_s + QString::fromLatin1(map) + u";band=1;type="_s +
                       QString::fromLatin1(reduction);
        };
        const QString raster = u"r"_s;
        const QString map = u"%1"_s;
        row("minimum", {raster, map, Reduction::Minimum, true, false, {}},
            "IMAGE;r;%1;minimum;stretched;colorrange",
            "cmap=%1;stretchcmap=TRUE;interpolatecmap=FALSE");
        row("maximum", {raster, map, Reduction::Maximum, false, true, u"-9999"_s},
            "IMAGE;r;%1;maximum;absolute;interpolation;-9999",
            "nd=-9999;cmap=%1;stretchcmap=FALSE;interpolatecmap=TRUE");
        row("average", {raster, map, Reduction::Average, true, true, u"%3"_s},
            "IMAGE;r;%1;average;stretched;interpolation;%3",
            "nd=%3;cmap=%1;stretchcmap=TRUE;interpolatecmap=TRUE");
        row("mostRepresented", {raster, map, Reduction::MostRepresented, false, false, {}},
            "IMAGE;r;%1;mostRepresented;absolute;colorrange",
            "cmap=%1;stretchcmap=FALSE;interpolatecmap=FALSE");
    }

    void namesColorsOfARaster()
    {
        QFETCH(QString, image);
        QFETCH(QString, map);
        QTEST(image, "wantedImage");
        QTEST(map, "wantedMap");
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
