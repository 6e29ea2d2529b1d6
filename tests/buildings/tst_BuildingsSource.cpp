#include "buildings/ui/VltAddTexbFirstPage.h"
#include "gui/AnsweredBoxes.h"
#include "gui/DropOnWidget.h"
#include "gui/FileDialogAnswer.h"
#include "platform/Settings.h"
#include "srs/PrivateSettings.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QWizard>

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray Square =
    R"("geometry":{"type":"Polygon","coordinates":[[[2,4],[6,4],[6,12],[2,4]]]})";
const QByteArray Point = R"("geometry":{"type":"Point","coordinates":[2,4]})";
const QByteArray Nowhere = R"("geometry":null)";
const QByteArray GridHead = "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 10\n";

QByteArray features(const QList<QByteArray> &geometries,
                    const QByteArray &properties = "{\"H\":1.5}")
{
    QByteArrayList all;
    for (const QByteArray &geometry : geometries)
        all << R"({"type":"Feature","properties":)" + properties + "," + geometry + "}";
    return R"({"type":"FeatureCollection","features":[)" + all.join(',') + "]}";
}

/// A wizard with the page, id 1, between an empty one and the two that may follow.
struct Host
{
    explicit Host(const QString &project = {})
    {
        if (!project.isEmpty())
            parameters.insert(u"ProjectName"_s, project);
        wizard.addPage(new QWizardPage(&wizard));
        page = new VltAddTexbFirstPage(&wizard, parameters, u"/nowhere"_s, u"en"_s);
        wizard.addPage(page);
        page->setColoredPageId(wizard.addPage(new QWizardPage(&wizard)));
        page->setTexturedPageId(wizard.addPage(new QWizardPage(&wizard)));
        wizard.setOption(QWizard::NoDefaultButton);
        wizard.show();
        wizard.next();
    }

    template<typename Widget>
    Widget *child(const QString &name)
    {
        return page->findChild<Widget *>(name);
    }
    QLineEdit *buildings() { return child<QLineEdit>(u"m_pwLeBuildings"_s); }
    QLineEdit *dtm() { return child<QLineEdit>(u"m_pwLeDtm"_s); }
    QLineEdit *noData() { return child<QLineEdit>(u"m_pwLeNoData"_s); }
    QComboBox *layer() { return child<QComboBox>(u"m_pwCbLayer"_s); }
    QComboBox *height() { return child<QComboBox>(u"m_pwCbHeight"_s); }
    QString info(const QString &of) { return child<QLabel>(u"m_pwLbl%1Info"_s.arg(of))->text(); }
    bool canGoOn() { return wizard.button(QWizard::NextButton)->isEnabled(); }

    SharedParameters parameters;
    QWizard wizard;
    VltAddTexbFirstPage *page = nullptr;
};

void compareBoxes(const QList<SeenBox> &seen, QMessageBox::Icon icon, const QString &title,
                  const QString &text)
{
    QCOMPARE(seen.size(), text.isEmpty() ? 0 : 1);
    if (text.isEmpty())
        return;
    QCOMPARE(seen.constFirst().icon, icon);
    QCOMPARE(seen.constFirst().title, title);
    QCOMPARE(seen.constFirst().text, text);
    QCOMPARE(seen.constFirst().buttons, QMessageBox::Ok);
}

} // namespace

class TestBuildingsSource : public QObject
{
    Q_OBJECT

    PrivateSettings m_settings;
    QTemporaryDir m_dir;

    QString file(const QString &name) const { return m_dir.filePath(name); }

    QString write(const QString &name, const QByteArray &contents) const
    {
        QFile out(file(name));
        return out.open(QIODevice::WriteOnly) && out.write(contents) == contents.size()
                   ? out.fileName()
                   : QString();
    }
    QString plain() const { return write(u"plain é.geojson"_s, features({Square})); }
    QString grid() const
    {
        return write(u"grid.asc"_s, GridHead + "NODATA_value -9999\n1 2\n3 4\n");
    }

