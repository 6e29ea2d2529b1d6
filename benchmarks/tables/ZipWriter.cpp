#include "ZipWriter.h"

#include <limits>
#include <stdexcept>

namespace vlt::benchmarks {

namespace {

constexpr std::size_t BlockBytes = 256 * 1024;
constexpr std::uint32_t LocalHeaderMark = 0x04034B50;
constexpr std::uint32_t DirectoryMark = 0x02014B50;
constexpr std::uint32_t EndMark = 0x06054B50;
constexpr std::uint16_t Version = 20;
constexpr std::uint16_t Deflated = 8;
constexpr std::uint16_t Date1980 = 0x0021; // 1980-01-01: the same bytes on every run
constexpr std::uint32_t ChecksumInHeader = 14;

void put16(std::string &bytes, std::uint16_t value)
{
    bytes += static_cast<char>(value & 0xFF);
    bytes += static_cast<char>(value >> 8);
}

void put32(std::string &bytes, std::uint32_t value)
{
    put16(bytes, static_cast<std::uint16_t>(value & 0xFFFF));
    put16(bytes, static_cast<std::uint16_t>(value >> 16));
}

} // namespace

ZipWriter::ZipWriter(const std::string &path)
    : m_file(path, std::ios::binary | std::ios::trunc)
    , m_block(BlockBytes)
{
    m_file.exceptions(std::ios::badbit | std::ios::failbit);
    constexpr int RawDeflate = -15;
    if (deflateInit2(&m_deflate, 6, Z_DEFLATED, RawDeflate, 8, Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::runtime_error("zlib cannot be initialised");
}

ZipWriter::~ZipWriter()
{
    deflateEnd(&m_deflate);
}

std::uint32_t ZipWriter::position()
{
    const std::streamoff here = m_file.tellp();
    if (here > std::numeric_limits<std::uint32_t>::max())
        throw std::runtime_error("the archive outgrows 4 GiB");
    return static_cast<std::uint32_t>(here);
}

void ZipWriter::beginEntry(const std::string &name)
{
    m_entries.push_back({name, position()});
    deflateReset(&m_deflate);
    m_entries.back().checksum = static_cast<std::uint32_t>(crc32(0, nullptr, 0));
    std::string header;
    put32(header, LocalHeaderMark);
    put16(header, Version);
    put16(header, 0);
    put16(header, Deflated);
    put16(header, 0);
    put16(header, Date1980);
    put32(header, 0); // checksum and both sizes follow in endEntry()
    put32(header, 0);
    put32(header, 0);
    put16(header, static_cast<std::uint16_t>(name.size()));
    put16(header, 0);
    m_file << header << name;
}

void ZipWriter::deflateBlock(int flush)
{
    Entry &entry = m_entries.back();
    do {
        m_deflate.next_out = m_block.data();
        m_deflate.avail_out = static_cast<uInt>(m_block.size());
        deflate(&m_deflate, flush);
        const std::size_t made = m_block.size() - m_deflate.avail_out;
        m_file.write(reinterpret_cast<const char *>(m_block.data()),
                     static_cast<std::streamsize>(made));
        entry.packed += static_cast<std::uint32_t>(made);
    } while (m_deflate.avail_out == 0);
}

void ZipWriter::write(std::string_view bytes)
{
    Entry &entry = m_entries.back();
    if (bytes.size() > std::numeric_limits<std::uint32_t>::max() - entry.plain)
        throw std::runtime_error(entry.name + " outgrows 4 GiB");
    // zlib's interface takes the input as non-const and does not write to it.
    auto *input = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.data()));
    const auto size = static_cast<uInt>(bytes.size());
    entry.checksum = static_cast<std::uint32_t>(crc32(entry.checksum, input, size));
    entry.plain += size;
    m_deflate.next_in = input;
    m_deflate.avail_in = size;
    deflateBlock(Z_NO_FLUSH);
}

void ZipWriter::endEntry()
{
    m_deflate.next_in = nullptr;
    m_deflate.avail_in = 0;
    deflateBlock(Z_FINISH);
    const Entry &entry = m_entries.back();
    const std::uint32_t end = position();
    std::string sizes;
    put32(sizes, entry.checksum);
    put32(sizes, entry.packed);
    put32(sizes, entry.plain);
    m_file.seekp(entry.offset + ChecksumInHeader);
    m_file << sizes;
    m_file.seekp(end);
}

void ZipWriter::addEntry(const std::string &name, std::string_view bytes)
{
    beginEntry(name);
    write(bytes);
    endEntry();
}

void ZipWriter::finish()
{
    const std::uint32_t start = position();
    std::string directory;
    for (const Entry &entry : m_entries) {
        put32(directory, DirectoryMark);
        put16(directory, Version);
        put16(directory, Version);
        put16(directory, 0);
        put16(directory, Deflated);
        put16(directory, 0);
        put16(directory, Date1980);
        put32(directory, entry.checksum);
        put32(directory, entry.packed);
        put32(directory, entry.plain);
        put16(directory, static_cast<std::uint16_t>(entry.name.size()));
        directory.append(12, '\0'); // no extra field, no comment, first disk, no attributes
        put32(directory, entry.offset);
        directory += entry.name;
    }
    std::string end;
    put32(end, EndMark);
    put32(end, 0);
    put16(end, static_cast<std::uint16_t>(m_entries.size()));
    put16(end, static_cast<std::uint16_t>(m_entries.size()));
    put32(end, static_cast<std::uint32_t>(directory.size()));
    put32(end, start);
    put16(end, 0);
    m_file << directory << end;
    m_file.close();
}

} // namespace vlt::benchmarks
