#pragma once

#include "platform/Result.h"

#include <QByteArray>
#include <QString>

namespace vlt::platform {

/// Who may read a file that is written.
enum class Access {
    UserOnly, ///< mode 0600, for what lies in a directory shared with other users
    Shared    ///< the mode of the file that is replaced, or what the process's umask leaves of 0666
};

/// Puts `bytes` at `path`: afterwards the file is the old one or the whole new one, never a part.
///
/// The bytes go to a new file in the same directory, are flushed to the disk and take the name by a
/// rename. A symbolic link at `path` is replaced, not followed. After a failure the old file is
/// untouched and nothing is left behind.
///
/// @par Errors  a target that exists and is no regular file (directory, device, pipe), or is
///              write-protected (not for Access::UserOnly); a directory that is missing or cannot
///              be written; a full device. The text is the system's reason, the path is `path`.
Result<Done> writeWhole(const QString &path, const QByteArray &bytes, Access access);

} // namespace vlt::platform
