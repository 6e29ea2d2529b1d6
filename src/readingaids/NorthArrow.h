#pragma once

#include "readingaids/AidStyle.h"

namespace vlt::readingaids {

/// Width and height of the arrow's plate.
qreal northArrowSide(const AidStyle &style);

/// An arrow to the north with its letter, on a round plate.
///
/// @param bearingDeg  of the view, clockwise from true north
void drawNorthArrow(QPainter &painter, const QRectF &area, double bearingDeg,
                    const AidStyle &style);

} // namespace vlt::readingaids
