#include "preview/VltReadingAids.h"

#include "platform/Settings.h"
#include "preview/AidPlate.h"
#include "preview/VltTrackBall.h"
#include "preview/W_simpleOSGViewer.h"
#include "readingaids/GroundPlace.h"
#include "readingaids/LegendDrawing.h"
#include "readingaids/NorthArrow.h"
#include "readingaids/ScaleBar.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMenu>

#include <cmath>

namespace {

using namespace vlt::readingaids;

const QString ShownKey = QStringLiteral("Preview/ReadingAids");
constexpr int PointingMs = 40;
constexpr int ClickTolerance = 4; ///< maximum movement of the mouse in a click, in pixels

bool areShown()
{
    return vlt::platform::wizardSettings()->value(ShownKey, true).toBool();
}

Vector vectorOf(const osg::Vec3d &vector)
{
    return {vector.x(), vector.y(), vector.z()};
}

/// The north arrow, which turns the view when it is pressed.
class NorthButton : public QAbstractButton
{
public:
    NorthButton(QWidget *parent, AidPlate::Draw draw)
        : QAbstractButton(parent)
        , m_draw(std::move(draw))
    {
        setFocusPolicy(Qt::NoFocus); // the view keeps the keyboard, and has the key N
        setCursor(Qt::PointingHandCursor);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        m_draw(painter, rect());
    }

private:
    AidPlate::Draw m_draw;
};

} // namespace

VltReadingAids::VltReadingAids(W_simpleOSGViewer &viewer)
    : QObject(static_cast<QWidget *>(&viewer))
    , m_viewer(viewer)
{
    QWidget *view = &viewer;
    m_scaleBar = new AidPlate(view, [this](QPainter &painter, const QRectF &area) {
        drawScaleBar(painter, area, m_length, style());
    });
    m_scaleBar->setObjectName(QStringLiteral("m_pwScaleBar"));
    m_legend = new AidPlate(view, [this](QPainter &painter, const QRectF &area) {
        drawLegend(painter, area, m_reading.legend, style());
    });
    m_legend->setObjectName(QStringLiteral("m_pwLegend"));
    m_north = new NorthButton(view, [this](QPainter &painter, const QRectF &area) {
        drawNorthArrow(painter, area, m_bearingDeg, style());
    });
    m_north->setObjectName(QStringLiteral("m_pwNorth"));
    m_north->setAccessibleName(tr("North up", "MESS_NORTH_UP"));
    m_north->setToolTip(tr("True north. A click, or the key N, turns it up.", "MESS_TIP_NORTH_UP"));
    connect(m_north, &QAbstractButton::clicked, this, &VltReadingAids::turnNorthUp);
    m_coordinates = new AidPlate(view, [this](QPainter &painter, const QRectF &area) {
        const QSizeF size = linesSize(m_placeLines, style());
        if (!m_placeLines.isEmpty())
            drawLines(painter, {{0, area.height() - size.height()}, size}, m_placeLines, style());
    });
    m_coordinates->setObjectName(QStringLiteral("m_pwCoordinates"));
    m_pointing.setSingleShot(true);
    m_pointing.setInterval(PointingMs);
    connect(&m_pointing, &QTimer::timeout, this, &VltReadingAids::readPointer);
    connect(&viewer, &W_simpleOSGViewer::emitMouseMoved, this, [this](const QMouseEvent *event) {
        m_pointer = event->position();
        if (!m_pointing.isActive())
            m_pointing.start();
    });
    view->setContextMenuPolicy(Qt::PreventContextMenu); // a drag with the right button zooms
    view->installEventFilter(this);
    connect(&viewer, &QOpenGLWidget::aboutToCompose, this, &VltReadingAids::follow);
    place();
}

void VltReadingAids::show(bool hasScene, const SceneReading &reading)
{
    m_hasScene = hasScene;
    m_reading = reading;
    place();
    showPlace({});
    m_legend->update();
}

