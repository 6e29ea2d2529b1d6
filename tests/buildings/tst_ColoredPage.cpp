#include "ColoredPage.h"
#include "gui/FileDialogAnswer.h"
#include "support/Cases.h"
#include "support/Patience.h"
#include "support/PrivateSettings.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

using namespace layerpage;

class tst_ColoredPage : public QObject
{
    Q_OBJECT

    PrivateSettings m_settings;
    ColoredPageFiles m_files;
    const QString m_installation = m_files.installation();

    QString path(const QString &name = {}) const { return m_files.path(name); }

private Q_SLOTS:
    void initTestCase() { m_files.write(); }

    void init() { m_files.reset(); }

    void asksForAnImageFirst()
    {
        vlt::platform::wizardSettings()->clear();
        AnsweredBoxes boxes(QMessageBox::Yes);

        ColoredPage page(m_installation);

        QTRY_COMPARE_WITH_TIMEOUT(page.message(), u"Choose the image that colors the buildings."_s,
                                  PatienceMs);
        QVERIFY(!page.icon()->isEnabled() && !page.validatePage());
        QVERIFY(page.child<QWidget>(u"m_pwSubdatasetsFrame"_s)->isHidden());
        QVERIFY(boxes.seen.isEmpty());

        dropFiles(&page, {path(u"grid.asc"_s)});
        QVERIFY(page.validatePage());
        QCOMPARE(boxes.seen.size(), 1); // the question whether to quit
        QVERIFY(page.icon()->isEnabled());
    }

    void writesWhatIsChosen_data()
    {
        // wanted: DIR means the folder of the test
        const Cases<QVariantMap, QString, QString> row({"values", "wanted", "map"});
        const QString firstRun =
            u"version=1.0 encoding=UTF-8 cache=none filename=buildings layer=layer hfield=height "
            "tileSize=250 extrudedVisibility=2000 wallColor=IMAGE;DIR/grid.asc;DIR/installation/"
            "addons/telecom/colormaps/some/first.txt;minimum;stretched;interpolation "
            "skirtHeight=5 checkClockwise=false source=dtm filename=dtm nodata=nodata"_s;
        QString other = firstRun;
        other.replace(u"=250"_s, u"=512.5"_s).replace(u"=5 "_s, u"=0 "_s);
        other.replace(u"false"_s, u"true"_s).replace(u"first"_s, u"second"_s);
        other.replace(u"minimum;stretched;interpolation"_s,
                      u"mostRepresented;absolute;colorrange;-1.5"_s);
        row("nothing remembered", {}, firstRun, "first");
        row("all else",
            values(u"Mode=3 NoData=-1.5 Stretch=false ColorInterpMode=0 "
                   "TileSize=512.5 CheckGeom=true SkirtSize=0 "
                   "CurrentColormap=1"_s),
            other, "second");
        row("damaged", values(u"Mode=9 TileSize=x CurrentColormap=-1"_s), firstRun, "first");
    }

    void writesWhatIsChosen()
    {
        QFETCH(QVariantMap, values);
        QFETCH(QString, wanted);
        QFETCH(QString, map);
        remember(Group, values);

        ColoredPage page(m_installation);

        QTRY_VERIFY_WITH_TIMEOUT(page.icon()->isEnabled(), PatienceMs);
        QCOMPARE(attributes(page.document()), wanted.replace(u"DIR"_s, path()));
        for (const QString &part :
             {u"Buildings (layer)"_s, u"rf_colored_buildings"_s, map + u"_gradient.png"_s})
            QVERIFY2(page.layer().contains(part), qPrintable(part));
        QVERIFY(page.text(u"m_pwLblLegend"_s).contains(map));
    }

