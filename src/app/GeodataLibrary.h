#pragma once

#include <QStringList>

namespace vlt::app {

/// Registers every driver of the geodata library but SEGY, with the plug-ins of the driver path,
/// and takes the network's file systems away from it; to be called once, after the environment is
/// exported.
void registerGeodataDrivers();

/// One line for each dataset that the geodata library still holds open, counted from 1:
/// "Open Dataset 1/2 : <description>".
QStringList listOpenDatasets();

} // namespace vlt::app
