#include "srs/LastUsedSrsList.h"
#include "srs/UserDefinedSrsList.h"
#include "srs/ui/VltSrsChooser.h"
#include "support/Cases.h"
#include "support/Patience.h"
#include "support/PrivateSettings.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

using namespace Qt::StringLiterals;
using namespace vlt::srs;

namespace {

const QString Utm = u"+proj=utm +zone=31 +datum=WGS84"_s;
const QString Lambert = u"Lambert-93 , EPSG:2154"_s;
const QString Wgs84 = u"WGS 84 , EPSG:4326"_s;

/// A chooser in a dialog that its default button would close.
struct Shown
{
    explicit Shown(bool withDefaults = true, bool withOther = true)
        : chooser(new VltSrsChooser(&window, u"System"_s, withDefaults, withOther))
        , combo(chooser->findChild<QComboBox *>(u"m_pCBSrs"_s))
        , reset(chooser->findChild<QPushButton *>(u"m_pPBResetSrs"_s))
        , selected(chooser, &VltSrsChooser::SrsSelected)
    {
        const auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, &window);
        QObject::connect(buttons, &QDialogButtonBox::accepted, &window, &QDialog::accept);
        chooser->populate();
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window, PatienceMs));
    }

    /// Chooses a row like a user: opens the list, goes to the row, presses Return.
    void pick(int row)
    {
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(row, 0));
        QTest::keyClick(combo->view(), Qt::Key_Return);
    }

    /// Text and grey value of the background of each row.
    QStringList rows() const
    {
        QStringList rows;
        for (int row = 0; row < combo->count(); ++row) {
            const auto background = combo->itemData(row, Qt::BackgroundRole).value<QColor>();
            rows += combo->itemText(row) + u' ' + QString::number(background.blue());
        }
        return rows;
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

    QDialog window;
    VltSrsChooser *chooser;
    QComboBox *combo;
    QPushButton *reset;
    QSignalSpy selected;
};

/// Types the answer into each dialog and accepts it as soon as possible, as long as it exists;
/// cancels the dialog without an answer.
class DialogAnswers : public QTimer
{
public:
    explicit DialogAnswers(const QString &answer)
    {
        callOnTimeout([answer] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            auto *ok = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
            dialog->findChild<QLineEdit *>()->setText(answer);
            if (answer.isEmpty())
                dialog->reject();
            else if (ok->isEnabled())
                ok->click();
        });
        start(20);
    }
};

} // namespace

class tst_SrsChooser : public QObject
{
    Q_OBJECT

    PrivateSettings m_settings;

private Q_SLOTS:
    void init()
    {
        m_settings.reset("[VltDefaultSrs]\nSrsCode_1=EPSG:4326\nSrsShortName_1=WGS 84\n"
                         "SrsCode_2=EPSG:2154\nSrsShortName_2=RGF93\nSrsCode_3=EPSG:3035\n");
        LastUsedSrsList lastUsed;
        lastUsed.use({u"Mine"_s, {}, Utm, true});
        lastUsed.use({u"Lambert-93"_s, {}, u"EPSG:2154"_s});
    }

    void listsWhatItIsAskedFor()
    {
        const QStringList used = {Lambert + u" 255"_s, u"Mine 255"_s};
        const QStringList defaults = {Wgs84 + u" 208"_s, u"EPSG:3035 208"_s};
        const QStringList other = {u"Other... 160"_s};

        QCOMPARE(Shown(true, true).rows(), used + defaults + other);
        QCOMPARE(Shown(false, true).rows(), used + other);

        Shown withoutOther(true, false);
        QCOMPARE(withoutOther.rows(), used + defaults);
        withoutOther.pick(2); // neither signalled nor recorded
        QCOMPARE(withoutOther.chooser->currentCode(), u"EPSG:4326"_s);
        QCOMPARE(withoutOther.announced(), QStringList());
        QCOMPARE(LastUsedSrsList().at(0).code, u"EPSG:2154"_s);
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
        QCOMPARE(LastUsedSrsList().at(0).code, u"EPSG:4326"_s);

        shown.reset->click();
        QCOMPARE(shown.announced(), QStringList{u"EPSG:2154"_s});
    }

