#include "gui/AnsweredBoxes.h"
#include "platform/Settings.h"
#include "wizard/project/ui/VltSecondPage.h"

#include <QDateTime>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
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
    QPushButton *browse() { return child<QPushButton>(u"m_pwPbSelectProject"_s); }
    bool canGoOn() { return wizard.button(QWizard::NextButton)->isEnabled(); }

    SharedParameters parameters;
    QWizard wizard;
    VltSecondPage *page = nullptr;
};

QStringList offered(QListWidget *list)
{
    QStringList paths;
    for (int i = 0; i < list->count(); ++i)
        paths += list->item(i)->toolTip();
    return paths;
}

} // namespace

class TestProjectPage : public QObject
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
        QTest::addColumn<QString>("current");
        QTest::addColumn<QStringList>("remembered");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("none") << QString() << QStringList() << QStringList();
        QTest::newRow("settings only") << QString() << QStringList{u"b.v2.gvw"_s, u"a.gvw"_s}
                                       << QStringList{u"b.v2.gvw"_s, u"a.gvw"_s};
        QTest::newRow("current first, once")
            << u"c.gvw"_s << QStringList{u"a.gvw"_s, u"c.gvw"_s, u"a.gvw"_s}
            << QStringList{u"c.gvw"_s, u"a.gvw"_s};
        QTest::newRow("missing files and folders skipped")
            << u"gone.gvw"_s << QStringList{u"lost.gvw"_s, u"folder.gvw"_s, u"a.gvw"_s}
            << QStringList{u"a.gvw"_s};
        QTest::newRow("ten at most")
            << QString() << (QStringList(9, u"x"_s) << u"a.gvw"_s << u"c.gvw"_s)
            << QStringList{u"a.gvw"_s};
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

        QCOMPARE(offered(host.list()), expected);
        auto *none = host.child<QLabel>(u"m_pwLblNoRecentProjects"_s);
        QCOMPARE(none->isVisible(), expected.isEmpty());
        QCOMPARE(host.list()->isVisible(), !expected.isEmpty());
        QCOMPARE(host.path()->text(), expected.value(0));
        QCOMPARE(host.canGoOn(), !expected.isEmpty());
    }

    void tellsNameDayAndTime()
    {
        remember({u"b.v2.gvw"_s});
        Host host;
        QCOMPARE(host.list()->item(0)->text(), u"b\n09/03/2024\n07:05"_s);
    }

    void clickSelectsAndDoubleClickGoesOn()
    {
        remember({u"a.gvw"_s, u"c.gvw"_s});
        Host host;
        QVERIFY(QTest::qWaitForWindowExposed(&host.wizard));
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

    void enterGoesOn_data()
    {
        QTest::addColumn<QString>("widget");
        QTest::newRow("in the list") << u"m_pwLwRecentProjects"_s;
        QTest::newRow("in the line edit") << u"m_pwLeProjectName"_s;
    }

    void enterGoesOn()
    {
        QFETCH(QString, widget);
        Host host;
        QTest::keyClick(host.child<QWidget>(widget), Qt::Key_Return);
        QCOMPARE(host.wizard.currentId(), 1);
        host.path()->setText(file(u"a.gvw"_s));
        QTest::keyClick(host.child<QWidget>(widget), Qt::Key_Return);
        QCOMPARE(host.wizard.currentId(), 2);
    }

    void takesDroppedProjects_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("expected");

        QTest::newRow("one") << QStringList{u"a.gvw"_s} << u"a.gvw"_s;
        QTest::newRow("first of two") << QStringList{u"b.v2.gvw"_s, u"a.gvw"_s} << u"b.v2.gvw"_s;
        QTest::newRow("only the first counts") << QStringList{u"a.lay"_s, u"a.gvw"_s} << QString();
        QTest::newRow("upper case") << QStringList{u"C.GVW"_s} << QString();
        QTest::newRow("text") << QStringList() << QString();
    }

    void takesDroppedProjects()
    {
        QFETCH(QStringList, names);
        QFETCH(QString, expected);
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &name : names)
            urls += QUrl::fromLocalFile(file(name));
        if (urls.isEmpty())
            data.setText(file(u"a.gvw"_s));
        else
            data.setUrls(urls);
        Host host;
        auto *label = host.child<QLabel>(u"m_pwLbProjectName"_s);

        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(host.page, &enter);
        QVERIFY(enter.isAccepted() && label->font().underline());
        QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(host.page, &drop);

        QVERIFY(!label->font().underline());
        QCOMPARE(host.path()->text(), expected.isEmpty() ? QString() : file(expected));
        // the line edit would take the file's address for text
        QVERIFY(!host.path()->acceptDrops());
    }

    void refusesWhatCannotBeRead_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("missing") << u"missing.gvw"_s;
        QTest::newRow("folder") << u"folder.gvw"_s;
    }

    void refusesWhatCannotBeRead()
    {
        QFETCH(QString, name);
        Host host;
        AnsweredBoxes boxes;
        host.path()->setText(file(name));

        host.wizard.next();

        QCOMPARE(host.wizard.currentId(), 1);
        QVERIFY(host.parameters.isEmpty());
        QCOMPARE(boxes.seen.size(), 1);
        QCOMPARE(boxes.seen.constFirst().icon, QMessageBox::Warning);
        QCOMPARE(boxes.seen.constFirst().title, u"Error !!!"_s);
        QCOMPARE(boxes.seen.constFirst().text, u"Cannot open project\n"_s + file(name));
        QCOMPARE(boxes.seen.constFirst().buttons, QMessageBox::Ok);
    }

    void remembersTheDirectoryOfTheFileDialog()
    {
        const QString start = QDir(m_dir.path()).absolutePath();
        vlt::platform::wizardSettings()->setValue(u"LastUsedDir"_s, start + u"/folder.gvw"_s);
        Host host;
        QString title, directory;
        QStringList filters;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &host.wizard, [&] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            timer.stop();
            title = dialog->windowTitle();
            directory = dialog->directory().absolutePath();
            filters = dialog->nameFilters();
            dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(file(u"a.gvw"_s));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        timer.start(50);

        host.browse()->click();

        QCOMPARE(title, u"Select name of Veltaro project to be used"_s);
        QCOMPARE(directory, start + u"/folder.gvw"_s);
        QCOMPARE(filters, QStringList{u"Veltaro project (*.gvw)"_s});
        QCOMPARE(host.path()->text(), file(u"a.gvw"_s));
        host.wizard.next();
        QCOMPARE(vlt::platform::wizardSettings()->value(u"LastUsedDir"_s).toString(), start);
    }
};

QTEST_MAIN(TestProjectPage)
#include "tst_ProjectPage.moc"
