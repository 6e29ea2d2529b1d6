#include "plugins/tables/cells/Bearing.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"

#include <algorithm>
#include <array>

namespace vlt::driver {

namespace {

constexpr double QuadrantDeg = 90;
constexpr double HalfTurnDeg = 180;
constexpr double WholeTurnDeg = 360;

char upperCase(char c)
{
    return static_cast<char>(c & ~0x20);
}

} // namespace

std::optional<double> parseBearing(std::string_view text)
{
    constexpr std::size_t MinSize = 3;
    text = trimmed(text);
    if (text.size() < MinSize)
        return std::nullopt;
    const char from = upperCase(text.front());
    const char to = upperCase(text.back());
    if ((from != 'N' && from != 'S') || (to != 'E' && to != 'W'))
        return std::nullopt;
    std::string_view digits = trimmed(text.substr(1, text.size() - 2));
    for (const std::string_view sign : {"\u00B0", "\u00BA"}) {
        if (digits.ends_with(sign))
            digits = trimmed(digits.substr(0, digits.size() - sign.size()));
    }
    if (digits.find_first_not_of("0123456789.,") != std::string_view::npos)
        return std::nullopt;
    const std::optional<double> angle = parseEitherNumber(digits);
    if (!angle || *angle >= WholeTurnDeg || (*angle > QuadrantDeg && (from == 'S' || to == 'W')))
        return std::nullopt;
    if (from == 'S')
        return to == 'E' ? HalfTurnDeg - *angle : HalfTurnDeg + *angle;
    return to == 'E' || *angle == 0 ? *angle : WholeTurnDeg - *angle;
}

std::optional<double> parseCompassPoint(std::string_view text)
{
    constexpr std::array<std::string_view, 16> Points = {"N",  "NNE", "NE", "ENE", "E",  "ESE",
                                                         "SE", "SSE", "S",  "SSW", "SW", "WSW",
                                                         "W",  "WNW", "NW", "NNW"};
    text = trimmed(text);
    if (text.size() > Points.back().size())
        return std::nullopt;
    const auto found = std::find_if(Points.begin(), Points.end(), [text](std::string_view point) {
        return std::equal(point.begin(), point.end(), text.begin(), text.end(),
                          [](char a, char b) { return a == upperCase(b); });
    });
    if (found == Points.end())
        return std::nullopt;
    return WholeTurnDeg / Points.size() * static_cast<double>(found - Points.begin());
}

} // namespace vlt::driver
