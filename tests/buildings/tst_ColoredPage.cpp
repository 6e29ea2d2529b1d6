#include "LayerPage.h"
#include "buildings/ui/VltAddTexbColoredPage.h"
#include "gui/FileDialogAnswer.h"
#include "srs/PrivateSettings.h"

#include <gdal_priv.h>

using namespace layerpage;

namespace {

const QString Group = u"AddTexbColoredPage"_s;
const QString OnlyGray = u"The image-based coloring mode works only with one-band grey images"_s;

/// The page as it is when it is entered from the source page.
class ColoredPage : public Page<VltAddTexbColoredPage>
{
public:
    explicit ColoredPage(const QString &installation)
        : Page(installation, {{u"Buildings"_s, u"buildings"_s},
                              {u"Layer"_s, u"layer"_s},
                              {u"Height"_s, u"height"_s},
                              {u"Dtm"_s, u"dtm"_s},
                              {u"Nodata"_s, u"nodata"_s}})
    {}
};

} // namespace

class TestColoredPage : public QObject
{
    Q_OBJECT

    PrivateSettings m_settings;
    QTemporaryDir m_dir;
    QString m_installation;

    QString path(const QString &name) const { return m_dir.filePath(name); }

    QString write(const QString &name, const QByteArray &text) const
    {
        return layerpage::write(m_dir, name, text);
    }

    /// An image of its own, or one more in the file.
    QString writeTiff(const QString &name, int bandCount, bool append = false) const
    {
        char appending[] = "APPEND_SUBDATASET=YES";
        std::array<char *, 2> options = {append ? appending : nullptr, nullptr};
        const GDALDatasetUniquePtr made(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
            path(name).toUtf8(), 2, 2, bandCount, GDT_Byte, options.data()));
        return path(name);
    }

    QString colorMap(const QString &name) const
    {
        return m_installation + u"/addons/telecom/colormaps/some/%1.txt"_s.arg(name);
    }

