#include "plugins/tables/sites/TransmitterStore.h"

#include <functional>
#include <string_view>

namespace vlt::driver {

namespace {

constexpr std::array Members = {
    &TransmitterValues::heightM,           &TransmitterValues::azimuthDeg,
    &TransmitterValues::mechanicalTiltDeg, &TransmitterValues::electricalTiltDeg,
    &TransmitterValues::beamWidthDeg,      &TransmitterValues::frequencyMHz,
};

} // namespace

uint32_t TransmitterStore::indexOf(double number)
{
    const std::size_t hash = std::hash<double>()(number);
    const auto isIt = [&](uint32_t index) { return m_numbers[index] == number; };
    if (const uint32_t known = m_indexOfNumbers.find(hash, isIt); known != HashIndex::None)
        return known;
    const auto index = static_cast<uint32_t>(m_numbers.size());
    m_indexOfNumbers.add(hash, index);
    m_numbers.push_back(number);
    return index;
}

void TransmitterStore::add(const TransmitterValues &values)
{
    static_assert(Members.size() == QuantityCount);
    Quantities quantities;
    for (std::size_t i = 0; i < QuantityCount; ++i)
        quantities[i] = values.*Members[i] ? indexOf(*(values.*Members[i])) : HashIndex::None;
    m_transmitters.push_back(quantities);
    m_texts.add(values.technology.empty() ? values.sectorId
                                          : values.sectorId + '\0' + values.technology);
}

TransmitterValues TransmitterStore::operator[](std::size_t index) const
{
    TransmitterValues values;
    for (std::size_t i = 0; i < QuantityCount; ++i) {
        if (const uint32_t number = m_transmitters[index][i]; number != HashIndex::None)
            values.*Members[i] = m_numbers[number];
    }
    const std::string_view texts = m_texts[index];
    const std::size_t end = texts.find('\0');
    values.sectorId = texts.substr(0, end);
    if (end != texts.npos)
        values.technology = texts.substr(end + 1);
    return values;
}

} // namespace vlt::driver
