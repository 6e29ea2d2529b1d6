#include "contract/SceneLegend.h"

#include <algorithm>
#include <charconv>

namespace vlt::contract::legend {

namespace {

constexpr char Hex[] = "0123456789abcdef";
constexpr std::size_t ColorLetters = 8;

std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

bool readColor(std::string_view text, Rgba &color)
{
    std::uint32_t number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number, 16);
    if (text.size() != ColorLetters || fault != std::errc() || end != text.data() + text.size())
        return false;
    for (std::size_t i = 0; i < color.size(); ++i)
        color[color.size() - 1 - i] = static_cast<std::uint8_t>(number >> (8 * i));
    return true;
}

} // namespace

std::string textOf(const std::vector<Row> &rows)
{
    std::string text;
    for (const Row &row : rows) {
        text += row.kind + '\t';
        for (const std::uint8_t part : row.color)
            text += {Hex[part >> 4], Hex[part & 0xf]};
        for (std::string part : row.texts) {
            std::replace_if(
                part.begin(), part.end(),
                [](char letter) { return letter == '\t' || letter == '\n'; }, ' ');
            text += '\t' + part;
        }
        text += '\n';
    }
    return text;
}

std::vector<Row> rowsOf(std::string_view text)
{
    std::vector<Row> rows;
    for (const std::string_view line : split(text, '\n')) {
        const std::vector<std::string_view> parts = split(line, '\t');
        Row row;
        if (parts.size() < 2 || parts[0].empty() || !readColor(parts[1], row.color))
            continue;
        row.kind = parts[0];
        row.texts.assign(parts.begin() + 2, parts.end());
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace vlt::contract::legend
