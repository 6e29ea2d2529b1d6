#pragma once

namespace vlt::scene {

/// Registers GDAL's drivers if the process has none yet. Without GDAL_DRIVER_PATH the table driver
/// is searched for in the folder of the binary that contains this function.
void registerTableDrivers();

} // namespace vlt::scene
