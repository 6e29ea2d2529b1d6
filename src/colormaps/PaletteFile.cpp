#include "colormaps/PaletteFile.h"

namespace vlt::colormaps {

namespace {

constexpr std::size_t HeaderSize = 8;
constexpr std::uint32_t MaxCount = 256;

std::uint8_t byteAt(std::string_view bytes, std::size_t offset)
{
    return static_cast<std::uint8_t>(bytes[offset]);
}

std::uint32_t littleEndianAt(std::string_view bytes, std::size_t offset)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i)
        number |= std::uint32_t(byteAt(bytes, offset + i)) << (8 * i);
    return number;
}

std::uint32_t swapped(std::uint32_t number)
{
    return number >> 24 | (number >> 8 & 0xFF00U) | (number << 8 & 0xFF0000U) | number << 24;
}

bool isCount(std::uint32_t number)
{
    return number >= 1 && number <= MaxCount;
}

} // namespace

std::vector<ColorAssociation> parsePalette(std::string_view bytes)
{
    if (bytes.size() < HeaderSize)
        return {};
    std::uint32_t first = littleEndianAt(bytes, 0);
    std::uint32_t count = littleEndianAt(bytes, 4);
    if (!isCount(count)) {
        first = swapped(first);
        count = swapped(count);
    }
    if (first >= MaxCount || !isCount(count) || (bytes.size() - HeaderSize) / count != 3)
        return {};

    std::vector<ColorAssociation> colors;
    colors.reserve(count);
    const std::string_view reds = bytes.substr(HeaderSize, count);
    const std::string_view greens = bytes.substr(HeaderSize + count, count);
    const std::string_view blues = bytes.substr(HeaderSize + count + count, count);
    for (std::uint32_t i = 0; i < count; ++i)
        colors.push_back(
            {double(first + i), {byteAt(reds, i), byteAt(greens, i), byteAt(blues, i)}});
    return colors;
}

} // namespace vlt::colormaps
