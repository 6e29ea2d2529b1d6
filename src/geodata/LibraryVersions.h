#pragma once

#include <QStringList>

namespace vlt::geodata {

/// Name and version of the geodata library ("GDAL 3.6.2") and of the library of coordinate systems.
QStringList libraryVersions();

} // namespace vlt::geodata
