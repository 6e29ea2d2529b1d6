#pragma once

#include "platform/Result.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace vlt::platform {

/// The mode of a file that is written, and the treatment of a symbolic link at its path.
enum class Access {
    /// For the program's own files in a directory that several users share: mode 0600. A link is
    /// replaced, not followed, because another user may have created it.
    UserOnly,
    /// For paths that the user gave: the mode of the file that is replaced, for a new file 0666
    /// less the process's umask. A link is followed and kept.
    Shared
};

/// The file that writeWhole(path, ..., access) would replace or create: `path` itself, or the
/// target of its symbolic links.
///
/// @par Errors  The path is empty; its links form a loop; the target exists and is not a regular
///              file (but a directory, device, pipe or the process's own output), or is
///              write-protected (not for Access::UserOnly). The detail is the reason, the path is
///              `path`.
Result<QString> writtenFile(const QString &path, Access access);

/// Writes `bytes` to `path`. Afterwards the file is the old one or the complete new one, never a
/// part of it.
///
/// The bytes are written to a new file beside writtenFile() and flushed to the disk; then the new
/// file is renamed. After a failure the old file is unchanged and the new one is removed.
///
/// @par Errors  those of writtenFile(); a directory that is missing or not writable; a full device.
///              The detail is the system's reason, the path is `path`.
Result<Done> writeWhole(const QString &path, const QByteArray &bytes, Access access);

/// A file that is written under another name and then replaces `path`, for writers that need a name
/// and for files that are too large for the memory. Without replace() it disappears with this
/// object.
class FileAside
{
public:
    /// @par Errors  those of writtenFile() for Access::Shared; a directory that is missing or not
    ///              writable
    static Result<std::unique_ptr<FileAside>> create(const QString &path);

    /// The name to write: beside `path`, with its suffix. There is no such file yet.
    QString name() const;

    /// Flushes the file, which must be closed, to the disk and renames it.
    ///
    /// @par Errors  as of writeWhole()
    Result<Done> replace();

private:
    FileAside(const QString &path, const QString &target, std::unique_ptr<QTemporaryDir> folder);

    QString m_path;
    QString m_target;
    std::unique_ptr<QTemporaryDir> m_folder;
};

} // namespace vlt::platform
