#include "plugins/tables/bytes/InputFile.h"

#include "plugins/tables/bytes/Refusal.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vlt::driver {

namespace {

constexpr int64_t NanosecondsPerSecond = 1'000'000'000;

int64_t nanoseconds(const timespec &time)
{
    return time.tv_sec * NanosecondsPerSecond + time.tv_nsec;
}

FileIdentity identityOf(const struct stat &status)
{
    if (S_ISDIR(status.st_mode))
        throw RefusedFile(Refusal::CannotRead, "MESS_TAB_FOLDER");
    if (!S_ISREG(status.st_mode)) // reading a pipe or a device could block or never end
        throw RefusedFile(Refusal::CannotRead, "MESS_TAB_DEVICE");
    return {static_cast<uint64_t>(status.st_dev), static_cast<uint64_t>(status.st_ino),
            status.st_size, nanoseconds(status.st_mtim), nanoseconds(status.st_ctim)};
}

[[noreturn]] void refuseBySystem()
{
    const int code = errno;
    if (code == ENOENT)
        throw RefusedFile(Refusal::CannotRead, "MESS_TAB_NO_FILE");
    if (code == EACCES) // the most frequent reason has a text of its own
        throw RefusedFile(Refusal::CannotRead, "MESS_TAB_NO_PERMISSION");
    throw RefusedFile(Refusal::CannotRead, "MESS_TAB_UNREADABLE", {std::strerror(code)});
}

} // namespace

FileIdentity InputFile::identify(const std::string &path)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0)
        refuseBySystem();
    return identityOf(status);
}

std::shared_ptr<const InputFile> InputFile::open(const std::string &path)
{
    identify(path); // checked first, because open() would block on a pipe
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        refuseBySystem();
    struct stat status = {};
    FileIdentity identity;
    try {
        if (fstat(descriptor, &status) != 0)
            refuseBySystem();
        identity = identityOf(status);
    } catch (...) {
        close(descriptor);
        throw;
    }
    return std::shared_ptr<const InputFile>(new InputFile(descriptor, identity));
}

InputFile::~InputFile()
{
    close(m_descriptor);
}

std::size_t InputFile::readAt(uint64_t offset, char *to, std::size_t size) const
{
    std::size_t done = 0;
    while (done < size) {
        const ssize_t got =
            pread(m_descriptor, to + done, size - done, static_cast<off_t>(offset + done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            refuseBySystem();
        if (got == 0)
            break;
        done += static_cast<std::size_t>(got);
    }
    return done;
}

void InputFile::readExactly(uint64_t offset, char *to, std::size_t size) const
{
    if (readAt(offset, to, size) != size)
        throw RefusedFile(Refusal::Malformed, "MESS_TAB_FILE_CUT");
}

std::string InputFile::head(std::size_t size) const
{
    std::string bytes(static_cast<std::size_t>(std::min<uint64_t>(size, this->size())), '\0');
    bytes.resize(readAt(0, bytes.data(), bytes.size()));
    return bytes;
}

FileSource::FileSource(std::shared_ptr<const InputFile> file, std::vector<Extent> extents)
    : m_file(std::move(file))
    , m_extents(std::move(extents))
{}

std::size_t FileSource::read(char *to, std::size_t size)
{
    std::size_t done = 0;
    while (done < size && m_current < m_extents.size()) {
        const Extent &extent = m_extents[m_current];
        const std::size_t wanted =
            static_cast<std::size_t>(std::min<uint64_t>(size - done, extent.size - m_done));
        const std::size_t got = m_file->readAt(extent.offset + m_done, to + done, wanted);
        done += got;
        m_done += got;
        if (got < wanted) // the extent of a damaged compound file goes beyond the end
            m_current = m_extents.size();
        else if (m_done == extent.size) {
            ++m_current;
            m_done = 0;
        }
    }
    return done;
}

} // namespace vlt::driver
