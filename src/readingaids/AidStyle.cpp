#include "readingaids/AidStyle.h"

namespace vlt::readingaids {

void drawPlate(QPainter &painter, const QRectF &area, const AidStyle &style)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(style.font);
    painter.setPen(Qt::NoPen);
    painter.setBrush(style.plate);
    const qreal radius = style.line() / 5;
    painter.drawRoundedRect(area, radius, radius);
    painter.setPen(style.ink);
    painter.setBrush(Qt::NoBrush);
}

QSizeF captionSize(const QString &text, const AidStyle &style)
{
    const QFontMetricsF metrics(style.font);
    return {metrics.horizontalAdvance(text) + 2 * style.padding(),
            metrics.height() + style.padding()};
}

void drawCaption(QPainter &painter, const QRectF &area, const QString &text, const AidStyle &style)
{
    drawPlate(painter, area, style);
    const QRectF inner = area.adjusted(style.padding(), 0, -style.padding(), 0);
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     QFontMetricsF(style.font).elidedText(text, Qt::ElideRight, inner.width() + 1));
}

} // namespace vlt::readingaids
