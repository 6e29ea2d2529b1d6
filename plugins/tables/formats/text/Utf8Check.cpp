#include "plugins/tables/formats/text/Utf8Check.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace vlt::driver {

namespace {

constexpr std::string_view Replacement = "\xEF\xBF\xBD";

/// The character at a byte above ASCII.
struct Sequence
{
    std::size_t length = 0; ///< in bytes; 0 for a bad byte
    bool isCut = false;
};

Sequence sequenceAt(std::string_view text, std::size_t at)
{
    const auto byte = [text, at](std::size_t next) {
        return static_cast<unsigned char>(text[at + next]);
    };
    const unsigned lead = byte(0);
    const std::size_t length = lead >= 0xC2 && lead <= 0xDF   ? 2
                               : lead >= 0xE0 && lead <= 0xEF ? 3
                               : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                              : 0;
    for (std::size_t next = 1; next < length; ++next) {
        if (at + next == text.size())
            return {next, true};
        // The second byte also excludes overlong forms, surrogates and codes out of range.
        const unsigned least = next > 1       ? 0x80U
                               : lead == 0xE0 ? 0xA0U
                               : lead == 0xF0 ? 0x90U
                                              : 0x80U;
        const unsigned most = next > 1       ? 0xBFU
                              : lead == 0xED ? 0x9FU
                              : lead == 0xF4 ? 0x8FU
                                             : 0xBFU;
        if (byte(next) < least || byte(next) > most)
            return {};
    }
    return {length, false};
}

} // namespace

std::size_t skipAscii(std::string_view text, std::size_t at)
{
    constexpr uint64_t HighBits = 0x8080808080808080U;
    constexpr std::size_t Word = sizeof(uint64_t);
    uint64_t words[4];
    for (; at + sizeof words <= text.size(); at += sizeof words) {
        std::memcpy(words, text.data() + at, sizeof words);
        if (((words[0] | words[1] | words[2] | words[3]) & HighBits) != 0)
            break;
    }
    for (; at + Word <= text.size(); at += Word) {
        std::memcpy(words, text.data() + at, Word);
        if (const uint64_t high = words[0] & HighBits)
            return at + static_cast<std::size_t>(std::countr_zero(high)) / 8;
    }
    while (at < text.size() && (text[at] & 0x80) == 0)
        ++at;
    return at;
}

Utf8Count countUtf8(std::string_view text)
{
    Utf8Count count;
    for (std::size_t at = skipAscii(text, 0); at < text.size(); at = skipAscii(text, at)) {
        const Sequence found = sequenceAt(text, at);
        const bool isGood = found.length > 0 && !found.isCut;
        ++(isGood ? count.characters : count.badBytes);
        at += isGood ? found.length : 1;
    }
    return count;
}

bool isUtf8(std::string_view text)
{
    for (std::size_t at = skipAscii(text, 0); at < text.size(); at = skipAscii(text, at)) {
        const Sequence found = sequenceAt(text, at);
        if (found.length == 0)
            return false;
        at += found.length;
    }
    return true;
}

bool isUtf8Piece(std::string_view piece)
{
    for (int skipped = 0;
         skipped < 3 && !piece.empty() && (static_cast<unsigned char>(piece[0]) & 0xC0) == 0x80;
         ++skipped)
        piece.remove_prefix(1);
    return isUtf8(piece);
}

std::string repairedUtf8(std::string_view text)
{
    std::string mended;
    std::size_t done = 0;
    for (std::size_t at = skipAscii(text, 0); at < text.size(); at = skipAscii(text, at)) {
        const Sequence found = sequenceAt(text, at);
        if (found.length > 0 && !found.isCut) {
            at += found.length;
            continue;
        }
        mended.append(text, done, at - done).append(Replacement);
        done = ++at;
    }
    return mended.append(text, done);
}

} // namespace vlt::driver
