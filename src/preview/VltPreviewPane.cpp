#include "preview/VltPreviewPane.h"

#include "preview/W_simpleOSGViewer.h"

#include <QLabel>
#include <QVBoxLayout>

VltPreviewPane::VltPreviewPane(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (W_simpleOSGViewer::isAvailable()) {
        m_viewer = new W_simpleOSGViewer(W_simpleOSGViewer::defaultFormat(), this);
        m_viewer->setObjectName(QStringLiteral("m_pwViewer"));
        m_viewer->setAccessibleName(tr("3D preview", "MESS_3D_PREVIEW"));
        m_viewer->setToolTip(tr("Drag to rotate, middle button to move, wheel to zoom; left and "
                                "right arrow, + and -, Home for the whole scene",
                                "MESS_TIP_3D_PREVIEW"));
        layout->addWidget(m_viewer);
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

void VltPreviewPane::showScene(osg::Node *scene)
{
    if (m_viewer)
        m_viewer->showScene(scene);
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
