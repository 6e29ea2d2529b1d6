#pragma once

#include "plugins/tables/bytes/ByteSource.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vlt::driver {

/// Identifies one state of a file: it differs if the file is changed or replaced.
struct FileIdentity
{
    uint64_t device = 0;
    uint64_t inode = 0;
    int64_t size = 0;
    int64_t modifiedNs = 0;
    int64_t changedNs = 0;

    bool operator==(const FileIdentity &) const = default;
};

/// A local file opened for reading at any offset. Safe to share between threads.
///
/// Files are read, not mapped, so that a table that becomes shorter while it is read causes an
/// error instead of a crash.
class InputFile
{
public:
    /// Throws RefusedFile (CannotRead) with the system's reason.
    static std::shared_ptr<const InputFile> open(const std::string &path);
    /// Identity of the file at `path`. Throws the same as open().
    static FileIdentity identify(const std::string &path);

    ~InputFile();
    InputFile(const InputFile &) = delete;
    InputFile &operator=(const InputFile &) = delete;

    uint64_t size() const { return static_cast<uint64_t>(m_identity.size); }
    const FileIdentity &identity() const { return m_identity; }

    /// Reads up to `size` bytes at `offset`; fewer only at the end of the file.
    std::size_t readAt(uint64_t offset, char *to, std::size_t size) const;
    /// Reads exactly `size` bytes. Throws RefusedFile (Malformed) if the file ends before.
    void readExactly(uint64_t offset, char *to, std::size_t size) const;
    /// The first bytes of the file, at most `size`.
    std::string head(std::size_t size) const;

private:
    InputFile(int descriptor, const FileIdentity &identity)
        : m_descriptor(descriptor)
        , m_identity(identity)
    {}

    int m_descriptor;
    FileIdentity m_identity;
};

/// A contiguous part of a file.
struct Extent
{
    uint64_t offset = 0;
    uint64_t size = 0;
};

/// The bytes of several extents of a file, one after the other.
class FileSource : public ByteSource
{
public:
    FileSource(std::shared_ptr<const InputFile> file, std::vector<Extent> extents);

    std::size_t read(char *to, std::size_t size) override;

private:
    std::shared_ptr<const InputFile> m_file;
    std::vector<Extent> m_extents;
    std::size_t m_current = 0;
    uint64_t m_done = 0; ///< bytes of the current extent read so far
};

} // namespace vlt::driver
