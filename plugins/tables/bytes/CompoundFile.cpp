#include "plugins/tables/bytes/CompoundFile.h"

#include "plugins/tables/bytes/LittleEndian.h"
#include "plugins/tables/bytes/Refusal.h"

#include <algorithm>

namespace vlt::driver {

namespace {

constexpr std::size_t HeaderSize = 512;
constexpr std::size_t EntrySize = 128;
constexpr uint32_t LastRegularSector = 0xFFFFFFFA;
constexpr std::size_t HeaderTableSectors = 109;
constexpr int MiniShift = 6;
constexpr uint64_t MaxMiniStreamSize = 4096; ///< the only cutoff size in [MS-CFB]
constexpr char RootType = 5;
constexpr char StreamType = 2;
constexpr std::size_t MaxEntries = 65536;

[[noreturn]] void refuse()
{
    throw RefusedFile(Refusal::Malformed, "MESS_TAB_WORKBOOK_DAMAGED");
}

} // namespace

CompoundFile::CompoundFile(std::shared_ptr<const InputFile> file) : m_file(std::move(file))
{
    char header[HeaderSize];
    m_file->readExactly(0, header, HeaderSize);
    m_sectorShift = u16(header + 30);
    if (m_sectorShift != 9 && m_sectorShift != 12)
        refuse();
    m_miniCutoff = std::min<uint64_t>(u32(header + 56), MaxMiniStreamSize);
    readAllocationTable(header);
    for (const uint32_t sector : chain(m_table, u32(header + 60))) {
        std::vector<char> bytes(std::size_t{1} << m_sectorShift);
        m_file->readExactly(sectorOffset(sector), bytes.data(), bytes.size());
        for (std::size_t at = 0; at < bytes.size(); at += 4)
            m_miniTable.push_back(u32(bytes.data() + at));
    }
    readDirectory(u32(header + 48));
}

void CompoundFile::readAllocationTable(const char *header)
{
    const std::size_t sectorSize = std::size_t{1} << m_sectorShift;
    const std::size_t mostSectors = static_cast<std::size_t>(m_file->size() >> m_sectorShift) + 1;
    std::vector<uint32_t> tableSectors;
    for (std::size_t i = 0; i < HeaderTableSectors; ++i)
        tableSectors.push_back(u32(header + 76 + 4 * i));
    std::vector<char> bytes(sectorSize);
    uint32_t next = u32(header + 68);
    for (std::size_t guard = 0; next < LastRegularSector; ++guard) {
        if (guard > mostSectors)
            refuse();
        m_file->readExactly(sectorOffset(next), bytes.data(), sectorSize);
        for (std::size_t at = 0; at + 4 < sectorSize; at += 4)
            tableSectors.push_back(u32(bytes.data() + at));
        next = u32(bytes.data() + sectorSize - 4);
    }
    for (const uint32_t sector : tableSectors) {
        if (sector >= LastRegularSector)
            continue;
        const std::size_t got = m_file->readAt(sectorOffset(sector), bytes.data(), sectorSize);
        for (std::size_t at = 0; at + 4 <= got; at += 4)
            m_table.push_back(u32(bytes.data() + at));
        if (m_table.size() > mostSectors + sectorSize)
            break;
    }
}

std::vector<uint32_t> CompoundFile::chain(const std::vector<uint32_t> &table, uint32_t first) const
{
    std::vector<uint32_t> sectors;
    for (uint32_t sector = first; sector < LastRegularSector; sector = table[sector]) {
        if (sector >= table.size() || sectors.size() > table.size()) // a cycle or a truncated file
            refuse();
        sectors.push_back(sector);
    }
    return sectors;
}

void CompoundFile::readDirectory(uint32_t firstSector)
{
    std::vector<char> bytes(std::size_t{1} << m_sectorShift);
    std::size_t count = 0;
    for (const uint32_t sector : chain(m_table, firstSector)) {
        m_file->readExactly(sectorOffset(sector), bytes.data(), bytes.size());
        for (std::size_t at = 0; at < bytes.size() && ++count < MaxEntries; at += EntrySize) {
            const char *entry = bytes.data() + at;
            const std::size_t nameSize = std::min<std::size_t>(u16(entry + 64), 64);
            std::string name; // all names used here are ASCII characters in UTF-16
            for (std::size_t i = 0; i + 2 < nameSize; i += 2)
                name += entry[i];
            // in version 3 the upper half of the size is undefined
            const uint64_t size = m_sectorShift == 9 ? u32(entry + 120) : u64(entry + 120);
            if (entry[66] == RootType)
                m_root = {u32(entry + 116), size};
            else if (entry[66] == StreamType)
                m_entries.emplace(name, Entry{u32(entry + 116), size});
        }
    }
}

std::vector<Extent> CompoundFile::bigExtents(uint32_t first, uint64_t size) const
{
    std::vector<Extent> extents;
    const uint64_t sectorSize = uint64_t{1} << m_sectorShift;
    for (const uint32_t sector : chain(m_table, first)) {
        const uint64_t part = std::min(sectorSize, size);
        if (part == 0)
            break;
        const uint64_t offset = sectorOffset(sector);
        if (!extents.empty() && extents.back().offset + extents.back().size == offset)
            extents.back().size += part;
        else
            extents.push_back({offset, part});
        size -= part;
    }
    if (size > 0)
        refuse();
    return extents;
}

std::vector<Extent> CompoundFile::extents(const std::string &name) const
{
    const auto found = m_entries.find(name);
    if (found == m_entries.end())
        refuse();
    uint64_t size = found->second.size;
    if (size >= m_miniCutoff)
        return bigExtents(found->second.firstSector, size);
    const std::vector<Extent> container = bigExtents(m_root.firstSector, m_root.size);
    std::vector<Extent> extents;
    for (const uint32_t sector : chain(m_miniTable, found->second.firstSector)) {
        uint64_t offset = uint64_t{sector} << MiniShift;
        const uint64_t part = std::min(uint64_t{1} << MiniShift, size);
        if (part == 0)
            break;
        std::size_t at = 0;
        while (at < container.size() && offset >= container[at].size)
            offset -= container[at++].size;
        if (at == container.size())
            refuse();
        extents.push_back({container[at].offset + offset, part});
        size -= part;
    }
    if (size > 0)
        refuse();
    return extents;
}

} // namespace vlt::driver
