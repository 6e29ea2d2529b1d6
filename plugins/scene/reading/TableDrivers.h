#pragma once

namespace vlt::scene {

/// Registers GDAL's drivers where the process has none yet. Without GDAL_DRIVER_PATH the table
/// driver is looked for beside the binary that holds this function.
void registerTableDrivers();

} // namespace vlt::scene
