#include "gui/AnsweredBoxes.h"
#include "platform/Settings.h"
#include "wizard/frame/VltTelecomLayersWizard.h"

#include <QAbstractButton>
#include <QFile>
#include <QLineEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Action = std::function<void(QWizard &)>;

class Wizard : public VltTelecomLayersWizard
{
public:
    Wizard() : VltTelecomLayersWizard(QStringLiteral(VLT_INSTALLATION), u"en"_s) { show(); }

    void click(const QString &button) { findChild<QAbstractButton *>(button)->click(); }

    QStringList visibleButtons() const
    {
        QStringList texts;
        for (const auto which : {BackButton, NextButton, FinishButton, CancelButton}) {
            if (button(which)->isVisible())
                texts += button(which)->text();
        }
        return texts;
    }
};

QByteArray savedPlace()
{
    return vlt::platform::wizardSettings()->value(u"mainGeometry"_s).toByteArray();
}

} // namespace

class TestWizardFrame : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void init()
    {
        vlt::platform::builderSettings()->clear();
        vlt::platform::wizardSettings()->clear();
        QFile project(m_dir.filePath(u"city.gvw"_s));
        QVERIFY(project.open(QIODevice::WriteOnly));
        qputenv("VLT_CURRENT_PROJECT", QFile::encodeName(project.fileName()));
    }

    void numbersItsPages()
    {
        using enum VltTelecomLayersWizard::LogicalPage;
        const Wizard wizard;
        QList<int> ids;
        for (const auto page : {First, Project, AddSite, AddLink, BuildingsSource, BuildingsColored,
                                BuildingsTextured, BuildingsDisplay})
            ids += wizard.pageId(page);
        QCOMPARE(ids, (QList<int>{0, 1, 2, 3, 4, 6, 5, 7}));
        QCOMPARE(wizard.page(5)->title(), u"Textured buildings"_s);
        QCOMPARE(wizard.windowTitle(), u"Add sites, links and predictions wizard"_s);
        QCOMPARE(wizard.wizardStyle(), QWizard::ModernStyle);
    }

    void eachKindLeadsToItsPage_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("page");
        QTest::newRow("sites") << u"m_pwClAddSite"_s << 2;
        QTest::newRow("links") << u"m_pwClAddLink"_s << 3;
        QTest::newRow("buildings") << u"m_pwClAddTexb"_s << 4;
    }

    void eachKindLeadsToItsPage()
    {
        QFETCH(QString, button);
        QFETCH(int, page);
        Wizard wizard;
        QCOMPARE(wizard.visibleButtons(), QStringList{u"Quit"_s});
        wizard.next();
        wizard.button(QWizard::NextButton)->click();
        QCOMPARE(wizard.currentId(), 0);

        wizard.click(button);
        QCOMPARE(wizard.currentId(), 1);
        QCOMPARE(wizard.visibleButtons(), (QStringList{u"Previous"_s, u"Next"_s, u"Quit"_s}));
        QCOMPARE(wizard.field(u"ProjectName"_s), m_dir.filePath(u"city.gvw"_s));
        wizard.next();
        QCOMPARE(wizard.currentId(), page);
        QCOMPARE(wizard.nextId(), -1);
        QCOMPARE(wizard.visibleButtons(), (QStringList{u"Previous"_s, u"Quit"_s}));
    }

    void backAndAnotherKind()
    {
        Wizard wizard;
        wizard.click(u"m_pwClAddLink"_s);
        wizard.findChild<QLineEdit *>(u"m_pwLeProjectName"_s)->setText(u"kept"_s);
        wizard.back();
        QCOMPARE(wizard.currentId(), 0);
        QCOMPARE(wizard.nextId(), -1);
        wizard.click(u"m_pwClAddTexb"_s);
        QCOMPARE(wizard.page(1)->nextId(), 4);
        QCOMPARE(wizard.field(u"ProjectName"_s), u"kept"_s);
    }

    void worksByKeyboard()
    {
        Wizard wizard;
        const auto press = [&wizard](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::qWait(50);
            QTest::keyClick(wizard.focusWidget(), key, modifiers);
        };
        QVERIFY(QTest::qWaitForWindowExposed(&wizard));
        wizard.activateWindow();

        press(Qt::Key_Down);
        press(Qt::Key_Return);
        QCOMPARE(wizard.currentId(), 1);
        press(Qt::Key_Return); // on the first recent project
        QCOMPARE(wizard.currentId(), 3);
        wizard.back();
        wizard.back();
        QTest::qWait(50);
        QCOMPARE(wizard.focusWidget()->objectName(), u"m_pwClAddLink"_s);
        press(Qt::Key_Tab);
        QCOMPARE(wizard.focusWidget()->objectName(), u"m_pwClAddTexb"_s);
    }

    void asksBeforeItQuits_data()
    {
        QTest::addColumn<Action>("quit");
        QTest::newRow("Quit button")
            << Action([](QWizard &wizard) { wizard.button(QWizard::CancelButton)->click(); });
        QTest::newRow("Escape") << Action(
            [](QWizard &wizard) { QTest::keyClick(&wizard, Qt::Key_Escape); });
        QTest::newRow("window's own button") << Action([](QWizard &wizard) { wizard.close(); });
    }

    void asksBeforeItQuits()
    {
        QFETCH(Action, quit);
        Wizard wizard;
        wizard.click(u"m_pwClAddSite"_s);
        int finished = 0;
        int result = -1;
        connect(&wizard, &QWizard::finished, &wizard, [&](int value) {
            ++finished;
            result = value;
        });
        {
            const AnsweredBoxes no(QMessageBox::No);
            quit(wizard);
            QCOMPARE(no.seen.size(), 1);
            const SeenBox &box = no.seen.constFirst();
            QCOMPARE(box.icon, QMessageBox::Question);
            QCOMPARE(box.title, QString());
            QCOMPARE(box.text, u"Voulez-vous quitter l'application ?"_s);
            QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
            QVERIFY(!box.hasDefaultButton);
        }
        QVERIFY(wizard.isVisible() && finished == 0);
        QCOMPARE(wizard.currentId(), 1);

        wizard.resize(1000, 600);
        const AnsweredBoxes yes(QMessageBox::Yes);
        quit(wizard);
        QCOMPARE(yes.seen.size(), 1);
        QVERIFY(!wizard.isVisible() && finished == 1);
        QCOMPARE(result, int(QDialog::Rejected));

        QVERIFY(!savedPlace().isEmpty());
        const Wizard next;
        QCOMPARE(next.size(), QSize(1000, 600));
    }

    void opensOnTheScreen_data()
    {
        QTest::addColumn<QRect>("stored");
        QTest::newRow("first run") << QRect();
        QTest::newRow("off the screen") << QRect(5000, 4000, 900, 600);
        QTest::newRow("left of it") << QRect(-2000, -900, 900, 600);
        QTest::newRow("larger than it") << QRect(10, 10, 4000, 3000);
    }

    void opensOnTheScreen()
    {
        QFETCH(QRect, stored);
        if (stored.isValid()) {
            QWidget elsewhere;
            elsewhere.setGeometry(stored);
            vlt::platform::wizardSettings()->setValue(u"mainGeometry"_s, elsewhere.saveGeometry());
        }
        Wizard wizard;
        QVERIFY(QTest::qWaitForWindowExposed(&wizard));
        const QRect screen = wizard.screen()->availableGeometry();
        QVERIFY2(screen.contains(wizard.frameGeometry()),
                 qPrintable(QDebug::toString(wizard.frameGeometry())));
        if (!stored.isValid())
            QCOMPARE(wizard.size(), QSize(1180, 680));
        QVERIFY(wizard.minimumSizeHint().height() < 560);
    }
};

QTEST_MAIN(TestWizardFrame)
#include "tst_WizardFrame.moc"
