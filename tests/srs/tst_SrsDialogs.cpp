#include "PrivateSettings.h"
#include "gui/AnsweredBoxes.h"
#include "srs/LastUsedSrsList.h"
#include "srs/UserDefinedSrsList.h"
#include "srs/ui/SrsTable.h"
#include "srs/ui/dialogToEditAlias.h"
#include "srs/ui/dialogVltSrsChooser.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;
using vlt::srs::LastUsedSrsList;
using vlt::srs::SrsEntry;
using vlt::srs::SrsTable;
using vlt::srs::UserDefinedSrsList;

namespace {

const QString FactoryGrid = u"+proj=tmerc +lat_0=45 +lon_0=2 +ellps=GRS80"_s;
const QString NorthGrid = u"+proj=utm +zone=31 +datum=WGS84"_s;

/// Keeps the addresses that would be opened.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(u"https"_s, this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(u"https"_s); }
    Q_INVOKABLE void open(const QUrl &url) { opened += url.toString(); }

    QStringList opened;
};

QPushButton *okButton(const QDialog &dialog)
{
    return dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
}

/// The dialog, opened, with parts that are needed often.
struct Chooser
{
    Chooser()
        : search(dialog.findChild<QLineEdit *>(u"m_pwLeSearch"_s))
        , tabs(dialog.findChild<QTabWidget *>())
    {
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
    }

    SrsTable *table() const { return tabs->currentWidget()->findChild<SrsTable *>(); }

    /// Turns to a tab and selects a row of its table.
    SrsTable *select(int tab, int row) const
    {
        tabs->setCurrentIndex(tab);
        table()->selectRow(row);
        table()->setFocus();
        return table();
    }

    dialogVltSrsChooser dialog;
    QLineEdit *search;
    QTabWidget *tabs;
};

enum Tab { Search, Default, LastUsed, UserDefined };

/// Fills in the alias dialog once it is open, and accepts it where that is possible.
void fillAliasDialog(const QString &alias, const QString &definition)
{
    QTimer::singleShot(50, qApp, [=] {
        auto *dialog = qobject_cast<dialogToEditAlias *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        dialog->findChild<QLineEdit *>(u"m_pwLeAlias"_s)->setText(alias);
        dialog->findChild<QPlainTextEdit *>()->setPlainText(definition);
        okButton(*dialog)->isEnabled() ? okButton(*dialog)->click() : dialog->reject();
    });
}

} // namespace

class TestSrsDialogs : public QObject
{
    Q_OBJECT

    PrivateSettings m_settings;

private Q_SLOTS:
    void init()
    {
        m_settings.reset();
        vlt::platform::wizardSettings()->clear();
        m_settings.writeIni("[VltDefaultSrs]\n"
                            "SrsCode_1=EPSG:2154\nSrsShortName_1=Lambert\n"
                            "SrsCode_2=EPSG:4326\n"
                            "[VltGetSrsDetail]\n"
                            "MenuEntry_1=\"Here & there\"\nUrl_1=\"https://a.example/?q=%1\"\n");
        UserDefinedSrsList userDefined;
        userDefined.add({u"Factory"_s, {}, FactoryGrid, true});
        userDefined.add({u"North"_s, {}, NorthGrid, true});
        LastUsedSrsList lastUsed;
        lastUsed.use({u"Zone II"_s, {}, u"EPSG:27572"_s, false});
        lastUsed.use(userDefined.at(1));
    }

