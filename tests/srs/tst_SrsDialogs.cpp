#include "gui/AnsweredBoxes.h"
#include "srs/LastUsedSrsList.h"
#include "srs/UserDefinedSrsList.h"
#include "srs/ui/SrsTable.h"
#include "srs/ui/dialogToEditAlias.h"
#include "srs/ui/dialogVltSrsChooser.h"
#include "support/Cases.h"
#include "support/Patience.h"
#include "support/PrivateSettings.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::srs;

namespace {

const SrsEntry Zone2{u"Zone II"_s, {}, u"EPSG:27572"_s};
const SrsEntry Factory{u"Factory"_s, {}, u"+proj=tmerc +lat_0=45 +lon_0=2 +ellps=GRS80"_s, true};
const SrsEntry North{u"North"_s, {}, u"+proj=utm +zone=31 +datum=WGS84"_s, true};

QPushButton *okButton(const QDialog &dialog)
{
    return dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
}

enum Tab { Search, Default, LastUsed, UserDefined };

/// The open dialog with a selected row of a tab.
struct Chooser
{
    explicit Chooser(Tab tab, int row = 0)
    {
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog, PatienceMs));
        auto *tabs = dialog.findChild<QTabWidget *>();
        tabs->setCurrentIndex(tab);
        table = tabs->currentWidget()->findChild<SrsTable *>();
        table->selectRow(row);
    }

    dialogVltSrsChooser dialog;
    SrsTable *table = nullptr;
};

} // namespace

class tst_SrsDialogs : public QObject
{
    Q_OBJECT

    PrivateSettings m_settings;
    QStringList m_opened;

    Q_INVOKABLE void openUrl(const QUrl &url) { m_opened += url.toString(); }

private Q_SLOTS:
    void init()
    {
        m_settings.reset("[VltDefaultSrs]\nSrsCode_1=EPSG:4326\n[VltGetSrsDetail]\n"
                         "MenuEntry_1=\"Here & there\"\nUrl_1=\"https://a.example/?q=%1\"\n");
        UserDefinedSrsList userDefined;
        userDefined.add(Factory);
        userDefined.add(North);
        LastUsedSrsList lastUsed;
        lastUsed.use(Zone2);
        lastUsed.use(Factory);
    }

    void takesWhatWasTypedWhileTheDatabaseIsRead()
    {
        Chooser chooser(Search, -1);
        auto *field = chooser.dialog.findChild<QLineEdit *>(u"m_pwLeSearch"_s);

        QTest::keyClicks(field, u"epsg:27582"_s);
        QTRY_VERIFY_WITH_TIMEOUT(okButton(chooser.dialog)->isEnabled(), PatienceMs);
        QTest::keyClick(field, Qt::Key_Return);

        const SrsEntry expected{u"NTF (Paris) / France II (deprecated)"_s, {}, u"EPSG:27582"_s};
        QVERIFY(chooser.dialog.chosenEntry() == expected);
    }

    void startsAtTheCurrentSystem_data()
    {
        const Cases<SrsEntry, int> row({"current", "tab"});
        row("of the database", SrsEntry{{}, {}, u"EPSG:2193"_s}, int(Search));
        row("its bare number", SrsEntry{{}, {}, u"2193"_s}, int(Search));
        row("the user's own", Factory, int(UserDefined));
    }

