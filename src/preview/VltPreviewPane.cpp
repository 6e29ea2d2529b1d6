#include "preview/VltPreviewPane.h"

#include "preview/VltObjectPointing.h"
#include "preview/VltReadingAids.h"
#include "preview/W_simpleOSGViewer.h"

#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int PlateGap = 8; ///< between the edge of the view and a text over it

} // namespace

VltPreviewPane::VltPreviewPane(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (W_simpleOSGViewer::isAvailable()) {
        m_viewer = new W_simpleOSGViewer(W_simpleOSGViewer::defaultFormat(), this);
        m_viewer->setObjectName(QStringLiteral("m_pwViewer"));
        m_viewer->setAccessibleName(tr("3D preview", "MESS_3D_PREVIEW"));
        m_viewer->setToolTip(
            tr("Drag to rotate, Shift and drag to move, wheel to zoom. Keys: the "
               "arrows rotate and tilt, with Shift they move; + and - zoom, T shows "
               "the view from above, F the whole scene, Home the first view, N turns "
               "north up, A shows or hides scale and legend.",
               "MESS_TIP_3D_PREVIEW"));
        layout->addWidget(m_viewer);
        m_aids = new VltReadingAids(*m_viewer);
        m_pointing = new VltObjectPointing(*m_viewer);
        setFocusProxy(m_viewer);
        reportMoves();
        m_caption = makePlate(QStringLiteral("m_pwCaption"));
        m_emptyText = makePlate(QStringLiteral("m_pwEmptyText"));
        return;
    }
    auto *text =
        new QLabel(tr("No 3D view is available on this system. The layer is complete without it.",
                      "MESS_NO_3D_VIEW"),
                   this);
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);
    layout->addWidget(text);
}

void VltPreviewPane::showScene(osg::Node *scene, GroundMaker ground,
                               const vlt::readingaids::SceneReading &reading)
{
    if (!m_viewer)
        return;
    m_viewer->showScene(scene, std::move(ground));
    m_aids->show(scene != nullptr, reading);
    m_pointing->setScene(scene);
    m_hasScene = scene != nullptr;
    placePlates();
    showHint();
}

/// A text over the view, through which the mouse reaches the view.
QLabel *VltPreviewPane::makePlate(const QString &objectName)
{
    auto *plate = new QLabel(m_viewer);
    plate->setObjectName(objectName);
    plate->setTextFormat(Qt::PlainText);
    plate->setAttribute(Qt::WA_TransparentForMouseEvents);
    plate->setStyleSheet(QStringLiteral(
        "background: rgba(0, 0, 0, 160); color: white; padding: 6px; border-radius: 4px"));
    plate->setWordWrap(true);
    plate->hide();
    return plate;
}

void VltPreviewPane::reportMoves()
{
    constexpr int PauseMs = 150;
    auto *pause = new QTimer(this);
    pause->setSingleShot(true);
    pause->setInterval(PauseMs);
    connect(m_viewer, &QOpenGLWidget::aboutToCompose, pause, [this, pause] {
        if (!pause->isActive() && m_viewer->pose().eye != m_eye)
            pause->start();
    });
    connect(pause, &QTimer::timeout, this, [this] {
        m_eye = m_viewer->pose().eye;
        Q_EMIT cameraMoved();
    });
}

CameraPose VltPreviewPane::pose() const
{
    return m_viewer ? m_viewer->pose() : CameraPose();
}

void VltPreviewPane::setPose(const CameraPose &pose)
{
    if (m_viewer)
        m_viewer->setPose(pose);
}

void VltPreviewPane::setCaption(const QString &text)
{
    if (!m_viewer || m_caption->text() == text)
        return;
    m_caption->setText(text);
    placePlates();
}

void VltPreviewPane::setEmptyText(const QString &text)
{
    if (!m_viewer)
        return;
    m_emptyText->setText(text);
    m_emptyText->setAlignment(Qt::AlignCenter);
    placePlates();
}

/// Puts the texts over the view where they belong, as wide as they need.
void VltPreviewPane::placePlates()
{
    constexpr double WidthShare = 0.75; // the corner on the right is for the north arrow
    if (!m_viewer)
        return;
    const QSize view = size();
    for (QLabel *plate : {m_caption, m_emptyText}) {
        plate->setWordWrap(false);
        plate->setMaximumWidth(QWIDGETSIZE_MAX);
        const int most = static_cast<int>(WidthShare * view.width());
        const int width = qMin(plate->sizeHint().width(), most);
        plate->setWordWrap(true);
        plate->resize(width, plate->heightForWidth(width));
    }
    m_caption->move(PlateGap, PlateGap);
    m_emptyText->move((view.width() - m_emptyText->width()) / 2,
                      (view.height() - m_emptyText->height()) / 2);
    m_caption->setVisible(!m_caption->text().isEmpty());
    m_emptyText->setVisible(!m_hasScene && !m_emptyText->text().isEmpty());
}

void VltPreviewPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placePlates();
}

void VltPreviewPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    showHint();
}

/// Shows how the view is moved, for two seconds over the first scene that the program shows.
void VltPreviewPane::showHint()
{
    constexpr int HintMs = 2000;
    static bool wasShown = false;
    if (wasShown || !m_hasScene || !isVisible())
        return;
    wasShown = true;
    QLabel *hint = makePlate({});
    hint->setText(
        tr("Drag to rotate, Shift and drag to move, wheel to zoom", "MESS_HINT_3D_PREVIEW"));
    hint->setAlignment(Qt::AlignCenter);
    hint->setFixedWidth(width() - 2 * PlateGap);
    hint->adjustSize();
    // in the middle, because the reading aids are at the borders
    hint->move(PlateGap, (height() - hint->height()) / 2);
    hint->show();
    QTimer::singleShot(HintMs, hint, [hint] {
        hint->window()->update(); // otherwise the hint stays on the screen until the next change
        delete hint;
    });
}

void VltPreviewPane::placeCamera(double distanceM, double heightM)
{
    if (m_viewer)
        m_viewer->placeCamera(distanceM, heightM);
}

void VltPreviewPane::lookAtMiddle(double minDistanceM)
{
    if (m_viewer)
        m_viewer->lookAtMiddle(minDistanceM);
}

void VltPreviewPane::setMaxDistanceM(double maxDistanceM)
{
    if (m_viewer)
        m_viewer->setMaxDistanceM(maxDistanceM);
}

void VltPreviewPane::setElevationDeg(double elevationDeg)
{
    if (m_viewer)
        m_viewer->setElevationDeg(elevationDeg);
}

void VltPreviewPane::setCore(const std::optional<osg::BoundingBox> &core)
{
    if (m_viewer)
        m_viewer->setCore(core);
}

void VltPreviewPane::centerView()
{
    if (m_viewer)
        m_viewer->centerView();
}

QSize VltPreviewPane::sizeHint() const
{
    const int unit = fontMetrics().height();
    return {24 * unit, 20 * unit};
}

QSize VltPreviewPane::minimumSizeHint() const
{
    const int unit = fontMetrics().height();
    return {14 * unit, 10 * unit};
}
