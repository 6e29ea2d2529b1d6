#pragma once

#include "colormaps/ColorMap.h"

#include <QIcon>
#include <QSize>

namespace vlt::buildings {

/// Of a swatch, in pixels of the screen.
inline constexpr QSize ColorMapSwatchSize(40, 14);

/// The colours of a map in a row, the lowest value on the left; each value takes the same room.
QIcon colorMapSwatch(const colormaps::ColorMap &map);

} // namespace vlt::buildings
