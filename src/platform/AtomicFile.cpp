#include "platform/AtomicFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QScopeGuard>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace vlt::platform {

namespace {

constexpr QFile::Permissions UserMode = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions EveryonesMode =
    UserMode | QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;

// Independent of the target's name, which may already have the maximum length.
QString temporaryNameBeside(const QFileInfo &target)
{
    const quint64 random = QRandomGenerator::system()->generate64();
    return target.absoluteDir().filePath(
        QStringLiteral(".vlt-%1.tmp").arg(random, 16, 16, QLatin1Char('0')));
}

std::optional<QString> flushToDisk(QFile &file)
{
    if (!file.flush())
        return file.errorString();
#ifdef Q_OS_UNIX
    // EINVAL: the file system does not support flushing
    if (::fsync(file.handle()) != 0 && errno != EINVAL)
        return QString::fromStdString(std::generic_category().message(errno));
#endif
    return std::nullopt;
}

/// Whether the path is a name of one of the process's own open files, such as the target of
/// /dev/stdout. A rename would replace that name, and the open file would not get the bytes.
bool namesOpenFile(const QFileInfo &file)
{
    return file.absoluteDir().canonicalPath().startsWith(QLatin1String("/proc/"));
}

/// The file at the end of the symbolic links of `path`; it need not exist. Nothing for a loop.
std::optional<QFileInfo> behindLinks(const QString &path)
{
    constexpr int MaxLinks = 40; // the kernel's limit
    QFileInfo file(path);
    for (int links = 0; file.isSymbolicLink(); ++links) {
        if (links == MaxLinks || namesOpenFile(file))
            return std::nullopt;
        file.setFile(file.symLinkTarget());
    }
    return file;
}

/// Renames a complete file.
///
/// @param path  of the error
Result<Done> rename(const QFile &file, const QFileInfo &target, const QString &path)
{
    std::error_code reason;
    std::filesystem::rename(file.filesystemFileName(), target.filesystemAbsoluteFilePath(), reason);
    if (reason)
        return Error::fromLibrary(QString::fromStdString(reason.message()), path);
    return Done{};
}

} // namespace

Result<QString> writtenFile(const QString &path, Access access)
{
    const auto failed = [&path](const QString &reason) { return Error::fromLibrary(reason, path); };
    if (path.isEmpty())
        return failed(QStringLiteral("No file name"));
    const QFileInfo named(path);
    if (access == Access::UserOnly && named.isSymbolicLink())
        return named.absoluteFilePath();
    const std::optional<QFileInfo> target = behindLinks(path);
    if (!target || (target->exists() && !target->isFile()))
        return failed(QStringLiteral("Not a regular file"));
    // a rename would replace it all the same
    if (access == Access::Shared && target->isFile() && !target->isWritable())
        return failed(QStringLiteral("The file is write-protected"));
    return target->absoluteFilePath();
}

Result<Done> writeWhole(const QString &path, const QByteArray &bytes, Access access)
{
    const auto failed = [&path](const QString &reason) { return Error::fromLibrary(reason, path); };
    const Result<QString> written = writtenFile(path, access);
    if (!written)
        return written.error();
    const QFileInfo target(written.value());

    QFile file(temporaryNameBeside(target));
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered,
                   access == Access::UserOnly ? UserMode : EveryonesMode))
        return failed(file.errorString());
    auto litter = qScopeGuard([&file] { file.remove(); });

    if (access == Access::Shared && target.isFile() && !file.setPermissions(target.permissions()))
        return failed(file.errorString());
    if (file.write(bytes) != bytes.size())
        return failed(file.errorString());
    if (const std::optional<QString> reason = flushToDisk(file))
        return failed(*reason);
    file.close();
    if (file.error() != QFileDevice::NoError)
        return failed(file.errorString());

    Result<Done> renamed = rename(file, target, path);
    if (renamed)
        litter.dismiss();
    return renamed;
}

Result<std::unique_ptr<FileAside>> FileAside::create(const QString &path)
{
    const Result<QString> target = writtenFile(path, Access::Shared);
    if (!target)
        return target.error();
    auto folder = std::make_unique<QTemporaryDir>(
        QFileInfo(target.value()).absoluteDir().filePath(QStringLiteral(".vlt-XXXXXX")));
    if (!folder->isValid())
        return Error::fromLibrary(folder->errorString(), path);
    return std::unique_ptr<FileAside>(new FileAside(path, target.value(), std::move(folder)));
}

FileAside::FileAside(const QString &path, const QString &target,
                     std::unique_ptr<QTemporaryDir> folder)
    : m_path(path)
    , m_target(target)
    , m_folder(std::move(folder))
{}

QString FileAside::name() const
{
    return m_folder->filePath(QStringLiteral("file.") + QFileInfo(m_path).suffix());
}

Result<Done> FileAside::replace()
{
    const auto failed = [this](const QString &reason) {
        return Error::fromLibrary(reason, m_path);
    };
    const QFileInfo target(m_target);
    QFile file(name());
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return failed(file.errorString());
    if (target.isFile() && !file.setPermissions(target.permissions()))
        return failed(file.errorString());
    if (const std::optional<QString> reason = flushToDisk(file))
        return failed(*reason);
    file.close();
    return rename(file, target, m_path);
}

} // namespace vlt::platform