    static QVariant remembered(const QString &key)
    {
        return vlt::platform::wizardSettings()->value(key);
    }
    static void remember(const QString &key, const QVariant &value)
    {
        vlt::platform::wizardSettings()->setValue(u"AddTexbFirstPage/"_s + key, value);
    }

    /// Layers "one" (a, b) and "two" (c, HEIGHT), a line layer between them.
    QString twoLayers() const
    {
        const QString path = file(u"two.gpkg"_s);
        QFile::remove(path);
        const GDALDatasetUniquePtr made(GetGDALDriverManager()->GetDriverByName("GPKG")->Create(
            path.toUtf8(), 0, 0, 0, GDT_Unknown, nullptr));
        const auto add = [&](const char *name, OGRwkbGeometryType type,
                             const QList<QByteArray> &names) {
            OGRLayer *layer = made->CreateLayer(name, nullptr, type, nullptr);
            for (const QByteArray &field : names) {
                OGRFieldDefn real(field.constData(), OFTReal);
                layer->CreateField(&real);
            }
            OGRFeature feature(layer->GetLayerDefn());
            OGRPolygon square;
            OGRLinearRing ring;
            for (const auto &[x, y] : {std::pair(0, 0), {8, 0}, {8, 2}, {0, 0}})
                ring.addPoint(x, y);
            square.addRing(&ring);
            if (type == wkbPolygon)
                feature.SetGeometry(&square);
            return layer->CreateFeature(&feature) == OGRERR_NONE;
        };
        const bool isMade =
            add("one", wkbPolygon, {"a", "b"}) && add("lines", wkbLineString, {"x"}) &&
            add("measured", wkbPolygonM, {"x"}) && add("two", wkbPolygon, {"c", "HEIGHT"});
        return isMade ? path : QString();
    }

    /// An image that only holds other images.
    QString withoutBands() const
    {
        const QString path = file(u"tables.gpkg"_s);
        QFile::remove(path);
        for (const char *table : {"RASTER_TABLE=a", "RASTER_TABLE=b"}) {
            const std::array<const char *, 3> options = {table, "APPEND_SUBDATASET=YES", nullptr};
            const GDALDatasetUniquePtr made(GetGDALDriverManager()->GetDriverByName("GPKG")->Create(
                path.toUtf8(), 4, 4, 1, GDT_Byte, options.data()));
            std::array<double, 6> place = {0, 1, 0, 4, 0, -1};
            made->SetGeoTransform(place.data());
        }
        return path;
    }

private Q_SLOTS:
    void initTestCase() { GDALAllRegister(); }

    void init() { vlt::platform::wizardSettings()->clear(); }

    void opensVectors_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<bool>("silent");
        QTest::addColumn<QString>("message"); ///< empty: opened, "-": not opened without a word