    void savesALayerThatStays()
    {
        ColoredPage page(m_installation);
        QTRY_VERIFY_WITH_TIMEOUT(page.icon()->isEnabled(), PatienceMs);
        QVERIFY(QDir(path()).mkpath(u"kept"_s));
        const FileDialogAnswer dialog(path(u"kept/mine.lay"_s));

        QTest::keyClick(page.icon(), Qt::Key_C, Qt::ControlModifier);
        QStringList copied;
        for (const QUrl &url : QGuiApplication::clipboard()->mimeData()->urls())
            copied << QFileInfo(url.toLocalFile()).suffix();
        QCOMPARE(copied, QStringList({u"lay"_s, u"texb"_s, u"png"_s}));

        QTest::keyClick(page.icon(), Qt::Key_S, Qt::ControlModifier);
        page.choose(u"m_pwCbMode"_s, 1);

        QTRY_VERIFY_WITH_TIMEOUT(page.document().contains(u";maximum;"_s), PatienceMs);
        QVERIFY(readFile(path(u"kept/mine.texb"_s)).contains(";minimum;"));
        const QString layer = QString::fromUtf8(readFile(path(u"kept/mine.lay"_s)));
        for (const QString &name : {u"TEXB:%1/kept/mine.texb"_s, u"%1/kept/first_gradient.png"_s})
            QVERIFY2(layer.contains(name.arg(path())), qPrintable(layer));
        QVERIFY(QFile::exists(path(u"kept/first_gradient.png"_s)));
    }

    void countsWhatIsDrawn_data()
    {
        // a description of a layer without a building: no layer, but the message
        const Cases<QByteArrayList, QString, QString> row({"heights", "message", "description"});
        const QString none = u"No building can be drawn: 2 of 2 buildings are left out: no height "
                             "in the field \"height\""_s;
        row("all", {"5", "6"}, {}, "<p>Buildings: 2, at height 0: 2<br/>");
        row("some", {"5", "null"}, {},
            "left out: 1, at height 0: 1<br/>1 of 2 buildings are left out: no height in the field "
            "&quot;height&quot;<br/>");
        row("none", {"null", "\"?\""}, none, {});
    }

    void countsWhatIsDrawn()
    {
        QFETCH(QByteArrayList, heights);
        QFETCH(QString, message);
        QFETCH(QString, description);
        QByteArrayList all;
        for (const QByteArray &height : heights)
            all << "{\"type\":\"Feature\",\"properties\":{\"height\":" + height +
                       "},\"geometry\":{\"type\":\"Polygon\",\"coordinates\":[[[2,4],[6,4],[6,12],"
                       "[2,4]]]}}";
        const QString town = m_files.writeTown(all);

        ColoredPage page(m_installation, town);

        QTRY_VERIFY_WITH_TIMEOUT(!page.message().isEmpty(), PatienceMs);
        QCOMPARE(page.icon()->isEnabled(), message.isEmpty());
        QVERIFY2(page.layer().contains(description), qPrintable(page.layer()));
        if (!message.isEmpty()) {
            QVERIFY2(page.message().startsWith(message), qPrintable(page.message()));
            QVERIFY(page.icon()->toolTip().contains(u"no height in the field"_s));
            writeFile(town, readFile(town).replace("null", "7"));
            page.press(u"m_pwPbRefresh"_s); // counts again
            QTRY_VERIFY_WITH_TIMEOUT(page.icon()->isEnabled(), PatienceMs);
            QVERIFY(page.icon()->toolTip().contains(u"Ctrl+C"_s));
        }
    }

