#include "buildings/BuildingLayerFiles.h"
#include "buildings/DocumentWriter.h"
#include "buildings/RasterRanges.h"
#include "buildings/TexturedInfoText.h"
#include "language/VltLanguageManager.h"
#include "support/Cases.h"
#include "support/Files.h"
#include "support/GeoTiff.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::buildings;
using vlt::platform::Access;

namespace {

const QByteArray Template = "__TITLE__|__SUBTYPE__|__TEXB_URL__|__X_CENTER__|__Y_CENTER__|"
                            "__DESCRIPTION__\n";

const vlt::contract::BuildingFootprints Measures{{}, {}, {}, 250, 2000, 0, {}, {}, 5, false};
const RasterColoring Signal{u"/d/dbm.tif"_s,     u"/maps/two.txt"_s,     Reduction::Average,
                            /*stretched*/ false, /*interpolated*/ false, u"-1"_s};

FileEntry image(const QString &path, double height, bool used = true)
{
    return {path, height, 0, {}, used, {}};
}

TexturingParameters storeys()
{
    const QList<FileEntry> images{image(u"/t/h6.tif"_s, 6), image(u"/t/no.tif"_s, 3, false),
                                  image(u"/t/h1.tif"_s, 1.5)};
    return {{},
            1000,
            u"#102030"_s,
            {},
            Signal,
            vlt::contract::TextureMode::Storeys, // this one is written
            vlt::contract::BuildingTextures{},
            images};
}

} // namespace

