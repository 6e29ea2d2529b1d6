#include "wizard/base/DraggableIcon.h"

#include "platform/LayerFile.h"
#include "platform/Settings.h"
#include "wizard/base/Messages.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QDrag>
#include <QFile>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QSettings>
#include <QToolTip>
#include <QUrl>

namespace {

constexpr int DragImageSize = 48;
constexpr int AttentionMs = 1000;

/// Whether a key opens the menu: Enter, the space bar, and Shift+F10 for keyboards without a menu
/// key.
bool asksForMenu(const QKeyEvent &event)
{
    const int key = event.key();
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space ||
           (key == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

} // namespace

DraggableIcon::DraggableIcon(const QPixmap &pixmap, QWidget *parent, Qt::WindowFlags flags)
    : QLabel(parent, flags)
    , m_attention(this, "radius")
{
    setPixmap(pixmap);
    setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::StrongFocus);
    setEnabled(false);
}

void DraggableIcon::setLayerFile(const QString &path)
{
    m_layerFile = path;
    m_companions.clear();
    setEnabled(!path.isEmpty());
    setCursor(path.isEmpty() ? Qt::ArrowCursor : Qt::OpenHandCursor);
    if (!path.isEmpty())
        playAttention();
    else
        endAttention();
}

void DraggableIcon::setRadius(int radius)
{
    m_radius = radius;
    update();
}

void DraggableIcon::endAttention()
{
    m_attention.stop();
    setRadius(0);
}

void DraggableIcon::playAttention()
{
    m_attention.stop();
    m_attention.setDuration(AttentionMs);
    m_attention.setStartValue(height() / 2);
    m_attention.setEndValue(0);
    m_attention.setEasingCurve(QEasingCurve::OutBounce);
    m_attention.start();
}

QPixmap DraggableIcon::dragImage(const QPixmap &pixmap)
{
    // The size on the screen does not depend on the pixel density.
    const int length = qRound(DragImageSize * pixmap.devicePixelRatio());
    return pixmap.height() <= pixmap.width()
               ? pixmap.scaledToWidth(length, Qt::FastTransformation)
               : pixmap.scaledToHeight(length, Qt::FastTransformation);
}

QMimeData *DraggableIcon::dataOf(const QStringList &files)
{
    QList<QUrl> urls;
    for (const QString &file : files) // absolute: the receiver may have another working directory
        urls << QUrl::fromLocalFile(QDir::current().absoluteFilePath(file));
    auto *data = new QMimeData;
    data->setUrls(urls);
    return data;
}

void DraggableIcon::mouseMoveEvent(QMouseEvent *event)
{
    if (!isEnabled() || !event->buttons().testFlag(Qt::LeftButton))
        return;
    const QPixmap image = dragImage(pixmap());
    auto *drag = new QDrag(this);
    drag->setMimeData(dataOf({m_layerFile}));
    drag->setPixmap(image);
    const QSize size = image.deviceIndependentSize().toSize();
    drag->setHotSpot({size.width() / 2, size.height() / 2});
    drag->exec(Qt::LinkAction);
    QLabel::mouseMoveEvent(event);
}

void DraggableIcon::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (m_radius <= 0 && !hasFocus())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_radius > 0) {
        const QPointF center = QRectF(rect()).center();
        QColor glow = palette().color(QPalette::Highlight);
        QRadialGradient gradient(center, m_radius);
        glow.setAlpha(170);
        gradient.setColorAt(0, glow);
        glow.setAlpha(0);
        gradient.setColorAt(1, glow);
        painter.setPen(Qt::NoPen);
        painter.setBrush(gradient);
        painter.drawEllipse(center, m_radius, m_radius);
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
}

void DraggableIcon::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        copyToClipboard();
    else if (event->matches(QKeySequence::Save))
        saveAs();
    else if (asksForMenu(*event))
        openMenu(mapToGlobal(rect().center()));
    else
        QLabel::keyPressEvent(event);
}

void DraggableIcon::contextMenuEvent(QContextMenuEvent *event)
{
    openMenu(event->globalPos());
}

void DraggableIcon::openMenu(const QPoint &position)
{
    QMenu menu(this);
    menu.addAction(tr("&Copy the layer file", "MESS_COPY_LAYER"), QKeySequence::Copy, this,
                   [this] { copyToClipboard(); });
    menu.addAction(tr("&Save the layer file as...", "MESS_SAVE_LAYER_AS"), QKeySequence::Save, this,
                   [this] { saveAs(); });
    menu.exec(position);
}

void DraggableIcon::copyToClipboard() const
{
    QGuiApplication::clipboard()->setMimeData(dataOf(QStringList(m_layerFile) + m_companions));
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), tr("Copied", "MESS_COPIED"));
}

void DraggableIcon::saveAs()
{
    const QString directory =
        vlt::platform::wizardSettings()->value(QStringLiteral("LastUsedDir")).toString();
    QFileDialog dialog(this, tr("Save the layer file as", "MESS_SAVE_LAYER_TITLE"), directory,
                       tr("Layer files", "MESS_LAYER_FILES") + QStringLiteral(" (*.lay)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("lay"));
    dialog.selectFile(tr("layer", "MESS_LAYER_FILE_NAME") + QStringLiteral(".lay"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString target = dialog.selectedFiles().constFirst();
    const auto saved = m_saver ? m_saver(target) : copyTo(target);
    if (saved && !*saved)
        vlt::messages::critical(this, saved->error());
}

vlt::Result<vlt::Done> DraggableIcon::copyTo(const QString &target) const
{
    QFile layer(m_layerFile);
    if (!layer.open(QIODevice::ReadOnly))
        return vlt::platform::cannotCreateLayer(target, layer.errorString());
    auto written =
        vlt::platform::writeWhole(target, layer.readAll(), vlt::platform::Access::Shared);
    if (!written)
        return vlt::platform::cannotCreateLayer(target, written.error().detail);
    return written;
}
