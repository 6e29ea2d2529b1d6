#include "LayerPage.h"
#include "buildings/FileEntry.h"
#include "buildings/ui/VltAddTexbPreviewPage.h"
#include "support/Cases.h"

#include <QListView>
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

/// The attributes of a document without images, then those of the images.
const QString Plain =
    u"version=1.0 encoding=UTF-8 cache=none filename=/town/b.shp layer=b hfield=H tileSize=250 "
    "extrudedVisibility=2000 texturedVisibility=2000 wallColor=#d9d4c7 roofColor=#b5634c "
    "skirtHeight=5 checkClockwise=false source=dtm filename=/town/dtm.tif nodata=-9999"_s;
const QString TwoImages = u" filename=/town/low.png height=1.5 filename=/town/high.png height=12"_s;
const QString FirstRunDocument =
    Plain +
    u" mode=%1 edgeColor=#404040 forceEdgeCreation=false processComplexBuildings=true "
    "magFilter=none"_s +
    TwoImages;
const QString AllOptionsDocument =
    u"version=1.0 encoding=UTF-8 cache=textured delayedCacheWrite=true "
    "delayedCacheWriteCapacity=64 filename=/town/b.shp layer=b hfield=H tileSize=125.5 "
    "extrudedVisibility=3000 texturedVisibility=750 wallColor=#ff0000 roofColor=#00ff00 "
    "skirtHeight=7.5 checkClockwise=true source=dtm filename=/town/dtm.tif nodata=-9999 "
    "mode=roofs edgeColor=#102030 forceEdgeCreation=true processComplexBuildings=false "
    "compression=dxt3 bufferValue=2.5 dilatationValue=3 magFilter=linear"_s +
    TwoImages;

enum Images { None, Ticked };

class DisplayPage : public Page<VltAddTexbPreviewPage>
{
public:
    /// @param images  whether two or none of the three images are ticked
    explicit DisplayPage(Images images = Ticked)
        : Page(QStringLiteral(VLT_INSTALLATION), published(images == Ticked))
    {}

    /// Makes the layer and returns its attributes; empty if there is none.
    QString made()
    {
        refreshRequested();
        return attributes(document());
    }

private:
    static SharedParameters published(bool isUsed)
    {
        const QList<FileEntry> images{
            {u"/town/low.png"_s, 1.5, FileEntry::Metres, u"town"_s, isUsed, {}},
            {u"/town/left out.png"_s, 6, FileEntry::Metres, u"town"_s, false, {}},
            {u"/town/high.png"_s, 12, FileEntry::Metres, u"town"_s, isUsed, {}}};
        SharedParameters published =
            values(u"Buildings=/town/b.shp Layer=b Height=H Dtm=/town/dtm.tif Nodata=-9999"_s);
        published[u"FileList"_s] = QVariant::fromValue(images);
        return published;
    }
};

} // namespace

