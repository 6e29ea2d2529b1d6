#pragma once

#include "readingaids/AidStyle.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace vlt::readingaids {

struct LonLat
{
    double lonDeg = 0;
    double latDeg = 0;
};

/// A place on the ground.
struct GroundPlace
{
    QString system; ///< name
    double x = 0;   ///< in the system
    double y = 0;
    std::optional<LonLat> lonLat;  ///< WGS 84; of a geographic system its own
    bool isGeographic = false;     ///< x and y are `lonLat`
    std::optional<double> heightM; ///< of the terrain, above sea level
};

/// The parts of its text, in the user's language and locale.
QStringList placeTexts(const GroundPlace &place);

/// The parts in as few lines as fit into a width.
QStringList placeLines(const GroundPlace &place, const AidStyle &style, qreal maxWidth);

/// These lines on a plate.
QSizeF linesSize(const QStringList &lines, const AidStyle &style);
void drawLines(QPainter &painter, const QRectF &area, const QStringList &lines,
               const AidStyle &style);

} // namespace vlt::readingaids
