#pragma once

#include <cstdint>
#include <string>

namespace vlt::driver {

/// Appends a code point to a UTF-8 text.
inline void appendUtf8(std::string &to, uint32_t code)
{
    const auto tail = [code](int shift) {
        return static_cast<char>(0x80 | (code >> shift & 0x3F));
    };
    if (code < 0x80)
        to += static_cast<char>(code);
    else if (code < 0x800)
        to.append({static_cast<char>(0xC0 | code >> 6), tail(0)});
    else if (code < 0x10000)
        to.append({static_cast<char>(0xE0 | code >> 12), tail(6), tail(0)});
    else
        to.append({static_cast<char>(0xF0 | code >> 18), tail(12), tail(6), tail(0)});
}

} // namespace vlt::driver
