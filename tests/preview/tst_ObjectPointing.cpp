#include "ObjectScene.h"
#include "preview/VltObjectPointing.h"
#include "preview/W_simpleOSGViewer.h"
#include "support/Patience.h"

#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <osg/Geode>
#include <osg/Shape>
#include <osg/ShapeDrawable>

using namespace Qt::StringLiterals;
namespace keys = vlt::contract::objects;

namespace {

/// A slab with two sites on it, 200 m to the west and to the east of its middle.
osg::ref_ptr<osg::Node> twoSites()
{
    osg::ref_ptr<osg::Geode> slab = new osg::Geode;
    slab->addDrawable(new osg::ShapeDrawable(new osg::Box(osg::Vec3(0, 0, -1), 600, 400, 2)));
    const osg::ref_ptr<osg::Group> scene =
        sceneOf(keys::Site, {{-200, 0, 0}, {200, 0, 0}}, {30, 30});
    scene->addChild(slab);
    return scene;
}

} // namespace

class tst_ObjectPointing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        if (!W_simpleOSGViewer::isAvailable())
            QSKIP("no OpenGL here");
        m_window = std::make_unique<QWidget>();
        m_window->resize(640, 480);
        m_viewer = new W_simpleOSGViewer;
        auto *layout = new QVBoxLayout(m_window.get());
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(m_viewer);
        m_pointing = new VltObjectPointing(*m_viewer);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get(), PatienceMs));
        m_viewer->setFocus();
        m_scene = twoSites();
        m_viewer->showScene(m_scene);
        m_pointing->setScene(m_scene);
        m_viewer->lookDown();
        QTRY_VERIFY_WITH_TIMEOUT(m_viewer->getViewerFrameStamp()->getFrameNumber() > 3, PatienceMs);
    }
    void cleanup() { m_window.reset(); }

    void picksMarksAndCloses()
    {
        QSignalSpy picked(m_pointing, &VltObjectPointing::picked);
        const unsigned parts = m_viewer->getCamera()->getNumChildren();

        QTest::mouseClick(m_viewer, Qt::LeftButton, {}, pixelOf({200, 0, 0}));
        QCOMPARE(picked.takeFirst(), QVariantList{1});
        QCOMPARE(m_viewer->getCamera()->getNumChildren(), parts + 1);
        m_pointing->showCard(u"<style>body { color: red }</style><h1>East</h1>"_s);
        const auto *page = m_viewer->findChild<QTextBrowser *>(u"m_pwTbObjectPage"_s);
        QVERIFY(page && page->isVisible());
        QCOMPARE(page->toPlainText(), u"East"_s);

        QTest::keyClick(m_viewer, Qt::Key_Escape);
        QCOMPARE(picked.takeFirst(), QVariantList{-1});
        QVERIFY(!page->isVisible());
        QCOMPARE(m_viewer->getCamera()->getNumChildren(), parts);

        QTest::mouseClick(m_viewer, Qt::LeftButton, {}, pixelOf({-200, 0, 0}));
        QCOMPARE(m_pointing->selected().value_or(9), 0U);
        QTest::mouseClick(m_viewer, Qt::LeftButton, {}, pixelOf({0, 100, 0}));
        QVERIFY(!m_pointing->selected());
    }

    void fliesToAnObject()
    {
        m_pointing->flyTo(1);
        QTRY_VERIFY_WITH_TIMEOUT((m_viewer->pose().center - osg::Vec3d(200, 0, 15)).length() < 1,
                                 PatienceMs);
        QVERIFY(m_viewer->pose().distanceM() < 600);

        QTest::keyClick(m_viewer, Qt::Key_Return); // what is in the middle
        QCOMPARE(m_pointing->selected().value_or(9), 1U);
    }

    void forgetsTheObjectsOfAnotherScene()
    {
        m_pointing->select(0);
        m_viewer->showScene(nullptr);
        m_pointing->setScene(nullptr);
        QVERIFY(!m_pointing->selected());
        QTest::keyClick(m_viewer, Qt::Key_Return);
        QVERIFY(!m_pointing->selected());
    }

private:
    QPoint pixelOf(const osg::Vec3d &place) const
    {
        const osg::Camera &camera = *m_viewer->getCamera();
        const osg::Vec3d at = place * camera.getViewMatrix() * camera.getProjectionMatrix() *
                              camera.getViewport()->computeWindowMatrix();
        return QPointF(at.x(), m_viewer->height() - at.y()).toPoint();
    }

    std::unique_ptr<QWidget> m_window;
    W_simpleOSGViewer *m_viewer = nullptr;
    VltObjectPointing *m_pointing = nullptr;
    osg::ref_ptr<osg::Node> m_scene;
};

QTEST_MAIN(tst_ObjectPointing)
#include "tst_ObjectPointing.moc"