    void takesWhatWasTyped_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("alias");
        QTest::addColumn<QString>("code");
        // the first row runs while the database is still being read
        QTest::newRow("name") << u"lambert 93"_s << u"RGF93 v1 / Lambert-93"_s << u"EPSG:2154"_s;
        QTest::newRow("deprecated")
            << u"epsg:27582"_s << u"NTF (Paris) / France II (deprecated)"_s << u"EPSG:27582"_s;
    }

    void takesWhatWasTyped()
    {
        QFETCH(QString, text);
        QFETCH(QString, alias);
        QFETCH(QString, code);
        Chooser chooser;
        QVERIFY(!okButton(chooser.dialog)->isEnabled());

        QTest::keyClicks(chooser.search, text);
        QTRY_VERIFY(okButton(chooser.dialog)->isEnabled());
        QTest::keyClick(chooser.search, Qt::Key_Return);

        QVERIFY(!chooser.dialog.isVisible());
        const SrsEntry expected{alias, {}, code, false};
        QVERIFY(chooser.dialog.chosenEntry() == expected);
    }

    void offersEveryList_data()
    {
        QTest::addColumn<int>("tab");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("alias");
        QTest::addColumn<QString>("code");
        QTest::addColumn<bool>("isUserDefined");
        QTest::newRow("default") << int(Default) << 0 << u"Lambert"_s << u"EPSG:2154"_s << false;
        QTest::newRow("without alias") << int(Default) << 1 << QString() << u"EPSG:4326"_s << false;
        QTest::newRow("last used")
            << int(LastUsed) << 1 << u"Zone II"_s << u"EPSG:27572"_s << false;
        QTest::newRow("last used, by hand")
            << int(LastUsed) << 0 << u"Factory"_s << FactoryGrid << true;
        QTest::newRow("user-defined") << int(UserDefined) << 0 << u"North"_s << NorthGrid << true;
    }

    void offersEveryList()
    {
        QFETCH(int, tab);
        QFETCH(int, row);
        QFETCH(QString, alias);
        QFETCH(QString, code);
        QFETCH(bool, isUserDefined);
        const SrsEntry expected{alias, {}, code, isUserDefined};

        Chooser byKey;
        QTest::keyClick(byKey.select(tab, row), Qt::Key_Return);
        QVERIFY(byKey.dialog.chosenEntry() == expected);

        Chooser byMouse;
        byMouse.tabs->setCurrentIndex(tab);
        const QPoint place =
            byMouse.table()->visualRect(byMouse.table()->model()->index(row, 1)).center();
        QTest::mouseClick(byMouse.table()->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(byMouse.table()->viewport(), Qt::LeftButton, {}, place);
        QVERIFY(byMouse.dialog.chosenEntry() == expected);

        Chooser cancelled;
        QTest::keyClick(cancelled.select(tab, row), Qt::Key_Escape);
        QVERIFY(!cancelled.dialog.isVisible() && !cancelled.dialog.chosenEntry());
    }

    void goesBetweenFieldAndResultsByKey()
    {
        Chooser chooser;
        chooser.select(Default, 0);
        QTest::keyClick(chooser.table(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(chooser.dialog.focusWidget(), chooser.search);

        QTest::keyClicks(chooser.search, u"lambert"_s);
        QTRY_VERIFY(chooser.table()->currentRow() == 0);
        QTest::keyClick(chooser.search, Qt::Key_Down);
        QCOMPARE(chooser.dialog.focusWidget(), chooser.table());
        QTest::keyClick(chooser.table(), Qt::Key_Down);
        QCOMPARE(chooser.table()->currentRow(), 1);

        QTest::keyClicks(chooser.table(), u" 9"_s);
        QTest::keyClicks(chooser.search, u"3"_s);
        QCOMPARE(chooser.search->text(), u"lambert 93"_s);
        QCOMPARE(chooser.dialog.focusWidget(), chooser.search);
    }

    void keepsTheSelectedSystemWhileFiltersChange()
    {
        Chooser chooser;
        QTest::keyClicks(chooser.search, u"NTF (Paris)"_s);
        auto *deprecated = chooser.dialog.findChild<QCheckBox *>();
        QTRY_VERIFY(chooser.table()->currentRow() == 0);
        chooser.table()->selectRow(3);
        const SrsEntry selected = *chooser.table()->currentEntry();
        const int count = chooser.table()->model()->rowCount();

        deprecated->click();

        QVERIFY(chooser.table()->model()->rowCount() > count);
        QVERIFY(chooser.table()->currentEntry() == selected);
    }

    void removesLastUsedSystemsByKey()
    {
        Chooser chooser;

        QTest::keyClick(chooser.select(LastUsed, 0), Qt::Key_Delete);

        QCOMPARE(LastUsedSrsList().count(), 1);
        QCOMPARE(chooser.table()->currentEntry()->alias, u"Zone II"_s);
        QTest::keyClick(chooser.table(), Qt::Key_Delete);
        QCOMPARE(LastUsedSrsList().count(), 0);
        QVERIFY(!okButton(chooser.dialog)->isEnabled());
    }

    void removesUserDefinedSystemsWhenConfirmed()
    {
        Chooser chooser;
        const SrsTable *table = chooser.select(UserDefined, 1);
        auto *remove = chooser.dialog.findChild<QPushButton *>(u"m_pwPbRemoveUserDefined"_s);
        {
            AnsweredBoxes boxes(QMessageBox::No);
            remove->click();
            QCOMPARE(boxes.seen.size(), 1);
            QVERIFY(boxes.seen.constFirst().text.contains(u"Factory"_s));
        }
        QCOMPARE(UserDefinedSrsList().count(), 2);

        AnsweredBoxes boxes(QMessageBox::Yes);
        remove->click();

        QCOMPARE(table->model()->rowCount(), 1);
        QCOMPARE(UserDefinedSrsList().count(), 1);
        QCOMPARE(UserDefinedSrsList().at(0).alias, u"North"_s);
        QCOMPARE(LastUsedSrsList().indexOfCode(FactoryGrid), -1);
    }

    void editsUserDefinedSystems_data()
    {
        QTest::addColumn<QString>("alias");
        QTest::addColumn<QString>("definition");
        QTest::addColumn<bool>("isTaken");
        QTest::newRow("alias") << u" Works "_s << FactoryGrid << true;
        QTest::newRow("definition") << u"Factory"_s << u"EPSG:3035\n"_s << true;
        QTest::newRow("no definition") << u"Factory"_s << u"+proj=nonsense"_s << false;
        QTest::newRow("blank alias") << u"  "_s << FactoryGrid << false;
    }

    void editsUserDefinedSystems()
    {
        QFETCH(QString, alias);
        QFETCH(QString, definition);
        QFETCH(bool, isTaken);
        const SrsEntry before{u"Factory"_s, {}, FactoryGrid, true};
        const SrsEntry given{alias.trimmed(), {}, definition.trimmed(), true};
        Chooser chooser;

        fillAliasDialog(alias, definition);
        QTest::keyClick(chooser.select(UserDefined, 1), Qt::Key_F2);

        const SrsEntry &expected = isTaken ? given : before;
        QVERIFY(UserDefinedSrsList().at(1) == expected);
        QVERIFY(LastUsedSrsList().at(0) == expected); // follows
        QVERIFY(chooser.table()->currentEntry() == expected);
    }

    void addsUserDefinedSystems()
    {
        Chooser chooser;
        chooser.tabs->setCurrentIndex(UserDefined);

        fillAliasDialog(u"South"_s, u"+proj=utm +zone=31\n+south +datum=WGS84"_s);
        chooser.dialog.findChild<QPushButton *>(u"m_pwPbAddUserDefined"_s)->click();
        okButton(chooser.dialog)->click();

        const SrsEntry expected{u"South"_s, {}, u"+proj=utm +zone=31 +south +datum=WGS84"_s, true};
        QVERIFY(chooser.dialog.chosenEntry() == expected);
        QVERIFY(UserDefinedSrsList().at(0) == expected);
    }

    void refusesAliasesInUse_data()
    {
        QTest::addColumn<QString>("alias");
        QTest::addColumn<bool>("canTry");
        QTest::addColumn<bool>("isTaken");
        QTest::newRow("new") << u"Works"_s << true << true;
        QTest::newRow("blank") << u" "_s << false << false;
        QTest::newRow("in use") << u"Factory"_s << true << false;
        QTest::newRow("in use, other case") << u" facTory "_s << true << false;
    }

    void refusesAliasesInUse()
    {
        QFETCH(QString, alias);
        QFETCH(bool, canTry);
        QFETCH(bool, isTaken);
        dialogToEditAlias dialog;
        dialog.show();
        auto *field = dialog.findChild<QLineEdit *>();
        QVERIFY(!okButton(dialog)->isEnabled());
        AnsweredBoxes boxes;

        QTest::keyClicks(field, alias);
        QCOMPARE(okButton(dialog)->isEnabled(), canTry);
        QTest::keyClick(field, Qt::Key_Return);

        QCOMPARE(dialog.result() == QDialog::Accepted, isTaken);
        QCOMPARE(dialog.isVisible(), !isTaken);
        QCOMPARE(dialog.alias(), alias.trimmed());
        QCOMPARE(boxes.seen.size(), canTry && !isTaken ? 1 : 0);
        if (boxes.seen.isEmpty())
            return;
        const SeenBox &box = boxes.seen.constFirst();
        QCOMPARE(box.icon, QMessageBox::Critical);
        QCOMPARE(box.title, u"Error"_s);
        QCOMPARE(box.text, u" this alias is already exists. Please enter another alias"_s);
        QCOMPARE(field->selectedText(), alias);
    }

    void opensPagesAboutASystem_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("mouse") << false;
        QTest::newRow("Shift+F10") << true;
    }

    void opensPagesAboutASystem()
    {
        QFETCH(bool, byKey);
        const Browser browser;
        Chooser chooser;
        SrsTable *table = chooser.select(LastUsed, 1);

        if (byKey) {
            QTest::keyClick(table, Qt::Key_F10, Qt::ShiftModifier);
        } else {
            const QPoint place = table->visualRect(table->currentIndex()).center();
            QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                    table->viewport()->mapToGlobal(place));
            QApplication::sendEvent(table->viewport(), &event);
        }
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QCOMPARE(menu->actions().constFirst()->text(), u"Here && there"_s);
        menu->actions().constFirst()->trigger();
        table->actions().constFirst()->trigger();
        menu->close();

        QCOMPARE(browser.opened, QStringList{u"https://a.example/?q=EPSG:27572"_s});
        QCOMPARE(QApplication::clipboard()->text(), u"EPSG:27572"_s);
    }

    void remembersItsSize()
    {
        Chooser first;
        first.dialog.resize(900, 640);
        first.dialog.reject();

        const Chooser again;

        QCOMPARE(again.dialog.size(), QSize(900, 640));
    }
};

QTEST_MAIN(TestSrsDialogs)
#include "tst_SrsDialogs.moc"
