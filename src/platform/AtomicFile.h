#pragma once

#include "platform/Result.h"

#include <QByteArray>
#include <QString>

namespace vlt::platform {

/// Who may read a file that is written, and what becomes of a symbolic link at its name.
enum class Access {
    /// Mode 0600, for the program's own files in a directory of several users: a link that somebody
    /// planted is replaced, not followed.
    UserOnly,
    /// The mode of the file that is replaced, or what the process's umask leaves of 0666, for names
    /// that the user gave: a link is followed, and stays.
    Shared
};

/// The file that writeWhole(path, ..., access) would replace or make: `path` itself, or where its
/// symbolic links lead.
///
/// @par Errors  an empty path; links without end; a target that exists and is no regular file
///              (directory, device, pipe, the process's own output), or is write-protected (not for
///              Access::UserOnly). The detail is the reason, the path is `path`.
Result<QString> writtenFile(const QString &path, Access access);

/// Puts `bytes` at `path`: afterwards the file is the old one or the whole new one, never a part.
///
/// The bytes go to a new file beside writtenFile(), are flushed to the disk and take its name by a
/// rename. After a failure the old file is untouched and nothing is left behind.
///
/// @par Errors  those of writtenFile(); a directory that is missing or cannot be written; a full
///              device. The detail is the system's reason, the path is `path`.
Result<Done> writeWhole(const QString &path, const QByteArray &bytes, Access access);

} // namespace vlt::platform