    /// Two buildings on the pixel with 3, one elsewhere.
    void summarizesAndSavesValues()
    {
        QByteArrayList all;
        for (const char *ring :
             {"[2,4],[6,4],[6,8],[2,4]", "[1,1],[2,1],[2,3],[1,1]", "[52,4],[56,4],[56,8],[52,4]"})
            all << "{\"type\":\"Feature\",\"properties\":{\"height\":5},\"geometry\":{\"type\":"
                   "\"Polygon\",\"coordinates\":[[" +
                       QByteArray(ring) + "]]}}";
        const QString town = m_files.writeTown(all);
        remember(Group, values(u"Stretch=false ColorInterpMode=0 Image="_s + path(u"grid.asc"_s)));
        ColoredPage page(m_installation, town);
        QTRY_VERIFY_WITH_TIMEOUT(page.icon()->isEnabled(), PatienceMs);
        QVERIFY2(page.layer().contains(u"without a value: 1<"_s), qPrintable(page.layer()));

        QLabel *summary = page.child<QLabel>(u"m_pwLblSummary"_s);
        QVERIFY(summary->isVisible());
        QCOMPARE(summary->accessibleName(), u"Buildings with a value: 2, from 3 to 3, median 3\n"
                                            "\u2265 10: 0 (0 %)\n< 10: 2 (100 %)"_s);

        {
            const FileDialogAnswer dialog(path(u"v.csv"_s));
            page.press(u"m_pwPbSaveValues"_s);
            QCOMPARE(dialog.filters, QStringList({u"GeoPackage (*.gpkg)"_s, u"CSV (*.csv)"_s}));
        }
        QCOMPARE(readFile(path(u"v.csv"_s)),
                 QByteArray("fid,id,height_m,height_from,base_m,bottom_m,value,pixels,color,"
                            "left_out\n0,,5,field,0,0,3,1,#ff0000,\n1,,5,field,0,0,3,1,#ff0000,\n"
                            "2,,5,field,0,0,,0,,\n"));

        AnsweredBoxes boxes(QMessageBox::No);
        writeFile(path(u"w.gpkg"_s), "old");
        for (const QString &name : {u"w"_s, u"gone/v.csv"_s}) {
            const FileDialogAnswer dialog(path(name));
            page.press(u"m_pwPbSaveValues"_s);
        }
        QCOMPARE(boxes.seen.size(), 2);
        QCOMPARE(boxes.seen.constFirst().text,
                 path(u"w.gpkg"_s) + u" already exists. Replace it?"_s);
        QCOMPARE(readFile(path(u"w.gpkg"_s)), QByteArray("old"));
    }

    void refusesImages_data()
    {
        const Cases<QString, QString> row({"name", "text"});
        row("three bands", "three.tif", OnlyGray);
        const QString noRaster = u"This file can't be open as a raster dataset"_s;
        row("no raster", "text.tif", noRaster);
        row("no file", "nowhere.tif", noRaster);
    }

    void refusesImages()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        ColoredPage page(m_installation);
        QTRY_VERIFY_WITH_TIMEOUT(page.icon()->isEnabled(), PatienceMs);
        AnsweredBoxes boxes;

        dropFiles(&page, {path(name)});

