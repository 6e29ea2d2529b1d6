#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace vlt::driver {

/// Many texts in few blocks of memory; the texts never move.
class StringPool
{
public:
    std::size_t size() const { return m_places.size(); }

    std::string_view operator[](std::size_t index) const
    {
        const Place &place = m_places[index];
        return {m_blocks[place.block].get() + place.offset, place.size};
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
        m_places.push_back({static_cast<uint32_t>(m_blocks.size() - 1),
                            static_cast<uint32_t>(m_used), static_cast<uint32_t>(text.size())});
        m_used += text.size();
    }

    void clear() { *this = {}; }

private:
    static constexpr std::size_t BlockSize = std::size_t{256} << 10;

    struct Place
    {
        uint32_t block;
        uint32_t offset;
        uint32_t size;
    };

    std::vector<std::unique_ptr<char[]>> m_blocks;
    std::vector<Place> m_places;
    std::size_t m_used = 0;
    std::size_t m_capacity = 0;
};

} // namespace vlt::driver
