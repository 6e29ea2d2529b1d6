#include "preview/VltObjectPointing.h"

#include "picking/ObjectPicker.h"
#include "preview/ObjectMark.h"
#include "preview/VltObjectCard.h"
#include "preview/W_simpleOSGViewer.h"

#include <QEasingCurve>
#include <QKeyEvent>
#include <QStyle>
#include <QVariantAnimation>

using vlt::picking::Sight;

namespace {

constexpr int FlightMs = 400;
constexpr double SiteRoom =
    4; ///< distance of the eye from a site / that at which it fills the view

CameraPose between(const CameraPose &from, const CameraPose &to, double share)
{
    const auto mixed = [share](const osg::Vec3d &a, const osg::Vec3d &b) {
        return a * (1 - share) + b * share;
    };
    return {mixed(from.eye, to.eye), mixed(from.center, to.center), from.up};
}

} // namespace

VltObjectPointing::VltObjectPointing(W_simpleOSGViewer &viewer)
    : QObject(static_cast<QWidget *>(&viewer))
    , m_viewer(viewer)
    , m_card(new VltObjectCard(&viewer))
    , m_flight(new QVariantAnimation(this))
{
    m_flight->setDuration(FlightMs);
    m_flight->setEasingCurve(QEasingCurve::InOutCubic);
    m_flight->setStartValue(0.0);
    m_flight->setEndValue(1.0);
    connect(m_card, &VltObjectCard::closed, this, [this] {
        pick(std::nullopt);
        m_viewer.setFocus();
    });
    connect(&viewer, &W_simpleOSGViewer::clicked, this, &VltObjectPointing::pickAt);
    connect(&viewer, &W_simpleOSGViewer::emitStopDemo, m_flight, &QVariantAnimation::stop);
    static_cast<QWidget &>(viewer).installEventFilter(this);
}

void VltObjectPointing::setScene(osg::Node *scene)
{
    m_flight->stop();
    select(std::nullopt);
    m_scene = scene;
    m_objects = scene ? vlt::picking::SceneObjects::of(*scene) : std::nullopt;
}

void VltObjectPointing::removeMark()
{
    if (!m_mark)
        return;
    m_viewer.getCamera()->removeChild(m_mark);
    m_mark = nullptr;
    m_viewer.requestRedraw();
}

void VltObjectPointing::select(std::optional<std::size_t> object)
{
    if (object != m_selected)
        m_card->dismiss();
    removeMark();
    m_selected = m_objects && object && *object < m_objects->count() ? object : std::nullopt;
    if (!m_selected)
        return;
    m_mark = markOf(*m_scene, *m_objects, *m_selected, m_viewer.devicePixelRatioF());
    m_mark->setNodeMask(Surroundings::Mask);
    m_viewer.getCamera()->addChild(m_mark);
    m_viewer.requestRedraw();
}

void VltObjectPointing::showCard(const QString &html)
{
    if (!m_selected)
        return;
    const osg::Vec3d place = m_objects->extent(*m_selected).center() * toWindow();
    const double height = m_viewer.getCamera()->getViewport()->height();
    m_card->showPage(html, QPointF(place.x(), height - place.y()) / m_viewer.devicePixelRatioF());
}

/// From the frame of the scene to the pixels of the view, from its lower left corner.
osg::Matrixd VltObjectPointing::toWindow() const
{
    const osg::Camera &camera = *m_viewer.getCamera();
    return camera.getViewMatrix() * camera.getProjectionMatrix() *
           camera.getViewport()->computeWindowMatrix();
}

void VltObjectPointing::pickAt(const QPointF &position, const Intersections &met)
{
    if (!m_objects)
        return;
    const QPointF at = position * m_viewer.devicePixelRatioF();
    Sight sight;
    sight.at = {at.x(), m_viewer.getCamera()->getViewport()->height() - at.y()};
    sight.toWindow = toWindow();
    sight.eye = m_viewer.pose().eye;
    sight.unitPx = m_viewer.devicePixelRatioF();
    if (const auto surface = m_viewer.placeAt(position))
        sight.surfaceM = (*surface - sight.eye).length();
    sight.met = met;
    pick(vlt::picking::objectAt(*m_objects, sight));
}

void VltObjectPointing::pick(std::optional<std::size_t> object)
{
    select(object);
    Q_EMIT picked(m_selected ? static_cast<int>(*m_selected) : -1);
}

void VltObjectPointing::flyTo(std::size_t object)
{
    if (!m_objects || object >= m_objects->count())
        return;
    const osg::BoundingBoxd extent = m_objects->extent(object);
    const osg::BoundingBox box(extent._min, extent._max);
    const double room = m_objects->kind() == vlt::picking::Kind::Link ? 1 : SiteRoom;
    const CameraPose from = m_viewer.pose();
    osg::Vec3d back = from.eye - from.center;
    back.normalize();
    const osg::Vec3d target = extent.center();
    const CameraPose to{target + back * (room * m_viewer.distanceToSee(box)), target, from.up};

    m_viewer.stopDemo();
    m_flight->stop();
    m_flight->disconnect(this);
    if (m_viewer.style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0) {
        m_viewer.setPose(to);
        return;
    }
    connect(m_flight, &QVariantAnimation::valueChanged, this,
            [this, from, to](const QVariant &share) {
                m_viewer.setPose(between(from, to, share.toDouble()));
            });
    m_flight->start();
}

bool VltObjectPointing::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        m_card->place();
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Escape && m_selected) {
        pick(std::nullopt);
        return true;
    }
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && m_objects) {
        const QPointF middle = QRectF(m_viewer.rect()).center();
        pickAt(middle, m_viewer.intersectionsAt(middle));
        return true;
    }
    return QObject::eventFilter(watched, event);
}
