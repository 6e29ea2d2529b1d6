#include "gui/DropOnWidget.h"
#include "support/Cases.h"
#include "support/Patience.h"
#include "wizard/base/BasePage.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/DecimalSpinBox.h"
#include "wizard/base/DraggableIcon.h"
#include "wizard/base/ElidedCombos.h"
#include "wizard/base/VltResultPage.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QProgressDialog>
#include <QSemaphore>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

class ProbePage : public BasePage
{
public:
    explicit ProbePage(SharedParameters &parameters)
        : BasePage(nullptr, parameters, QString(), QString())
        , label(this)
    {
        setDropHighlightWidgets({&label});
        resize(100, 100);
    }

    void restoreSettings() override { ++restored; }
    void droppedFile(const QString &path) override { dropped << path; }

    QLabel label;
    int restored = 0;
    QStringList dropped;
};

/// A page whose values change while it writes, as they can while a message box is open.
class ProbeResultPage : public VltResultPage
{
public:
    explicit ProbeResultPage(SharedParameters &parameters)
        : VltResultPage(nullptr, parameters, QString(), QString(), {u"probe"_s, u"Probe"_s})
    {
        setResult({new QHBoxLayout(this), new QLabel(this), {}, {}});
    }

    int changesWhileWriting = 0;
    int written = 0;

private:
    std::optional<QString> obstacle() const override { return std::nullopt; }
    std::optional<vlt::Result<vlt::Done>> writeLayer(const QString & /*path*/,
                                                     vlt::platform::Access /*access*/) override
    {
        ++written;
        for (; changesWhileWriting > 0; --changesWhileWriting)
            updatePreview();
        return vlt::Done{};
    }
    void showLayer(const QString & /*path*/) override {}
    void showNoLayer(const QString & /*why*/) override {}
};

/// Accepts dropped links and keeps them.
class LinkTarget : public QWidget
{
public:
    LinkTarget() { setAcceptDrops(true); }

    QList<QUrl> urls;
    Qt::DropActions offered;

protected:
    void dragEnterEvent(QDragEnterEvent *event) override { event->accept(); }
    void dragMoveEvent(QDragMoveEvent *event) override { event->accept(); }
    void dropEvent(QDropEvent *event) override
    {
        urls = event->mimeData()->urls();
        offered = event->possibleActions();
        event->accept();
    }
};

/// Cancels the progress dialog as soon as it shows the share, in per cent; -1 for any share.
class CancelWhenShown
{
public:
    explicit CancelWhenShown(int percent)
    {
        m_timer.callOnTimeout([percent] {
            auto *dialog = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
            if (dialog && dialog->findChild<QProgressBar *>()->value() >= percent)
                dialog->cancel();
        });
        m_timer.start(10);
    }

private:
    QTimer m_timer;
};

} // namespace

class tst_PageBase : public QObject
{
    Q_OBJECT

    SharedParameters m_parameters;

private Q_SLOTS:
    void restoresSettingsOnce()
    {
        ProbePage page(m_parameters);

        page.initializePage();
        page.initializePage();

        QCOMPARE(page.restored, 1);
    }

    void takesTheFirstDroppedFile()
    {
        const QString first = u"/t/first \u00e9.csv"_s;
        ProbePage page(m_parameters);
        QMimeData text;
        text.setText(u"text"_s);
        QMimeData remote;
        remote.setUrls({QUrl(u"http://a.invalid/b.csv"_s)});

        QVERIFY(dragOver(&page, text));
        QVERIFY(page.label.font().underline());
        dragAway(&page);
        QVERIFY(!page.label.font().underline());

        dropOn(&page, text);
        dropOn(&page, remote);
        QCOMPARE(page.dropped, QStringList());
        dropFiles(&page, {first, u"/t/b"_s});
        QCOMPARE(page.dropped, QStringList{first});
        QVERIFY(!page.label.font().underline());
    }

    void makesOneLayerOfAllChangesThatArriveMeanwhile()
    {
        ProbeResultPage page(m_parameters);
        page.updatePreview();
        QCOMPARE(page.written, 0); // the page was not shown yet
        page.initializePage();

        page.changesWhileWriting = 3;
        page.updatePreview();

        QCOMPARE(page.written, 2);
        page.updatePreview();
        QCOMPARE(page.written, 3);
    }

