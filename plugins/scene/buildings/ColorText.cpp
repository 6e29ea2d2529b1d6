#include "plugins/scene/buildings/ColorText.h"

#include <charconv>

namespace vlt::scene {

std::optional<colormaps::Rgba> parseColor(const std::string &text)
{
    constexpr std::size_t Length = 7;
    if (text.size() != Length || text.front() != '#')
        return std::nullopt;
    unsigned value = 0;
    const auto [end, error] =
        std::from_chars(text.data() + 1, text.data() + text.size(), value, 16);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    const auto part = [value](int shift) { return static_cast<std::uint8_t>(value >> shift); };
    return colormaps::Rgba{part(16), part(8), part(0), 255};
}

} // namespace vlt::scene