        QTRY_COMPARE_WITH_TIMEOUT(boxes.seen.size(), 1, PatienceMs);
        QVERIFY(!page.icon()->isEnabled());
        QCOMPARE(page.line(u"m_pwLeImage"_s)->text(), QString());
        QTest::qWait(600); // applying the change opens no other box
        compareBoxes(boxes.seen, QMessageBox::Warning, u"Warning"_s, text);
    }

    void remembersEveryValue()
    {
        QVariantMap values = layerpage::values(
            u"Mode=2 IdxSubdataset=1 NoData=-1 Stretch=false ColorInterpMode=0 UserColormapCount=2 "
            "UserColormapShort_0=mine UserColormapShort_1=gone UserColormapAbs_1=/gone.txt "
            "CurrentColormap=2 TileSize=100.5 CheckGeom=true SkirtSize=7.25 AutoRefresh=false"_s);
        values[u"Image"_s] = path(u"two images.tif"_s);
        values[u"UserColormapAbs_0"_s] = path(u"own.cmap"_s);
        remember(Group, values);
        ColoredPage page(m_installation);
        vlt::platform::wizardSettings()->clear();

        page.saveSettings();

        const auto settings = vlt::platform::wizardSettings();
        QCOMPARE(settings->value(u"LastUsedDir"_s).toString(), path());
        QCOMPARE(otherThan(Group, values), QStringList());
        settings->beginGroup(Group);
        QCOMPARE(settings->childKeys(), values.keys());
    }

    void refreshesWhenTold()
    {
        ColoredPage page(m_installation);
        QTRY_VERIFY_WITH_TIMEOUT(page.icon()->isEnabled(), PatienceMs);
        page.check(u"m_pwChbAutoRefresh"_s, false);

        page.choose(u"m_pwCbMode"_s, 1);
        QTest::qWait(600);
        QVERIFY(page.document().contains(u";minimum;"_s));
        QCOMPARE(page.message(), u"The settings have changed: refresh the view to see them."_s);

        page.press(u"m_pwPbRefresh"_s);
        QTRY_VERIFY_WITH_TIMEOUT(page.document().contains(u";maximum;"_s), PatienceMs);
        page.choose(u"m_pwCbMode"_s, 2);
        QTest::mouseClick(page.icon(), Qt::LeftButton); // makes the layer
        QTRY_VERIFY_WITH_TIMEOUT(page.document().contains(u";average;"_s), PatienceMs);
        page.choose(u"m_pwCbMode"_s, 3);
        page.check(u"m_pwChbAutoRefresh"_s, true);
        QTRY_VERIFY_WITH_TIMEOUT(page.document().contains(u";mostRepresented;"_s), PatienceMs);
    }

    void foldsQuickChanges()
    {
        ColoredPage page(m_installation);
        QTRY_VERIFY_WITH_TIMEOUT(page.icon()->isEnabled(), PatienceMs);
        const QString layer = page.icon()->layerFile();
        QVERIFY(QFile::remove(layer));

        page.choose(u"m_pwCbMode"_s, 1);
        page.child<QDoubleSpinBox>(u"m_pwSbTileSize"_s)->setValue(300);

        QVERIFY(!page.icon()->isEnabled()); // the old layer is not valid any more
        QVERIFY(!QFile::exists(layer));
        QTRY_VERIFY_WITH_TIMEOUT(page.icon()->isEnabled(), PatienceMs);
        QVERIFY(page.document().contains(u";maximum;"_s));
        QVERIFY(page.document().contains(u"tileSize=\"300\""_s));
    }

    void saysQuietlyWhatIsMissing()
    {
        remember(Group, values(u"UserColormapCount=1 UserColormapShort_0=gone "
                               "UserColormapAbs_0=/gone.txt CurrentColormap=2"_s));
        AnsweredBoxes boxes;
        ColoredPage page(m_installation);
        const auto type = [&page](const QString &line, const QString &text) {
            page.line(line)->selectAll();
            QTest::keyClicks(page.line(line), text);
        };

        QTRY_COMPARE_WITH_TIMEOUT(
            page.message(),
            u"The file of the colormap no longer exists: choose another colormap."_s, PatienceMs);
        page.choose(u"m_pwCbCmap"_s, 0);
        QTRY_VERIFY_WITH_TIMEOUT(page.icon()->isEnabled(), PatienceMs);

        type(u"m_pwLeNoData"_s, u"-"_s);
        QTRY_COMPARE_WITH_TIMEOUT(page.message(), u"The no-data value is not a number."_s,
                                  PatienceMs);
        QVERIFY(!page.icon()->isEnabled()); // otherwise an outdated layer could be dragged
        QVERIFY(!page.validatePage());
        type(u"m_pwLeNoData"_s, u"-99,5"_s);
        QTRY_VERIFY_WITH_TIMEOUT(page.icon()->isEnabled(), PatienceMs);

        type(u"m_pwLeImage"_s, path(u"other"_s));
        QTRY_COMPARE_WITH_TIMEOUT(page.message(), u"Press Enter to open the image of this path."_s,
                                  PatienceMs);
        QVERIFY(!page.icon()->isEnabled());
        page.line(u"m_pwLeImage"_s)->clearFocus();
        QVERIFY(!page.validatePage());
        QVERIFY(boxes.seen.isEmpty());
    }

    void reportsOnceWhyThereIsNoLayer()
    {
        AnsweredBoxes boxes;

        ColoredPage page(path(u"bare"_s)); // without a template

        QTRY_COMPARE_WITH_TIMEOUT(boxes.seen.size(), 1, PatienceMs);
        QCOMPARE(boxes.seen.constFirst().icon, QMessageBox::Critical);
        QCOMPARE(boxes.seen.constFirst().text,
                 u"A configuration file is missing\n"_s +
                     path(u"bare/addons/telecom/template/template_texb.lay"_s));
        QVERIFY(!page.icon()->isEnabled());
    }
};

QTEST_MAIN(tst_ColoredPage)
#include "tst_ColoredPage.moc"
