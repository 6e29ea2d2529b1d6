#include "buildings/ui/VltAddTexbColoredPage.h"
#include "gui/AnsweredBoxes.h"
#include "gui/DropOnWidget.h"
#include "gui/FileDialogAnswer.h"
#include "platform/Settings.h"
#include "srs/PrivateSettings.h"
#include "wizard/base/DraggableIcon.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gdal_priv.h>

using namespace Qt::StringLiterals;

namespace {

const QString Group = u"AddTexbColoredPage/"_s;
const QString OnlyGray = u"The image-based coloring mode works only with one-band grey images"_s;
const QByteArray Grid = "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 10\n"
                        "NODATA_value -9999\n1 2\n3 4\n";

void remember(const QString &key, const QVariant &value)
{
    vlt::platform::wizardSettings()->setValue(Group + key, value);
}

QString contents(const QString &path)
{
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                                             : QString();
}

/// The page as it is when it is entered from the source page.
class Page : public VltAddTexbColoredPage
{
public:
    explicit Page(const QString &installation)
        : VltAddTexbColoredPage(nullptr, shared, installation, u"en"_s)
    {
        for (const QString &key : {u"Buildings"_s, u"Layer"_s, u"Height"_s, u"Dtm"_s, u"Nodata"_s})
            shared.insert(key, key.toLower());
        initializePage();
        resize(1000, 600);
        show();
    }

    template<typename Widget>
    Widget *child(const QString &name)
    {
        return findChild<Widget *>(name);
    }
    QComboBox *combo(const QString &name) { return child<QComboBox>(name); }
    QLineEdit *line(const QString &name) { return child<QLineEdit>(name); }
    void check(const QString &name, bool on) { child<QCheckBox>(name)->setChecked(on); }
    void press(const QString &name) { child<QPushButton>(name)->click(); }
    QString message() { return child<QLabel>(u"m_pwLblScene"_s)->text(); }
    DraggableIcon *icon() { return child<DraggableIcon>(u"m_pwDragIcon"_s); }
    QString layer() { return contents(icon()->layerFile()); }
    QString document()
    {
        return contents(QString(icon()->layerFile()).replace(u".lay"_s, u".texb"_s));
    }

    SharedParameters shared;
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
        QFile file(path(name));
        return QDir().mkpath(QFileInfo(file).absolutePath()) && file.open(QIODevice::WriteOnly) &&
                       file.write(text) == text.size()
                   ? file.fileName()
                   : QString();
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

        Page page(m_installation);

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
        remember(u"Image"_s, path(u"grid.asc"_s));
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            remember(value.key(), value.value());

        Page page(m_installation);

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
        QVERIFY(page.child<QLabel>(u"m_pwLblInfo"_s)->text().contains(colorMapName));
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
        remember(u"Image"_s, path(u"grid.asc"_s));
        Page page(m_installation);
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
        Page page(m_installation);
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
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            remember(value.key(), value.value());
        Page page(m_installation);
        vlt::platform::wizardSettings()->clear();

        page.saveSettings();

        const auto settings = vlt::platform::wizardSettings();
        QCOMPARE(settings->value(u"LastUsedDir"_s).toString(), m_dir.path());
        settings->beginGroup(u"AddTexbColoredPage"_s);
        QCOMPARE(settings->childKeys(), values.keys());
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            QCOMPARE(settings->value(value.key()).toString(), value.value().toString());
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
        remember(u"Image"_s, path(u"grid.asc"_s));
        Page page(m_installation);
        QTRY_VERIFY(page.icon()->isEnabled());
        page.check(u"m_pwChbAutoRefresh"_s, false);

        page.combo(u"m_pwCbMode"_s)->setCurrentIndex(1);
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
        remember(u"Image"_s, path(u"grid.asc"_s));
        Page page(m_installation);
        QTRY_VERIFY(page.icon()->isEnabled());
        const QString layer = page.icon()->layerFile();
        QVERIFY(QFile::remove(layer));

        page.combo(u"m_pwCbMode"_s)->setCurrentIndex(1);
        page.child<QDoubleSpinBox>(u"m_pwSbTileSize"_s)->setValue(300);

        QVERIFY(!page.icon()->isEnabled()); // the old layer is none any more
        QVERIFY(!QFile::exists(layer));
        QTRY_VERIFY(page.icon()->isEnabled());
        QVERIFY(page.document().contains(u";maximum;"_s));
        QVERIFY(page.document().contains(u"tileSize=\"300\""_s));
    }

    void saysQuietlyThatTheNoDataValueIsNone()
    {
        remember(u"Image"_s, path(u"grid.asc"_s));
        Page page(m_installation);
        QTRY_VERIFY(page.icon()->isEnabled());
        AnsweredBoxes boxes;

        page.line(u"m_pwLeNoData"_s)->setText(u"-"_s);

        QTRY_COMPARE(page.message(), u"The value of no data is no number."_s);
        QVERIFY(!page.icon()->isEnabled());
        QVERIFY(boxes.seen.isEmpty());
    }

    void guessesTheNoDataValue()
    {
        remember(u"Image"_s, path(u"grid.asc"_s));
        Page page(m_installation);

        page.press(u"m_pwPbNoData"_s);

        QCOMPARE(page.line(u"m_pwLeNoData"_s)->text(), u"-9999.000000"_s);
    }

    void tellsOnceWhyThereIsNoLayer()
    {
        QVERIFY(QFile::remove(m_installation + u"/addons/telecom/template/template_texb.lay"_s));
        remember(u"Image"_s, path(u"grid.asc"_s));
        AnsweredBoxes boxes;

        Page page(m_installation);

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
        Page page(m_installation);
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
        Page page(m_installation);
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
