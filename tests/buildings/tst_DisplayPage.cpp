#include "LayerPage.h"
#include "buildings/FileEntry.h"
#include "buildings/ui/VltAddTexbPreviewPage.h"

#include <QTabWidget>

using namespace layerpage;
using vlt::buildings::FileEntry;

namespace {

const QString Group = u"AddTexbPreviewPage"_s;

const QVariantMap FirstRun =
    values(u"TextureType=0 TexturedDistance=2000 EdgeColor=#404040 ForceEdges=false "
           "ComplexBuildings=true Compression=0 Resampling=0 UseBuffer=false Buffer=1 "
           "UseDilatation=false Dilatation=1 WallColorKind=0 WallColor=#d9d4c7 RoofColorKind=0 "
           "RoofColor=#b5634c Distance=2000 TileSize=250 CheckGeom=false SkirtSize=5 CacheMode=0 "
           "DelayedCacheWrite=false CacheCapacity=100 AutoRefresh=true"_s);

const QVariantMap AllOptions = values(
    u"TextureType=0 TexturedDistance=750 EdgeColor=#102030 ForceEdges=true "
    "ComplexBuildings=false Compression=3 Resampling=1 UseBuffer=true Buffer=2.5 "
    "UseDilatation=true Dilatation=3 WallColorKind=0 WallColor=#ff0000 RoofColorKind=0 "
    "RoofColor=#00ff00 Distance=3000 TileSize=125.5 CheckGeom=true SkirtSize=7.5 CacheMode=2 "
    "DelayedCacheWrite=true CacheCapacity=64 AutoRefresh=false"_s);

/// Everything that a document may have; the names in capitals stand for what differs.
const QString Document = u"<?xml version=\"1.0\" encoding=\"UTF-8\"?><veltaroTexturedBuildings \n"
                         R"(  cache="CACHE>
  <vector 
    filename="/town/b.shp"
    layer="b"
    hfield="H"
    tileSize="TILE"
    extrudedVisibility="EXTRUDED"
    texturedVisibility="TEXTURED"
    wallColor="WALL"
    roofColor="ROOF"
    skirtHeight="SKIRT"
    checkClockwise="CHECK"
  />
  <elevation 
    source="dtm"
    filename="/town/dtm.tif"
    nodata="-9999"
  />
  <textures 
    mode="MODE"
    edgeColor="EDGE"
    forceEdgeCreation="FORCE"
    processComplexBuildings="COMPLEX"
OPTIONAL    magFilter="FILTER"
  >
    <texture 
      filename="/town/low.png"
      height="1.5"
    />
    <texture 
      filename="/town/high.png"
      height="12"
    />
  </textures>
</veltaroTexturedBuildings>
)"_s;

QString document(const QVariantMap &differing)
{
    QString document = Document;
    for (auto value = differing.cbegin(); value != differing.cend(); ++value)
        document.replace(value.key(), value.value().toString());
    return document;
}

/// @param mode  "storeys"
QString firstRunDocument(const QString &mode)
{
    QVariantMap differing =
        values(u"CACHE=none\" TILE=250 EXTRUDED=2000 TEXTURED=2000 WALL=#d9d4c7 ROOF=#b5634c "
               "SKIRT=5 CHECK=false EDGE=#404040 FORCE=false COMPLEX=true OPTIONAL= FILTER=none"_s);
    differing[u"MODE"_s] = mode;
    return document(differing);
}

QString allOptionsDocument()
{
    QVariantMap differing =
        values(u"TILE=125.5 EXTRUDED=3000 TEXTURED=750 WALL=#ff0000 ROOF=#00ff00 SKIRT=7.5 "
               "CHECK=true MODE=roofs EDGE=#102030 FORCE=true COMPLEX=false FILTER=linear"_s);
    differing[u"CACHE"_s] = u"textured\" \n  delayedCacheWrite=\"true\" \n"
                            "  delayedCacheWriteCapacity=\"64\""_s;
    differing[u"OPTIONAL"_s] = u"   compression=\"dxt3\"\n    bufferValue=\"2.5\"\n"
                               "    dilatationValue=\"3\"\n"_s;
    return document(differing);
}

/// Without images, the walls from a colour map; DIR stands for the folder of the test.
QString colorMapDocument()
{
    QString document = firstRunDocument({});
    document.replace(u"wallColor=\"#d9d4c7\""_s,
                     u"wallColor=\"cmap:datasource=DIR/plot.asc;nd=-1;cmap=DIR/map.txt;"
                     "stretchcmap=FALSE;interpolatecmap=TRUE;band=1;type=maximum\""_s);
    return document.left(document.indexOf(u"  <textures"_s)) + u"</veltaroTexturedBuildings>\n"_s;
}

enum Images { None, Ticked };

FileEntry image(const QString &path, double height, bool isUsed)
{
    return {path, height, FileEntry::Metres, u"town"_s, isUsed, {}};
}

class DisplayPage : public Page<VltAddTexbPreviewPage>
{
public:
    /// @param images  whether two of the three images are ticked, or none
    explicit DisplayPage(Images images = Ticked)
        : Page(QStringLiteral(VLT_INSTALLATION), published(images == Ticked))
    {}

    /// The document of the layer that is made now; empty where none is.
    QString document()
    {
        refreshRequested();
        return Page::document();
    }

private:
    static SharedParameters published(bool isUsed)
    {
        const QList<FileEntry> images{image(u"/town/low.png"_s, 1.5, isUsed),
                                      image(u"/town/left out.png"_s, 6, false),
                                      image(u"/town/high.png"_s, 12, isUsed)};
        return {{u"Buildings"_s, u"/town/b.shp"_s},
                {u"Layer"_s, u"b"_s},
                {u"Height"_s, u"H"_s},
                {u"Dtm"_s, u"/town/dtm.tif"_s},
                {u"Nodata"_s, u"-9999"_s},
                {u"FileList"_s, QVariant::fromValue(images)}};
    }
};

} // namespace

