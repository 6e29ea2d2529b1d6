#pragma once

#include "colormaps/ColorMap.h"

#include <QIcon>
#include <QSize>

namespace vlt::buildings {

/// Size of a swatch, in pixels of the screen.
inline constexpr QSize ColorMapSwatchSize(40, 14);

/// The colours of a map in a row, from the lowest value on the left; each value has the same width.
QIcon colorMapSwatch(const colormaps::ColorMap &map);

} // namespace vlt::buildings
