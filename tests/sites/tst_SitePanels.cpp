#include "gui/AnsweredBoxes.h"
#include "gui/FileDialogAnswer.h"
#include "platform/Settings.h"
#include "sites/ui/VltSiteProperties.h"
#include "support/Cases.h"
#include "support/Files.h"
#include "tables/ui/VltSrsSettings.h"

#include <QComboBox>
#include <QPushButton>
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

/// @param srs  empty for a raster (.tif) or vector dataset without a system
void makeDataset(const QString &path, const QByteArray &srs)
{
    const bool isRaster = path.endsWith(u".tif"_s);
    const int size = isRaster ? 2 : 0;
    GDALDriver *driver =
        GetGDALDriverManager()->GetDriverByName(isRaster ? "GTiff" : "ESRI Shapefile");
    const GDALDatasetUniquePtr dataset(driver->Create(QFile::encodeName(path).constData(), size,
                                                      size, isRaster ? 1 : 0, GDT_Byte, nullptr));
    OGRSpatialReference system;
    const bool hasSystem = system.SetFromUserInput(srs.constData()) == OGRERR_NONE;
    if (!isRaster)
        dataset->CreateLayer("points", hasSystem ? &system : nullptr, wkbPoint);
    else if (hasSystem)
        dataset->SetSpatialRef(&system);
}

} // namespace