class TestDisplayPage : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        qputenv("TMPDIR", QFile::encodeName(m_dir.path()));
    }

    void init() { vlt::platform::wizardSettings()->clear(); }

    void writesWhatIsChosen_data()
    {
        QTest::addColumn<QVariantMap>("settings");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("subtype");

        QTest::newRow("roofs, all options") << AllOptions << allOptionsDocument() << u"rf_roofs"_s;
        QTest::newRow("storeys, no optional line")
            << values(u"TextureType=2"_s) << firstRunDocument(u"storeys"_s) << u"rf_storeys"_s;
        QTest::newRow("walls") << values(u"TextureType=1"_s) << firstRunDocument(u"walls"_s)
                               << u"rf_walls"_s;
    }

    void writesWhatIsChosen()
    {
        QFETCH(QVariantMap, settings);
        QFETCH(QString, expected);
        QFETCH(QString, subtype);
        remember(Group, settings);
        DisplayPage page;

        QCOMPARE(page.document(), expected);
        QVERIFY(page.layer().contains(subtype));
    }

    void saysWhatIsKept_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("delayed");
        QTest::addColumn<QString>("attributes");

        const QString kept = u"%1\" \n  delayedCacheWrite=\"%2\" \n"
                             "  delayedCacheWriteCapacity=\"100\""_s;
        QTest::newRow("nothing") << 0 << true << u"none\""_s;
        QTest::newRow("everything") << 1 << false << kept.arg(u"all"_s, u"false"_s);
        QTest::newRow("textured") << 2 << true << kept.arg(u"textured"_s, u"true"_s);
        QTest::newRow("extruded") << 3 << false << kept.arg(u"extruded"_s, u"false"_s);
    }

    void saysWhatIsKept()
    {
        QFETCH(int, mode);
        QFETCH(bool, delayed);
        QFETCH(QString, attributes);
        DisplayPage page;
        auto *delay = page.child<QCheckBox>(u"m_pwChbDelayed"_s);
        auto *capacity = page.child<QSpinBox>(u"m_pwSbCapacity"_s);

        page.choose(u"m_pwCbCache"_s, mode);
        delay->setChecked(delayed);

        QCOMPARE(delay->isEnabled(), mode > 0);
        QCOMPARE(capacity->isEnabled(), mode > 0 && delayed);
        QVERIFY(page.document().contains(u"Buildings \n  cache=\""_s + attributes + u">\n"_s));
    }

    void colorsWallsThroughAColorMap()
    {
        DisplayPage page(None);
        auto *tabs = page.child<QTabWidget>(u"m_pwTabs"_s);
        auto *button = page.child<QPushButton>(u"m_pwPbColoring"_s);
        QVERIFY(!tabs->isTabVisible(2) && !button->isVisible());
        QVERIFY(page.text(u"m_pwLblInfo"_s).contains(u"without images"_s));
        QVERIFY(!page.document().contains(u"<textures"_s));

        page.choose(u"m_pwCbWalls"_s, 1);
        button->click();

        QCOMPARE(tabs->currentIndex(), 2);
        QVERIFY(!page.child<QPushButton>(u"m_pwPbWallColor"_s)->isEnabled());
        QVERIFY(page.child<QPushButton>(u"m_pwPbRoofColor"_s)->isEnabled());
        QCOMPARE(page.document(), QString()); // no image yet
        tabs->setCurrentIndex(0);
        dropFiles(&page, {write(m_dir, u"plot.asc"_s, Grid)});
        dropFiles(&page, {write(m_dir, u"map.txt"_s, "0 0 0 255\n5 255 0 0\n")});
        QCOMPARE(tabs->currentIndex(), 2);
        page.line(u"m_pwLeNoData"_s)->setText(u"-1"_s);
        page.check(u"m_pwCbStretch"_s, false);
        page.choose(u"m_pwCbMode"_s, 1);
        QCOMPARE(page.document(), colorMapDocument().replace(u"DIR"_s, m_dir.path()));
        QVERIFY(QFile::exists(m_dir.filePath(u"map_gradient.png"_s)));
        QVERIFY(page.text(u"m_pwLblLegend"_s).contains(u"map"_s));

        page.choose(u"m_pwCbWalls"_s, 0);
        QVERIFY(!tabs->isTabVisible(2));
        QVERIFY(page.document().contains(u"wallColor=\"#d9d4c7\""_s));
    }

    void remembersEveryValue_data()
    {
        QTest::addColumn<QVariantMap>("stored");
        QTest::addColumn<QVariantMap>("expected");

        QTest::newRow("first run") << QVariantMap() << FirstRun;
        QTest::newRow("all other values") << AllOptions << AllOptions;
        QVariantMap damaged;
        QVariantMap kept = FirstRun;
        for (const QString &key : FirstRun.keys()) {
            damaged.insert(key, u"?"_s);
            if (kept[key] == u"false"_s)
                kept[key] = u"true"_s; // what any word is read as
        }
        damaged.insert({{u"TextureType"_s, 3}, {u"CacheMode"_s, -1}, {u"Buffer"_s, u"nan"_s}});
        QTest::newRow("damaged") << damaged << kept;
    }

    void remembersEveryValue()
    {
        QFETCH(QVariantMap, stored);
        QFETCH(QVariantMap, expected);
        remember(Group, stored);
        DisplayPage page;

        page.saveSettings();

        QCOMPARE(otherThan(Group, expected), QStringList());
    }
};

QTEST_MAIN(TestDisplayPage)
#include "tst_DisplayPage.moc"
