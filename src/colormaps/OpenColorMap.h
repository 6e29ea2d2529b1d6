#pragma once

#include "colormaps/ColorMap.h"
#include "platform/Result.h"

#include <QString>

namespace vlt::colormaps {

/// ColorMap::load() with a Result; nothing is written to the error output.
///
/// @par Errors  MESS_ERR_OPEN_CMAP with the path, and the reason if load() reported one
Result<ColorMap> openColorMap(const QString &path, double minimum = ColorMap::Unset,
                              double maximum = ColorMap::Unset);

} // namespace vlt::colormaps
