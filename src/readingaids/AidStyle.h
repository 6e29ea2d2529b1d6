#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

namespace vlt::readingaids {

/// The appearance of what is drawn over a view or a picture. All lengths follow the font.
struct AidStyle
{
    QFont font;
    QColor ink = QColor(0x20, 0x24, 0x28);
    QColor plate = QColor(255, 255, 255, 215); ///< under texts and marks

    /// Height of a line of text in pixels.
    qreal line() const { return QFontMetricsF(font).height(); }
    /// Space between the edge of a plate and its content.
    qreal padding() const { return line() / 3; }
    /// Width of fine lines.
    qreal hairline() const { return qMax(1.0, line() / 14); }
};

/// Draws the background of an aid and prepares the painter for its texts.
void drawPlate(QPainter &painter, const QRectF &area, const AidStyle &style);

/// Size of a single line of text on a plate.
QSizeF captionSize(const QString &text, const AidStyle &style);
void drawCaption(QPainter &painter, const QRectF &area, const QString &text, const AidStyle &style);

} // namespace vlt::readingaids
