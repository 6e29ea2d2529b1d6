#include "readingaids/NorthArrow.h"

#include "language/VltLanguageManager.h"

#include <QPolygonF>

namespace vlt::readingaids {

qreal northArrowSide(const AidStyle &style)
{
    constexpr qreal Lines = 2.8;
    return Lines * style.line();
}

void drawNorthArrow(QPainter &painter, const QRectF &area, double bearingDeg, const AidStyle &style)
{
    static const QColor needle(0xC6, 0x28, 0x28);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(style.plate);
    painter.drawEllipse(area);
    painter.translate(area.center());
    painter.rotate(-bearingDeg);
    // in shares of half the side; the letter stands at the tip
    const qreal half = area.width() / 2;
    const auto at = [half](qreal x, qreal y) { return QPointF(x, y) * half; };
    constexpr qreal Tip = -0.38;
    constexpr qreal Foot = 0.72;
    constexpr qreal Side = 0.34;
    constexpr qreal Notch = 0.46;
    painter.setBrush(needle);
    painter.drawPolygon(QPolygonF({at(0, Tip), at(-Side, Foot), at(0, Notch)}));
    painter.setBrush(style.ink);
    painter.drawPolygon(QPolygonF({at(0, Tip), at(Side, Foot), at(0, Notch)}));
    QFont font = style.font;
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(style.ink);
    const QRectF letter(at(-1, -0.95), at(1, Tip));
    painter.drawText(letter, Qt::AlignCenter | Qt::TextDontClip,
                     dico_label("MESS_NORTH_LETTER", "N"));
    painter.restore();
}

} // namespace vlt::readingaids
