#pragma once

#include <QStringList>

namespace vlt::geodata {

/// The geodata library and the library of coordinate systems, each with its version: "GDAL 3.6.2".
QStringList libraryVersions();

} // namespace vlt::geodata
