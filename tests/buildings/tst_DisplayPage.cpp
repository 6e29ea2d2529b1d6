#include "buildings/FileEntry.h"
#include "buildings/ui/VltAddTexbPreviewPage.h"
#include "buildings/ui/VltColoringPanel.h"
#include "platform/Settings.h"
#include "wizard/base/DraggableIcon.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using vlt::buildings::FileEntry;

namespace {

const QString Group = u"AddTexbPreviewPage/"_s;

/// "key=value key=value ..."
QVariantMap values(const QString &text)
{
    QVariantMap map;
    for (const QString &pair : text.split(u' '))
        map.insert(pair.section(u'=', 0, 0), pair.section(u'=', 1));
    return map;
}

const QVariantMap FirstRun =
    values(u"TextureType=0 TexturedDistance=1000 EdgeColor=#404040 ForceEdges=false "
           "ComplexBuildings=false Compression=0 Resampling=0 UseBuffer=false Buffer=1 "
           "UseDilatation=false Dilatation=1 WallColorKind=0 WallColor=#d9d4c7 RoofColorKind=0 "
           "RoofColor=#b5634c Distance=2000 TileSize=250 CheckGeom=false SkirtSize=5 CacheMode=0 "
           "DelayedCacheWrite=false CacheCapacity=100 AutoRefresh=true"_s);

const QVariantMap AllOptions = values(
    u"TextureType=0 TexturedDistance=750 EdgeColor=#102030 ForceEdges=true "
    "ComplexBuildings=true Compression=3 Resampling=1 UseBuffer=true Buffer=2.5 "
    "UseDilatation=true Dilatation=3 WallColorKind=0 WallColor=#ff0000 RoofColorKind=0 "
    "RoofColor=#00ff00 Distance=3000 TileSize=125.5 CheckGeom=true SkirtSize=7.5 CacheMode=2 "
    "DelayedCacheWrite=true CacheCapacity=64 AutoRefresh=false"_s);

const QByteArray AllOptionsDocument =
    R"(<?xml version="1.0" encoding="UTF-8"?><veltaroTexturedBuildings )"
    "\n"
    R"(  cache="textured" 
  delayedCacheWrite="true" 
  delayedCacheWriteCapacity="64">
  <vector 
    filename="/town/b.shp"
    layer="b"
    hfield="H"
    tileSize="125.5"
    extrudedVisibility="3000"
    texturedVisibility="750"
    wallColor="#ff0000"
    roofColor="#00ff00"
    skirtHeight="7.5"
    checkClockwise="true"
  />
  <elevation 
    source="dtm"
    filename="/town/dtm.tif"
    nodata="-9999"
  />
  <textures 
    mode="roofs"
    edgeColor="#102030"
    forceEdgeCreation="true"
    processComplexBuildings="true"
   compression="dxt3"
    bufferValue="2.5"
    dilatationValue="3"
    magFilter="linear"
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
)";

const QByteArray StoreysDocument =
    R"(<?xml version="1.0" encoding="UTF-8"?><veltaroTexturedBuildings )"
    "\n"
    R"(  cache="none">
  <vector 
    filename="/town/b.shp"
    layer="b"
    hfield="H"
    tileSize="250"
    extrudedVisibility="2000"
    texturedVisibility="1000"
    wallColor="#d9d4c7"
    roofColor="#b5634c"
    skirtHeight="5"
    checkClockwise="false"
  />
  <elevation 
    source="dtm"
    filename="/town/dtm.tif"
    nodata="-9999"
  />
  <textures 
    mode="storeys"
    edgeColor="#404040"
    forceEdgeCreation="false"
    processComplexBuildings="false"
    magFilter="none"
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
)";

/// Without images, the walls from a colour map; DIR stands for the folder of the test.
QByteArray colorMapDocument()
{
    QByteArray document = StoreysDocument;
    document.replace("wallColor=\"#d9d4c7\"",
                     "wallColor=\"cmap:datasource=DIR/plot.asc;nd=-1;cmap=DIR/map.txt;"
                     "stretchcmap=FALSE;interpolatecmap=TRUE;band=1;type=maximum\"");
    return document.left(document.indexOf("  <textures")) + "</veltaroTexturedBuildings>\n";
}

enum Images { None, Ticked };

FileEntry image(const QString &path, double height, bool isUsed)
{
    return {path, height, FileEntry::Metres, u"town"_s, isUsed, {}};
}

class Page : public VltAddTexbPreviewPage
{
public:
    /// @param images  whether two of the three images are ticked, or none
    explicit Page(Images images = Ticked)
        : VltAddTexbPreviewPage(nullptr, shared, QStringLiteral(VLT_INSTALLATION), u"en"_s)
    {
        const bool isUsed = images == Ticked;
        shared = {{u"Buildings"_s, u"/town/b.shp"_s},
                  {u"Layer"_s, u"b"_s},
                  {u"Height"_s, u"H"_s},
                  {u"Dtm"_s, u"/town/dtm.tif"_s},
                  {u"Nodata"_s, u"-9999"_s},
                  {u"FileList"_s,
                   QVariant::fromValue(QList<FileEntry>{image(u"/town/low.png"_s, 1.5, isUsed),
                                                        image(u"/town/left out.png"_s, 6, false),
                                                        image(u"/town/high.png"_s, 12, isUsed)})}};
        initializePage();
        show();
    }

    template<typename Widget>
    Widget *child(const QString &name)
    {
        return findChild<Widget *>(name);
    }
    void choose(const QString &combo, int index)
    {
        child<QComboBox>(combo)->setCurrentIndex(index);
    }
    QString layerFile() { return child<DraggableIcon>(u"m_pwDragIcon"_s)->layerFile(); }

