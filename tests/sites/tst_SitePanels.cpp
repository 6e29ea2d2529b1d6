#include "gui/AnsweredBoxes.h"
#include "gui/FileDialogAnswer.h"
#include "platform/Settings.h"
#include "sites/ui/VltSiteProperties.h"
#include "sites/ui/VltSrsSettings.h"

#include <QComboBox>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

using namespace Qt::StringLiterals;

namespace {

const QString Installation = QStringLiteral(VLT_INSTALLATION);

void makeRaster(const QString &path, int epsg)
{
    GDALDriver *driver = GetGDALDriverManager()->GetDriverByName("GTiff");
    const GDALDatasetUniquePtr raster(
        driver->Create(QFile::encodeName(path).constData(), 2, 2, 1, GDT_Byte, nullptr));
    OGRSpatialReference system;
    if (epsg > 0 && system.importFromEPSG(epsg) == OGRERR_NONE)
        raster->SetSpatialRef(&system);
}

/// @param epsg  0: none; -1: a nameless projected system on the ellipsoid of WGS 84
void makeVector(const QString &path, int epsg)
{
    GDALDriver *driver = GetGDALDriverManager()->GetDriverByName("ESRI Shapefile");
    const GDALDatasetUniquePtr vector(
        driver->Create(QFile::encodeName(path).constData(), 0, 0, 0, GDT_Unknown, nullptr));
    OGRSpatialReference system;
    if (epsg > 0)
        system.importFromEPSG(epsg);
    else if (epsg < 0)
        system.importFromProj4("+proj=laea +lat_0=47.7 +lon_0=-3.3 +datum=WGS84 +units=m");
    vector->CreateLayer("points", epsg == 0 ? nullptr : &system, wkbPoint);
}

} // namespace

