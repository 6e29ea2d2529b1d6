#include "buildings/BuildingLayer.h"
#include "buildings/DocumentWriter.h"
#include "buildings/RasterColoring.h"
#include "support/Cases.h"
#include "support/Files.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::buildings;
using namespace vlt::contract;

namespace {

// Values are written without escaping.
const BuildingFootprints CityModel{"/a&b/\"c\".shp", "%2 %1",   "<h>%9", 0.5, 1234567, 800.5,
                                   "#C0C0C0",        "#A05030", 0.1,     true};
const BuildingTerrain Terrain{"/data/dem.tif", "-32768"};
const RasterColoring Signal{u"/c/dbm.tif"_s,    u"/maps/signal.txt"_s, Reduction::Maximum,
                            /*stretched*/ true, /*interpolated*/ true, {}};

// "~" at the end of a line means a blank.
const QString Root = uR"(<?xml version="1.0" encoding="UTF-8"?><veltaroTexturedBuildings)"_s;
const QString FirstLines = uR"(  <vector~
    filename="/a&b/"c".shp"
    layer="%2 %1"
    hfield="<h>%9"
    tileSize="0.5"
    extrudedVisibility="1.23457e+06"
)"_s;
const QString TwoColors = uR"(    texturedVisibility="800.5"
    wallColor="#C0C0C0"
    roofColor="#A05030"
)"_s;
const QString LastLines = uR"(    skirtHeight="0.1"
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
OPTIONS    magFilter="linear"
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
)"_s;
const QString Options = uR"(   compression="dxt1"
    bufferValue="2.5"
    dilatationValue="1"
)"_s;

const QString ColoredText =
    Root + u" cache=\"none\">\n"_s + FirstLines +
    u"    wallColor=\"IMAGE;/c/dbm.tif;/maps/signal.txt;maximum;stretched;interpolation\"\n"_s +
    LastLines + End;
const QString PlainText =
    Root + u"~\n  cache=\"none\">\n"_s + FirstLines + TwoColors + LastLines + End;
const QString TexturedText = Root +
                             u"~\n  cache=\"textured\"~\n  delayedCacheWrite=\"true\"~\n"
                             "  delayedCacheWriteCapacity=\"1000000\">\n"_s +
                             FirstLines + TwoColors + LastLines + Textures + End;

} // namespace

