#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>
#include <zlib.h>

namespace vlt::benchmarks {

/// Writes a ZIP archive entry by entry, deflated at level 6, with sizes in the local headers.
/// Entries and archive must be smaller than 4 GiB.
/// @par Errors   std::runtime_error when the file cannot be written.
class ZipWriter
{
public:
    explicit ZipWriter(const std::string &path);
    ~ZipWriter();
    ZipWriter(const ZipWriter &) = delete;
    ZipWriter &operator=(const ZipWriter &) = delete;

    void beginEntry(const std::string &name);
    void write(std::string_view bytes);
    void endEntry();

    /// Writes a whole entry.
    void addEntry(const std::string &name, std::string_view bytes);

    /// Writes the central directory. This must be the last call.
    void finish();

private:
    struct Entry
    {
        std::string name;
        std::uint32_t offset = 0;
        std::uint32_t checksum = 0;
        std::uint32_t packed = 0;
        std::uint32_t plain = 0;
    };

    void deflateBlock(int flush);
    std::uint32_t position();

    std::ofstream m_file;
    std::vector<Entry> m_entries;
    std::vector<unsigned char> m_block;
    z_stream m_deflate = {};
};

} // namespace vlt::benchmarks
