#pragma once

#include "colormaps/ColorLookup.h"
#include "platform/AtomicFile.h"

#include <QImage>
#include <QList>
#include <QString>

namespace vlt::colormaps {

/// The legend of a colour map as an image with a white background: the colours, with the lowest
/// value at the bottom, the values beside them, and under them the "no data" colour if the map has
/// one. Transparent colours have a chequered background.
///
/// Texts are drawn with the fonts of the application, so a QGuiApplication has to exist.
///
/// @param scale  pixels of the image for one pixel of the screen, 1 or more
/// @return       null for a map without colours, and if there is no QGuiApplication
QImage drawLegend(const ColorMap &map, Interpretation interpretation, int scale = 1);

/// One of several kinds, which have no order.
struct LegendKind
{
    QString name;
    Rgba color;
};

/// The legend of kinds: their colours below each other, with the names beside them.
///
/// @return  null without kinds, and if there is no QGuiApplication
QImage drawLegend(const QList<LegendKind> &kinds, int scale = 1);

/// Path of the legend of a colour map: "<name>_gradient.png" in `directory`.
QString legendPath(const QString &directory, const QString &colorMapName);

/// Writes a legend to its path.
///
/// @return      the file's path
/// @par Errors  The image is null or the file cannot be written; the path is the file's.
Result<QString> writeLegend(const QImage &legend, const QString &directory,
                            const QString &colorMapName, platform::Access access);

} // namespace vlt::colormaps