    /// The document of the layer that is made now; empty where none is.
    QByteArray document()
    {
        refreshRequested();
        if (layerFile().isEmpty())
            return {};
        QFile file(layerFile().replace(u".lay"_s, u".texb"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    SharedParameters shared;
};

} // namespace

class TestDisplayPage : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    static void remember(const QVariantMap &values)
    {
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            vlt::platform::wizardSettings()->setValue(Group + value.key(), value.value());
    }

    QString write(const QString &name, const QByteArray &contents) const
    {
        QFile file(m_dir.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(contents) > 0 ? file.fileName()
                                                                           : QString();
    }

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
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<QByteArray>("subtype");

        QTest::newRow("roofs, all options")
            << AllOptions << AllOptionsDocument << QByteArray("rf_roofs");
        QTest::newRow("storeys, no optional line")
            << QVariantMap{{u"TextureType"_s, 2}} << StoreysDocument << QByteArray("rf_storeys");
        QTest::newRow("walls")
            << QVariantMap{{u"TextureType"_s, 1}}
            << QByteArray(StoreysDocument).replace("mode=\"storeys\"", "mode=\"walls\"")
            << QByteArray("rf_walls");
    }

    void writesWhatIsChosen()
    {
        QFETCH(QVariantMap, settings);
        QFETCH(QByteArray, expected);
        QFETCH(QByteArray, subtype);
        remember(settings);
        Page page;

        QCOMPARE(page.document(), expected);
        QFile layer(page.layerFile());
        QVERIFY(layer.open(QIODevice::ReadOnly));
        QVERIFY(layer.readAll().contains(subtype));
    }

    void saysWhatIsKept_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("delayed");
        QTest::addColumn<QByteArray>("attributes");

        QTest::newRow("nothing") << 0 << true << QByteArray("none\"");
        QTest::newRow("everything") << 1 << false
                                    << QByteArray("all\" \n  delayedCacheWrite=\"false\" \n"
                                                  "  delayedCacheWriteCapacity=\"100\"");
        QTest::newRow("textured") << 2 << true
                                  << QByteArray("textured\" \n  delayedCacheWrite=\"true\" \n"
                                                "  delayedCacheWriteCapacity=\"100\"");
        QTest::newRow("extruded") << 3 << false
                                  << QByteArray("extruded\" \n  delayedCacheWrite=\"false\" \n"
                                                "  delayedCacheWriteCapacity=\"100\"");
    }

    void saysWhatIsKept()
    {
        QFETCH(int, mode);
        QFETCH(bool, delayed);
        QFETCH(QByteArray, attributes);
        Page page;
        auto *delay = page.child<QCheckBox>(u"m_pwChbDelayed"_s);
        auto *capacity = page.child<QSpinBox>(u"m_pwSbCapacity"_s);

        page.choose(u"m_pwCbCache"_s, mode);
        delay->setChecked(delayed);

        QCOMPARE(delay->isEnabled(), mode > 0);
        QCOMPARE(capacity->isEnabled(), mode > 0 && delayed);
        QVERIFY(page.document().contains("Buildings \n  cache=\"" + attributes + ">\n"));
    }

    void colorsWallsThroughAColorMap()
    {
        Page page(None);
        auto *tabs = page.child<QTabWidget>(u"m_pwTabs"_s);
        auto *button = page.child<QPushButton>(u"m_pwPbColoring"_s);
        auto *coloring = page.child<VltColoringPanel>(u"m_pwColoring"_s);
        QVERIFY(!tabs->isTabVisible(2) && !button->isVisible());
        QVERIFY(page.child<QLabel>(u"m_pwLblInfo"_s)->text().contains(u"without images"_s));
        QVERIFY(!page.document().contains("<textures"));

        page.choose(u"m_pwCbWalls"_s, 1);
        button->click();

        QCOMPARE(tabs->currentIndex(), 2);
        QVERIFY(!page.child<QPushButton>(u"m_pwPbWallColor"_s)->isEnabled());
        QVERIFY(page.child<QPushButton>(u"m_pwPbRoofColor"_s)->isEnabled());
        QCOMPARE(page.document(), QByteArray()); // no image yet
        coloring->openImage(write(u"plot.asc"_s, "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\n"
                                                 "cellsize 10\n1 2\n3 4\n"),
                            false);
        coloring->openColorMap(write(u"map.txt"_s, "0 0 0 255\n5 255 0 0\n"));
        page.child<QLineEdit>(u"m_pwLeNoData"_s)->setText(u"-1"_s);
        page.child<QCheckBox>(u"m_pwCbStretch"_s)->setChecked(false);
        page.choose(u"m_pwCbMode"_s, 1);
        QCOMPARE(page.document(), colorMapDocument().replace("DIR", m_dir.path().toUtf8()));
        QVERIFY(QFile::exists(m_dir.filePath(u"map_gradient.png"_s)));
        QVERIFY(page.child<QLabel>(u"m_pwLblLegend"_s)->text().contains(u"map_gradient.png"_s));

        page.choose(u"m_pwCbWalls"_s, 0);
        QVERIFY(!tabs->isTabVisible(2));
        QVERIFY(page.document().contains("wallColor=\"#d9d4c7\""));
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
        remember(stored);
        Page page;

        page.saveSettings();

        const auto settings = vlt::platform::wizardSettings();
        for (auto value = expected.cbegin(); value != expected.cend(); ++value)
            QVERIFY2(settings->value(Group + value.key()).toString() == value.value().toString(),
                     qPrintable(value.key() + u" is "_s +
                                settings->value(Group + value.key()).toString()));
    }
};

QTEST_MAIN(TestDisplayPage)
#include "tst_DisplayPage.moc"
