#include "preview/VltReadingAids.h"
#include "preview/VltTrackBall.h"
#include "preview/W_simpleOSGViewer.h"
#include "support/Patience.h"
#include "support/PrivateSettings.h"

#include <QAbstractButton>
#include <QMenu>
#include <QTest>
#include <QVBoxLayout>

#include <osg/Geode>
#include <osg/Shape>
#include <osg/ShapeDrawable>
#include <osgViewer/Viewer>

using namespace Qt::StringLiterals;

class tst_ViewAids : public QObject
{
    Q_OBJECT

    static constexpr double NorthDeg = 10; ///< east of the y axis

    PrivateSettings m_settings;
    std::unique_ptr<QWidget> m_window;
    W_simpleOSGViewer *m_viewer = nullptr;
    QAbstractButton *m_north = nullptr;
    QWidget *m_scaleBar = nullptr;
    QWidget *m_legend = nullptr;
    QPointF m_asked;

    QWidget *view() { return m_viewer; }
    void pointAt(const QPoint &at)
    {
        QMouseEvent move(QEvent::MouseMove, at, m_viewer->mapToGlobal(QPointF(at)), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCursor::setPos(view()->mapToGlobal(at));
        QApplication::sendEvent(view(), &move);
    }
    /// Number of frames that the view has drawn, as soon as it draws no more of them.
    unsigned framesAtRest()
    {
        constexpr int RestMs = 400;
        const auto drawn = [this] { return m_viewer->getFrameStamp()->getFrameNumber(); };
        unsigned before = 0;
        do {
            before = drawn();
            QTest::qWait(RestMs);
        } while (drawn() != before);
        return before;
    }
    double bearingInFrame()
    {
        const osg::Matrixd &toEye = m_viewer->getCamera()->getViewMatrix();
        return osg::RadiansToDegrees(std::atan2(-toEye(0, 2), -toEye(1, 2)));
    }

private Q_SLOTS:
    void init()
    {
        m_settings.reset();
        vlt::platform::wizardSettings()->clear();
        m_window = std::make_unique<QWidget>();
        m_viewer = new W_simpleOSGViewer;
        m_viewer->setParent(m_window.get());
        (new QVBoxLayout(m_window.get()))->addWidget(m_viewer);
        osg::ref_ptr<osg::Geode> ball = new osg::Geode;
        ball->addDrawable(new osg::ShapeDrawable(new osg::Sphere(osg::Vec3(), 100)));
        m_viewer->showScene(ball, [](const osg::Vec3d &, const osg::Vec3d &,
                                     vlt::landscape::Detail) {
            osg::ref_ptr<osg::Geode> ground = new osg::Geode;
            ground->addDrawable(new osg::ShapeDrawable(new osg::Box({0, 0, -100}, 2e3, 2e3, 1)));
            return ground;
        });
        auto *aids = new VltReadingAids(*m_viewer);
        aids->show(true, {[](double, double) { return NorthDeg; },
                          {{u"Level"_s, {}, {{Qt::red, u"high"_s}}}},
                          [this](double x, double y) {
                              m_asked = {x, y};
                              return vlt::readingaids::GroundPlace{u"A system"_s, x, y, {}, {}, {}};
                          }});
        m_north = view()->findChild<QAbstractButton *>(u"m_pwNorth"_s);
        m_legend = view()->findChild<QWidget *>(u"m_pwLegend"_s);
        m_scaleBar = view()->findChild<QWidget *>(u"m_pwScaleBar"_s);
        m_window->resize(360, 400);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get(), PatienceMs));
        QTRY_VERIFY_WITH_TIMEOUT(m_scaleBar->isVisible(), PatienceMs);
    }
    void cleanup() { m_window.reset(); }

    void turnNorthUp_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("click") << false;
        QTest::newRow("key") << true;
    }
    void turnNorthUp()
    {
        QFETCH(bool, byKey);
        QVERIFY(std::abs(bearingInFrame() - NorthDeg) > 5);
        if (byKey)
            QTest::keyClick(view(), Qt::Key_N);
        else
            QTest::mouseClick(m_north, Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(std::abs(bearingInFrame() - NorthDeg) < 0.01, PatienceMs);
        QVERIFY(!m_north->accessibleName().isEmpty());
    }

    void keepTheMiddleFree()
    {
        QRect middle(0, 0, view()->width() / 2, view()->height() / 2);
        middle.moveCenter(view()->rect().center());
        for (const QWidget *aid : {static_cast<QWidget *>(m_north), m_scaleBar, m_legend}) {
            QVERIFY(view()->rect().contains(aid->geometry()));
            QVERIFY(!middle.intersects(aid->geometry()));
        }
        QVERIFY(m_legend->isVisible());
        const int before = m_scaleBar->width();
        m_viewer->placeCamera(777, 0);
        QTRY_VERIFY_WITH_TIMEOUT(m_scaleBar->width() != before, PatienceMs);
        m_window->resize(150, 120); // too small for a legend
        QTRY_VERIFY_WITH_TIMEOUT(m_legend->isHidden(), PatienceMs);
    }

    void areHiddenAndStaySo()
    {
        QTest::keyClick(view(), Qt::Key_A);
        QVERIFY(m_north->isHidden() && m_scaleBar->isHidden());
        m_viewer->hide();
        m_viewer->show();
        QVERIFY(m_north->isHidden());

        QTest::mouseClick(view(), Qt::RightButton, {}, {150, 100});
        auto *menu = view()->findChild<QMenu *>();
        QVERIFY(menu && !menu->actions().constLast()->isChecked());
        menu->actions().constLast()->trigger();
        menu->close();
        QVERIFY(m_north->isVisible());
    }

    void statesThePlaceUnderThePointer()
    {
        auto *coordinates = view()->findChild<QWidget *>(u"m_pwCoordinates"_s);
        QVERIFY(coordinates->accessibleName().isEmpty());
        m_viewer->placeCamera(1000, 0);
        m_viewer->lookDown();
        const unsigned frames = framesAtRest();

        // beside the ball, 1099.5 m below the eye
        const QPoint at(view()->width() / 2 - 100, view()->height() / 2 + 100);
        pointAt(at);
        QTRY_VERIFY_WITH_TIMEOUT(!coordinates->accessibleName().isEmpty(), PatienceMs);
        const double slope = 1 / m_viewer->getCamera()->getProjectionMatrix()(1, 1);
        const double expected = -100 * 2 * 1099.5 * slope / view()->height();
        QVERIFY((m_asked - QPointF(expected, expected)).manhattanLength() < 1);
        QCOMPARE(framesAtRest(), frames);

        m_viewer->placeCamera(1000, 0);
        framesAtRest();
        pointAt({view()->width() / 2, 2}); // the sky
        QTRY_VERIFY_WITH_TIMEOUT(coordinates->accessibleName().isEmpty(), PatienceMs);
    }

    /// What an aid draws anew must not make the view draw its scene.
    void drawNoScene()
    {
        const unsigned frames = framesAtRest();
        for (int i = 0; i < 10; ++i) {
            m_north->update();
            m_scaleBar->update();
            QTest::qWait(30);
        }
        QCOMPARE(framesAtRest(), frames);
    }
};

QTEST_MAIN(tst_ViewAids)
#include "tst_ViewAids.moc"