private Q_SLOTS:
    void initTestCase()
    {
        GDALAllRegister();
        m_installation = path(u"installation"_s);
        write(u"grid.asc"_s, Grid);
        write(u"other.asc"_s, Grid);
        write(u"text.tif"_s, "no raster");
        writeTiff(u"three.tif"_s, 3);
        writeTiff(u"two images.tif"_s, 1);
        writeTiff(u"two images.tif"_s, 3, true);
        for (const QString &name : {u"first"_s, u"second"_s})
            write(u"installation/addons/telecom/colormaps/some/%1.txt"_s.arg(name),
                  "0 red\n10 blue\n");
        write(u"own.cmap"_s, "0 red\n");
        write(u"bad.cmap"_s, "0 reddish\n");
        QVERIFY(QDir().mkpath(m_installation + u"/addons/telecom/template"_s));
    }

    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".?"_s));
        vlt::platform::wizardSettings()->clear();
        QFile::remove(m_installation + u"/addons/telecom/template/template_texb.lay"_s);
        QVERIFY(QFile::copy(QStringLiteral(VLT_INSTALLATION) +
                                u"/addons/telecom/template/template_texb.lay"_s,
                            m_installation + u"/addons/telecom/template/template_texb.lay"_s));
    }

    void asksForAnImageFirst()
    {
        AnsweredBoxes boxes;

        ColoredPage page(m_installation);

        QTRY_COMPARE(page.message(), u"Choose the image that colors the buildings."_s);
        QVERIFY(!page.icon()->isEnabled());
        QVERIFY(boxes.seen.isEmpty());
        QVERIFY(page.child<QWidget>(u"m_pwSubdatasetsFrame"_s)->isHidden());
    }

    void writesWhatIsChosen_data()
    {
        QTest::addColumn<QVariantMap>("values");
        QTest::addColumn<QString>("color"); // after the image
        QTest::addColumn<QStringList>("measures");

        QTest::newRow("nothing remembered")
            << QVariantMap{} << u";%1;minimum;stretched;interpolation"_s.arg(colorMap(u"first"_s))
            << QStringList{u"250"_s, u"5"_s, u"false"_s};
        QTest::newRow("all else") << QVariantMap{{u"Mode"_s, 3},         {u"NoData"_s, u"-1.5"_s},
                                                 {u"Stretch"_s, false},  {u"ColorInterpMode"_s, 0},
                                                 {u"TileSize"_s, 512.5}, {u"CheckGeom"_s, true},
                                                 {u"SkirtSize"_s, 0.},   {u"CurrentColormap"_s, 1}}
                                  << u";%1;mostRepresented;absolute;colorrange;-1.5"_s.arg(
                                         colorMap(u"second"_s))
                                  << QStringList{u"512.5"_s, u"0"_s, u"true"_s};
        QTest::newRow("damaged")
            << QVariantMap{{u"Mode"_s, 9}, {u"TileSize"_s, u"x"_s}, {u"CurrentColormap"_s, -1}}
            << u";%1;minimum;stretched;interpolation"_s.arg(colorMap(u"first"_s))
            << QStringList{u"250"_s, u"5"_s, u"false"_s};
    }

    void writesWhatIsChosen()
    {
        QFETCH(QVariantMap, values);
        QFETCH(QString, color);
        QFETCH(QStringList, measures);
        remember(Group, {{u"Image"_s, path(u"grid.asc"_s)}});
        remember(Group, values);

        ColoredPage page(m_installation);

        QTRY_VERIFY(page.icon()->isEnabled());
        const QString expected =
            u"<?xml version=\"1.0\" encoding=\"UTF-8\"?><veltaroTexturedBuildings cache=\"none\">\n"
            "  <vector \n    filename=\"buildings\"\n    layer=\"layer\"\n    hfield=\"height\"\n"
            "    tileSize=\"%1\"\n    extrudedVisibility=\"2000\"\n    wallColor=\"IMAGE;%4%5\"\n"
            "    skirtHeight=\"%2\"\n    checkClockwise=\"%3\"\n  />\n"
            "  <elevation \n    source=\"dtm\"\n    filename=\"dtm\"\n    nodata=\"nodata\"\n"
            "  />\n</veltaroTexturedBuildings>\n"_s;
        QCOMPARE(page.document(),
                 expected.arg(measures[0], measures[1], measures[2], path(u"grid.asc"_s), color));
        QVERIFY(page.layer().contains(u"Buildings (layer)"_s));
        QVERIFY(page.layer().contains(u"rf_colored_buildings"_s));
        const QString colorMapName = QFileInfo(color.section(QLatin1Char(';'), 1, 1)).baseName();
        QVERIFY(page.layer().contains(colorMapName + u"_gradient.png"_s));
        QVERIFY(page.text(u"m_pwLblLegend"_s).contains(colorMapName));
    }

    void refusesImages_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");

        QTest::newRow("three bands") << u"three.tif"_s << OnlyGray;
        QTest::newRow("no raster")
            << u"text.tif"_s << u"This file can't be open as a raster dataset"_s;
        QTest::newRow("no file") << u"nowhere.tif"_s
                                 << u"This file can't be open as a raster dataset"_s;
    }

    void refusesImages()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        remember(Group, {{u"Image"_s, path(u"grid.asc"_s)}});
        ColoredPage page(m_installation);
        QTRY_VERIFY(page.icon()->isEnabled());
        AnsweredBoxes boxes;

        dropFiles(&page, {path(name)});

        QTRY_COMPARE(boxes.seen.size(), 1);
        QCOMPARE(boxes.seen.constFirst().icon, QMessageBox::Warning);
        QCOMPARE(boxes.seen.constFirst().title, u"Warning"_s);
        QCOMPARE(boxes.seen.constFirst().text, text);
        QVERIFY(!page.icon()->isEnabled());
        QCOMPARE(page.line(u"m_pwLeImage"_s)->text(), QString());
        QTest::qWait(600); // no further box when the change is taken
        QCOMPARE(boxes.seen.size(), 1);
    }

    void letsAnImageOfTheFileBeChosen()
    {
        ColoredPage page(m_installation);
        AnsweredBoxes boxes;
        FileDialogAnswer dialog(path(u"two images.tif"_s));
        QComboBox *images = page.combo(u"m_pwCbSubdatsets"_s);

        page.press(u"m_pwPbImage"_s);

        QCOMPARE(dialog.caption, u"Select the image to use"_s);
        QCOMPARE(dialog.filters, QStringList{u"Raster Files (*.*)"_s});
        QVERIFY(!page.child<QWidget>(u"m_pwSubdatasetsFrame"_s)->isHidden());
        QCOMPARE(images->count(), 2);
        QCOMPARE(
            images->itemText(0).indexOf(u"GTIFF_DIR:1:%1 (Page 1"_s.arg(path(u"two images.tif"_s))),
            0);
        QTRY_VERIFY(page.document().contains(u"\"IMAGE;GTIFF_DIR:1:"_s));

        images->setCurrentIndex(1);

        QCOMPARE(boxes.seen.size(), 1);
        QCOMPARE(boxes.seen.constFirst().text, OnlyGray);
        QVERIFY(!page.icon()->isEnabled());

        dropFiles(&page, {path(u"other.asc"_s)});
        QVERIFY(page.child<QWidget>(u"m_pwSubdatasetsFrame"_s)->isHidden());
        QTRY_VERIFY(page.icon()->isEnabled());
    }

    void remembersEveryValue()
    {
        const QVariantMap values{{u"Mode"_s, 2},
                                 {u"Image"_s, path(u"two images.tif"_s)},
                                 {u"IdxSubdataset"_s, 1},
                                 {u"NoData"_s, u"-1"_s},
                                 {u"Stretch"_s, false},
                                 {u"ColorInterpMode"_s, 0},
                                 {u"UserColormapCount"_s, 2},
                                 {u"UserColormapShort_0"_s, u"mine"_s},
                                 {u"UserColormapAbs_0"_s, path(u"own.cmap"_s)},
                                 {u"UserColormapShort_1"_s, u"gone"_s},
                                 {u"UserColormapAbs_1"_s, path(u"gone.txt"_s)},
                                 {u"CurrentColormap"_s, 2},
                                 {u"TileSize"_s, 100.5},
                                 {u"CheckGeom"_s, true},
                                 {u"SkirtSize"_s, 7.25},
                                 {u"AutoRefresh"_s, false}};
        remember(Group, values);
        ColoredPage page(m_installation);
        vlt::platform::wizardSettings()->clear();

        page.saveSettings();

        const auto settings = vlt::platform::wizardSettings();
        QCOMPARE(settings->value(u"LastUsedDir"_s).toString(), m_dir.path());
        QCOMPARE(otherThan(Group, values), QStringList());
        settings->beginGroup(Group);
        QCOMPARE(settings->childKeys(), values.keys());
    }

    void refreshesWhenTold_data()
    {
        QTest::addColumn<QString>("by");

        QTest::newRow("the button") << u"Refresh"_s;
        QTest::newRow("taking hold of the icon") << u"Hold"_s;
        QTest::newRow("auto refresh is switched on") << u"Auto"_s;
    }

    void refreshesWhenTold()
    {
        QFETCH(QString, by);
        remember(Group, {{u"Image"_s, path(u"grid.asc"_s)}});
        ColoredPage page(m_installation);
        QTRY_VERIFY(page.icon()->isEnabled());
        page.check(u"m_pwChbAutoRefresh"_s, false);

        page.choose(u"m_pwCbMode"_s, 1);
        QTest::qWait(600);

        QVERIFY(page.document().contains(u";minimum;"_s));
        QCOMPARE(page.message(), u"The settings have changed: refresh the view to see them."_s);

        if (by == u"Refresh"_s)
            page.press(u"m_pwPbRefresh"_s);
        else if (by == u"Hold"_s)
            QTest::mouseClick(page.icon(), Qt::LeftButton);
        else
            page.check(u"m_pwChbAutoRefresh"_s, true);
        QTRY_VERIFY(page.document().contains(u";maximum;"_s));
    }

    void foldsQuickChanges()
    {
        remember(Group, {{u"Image"_s, path(u"grid.asc"_s)}});
        ColoredPage page(m_installation);
        QTRY_VERIFY(page.icon()->isEnabled());
        const QString layer = page.icon()->layerFile();
        QVERIFY(QFile::remove(layer));

        page.choose(u"m_pwCbMode"_s, 1);
        page.child<QDoubleSpinBox>(u"m_pwSbTileSize"_s)->setValue(300);

        QVERIFY(!page.icon()->isEnabled()); // the old layer is none any more
        QVERIFY(!QFile::exists(layer));
        QTRY_VERIFY(page.icon()->isEnabled());
        QVERIFY(page.document().contains(u";maximum;"_s));
        QVERIFY(page.document().contains(u"tileSize=\"300\""_s));
    }

    void saysQuietlyWhatIsMissing_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");

        QTest::newRow("no number")
            << u"m_pwLeNoData"_s << u"-"_s << u"The value of no data is no number."_s;
        QTest::newRow("another image is being typed")
            << u"m_pwLeImage"_s << path(u"other"_s)
            << u"Press Enter to open the image that is typed."_s;
    }

    void saysQuietlyWhatIsMissing()
    {
        QFETCH(QString, line);
        QFETCH(QString, typed);
        QFETCH(QString, message);
        remember(Group, {{u"Image"_s, path(u"grid.asc"_s)}});
        ColoredPage page(m_installation);
        QTRY_VERIFY(page.icon()->isEnabled());
        AnsweredBoxes boxes;

        page.line(line)->selectAll();
        QTest::keyClicks(page.line(line), typed);

        QTRY_COMPARE(page.message(), message);
        QVERIFY(!page.icon()->isEnabled()); // else the layer of former values could be dragged
        page.line(line)->clearFocus();
        QVERIFY(!page.validatePage());
        QVERIFY(boxes.seen.isEmpty());
    }

    void saysQuietlyThatARememberedColorMapIsGone()
    {
        remember(Group, {{u"Image"_s, path(u"grid.asc"_s)},
                         {u"UserColormapCount"_s, 1},
                         {u"UserColormapShort_0"_s, u"gone"_s},
                         {u"UserColormapAbs_0"_s, path(u"gone.txt"_s)},
                         {u"CurrentColormap"_s, 2}});
        AnsweredBoxes boxes;

        ColoredPage page(m_installation);

        QTRY_COMPARE(page.message(), u"The file of the colormap is gone: choose another one."_s);
        QVERIFY(boxes.seen.isEmpty());
        page.choose(u"m_pwCbCmap"_s, 0);
        QTRY_VERIFY(page.icon()->isEnabled());
    }

    void guessesTheNoDataValue()
    {
        remember(Group, {{u"Image"_s, path(u"grid.asc"_s)}});
        ColoredPage page(m_installation);

        page.press(u"m_pwPbNoData"_s);

        QCOMPARE(page.line(u"m_pwLeNoData"_s)->text(), u"-9999.000000"_s);
    }

    void tellsOnceWhyThereIsNoLayer()
    {
        QVERIFY(QFile::remove(m_installation + u"/addons/telecom/template/template_texb.lay"_s));
        remember(Group, {{u"Image"_s, path(u"grid.asc"_s)}});
        AnsweredBoxes boxes;

        ColoredPage page(m_installation);

        QTRY_COMPARE(boxes.seen.size(), 1);
        QCOMPARE(boxes.seen.constFirst().icon, QMessageBox::Critical);
        QCOMPARE(
            boxes.seen.constFirst().text,
            u"A configuration file is missing\n%1/addons/telecom/template/template_texb.lay"_s.arg(
                m_installation));
        QVERIFY(!page.icon()->isEnabled());
    }

    void addsColorMaps()
    {
        ColoredPage page(m_installation);
        AnsweredBoxes boxes;
        QComboBox *maps = page.combo(u"m_pwCbCmap"_s);
        FileDialogAnswer dialog(path(u"own.cmap"_s));

        page.press(u"m_pwPbAddCmap"_s);

        QCOMPARE(dialog.filters, QStringList{u"Colormap files (*.txt *.cmap)"_s});
        QCOMPARE(maps->count(), 3);
        QCOMPARE(maps->currentText(), u"own"_s);
        QCOMPARE(maps->currentData().toString(), path(u"own.cmap"_s));

        dropFiles(&page, {path(u"own.cmap"_s)});
        QCOMPARE(maps->count(), 3);
        QVERIFY(boxes.seen.isEmpty());

        dropFiles(&page, {path(u"bad.cmap"_s)});
        QCOMPARE(maps->count(), 3);
        QCOMPARE(boxes.seen.size(), 1);
        QCOMPARE(boxes.seen.constFirst().text,
                 u"This file can't be read as a colormap\n"_s + path(u"bad.cmap"_s));
    }

    void quitsOnlyWithALayer()
    {
        AnsweredBoxes boxes(QMessageBox::Yes);
        ColoredPage page(m_installation);
        QVERIFY(!page.validatePage());
        QVERIFY(boxes.seen.isEmpty());

        dropFiles(&page, {path(u"grid.asc"_s)});

        QVERIFY(page.validatePage());
        QCOMPARE(boxes.seen.size(), 1);
        QVERIFY(page.icon()->isEnabled());
    }
};

QTEST_MAIN(TestColoredPage)
#include "tst_ColoredPage.moc"