    void startsAtTheCurrentSystem()
    {
        QFETCH(SrsEntry, current);
        sharedSrsSearch().waitForFinished();
        dialogVltSrsChooser dialog(nullptr, current);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog, PatienceMs));

        const auto *tabs = dialog.findChild<QTabWidget *>();
        QTEST(tabs->currentIndex(), "tab");
        auto *table = tabs->currentWidget()->findChild<SrsTable *>();
        QVERIFY(table->currentEntry());
        QVERIFY(table->currentEntry()->code.endsWith(current.code));
        QVERIFY(table->viewport()->rect().intersects(table->visualRect(table->currentIndex())));

        dialog.findChild<QLineEdit *>(u"m_pwLeSearch"_s)->setText(u"%"_s);
        tabs->widget(Search)->findChild<SrsTable *>()->setFocus();
        QCOMPARE(tabs->widget(Search)->findChild<SrsTable *>()->currentRow(), -1);
    }

    void offersATypedDefinition()
    {
        sharedSrsSearch().waitForFinished();
        Chooser chooser(Search, -1);
        auto *field = chooser.dialog.findChild<QLineEdit *>(u"m_pwLeSearch"_s);
        const auto *offer = chooser.dialog.findChild<QPushButton *>(u"m_pwPbAddTyped"_s);
        const QString definition = u"+proj=utm +zone=30 +datum=WGS84"_s;
        field->setText(u"+proj=ut"_s);
        QVERIFY(!offer->isVisible());

        QTimer::singleShot(50, this, [] {
            auto *dialog = qobject_cast<dialogToEditAlias *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->findChild<QLineEdit *>(u"m_pwLeAlias"_s)->setText(u"Typed"_s);
            okButton(*dialog)->click();
        });
        field->setText(definition);
        QVERIFY(offer->isVisible());
        QTest::keyClick(field, Qt::Key_Return);

        QVERIFY(chooser.dialog.isVisible());
        okButton(chooser.dialog)->click();
        const SrsEntry expected{u"Typed"_s, {}, definition, true};
        QVERIFY(chooser.dialog.chosenEntry() == expected);
        QVERIFY(UserDefinedSrsList().at(0) == expected);
    }

    void removesLastUsedSystemsByKey()
    {
        Chooser chooser(LastUsed);

        QTest::keyClick(chooser.table, Qt::Key_Delete);
        QVERIFY(chooser.table->currentEntry() == Zone2);
        QTest::keyClick(chooser.table, Qt::Key_Delete);

        QCOMPARE(LastUsedSrsList().count(), 0);
        QVERIFY(!okButton(chooser.dialog)->isEnabled());
    }

    void removesUserDefinedSystemsWhenConfirmed()
    {
        Chooser chooser(UserDefined, 1);
        auto *remove = chooser.dialog.findChild<QPushButton *>(u"m_pwPbRemoveUserDefined"_s);
        {
            const AnsweredBoxes boxes(QMessageBox::No);
            remove->click();
            QVERIFY(boxes.seen.value(0).text.contains(Factory.alias));
        }
        QCOMPARE(UserDefinedSrsList().count(), 2);

        const AnsweredBoxes boxes(QMessageBox::Yes);
        remove->click();

        QCOMPARE(chooser.table->model()->rowCount(), 1);
        QCOMPARE(UserDefinedSrsList().indexOfCode(Factory.code), -1);
        QCOMPARE(LastUsedSrsList().indexOfCode(Factory.code), -1);
    }

    void addsAndEditsUserDefinedSystems()
    {
        const SrsEntry works{u"Works"_s, {}, u"EPSG:3035"_s, true};
        const SrsEntry south{u"South"_s, {}, u"EPSG:32731"_s, true};
        Chooser chooser(UserDefined, 1);
        const auto fillIn = [&](const SrsEntry &entry, const QString &button) {
            QTimer::singleShot(50, this, [entry] {
                auto *dialog = qobject_cast<dialogToEditAlias *>(QApplication::activeModalWidget());
                QVERIFY(dialog);
                dialog->findChild<QLineEdit *>(u"m_pwLeAlias"_s)->setText(entry.alias);
                auto *definition = dialog->findChild<QPlainTextEdit *>();
                definition->setPlainText(u"nonsense"_s);
                QVERIFY(!okButton(*dialog)->isEnabled());
                definition->setPlainText(entry.code + u'\n');
                okButton(*dialog)->click();
            });
            chooser.dialog.findChild<QPushButton *>(button)->click();
        };

        fillIn(works, u"m_pwPbEditUserDefined"_s);
        fillIn(south, u"m_pwPbAddUserDefined"_s);
        okButton(chooser.dialog)->click();

        QVERIFY(chooser.dialog.chosenEntry() == south);
        QVERIFY(UserDefinedSrsList().at(0) == south && UserDefinedSrsList().at(2) == works);
        QVERIFY(LastUsedSrsList().at(0) == works); // changes too
    }

    void refusesAliasesInUse()
    {
        const AnsweredBoxes boxes;
        dialogToEditAlias dialog;
        dialog.show();
        auto *field = dialog.findChild<QLineEdit *>();

        QTest::keyClicks(field, u" "_s);
        QVERIFY(!okButton(dialog)->isEnabled());
        QTest::keyClicks(field, u"facTory "_s);
        okButton(dialog)->click();
        QVERIFY(dialog.isVisible());
        QCOMPARE(boxes.seen.value(0).text,
                 u" this alias is already exists. Please enter another alias"_s);

        QTest::keyClicks(field, u" Works "_s);
        okButton(dialog)->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.alias(), u"Works"_s);
    }

    void opensPagesAboutASystem()
    {
        QDesktopServices::setUrlHandler(u"https"_s, this, "openUrl");
        Chooser chooser(LastUsed, 1);

        QTest::keyClick(chooser.table, Qt::Key_F10, Qt::ShiftModifier);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QCOMPARE(menu->actions().constFirst()->text(), u"Here && there"_s);
        menu->actions().constFirst()->trigger();
        menu->close();

        QCOMPARE(m_opened, QStringList{u"https://a.example/?q=EPSG:27572"_s});
    }
};

QTEST_MAIN(tst_SrsDialogs)
#include "tst_SrsDialogs.moc"
