#pragma once

#include <QStringList>

namespace vlt::app {

/// Registers all drivers of the geodata library except SEGY, including the plug-ins of the driver
/// path, and removes the library's network file systems. To be called once, after the environment
/// is exported.
void registerGeodataDrivers();

/// A line for each dataset that is still open in the geodata library, numbered from 1:
/// "Open Dataset 1/2 : <description>".
QStringList listOpenDatasets();

} // namespace vlt::app