class tst_DisplayPage : public QObject
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
        const Cases<QVariantMap, QString> row({"settings", "expected"});
        row("roofs", AllOptions, AllOptionsDocument);
        row("walls", values(u"TextureType=1"_s), FirstRunDocument.arg(u"walls"_s));
        row("storeys", values(u"TextureType=2"_s), FirstRunDocument.arg(u"storeys"_s));
    }

    void writesWhatIsChosen()
    {
        QFETCH(QVariantMap, settings);
        remember(Group, settings);
        DisplayPage page;

        QTEST(page.made(), "expected");
        QVERIFY(page.layer().contains(u"rf_"_s + QLatin1String(QTest::currentDataTag())));
    }

    void saysWhatIsKept()
    {
        DisplayPage page;
        auto *delay = page.child<QCheckBox>(u"m_pwChbDelayed"_s);
        auto *capacity = page.child<QSpinBox>(u"m_pwSbCapacity"_s);
        const auto kept = [&page, delay](int mode, bool delayed) {
            page.choose(u"m_pwCbCache"_s, mode);
            delay->setChecked(delayed);
            return page.made().section(u" filename="_s, 0, 0).section(u" cache="_s, 1);
        };
        const QString some = u"%1 delayedCacheWrite=%2 delayedCacheWriteCapacity=100"_s;

        QCOMPARE(kept(0, true), u"none"_s);
        QVERIFY(!delay->isEnabled() && !capacity->isEnabled());
        QCOMPARE(kept(1, false), some.arg(u"all"_s, u"false"_s));
        QVERIFY(delay->isEnabled() && !capacity->isEnabled());
        QCOMPARE(kept(2, true), some.arg(u"textured"_s, u"true"_s));
        QVERIFY(delay->isEnabled() && capacity->isEnabled());
        QCOMPARE(kept(3, false), some.arg(u"extruded"_s, u"false"_s));
    }

    void colorsWallsThroughAColorMap()
    {
        DisplayPage page(None);
        auto *tabs = page.child<QTabWidget>(u"m_pwTabs"_s);
        auto *button = page.child<QPushButton>(u"m_pwPbColoring"_s);
        QVERIFY(!tabs->isTabVisible(2) && !button->isVisible());
        QVERIFY(page.text(u"m_pwLblInfo"_s).contains(u"without images"_s));
        QCOMPARE(page.made(), Plain);

        page.choose(u"m_pwCbWalls"_s, 1);
        button->click();

        QCOMPARE(tabs->currentIndex(), 2);
        QVERIFY(!page.child<QPushButton>(u"m_pwPbWallColor"_s)->isEnabled());
        QVERIFY(page.child<QPushButton>(u"m_pwPbRoofColor"_s)->isEnabled());
        QCOMPARE(page.made(), QString()); // no image yet
        tabs->setCurrentIndex(0);
        dropFiles(&page, {writeFile(m_dir.filePath(u"plot.asc"_s), Grid)});
        dropFiles(&page, {writeFile(m_dir.filePath(u"map.txt"_s), "0 0 0 255\n5 255 0 0\n")});
        QCOMPARE(tabs->currentIndex(), 2);
        page.line(u"m_pwLeNoData"_s)->setText(u"-1"_s);
        page.check(u"m_pwCbStretch"_s, false);
        page.choose(u"m_pwCbMode"_s, 1);
        const QString colors = u"=cmap:datasource=%1/plot.asc;nd=-1;cmap=%1/map.txt;"
                               "stretchcmap=FALSE;interpolatecmap=TRUE;band=1;type=maximum"_s;
        QCOMPARE(page.made(), QString(Plain).replace(u"=#d9d4c7"_s, colors.arg(m_dir.path())));
        QVERIFY(QFile::exists(m_dir.filePath(u"map_gradient.png"_s)));
        QVERIFY(page.text(u"m_pwLblLegend"_s).contains(u"map"_s));

        page.choose(u"m_pwCbWalls"_s, 0);
        QVERIFY(!tabs->isTabVisible(2));
        QCOMPARE(page.made(), Plain);
    }

    void namesItsImagesAndExplainsItsOptions()
    {
        DisplayPage page;
        const auto *legend = page.child<QListView>(u"m_pwImages"_s);
        QStringList heights;
        for (int row = 0; row < legend->model()->rowCount(); ++row)
            heights += legend->model()->index(row, 0).data().toString();
        QVERIFY(legend->isVisibleTo(&page));
        QCOMPARE(heights, QStringList({QLocale().toString(1.5) + u" m"_s, u"12 m"_s}));

        QVERIFY(page.text(u"m_pwHelp"_s).startsWith(u"Roofs: the image nearest"_s));
        QEvent reached(QEvent::Enter);
        QCoreApplication::sendEvent(page.combo(u"m_pwCbCompression"_s), &reached);
        QCOMPARE(page.text(u"m_pwHelp"_s), page.combo(u"m_pwCbCompression"_s)->toolTip());
    }

    void remembersEveryValue_data()
    {
        const Cases<QVariantMap, QVariantMap> row({"stored", "expected"});
        row("first run", {}, FirstRun);
        row("all other values", AllOptions, AllOptions);
        QVariantMap damaged;
        for (const QString &key : FirstRun.keys())
            damaged.insert(key, u"?"_s);
        damaged.insert({{u"TextureType"_s, 3},
                        {u"CacheMode"_s, -1},
                        {u"Buffer"_s, u"nan"_s},
                        {u"TileSize"_s, 1e9}});
        row("damaged", damaged, FirstRun);
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

QTEST_MAIN(tst_DisplayPage)
#include "tst_DisplayPage.moc"
