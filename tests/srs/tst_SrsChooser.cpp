#include "PrivateSettings.h"
#include "srs/ui/VltSrsChooser.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <functional>

using namespace Qt::StringLiterals;
using vlt::srs::SrsEntry;

namespace {

const QString Utm = u"+proj=utm +zone=31 +datum=WGS84"_s;
const QString Lambert = u"Lambert-93 , EPSG:2154"_s;
const QString Wgs84 = u"WGS 84 , EPSG:4326"_s;

/// A chooser in a window with a default button. It lists, where no others are stored: Lambert and
/// Mine, a user-defined one, as used lately; WGS 84 and EPSG:3035 of the defaults; "Other...".
struct Shown
{
    explicit Shown(bool withDefaults = true, bool withOther = true)
        : chooser(new VltSrsChooser(&window, u"System"_s, withDefaults, withOther))
        , combo(chooser->findChild<QComboBox *>(u"m_pCBSrs"_s))
        , reset(chooser->findChild<QPushButton *>(u"m_pPBResetSrs"_s))
        , next(new QPushButton(u"Next"_s))
        , selected(chooser, &VltSrsChooser::SrsSelected)
        , pressed(next, &QPushButton::clicked)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(chooser);
        layout->addWidget(next);
        next->setDefault(true);
        chooser->populate();
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            QTest::qFail("the window does not become active", __FILE__, __LINE__);
    }

    /// As a user does it: opens the list, goes to the row, presses Return.
    void pick(int row)
    {
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(row, 0));
        QTest::keyClick(combo->view(), Qt::Key_Return);
    }

    void type(const QString &text)
    {
        combo->setFocus();
        combo->lineEdit()->selectAll();
        if (text.isEmpty())
            QTest::keyClick(combo, Qt::Key_Backspace);
        QTest::keyClicks(combo, text);
        QTest::keyClick(combo, Qt::Key_Return);
    }

    QStringList rows() const
    {
        QStringList texts;
        for (int row = 0; row < combo->count(); ++row)
            texts += combo->itemText(row);
        return texts;
    }

    /// Arguments of the signal since the last call.
    QStringList announced()
    {
        QStringList codes;
        for (const auto &arguments : std::as_const(selected))
            codes += arguments.first().toString();
        selected.clear();
        return codes;
    }

    bool isUndefined() const
    {
        return combo->isEditable() && combo->currentIndex() == -1 &&
               combo->currentText() == u"Undefined";
    }

    QDialog window;
    VltSrsChooser *chooser;
    QComboBox *combo;
    QPushButton *reset;
    QPushButton *next;
    QSignalSpy selected;
    QSignalSpy pressed;
};

/// Does something with each dialog that opens over the window, then closes it if it is still open.
class DialogAnswers
{
public:
    explicit DialogAnswers(std::function<void(QDialog &)> answer)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, answer = std::move(answer)] {
            QPointer<QDialog> dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            opened += QString::fromLatin1(dialog->metaObject()->className());
            answer(*dialog);
            if (dialog && dialog->isVisible())
                dialog->reject();
        });
        m_timer.start(20);
    }

    QStringList opened;

private:
    QTimer m_timer;
};

void cancel(QDialog &dialog)
{
    QTest::keyClick(&dialog, Qt::Key_Escape);
}

/// Accepts a row of the dialog's default systems.
std::function<void(QDialog &)> acceptDefault(int row)
{
    return [row](QDialog &dialog) {
        auto *tabs = dialog.findChild<QTabWidget *>(u"m_pwTwTabs"_s);
        tabs->setCurrentWidget(tabs->findChild<QWidget *>(u"m_pwPageDefault"_s));
        auto *table = dialog.findChild<QAbstractItemView *>(u"m_pwTvDefault"_s);
        table->setCurrentIndex(table->model()->index(row, 0));
        dialog.accept();
    };
}

