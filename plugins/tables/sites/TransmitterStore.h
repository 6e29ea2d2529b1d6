#pragma once

#include "plugins/tables/cells/HashIndex.h"
#include "plugins/tables/cells/StringPool.h"
#include "plugins/tables/sites/TransmitterReader.h"

#include <array>
#include <cstdint>
#include <deque>
#include <vector>

namespace vlt::driver {

/// Many transmitters in little memory: each number is stored once.
class TransmitterStore
{
public:
    void add(const TransmitterValues &values);
    TransmitterValues operator[](std::size_t index) const;
    std::size_t size() const { return m_transmitters.size(); }
    /// To be called when all transmitters were added.
    void finish() { m_indexOfNumbers = {}; }

private:
    static constexpr std::size_t QuantityCount = 6;
    using Quantities = std::array<uint32_t, QuantityCount>; ///< indexes of m_numbers, or None

    uint32_t indexOf(double number);

    std::deque<Quantities> m_transmitters;
    std::vector<double> m_numbers; ///< all different
    HashIndex m_indexOfNumbers;
    StringPool m_texts; ///< sector id, zero byte, technology of each transmitter
};

} // namespace vlt::driver
