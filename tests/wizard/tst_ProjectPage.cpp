#include "gui/AnsweredBoxes.h"
#include "gui/DropOnWidget.h"
#include "gui/FileDialogAnswer.h"
#include "platform/Settings.h"
#include "support/Cases.h"
#include "support/Files.h"
#include "support/Patience.h"
#include "wizard/project/ui/VltSecondPage.h"

#include <QDateTime>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QWizard>

using namespace Qt::StringLiterals;

namespace {

/// A wizard with the project page, id 1, between two empty ones; open on the project page.
struct Host
{
    Host()
    {
        page = new VltSecondPage(&wizard, parameters, u"/nowhere"_s, u"en"_s);
        wizard.addPage(new QWizardPage(&wizard));
        wizard.addPage(page);
        wizard.addPage(new QWizardPage(&wizard));
        wizard.setOption(QWizard::NoDefaultButton);
        page->setNextId(2);
        page->selectFirstProject();
        wizard.restart();
        wizard.next();
        wizard.show();
    }

    template<typename Widget>
    Widget *child(const QString &name)
    {
        return page->findChild<Widget *>(name);
    }
    QListWidget *list() { return child<QListWidget>(u"m_pwLwRecentProjects"_s); }
    QLineEdit *path() { return child<QLineEdit>(u"m_pwLeProjectName"_s); }

    SharedParameters parameters;
    QWizard wizard;
    VltSecondPage *page = nullptr;
};

} // namespace