/// Dark texts on light plates, or the other way round, as on the pages.
AidStyle VltReadingAids::style() const
{
    constexpr int PlateAlpha = 215;
    AidStyle style;
    const QPalette palette = m_viewer.palette();
    style.font = m_viewer.font();
    style.ink = palette.color(QPalette::WindowText);
    style.plate = palette.color(QPalette::Base);
    style.plate.setAlpha(PlateAlpha);
    return style;
}

ViewCamera VltReadingAids::camera() const
{
    const auto *trackBall =
        static_cast<const VltTrackBall *>(std::as_const(m_viewer).getCameraManipulator());
    osg::Vec3d eye;
    osg::Vec3d target;
    osg::Vec3d up;
    trackBall->getTransformation(eye, target, up);
    double fieldDeg = 0;
    double unused = 0;
    m_viewer.getCamera()->getProjectionMatrixAsPerspective(fieldDeg, unused, unused, unused);
    return {vectorOf(eye), vectorOf(target), vectorOf(up), fieldDeg};
}

double VltReadingAids::northDeg(const ViewCamera &camera) const
{
    return m_reading.northDeg ? m_reading.northDeg(camera.target[0], camera.target[1]) : 0;
}

/// Takes bearing and scale over from the camera.
void VltReadingAids::follow()
{
    constexpr double VisibleDeg = 0.25;
    if (!m_hasScene || m_north->isHidden())
        return;
    const ViewCamera now = camera();
    const double bearing = bearingDeg(now, northDeg(now));
    if (std::abs(std::remainder(bearing - m_bearingDeg, 360)) > VisibleDeg) {
        m_bearingDeg = bearing;
        m_north->update();
    }
    const QSize size = static_cast<QWidget &>(m_viewer).size();
    const ScaleLength length =
        scaleLength(metresPerPixel(now, size.height()), maxScaleBarPx(size.width(), style()));
    if (length.text != m_length.text || std::abs(length.lengthPx - m_length.lengthPx) > 0.5) {
        m_length = length;
        place();
        m_scaleBar->update();
    }
}

/// Puts the aids to the edges of the view.
void VltReadingAids::place()
{
    const QSize view = static_cast<QWidget &>(m_viewer).size();
    const AidStyle look = style();
    const int gap = qRound(look.line() / 2);
    const bool isShown = m_hasScene && areShown();
    const int side = qRound(northArrowSide(look));
    m_north->setGeometry(view.width() - side - gap, gap, side, side);
    m_north->setVisible(isShown);
    const QSize bar = scaleBarSize(m_length, look).toSize();
    m_scaleBar->setGeometry(gap, view.height() - bar.height() - gap, bar.width(), bar.height());
    m_scaleBar->setVisible(isShown && m_length.lengthM > 0);
    placeLegend(isShown, gap);
    placeCoordinates(isShown, gap);
}

/// A small view has no legend.
void VltReadingAids::placeLegend(bool isShown, int gap)
{
    constexpr double MaxWidthShare = 0.5;
    constexpr double MaxHeightShare = 0.62;
    const QSize view = static_cast<QWidget &>(m_viewer).size();
    const QSize legend = legendSize(m_reading.legend, style()).toSize();
    m_legend->setGeometry(view.width() - legend.width() - gap,
                          view.height() - legend.height() - gap, legend.width(), legend.height());
    const bool fits = legend.width() <= MaxWidthShare * view.width() &&
                      legend.height() <= MaxHeightShare * view.height() &&
                      !m_legend->geometry().intersects(m_scaleBar->geometry());
    m_legend->setVisible(isShown && fits && !m_reading.legend.isEmpty());
}

/// Shows the coordinates under the pointer. Large scenes take long to be searched: there it
/// happens less often.
void VltReadingAids::readPointer()
{
    constexpr int PauseShare = 10;
    if (!m_hasScene || !m_reading.placeAt || m_north->isHidden() || !m_viewer.underMouse())
        return;
    QElapsedTimer since;
    since.start();
    QStringList lines;
    if (const auto at = m_viewer.placeAt(m_pointer)) {
        if (const auto place = m_reading.placeAt(at->x(), at->y()))
            lines = placeLines(*place, style(), m_coordinates->width());
    }
    showPlace(lines);
    m_pointing.setInterval(qMax<qint64>(PointingMs, PauseShare * since.elapsed()));
}

