#include "ColoredPage.h"
#include "gui/FileDialogAnswer.h"
#include "support/Patience.h"
#include "support/PrivateSettings.h"

using namespace layerpage;

/// What the page of buildings with colours lets the user choose: part, band, range, field and
/// colour map.
class tst_ColoringChoices : public QObject
{
    Q_OBJECT

    PrivateSettings m_settings;
    ColoredPageFiles m_files;
    const QString m_installation = m_files.installation();

    QString path(const QString &name) const { return m_files.path(name); }

private Q_SLOTS:
    void initTestCase() { m_files.write(); }

    void init() { m_files.reset(); }

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
        QVERIFY(images->itemText(0).startsWith(
            u"GTIFF_DIR:1:%1 (Page 1"_s.arg(path(u"two images.tif"_s))));
        QTRY_VERIFY_WITH_TIMEOUT(page.document().contains(u"\"IMAGE;GTIFF_DIR:1:"_s), PatienceMs);

        images->setCurrentIndex(1);

        QCOMPARE(boxes.seen.size(), 1);
        QCOMPARE(boxes.seen.constFirst().text, OnlyGray);
        QVERIFY(!page.icon()->isEnabled());

        dropFiles(&page, {path(u"other.asc"_s)});
        QVERIFY(page.child<QWidget>(u"m_pwSubdatasetsFrame"_s)->isHidden());
        QTRY_VERIFY_WITH_TIMEOUT(page.icon()->isEnabled(), PatienceMs);
        page.press(u"m_pwPbNoData"_s);
        QCOMPARE(page.line(u"m_pwLeNoData"_s)->text(), u"-9999.000000"_s);
    }

    void letsABandBeChosen()
    {
        {
            const GDALDatasetUniquePtr made(
                GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
                    path(u"bands.tif"_s).toUtf8(), 2, 2, 2, GDT_Float32, nullptr));
            made->GetRasterBand(2)->SetDescription("quality");
            made->GetRasterBand(2)->Fill(7);
        }
        ColoredPage page(m_installation);
        QVERIFY(page.child<QWidget>(u"m_pwCbBand"_s)->isHidden());
        QComboBox *bands = page.combo(u"m_pwCbBand"_s);

        dropFiles(&page, {path(u"bands.tif"_s)});

        QVERIFY(!page.child<QWidget>(u"m_pwCbBand"_s)->isHidden());
        QCOMPARE(bands->itemText(1), u"2 (quality)"_s);
        QTRY_VERIFY_WITH_TIMEOUT(page.document().contains(u"bands.tif;"_s), PatienceMs);
        QVERIFY(!page.document().contains(u"<colors"_s));
        bands->setCurrentIndex(1);
        QTRY_VERIFY_WITH_TIMEOUT(page.document().contains(u"    band=\"2\"\n"_s), PatienceMs);
        page.saveSettings();
        QCOMPARE(ColoredPage(m_installation).combo(u"m_pwCbBand"_s)->currentIndex(), 1);

        dropFiles(&page, {path(u"other.asc"_s)});
        QVERIFY(page.child<QWidget>(u"m_pwCbBand"_s)->isHidden());
        QTRY_VERIFY_WITH_TIMEOUT(page.document().contains(u"other.asc;"_s), PatienceMs);
        QVERIFY(!page.document().contains(u"<colors"_s));
    }

    void stretchesOverOtherValues()
    {
        AnsweredBoxes boxes;
        FileDialogAnswer dialog(path(u"other.asc"_s));
        ColoredPage page(m_installation);
        QTRY_VERIFY_WITH_TIMEOUT(page.document().contains(u";stretched;"_s), PatienceMs);
        QVERIFY(page.child<QWidget>(u"m_pwStretchPercentile"_s)->isHidden());
        const auto ownMap = [&page] { // of the values 1 to 4
            const QString name =
                QDir::cleanPath(page.icon()->layerFile()).replace(u".lay"_s, u"_first.cmap"_s);
            return page.document().contains(name + u";minimum;absolute;"_s) ? readFile(name)
                                                                            : QByteArray();
        };

        page.choose(u"m_pwCbStretchOver"_s, 1);
        QTRY_COMPARE_WITH_TIMEOUT(ownMap(), "1 255 0 0 255\n4 0 0 255 255\n", PatienceMs);
        page.child<QDoubleSpinBox>(u"m_pwSbStretchLow"_s)->setValue(30);
        QTRY_COMPARE_WITH_TIMEOUT(ownMap(), "2 255 0 0 255\n4 0 0 255 255\n", PatienceMs);
        QVERIFY(page.layer().contains(u"first_gradient.png"_s));

        page.choose(u"m_pwCbStretchOver"_s, 3);
        QTRY_COMPARE_WITH_TIMEOUT(
            page.message(), u"The range of the colors needs two numbers, the lower one first."_s,
            PatienceMs);
        page.line(u"m_pwLeStretchLow"_s)->setText(u"-1,5"_s);
        page.line(u"m_pwLeStretchHigh"_s)->setText(u"8"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ownMap(), "-1.5 255 0 0 255\n8 0 0 255 255\n", PatienceMs);
        page.saveSettings();
        ColoredPage later(m_installation);
        QCOMPARE(later.line(u"m_pwLeStretchLow"_s)->text(), u"-1.5"_s);
        QVERIFY(!later.child<QWidget>(u"m_pwStretchRange"_s)->isHidden());

        page.choose(u"m_pwCbStretchOver"_s, 4);
        QTRY_COMPARE_WITH_TIMEOUT(page.message(), u"Choose the other images."_s, PatienceMs);
        page.press(u"m_pwPbStretchOthers"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ownMap(), "1 255 0 0 255\n4 0 0 255 255\n", PatienceMs);
        page.check(u"m_pwCbStretch"_s, false);
        QTRY_VERIFY_WITH_TIMEOUT(page.document().contains(u"first.txt;minimum;absolute;"_s),
                                 PatienceMs);
        QVERIFY(boxes.seen.isEmpty());
    }

    void colorsByAField()
    {
        QByteArrayList all;
        for (const char *properties :
             {"\"use\":\"shop\",\"height\":12", "\"use\":\"home\",\"height\":10"})
            all << "{\"type\":\"Feature\",\"properties\":{" + QByteArray(properties) +
                       "},\"geometry\":{\"type\":\"Polygon\",\"coordinates\":[[[2,4],[6,4],[6,8],"
                       "[2,4]]]}}";
        const QString town = m_files.writeTown(all);
        const QVariantList fields{QVariantList{u"use"_s, 3}, QVariantList{u"height"_s, 0}};
        vlt::platform::wizardSettings()->clear(); // no image is needed
        AnsweredBoxes boxes;
        ColoredPage page(m_installation, town, fields);
        QTRY_VERIFY_WITH_TIMEOUT(!page.message().isEmpty(), PatienceMs);
        const auto shown = [&page](const QString &name) {
            return page.child<QWidget>(name)->isVisible();
        };
        const auto ownMap = [&page] {
            return QDir::cleanPath(page.icon()->layerFile()).replace(u".lay"_s, u"_first.cmap"_s);
        };
        const auto colorsWritten = [&page, &ownMap](const QString &content) {
            return page.icon()->isEnabled() &&
                   page.document().contains(u"  <colors \n    field="_s +
                                            QString(content).replace(u'@', ownMap()) + u"  />\n"_s);
        };
        QCOMPARE(page.combo(u"m_pwCbColorBy"_s)->itemText(2), u"height (Integer)"_s);

        page.choose(u"m_pwCbColorBy"_s, 1);
        QTRY_VERIFY_WITH_TIMEOUT(colorsWritten(u"\"use\"\n    mode=\"distinct\"\n"_s), PatienceMs);
        QVERIFY(!shown(u"m_pwLeImage"_s) && !shown(u"m_pwCbMode"_s) && !shown(u"m_pwCbCmap"_s));
        QVERIFY(page.text(u"m_pwLblLegend"_s).contains(u"use"_s));
        QVERIFY(shown(u"m_pwPbSaveValues"_s) && !shown(u"m_pwLblSummary"_s));
        page.saveSettings();

        ColoredPage later(m_installation, town, fields);
        QCOMPARE(later.combo(u"m_pwCbColorBy"_s)->currentIndex(), 1);
        later.choose(u"m_pwCbStretchOver"_s, 2); // for rasters only
        later.choose(u"m_pwCbColorBy"_s, 2);
        QVERIFY(later.combo(u"m_pwCbStretchOver"_s)->isVisible());
        page.choose(u"m_pwCbColorBy"_s, 2);
        QTRY_VERIFY_WITH_TIMEOUT(colorsWritten(u"\"height\"\n    map=\"@\"\n"_s), PatienceMs);
        QVERIFY(shown(u"m_pwCbCmap"_s) && shown(u"m_pwCbStretch"_s) && !shown(u"m_pwLeNoData"_s));
        QCOMPARE(readFile(ownMap()), QByteArray("10 255 0 0 255\n12 0 0 255 255\n"));
        QCOMPARE(later.combo(u"m_pwCbStretchOver"_s)->currentIndex(), 0);

        dropFiles(&page, {path(u"grid.asc"_s)});
        QTRY_VERIFY_WITH_TIMEOUT(page.document().contains(u"IMAGE;"_s), PatienceMs);
        QVERIFY(shown(u"m_pwLeImage"_s) && !page.document().contains(u"<colors"_s));

        ColoredPage gone(m_installation, town, {fields.constLast()});
        QCOMPARE(gone.combo(u"m_pwCbColorBy"_s)->currentIndex(), 0);
        QVERIFY(boxes.seen.isEmpty());
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
};

QTEST_MAIN(tst_ColoringChoices)
#include "tst_ColoringChoices.moc"