    /// Rows that the user passes in the open list are not chosen, because the builder shares the
    /// list of the last used systems.
    void choosesInTheOpenListOnly()
    {
        Shown shown;
        shown.combo->setFocus();
        QWheelEvent wheel({5, 5}, shown.combo->mapToGlobal(QPointF(5, 5)), {}, {0, -120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(shown.combo, &wheel);
        QVERIFY(!wheel.isAccepted());

        for (const int key : {int(Qt::Key_Down), int(Qt::Key_PageDown), int(Qt::Key_W)}) {
            QTest::keyClick(shown.combo, Qt::Key(key));
            QVERIFY(shown.combo->view()->isVisible());
            QTest::keyClick(shown.combo->view(), Qt::Key_Escape);
        }
        QCOMPARE(shown.announced(), QStringList());

        QTest::keyClick(shown.combo, Qt::Key_Down);
        QTest::keyClick(shown.combo->view(), Qt::Key_Down);
        QTest::keyClick(shown.combo->view(), Qt::Key_Return);
        QCOMPARE(shown.announced(), QStringList{u"EPSG:4326"_s});
    }

    void selectsByText()
    {
        Shown shown;

        shown.chooser->setSrsText(u"wgs"_s);
        shown.chooser->setSrsText(u"epsg"_s);
        shown.chooser->setSrsText(u"EPSG:32631"_s);
        QCOMPARE(shown.announced(), (QStringList{u"EPSG:4326"_s, u"EPSG:2154"_s, QString()}));

        shown.chooser->setSrsText(u"other"_s);
        QCOMPARE(shown.combo->currentText(), u"Other..."_s);
        shown.chooser->setSrsText({});
        QCOMPARE(shown.announced(), (QStringList{QString(), QString()}));
        QCOMPARE(shown.combo->currentText(), u"Undefined"_s);
    }

    void selectsByCodeAndGoesBackToIt_data()
    {
        const Cases<QString, int, int> row({"code", "row", "rowCount"});
        row("listed", "EPSG:4326", 2, 5);
        row("nowhere", "A:1", 0, 6);
        row("inside another", "EPSG:43", 2, 6);
        row("inside Other...", "ther", 4, 6);
        row("behind an alias", Utm, 0, 5);
        row("none", {}, -1, 5);
    }
    void selectsByCodeAndGoesBackToIt()
    {
        QFETCH(QString, code);
        Shown shown;

        shown.chooser->setSrsCode(code);
        QTEST(shown.combo->currentIndex(), "row");
        QTEST(shown.combo->count(), "rowCount");
        const auto background = shown.combo->currentData(Qt::BackgroundRole).value<QColor>();
        QCOMPARE(background, code.isEmpty() ? QColor() : QColor(255, 208, 208));
        QCOMPARE(shown.announced(), QStringList());

        shown.pick(shown.combo->findText(u"EPSG:3035"_s));
        shown.announced();
        shown.reset->click();
        QCOMPARE(shown.announced(), QStringList{code});
        QVERIFY(!shown.reset->isEnabled());
        QCOMPARE(shown.combo->isEditable(), code.isEmpty());
    }

    void takesATypedDefinition_data()
    {
        const Cases<QString, QString, QStringList> row({"typed", "alias", "announced"});
        const QStringList code = {u"EPSG:4326"_s};
        row("new, with alias", code.first(), "A", code);
        row("new, cancelled", code.first(), {}, {});
        row("a row", Wgs84, {}, code);
        row("not quite a row", Wgs84.toLower(), {}, {QString()});
        row("heights", "EPSG:5720", {}, {QString()});
        row("nothing", {}, {}, {});
    }
    void takesATypedDefinition()
    {
        QFETCH(QString, typed);
        QFETCH(QString, alias);
        QFETCH(QStringList, announced);
        const bool added = !alias.isEmpty();
        Shown shown;
        const DialogAnswers answers(alias);
        for (int i = 0; i < 3; ++i) // Return still has one reaction after repeated calls
            shown.chooser->setSrsCode({});

        shown.combo->lineEdit()->clear();
        QTest::keyClicks(shown.combo, typed);
        QTest::keyClick(shown.combo, Qt::Key_Return);

        QTEST(shown.announced(), "announced");
        QCOMPARE(shown.combo->currentText(), added ? alias : typed);
        QCOMPARE(shown.combo->isEditable(), shown.chooser->currentCode().isEmpty());
        QVERIFY(shown.window.isVisible());
        const auto *hint = shown.chooser->findChild<QLabel *>(u"m_pLHint"_s);
        QCOMPARE(hint->isVisible(), announced == QStringList{QString()});
        QCOMPARE(hint->text().contains(u"heights"_s), typed == u"EPSG:5720");
        QCOMPARE(shown.reset->isEnabled(), added);
        QCOMPARE(shown.combo->currentIndex() == 0, added);
        QCOMPARE(UserDefinedSrsList().indexOfCode(typed) == 0, added);
        QCOMPARE(LastUsedSrsList().at(0).alias, added ? alias : u"Lambert-93"_s);
    }

    void choosesFromTheDialog()
    {
        Shown shown(false);
        const auto answerOther = [&shown](const QString &answer) {
            const DialogAnswers answers(answer);
            shown.pick(shown.combo->count() - 1);
            return shown.combo->currentText();
        };
        shown.pick(1);
        shown.announced();

        QCOMPARE(answerOther({}), u"Mine"_s);
        QCOMPARE(answerOther(u"EPSG:2154"_s), Lambert);
        QCOMPARE(answerOther(u"EPSG:4326"_s), Wgs84); // not listed yet
        QCOMPARE(shown.combo->currentIndex(), 0);
        QCOMPARE(shown.announced(), (QStringList{u"EPSG:2154"_s, u"EPSG:4326"_s}));
        QCOMPARE(LastUsedSrsList().at(0).code, u"EPSG:4326"_s);
    }

    void startsUndefinedWithNothingButOther()
    {
        m_settings.reset();
        Shown shown;
        QCOMPARE(shown.combo->currentText(), u"Undefined"_s);

        const DialogAnswers cancelled({});
        shown.pick(0);
        QCOMPARE(shown.combo->currentText(), u"Undefined"_s);
        QTest::keyClicks(shown.combo, u"EPSG:4326"_s);
        QTest::keyClick(shown.combo, Qt::Key_Return); // the text is not used; a hint is shown
        QVERIFY(shown.chooser->findChild<QLabel *>(u"m_pLHint"_s)->isVisible());
    }
};

QTEST_MAIN(tst_SrsChooser)
#include "tst_SrsChooser.moc"
