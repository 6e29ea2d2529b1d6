#pragma once

#include <QChar>
#include <QString>

namespace vlt::platform {

/// How paths and lists of paths are written.
enum class PathStyle {
    Windows, ///< "a\b", lists with ";"
    Posix    ///< "a/b", lists with ":"
};

/// The style of the operating system.
PathStyle nativePathStyle();

/// The separator between two directories of a path.
QChar separator(PathStyle style);

/// The separator between two paths of a list such as PATH.
QChar listSeparator(PathStyle style);

/// The path with the style's separator for each "/".
QString withSeparators(QString path, PathStyle style);

/// The path of a file in a folder of the installation.
///
/// @param folder  below the install directory, such as contract::PylonFolder
QString installedFile(const QString &installDir, const char *folder, const QString &name);

/// The system's directory for temporary files, with a separator at the end; "." if there is no such
/// directory or its path with the separator is longer than 259 characters.
QString systemTempDirectory();

} // namespace vlt::platform
