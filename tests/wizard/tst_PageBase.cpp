#include "gui/DropOnWidget.h"
#include "wizard/base/BasePage.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/DraggableIcon.h"

#include <QClipboard>
#include <QProgressDialog>
#include <QSemaphore>
#include <QTest>
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

/// Takes links and keeps what came.
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

} // namespace

class TestPageBase : public QObject
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

    void takesTheFirstDroppedFile_data()
    {
        QTest::addColumn<QList<QUrl>>("urls");
        QTest::addColumn<QStringList>("taken");

        const QUrl first = QUrl::fromLocalFile(u"/t/first \u00e9.csv"_s);
        QTest::newRow("one") << QList<QUrl>{first} << QStringList{u"/t/first \u00e9.csv"_s};
        QTest::newRow("two") << QList<QUrl>{first, QUrl::fromLocalFile(u"/t/b"_s)}
                             << QStringList{u"/t/first \u00e9.csv"_s};
        QTest::newRow("text only") << QList<QUrl>{} << QStringList{};
        QTest::newRow("not a local file")
            << QList<QUrl>{QUrl(u"http://a.invalid/b.csv"_s)} << QStringList{};
    }

    void takesTheFirstDroppedFile()
    {
        QFETCH(QList<QUrl>, urls);
        ProbePage page(m_parameters);
        QMimeData data;
        data.setText(u"text"_s);
        if (!urls.isEmpty())
            data.setUrls(urls);

        dropOn(&page, data);

        QTEST(page.dropped, "taken");
        QVERIFY(!page.label.font().underline());
    }

    void underlinesWhileSomethingHovers()
    {
        ProbePage page(m_parameters);
        QMimeData data;
        data.setText(u"text"_s);

        QVERIFY(dragOver(&page, data));
        QVERIFY(page.label.font().underline());
        dragAway(&page);
        QVERIFY(!page.label.font().underline());
    }

    void scalesTheDragImageToItsLongerSide_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("image");

        QTest::newRow("wide") << QSize(200, 100) << QSize(48, 24);
        QTest::newRow("tall") << QSize(100, 200) << QSize(24, 48);
        QTest::newRow("square") << QSize(72, 72) << QSize(48, 48);
    }

    void scalesTheDragImageToItsLongerSide()
    {
        QFETCH(QSize, picture);

        QTEST(DraggableIcon::dragImage(QPixmap(picture)).size(), "image");
    }

    void bouncesOnlyWithAFile()
    {
        DraggableIcon icon(QPixmap(64, 64));
        icon.resize(80, 80);
        QVERIFY(!icon.isEnabled());

        icon.setLayerFile(u"/t/a.lay"_s);
        QVERIFY(icon.isEnabled());
        QCOMPARE(icon.radius(), 40);
        QTRY_COMPARE_WITH_TIMEOUT(icon.radius(), 0, 3000);

        icon.setLayerFile(QString());
        QVERIFY(!icon.isEnabled());
        QCOMPARE(icon.radius(), 0);
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
        QVERIFY(QTest::qWaitForWindowExposed(&icon) && QTest::qWaitForWindowExposed(&target));

        // the drag blocks: what follows happens from timers
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

        QTRY_COMPARE(target.urls, QList<QUrl>{QUrl::fromLocalFile(u"/t/a b.lay"_s)});
        QCOMPARE(target.offered, Qt::LinkAction);
    }

    void copiesTheLayerFileByKeyboard()
    {
        DraggableIcon icon(QPixmap(64, 64));
        icon.setLayerFile(u"/t/a.lay"_s);

        QTest::keySequence(&icon, QKeySequence::Copy);

        QCOMPARE(QGuiApplication::clipboard()->mimeData()->urls(),
                 QList<QUrl>{QUrl::fromLocalFile(u"/t/a.lay"_s)});
    }

    void waitsForWorkAndLetsTheUserCancel()
    {
        const auto quick = vlt::wizard::waitForValue<int>(nullptr, u"quick"_s, [] { return 7; });
        QCOMPARE(quick, 7);

        const auto hold = std::make_shared<QSemaphore>();
        QTimer::singleShot(500, this, [] {
            auto *dialog = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->cancel();
        });
        const auto cancelled = vlt::wizard::waitForValue<int>(nullptr, u"slow"_s, [hold] {
            hold->acquire();
            return 8;
        });
        hold->release();
        QVERIFY(!cancelled);
    }
};

QTEST_MAIN(TestPageBase)
#include "tst_PageBase.moc"
