#include "app/GeodataLibrary.h"
#include "gui/AnsweredBoxes.h"
#include "gui/DropOnWidget.h"
#include "gui/FileDialogAnswer.h"
#include "platform/Settings.h"
#include "sites/ui/VltAddSitePage.h"
#include "wizard/base/DraggableIcon.h"
#include "wizard/base/TemporaryLayerFile.h"
#include "wizard/frame/VltTelecomLayersWizard.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QSettings>
#include <QSlider>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

const QTemporaryDir InstallationDir;
const QString Installation = InstallationDir.path();
const QString Samples = QStringLiteral(VLT_SAMPLES);
const QString NoSites = u"No sites file defined.\nSelect the sites file to display."_s;

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

/// The layer that the command line makes of a table of the sample project.
QByteArray layerOfCommandLine(const QString &table, const QStringList &options)
{
    const QTemporaryDir dir;
    const QString layer = dir.filePath(u"out.lay"_s);
    QProcess process;
    process.start(QStringLiteral(VLT_PROGRAM),
                  QStringList{u"site"_s, table, u"-o"_s, layer, u"--install"_s, Installation,
                              u"--project"_s, Samples + u"/city.gvw"_s, u"--language"_s, u"en"_s} +
                      options);
    process.waitForFinished();
    return contents(layer);
}

void copyTree(const QString &from, const QString &to)
{
    QDir().mkpath(to);
    for (const QFileInfo &entry :
         QDir(from).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString target = to + u'/' + entry.fileName();
        entry.isDir() ? copyTree(entry.filePath(), target)
                      : void(QFile::copy(entry.filePath(), target));
    }
}

/// The real wizard, led to the add-site page of the sample project.
class WizardOnSitePage
{
public:
    explicit WizardOnSitePage(const QString &installDir = Installation)
        : wizard(installDir, u"en"_s)
    {
        wizard.show();
        widget<QAbstractButton>(u"m_pwClAddSite"_s)->click();
        widget<QLineEdit>(u"m_pwLeProjectName"_s)->setText(Samples + u"/city.gvw"_s);
        wizard.button(QWizard::NextButton)->click();
        page = qobject_cast<VltAddSitePage *>(wizard.currentPage());
        if (page)
            icon = page->findChild<DraggableIcon *>();
    }

    template<typename Widget>
    Widget *widget(const QString &name)
    {
        return wizard.currentPage()->findChild<Widget *>(name);
    }

    QString description() { return widget<QLabel>(u"m_pwLblFileInfo"_s)->text(); }

    VltTelecomLayersWizard wizard;
    VltAddSitePage *page = nullptr;
    DraggableIcon *icon = nullptr;
};

} // namespace