class tst_BuildingLayerFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        writeFile(path(u"addons/telecom/template/template_texb.lay"_s), Template);
        writeFile(path(u"two.txt"_s), "0 red\n10 0 0 255\n");
        m_input.source = {.file = u"/d/\"a\" & b.shp"_s,
                          .layer = u"quarter"_s,
                          .heightField = u"H"_s,
                          .heights = {},
                          .colorFields = {},
                          .where = {},
                          .terrainFile = u"/d/dem.tif"_s,
                          .terrainNoData = u"-9999"_s,
                          .xCenter = 651234.56789,
                          .yCenter = 6758252,
                          .project = {}};
        m_input.footprints = Measures;
        m_input.installDir = m_dir->path();
        m_input.legend = LegendInput{u"two & more"_s, {}};
        QVERIFY(m_input.legend->map.load(path(u"two.txt"_s).toStdString()));
    }

    void writesColoredBuildings()
    {
        const auto files = writeColoredLayer(path(u"out.lay"_s), m_input, Signal, Access::UserOnly);

        QVERIFY(files);
        vlt::contract::BuildingDocument expected{{}, Measures, {"/d/dem.tif", "-9999"}, {}};
        expected.footprints.file = "/d/\"a\" & b.shp";
        expected.footprints.layer = "quarter";
        expected.footprints.heightField = "H";
        expected.footprints.wallColor = imageColor(Signal).toStdString();
        QCOMPARE(readFile(path(u"out.texb"_s)), writeColoredTexbDocument(expected).toUtf8());
        const QImage legend(path(u"two & more_gradient.png"_s));
        QVERIFY(legend.width() > 100 && legend.width() % 2 == 0 &&
                legend.height() % 2 == 0); // two pixels per unit
        const QString text =
            u"Buildings (quarter)|rf_colored_buildings|TEXB:%1/out.texb|651234.568|6758252|<p>"
            "Colored: <span style=\"font-weight:600; text-decoration:underline;\">two &amp; more"
            "</span><br/><img src=\"%1/two &amp; more_gradient.png\" width=\"%2\" height=\"%3\"/>"
            "</p>\n"_s.arg(m_dir->path())
                .arg(legend.width() / 2)
                .arg(legend.height() / 2);
        QCOMPARE(QString::fromUtf8(readFile(path(u"out.lay"_s))), text);
        for (const QString &file :
             {files.value().layer, files.value().document, files.value().legend})
            QCOMPARE(QFile::permissions(file) & ~(QFile::ReadUser | QFile::WriteUser),
                     QFile::ReadOwner | QFile::WriteOwner);
    }

    /// So that readers do not read it again.
    void writesTheRangeOfALargeRaster_data()
    {
        const Cases<int, bool> row({"columns", "isWritten"});
        row("small", 999, false);
        row("large", 1000, true);
    }

    void writesTheRangeOfALargeRaster()
    {
        QFETCH(int, columns);
        const char *options[] = {"SPARSE_OK=TRUE", nullptr};
        RasterColoring coloring = Signal;
        coloring.stretched = true;
        coloring.rasterFile = QString::fromStdString(makeGeoTiff(
            path(u"empty.tif"_s), {columns, 10000, 1, GDT_Byte, {}, "", {}, {}, options}));

        for (const bool isRead : {false, true}) { // once, then from the table of this process
            int reports = 0;
            const auto range = readRange(coloring, {}, [&reports](double) { return ++reports; });
            QVERIFY(range && range->ok());
            QCOMPARE(reports == 0, isRead);
            coloring.range = range->value().known;
        }
        QTEST(coloring.range.has_value(), "isWritten");
        QTEST(coloredDocument(m_input, coloring).colors.range.has_value(), "isWritten");
        coloring.stretched = false;
        QVERIFY(!coloredDocument(m_input, coloring).colors.range);
    }

    /// A count serves as long as only colours change.
    void countsByTheRasterAlone()
    {
        RasterColoring other = Signal;
        other.colorMap = u"/maps/one.txt"_s;
        other.stretched = other.interpolated = true;
        other.range = {0, 1, 2, 3};
        const auto parts = countedParts(coloredDocument(m_input, Signal));
        const auto read = vlt::contract::parseRasterColors(parts.footprints.wallColor);
        QVERIFY(read && read->raster == "/d/dbm.tif" && read->noData == "-1");
        QVERIFY(countedParts(coloredDocument(m_input, other)) == parts);
        QVERIFY(countedParts(texturedDocument(m_input, storeys())) == parts); // on roofs
        other.band = 2;
        QVERIFY(!(countedParts(coloredDocument(m_input, other)) == parts));
    }

    void writesTexturedBuildings()
    {
        const auto files =
            writeTexturedLayer(path(u"out.lay"_s), m_input, storeys(), Access::Shared);

        QVERIFY(files);
        const QByteArray document = readFile(files.value().document);
        QVERIFY(document.contains(" mode=\"storeys\"\n"));
        QCOMPARE(document.count("<texture "), 2); // only of images in use
        const QByteArray layer = readFile(path(u"out.lay"_s));
        QVERIFY2(layer.startsWith("Buildings (quarter)|rf_storeys|TEXB:"), layer.constData());
        QVERIFY2(layer.contains("underline;\">Storeys</span><br/>Images: 2<br/>"
                                "Heights above the ground: 1.5 \u00b7 6 m</p><p>Colored: <span"),
                 layer.constData());

        m_input.legend.reset();
        const auto plain =
            writeTexturedLayer(path(u"plain.lay"_s), m_input, storeys(), Access::Shared);
        QVERIFY(plain && plain.value().legend.isEmpty());
        QVERIFY(!readFile(path(u"plain.lay"_s)).contains("<img"));
    }

    void reportsWhatImagesThereAre_data()
    {
        const Cases<QList<double>, QString> row({"heights", "wanted"});
        row("none", {}, "<p>Images: 0</p>");
        row("one height of several networks", {12, 1.5, 12},
            ">Walls</span><br/>Images: 3<br/>Heights above the ground: 1.5 · 12 m</p>");
        row("fr", {1.5, 2000}, "Heights above the ground: 1,5 · 2\u202f000 m</p>");
        row("a tower", {40, 37, 34, 31, 28, 25, 22, 19, 16, 13, 10, 7, 4},
            "Images: 13<br/>Heights above the ground: 4 – 40 m</p>");
    }

    void reportsWhatImagesThereAre()
    {
        QFETCH(QList<double>, heights);
        QFETCH(QString, wanted);
        QList<FileEntry> images;
        for (const double height : heights)
            images << image(u"/t/x.tif"_s, height);
        VltLanguageManager::getInstance().defaultSetup(
            {}, QString::fromUtf8(QTest::currentDataTag()), {});

        const QString text = texturedInfoText(vlt::contract::TextureMode::Walls, images);

        QVERIFY2(text.endsWith(wanted), qPrintable(text));
    }

    void namesFilesAfterTheLayer_data()
    {
        const Cases<QString, QString> row({"layer", "document"});
        row("suffix .lay", "/a/town.lay", "/a/town.texb");
        row("capitals", "/a/town.LAY", "/a/town.texb");
        row("no suffix", "/a.lay/town", "/a.lay/town.texb");
        row("other suffix", "/a/town.v2", "/a/town.v2.texb");
        row("relative", "town.lay", QDir::current().filePath(u"town.texb"_s));
    }

    void namesFilesAfterTheLayer()
    {
        QFETCH(QString, layer);
        QTEST(filesOf(layer, m_input).document, "document");
    }

    void leavesFilesAsTheyWereAfterAFailure_data()
    {
        // blocked: a folder has the name of this file
        const Cases<QString, QString> row({"blocked", "text"});
        const QString cannot = u"Can't create the layer file\n"_s;
        row("document", "out.texb", cannot);
        row("legend", "two & more_gradient.png", cannot);
        row("layer", "out.lay", cannot);
        row("template", "addons/telecom/template/template_texb.lay",
            "A configuration file is missing\n");
    }

    void leavesFilesAsTheyWereAfterAFailure()
    {
        QFETCH(QString, blocked);
        QFETCH(QString, text);
        QFile::remove(path(blocked));
        QVERIFY(QDir().mkpath(path(blocked)));
        for (const QByteArray &former : {QByteArray(), QByteArray("former")}) {
            const QStringList names{u"out.texb"_s, u"two & more_gradient.png"_s, u"out.lay"_s};
            for (const QString &name : names) {
                if (!former.isEmpty() && name != blocked)
                    writeFile(path(name), former);
            }
            const QStringList before = QDir(m_dir->path()).entryList();

            const auto files =
                writeTexturedLayer(path(u"out.lay"_s), m_input, storeys(), Access::Shared);

            QVERIFY(!files);
            QCOMPARE(files.error().text + u'\n' + files.error().path, text + path(blocked));
            QCOMPARE(files.error().detail.isEmpty(), blocked.contains(u"template"_s));
            QCOMPARE(QDir(m_dir->path()).entryList(), before);
            for (const QString &name : names)
                QCOMPARE(readFile(path(name)), former.isEmpty() || name == blocked
                                                   ? QByteArray("(cannot be read)")
                                                   : former);
        }
    }

    void leavesOtherLegendsAlone()
    {
        const auto write = [this](const QString &name, Access access) {
            const auto files = writeColoredLayer(path(name), m_input, Signal, access);
            return files ? files.value().legend : QString();
        };
        const QString legend = path(u"two & more_gradient.png"_s);
        QCOMPARE(write(u"a.lay"_s, Access::Shared), legend);
        const QByteArray former = readFile(legend);
        QVERIFY(m_input.legend->map.load(path(u"two.txt"_s).toStdString(), -120, -60));

        for (const Access access : {Access::Shared, Access::UserOnly}) { // another layer's
            QCOMPARE(write(u"b.lay"_s, access), path(u"b_two & more_gradient.png"_s));
            QCOMPARE(readFile(legend), former);
        }
        QVERIFY(readFile(path(u"b.lay"_s)).contains("/b_two &amp; more_gradient.png\""));

        // Another user's file cannot be replaced; a folder has the same effect.
        QVERIFY(QFile::remove(legend) && QDir().mkpath(legend));
        const QString own = write(u"c.lay"_s, Access::UserOnly);
        QCOMPARE(own, path(u"c_two & more_gradient.png"_s));
        QVERIFY(!QImage(own).isNull());
    }

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir;
    BuildingLayerInput m_input;
};

QTEST_MAIN(tst_BuildingLayerFiles)
#include "tst_BuildingLayerFiles.moc"
