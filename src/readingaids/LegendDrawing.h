#pragma once

#include "readingaids/AidStyle.h"
#include "readingaids/Legend.h"

namespace vlt::readingaids {

/// A legend on a plate. Texts are cut to a width of 16 lines, long parts to their first entries.
QSizeF legendSize(const Legend &legend, const AidStyle &style);
void drawLegend(QPainter &painter, const QRectF &area, const Legend &legend, const AidStyle &style);

} // namespace vlt::readingaids
