#pragma once

#include "plugins/tables/bytes/ByteSource.h"
#include "plugins/tables/bytes/InputFile.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace vlt::driver {

/// Reads the members of a ZIP archive (also ZIP64). Only the central directory is trusted.
///
/// Source of the format: PKWARE APPNOTE 6.3.
class ZipArchive
{
public:
    /// Throws RefusedFile (Malformed) if there is no usable central directory.
    explicit ZipArchive(std::shared_ptr<const InputFile> file);

    bool contains(const std::string &name) const { return find(name) != nullptr; }
    /// The bytes of a member, stored or deflated. Throws RefusedFile: Malformed if it is missing or
    /// damaged, Encrypted, NotSupportedFormat for another compression method.
    std::unique_ptr<ByteSource> open(const std::string &name) const;
    /// A whole member as text. Throws RefusedFile (Malformed) if it has more than `limit` bytes.
    std::string readAll(const std::string &name, std::size_t limit) const;

private:
    struct Member
    {
        uint64_t headerOffset = 0;
        uint64_t compressedSize = 0;
        uint32_t crc = 0;
        uint16_t method = 0;
        uint16_t flags = 0;
    };

    void readDirectory(uint64_t offset, uint64_t size);
    const Member *find(const std::string &name) const;

    std::shared_ptr<const InputFile> m_file;
    /// By lower-case name, because office packages do not distinguish case in names of parts.
    std::map<std::string, Member> m_members;
};

} // namespace vlt::driver
