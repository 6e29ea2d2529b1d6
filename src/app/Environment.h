#pragma once

#include "app/StartupSettings.h"
#include "platform/Paths.h"

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <functional>
#include <utility>
#include <vector>

namespace vlt::app {

/// Names and values of environment variables, values in the file system's own encoding.
using EnvironmentValues = std::vector<std::pair<QByteArray, QByteArray>>;

/// The environment that the geodata library needs, in the order in which it is set: PATH,
/// GDAL_DRIVER_PATH, OGR_DRIVER_PATH, GDAL_FILENAME_IS_UTF8, SHAPE_ENCODING, and GDAL_DATA and
/// PROJ_LIB where the installation has such a directory (a PROJ_LIB that leads nowhere would take
/// every coordinate system away).
///
/// @param installDir       root of the installation, put first in PATH
/// @param style            how paths and lists are written
/// @param previousPath     PATH as it is now
/// @param directoryExists  tells whether a directory, written in the style, is there
EnvironmentValues geodataEnvironment(const QString &installDir, platform::PathStyle style,
                                     const QByteArray &previousPath,
                                     const std::function<bool(const QString &)> &directoryExists);

/// Puts geodataEnvironment() into the process environment and writes one line that names the driver
/// path to `trace`, unless that is null.
void exportGeodataEnvironment(const QString &installDir, platform::PathStyle style,
                              std::FILE *trace);

} // namespace vlt::app