/// The plate keeps its place: a part of the view that comes into sight would be drawn with its
/// scene.
void VltReadingAids::showPlace(const QStringList &lines)
{
    if (lines == m_placeLines)
        return;
    m_placeLines = lines;
    m_coordinates->setAccessibleName(lines.join(u' '));
    m_coordinates->update();
}

/// Keeps room for the coordinates above the scale bar, beside the legend.
void VltReadingAids::placeCoordinates(bool isShown, int gap)
{
    constexpr int MaxLines = 4;
    const QStringList most(MaxLines, QString());
    const int right =
        m_legend->isHidden() ? static_cast<QWidget &>(m_viewer).width() : m_legend->x();
    const int height = qRound(linesSize(most, style()).height());
    m_coordinates->setGeometry(gap, m_scaleBar->y() - gap / 2 - height, right - 2 * gap, height);
    m_coordinates->setVisible(isShown && m_reading.placeAt);
}

void VltReadingAids::turnNorthUp()
{
    const ViewCamera now = camera();
    m_viewer.stopDemo();
    static_cast<VltTrackBall *>(m_viewer.getCameraManipulator())
        ->turnBy(bearingDeg(now, northDeg(now)));
}

void VltReadingAids::setShown(bool isShown)
{
    vlt::platform::wizardSettings()->setValue(ShownKey, isShown);
    place();
    showPlace({});
    follow();
}

bool VltReadingAids::handleKey(int key)
{
    if (key == Qt::Key_N)
        turnNorthUp();
    else if (key == Qt::Key_A)
        setShown(!areShown());
    else
        return false;
    return true;
}

/// What the keys of the view do, with the keys.
void VltReadingAids::openMenu(const QPoint &at)
{
    auto *menu = new QMenu(&m_viewer);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString &text, Qt::Key key, auto action) {
        QAction *entry = menu->addAction(text, this, action);
        entry->setShortcut(key);
        entry->setShortcutVisibleInContextMenu(true);
        return entry;
    };
    add(tr("North up", "MESS_NORTH_UP"), Qt::Key_N, [this] { turnNorthUp(); });
    add(tr("From above", "MESS_VIEW_ABOVE"), Qt::Key_T, [this] { m_viewer.lookDown(); });
    add(tr("Whole scene", "MESS_VIEW_WHOLE"), Qt::Key_F, [this] { m_viewer.fitView(); });
    add(tr("First view", "MESS_VIEW_FIRST"), Qt::Key_Home, [this] { m_viewer.centerView(); });
    menu->addSeparator();
    QAction *aids = add(tr("Scale, north, legend and coordinates", "MESS_SHOW_AIDS"), Qt::Key_A,
                        [this] { setShown(!areShown()); });
    aids->setCheckable(true);
    aids->setChecked(areShown());
    menu->popup(at);
}

bool VltReadingAids::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::FontChange:
    case QEvent::Show: // another view may have changed the setting
        m_length = {};
        place();
        break;
    case QEvent::KeyPress: {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->modifiers() == Qt::NoModifier && handleKey(key->key()))
            return true;
        break;
    }
    case QEvent::Leave:
    case QEvent::Wheel: // another place comes under the pointer
        showPlace({});
        break;
    case QEvent::MouseButtonPress:
        showPlace({});
        m_pressedAt = static_cast<QMouseEvent *>(event)->position().toPoint();
        break;
    case QEvent::MouseButtonRelease: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const QPoint way = mouse->position().toPoint() - m_pressedAt;
        if (mouse->button() == Qt::RightButton && way.manhattanLength() <= ClickTolerance &&
            m_hasScene)
            openMenu(mouse->globalPosition().toPoint());
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
