#include "gui/AnsweredBoxes.h"
#include "platform/Settings.h"
#include "support/Cases.h"
#include "support/Files.h"
#include "support/Patience.h"
#include "wizard/frame/VltTelecomLayersWizard.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QFile>
#include <QLineEdit>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class Wizard : public VltTelecomLayersWizard
{
public:
    explicit Wizard(const QString &installDir = QStringLiteral(VLT_INSTALLATION))
        : VltTelecomLayersWizard(installDir, u"en"_s)
    {
        show();
    }

    void click(const QString &button) { findChild<QAbstractButton *>(button)->click(); }

    /// The widgets that can have the focus, in any order. In a group of buttons, Tab reaches the
    /// checked one and the arrow keys the others.
    QString stops() const
    {
        QStringList names;
        for (const QWidget *widget : findChildren<QWidget *>()) {
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            const auto *group = button ? button->group() : nullptr;
            const bool isByArrows = group && group->exclusive() && group->checkedButton() &&
                                    group->checkedButton() != button;
            if ((widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() &&
                widget->isVisible() && widget->isEnabled() && !isByArrows)
                names << nameOf(*widget);
        }
        names.sort();
        return names.join(QLatin1Char(' '));
    }

    /// The widgets that a key reaches one after the other, until the first one has the focus again.
    QString walk(Qt::Key key)
    {
        constexpr int Endless = 200;
        const QWidget *start = focusWidget();
        QStringList names;
        do {
            QTest::keyClick(focusWidget(), key);
            names << nameOf(*focusWidget());
        } while (focusWidget() != start && names.size() < Endless);
        names.sort();
        return names.join(QLatin1Char(' '));
    }

    static QString nameOf(const QWidget &widget)
    {
        const QString name = widget.objectName();
        return name.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : name;
    }

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

} // namespace

class tst_WizardFrame : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void init()
    {
        vlt::platform::builderSettings()->clear();
        vlt::platform::wizardSettings()->clear();
        const QString project = writeFile(m_dir.filePath(u"city.gvw"_s));
        qputenv("VLT_CURRENT_PROJECT", QFile::encodeName(project));
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
        QCOMPARE(wizard.page(6)->title(), u"Colored buildings"_s);
        QCOMPARE(wizard.page(7)->title(), u"Display of buildings"_s);
        QCOMPARE(wizard.size(), QSize(1180, 680));
        QCOMPARE(wizard.windowTitle(), u"Add sites, links and predictions wizard"_s);
    }

    void eachKindLeadsToItsPage()
    {
        Wizard wizard;
        QCOMPARE(wizard.visibleButtons(), QStringList{u"Quit"_s});
        wizard.next();
        QCOMPARE(wizard.currentId(), 0);

        for (const auto &[button, page] :
             {std::pair(u"m_pwClAddSite"_s, 2), std::pair(u"m_pwClAddLink"_s, 3),
              std::pair(u"m_pwClAddTexb"_s, 4)}) {
            const bool isResult = page != 4;
            wizard.click(button);
            QCOMPARE(wizard.currentId(), 1);
            QCOMPARE(wizard.visibleButtons(), (QStringList{u"Previous"_s, u"Next"_s, u"Quit"_s}));
            QCOMPARE(wizard.field(u"ProjectName"_s), m_dir.filePath(u"city.gvw"_s));
            wizard.next();
            QCOMPARE(wizard.currentId(), page);
            QCOMPARE(wizard.nextId() == -1, isResult);
            QCOMPARE(wizard.button(QWizard::NextButton)->isVisible(), !isResult);
            wizard.back();
            wizard.back();
        }
    }

    /// The sample sites are opened with their own project, not with the first recent one.
    void opensTheSample()
    {
        const QString place = m_dir.filePath(u"installed/examples/lorient/"_s);
        QVERIFY(!Wizard().findChild<QWidget *>(u"m_pwPbSample"_s)->isVisible());
        writeFile(place + u"city.gvw"_s);
        writeFile(place + u"sites.csv"_s, "Site ID,Longitude,Latitude\nA,2,48\n");
        AnsweredBoxes boxes; // this installation has nothing else
        Wizard wizard(m_dir.filePath(u"installed"_s));

        wizard.click(u"m_pwPbSample"_s);

        QTRY_COMPARE_WITH_TIMEOUT(wizard.currentId(), 2, PatienceMs);
        QCOMPARE(wizard.field(u"ProjectName"_s).toString(), place + u"city.gvw"_s);
    }

    void theBuildingPagesFollowEachOther()
    {
        const Wizard wizard;
        for (const auto &[kind, page] :
             {std::pair(u"m_pwRbTextured"_s, 5), std::pair(u"m_pwRbColored"_s, 6)}) {
            wizard.findChild<QAbstractButton *>(kind)->click();
            QCOMPARE(wizard.page(4)->nextId(), page);
        }
        QCOMPARE(wizard.page(5)->nextId(), 7);
        QCOMPARE(wizard.page(6)->nextId(), -1);
        QCOMPARE(wizard.page(7)->nextId(), -1);
    }

    void worksByKeyboard()
    {
        Wizard wizard;
        const auto press = [&wizard](Qt::Key key) {
            QTest::qWait(50);
            QTest::keyClick(wizard.focusWidget(), key);
        };
        QVERIFY(QTest::qWaitForWindowExposed(&wizard, PatienceMs));
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
        QCOMPARE(wizard.nextId(), -1);
        wizard.findChild<QLineEdit *>(u"m_pwLeProjectName"_s)->setText(u"kept"_s);
        press(Qt::Key_Tab);
        press(Qt::Key_Return);
        QCOMPARE(wizard.page(1)->nextId(), 4);
        QCOMPARE(wizard.field(u"ProjectName"_s), u"kept"_s);
    }

    void tabReachesEveryStopAndComesBack_data()
    {
        const Cases<int> row({"page"});
        row("sites", 2);
        row("links", 3);
        row("coloured buildings", 6);
        row("display of buildings", 7);
    }

    void tabReachesEveryStopAndComesBack()
    {
        QFETCH(int, page);
        const AnsweredBoxes boxes;
        Wizard wizard;
        wizard.setStartId(page);
        wizard.restart();
        QVERIFY(QTest::qWaitForWindowExposed(&wizard, PatienceMs));
        wizard.activateWindow();
        if (auto *fold = wizard.currentPage()->findChild<QAbstractButton *>(u"m_pwTbFold"_s)) {
            fold->parentWidget()->show(); // like with a table
            fold->click();
        }
        QTest::qWait(300);
        QVERIFY(wizard.focusWidget());

        QCOMPARE(wizard.walk(Qt::Key_Tab), wizard.stops());
        QCOMPARE(wizard.walk(Qt::Key_Backtab), wizard.stops());
    }

    void asksBeforeItQuits()
    {
        Wizard wizard;
        wizard.click(u"m_pwClAddSite"_s);
        const QSignalSpy finished(&wizard, &QWizard::finished);
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            const AnsweredBoxes boxes(answer);
            if (answer == QMessageBox::No)
                wizard.close();
            else
                wizard.button(QWizard::CancelButton)->click();

            QCOMPARE(boxes.seen.size(), 1);
            const SeenBox &box = boxes.seen.constFirst();
            QCOMPARE(box.icon, QMessageBox::Question);
            QCOMPARE(box.title, QString());
            QCOMPARE(box.text, u"Voulez-vous quitter l'application ?"_s);
            QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
            QVERIFY(!box.hasDefaultButton);
            QCOMPARE(box.focusedButton, u"No"_s);
            QCOMPARE(wizard.isVisible(), answer == QMessageBox::No);
            QCOMPARE(wizard.currentId(), answer == QMessageBox::No ? 1 : -1);
            wizard.resize(1000, 600); // saved only at the end of the wizard
        }
        QCOMPARE(finished.size(), 1);
        QCOMPARE(finished.constFirst().constFirst().toInt(), int(QDialog::Rejected));

        const Wizard next;
        QCOMPARE(next.size(), QSize(1000, 600));
    }

    void opensOnTheScreen()
    {
        for (const QRect stored : {QRect(5000, 4000, 900, 600), QRect(10, 10, 4000, 3000)}) {
            QWidget elsewhere;
            elsewhere.setGeometry(stored);
            vlt::platform::wizardSettings()->setValue(u"mainGeometry"_s, elsewhere.saveGeometry());
            Wizard wizard;
            QVERIFY(QTest::qWaitForWindowExposed(&wizard, PatienceMs));
            QVERIFY(wizard.screen()->availableGeometry().contains(wizard.frameGeometry()));
        }
    }
};

QTEST_MAIN(tst_WizardFrame)
#include "tst_WizardFrame.moc"
