#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace vlt::driver {

/// Unaligned little-endian numbers, as office formats and ZIP store them.
template<typename T>
T littleEndian(const char *at)
{
    static_assert(std::endian::native == std::endian::little,
                  "byte swapping is needed on this machine");
    T value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

inline uint16_t u16(const char *at)
{
    return littleEndian<uint16_t>(at);
}
inline uint32_t u32(const char *at)
{
    return littleEndian<uint32_t>(at);
}
inline uint64_t u64(const char *at)
{
    return littleEndian<uint64_t>(at);
}

} // namespace vlt::driver