    void keepsReturnFromTheWizard()
    {
        ProbePage page(m_parameters);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            press.ignore();
            QApplication::sendEvent(&page, &press);
            QVERIFY(press.isAccepted());
        }
    }

    void scalesTheDragImageToItsLongerSide()
    {
        QCOMPARE(DraggableIcon::dragImage(QPixmap(200, 100)).size(), QSize(48, 24));
        QCOMPARE(DraggableIcon::dragImage(QPixmap(100, 200)).size(), QSize(24, 48));
    }

    void bouncesOnlyWithAFile()
    {
        DraggableIcon icon(QPixmap(64, 64));
        icon.resize(80, 80);

        icon.setLayerFile(u"/t/a.lay"_s);
        QVERIFY(icon.isEnabled());
        QCOMPARE(icon.radius(), 40);
        QTRY_COMPARE_WITH_TIMEOUT(icon.radius(), 0, PatienceMs);

        icon.setLayerFile(QString());
        QVERIFY(!icon.isEnabled());
        QCOMPARE(icon.radius(), 0);
    }

    void endsOnlyCutTextsOfListsInAnEllipsis()
    {
        const auto picture = [](const QString &text) {
            QComboBox combo;
            combo.addItem(text);
            combo.setFixedSize(120, 30);
            return combo.grab().toImage();
        };
        const QString cut(40, u'm');
        const QImage cutBefore = picture(cut);
        const QImage wholeBefore = picture(u"whole"_s);
        QObject owner;
        vlt::wizard::elideCombos(&owner);
        QVERIFY(picture(cut) != cutBefore);
        QCOMPARE(picture(cut), picture(cut + u"mm"_s));
        QCOMPARE(picture(u"whole"_s), wholeBefore);
    }

    void takesThePointAndTheComma_data()
    {
        const Cases<QLocale, QString> row({"locale", "typed"});
        row("comma in French", QLocale(u"fr"_s), "1234,5");
        row("point in French", QLocale(u"fr"_s), "1234.5");
        row("comma in English", QLocale(u"en"_s), "1234,5");
    }

    void takesThePointAndTheComma()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, typed);
        DecimalSpinBox box;
        box.setLocale(locale);
        box.setRange(0, 1e8);

        box.selectAll();
        QTest::keyClicks(&box, typed);

        QCOMPARE(box.value(), 1234.5);
        box.setSuffix(u" m"_s);
        box.setValue(20);
        QCOMPARE(box.text(), u"20 m"_s); // not "20.00 m"
        box.setValue(0.5);
        QCOMPARE(box.text(), u"0"_s + locale.decimalPoint() + u"5 m"_s);
    }

    void givesTheLayerAsALink()
    {
        DraggableIcon icon(QPixmap(64, 64));
        LinkTarget target;
        icon.setLayerFile(u"/t/a b.lay"_s);
        icon.setGeometry(0, 0, 100, 100);
        target.setGeometry(300, 0, 200, 200);
        icon.show();
        target.show();
        QVERIFY(QTest::qWaitForWindowExposed(&icon, PatienceMs) &&
                QTest::qWaitForWindowExposed(&target, PatienceMs));

        QMouseEvent hover(QEvent::MouseMove, QPointF(50, 50), icon.mapToGlobal(QPointF(50, 50)),
                          Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&icon, &hover); // a drag would block forever

        // The drag blocks, so timers do the next steps.
        QTimer::singleShot(300, &target, [&] {
            QTest::mouseMove(target.windowHandle(), {90, 90});
            QTest::mouseMove(target.windowHandle(), {100, 100});
        });
        QTimer::singleShot(600, &target, [&] {
            QTest::mouseRelease(target.windowHandle(), Qt::LeftButton, {}, {100, 100});
        });
        QTest::mousePress(&icon, Qt::LeftButton, {}, {50, 50});
        QMouseEvent move(QEvent::MouseMove, QPointF(52, 50), icon.mapToGlobal(QPointF(52, 50)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&icon, &move);

        const QList<QUrl> expected = {QUrl::fromLocalFile(u"/t/a b.lay"_s)};
        QTRY_COMPARE_WITH_TIMEOUT(target.urls, expected, PatienceMs);
        QCOMPARE(target.offered, Qt::LinkAction);
        QTest::keySequence(&icon, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->mimeData()->urls(), expected);
        icon.setCompanions({u"/t/a b.texb"_s});
        QTest::keySequence(&icon, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->mimeData()->urls(),
                 expected + QList{QUrl::fromLocalFile(u"/t/a b.texb"_s)});

        icon.setLayerFile(u"./c.lay"_s); // relative, as without a temporary directory
        QTest::keySequence(&icon, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->mimeData()->urls(),
                 QList<QUrl>{QUrl::fromLocalFile(QDir::currentPath() + u"/./c.lay"_s)});
    }

    void letsTheUserCancelWork()
    {
        const auto hold = std::make_shared<QSemaphore>();
        const CancelWhenShown cancel(-1);
        const auto cancelled = vlt::wizard::waitForValue<int>(nullptr, u"slow"_s, [hold] {
            hold->acquire();
            return 8;
        });
        hold->release();
        QVERIFY(!cancelled);
    }

    void reportsCancelledWorkToStop()
    {
        const auto stopped = std::make_shared<QSemaphore>();
        const CancelWhenShown cancel(42);
        const auto cancelled = vlt::wizard::waitForValue<int>(
            nullptr, u"slow"_s, [stopped](const vlt::Progress &progress) {
                while (progress(0.42))
                    QThread::msleep(1);
                stopped->release();
                return 8;
            });
        QVERIFY(!cancelled);
        QVERIFY(stopped->tryAcquire(1, PatienceMs));
        QTRY_VERIFY_WITH_TIMEOUT(!vlt::wizard::isWorkRunning(), PatienceMs);

        const auto done = vlt::wizard::waitForValue<int>(
            nullptr, u"quick"_s, [](const vlt::Progress &progress) { return progress(1) ? 9 : 0; });
        QCOMPARE(done, 9);
    }
};

QTEST_MAIN(tst_PageBase)
#include "tst_PageBase.moc"