class TestSiteLayerFlow : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void initTestCase()
    {
        copyTree(QStringLiteral(VLT_INSTALLATION), Installation);
        QVERIFY(QFile::link(QStringLiteral(VLT_DRIVERS), Installation + u"/driver"_s));
        vlt::app::registerGeodataDrivers();
    }

    void init()
    {
        vlt::platform::wizardSettings()->clear();
        vlt::platform::builderSettings()->clear();
        vlt::platform::builderSettings()->setValue(u"INSTALL_DIR"_s, Installation);
    }

    void makesTheLayerOfTheCommandLine_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<int>("transparency");

        QTest::newRow("generic") << u"sites.csv"_s << 0;
        QTest::newRow("atoll, translucent") << u"sites_atoll.csv"_s << 40;
        QTest::newRow("asset") << u"sites_asset.xlsx"_s << 0;
        QTest::newRow("mentum") << u"sites_mentum.xls"_s << 0;
    }

    void makesTheLayerOfTheCommandLine()
    {
        QFETCH(QString, table);
        QFETCH(int, transparency);
        const QString path = Samples + u'/' + table;
        WizardOnSitePage flow;
        QVERIFY(flow.page);
        QCOMPARE(flow.description(), NoSites);
        QVERIFY(!flow.icon->isEnabled());
        FileDialogAnswer dialog(path);

        flow.widget<QAbstractButton>(u"m_pwPbSite"_s)->click();
        flow.widget<QSlider>(u"m_pwSlTransparency"_s)->setValue(transparency);

        QCOMPARE(dialog.caption, u"Select the site file to use"_s);
        QCOMPARE(dialog.filters, QStringList{u"Site files (*.xls *.xlsx *.xml *.csv)"_s});
        QVERIFY(flow.icon->isEnabled());
        QCOMPARE(flow.icon->layerFile(), vlt::wizard::temporaryLayerFileName(u"sites"_s));
        QCOMPARE(contents(flow.icon->layerFile()),
                 layerOfCommandLine(path, {u"--transparency"_s, QString::number(transparency)}));
        const auto settings = vlt::platform::wizardSettings();
        QCOMPARE(settings->value(u"AddSitePage/SiteFile"_s).toString(), path);
        QCOMPARE(settings->value(u"LastUsedDir"_s).toString(), Samples);
        QCOMPARE(settings->value(u"AddSitePage/GlobalTransparency"_s).toInt(), transparency);
    }

    void opensTheRememberedTableQuietly_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<bool>("isLayer");

        QTest::newRow("there") << Samples + u"/sites.csv"_s << true;
        QTest::newRow("gone") << u"/nowhere/sites.csv"_s << false;
        QTest::newRow("fresh settings") << QString() << false;
    }

    void opensTheRememberedTableQuietly()
    {
        QFETCH(QString, table);
        QFETCH(bool, isLayer);
        vlt::platform::wizardSettings()->setValue(u"AddSitePage/SiteFile"_s, table);
        vlt::platform::wizardSettings()->setValue(u"LastUsedDir"_s, u"/kept"_s);
        AnsweredBoxes boxes;

        WizardOnSitePage flow;

        QCOMPARE(flow.widget<QLineEdit>(u"m_pwLeSite"_s)->text(), table);
        QCOMPARE(flow.icon->isEnabled(), isLayer);
        QCOMPARE(flow.description() == NoSites, !isLayer);
        QCOMPARE(boxes.seen.size(), 0);
        QCOMPARE(vlt::platform::wizardSettings()->value(u"LastUsedDir"_s).toString(),
                 isLayer ? Samples : u"/kept"_s);
    }

    void refusesAFileAndForgetsTheLayerBefore_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");

        const QString cannotOpen = u"This file can't be open as a site file"_s;
        QTest::newRow("no table") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << cannotOpen;
        QTest::newRow("one column") << QByteArray("Site\nA\nB\n") << cannotOpen;
        QTest::newRow("empty") << QByteArray() << u"This site file is empty"_s;
        QTest::newRow("header only") << QByteArray("Site ID;X;Y\n") << u"This site file is empty"_s;
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

        QCOMPARE(boxes.seen.size(), 1);
        QCOMPARE(boxes.seen.constFirst().icon, QMessageBox::Critical);
        QCOMPARE(boxes.seen.constFirst().title, u"Error"_s);
        QCOMPARE(boxes.seen.constFirst().text, text);
        QVERIFY(!flow.icon->isEnabled());
        QCOMPARE(flow.description(), NoSites);
        QVERIFY(flow.wizard.isVisible());
    }

    void tellsWhatKeepsALayerFromBeingWritten_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isLayer");

        const QString pylons = u"/addons/telecom/pylons/"_s;
        QTest::newRow("layer template")
            << pylons + u"template_sites.lay"_s << u"Error"_s
            << u"A configuration file is missing\n%1/addons/telecom/pylons/template_sites.lay"_s
            << false;
        QTest::newRow("page template") << pylons + u"sites_infos_en.html"_s << u"Error !!!"_s
                                       << u"A configuration file is missing"_s << true;
        QTest::newRow("folder in the layer's place")
            << QString() << u"Error"_s << u"Can't create the layer file\n%2"_s << false;
    }

    void tellsWhatKeepsALayerFromBeingWritten()
    {
        QFETCH(QString, missing);
        QFETCH(QString, text);
        const QTemporaryDir installation;
        copyTree(Installation, installation.path());
        WizardOnSitePage flow(installation.path());
        AnsweredBoxes boxes;
        const QString layer = vlt::wizard::temporaryLayerFileName(u"sites"_s);
        QFile::remove(layer);
        QVERIFY(missing.isEmpty() ? QDir().mkpath(layer)
                                  : QFile::remove(installation.path() + missing));

        dropFiles(flow.page, {Samples + u"/sites.csv"_s});

        QDir().rmdir(layer);
        QCOMPARE(boxes.seen.size(), 1);
        QTEST(boxes.seen.constFirst().title, "title");
        QCOMPARE(boxes.seen.constFirst().text,
                 text.replace(u"%1"_s, installation.path()).replace(u"%2"_s, layer));
        QTEST(flow.icon->isEnabled(), "isLayer");
    }

    void showsColumnsAndProblemsByRow()
    {
        WizardOnSitePage flow;

        dropFiles(flow.page, {Samples + u"/sites_with_problems.csv"_s});

        auto *table = flow.widget<QTableView>(u"m_pwTvProblems"_s);
        QTRY_COMPARE(table->model()->rowCount(), 3);
        const auto cell = [table](int column) {
            return table->model()->index(0, column).data().toString();
        };
        QCOMPARE(cell(0), u"5"_s);
        QCOMPARE(cell(1), u"Longitude"_s);
        QVERIFY(cell(2).contains(u"\u00e0 v\u00e9rifier"_s));
        QVERIFY(!table->isVisible());
        QTest::keyClick(flow.widget<QToolButton>(u"m_pwTbFold"_s), Qt::Key_Space);
        QVERIFY(table->isVisible());
    }

    void asksBeforeItFinishes_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<bool>("finishes");

        QTest::newRow("no") << QMessageBox::No << false;
        QTest::newRow("yes") << QMessageBox::Yes << true;
    }

    void asksBeforeItFinishes()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        WizardOnSitePage flow;
        AnsweredBoxes boxes(answer);

        flow.wizard.accept();

        QCOMPARE(boxes.seen.size(), 1);
        QCOMPARE(boxes.seen.constFirst().title, QString());
        QCOMPARE(boxes.seen.constFirst().text, u"Voulez-vous quitter l'application ?"_s);
        QCOMPARE(boxes.seen.constFirst().buttons, QMessageBox::Yes | QMessageBox::No);
        QTEST(!flow.wizard.isVisible(), "finishes");
    }
};

QTEST_MAIN(TestSiteLayerFlow)
#include "tst_SiteLayerFlow.moc"
