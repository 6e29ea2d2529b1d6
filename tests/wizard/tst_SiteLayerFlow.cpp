#include "gui/AnsweredBoxes.h"
#include "gui/DropOnWidget.h"
#include "gui/FileDialogAnswer.h"
#include "preview/W_simpleOSGViewer.h"
#include "support/Cases.h"
#include "support/Files.h"
#include "support/Patience.h"
#include "wizard/LayerFlow.h"
#include "wizard/base/TemporaryLayerFile.h"

#include <QDir>
#include <QSettings>
#include <QSlider>

using namespace Qt::StringLiterals;
using namespace layerflow;

namespace {

const QString NoSites = u"No sites file defined.\nSelect the sites file to display."_s;

} // namespace

class tst_SiteLayerFlow : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(makeInstallation());
        QVERIFY(qputenv("XDG_DATA_HOME", QFile::encodeName(m_dir.filePath(u"data"_s))));
    }
    void init() { forgetSettings(); }

    void makesTheLayerOfTheCommandLine_data()
    {
        const Cases<QString, int> row({"table", "transparency"});
        row("generic", "sites.csv", 0);
        row("atoll, translucent", "sites_atoll.csv", 40);
        row("asset", "sites_asset.xlsx", 0);
        row("mentum", "sites_mentum.xls", 0);
        row("a row for each cell", "sites_cells.csv", 0);
        row("two sheets", "sites_joined.xlsx", 0);
    }

    void makesTheLayerOfTheCommandLine()
    {
        QFETCH(QString, table);
        QFETCH(int, transparency);
        const QString path = Samples + u'/' + table;
        WizardOnSitePage flow;
        QVERIFY(flow.icon);
        QCOMPARE(flow.description(), NoSites);
        QVERIFY(!flow.icon->isEnabled());
        QVERIFY(!flow.wizard.currentPage()->isComplete());
        FileDialogAnswer dialog(path);

        flow.widget<QAbstractButton>(u"m_pwPbSite"_s)->click();
        flow.widget<QSlider>(u"m_pwSlTransparency"_s)->setValue(transparency);

        QCOMPARE(dialog.caption, u"Select the site file to use"_s);
        QCOMPARE(dialog.filters, QStringList{u"Site files (*.xls *.xlsx *.xml *.csv)"_s});
        QVERIFY(flow.icon->isEnabled());
        QCOMPARE(flow.icon->layerFile(), vlt::wizard::temporaryLayerFileName(u"sites"_s));
        const QByteArray layer = readFile(flow.icon->layerFile());
        QCOMPARE(layer, layerOfCommandLine(u"site"_s, path,
                                           {u"--transparency"_s, QString::number(transparency)}));
        QCOMPARE(vlt::platform::wizardSettings()->value(u"LastUsedDir"_s), Samples);

        const VltTelecomLayersWizard unshown(installation(), u"en"_s);
        QWizardPage *restored = unshown.page(2);
        QVERIFY(restored->isComplete());
        QVERIFY(restored->findChild<QLabel *>(u"m_pwLblFileInfo"_s)->text() != NoSites);
        QVERIFY(!restored->findChild<DraggableIcon *>()->isEnabled());
        QVERIFY(!restored->findChild<W_simpleOSGViewer *>()->getSceneData());

        WizardOnSitePage nextTime;
        QVERIFY(nextTime.icon->isEnabled());
        QCOMPARE(readFile(nextTime.icon->layerFile()), layer);
    }

    void saysNothingOfARememberedTableThatIsGone()
    {
        vlt::platform::wizardSettings()->setValue(u"AddSitePage/SiteFile"_s, u"/nowhere/s.csv"_s);
        const AnsweredBoxes boxes;

        WizardOnSitePage flow;

        QCOMPARE(flow.widget<QLineEdit>(u"m_pwLeSite"_s)->text(), u"/nowhere/s.csv"_s);
        QVERIFY(!flow.icon->isEnabled());
        QCOMPARE(flow.description(), NoSites);
        QCOMPARE(boxes.seen.size(), 0);
    }

    void refusesAFileAndForgetsTheLayerBefore_data()
    {
        const Cases<QByteArray, QString> row({"bytes", "text"});
        row("no table", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16),
            "This file can't be open as a site file");
        row("header only", "Site ID;X;Y\n", "This site file is empty");
    }

    void refusesAFileAndForgetsTheLayerBefore()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        const QString path = m_dir.filePath(u"refused.csv"_s);
        writeFile(path, bytes);
        WizardOnSitePage flow;
        dropFiles(flow.page, {Samples + u"/sites.csv"_s});
        QVERIFY(flow.icon->isEnabled());
        AnsweredBoxes boxes;

        auto *edit = flow.widget<QLineEdit>(u"m_pwLeSite"_s);
        edit->setText(path);
        QTest::keyClick(edit, Qt::Key_Return);

        compareBoxes(boxes.seen, QMessageBox::Critical, u"Error"_s, text);
        QVERIFY(!flow.icon->isEnabled());
        QVERIFY(!flow.wizard.currentPage()->isComplete());
        QCOMPARE(flow.description(), NoSites);
    }

    void forgetsTheLayerIfThePathIsChangedToNoFile()
    {
        WizardOnSitePage flow;
        dropFiles(flow.page, {Samples + u"/sites.csv"_s});
        QVERIFY(flow.icon->isEnabled());
        const AnsweredBoxes boxes;

        auto *edit = flow.widget<QLineEdit>(u"m_pwLeSite"_s);
        edit->setText(u"/nowhere/s.csv"_s);
        Q_EMIT edit->editingFinished();
        flow.widget<QSlider>(u"m_pwSlTransparency"_s)->setValue(40);

        QVERIFY(!flow.icon->isEnabled());
        QCOMPARE(flow.widget<QLabel>(u"m_pwLblReason"_s)->text(),
                 u"s.csv: the file does not exist"_s);
        QCOMPARE(boxes.seen.size(), 0);
        QCOMPARE(vlt::platform::wizardSettings()->value(u"AddSitePage/SiteFile"_s),
                 Samples + u"/sites.csv"_s);
    }

    void reportsWhatKeepsALayerFromBeingWritten()
    {
        const QTemporaryDir own;
        copyFolder(installation(), own.path());
        const QString pylons = own.path() + u"/addons/telecom/pylons/"_s;
        const QString layer = vlt::wizard::temporaryLayerFileName(u"sites"_s);
        WizardOnSitePage flow(own.path());
        const auto reportedWhenDropped = [&flow] {
            AnsweredBoxes boxes;
            dropFiles(flow.page, {Samples + u"/sites.csv"_s});
            return boxes.seen.size() == 1
                       ? boxes.seen.constFirst().title + u'|' + boxes.seen.constFirst().text
                       : QString();
        };

        QFile::remove(layer);
        QVERIFY(QDir().mkdir(layer));
        QCOMPARE(reportedWhenDropped(),
                 u"Error|Can't create the layer file\n"_s + QDir::cleanPath(layer));
        QVERIFY(!flow.icon->isEnabled());
        QVERIFY(QDir().rmdir(layer));

        QVERIFY(QFile::remove(pylons + u"sites_infos_en.html"_s));
        for (int i = 0; i < 2; ++i) { // every layer without its page has a message
            QCOMPARE(reportedWhenDropped(), u"Error !!!|A configuration file is missing"_s);
            QVERIFY(flow.icon->isEnabled());
        }

        const QString layerTemplate = pylons + u"template_sites.lay"_s;
        QVERIFY(QFile::remove(layerTemplate));
        QCOMPARE(reportedWhenDropped(),
                 u"Error|A configuration file is missing\n"_s + layerTemplate);
        QVERIFY(!flow.icon->isEnabled());
    }

    void reportsOfAPylonThatCannotBeShown_data()
    {
        const Cases<QByteArray, bool> row({"catalogue", "hasLayer"});
        row("type that cannot be drawn here",
            "<pylons><pylon type=\"of another builder\"/></pylons>", true);
        row("nothing to choose from", "<pylons/>", false);
    }

    void reportsOfAPylonThatCannotBeShown()
    {
        QFETCH(QByteArray, catalogue);
        QFETCH(bool, hasLayer);
        const QTemporaryDir own;
        copyFolder(installation(), own.path());
        const QString path = own.path() + u"/addons/telecom/pylons/list.xml"_s;
        writeFile(path, catalogue);
        WizardOnSitePage flow(own.path());
        AnsweredBoxes boxes;

        dropFiles(flow.page, {Samples + u"/sites.csv"_s});

        QStringList reported;
        for (const SeenBox &box : std::as_const(boxes.seen))
            reported << box.title + u'|' + box.text;
        QCOMPARE(reported, QStringList{u"Error|The pylon url didn't return a valid node !"_s});
        QCOMPARE(flow.icon->isEnabled(), hasLayer);
        const auto *reason = flow.widget<QLabel>(u"m_pwLblReason"_s);
        QCOMPARE(reason->isVisible(), !hasLayer);
        QCOMPARE(reason->text(),
                 hasLayer ? QString() : u"A configuration file is missing\n"_s + path);
    }

    void showsThePylonOrTheSitesOfTheLayer()
    {
        WizardOnSitePage flow;
        auto *viewer = flow.widget<W_simpleOSGViewer>(u"m_pwViewer"_s);
        auto *own = flow.widget<QAbstractButton>(u"m_pwPbOwnSites"_s);
        auto *precise = flow.widget<QAbstractButton>(u"m_pwPbPrecise"_s);
        const auto *caption = flow.widget<QLabel>(u"m_pwCaption"_s);
        const auto shows = [viewer](double leastRadiusM) {
            return viewer->getSceneData() &&
                   viewer->getSceneData()->getBound().radius() > leastRadiusM;
        };
        const auto waitForRead = [&] { // of a layer that is written again
            const osg::ref_ptr<osg::Node> former = viewer->getSceneData();
            QTRY_VERIFY_WITH_TIMEOUT(viewer->getSceneData() != former, PatienceMs);
        };
        QVERIFY(viewer->getSceneData() && !shows(1000)); // the pylon, without a table
        QCOMPARE(caption->text(), u"Example"_s);

        dropFiles(flow.page, {Samples + u"/sites.csv"_s});
        QTRY_VERIFY_WITH_TIMEOUT(shows(1000), PatienceMs); // sites are kilometres apart
        QVERIFY(own->isChecked() && caption->isHidden());
        viewer->setPose({{1, 2, 300}, {1, 2, 0}, {0, 1, 0}});
        flow.widget<QSlider>(u"m_pwSlTransparency"_s)->setValue(40);
        waitForRead();
        const osg::Node *sites = viewer->getSceneData();
        QVERIFY((viewer->pose().eye - osg::Vec3d(1, 2, 300)).length() < 1);

        precise->click();
        QVERIFY(!shows(1000) && precise->isChecked());
        QCOMPARE(caption->text(), u"Example"_s);
        QVERIFY(qAbs((viewer->pose().eye - osg::Vec3d(0, 0, 13)).length() - 50) < 0.01);
        own->click();
        QCOMPARE(viewer->getSceneData(), sites);
        QVERIFY((viewer->pose().eye - osg::Vec3d(1, 2, 300)).length() < 1);

        precise->click();
        flow.widget<QSlider>(u"m_pwSlTransparency"_s)->setValue(60);
        QVERIFY(!shows(1000)); // the user's choice
        own->click();
        waitForRead();
        dropFiles(flow.page, {Samples + u"/sites_cells.csv"_s}); // shown as a whole
        waitForRead();
        QVERIFY((viewer->pose().eye - osg::Vec3d(1, 2, 300)).length() > 100);
    }

    void makesNoLayerForASystemThatPlacesNothing_data()
    {
        const Cases<QByteArray, QString> row({"system", "reason"});
        row("unknown", "Lambert II of nowhere",
            "No layer can be made: the coordinate system \"Lambert II of "
            "nowhere\" is not known");
        row("heights", "EPSG:5720",
            "This system has heights only: it cannot define a position on a "
            "map\nEPSG:5720");
    }

    void makesNoLayerForASystemThatPlacesNothing()
    {
        QFETCH(QByteArray, system);
        const QString project = writeFile(m_dir.filePath(u"old.gvw"_s),
                                          "DEM Layers\nReference Projection : " + system + '\n');
        WizardOnPage flow(u"m_pwClAddSite"_s, installation(), project);
        const AnsweredBoxes boxes;

        dropFiles(flow.page, {Samples + u"/sites.csv"_s});

        QVERIFY(!flow.icon->isEnabled());
        QTEST(flow.widget<QLabel>(u"m_pwLblReason"_s)->text(), "reason");
        QVERIFY(boxes.seen.isEmpty());
        QVERIFY(flow.wizard.currentPage()->isComplete());
    }

    void opensTheFileThatItWasStartedWith_data()
    {
        // line: the line edit that shows the file
        const Cases<QString, bool, int, QString, QString> row(
            {"file", "hasProject", "page", "line", "box"});
        const QString none;
        row("sites", "sites.xlsx", true, 2, "m_pwLeSite", none);
        row("links", "links.csv", true, 3, "m_pwLeLink", none);
        row("links, no project known", "links.csv", false, 1, "m_pwLeLink", none);
        row("footprints", "vectors/buildings.shp", true, 4, "m_pwLeBuildings", none);
        row("raster", "coverage/signal_level_dBm.tif", true, 4, "m_pwLeDtm", none);
        row("project", "city.gvw", false, 0, "m_pwLeProjectName", none);
        row("layer", "made.lay", true, 0, none,
            "This layer is finished: drag its file into Veltaro Builder");
        row("anything else", "textures", true, 0, none,
            "This file is neither a project nor a table of sites or "
            "links, footprints of buildings or a raster");
        row("none", "gone.csv", true, 0, none, "This file does not exist");
    }

    void opensTheFileThatItWasStartedWith()
    {
        QFETCH(QString, file);
        QFETCH(bool, hasProject);
        QFETCH(int, page);
        QFETCH(QString, line);
        QFETCH(QString, box);
        const QTemporaryDir own;
        copyFolder(Samples, own.path());
        QVERIFY(QFile::copy(Samples + u"/sites.csv"_s, own.filePath(u"made.lay"_s)));
        if (hasProject)
            vlt::platform::builderSettings()->setValue(u"RECENT_PROJECT_1"_s,
                                                       own.filePath(u"city.gvw"_s));
        VltTelecomLayersWizard wizard(installation(), u"en"_s);
        wizard.show();
        AnsweredBoxes boxes;

        wizard.openFile(u"file://"_s + own.filePath(file));

        QTRY_COMPARE_WITH_TIMEOUT(wizard.currentId(), page, PatienceMs);
        QCOMPARE(boxes.seen.size(), box.isEmpty() ? 0 : 1);
        if (!box.isEmpty())
            QCOMPARE(boxes.seen.constFirst().text, box + u'\n' + own.filePath(file));
        if (page == 1) { // the user first chooses a project
            wizard.findChild<QLineEdit *>(u"m_pwLeProjectName"_s)->setText(SampleProject);
            wizard.next();
        }
        if (!line.isEmpty())
            QTRY_COMPARE_WITH_TIMEOUT(wizard.findChild<QLineEdit *>(line)->text(),
                                      own.filePath(file), PatienceMs);
    }

    void asksBeforeItFinishes()
    {
        WizardOnSitePage flow;
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            AnsweredBoxes boxes(answer);

            flow.wizard.accept();

            QCOMPARE(boxes.seen.size(), 1);
            QCOMPARE(boxes.seen.constFirst().title, QString());
            QCOMPARE(boxes.seen.constFirst().text, u"Voulez-vous quitter l'application ?"_s);
            QCOMPARE(boxes.seen.constFirst().buttons, QMessageBox::Yes | QMessageBox::No);
            QCOMPARE(flow.wizard.isVisible(), answer == QMessageBox::No);
        }
    }
};

QTEST_MAIN(tst_SiteLayerFlow)
#include "tst_SiteLayerFlow.moc"
