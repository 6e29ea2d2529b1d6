#pragma once

#include "readingaids/AidStyle.h"
#include "readingaids/ViewScale.h"

namespace vlt::readingaids {

/// Maximum length of the bar in a view or picture of a width, in pixels.
qreal maxScaleBarPx(qreal widthPx, const AidStyle &style);

/// A bar of the length with its text above it, on a plate.
QSizeF scaleBarSize(const ScaleLength &length, const AidStyle &style);
void drawScaleBar(QPainter &painter, const QRectF &area, const ScaleLength &length,
                  const AidStyle &style);

} // namespace vlt::readingaids