        const QString refused = u"This file can't be open as a vector file"_s;
        const QString noPolygons = u"This datasource doesn't contain any polygon layer"_s;
        QTest::newRow("polygons") << u"a.geojson"_s << features({Square}) << false << QString();
        QTest::newRow("mixed, so of no declared kind")
            << u"b.geojson"_s << features({Point, Square}) << true << QString();
        QTest::newRow("points") << u"c.geojson"_s << features({Point}) << false << noPolygons;
        QTest::newRow("points, silent")
            << u"c.geojson"_s << features({Point}) << true << noPolygons;
        QTest::newRow("no vector") << u"d.geojson"_s << QByteArray("no") << false << refused;
        QTest::newRow("no vector, silent") << u"d.geojson"_s << QByteArray("no") << true << u"-"_s;
        QTest::newRow("empty path") << QString() << QByteArray() << false << u"-"_s;
        for (const char *name :
             {"/gone/e.shp", "/vsicurl/http://127.0.0.1:9/a.geojson",
              "http://127.0.0.1:9/a.geojson", "PG:host=127.0.0.1", "/vsimem/a.geojson"})
            QTest::newRow(name) << QString::fromLatin1(name) << QByteArray() << false << refused;
    }

    void opensVectors()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, contents);
        QFETCH(bool, silent);
        QFETCH(QString, message);
        const QString path = contents.isEmpty() ? name : write(name, contents);
        Host host;
        host.page->openVector(plain());
        QCOMPARE(host.layer()->count(), 1);
        const AnsweredBoxes boxes;

        host.page->openVector(path, silent);

        const bool isOpened = message.isEmpty();
        compareBoxes(boxes.seen, QMessageBox::Critical, u"Error"_s,
                     message == u"-" ? QString() : message);
        QCOMPARE(host.buildings()->text(), isOpened ? path : QString());
        QCOMPARE(host.layer()->count(), isOpened ? 1 : 0);
        QCOMPARE(host.layer()->currentData().toString(), isOpened ? name.chopped(8) : QString());
        QCOMPARE(host.height()->count(), isOpened ? 1 : 0);
        QVERIFY(!host.canGoOn());
    }

    void guessesTheHeight_data()
    {
        QTest::addColumn<QByteArray>("properties");
        QTest::addColumn<QStringList>("offered");
        QTest::addColumn<int>("index");

        QTest::newRow("HEIGHT") << QByteArray(R"({"ID":1,"NAME":"a","HEIGHT":2.5})")
                                << QStringList{u"ID (Integer)"_s, u"NAME (String)"_s,
                                               u"HEIGHT (Real)"_s}
                                << 2;
        QTest::newRow("H before HEIGHT, any case")
            << QByteArray(R"({"h":1,"HEIGHT":2})")
            << QStringList{u"h (Integer)"_s, u"HEIGHT (Integer)"_s} << 0;
        QTest::newRow("AGL before all")
            << QByteArray(R"({"Color":"x","h":1,"agl":2})")
            << QStringList{u"Color (String)"_s, u"h (Integer)"_s, u"agl (Integer)"_s} << 2;
        QTest::newRow("none: the second")
            << QByteArray(R"({"ID":1,"NAME":"a"})")
            << QStringList{u"ID (Integer)"_s, u"NAME (String)"_s} << 1;
        QTest::newRow("none, only one")
            << QByteArray(R"({"ID":1})") << QStringList{u"ID (Integer)"_s} << 0;
        QTest::newRow("fields that are not offered count")
            << QByteArray(R"({"d":"2024/01/02","H":1,"s":"x"})")
            << QStringList{u"H (Integer)"_s, u"s (String)"_s} << 1;
        QTest::newRow("counted beyond the end")
            << QByteArray(R"({"n":123456789012,"H":1})") << QStringList{u"H (Integer)"_s} << -1;
    }

    void guessesTheHeight()
    {
        QFETCH(QByteArray, properties);
        QFETCH(QStringList, offered);
        QFETCH(int, index);
        Host host;

        host.page->openVector(write(u"fields.geojson"_s, features({Square}, properties)));

        QStringList items;
        for (int i = 0; i < host.height()->count(); ++i)
            items << host.height()->itemText(i);
        QCOMPARE(items, offered);
        QCOMPARE(host.height()->currentIndex(), index);
        host.dtm()->setText(u"x"_s);
        QCOMPARE(host.canGoOn(), index >= 0);
    }

    void appendsTheFieldsOfAnotherLayer()
    {
        Host host;
        host.page->openVector(twoLayers());
        QCOMPARE(host.layer()->count(), 2); // not the lines, nor polygons with measures
        QCOMPARE(host.height()->count(), 2);
        QCOMPARE(host.height()->currentIndex(), 1);

        host.layer()->setCurrentIndex(1);

        QCOMPARE(host.height()->count(), 4);
        QCOMPARE(host.height()->itemData(3).toString(), u"HEIGHT"_s);
        QCOMPARE(host.height()->currentIndex(), 1); // of "two", among those of "one"
        QVERIFY2(host.info(u"Buildings"_s).startsWith(u"Buildings: 1"_s),
                 qPrintable(host.info(u"Buildings"_s)));
        host.page->layerChanged(-1);
        QCOMPARE(host.layer()->count(), 0);
    }

    void opensTerrains_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("noData");
        QTest::addColumn<QString>("message");

        const QString refused = u"This file can't be open as a raster dataset"_s;
        QTest::newRow("with missing values") << grid() << u"-9999.000000"_s << QString();
        QTest::newRow("without") << write(u"full.asc"_s, GridHead + "1 2\n3 4\n") << QString()
                                 << QString();
        QTest::newRow("no raster") << plain() << QString() << refused;
        QTest::newRow("gone") << file(u"gone.tif"_s) << QString() << refused;
        QTest::newRow("elsewhere")
            << u"/vsicurl/http://127.0.0.1:9/a.tif"_s << QString() << refused;
        QTest::newRow("no band") << withoutBands() << QString()
                                 << u"This image doesn't have any band"_s;
    }

    void opensTerrains()
    {
        QFETCH(QString, path);
        QFETCH(QString, noData);
        QFETCH(QString, message);
        remember(u"Dtm"_s, path);
        const AnsweredBoxes boxes;

        Host host;

        compareBoxes(boxes.seen, QMessageBox::Warning, u"Warning"_s, message);
        QCOMPARE(host.dtm()->text(), message.isEmpty() ? path : QString());
        QCOMPARE(host.noData()->text(), noData);
    }

    void guessesWhatIsMissing_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("guess");

        QTest::newRow("lowest") << GridHead + "1 2\n3 -100.5\n" << u"-100.500000"_s;
        QTest::newRow("lowest float") << GridHead + "1.5 2\n3 -3.4e38\n"
                                      << u"-339999995214436424907732413799364296704.000000"_s;
        QTest::newRow("low ground") << GridHead + "NODATA_value -9999\n1 -100\n3 -9999\n"
                                    << u"-9999.000000"_s;
        QTest::newRow("highest") << GridHead + "NODATA_value -5\n1 2\n3 9000\n" << u"9000.000000"_s;
        QTest::newRow("lowest before highest") << GridHead + "1 -101\n3 9000\n" << u"-101.000000"_s;
        QTest::newRow("ground only") << GridHead + "0 8999\n3 3000\n" << u"-32768.000000"_s;
        QTest::newRow("all missing") << GridHead + "NODATA_value 7\n7 7\n7 7\n" << u"7.000000"_s;
    }

    void guessesWhatIsMissing()
    {
        QFETCH(QByteArray, contents);
        QFETCH(QString, guess);
        const QTemporaryDir dir;
        QFile raster(dir.filePath(u"r.asc"_s));
        QVERIFY(raster.open(QIODevice::WriteOnly) && raster.write(contents) > 0);
        raster.close();
        Host host;
        host.dtm()->setText(raster.fileName());
        auto *bar = host.child<QProgressBar>(u"m_pwNoDataProgress"_s);
        QVERIFY(bar->isHidden());
        QList<int> values;
        connect(bar, &QProgressBar::valueChanged, this, [&](int value) { values << value; });
        QStringList meanwhile;
        QTimer::singleShot(0, this, [&] {
            if (!bar->isVisible() || host.page->isEnabled() ||
                host.wizard.button(QWizard::BackButton)->isEnabled())
                meanwhile << u"can be used"_s;
            host.page->guessNoData();
            host.page->droppedFile(plain());
        });

        host.child<QPushButton>(u"m_pwPbNoData"_s)->click();

        QCOMPARE(meanwhile, QStringList());
        QCOMPARE(host.noData()->text(), guess);
        QCOMPARE(host.buildings()->text(), QString()); // the drop came at the wrong time
        QCOMPARE(values, QList<int>{1});
        QVERIFY(bar->isHidden() && host.page->isEnabled());
        QVERIFY(host.wizard.button(QWizard::BackButton)->isEnabled());
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{u"r.asc"_s});
    }

    void guessesNothingOfWhatIsNoRaster()
    {
        Host host;
        const AnsweredBoxes boxes;
        host.noData()->setText(u"12"_s);
        host.page->guessNoData();
        compareBoxes(boxes.seen, {}, {}, {});

        host.dtm()->setText(plain());
        host.page->guessNoData();

        compareBoxes(boxes.seen, QMessageBox::Warning, u"Warning"_s,
                     u"This file can't be open as a raster dataset"_s);
        QCOMPARE(host.noData()->text(), u"12"_s);
    }

    void survivesTheEndOfTheWindowDuringAGuess()
    {
        for (const bool isDeleted : {false, true}) {
            auto *host = new Host;
            host->dtm()->setText(grid());
            auto *wizard = new QWizard; // owns the page
            wizard->addPage(host->page);
            wizard->show();
            VltAddTexbFirstPage *page = host->page;
            QTimer::singleShot(0, this, [=] {
                wizard->hide();
                if (isDeleted)
                    delete wizard;
            });
            page->guessNoData();
            if (!isDeleted) {
                QCOMPARE(host->noData()->text(), QString());
                delete wizard;
            }
            delete host;
        }
    }

    void publishesAndRemembers_data()
    {
        QTest::addColumn<bool>("colored");
        QTest::newRow("colored") << true;
        QTest::newRow("textured") << false;
    }

    void publishesAndRemembers()
    {
        QFETCH(bool, colored);
        Host host;
        QVERIFY(host.child<QRadioButton>(u"m_pwRbColored"_s)->isChecked());
        host.page->openVector(twoLayers());
        host.layer()->setCurrentIndex(1);
        host.height()->setCurrentIndex(3);
        {
            const FileDialogAnswer dialog(grid());
            host.child<QPushButton>(u"m_pwPbDtm"_s)->click();
            QCOMPARE(dialog.caption, u"Select the raster DTM"_s);
            QCOMPARE(dialog.filters, QStringList{u"Raster Files (*.*)"_s});
        }
        host.noData()->setText(u"-1"_s);
        host.child<QRadioButton>(colored ? u"m_pwRbColored"_s : u"m_pwRbTextured"_s)->click();
        QVERIFY(host.canGoOn());

        host.wizard.next();

        QCOMPARE(host.wizard.currentId(), colored ? 2 : 3);
        const SharedParameters expected{{u"Buildings"_s, file(u"two.gpkg"_s)},
                                        {u"Layer"_s, u"two"_s},
                                        {u"Height"_s, u"HEIGHT"_s},
                                        {u"Dtm"_s, grid()},
                                        {u"Nodata"_s, u"-1"_s},
                                        {u"CenterX"_s, 4.0},
                                        {u"CenterY"_s, 1.0}};
        QCOMPARE(host.parameters, expected);
        QCOMPARE(host.parameters.value(u"CenterX"_s).typeId(), QMetaType::Double);
        const QString prefix = u"AddTexbFirstPage/"_s;
        QCOMPARE(remembered(prefix + u"Buildings"_s).toString(), file(u"two.gpkg"_s));
        QCOMPARE(remembered(prefix + u"Layer"_s).toInt(), 1);
        QCOMPARE(remembered(prefix + u"Height"_s).toInt(), 3);
        QCOMPARE(remembered(prefix + u"Dtm"_s).toString(), grid());
        QCOMPARE(remembered(prefix + u"Nodata"_s).toString(), u"-1"_s);
        QCOMPARE(remembered(prefix + u"Type"_s).toString(), colored ? u"Colored"_s : u"Textured"_s);
        QCOMPARE(remembered(u"LastUsedDir"_s).toString(), m_dir.path());
        QCOMPARE(vlt::platform::wizardSettings()->allKeys().size(), 7);

        Host again; // layer, height and missing values come from the files
        QCOMPARE(again.buildings()->text(), file(u"two.gpkg"_s));
        QCOMPARE(again.layer()->currentIndex(), 0);
        QCOMPARE(again.height()->currentIndex(), 1);
        QCOMPARE(again.noData()->text(), u"-9999.000000"_s);
        QCOMPARE(again.child<QRadioButton>(u"m_pwRbColored"_s)->isChecked(), colored);
    }

    void takesTheFilesOfTheProjectOnce()
    {
        const AnsweredBoxes boxes;
        remember(u"Buildings"_s, twoLayers());
        const QString project = write(u"p.gvw"_s, "DEM Layers\nFiles : grid.asc\nVector layer\n "
                                                  "File : plain é.geojson\n Layer name : BATI\n");
        grid();
        plain();
        Host host(project);
        QCOMPARE(host.buildings()->text(), plain());
        QCOMPARE(host.dtm()->text(), grid());

        host.page->openVector(twoLayers());
        host.wizard.back();
        host.wizard.next();
        QCOMPARE(host.buildings()->text(), twoLayers());

        host.parameters.insert(u"ProjectName"_s, file(u"gone.gvw"_s));
        host.wizard.back();
        compareBoxes(boxes.seen, {}, {}, {});
        host.wizard.next();
        compareBoxes(boxes.seen, QMessageBox::Warning, u"Error !!!"_s,
                     u"Cannot open project\n"_s + file(u"gone.gvw"_s));
    }

    void refusesOnNext_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("lost");
        QTest::addColumn<QString>("message");
        QTest::newRow("buildings gone")
            << features({Square}) << u"n.geojson"_s
            << u"This file can't be open as a vector file\n"_s + file(u"n.geojson"_s);
        QTest::newRow("terrain gone")
            << features({Square}) << u"grid.asc"_s << u"Cannot open DTM\n"_s + file(u"grid.asc"_s);
        QTest::newRow("no place") << features({Nowhere}) << QString()
                                  << u"No building of this layer has a place\nn"_s;
    }

    void refusesOnNext()
    {
        QFETCH(QByteArray, contents);
        QFETCH(QString, lost);
        QFETCH(QString, message);
        Host host;
        const AnsweredBoxes boxes;
        host.page->openVector(write(u"n.geojson"_s, contents));
        dropFiles(host.page, {grid(), plain()});
        QVERIFY(host.canGoOn());
        if (!lost.isEmpty())
            QVERIFY(QFile::remove(file(lost)));

        host.wizard.next();

        QCOMPARE(host.wizard.currentId(), 1);
        compareBoxes(boxes.seen, QMessageBox::Warning, u"Error !!!"_s, message);
        QVERIFY(host.parameters.isEmpty());
        QVERIFY(vlt::platform::wizardSettings()->allKeys().isEmpty());
    }

    void takesDropsAndTypedPaths()
    {
        Host host;
        const AnsweredBoxes boxes;
        dropFiles(host.page, {grid()});
        QCOMPARE(host.dtm()->text(), grid());
        QCOMPARE(host.buildings()->text(), QString());
        dropFiles(host.page, {plain()});
        QCOMPARE(host.buildings()->text(), plain());
        QCOMPARE(host.dtm()->text(), grid());
        QVERIFY2(host.info(u"Dtm"_s).startsWith(u"2 \u00d7 2 pixels"_s),
                 qPrintable(host.info(u"Dtm"_s)));

        host.buildings()->setText(file(u"gone.shp"_s)); // not finished: no message
        host.noData()->setFocus();
        QCOMPARE(host.wizard.currentId(), 1);
        QTest::keyClick(host.buildings(), Qt::Key_Return);
        compareBoxes(boxes.seen, QMessageBox::Warning, u"Error !!!"_s,
                     u"This file can't be open as a vector file\n"_s + file(u"gone.shp"_s));
        host.buildings()->setText(twoLayers());
        QTest::keyClick(host.buildings(), Qt::Key_Return);
        QCOMPARE(host.layer()->count(), 2);
        host.buildings()->setText(plain());
        host.wizard.next(); // opened on the way
        QCOMPARE(host.wizard.currentId(), 2);
        QCOMPARE(host.parameters.value(u"Layer"_s).toString(), u"plain é"_s);
    }
};

QTEST_MAIN(TestBuildingsSource)
#include "tst_BuildingsSource.moc"
