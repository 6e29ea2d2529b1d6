#pragma once

#include <QString>

namespace vlt::app {

/// Whole text of a style sheet file, of the disk or compiled in, as Latin-1; empty where it cannot
/// be opened.
QString readStyleSheet(const QString &path);

/// The sheet that the application starts with: the global one, an empty line, and the user's or
/// else the program's own.
///
/// @param requested  the application's sheet before: "file:///" and the file that the option
///                   -stylesheet names, or empty
QString startupStyleSheet(const QString &requested);

} // namespace vlt::app
