#include "preview/VltPreviewPane.h"

#include "preview/VltReadingAids.h"
#include "preview/W_simpleOSGViewer.h"

#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

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
        setFocusProxy(m_viewer);
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
    m_hasScene = scene != nullptr;
    showHint();
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
    constexpr int Gap = 8;
    static bool wasShown = false;
    if (wasShown || !m_hasScene || !isVisible())
        return;
    wasShown = true;
    auto *hint = new QLabel(
        tr("Drag to rotate, Shift and drag to move, wheel to zoom", "MESS_HINT_3D_PREVIEW"),
        m_viewer);
    hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    hint->setStyleSheet(QStringLiteral(
        "background: rgba(0, 0, 0, 160); color: white; padding: 6px; border-radius: 4px"));
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignCenter);
    hint->setFixedWidth(m_viewer->QWidget::width() - 2 * Gap);
    hint->adjustSize();
    hint->move(Gap, m_viewer->QWidget::height() - hint->height() - Gap);
    hint->show();
    QTimer::singleShot(HintMs, hint, &QObject::deleteLater);
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
