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

/// Names and values of environment variables; values in the encoding of the file system.
using EnvironmentValues = std::vector<std::pair<QByteArray, QByteArray>>;

/// The environment of the geodata library, in the order in which it is set: PATH, GDAL_DRIVER_PATH,
/// OGR_DRIVER_PATH, GDAL_FILENAME_IS_UTF8, SHAPE_ENCODING, and GDAL_DATA and PROJ_LIB if the
/// installation has these directories (with a PROJ_LIB that does not exist, there would be no
/// coordinate systems).
///
/// @param installDir       root of the installation, put first in PATH
/// @param style            syntax of paths and lists of paths
/// @param previousPath     current value of PATH
/// @param directoryExists  whether a directory, written in `style`, exists
EnvironmentValues geodataEnvironment(const QString &installDir, platform::PathStyle style,
                                     const QByteArray &previousPath,
                                     const std::function<bool(const QString &)> &directoryExists);

/// Sets geodataEnvironment() in the process and writes a line with the driver path to `trace`,
/// unless that is null.
void exportGeodataEnvironment(const QString &installDir, platform::PathStyle style,
                              std::FILE *trace);

} // namespace vlt::app
