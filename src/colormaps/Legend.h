#pragma once

#include "colormaps/ColorLookup.h"
#include "platform/AtomicFile.h"

#include <QImage>
#include <QString>

namespace vlt::colormaps {

/// The legend of a colour map as an image on a white ground: the colours with the lowest value
/// below, beside them the values, below them the colour of what has no value where the map has one.
/// See-through colours lie over a chequered ground.
///
/// Texts are drawn with the fonts of the application, so a QGuiApplication must be there.
///
/// @param scale  pixels of the image for one of the screen, 1 or more
/// @return       null for a map without colours, and where there is no QGuiApplication
QImage drawLegend(const ColorMap &map, Interpretation interpretation, int scale = 1);

/// Path of the legend of a colour map: "<name>_gradient.png".
QString legendPath(const QString &directory, const QString &colorMapName);

/// Writes a legend to its path.
///
/// @return      the file's path
/// @par Errors  an image that is null, a file that cannot be written; with the path
Result<QString> writeLegend(const QImage &legend, const QString &directory,
                            const QString &colorMapName, platform::Access access);

} // namespace vlt::colormaps
