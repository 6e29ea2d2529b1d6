#include "preview/VisibleDistance.h"
#include "preview/VltTrackBall.h"
#include "preview/W_simpleOSGViewer.h"
#include "support/Cases.h"
#include "support/Patience.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <osg/Geode>
#include <osg/LOD>
#include <osg/MatrixTransform>
#include <osg/Notify>
#include <osg/Shape>
#include <osg/ShapeDrawable>

#include <atomic>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QColor Sky(51, 102, 204); // 0.2, 0.4, 0.8

/// A white ball of 10 m around a point.
osg::ref_ptr<osg::Node> ballAt(const osg::Vec3 &center)
{
    osg::ref_ptr<osg::Geode> ball = new osg::Geode;
    ball->addDrawable(new osg::ShapeDrawable(new osg::Sphere(osg::Vec3(), 10)));
    osg::ref_ptr<osg::MatrixTransform> place =
        new osg::MatrixTransform(osg::Matrix::translate(center));
    place->addChild(ball);
    return place;
}

/// Records the events of the viewer's queue.
class Recorder : public osgGA::GUIEventHandler
{
public:
    bool handle(const osgGA::GUIEventAdapter &event, osgGA::GUIActionAdapter &) override
    {
        if (event.getEventType() == osgGA::GUIEventAdapter::PUSH)
            pushed << event.getButton();
        if (event.getEventType() == osgGA::GUIEventAdapter::SCROLL)
            scrolled += event.getScrollingDeltaY();
        return false;
    }

    QList<int> pushed;
    float scrolled = 0;
};

/// Collects the notices of the scene library.
class Notices : public osg::NotifyHandler
{
public:
    void notify(osg::NotifySeverity /*severity*/, const char *message) override { text += message; }

    std::string text;
};

class OpenViewer : public W_simpleOSGViewer
{
public:
    using W_simpleOSGViewer::resizeGL;
};

bool isSky(const QImage &picture, const QPoint &at)
{
    const QColor color = picture.pixelColor(at);
    return qAbs(color.red() - Sky.red()) < 3 && qAbs(color.green() - Sky.green()) < 3 &&
           qAbs(color.blue() - Sky.blue()) < 3;
}

} // namespace