class tst_SitePanels : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void initTestCase() { GDALAllRegister(); }
    void init() { vlt::platform::wizardSettings()->clear(); }

    void remembersEveryValueUnderItsKey_data()
    {
        const Cases<QString, double, double> row({"widget", "firstRun", "remembered"});
        row("SectorHeight", "m_pwSbSectorHeight", 20, 12.5);
        row("SectorRadius", "m_pwSbSectorRadius", 200, 199.9);
        row("SectorSpacing", "m_pwSbSectorSpacing", 2, 0);
        row("ColorMenuEntry", "m_pwCbSectorColors", 0, 2);
        row("SymbolicDistance", "m_pwSbSymbolicDistance", 10000, 1000000000);
        row("PylonMenuEntry", "m_pwCbPylonType", 0, 3);
        row("RealisticDistance", "m_pwSbRealisticDistance", 1000, 700);
        row("GlobalTransparency", "m_pwSlTransparency", 0, 40);
        row("PylonWidth", "m_pwSbPylonWidth", 2.5, 0.1);
        row("AntennaSize", "m_pwSbAntennaSize", 100, 300);
    }

    void remembersEveryValueUnderItsKey()
    {
        QFETCH(QString, widget);
        QFETCH(double, remembered);
        const QString key = QString::fromLatin1(QTest::currentDataTag());
        VltSiteProperties panel(Installation, u"fr"_s);
        const QSignalSpy changes(&panel, &VltSiteProperties::parameterChanged);
        const auto shown = [&panel, &widget] {
            const auto *input = panel.findChild<QWidget *>(widget);
            const bool isList = qobject_cast<const QComboBox *>(input) != nullptr;
            return input->property(isList ? "currentIndex" : "value").toDouble();
        };

        panel.loadSettings(u"AddSitePage"_s);
        QTEST(shown(), "firstRun");
        vlt::platform::wizardSettings()->setValue(u"AddSitePage/"_s + key, remembered);
        panel.loadSettings(u"AddSitePage"_s);
        QCOMPARE(shown(), remembered);
        QCOMPARE(changes.count(), 0);
        panel.saveSettings(u"Other"_s);
        QCOMPARE(vlt::platform::wizardSettings()->value(u"Other/"_s + key).toDouble(), remembered);
    }

    void takesTheFirstRunsValueForOneThatIsNone_data()
    {
        const Cases<QString> row({"value"});
        row("no number", "abc");
        row("not a number", "nan");
        row("infinite", "-inf");
        row("beyond every number", "1e400");
        row("above the range", "1e12");
        row("below the range", "-7");
    }

    void takesTheFirstRunsValueForOneThatIsNone()
    {
        QFETCH(QString, value);
        for (const QString &key :
             {u"SectorHeight"_s, u"SymbolicDistance"_s, u"PylonMenuEntry"_s, u"ColorMenuEntry"_s})
            vlt::platform::wizardSettings()->setValue(u"P/"_s + key, value);
        VltSiteProperties panel(Installation, u"en"_s);

        panel.loadSettings(u"P"_s);

        const vlt::sites::SiteRepresentation shown = panel.representation();
        QCOMPARE(shown.sectorHeightM, 20.0);
        QCOMPARE(shown.symbolicDistanceM, 10000);
        QCOMPARE(shown.pylonType, 0);
        QCOMPARE(shown.colorSet, 0);
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

    void remembersTheTargetSystem_data()
    {
        const Cases<QString> row({"stored"});
        for (const char *stored : {"EPSG:2154", "2154", "EPSG:32198", "32198", "ESRI:102100",
                                   "+proj=utm +zone=30 +datum=WGS84"})
            row(stored, stored);
    }

    void remembersTheTargetSystem()
    {
        QFETCH(QString, stored);
        // A user-defined system is shown only with its alias.
        vlt::platform::builderSettings()->setValue(u"LastUsedSrsList/1_CODE"_s,
                                                   u"+proj=utm +zone=30 +datum=WGS84"_s);
        vlt::platform::builderSettings()->setValue(u"LastUsedSrsList/1_ALIAS"_s, u"Mine"_s);
        vlt::platform::wizardSettings()->setValue(u"P/TargetSrs"_s, stored);
        VltSrsSettings panel(vlt::contract::TableKind::Sites);
        const QSignalSpy changes(&panel, &VltSrsSettings::parameterChanged);

        panel.loadSettings(u"P"_s);
        panel.setSourceSrs(stored);

        QCOMPARE(panel.targetSrs(), stored);
        QCOMPARE(panel.sourceSrs(), stored);
        QCOMPARE(changes.count(), 0);
        panel.saveSettings(u"Q"_s);
        QCOMPARE(vlt::platform::wizardSettings()->value(u"Q/TargetSrs"_s).toString(), stored);
    }

    /// Rows of other systems are before it, and a user-defined system does not show its code.
    void takesTheVerySystemThatIsSet_data()
    {
        const Cases<QString> row({"set"});
        row("behind an alias", "4326");
        row("its digits in another row", "EPSG:2770");
    }

    void takesTheVerySystemThatIsSet()
    {
        QFETCH(QString, set);
        const QString listed = u"LastUsedSrsList/%1_%2"_s;
        int number = 0;
        for (const auto &[code, alias, isOwn] :
             {std::tuple(u"EPSG:27700"_s, u"Old BNG"_s, false),
              std::tuple(u"EPSG:4326"_s, u"A"_s, true),
              std::tuple(u"EPSG:2770"_s, u"California 6"_s, false)}) {
            const auto settings = vlt::platform::builderSettings();
            settings->setValue(listed.arg(++number).arg(u"CODE"_s), code);
            settings->setValue(listed.arg(number).arg(u"ALIAS"_s), alias);
            settings->setValue(listed.arg(number).arg(u"IS_USER_DEF"_s), isOwn);
        }
        VltSrsSettings panel(vlt::contract::TableKind::Sites);
        auto *combo = panel.findChild<QComboBox *>(u"m_pCBSrs"_s);

        panel.setSourceSrs(set);
        QCOMPARE(panel.sourceSrs(), set);
        QCOMPARE(combo->currentIndex(), set == u"4326" ? 1 : 2);

        combo->setCurrentIndex(0);
        Q_EMIT combo->activated(0);
        QCOMPARE(panel.sourceSrs(), u"EPSG:27700"_s);
        panel.findChild<QPushButton *>(u"m_pPBResetSrs"_s)->click();
        QCOMPARE(panel.sourceSrs(), set);
        vlt::platform::builderSettings()->clear();
    }

    void readsTheTargetSystemFromADataset_data()
    {
        // target: empty: no change, with a warning
        const Cases<QByteArray, QString> row({"srs", "target"});
        row("raster.tif", "EPSG:32630", "EPSG:32630");
        row("raster_without.tif", {}, {});
        row("vector.shp", "EPSG:27572", "EPSG:27572");
        row("vector_without.shp", {}, {});
        // A system on the ellipsoid of WGS 84, which must not be taken for WGS 84.
        row("nameless.shp", "+proj=laea +lat_0=47 +datum=WGS84", {});
        row("no_dataset.txt", {}, {});
    }

    void readsTheTargetSystemFromADataset()
    {
        QFETCH(QByteArray, srs);
        QFETCH(QString, target);
        const QString path = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()));
        if (path.endsWith(u".txt"_s))
            writeFile(path);
        else
            makeDataset(path, srs);
        VltSrsSettings panel(vlt::contract::TableKind::Sites);
        panel.setTargetSrs(u"4171"_s);
        QSignalSpy changes(&panel, &VltSrsSettings::parameterChanged);
        AnsweredBoxes boxes;
        FileDialogAnswer dialog(path);

        panel.getTargetEpsgCodeFromDataSource();

        QCOMPARE(dialog.caption, u"Select a geodataset (raster or vector)"_s);
        QCOMPARE(dialog.filters, QStringList{u"All files (*.*)"_s});
        QCOMPARE(panel.targetSrs(), target.isEmpty() ? u"4171"_s : target);
        QCOMPARE(changes.count(), target.isEmpty() ? 0 : 1);
        const QString text =
            u"This %1 dataset doesn't contain any valid coordinate system information"_s.arg(
                path.endsWith(u".tif"_s) ? u"raster"_s : u"vector"_s);
        compareBoxes(boxes.seen, QMessageBox::Warning, u"Warning"_s,
                     target.isEmpty() ? text : QString());
    }
};

QTEST_MAIN(tst_SitePanels)
#include "tst_SitePanels.moc"
