#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace vlt::driver {

/// Stores many texts in few blocks of memory; the texts never move.
class StringPool
{
public:
    std::size_t size() const { return m_locations.size(); }

    std::string_view operator[](std::size_t index) const
    {
        const Location &location = m_locations[index];
        return {m_blocks[location.block].get() + location.offset, location.size};
    }

    void add(std::string_view text)
    {
        if (m_blocks.empty() || m_used + text.size() > m_capacity) {
            m_capacity = std::max(BlockSize, text.size());
            m_blocks.push_back(std::make_unique_for_overwrite<char[]>(m_capacity));
            m_used = 0;
        }
        if (!text.empty())
            std::memcpy(m_blocks.back().get() + m_used, text.data(), text.size());
        m_locations.push_back({static_cast<uint32_t>(m_blocks.size() - 1),
                               static_cast<uint32_t>(m_used), static_cast<uint32_t>(text.size())});
        m_used += text.size();
    }

    void clear() { *this = {}; }

private:
    static constexpr std::size_t BlockSize = std::size_t{256} << 10;

    struct Location
    {
        uint32_t block;
        uint32_t offset;
        uint32_t size;
    };

    std::vector<std::unique_ptr<char[]>> m_blocks;
    std::vector<Location> m_locations;
    std::size_t m_used = 0;
    std::size_t m_capacity = 0;
};

} // namespace vlt::driver
