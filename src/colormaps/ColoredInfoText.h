#pragma once

#include <QSize>
#include <QString>

namespace vlt::colormaps {

/// What a page and a layer of coloured buildings say of their colours, as rich text: the name of
/// the colour map over the image of its legend.
///
/// @param imagePath  path of the legend's image
/// @param shownSize  size at which the image is shown, in pixels; its own where empty
QString coloredInfoText(const QString &colorMapName, const QString &imagePath,
                        const QSize &shownSize = {});

} // namespace vlt::colormaps
