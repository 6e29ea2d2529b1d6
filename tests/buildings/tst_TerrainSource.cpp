#include "SourcePage.h"
#include "support/Cases.h"
#include "support/Files.h"
#include "support/GeoTiff.h"

#include <QDir>
#include <QProgressBar>

#include <gdal_priv.h>

#include <array>

using namespace sourcetest;

class tst_TerrainSource : public QObject, SourceFiles
{
    Q_OBJECT

    /// A file with images but no bands of its own.
    QString withoutBands() const
    {
        QString path = file(u"tables.gpkg"_s);
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

    /// An orthophoto, or an image with a palette.
    QString picture(int bands) const
    {
        QString path = file(u"picture%1.tif"_s.arg(bands));
        const std::array<const char *, 2> options = {
            bands == 1 ? "PHOTOMETRIC=PALETTE" : "PHOTOMETRIC=RGB", nullptr};
        makeGeoTiff(path, {.columns = 4, .rows = 4, .bands = bands, .options = options.data()});
        return path;
    }

private Q_SLOTS:
    void initTestCase() { GDALAllRegister(); }

    void init() { vlt::platform::wizardSettings()->clear(); }

    void opensTerrains_data()
    {
        const Cases<QString, QString, QString> row({"path", "message", "noData"});
        const QString refused = u"This file can't be open as a raster dataset"_s;
        row("with missing values", grid(), {}, "-9999.000000");
        row("without", write(u"full.asc"_s, GridHead + "1 2\n3 4\n"), {});
        row("no raster", plain(), refused);
        row("gone", file(u"gone.tif"_s), refused);
        row("elsewhere", u"/vsicurl/http://127.0.0.1:9/a.tif"_s, refused);
        row("no band", withoutBands(), "This image doesn't have any band");
        const QString isPicture =
            u"This raster is probably a picture: its first band holds colors, "
            "which would be read as heights"_s;
        row("orthophoto", picture(3), isPicture);
        row("palette", picture(1), isPicture);
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
        const bool isOpen = !message.startsWith(u"This file can't"_s);
        QCOMPARE(host.dtm()->text(), isOpen ? path : QString());
        QCOMPARE(host.noData()->text(), noData);
    }

    void reportsHowToConvertVirtualRasters()
    {
        const QString path = write(u"mosaic.vrt"_s, "<VRTDataset rasterXSize=\"2\" "
                                                    "rasterYSize=\"2\"></VRTDataset>");
        const AnsweredBoxes boxes;
        remember(u"Dtm"_s, path);
        Host host;
        QCOMPARE(host.info(u"Dtm"_s), u"mosaic.vrt: virtual rasters are not opened: convert this "
                                      "one with gdal_translate"_s);
        host.page->openVector(plain());

        host.page->droppedFile(path);

        QCOMPARE(host.buildings()->text(), plain());
        QCOMPARE(boxes.seen.size(), 2);
    }

    void comparesSystems_data()
    {
        // west: western edge of 1,200 km in Web Mercator
        const Cases<double, QString> row({"west", "reported"});
        row("around", 0, "covers the buildings");
        row("elsewhere", 1e7, "does not cover the buildings");
    }

    void comparesSystems()
    {
        QFETCH(double, west);
        QFETCH(QString, reported);
        const QString path = file(u"mercator.tif"_s);
        makeGeoTiff(path, {2, 2, 1, GDT_Int16, {west, 6e5, 0, 2.4e6, 0, -1.2e6}, "EPSG:3857"});
        remember(u"Dtm"_s, path);
        Host host;

        host.page->openVector(plain()); // from 2 to 6 degrees east, 4 to 12 north

        QVERIFY2(host.info(u"Dtm"_s).endsWith(u' ' + reported), qPrintable(host.info(u"Dtm"_s)));
    }

    void guessesWhatIsMissing_data()
    {
        const Cases<QByteArray, QString> row({"contents", "guess"});
        row("lowest", "1 2\n3 -100.5\n", "-100.500000");
        row("lowest float", "1.5 2\n3 -3.4e38\n",
            u"-339999995214436424907732413799364296704.000000"_s);
        row("low ground", "NODATA_value -9999\n1 -100\n3 -9999\n", "-9999.000000");
        row("highest", "NODATA_value -5\n1 2\n3 9000\n", "9000.000000");
        row("lowest before highest", "1 -101\n3 9000\n", "-101.000000");
        row("ground only", "0 8999\n3 3000\n", "-32768.000000");
        row("all missing", "NODATA_value 7\n7 7\n7 7\n", "7.000000");
    }

    void guessesWhatIsMissing()
    {
        QFETCH(QByteArray, contents);
        const QTemporaryDir dir;
        Host host;
        host.dtm()->setText(writeFile(dir.filePath(u"r.asc"_s), GridHead + contents));
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
        QTEST(host.noData()->text(), "guess");
        QCOMPARE(host.buildings()->text(), QString()); // the drop during the guess was ignored
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
};

QTEST_MAIN(tst_TerrainSource)
#include "tst_TerrainSource.moc"