std::function<void(QDialog &)> acceptAlias(const QString &alias)
{
    return [alias](QDialog &dialog) {
        auto *edit = dialog.findChild<QLineEdit *>(u"m_pwLeAlias"_s);
        QTest::keyClicks(edit, alias);
        QTest::keyClick(edit, Qt::Key_Return);
    };
}

void turnWheelDown(QWidget *widget)
{
    const QPointF middle = widget->rect().center();
    QWheelEvent event(middle, widget->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // or it would not bring the focus
    qApp->notify(widget, &event);
}

} // namespace

class TestSrsChooser : public QObject
{
    Q_OBJECT

    PrivateSettings m_settings;

    QStringList lastUsedCodes() const
    {
        return m_settings.stored(u"LastUsedSrsList"_s).filter(u"CODE="_s);
    }

private Q_SLOTS:
    void init()
    {
        m_settings.reset();
        m_settings.writeIni("[VltDefaultSrs]\nSrsCode_1=EPSG:4326\nSrsShortName_1=WGS 84\n"
                            "SrsCode_2=EPSG:2154\nSrsShortName_2=RGF93\nSrsCode_3=EPSG:3035\n");
        m_settings.store(u"LastUsedSrsList/1_CODE"_s, u"EPSG:2154"_s);
        m_settings.store(u"LastUsedSrsList/1_ALIAS"_s, u"Lambert-93"_s);
        m_settings.store(u"LastUsedSrsList/1_IS_USER_DEF"_s, false);
        m_settings.store(u"LastUsedSrsList/2_CODE"_s, Utm);
        m_settings.store(u"LastUsedSrsList/2_ALIAS"_s, u"Mine"_s);
    }

    void listsWhatItIsAskedFor_data()
    {
        QTest::addColumn<bool>("withDefaults");
        QTest::addColumn<bool>("withOther");
        QTest::addColumn<QStringList>("rows");

        const QStringList used = {Lambert + u" 255"_s, u"Mine 255"_s};
        const QStringList defaults = {Wgs84 + u" 208"_s, u"EPSG:3035 208"_s};
        const QStringList other = {u"Other... 160"_s};
        QTest::newRow("all") << true << true << used + defaults + other;
        QTest::newRow("no defaults") << false << true << used + other;
        QTest::newRow("no other") << true << false << used + defaults;
    }
    void listsWhatItIsAskedFor()
    {
        QFETCH(bool, withDefaults);
        QFETCH(bool, withOther);

        Shown shown(withDefaults, withOther);

        QStringList rows;
        for (int row = 0; row < shown.combo->count(); ++row) {
            const auto background = shown.combo->itemData(row, Qt::BackgroundRole).value<QColor>();
            QCOMPARE(background, QColor(background.red(), background.red(), background.red()));
            rows += shown.combo->itemText(row) + u' ' + QString::number(background.red());
        }
        QTEST(rows, "rows");
        QCOMPARE(shown.chooser->currentCode(), u"EPSG:2154"_s);
        QVERIFY(!shown.combo->isEditable() && !shown.reset->isEnabled());
        QCOMPARE(shown.announced(), QStringList());
    }

    void announcesAndRecordsAPickedRow()
    {
        Shown shown;

        shown.pick(0);
        QCOMPARE(shown.announced(), QStringList());
        QVERIFY(!shown.reset->isEnabled());

        shown.pick(2);
        shown.pick(2);
        QCOMPARE(shown.announced(), QStringList{u"EPSG:4326"_s});
        QVERIFY(shown.reset->isEnabled());
        QCOMPARE(lastUsedCodes(),
                 (QStringList{u"1_CODE=EPSG:4326"_s, u"2_CODE=EPSG:2154"_s, u"3_CODE="_s + Utm}));

        QTest::keyClick(shown.combo, Qt::Key_Up);
        QCOMPARE(shown.announced(), QStringList{Utm});
        QCOMPARE(shown.rows().size(), 5);
    }