class tst_Viewer : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> m_window;
    OpenViewer *m_viewer = nullptr;

    osg::Vec3d eye() const
    {
        osg::Vec3d eye;
        osg::Vec3d center;
        osg::Vec3d up;
        m_viewer->getCamera()->getViewMatrixAsLookAt(eye, center, up);
        return eye;
    }
    bool centerIsSky() const
    {
        const QImage picture = m_viewer->grabFramebuffer();
        return isSky(picture, picture.rect().center());
    }
    void waitForFrames() { QTest::qWait(150); }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_viewer = new OpenViewer;
        m_viewer->setParent(m_window.get());
        (new QVBoxLayout(m_window.get()))->addWidget(m_viewer);
        m_window->resize(300, 200);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get(), PatienceMs));
    }
    void initTestCase() { qRegisterMetaType<QMouseEvent *>("QMouseEvent*"); }
    void cleanup() { m_window.reset(); }

    void drawsTheSkyAndThenTheWholeScene()
    {
        waitForFrames();
        QVERIFY(centerIsSky());

        m_viewer->showScene(ballAt({300, 200, 100}));
        waitForFrames();

        QVERIFY(!centerIsSky());
        const osg::Vec3d before = eye();
        m_viewer->showScene(ballAt({0, 0, 0})); // the camera stays at the user's position
        waitForFrames();
        QVERIFY((eye() - before).length() < 1e-6);
        m_viewer->centerView();
        waitForFrames();
        QVERIFY(isSky(m_viewer->grabFramebuffer(), {2, 2}));
    }

    void looksFromNoFartherThanItMay()
    {
        m_viewer->setMaxDistanceM(50);
        m_viewer->showScene(ballAt({300, 200, 100}));
        waitForFrames();
        QVERIFY(std::abs((eye() - osg::Vec3d(300, 200, 100)).length() - 50) < 0.1);

        m_viewer->setMaxDistanceM(1e6);
        m_viewer->centerView();
        waitForFrames();
        const double distanceM = (eye() - osg::Vec3d(300, 200, 100)).length();
        QVERIFY(distanceM > 60 && distanceM < 200);
    }

    void knowsHowFarAllIsDrawnAtItsBest_data()
    {
        using Ranges = QList<QPair<float, float>>;
        // near: ranges of a tile
        const Cases<Ranges, Ranges, double> row({"near", "other", "distanceM"});
        const double endless = std::numeric_limits<double>::infinity();
        row("no levels", Ranges{}, Ranges{}, endless);
        row("two tiles", Ranges{{0, 2050}}, Ranges{{0, 2010}}, 2010);
        row("images end before plain colours", Ranges{{0, 500}, {500, 2050}}, Ranges{{0, 2010}},
            500);
        row("a level that is never drawn", Ranges{{0, 0}, {0, 2050}}, Ranges{}, 2050);
    }

    void knowsHowFarAllIsDrawnAtItsBest()
    {
        using Ranges = QList<QPair<float, float>>;
        QFETCH(Ranges, near);
        QFETCH(Ranges, other);
        osg::ref_ptr<osg::Group> scene = new osg::Group;
        osg::ref_ptr<osg::LOD> bySize = new osg::LOD;
        bySize->setRangeMode(osg::LOD::PIXEL_SIZE_ON_SCREEN);
        scene->addChild(bySize);
        for (const Ranges &ranges : {near, other}) {
            osg::ref_ptr<osg::LOD> tile = new osg::LOD;
            for (const auto &[from, to] : ranges)
                tile->addChild(new osg::Group, from, to);
            bySize->addChild(tile, 0, 1);
        }

        QTEST(visibleDistanceM(*scene), "distanceM");
    }

    void drawsAgainInAnotherWindowAndAfterHiding()
    {
        m_viewer->showScene(ballAt({}));
        QWidget other;
        other.resize(400, 300);
        (new QVBoxLayout(&other))->addWidget(m_viewer);
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other, PatienceMs));
        waitForFrames();
        QVERIFY(!centerIsSky());

        m_viewer->hide();
        waitForFrames();
        m_viewer->show();
        waitForFrames();
        QVERIFY(!centerIsSky());
        QCOMPARE(m_viewer->referenceCount(), 1);
    }

    void numbersButtonsAndHandsTheWheelOn()
    {
        osg::ref_ptr<Recorder> recorder = new Recorder;
        m_viewer->addEventHandler(recorder);
        QSignalSpy stops(m_viewer, &W_simpleOSGViewer::emitStopDemo);
        m_viewer->showScene(ballAt({}));
        const osg::Matrixd before = m_viewer->getCameraManipulator()->getInverseMatrix();

        for (const auto button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
            QTest::mousePress(m_viewer, button);
            QTest::mouseRelease(m_viewer, button);
        }
        QWheelEvent wheel({5, 5}, m_viewer->mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_viewer, &wheel);

        // the scene library's numbers of the left, middle and right button
        QTRY_COMPARE_WITH_TIMEOUT(recorder->pushed, QList<int>({1, 2, 4}), PatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(recorder->scrolled, 120, PatienceMs);
        QVERIFY(m_viewer->getCameraManipulator()->getInverseMatrix() != before); // nearer
        QCOMPARE(stops.count(), 3);
    }

    void movesTheCameraOnlyWithAButtonPressed()
    {
        m_viewer->showScene(ballAt({}));
        waitForFrames();
        const osg::Vec3d before = eye();
        QSignalSpy moves(m_viewer, &W_simpleOSGViewer::emitMouseMoved);

        QMouseEvent move(QEvent::MouseMove, {100, 50}, m_viewer->mapToGlobal(QPointF(100, 50)),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(m_viewer, &move);
        waitForFrames();
        QCOMPARE(moves.count(), 1);
        QCOMPARE((eye() - before).length(), 0);

        QTest::mousePress(m_viewer, Qt::LeftButton, {}, {50, 50});
        for (int x = 60; x <= 120; x += 10) {
            QMouseEvent drag(QEvent::MouseMove, QPointF(x, 50),
                             m_viewer->mapToGlobal(QPointF(x, 50)), Qt::NoButton, Qt::LeftButton,
                             Qt::NoModifier);
            QApplication::sendEvent(m_viewer, &drag);
            waitForFrames();
        }
        QVERIFY((eye() - before).length() > 1);
        QCOMPARE(moves.count(), 1);
    }

    void movesByKeys_data()
    {
        // bearing of the camera and its elevation, from 215.5 and 18 degrees; the distance and the
        // centre's move to the east in metres, from a distance of 100 m
        const Cases<int, bool, double, double, double, double> row(
            {"key", "isShifted", "bearing", "elevation", "distance", "east"});
        row("left", Qt::Key_Left, false, 210.5, 18, 100, 0);
        row("right", Qt::Key_Right, false, 220.5, 18, 100, 0);
        row("up", Qt::Key_Up, false, 215.5, 23, 100, 0);
        row("down", Qt::Key_Down, false, 215.5, 13, 100, 0);
        row("to the right", Qt::Key_Right, true, 215.5, 18, 100, 4.071);
        row("ahead", Qt::Key_Up, true, 215.5, 18, 100, 2.904);
        row("nearer", Qt::Key_Plus, false, 215.5, 18, 86.957, 0);
        row("from above", Qt::Key_T, false, 180, 90, 100, 0);
        row("all", Qt::Key_F, false, 215.5, 18, 91.4, 0);
    }
    void movesByKeys()
    {
        QFETCH(int, key);
        QFETCH(bool, isShifted);
        m_viewer->showScene(ballAt({}));
        m_viewer->placeCamera(100, 0);
        waitForFrames();

        QTest::keyClick(m_viewer, Qt::Key(key), isShifted ? Qt::ShiftModifier : Qt::NoModifier);
        waitForFrames();

        osg::Vec3d at;
        osg::Vec3d center;
        osg::Vec3d up;
        m_viewer->getCamera()->getViewMatrixAsLookAt(at, center, up);
        const osg::Vec3d view = center - at;
        const double seenDistance =
            m_viewer->getCamera()->getViewport()->height() / m_viewer->levelOfDetail();
        const osg::Vec3d heading = view.z() < -0.999 ? up : view;
        const double direction = osg::RadiansToDegrees(std::atan2(-heading.x(), -heading.y()));
        const std::pair<const char *, double> seen[] = {
            {"bearing", direction < 0 ? direction + 360 : direction},
            {"elevation", osg::RadiansToDegrees(std::asin(-view.z()))},
            {"distance", seenDistance},
            {"east", (at + view * seenDistance).x()}};
        for (const auto &[column, value] : seen) {
            const double expected =
                *static_cast<const double *>(QTest::qData(column, QMetaType::Double));
            QVERIFY2(std::abs(value - expected) < 0.05,
                     qPrintable(u"%1: %2"_s.arg(QLatin1String(column)).arg(value)));
        }
    }

    void zoomsToThePointer()
    {
        m_viewer->showScene(ballAt({}));
        m_viewer->placeCamera(200, 0);
        m_viewer->lookDown();
        waitForFrames();
        const osg::Vec3d mark(20, -10, 0);
        const auto seenAt = [&] {
            const osg::Camera &camera = *m_viewer->getCamera();
            const osg::Vec3d place = mark * (camera.getViewMatrix() * camera.getProjectionMatrix() *
                                             camera.getViewport()->computeWindowMatrix());
            return QPointF(place.x(), camera.getViewport()->height() - place.y());
        };
        const QPointF before = seenAt();

        QWheelEvent wheel(before, m_viewer->mapToGlobal(before), {}, {0, 480}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_viewer, &wheel);
        waitForFrames();

        QVERIFY(eye().z() < 150);
        const QPointF moved = seenAt() - before;
        QVERIFY2(moved.manhattanLength() < 0.5, qPrintable(QString::number(moved.x())));
    }

    void turnsUntilAButtonIsPressed()
    {
        m_viewer->showScene(ballAt({}));
        m_viewer->startDemo();
        waitForFrames();
        const osg::Vec3d before = eye();
        waitForFrames();
        QVERIFY((eye() - before).length() > 0.1);
        QVERIFY(qAbs(eye().z() - before.z()) < 1e-6);

        QTest::mouseClick(m_viewer, Qt::RightButton);
        waitForFrames();
        const osg::Vec3d stopped = eye();
        waitForFrames();
        QCOMPARE((eye() - stopped).length(), 0);
    }

    void showsTheGroundUnderTheScene()
    {
        // at first a rough ground, green, then a red one, made again when the camera is nearer
        using vlt::landscape::Detail;
        std::atomic<int> made = 0;
        std::atomic<int> wasRough = 0;
        const GroundMaker ground = [&](const osg::Vec3d &, const osg::Vec3d &target,
                                       Detail detail) {
            ++made;
            const bool isRough = detail == Detail::Rough;
            wasRough += isRough ? 1 : 0;
            osg::ref_ptr<osg::Geode> box = new osg::Geode;
            box->addDrawable(new osg::ShapeDrawable(new osg::Box(
                osg::Vec3(0, 0, -15) + osg::Vec3(target.x(), target.y(), 0), 4000, 4000, 1)));
            static_cast<osg::ShapeDrawable *>(box->getDrawable(0))
                ->setColor(isRough ? osg::Vec4(0, 1, 0, 1) : osg::Vec4(1, 0, 0, 1));
            return osg::ref_ptr<osg::Node>(box);
        };
        const auto corner = [this] {
            const QImage picture = m_viewer->grabFramebuffer();
            return picture.pixelColor(3, picture.height() - 4);
        };
        const osg::ref_ptr<osg::Node> ball = ballAt({});

        m_viewer->showScene(ball, ground);
        m_viewer->centerView();

        QTRY_VERIFY_WITH_TIMEOUT(corner().red() > 2 * corner().blue() + 40, PatienceMs);
        QCOMPARE(m_viewer->getSceneData(), ball.get());
        QCOMPARE(made, 2);
        QCOMPARE(wasRough, 1);
        QSignalSpy picked(m_viewer, &W_simpleOSGViewer::emitSelection);
        QTest::mouseClick(m_viewer, Qt::LeftButton, {}, {3, m_viewer->height() - 4});
        QCOMPARE(picked.size(), 1);
        QVERIFY(picked[0][0].value<osgUtil::LineSegmentIntersector::Intersections>().empty());
        m_viewer->placeCamera(500, 0);
        QTRY_COMPARE_WITH_TIMEOUT(made, 3, PatienceMs);
        QCOMPARE(wasRough, 1);
        m_viewer->showScene(nullptr);
        QTRY_VERIFY_WITH_TIMEOUT(isSky(m_viewer->grabFramebuffer(), {3, 3}), PatienceMs);
        QVERIFY(isSky(m_viewer->grabFramebuffer(), {3, m_viewer->height() - 4}));
    }

    void drawsOnlyWhatChanges_data()
    {
        using Change = std::function<void(W_simpleOSGViewer &)>;
        // once: false for repeatedly
        const Cases<Change, bool> row({"change", "once"});
        row("wheel", Change([](W_simpleOSGViewer &view) {
                QWheelEvent wheel({5, 5}, view.mapToGlobal(QPointF(5, 5)), {}, {0, 120},
                                  Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                QApplication::sendEvent(&view, &wheel);
            }),
            true);
        row("key", Change([](W_simpleOSGViewer &view) { QTest::keyClick(&view, Qt::Key_Left); }),
            true);
        row("camera", Change([](W_simpleOSGViewer &view) { view.placeCamera(300, 20); }), true);
        row("size", Change([](W_simpleOSGViewer &view) { view.window()->resize(330, 240); }), true);
        row("scene", Change([](W_simpleOSGViewer &view) {
                view.showScene(ballAt({0, 0, 30}));
            }),
            true);
        row("scene, as the library takes it", Change([](W_simpleOSGViewer &view) {
                view.setSceneData(ballAt({0, 0, 30}));
            }),
            true);
        row("asked for", Change([](W_simpleOSGViewer &view) { view.requestRedraw(); }), true);
        row("demonstration", Change([](W_simpleOSGViewer &view) { view.startDemo(); }), false);
        row("scene that moves by itself", Change([](W_simpleOSGViewer &view) {
                osg::ref_ptr<osg::Node> ball = ballAt({});
                ball->setUpdateCallback(new osg::NodeCallback);
                view.showScene(ball);
            }),
            false);
    }

    void drawsOnlyWhatChanges()
    {
        QFETCH(std::function<void(W_simpleOSGViewer &)>, change);
        QFETCH(bool, once);
        m_viewer->showScene(ballAt({}));
        const auto frame = [this] { return m_viewer->getViewerFrameStamp()->getFrameNumber(); };
        const auto framesOfAWhile = [&frame] {
            const auto before = frame();
            QTest::qWait(250);
            return frame() - before;
        };
        QTRY_COMPARE_WITH_TIMEOUT(framesOfAWhile(), 0U, PatienceMs);
        const auto before = frame();

        change(*m_viewer);

        QTRY_VERIFY_WITH_TIMEOUT(frame() > before, PatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(framesOfAWhile() == 0, once, PatienceMs);
    }

    void reportsWhatAClickMeets()
    {
        m_viewer->showScene(ballAt({}));
        waitForFrames();
        QList<std::size_t> met;
        connect(m_viewer, &W_simpleOSGViewer::emitSelection, this,
                [&met](const auto &intersections) { met << intersections.size(); });

        QTest::mouseClick(m_viewer, Qt::LeftButton, {}, m_viewer->rect().center());
        QTest::mouseClick(m_viewer, Qt::LeftButton, {}, {3, 3});
        QTest::mousePress(m_viewer, Qt::LeftButton, {}, m_viewer->rect().center());
        QTest::mouseRelease(m_viewer, Qt::LeftButton, {}, {3, 3});

        QCOMPARE(met.size(), 2);
        QVERIFY(met.at(0) > 0);
        QCOMPARE(met.at(1), 0U);
    }

    void keepsTheProjectionAtNoHeight()
    {
        m_viewer->resizeGL(200, 100);
        double fieldOfView = 0;
        double aspect = 0;
        double nearPlane = 0;
        double farPlane = 0;
        const auto projection = [&] {
            m_viewer->getCamera()->getProjectionMatrixAsPerspective(fieldOfView, aspect, nearPlane,
                                                                    farPlane);
            return aspect;
        };
        QVERIFY(qAbs(projection() - 2) < 1e-6);

        m_viewer->resizeGL(70, 0);

        QVERIFY(qAbs(projection() - 2) < 1e-6);
        QCOMPARE(m_viewer->getCamera()->getViewport()->width(), 70);
    }

    void letsGoOfTheSceneWhenItEnds()
    {
        const osg::ref_ptr<osg::Node> scene = ballAt({});
        m_viewer->showScene(scene);
        waitForFrames();

        m_window.reset();

        QCOMPARE(scene->referenceCount(), 1);
    }

    void endsQuietlyWhereItWasNeverShown()
    {
        const osg::ref_ptr<Notices> notices = new Notices;
        osg::setNotifyHandler(notices);

        std::make_unique<W_simpleOSGViewer>().reset();

        osg::setNotifyHandler(new osg::StandardNotifyHandler);
        QCOMPARE(notices->text, std::string());
    }
};

QTEST_MAIN(tst_Viewer)
#include "tst_Viewer.moc"
