#pragma once

#include "plugins/tables/bytes/InputFile.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace vlt::driver {

/// The streams of an OLE 2 compound file. Source of the format: [MS-CFB].
class CompoundFile
{
public:
    static constexpr char Signature[] = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";

    /// Throws RefusedFile (Malformed).
    explicit CompoundFile(std::shared_ptr<const InputFile> file);

    bool contains(const std::string &name) const { return m_entries.count(name) != 0; }
    /// The extents of a stream in the file, in the order of its bytes. Throws RefusedFile if the
    /// stream is missing or damaged.
    std::vector<Extent> extents(const std::string &name) const;

private:
    struct Entry
    {
        uint32_t firstSector = 0;
        uint64_t size = 0;
    };

    void readAllocationTable(const char *header);
    void readDirectory(uint32_t firstSector);
    std::vector<uint32_t> chain(const std::vector<uint32_t> &table, uint32_t first) const;
    uint64_t sectorOffset(uint32_t sector) const { return (uint64_t{sector} + 1) << m_sectorShift; }
    std::vector<Extent> bigExtents(uint32_t first, uint64_t size) const;

    std::shared_ptr<const InputFile> m_file;
    int m_sectorShift = 9;
    uint64_t m_miniCutoff = 4096;
    std::vector<uint32_t> m_table;
    std::vector<uint32_t> m_miniTable;
    Entry m_root;
    std::map<std::string, Entry> m_entries;
};

} // namespace vlt::driver