    void neitherAnnouncesNorRecordsWithoutOther()
    {
        Shown shown(true, false);

        shown.pick(2);
        shown.pick(3);

        QCOMPARE(shown.chooser->currentCode(), u"EPSG:3035"_s);
        QCOMPARE(shown.announced(), QStringList());
        QCOMPARE(lastUsedCodes(), (QStringList{u"1_CODE=EPSG:2154"_s, u"2_CODE="_s + Utm}));
    }

    void selectsByText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("code");

        QTest::newRow("part, other case") << u"epsg:4"_s << 2 << u"EPSG:4326"_s;
        QTest::newRow("first of several") << u"EPSG"_s << 0 << u"EPSG:2154"_s;
        QTest::newRow("alias of a user-defined") << u"mine"_s << 1 << Utm;
        QTest::newRow("no system") << u"other"_s << 4 << QString();
        QTest::newRow("nowhere") << u"EPSG:32631"_s << -1 << QString();
    }
    void selectsByText()
    {
        QFETCH(QString, text);
        QFETCH(QString, code);
        Shown shown;

        shown.chooser->setSrsText(text);

        QTEST(shown.combo->currentIndex(), "row");
        QCOMPARE(shown.announced(), QStringList{code});
        QVERIFY(!shown.combo->isEditable());
    }

    void selectsByCode_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("rowText");
        QTest::addColumn<int>("rowCount");

        QTest::newRow("listed") << u"EPSG:4326"_s << 2 << Wgs84 << 5;
        QTest::newRow("nowhere") << u"EPSG:32631"_s << 0 << u"EPSG:32631"_s << 6;
        QTest::newRow("inside another code") << u"EPSG:303"_s << 3 << u"EPSG:303"_s << 6;
        QTest::newRow("inside Other...") << u"ther"_s << 4 << u"ther"_s << 6;
        QTest::newRow("behind an alias") << Utm << 0 << Lambert << 5;
    }
    void selectsByCode()
    {
        QFETCH(QString, code);
        Shown shown;

        shown.chooser->setSrsCode(code);

        QTEST(shown.combo->currentIndex(), "row");
        QTEST(shown.combo->currentText(), "rowText");
        QTEST(shown.combo->count(), "rowCount");
        QCOMPARE(shown.combo->currentData(Qt::BackgroundRole).value<QColor>(),
                 QColor(255, 208, 208));
        QVERIFY(shown.chooser->currentEntry().has_value());
        QCOMPARE(shown.announced(), QStringList());
    }

    void goesBackToTheReference_data()
    {
        QTest::addColumn<std::function<void(VltSrsChooser &)>>("refer");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("text");

        using Refer = std::function<void(VltSrsChooser &)>;
        QTest::newRow("first row") << Refer([](VltSrsChooser &) {}) << u"EPSG:2154"_s << Lambert;
        QTest::newRow("new code") << Refer([](VltSrsChooser &c) { c.setSrsCode(u"A:1"_s); })
                                  << u"A:1"_s << u"A:1"_s;
        QTest::newRow("by text is no reference")
            << Refer([](VltSrsChooser &c) { c.setSrsText(u"WGS"_s); }) << u"EPSG:2154"_s << Lambert;
        QTest::newRow("user-defined") << Refer([](VltSrsChooser &c) {
            c.selectEntry(SrsEntry{u"B"_s, {}, u"def"_s, true});
        }) << u"def"_s << u"B"_s;
        QTest::newRow("row under another alias") << Refer([](VltSrsChooser &c) {
            c.selectEntry(SrsEntry{u"World"_s, {}, u"EPSG:4326"_s, false});
        }) << QString() << QString();
        QTest::newRow("none") << Refer([](VltSrsChooser &c) { c.setSrsCode({}); }) << QString()
                              << u"Undefined"_s;
    }
    void goesBackToTheReference()
    {
        QFETCH(std::function<void(VltSrsChooser &)>, refer);
        QFETCH(QString, code);
        QFETCH(QString, text);
        Shown shown;
        refer(*shown.chooser);
        shown.pick(shown.combo->findText(u"EPSG:3035"_s));
        shown.announced();

        QTest::mouseClick(shown.reset, Qt::LeftButton);

        QCOMPARE(shown.announced(), QStringList{code});
        QCOMPARE(shown.combo->currentText(), text);
        QCOMPARE(shown.combo->isEditable(), text == u"Undefined");
        QVERIFY(!shown.reset->isEnabled());
        QVERIFY(text == u"Undefined" || shown.combo->hasFocus());
    }

    void takesATypedDefinition_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("alias");
        QTest::addColumn<QStringList>("announced");
        QTest::addColumn<bool>("asks");
        QTest::addColumn<QString>("shows");

        const QStringList none;
        QTest::newRow("new, with alias")
            << u"EPSG:4326"_s << u"A"_s << QStringList{u"EPSG:4326"_s} << true << u"A"_s;
        QTest::newRow("new, cancelled")
            << u"EPSG:4326"_s << QString() << none << true << u"EPSG:4326"_s;
        QTest::newRow("a row") << Wgs84 << QString() << QStringList{u"EPSG:4326"_s} << false
                               << Wgs84;
        QTest::newRow("not quite a row")
            << Wgs84.toLower() << QString() << QStringList{QString()} << false << Wgs84.toLower();
        QTest::newRow("begins like a row")
            << u"EPSG:303"_s << QString() << QStringList{QString()} << false << u"EPSG:303"_s;
        QTest::newRow("no definition")
            << u"nonsense"_s << QString() << QStringList{QString()} << false << u"nonsense"_s;
        QTest::newRow("nothing") << QString() << QString() << none << false << QString();
    }
    void takesATypedDefinition()
    {
        QFETCH(QString, typed);
        QFETCH(QString, alias);
        QFETCH(bool, asks);
        Shown shown;
        DialogAnswers answers(alias.isEmpty() ? cancel : acceptAlias(alias));
        for (int i = 0; i < 3; ++i) // one Return is one reaction all the same
            shown.chooser->setSrsCode({});
        QVERIFY(shown.isUndefined());

        shown.type(typed);

        QTEST(shown.announced(), "announced");
        QCOMPARE(answers.opened, asks ? QStringList{u"dialogToEditAlias"_s} : QStringList());
        QTEST(shown.combo->currentText(), "shows");
        QCOMPARE(shown.combo->isEditable(), shown.chooser->currentCode().isEmpty());
        QCOMPARE(shown.pressed.count(), 0);
        QCOMPARE(shown.window.focusWidget(), shown.combo);

        const bool added = !alias.isEmpty();
        QCOMPARE(shown.reset->isEnabled(), added);
        QCOMPARE(shown.combo->currentIndex() == 0, added);
        QCOMPARE(m_settings.stored(u"UserDefinedSrsList"_s),
                 added ? (QStringList{u"1_ALIAS="_s + alias, u"1_CODE="_s + typed})
                       : QStringList());
        QCOMPARE(m_settings.stored(u"LastUsedSrsList"_s).contains(u"1_ALIAS="_s + alias), added);
    }

    void leavesReturnAloneAfterAnEmptyText()
    {
        Shown shown;

        shown.chooser->setSrsText({});
        QVERIFY(shown.isUndefined());
        QCOMPARE(shown.announced(), QStringList{QString()});

        shown.type(u"nonsense"_s);
        QCOMPARE(shown.announced(), QStringList());
    }

    void choosesFromTheDialog_data()
    {
        QTest::addColumn<bool>("withDefaults");
        QTest::addColumn<int>("chosen"); // row of the dialog, -1 to cancel
        QTest::addColumn<QStringList>("announced");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("newest");

        QTest::newRow("cancelled")
            << true << -1 << QStringList() << u"Mine"_s << 1 << u"1_CODE="_s + Utm;
        QTest::newRow("listed") << true << 2 << QStringList{u"EPSG:3035"_s} << u"EPSG:3035"_s << 3
                                << u"1_CODE=EPSG:3035"_s;
        QTest::newRow("listed under its old alias")
            << true << 1 << QStringList{u"EPSG:2154"_s} << Lambert << 0 << u"1_CODE=EPSG:2154"_s;
        QTest::newRow("not listed")
            << false << 0 << QStringList{u"EPSG:4326"_s} << Wgs84 << 0 << u"1_CODE=EPSG:4326"_s;
    }
    void choosesFromTheDialog()
    {
        QFETCH(bool, withDefaults);
        QFETCH(int, chosen);
        QFETCH(QString, newest);
        Shown shown(withDefaults);
        shown.pick(1);
        shown.announced();
        DialogAnswers answers(chosen < 0 ? cancel : acceptDefault(chosen));

        shown.pick(shown.combo->count() - 1);

        QCOMPARE(answers.opened, QStringList{u"dialogVltSrsChooser"_s});
        QTEST(shown.announced(), "announced");
        QTEST(shown.combo->currentText(), "text");
        QTEST(shown.combo->currentIndex(), "row");
        QVERIFY(shown.reset->isEnabled() && !shown.combo->isEditable());
        QCOMPARE(lastUsedCodes().first(), newest);
    }

    void startsUndefinedWithNothingButOther()
    {
        m_settings.reset();
        Shown shown;
        DialogAnswers answers(cancel);
        QCOMPARE(shown.rows(), QStringList{u"Other..."_s});
        QVERIFY(shown.isUndefined());

        shown.pick(0);
        shown.pick(0);
        QCOMPARE(answers.opened.size(), 2);
        QVERIFY(shown.isUndefined() && !shown.reset->isEnabled());

        shown.type(u"nonsense"_s);
        QCOMPARE(shown.announced(), QStringList());
    }

    void tellsInTheToolTipWhatTheRowDoesNotSay_data()
    {
        QTest::addColumn<SrsEntry>("entry");
        QTest::addColumn<QString>("toolTip");

        const QString tall = QString(200, u'x');
        QTest::newRow("plain") << SrsEntry{u"a"_s, {}, u"A:1"_s, false} << QString();
        QTest::newRow("cut") << SrsEntry{tall, {}, u"A:1"_s, false} << tall + u" , A:1"_s;
        QTest::newRow("user-defined")
            << SrsEntry{u"a"_s, {}, u"<b>c</b>"_s, true} << u"&lt;b&gt;c&lt;/b&gt;"_s;
    }
    void tellsInTheToolTipWhatTheRowDoesNotSay()
    {
        QFETCH(SrsEntry, entry);
        QFETCH(QString, toolTip);
        Shown shown;
        shown.chooser->selectEntry(entry);

        QHelpEvent event(QEvent::ToolTip, {5, 5}, shown.combo->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(shown.combo, &event);

        QCOMPARE(QToolTip::text().isEmpty(), toolTip.isEmpty());
        QVERIFY2(QToolTip::text().contains(toolTip), qPrintable(QToolTip::text()));
    }

    void keepsTheWheelHarmless()
    {
        Shown shown;
        DialogAnswers answers(cancel);
        shown.next->setFocus();
        turnWheelDown(shown.combo);
        QCOMPARE(shown.combo->currentIndex(), 0);

        shown.combo->setFocus();
        for (int i = 0; i < 6; ++i)
            turnWheelDown(shown.combo);
        QCOMPARE(shown.combo->currentText(), u"EPSG:3035"_s);
        QCOMPARE(answers.opened, QStringList());
    }
};


QTEST_MAIN(TestSrsChooser)
#include "tst_SrsChooser.moc"