class tst_ProjectPage : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString file(const QString &name) const { return m_dir.filePath(name); }

    void remember(const QStringList &names) const
    {
        const auto settings = vlt::platform::builderSettings();
        for (int i = 0; i < names.size(); ++i)
            settings->setValue(u"RECENT_PROJECT_%1"_s.arg(i + 1), file(names.at(i)));
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QDateTime changed(QDate(2024, 3, 9), QTime(7, 5));
        for (const QString &name : {u"a.gvw"_s, u"b.v2.gvw"_s, u"c.gvw"_s, u"C.GVW"_s}) {
            QFile project(file(name));
            QVERIFY(project.open(QIODevice::ReadWrite));
            QVERIFY(project.setFileTime(changed, QFileDevice::FileModificationTime));
        }
        QVERIFY(QDir(m_dir.path()).mkdir(u"folder.gvw"_s));
    }

    void init()
    {
        vlt::platform::builderSettings()->clear();
        vlt::platform::wizardSettings()->clear();
        qunsetenv("VLT_CURRENT_PROJECT");
    }

    void offersRecentProjects_data()
    {
        const Cases<QString, QStringList, QStringList> row({"current", "remembered", "expected"});
        row("none", {}, {}, {});
        row("current first, once", "c.gvw", {u"b.v2.gvw"_s, u"a.gvw"_s, u"c.gvw"_s, u"a.gvw"_s},
            {u"c.gvw"_s, u"b.v2.gvw"_s, u"a.gvw"_s});
        row("missing files and folders skipped", "gone.gvw",
            {u"lost.gvw"_s, u"folder.gvw"_s, u"a.gvw"_s}, {u"a.gvw"_s});
        row("ten at most", {}, (QStringList(9, u"x"_s) << u"a.gvw"_s << u"c.gvw"_s), {u"a.gvw"_s});
    }

    void offersRecentProjects()
    {
        QFETCH(QString, current);
        QFETCH(QStringList, remembered);
        QFETCH(QStringList, expected);
        if (!current.isEmpty())
            qputenv("VLT_CURRENT_PROJECT", QFile::encodeName(file(current)));
        remember(remembered);
        for (QString &name : expected)
            name = file(name);

        Host host;

        QStringList offered;
        for (int i = 0; i < host.list()->count(); ++i)
            offered += host.list()->item(i)->toolTip();
        QCOMPARE(offered, expected);
        auto *none = host.child<QLabel>(u"m_pwLblNoRecentProjects"_s);
        QCOMPARE(none->isVisible(), expected.isEmpty());
        QCOMPARE(host.list()->isVisible(), !expected.isEmpty());
        QCOMPARE(host.path()->text(), expected.value(0));
        QCOMPARE(host.wizard.button(QWizard::NextButton)->isEnabled(), !expected.isEmpty());
    }

    void clickSelectsAndDoubleClickGoesOn()
    {
        remember({u"b.v2.gvw"_s, u"c.gvw"_s});
        Host host;
        QCOMPARE(host.list()->item(0)->text(), u"b\n09/03/2024\n07:05"_s);
        QVERIFY(QTest::qWaitForWindowExposed(&host.wizard, PatienceMs));
        const QPoint second = host.list()->visualItemRect(host.list()->item(1)).center();
        QTest::mouseClick(host.list()->viewport(), Qt::LeftButton, {}, second);
        QCOMPARE(host.path()->text(), file(u"c.gvw"_s));

        host.path()->setText(u"typed"_s);
        QVERIFY(host.list()->selectedItems().isEmpty());
        QTest::mouseClick(host.list()->viewport(), Qt::LeftButton, {}, second);
        QCOMPARE(host.path()->text(), file(u"c.gvw"_s));

        QTest::mouseDClick(host.list()->viewport(), Qt::LeftButton, {}, second);
        QCOMPARE(host.wizard.currentId(), 2);
        QCOMPARE(host.parameters.value(u"ProjectName"_s), file(u"c.gvw"_s));
    }

    void takesDroppedProjects()
    {
        Host host;
        const QMimeData data;
        QVERIFY(dragOver(host.page, data));
        QVERIFY(host.child<QLabel>(u"m_pwLbProjectName"_s)->font().underline());

        dropFiles(host.page, {file(u"a.lay"_s)});
        dropFiles(host.page, {file(u"C.GVW"_s)});
        QCOMPARE(host.path()->text(), QString());
        dropFiles(host.page, {file(u"b.v2.gvw"_s)});
        QCOMPARE(host.path()->text(), file(u"b.v2.gvw"_s));
        // The line edit would insert the file's URL as text.
        QVERIFY(!host.path()->acceptDrops());
    }

    void takesPastedPaths_data()
    {
        // pasted: %1 means the path
        const Cases<QString> row({"pasted"});
        row("address", "file://%1");
        row("blanks and quotes", " \"%1\"\n");
        row("home", "~/%1");
    }

    void takesPastedPaths()
    {
        QFETCH(QString, pasted);
        const QString path =
            writeFile(file(u"my project.gvw"_s), "DEM Layers\nReference Projection : 2154\n");
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", QFile::encodeName(m_dir.path()));
        const bool isAtHome = pasted.startsWith(u'~');
        Host host;

        host.path()->setText(pasted.arg(isAtHome ? u"my project.gvw"_s : path));
        const QString contents = host.child<QLabel>(u"m_pwLblProjectNotice"_s)->text();
        host.wizard.next();
        qputenv("HOME", home);

        QCOMPARE(host.wizard.currentId(), 2);
        QCOMPARE(host.wizard.field(u"ProjectName"_s).toString(), path);
        QCOMPARE(host.parameters.value(u"ProjectName"_s).toString(), path);
        QVERIFY2(contents.startsWith(u"Coordinate system: RGF93"_s), qPrintable(contents));
    }

    void showsWhatTheProjectHolds_data()
    {
        const Cases<QByteArray, QString> row({"project", "shown"});
        row("all",
            "DEM Layers\nFiles : dem.tif\nReference Projection : 2154\nVector layer\n"
            "File : town.shp\nLayer name : buildings\n",
            "Coordinate system: RGF93 v1 / Lambert-93 (2154)\nTerrain: DIR/dem.tif (this file does "
            "not exist)\nBuildings: town.shp");
        row("a system of its own", "DEM Layers\nFiles :\nReference Projection : local\n",
            "Coordinate system: local\nTerrain: none\nBuildings: none");
        row("a terrain", "DEM Layers\nFiles : town.shp\n",
            "Coordinate system: that of the terrain\nTerrain: town.shp\nBuildings: none");
        row("nothing", "text",
            "p.gvw: the project names neither a reference system nor a terrain "
            "nor buildings");
    }

    void showsWhatTheProjectHolds()
    {
        QFETCH(QByteArray, project);
        QFETCH(QString, shown);
        writeFile(file(u"p.gvw"_s), project);
        writeFile(file(u"town.shp"_s), {});
        Host host;

        host.path()->setText(file(u"p.gvw"_s));

        QCOMPARE(host.child<QLabel>(u"m_pwLblProjectNotice"_s)->text(),
                 shown.replace(u"DIR"_s, m_dir.path()));
    }

    void continuesWithADoubtfulProject()
    {
        Host host;
        auto *notice = host.child<QLabel>(u"m_pwLblProjectNotice"_s);
        host.path()->setText(file(u"a.gvw"_s)); // an empty file
        QVERIFY(notice->isVisible());
        host.path()->setText(file(u"gone.gvw"_s));
        QVERIFY(!notice->isVisible());
        host.wizard.restart();
        host.wizard.next();
        host.path()->setText(file(u"a.gvw"_s));
        host.wizard.next();
        QCOMPARE(host.wizard.currentId(), 2); // it may still be a project
    }

    void refusesWhatCannotBeRead()
    {
        Host host;
        const AnsweredBoxes boxes;
        host.path()->setText(file(u"folder.gvw"_s));

        host.wizard.next();

        QCOMPARE(host.wizard.currentId(), 1);
        QVERIFY(host.parameters.isEmpty());
        compareBoxes(boxes.seen, QMessageBox::Warning, u"Error !!!"_s,
                     u"Cannot open project\n"_s + file(u"folder.gvw"_s));
    }

    void remembersTheDirectoryOfTheFileDialog()
    {
        const QString start = QDir(m_dir.path()).absolutePath();
        vlt::platform::wizardSettings()->setValue(u"LastUsedDir"_s, start + u"/folder.gvw"_s);
        Host host;
        QTest::keyClick(host.path(), Qt::Key_Return);
        QCOMPARE(host.wizard.currentId(), 1);
        const FileDialogAnswer dialog(file(u"a.gvw"_s));

        host.child<QPushButton>(u"m_pwPbSelectProject"_s)->click();

        QCOMPARE(dialog.caption, u"Select name of Veltaro project to be used"_s);
        QCOMPARE(dialog.directory, start + u"/folder.gvw"_s);
        QCOMPARE(dialog.filters, QStringList{u"Veltaro project (*.gvw)"_s});
        QCOMPARE(host.path()->text(), file(u"a.gvw"_s));
        QTest::keyClick(host.path(), Qt::Key_Return);
        QCOMPARE(host.wizard.currentId(), 2);
        QCOMPARE(vlt::platform::wizardSettings()->value(u"LastUsedDir"_s).toString(), start);
    }
};

QTEST_MAIN(tst_ProjectPage)
#include "tst_ProjectPage.moc"
