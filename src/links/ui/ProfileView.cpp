#include "links/ui/ProfileView.h"

#include "links/ProfileChart.h"
#include "links/ProfilePath.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace vlt::links {

namespace {

constexpr double FineStep = 0.01; ///< of the keyboard, share of the length
constexpr double CoarseStep = 0.1;

} // namespace

ProfileView::ProfileView(QWidget *parent) : QWidget(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void ProfileView::setProfile(const std::optional<geodata::LinkProfile> &profile)
{
    m_profile = profile;
    unmark();
    drawAgain();
}

QSize ProfileView::sizeHint() const
{
    return sizeInLines(40, 13);
}

QSize ProfileView::minimumSizeHint() const
{
    return sizeInLines(16, 8);
}

QSize ProfileView::sizeInLines(int width, int height) const
{
    return fontMetrics().height() * QSize(width, height);
}

bool ProfileView::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip)
        return true; // that of the panel would replace the figures
    return QWidget::event(event);
}

void ProfileView::paintEvent(QPaintEvent * /*event*/)
{
    if (!m_profile)
        return;
    if (m_picture.isNull() || m_picture.devicePixelRatio() != devicePixelRatioF())
        drawPicture();
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
    if (m_markM) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5));
        painter.drawLine(QPointF(markPx(), m_plot.top()), QPointF(markPx(), m_plot.bottom()));
    }
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

void ProfileView::drawPicture()
{
    m_picture = QPixmap(size() * devicePixelRatioF());
    m_picture.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&m_picture);
    const ProfileStyle style{font(), palette().color(QPalette::Text),
                             palette().color(QPalette::Base), false};
    m_plot = drawProfile(painter, rect(), *m_profile, style);
}

void ProfileView::drawAgain()
{
    m_picture = QPixmap();
    update();
}

void ProfileView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    drawAgain();
}

void ProfileView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        drawAgain();
}

double ProfileView::markPx() const
{
    return m_plot.left() + m_plot.width() * *m_markM / m_profile->path.lengthM;
}

/// Shows the line of a place, and its figures beside a height of the view.
void ProfileView::mark(double distanceM, int yPx)
{
    m_markM = std::clamp(distanceM, 0.0, m_profile->path.lengthM);
    const QString figures = ProfilePath(*m_profile).textAt(*m_markM);
    setAccessibleDescription(figures);
    QToolTip::showText(mapToGlobal(QPoint(qRound(markPx()), yPx)), figures, this, rect());
    update();
}

void ProfileView::unmark()
{
    if (m_markM)
        QToolTip::hideText();
    m_markM.reset();
    setAccessibleDescription(m_profile ? profileFigures(*m_profile) : QString());
    update();
}

void ProfileView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_profile || m_plot.isEmpty())
        return;
    const double share = (event->position().x() - m_plot.left()) / m_plot.width();
    if (share < 0 || share > 1)
        unmark();
    else
        mark(share * m_profile->path.lengthM, event->position().toPoint().y());
}

void ProfileView::leaveEvent(QEvent *event)
{
    unmark();
    QWidget::leaveEvent(event);
}

void ProfileView::focusOutEvent(QFocusEvent *event)
{
    unmark();
    QWidget::focusOutEvent(event);
}

/// The place that a key leads to; the first one is the worst point.
std::optional<double> ProfileView::keyedPlaceM(int key) const
{
    const double lengthM = m_profile->path.lengthM;
    switch (key) {
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return lengthM;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        break;
    default:
        return std::nullopt;
    }
    if (!m_markM)
        return m_profile->worst ? m_profile->worst->distanceM : lengthM / 2;
    const bool isBack = key == Qt::Key_Left || key == Qt::Key_PageUp;
    const bool isFine = key == Qt::Key_Left || key == Qt::Key_Right;
    return *m_markM + (isBack ? -1 : 1) * (isFine ? FineStep : CoarseStep) * lengthM;
}

void ProfileView::keyPressEvent(QKeyEvent *event)
{
    const std::optional<double> placeM =
        m_profile && !m_plot.isEmpty() ? keyedPlaceM(event->key()) : std::nullopt;
    if (placeM)
        mark(*placeM, qRound(m_plot.top()));
    else if (event->key() == Qt::Key_Escape && m_markM)
        unmark();
    else
        QWidget::keyPressEvent(event);
}

} // namespace vlt::links
