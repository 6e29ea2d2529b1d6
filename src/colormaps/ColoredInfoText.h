#pragma once

#include <QSize>
#include <QString>

namespace vlt::colormaps {

/// The information text on the colours of coloured buildings, for their page and their layer, as
/// rich text: the name of the colour map above the image of its legend.
///
/// @param imagePath  path of the legend's image
/// @param shownSize  size at which the image is shown, in pixels; empty: the image's own size
QString coloredInfoText(const QString &colorMapName, const QString &imagePath,
                        const QSize &shownSize = {});

} // namespace vlt::colormaps
