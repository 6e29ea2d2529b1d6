#pragma once

#include <QString>

namespace vlt::app {

/// Text of a style sheet file, on disk or compiled in, read as Latin-1; empty if it cannot be
/// opened.
QString readStyleSheet(const QString &path);

/// The style sheet of the application: the global one, an empty line, then the user's one or else
/// the program's own.
///
/// @param requested  the application's previous style sheet: "file:///" with the file of the option
///                   -stylesheet, or empty
QString startupStyleSheet(const QString &requested);

} // namespace vlt::app
