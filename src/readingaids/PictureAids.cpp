#include "readingaids/PictureAids.h"

#include "readingaids/LegendDrawing.h"
#include "readingaids/NorthArrow.h"
#include "readingaids/ScaleBar.h"

#include <algorithm>

namespace vlt::readingaids {

namespace {

/// Texts of a report's picture are as high as those of its pages.
int fontPx(const QSize &size)
{
    constexpr int LinesInPicture = 44;
    constexpr int MinPx = 9;
    return std::max(MinPx, std::min(size.width(), size.height()) / LinesInPicture);
}

void drawTitle(QPainter &painter, const QRectF &free, const QString &title, AidStyle style)
{
    constexpr double TitleSize = 1.4;
    style.font.setPixelSize(qRound(TitleSize * style.font.pixelSize()));
    style.font.setBold(true);
    QSizeF size = captionSize(title, style);
    size.setWidth(std::min(size.width(), free.width()));
    drawCaption(painter, {free.topLeft(), size}, title, style);
}

} // namespace

void drawAids(QImage &picture, const PictureAids &aids, const ViewCamera &camera, double northDeg)
{
    AidStyle style;
    style.font.setPixelSize(fontPx(picture.size()));
    if (picture.hasAlphaChannel())
        style.plate.setAlpha(255); // texts are readable over any page
    const qreal gap = style.line() / 2;
    const QRectF free = QRectF(picture.rect()).adjusted(gap, gap, -gap, -gap);
    const qreal side = northArrowSide(style);
    QPainter painter(&picture);
    if (!aids.title.isEmpty())
        drawTitle(painter, free.adjusted(0, 0, aids.withNorth ? -side - gap : 0, 0), aids.title,
                  style);
    if (!aids.legend.isEmpty()) {
        const QSizeF size = legendSize(aids.legend, style);
        drawLegend(painter, {{free.right() - size.width(), free.bottom() - size.height()}, size},
                   aids.legend, style);
    }
    if (!aids.withNorth)
        return;
    drawNorthArrow(painter, {free.right() - side, free.top(), side, side},
                   bearingDeg(camera, northDeg), style);
    const ScaleLength length = scaleLength(metresPerPixel(camera, picture.height()),
                                           maxScaleBarPx(picture.width(), style));
    const QSizeF size = scaleBarSize(length, style);
    if (length.lengthM > 0)
        drawScaleBar(painter, {{free.left(), free.bottom() - size.height()}, size}, length, style);
}

} // namespace vlt::readingaids
