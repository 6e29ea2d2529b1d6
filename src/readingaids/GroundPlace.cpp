#include "readingaids/GroundPlace.h"

#include "language/Numbers.h"
#include "language/VltLanguageManager.h"

#include <algorithm>
#include <cmath>

namespace vlt::readingaids {

namespace {

QString lonLatText(const LonLat &at)
{
    constexpr int Decimals = 5; // about a metre
    const auto number = [](double value) {
        return language::fixedNumber(std::abs(value), Decimals);
    };
    const QString lat = (at.latDeg < 0 ? dico_label("MESS_DEGREES_SOUTH", "%1° S")
                                       : dico_label("MESS_DEGREES_NORTH", "%1° N"))
                            .arg(number(at.latDeg));
    const QString lon = (at.lonDeg < 0 ? dico_label("MESS_DEGREES_WEST", "%1° W")
                                       : dico_label("MESS_DEGREES_EAST", "%1° E"))
                            .arg(number(at.lonDeg));
    return lat + QStringLiteral("  ") + lon;
}

} // namespace

QStringList placeTexts(const GroundPlace &place)
{
    const auto whole = [](double value) { return language::fixedNumber(value, 0); };
    QStringList texts{place.system};
    if (!place.isGeographic)
        texts << whole(place.x) + QStringLiteral("  ") + whole(place.y);
    if (place.lonLat)
        texts << lonLatText(*place.lonLat);
    if (place.heightM)
        texts << dico_label("MESS_GROUND_HEIGHT", "ground %1 m").arg(whole(*place.heightM));
    return texts;
}

QStringList placeLines(const GroundPlace &place, const AidStyle &style, qreal maxWidth)
{
    const QString between = QStringLiteral(" \u00b7 ");
    QStringList lines;
    for (const QString &text : placeTexts(place)) {
        const QString longer = lines.isEmpty() ? text : lines.constLast() + between + text;
        if (!lines.isEmpty() && captionSize(longer, style).width() <= maxWidth)
            lines.last() = longer;
        else
            lines << text;
    }
    return lines;
}

QSizeF linesSize(const QStringList &lines, const AidStyle &style)
{
    qreal width = 0;
    for (const QString &line : lines)
        width = std::max(width, captionSize(line, style).width());
    return {width, static_cast<qreal>(lines.size()) * style.line() + style.padding()};
}

void drawLines(QPainter &painter, const QRectF &area, const QStringList &lines,
               const AidStyle &style)
{
    drawPlate(painter, area, style);
    painter.drawText(area.adjusted(style.padding(), 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     lines.join(u'\n'));
}

} // namespace vlt::readingaids
