#include "readingaids/ScaleBar.h"

namespace vlt::readingaids {

namespace {

constexpr qreal BarShare = 0.3; ///< height of the bar / that of a line of text

} // namespace

qreal maxScaleBarPx(qreal widthPx, const AidStyle &style)
{
    constexpr qreal MaxLines = 9;
    constexpr qreal ShareOfWidth = 0.3;
    return qMin(MaxLines * style.line(), ShareOfWidth * widthPx);
}

QSizeF scaleBarSize(const ScaleLength &length, const AidStyle &style)
{
    const qreal textPx = QFontMetricsF(style.font).horizontalAdvance(length.text);
    return {qMax(length.lengthPx, textPx) + 2 * style.padding(),
            (1 + BarShare) * style.line() + 1.5 * style.padding()};
}

void drawScaleBar(QPainter &painter, const QRectF &area, const ScaleLength &length,
                  const AidStyle &style)
{
    drawPlate(painter, area, style);
    const qreal line = style.line();
    const QRectF inner =
        area.adjusted(style.padding(), style.padding() / 2, -style.padding(), -style.padding());
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, length.text);
    const QRectF bar(inner.left(), inner.bottom() - BarShare * line, length.lengthPx,
                     BarShare * line);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Qt::NoPen);
    painter.setBrush(style.ink);
    painter.drawRect(
        QRectF(bar.left(), bar.bottom() - style.hairline(), bar.width(), style.hairline()));
    for (const qreal end : {bar.left(), bar.right() - style.hairline()})
        painter.drawRect(QRectF(end, bar.top(), style.hairline(), bar.height()));
}

} // namespace vlt::readingaids
