#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace vlt::driver {

/// Finds the numbers of things by the hashes of their keys. The things and their keys are stored
/// elsewhere, so that it takes 8 bytes per place in its table.
class HashIndex
{
public:
    static constexpr uint32_t None = std::numeric_limits<uint32_t>::max();

    /// The number of the thing with that hash to which `isWanted(number)` applies, or None.
    template<typename IsWanted>
    uint32_t find(std::size_t hash, IsWanted isWanted) const
    {
        if (m_places.empty())
            return None;
        const uint32_t wanted = shortened(hash);
        for (std::size_t at = wanted & mask(); m_places[at].number != None; at = (at + 1) & mask())
            if (m_places[at].hash == wanted && isWanted(m_places[at].number))
                return m_places[at].number;
        return None;
    }

    void add(std::size_t hash, uint32_t number)
    {
        if (++m_count * 4 > m_places.size() * 3)
            grow();
        insert({shortened(hash), number});
    }

private:
    struct Place
    {
        uint32_t hash = 0;
        uint32_t number = None;
    };

    static uint32_t shortened(std::size_t hash)
    {
        return static_cast<uint32_t>(hash ^ (hash >> 32));
    }
    std::size_t mask() const { return m_places.size() - 1; }

    void insert(const Place &place)
    {
        std::size_t at = place.hash & mask();
        while (m_places[at].number != None)
            at = (at + 1) & mask();
        m_places[at] = place;
    }

    void grow()
    {
        constexpr std::size_t MinPlaces = 16; // a power of two, as all sizes
        const std::vector<Place> old = std::exchange(
            m_places, std::vector<Place>(m_places.empty() ? MinPlaces : m_places.size() * 2));
        for (const Place &place : old) {
            if (place.number != None)
                insert(place);
        }
    }

    std::vector<Place> m_places;
    std::size_t m_count = 0;
};

} // namespace vlt::driver