class TestSitePanels : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void initTestCase() { GDALAllRegister(); }
    void init() { vlt::platform::wizardSettings()->clear(); }

    void startsWithTheValuesOfAFirstRun()
    {
        VltSiteProperties panel(Installation, u"en"_s);
        QSignalSpy changes(&panel, &VltSiteProperties::parameterChanged);

        panel.loadSettings(u"AddSitePage"_s);

        const auto values = panel.representation();
        QCOMPARE(values.sectorHeight, 20);
        QCOMPARE(values.sectorRadius, 200);
        QCOMPARE(values.sectorSpacing, 2);
        QCOMPARE(values.pylonWidth, 2.5);
        QCOMPARE(QList<int>({values.colorSet, values.symbolicDistance, values.pylonType,
                             values.realisticDistance, values.transparency, values.antennaSize}),
                 QList<int>({0, 10000, 0, 1000, 0, 100}));
        QCOMPARE(changes.count(), 0);
    }

    void remembersEveryValueUnderItsKey_data()
    {
        QTest::addColumn<QString>("widget");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");

        QTest::newRow("height") << u"m_pwSbSectorHeight"_s << u"SectorHeight"_s << QVariant(12.5);
        QTest::newRow("radius") << u"m_pwSbSectorRadius"_s << u"SectorRadius"_s << QVariant(199.9);
        QTest::newRow("spacing") << u"m_pwSbSectorSpacing"_s << u"SectorSpacing"_s << QVariant(0.0);
        QTest::newRow("colours") << u"m_pwCbSectorColors"_s << u"ColorMenuEntry"_s << QVariant(2);
        QTest::newRow("symbolic") << u"m_pwSbSymbolicDistance"_s << u"SymbolicDistance"_s
                                  << QVariant(1000000000);
        QTest::newRow("pylon") << u"m_pwCbPylonType"_s << u"PylonMenuEntry"_s << QVariant(3);
        QTest::newRow("realistic")
            << u"m_pwSbRealisticDistance"_s << u"RealisticDistance"_s << QVariant(700);
        QTest::newRow("transparency")
            << u"m_pwSlTransparency"_s << u"GlobalTransparency"_s << QVariant(40);
        QTest::newRow("width") << u"m_pwSbPylonWidth"_s << u"PylonWidth"_s << QVariant(0.1);
        QTest::newRow("antenna") << u"m_pwSbAntennaSize"_s << u"AntennaSize"_s << QVariant(300);
    }

    void remembersEveryValueUnderItsKey()
    {
        QFETCH(QString, widget);
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        const QString settingsKey = u"AddSitePage/"_s + key;
        vlt::platform::wizardSettings()->setValue(settingsKey, value);
        VltSiteProperties panel(Installation, u"fr"_s);
        panel.loadSettings(u"AddSitePage"_s);
        const char *property =
            panel.findChild<QComboBox *>(widget) != nullptr ? "currentIndex" : "value";

        QCOMPARE(panel.findChild<QWidget *>(widget)->property(property).toDouble(),
                 value.toDouble());
        panel.saveSettings(u"Other"_s);
        QCOMPARE(vlt::platform::wizardSettings()->value(u"Other/"_s + key).toDouble(),
                 value.toDouble());
    }

    void choosesNothingForAnIndexBeyondTheCatalogue()
    {
        vlt::platform::wizardSettings()->setValue(u"P/PylonMenuEntry"_s, 99);
        VltSiteProperties panel(Installation, u"en"_s);

        panel.loadSettings(u"P"_s);

        QCOMPARE(panel.representation().pylonType, -1);
    }

    void announcesEveryChangeOnce()
    {
        VltSiteProperties panel(Installation, u"en"_s);
        QSignalSpy changes(&panel, &VltSiteProperties::parameterChanged);

        panel.findChild<QSlider *>(u"m_pwSlTransparency"_s)->setValue(10);
        panel.findChild<QDoubleSpinBox *>(u"m_pwSbPylonWidth"_s)->stepUp();
        panel.findChild<QSpinBox *>(u"m_pwSbAntennaSize"_s)->stepDown();
        auto *colors = panel.findChild<QComboBox *>(u"m_pwCbSectorColors"_s);
        QTest::keyClick(colors, Qt::Key_Down);

        QCOMPARE(changes.count(), 4);
        QCOMPARE(panel.representation().colorSet, 1);
    }

    void handsOutSystemsAsLayersCarryThem_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("taken");

        QTest::newRow("number") << u"4326"_s << u"4326"_s;
        QTest::newRow("authority") << u"EPSG:2154"_s << u"2154"_s;
        QTest::newRow("other authority") << u"ESRI:102100"_s << u"ESRI:102100"_s;
        QTest::newRow("none") << QString() << QString();
    }

    void handsOutSystemsAsLayersCarryThem()
    {
        QFETCH(QString, given);
        VltSrsSettings panel(u"site"_s);
        QSignalSpy changes(&panel, &VltSrsSettings::parameterChanged);

        panel.setSourceSrs(given);
        panel.setTargetSrs(given);

        QTEST(panel.sourceSrs(), "taken");
        QTEST(panel.targetSrs(), "taken");
        QCOMPARE(changes.count(), 0);
    }

    void remembersTheTargetSystem_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("target");

        QTest::newRow("listed") << u"EPSG:2154"_s << u"2154"_s;
        QTest::newRow("not listed") << u"EPSG:32198"_s << u"32198"_s;
        QTest::newRow("own definition")
            << u"+proj=utm +zone=30 +datum=WGS84"_s << u"+proj=utm +zone=30 +datum=WGS84"_s;
    }

    void remembersTheTargetSystem()
    {
        QFETCH(QString, stored);
        {
            // one of the user's own systems shows its alias only
            const auto builder = vlt::platform::builderSettings();
            builder->clear();
            builder->setValue(u"INSTALL_DIR"_s, Installation);
            builder->setValue(u"LastUsedSrsList/1_CODE"_s, u"EPSG:3857"_s);
            builder->setValue(u"LastUsedSrsList/1_ALIAS"_s, u"Web"_s);
            builder->setValue(u"LastUsedSrsList/2_CODE"_s, u"+proj=utm +zone=30 +datum=WGS84"_s);
            builder->setValue(u"LastUsedSrsList/2_ALIAS"_s, u"Mine"_s);
        }
        vlt::platform::wizardSettings()->setValue(u"P/TargetSrs"_s, stored);
        VltSrsSettings panel(u"site"_s);

        panel.loadSettings(u"P"_s);

        QTEST(panel.targetSrs(), "target");
        panel.saveSettings(u"Q"_s);
        QCOMPARE(vlt::platform::wizardSettings()->value(u"Q/TargetSrs"_s).toString(), stored);
    }

    void readsTheTargetSystemFromADataset_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("epsg");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("warning");

        const QString raster =
            u"This raster dataset doesn't contain any valid coordinate system information"_s;
        const QString vector =
            u"This vector dataset doesn't contain any valid coordinate system information"_s;
        QTest::newRow("raster") << u"a.tif"_s << 32630 << u"32630"_s << QString();
        QTest::newRow("raster without") << u"b.tif"_s << 0 << QString() << raster;
        QTest::newRow("vector") << u"c.shp"_s << 27572 << u"27572"_s << QString();
        QTest::newRow("vector without") << u"d.shp"_s << 0 << QString() << vector;
        QTest::newRow("nameless system") << u"e.shp"_s << -1 << QString() << vector;
        QTest::newRow("no dataset") << u"f.txt"_s << 0 << QString() << vector;
    }

    void readsTheTargetSystemFromADataset()
    {
        QFETCH(QString, file);
        QFETCH(int, epsg);
        QFETCH(QString, target);
        QFETCH(QString, warning);
        const QString path = m_dir.filePath(file);
        if (file.endsWith(u".tif"_s))
            makeRaster(path, epsg);
        else if (file.endsWith(u".shp"_s))
            makeVector(path, epsg);
        else
            QFile(path).open(QIODevice::WriteOnly);
        VltSrsSettings panel(u"site"_s);
        panel.setTargetSrs(u"4171"_s);
        QSignalSpy changes(&panel, &VltSrsSettings::parameterChanged);
        AnsweredBoxes boxes;
        FileDialogAnswer dialog(path);

        panel.getTargetEpsgCodeFromDataSource();

        QCOMPARE(dialog.caption, u"Select a geodataset (raster or vector)"_s);
        QCOMPARE(dialog.filters, QStringList{u"All files (*.*)"_s});
        QCOMPARE(panel.targetSrs(), target.isEmpty() ? u"4171"_s : target);
        QCOMPARE(changes.count(), target.isEmpty() ? 0 : 1);
        QCOMPARE(boxes.seen.size(), warning.isEmpty() ? 0 : 1);
        if (!boxes.seen.isEmpty()) {
            QCOMPARE(boxes.seen.constFirst().icon, QMessageBox::Warning);
            QCOMPARE(boxes.seen.constFirst().title, u"Warning"_s);
            QCOMPARE(boxes.seen.constFirst().text, warning);
        }
    }
};

QTEST_MAIN(TestSitePanels)
#include "tst_SitePanels.moc"