class tst_BuildingDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesDocuments_data()
    {
        const Cases<QString, QString> row({"actual", "wanted"}); // wanted: "~" means a blank
        BuildingDocument document{{}, CityModel, Terrain, {}};
        row("plain", writeTexbDocument(document), PlainText);
        document.footprints.wallColor = imageColor(Signal).toStdString();
        row("coloured", writeColoredTexbDocument(document), ColoredText);

        document = {{CacheMode::Textured, true, 1000000}, CityModel, Terrain, {}};
        document.textures =
            BuildingTextures{TextureMode::Storeys,
                             "#000000",
                             true,
                             false,
                             TextureCompression::Dxt1,
                             2.5,
                             1,
                             MagFilter::Linear,
                             {{"/t/h 1.5.png", 1.5}, {"HDF5:\"/t/a.h5\"://b", 1234567}}};
        row("textured", writeTexbDocument(document),
            QString(TexturedText).replace(u"OPTIONS"_s, Options));
        document.textures->compression = TextureCompression::None;
        document.textures->bufferM.reset();
        document.textures->dilatationPixels.reset();
        row("textured without options", writeTexbDocument(document),
            QString(TexturedText).remove(u"OPTIONS"_s));
    }

    void writesDocuments()
    {
        QFETCH(QString, actual);
        QFETCH(QString, wanted);
        wanted.replace(u"~\n"_s, u" \n"_s);
        QCOMPARE(actual.split(u'\n'), wanted.split(u'\n')); // reports the line that differs
    }

    void namesColorsOfARaster()
    {
        const auto colors = [](Reduction reduction, bool stretched, bool interpolated,
                               const QString &noData) {
            const RasterColoring c{u"r"_s, u"%1"_s, reduction, stretched, interpolated, noData};
            for (const QString &text : {imageColor(c), colorMapColor(c)}) { // read back
                const auto read = vlt::contract::parseRasterColors(text.toStdString());
                if (!read || read->raster != "r" || read->map != "%1" ||
                    read->reduction != reduction || read->isStretched != stretched ||
                    read->isInterpolated != interpolated || read->noData != noData.toStdString())
                    return text + u" is read as another one"_s;
            }
            return imageColor(c) + u' ' + colorMapColor(c);
        };

        QCOMPARE(colors(Reduction::Minimum, true, false, {}),
                 u"IMAGE;r;%1;minimum;stretched;colorrange cmap:datasource=r;cmap=%1;"
                 "stretchcmap=TRUE;interpolatecmap=FALSE;band=1;type=minimum"_s);
        QCOMPARE(colors(Reduction::Maximum, false, true, u"-9999"_s),
                 u"IMAGE;r;%1;maximum;absolute;interpolation;-9999 cmap:datasource=r;nd=-9999;"
                 "cmap=%1;stretchcmap=FALSE;interpolatecmap=TRUE;band=1;type=maximum"_s);
        QCOMPARE(colors(Reduction::Average, true, true, u"%3"_s),
                 u"IMAGE;r;%1;average;stretched;interpolation;%3 cmap:datasource=r;nd=%3;"
                 "cmap=%1;stretchcmap=TRUE;interpolatecmap=TRUE;band=1;type=average"_s);
        QCOMPARE(colors(Reduction::MostRepresented, false, false, {}),
                 u"IMAGE;r;%1;mostRepresented;absolute;colorrange cmap:datasource=r;cmap=%1;"
                 "stretchcmap=FALSE;interpolatecmap=FALSE;band=1;type=mostRepresented"_s);
    }

    void fillsLayerTemplates()
    {
        const QTemporaryDir dir;
        const QString layerTemplate =
            writeFile(dir.filePath(u"t.lay"_s),
                      "__TITLE__|__TITLE__|__title__|__SUBTYPE__|__TEXB_URL__\n__X_CENTER__ "
                      "__Y_CENTER__\n__DESCRIPTION__\n\xC3\xA9");
        const QString output = dir.filePath(u"out.lay"_s);
        const TexbLayer layer{u"Bât \"&\" %1"_s,    texbUrl(u"/tmp/a b.c/doc"_s),
                              651234.56789,         -6789012.3,
                              TexbSubtype::Storeys, u"<p>__SUBTYPE__</p>\nx"_s};

        QVERIFY(createTexbLayerFile(output, layerTemplate, layer, vlt::platform::Access::UserOnly));

        QCOMPARE(readFile(output),
                 u"Bât \"&\" %1|Bât \"&\" %1|__title__|rf_storeys|TEXB:/tmp/a b.c/doc.texb\n"
                 "651234.568 -6789012.3\n<p>rf_storeys</p>\nx\né"_s.toUtf8());

        QVERIFY(createTexbLayerFile(output, texbTemplatePath(QStringLiteral(VLT_INSTALLATION)),
                                    layer, vlt::platform::Access::Shared));
        const QString text = QString::fromUtf8(readFile(output));
        QVERIFY(!text.contains(u"__"_s));
        for (const QString &part :
             {u"<title><![CDATA[Bât \"&\" %1]]></title>"_s,
              u"<source><![CDATA[TEXB:/tmp/a b.c/doc.texb]]></source>"_s,
              u"<subtype>rf_storeys</subtype>"_s, u"<xCenter>651234.568</xCenter>"_s,
              u"<yCenter>-6789012.3</yCenter>"_s, u"<p>rf_storeys</p>\nx]]></description>"_s})
            QVERIFY2(text.contains(part), qPrintable(part));
    }
};

QTEST_GUILESS_MAIN(tst_BuildingDocument)
#include "tst_BuildingDocument.moc"
