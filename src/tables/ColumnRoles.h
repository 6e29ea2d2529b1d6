#pragma once

#include "geodata/LayerInfo.h"

namespace vlt::tables {

/// The role of a column in the chosen language, with the number of its transmitter: "Azimuth 2".
QString roleText(const geodata::ColumnRole &role);

} // namespace vlt::tables
