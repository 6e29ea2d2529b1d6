#include "colormaps/ColorMapText.h"

#include "contract/SceneTexts.h"
#include "contract/Words.h"

#include <cpl_conv.h>
#include <cpl_error.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace vlt::colormaps {

namespace {

constexpr std::string_view Separators = " ,\t:";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t MaxShownToken = 256; // a damaged file may have one of megabytes

/// The first words of a line; words after the fifth one have no meaning.
struct Tokens
{
    std::array<std::string_view, 5> text;
    std::size_t count = 0;
};

struct NamedColor
{
    std::string_view name;
    Rgba color;
};

constexpr std::array<NamedColor, 16> NamedColors = {{
    {"white", {255, 255, 255}},
    {"black", {0, 0, 0}},
    {"red", {255, 0, 0}},
    {"green", {0, 255, 0}},
    {"blue", {0, 0, 255}},
    {"yellow", {255, 255, 0}},
    {"magenta", {255, 0, 255}},
    {"cyan", {0, 255, 255}},
    {"aqua", {0, 191, 191}},
    {"grey", {191, 191, 191}},
    {"gray", {191, 191, 191}},
    {"orange", {255, 127, 0}},
    {"brown", {191, 127, 63}},
    {"purple", {127, 0, 255}},
    {"violet", {127, 0, 255}},
    {"indigo", {0, 127, 255}},
}};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

void report(contract::SceneTextId text, std::string_view token)
{
    CPLError(CE_Failure, CPLE_AppDefined, "%s",
             contract::formatted(text, {token.substr(0, MaxShownToken)}).c_str());
}

Tokens tokensOf(std::string_view line)
{
    Tokens tokens;
    std::size_t begin = line.find_first_not_of(Separators);
    while (begin != std::string_view::npos && tokens.count < tokens.text.size()) {
        const std::size_t end = std::min(line.find_first_of(Separators, begin), line.size());
        tokens.text[tokens.count++] = line.substr(begin, end - begin);
        begin = line.find_first_not_of(Separators, end);
    }
    return tokens;
}

/// The decimal number at the start of the token, in the C locale. Its end is searched here, because
/// the geodata library would also read words such as "inf" and "1.#QNAN".
double leadingNumber(std::string_view token)
{
    std::size_t at = 0;
    if (at < token.size() && (token[at] == '+' || token[at] == '-'))
        ++at;
    if (at < token.size() && token[at] == '.')
        ++at;
    if (at >= token.size() || !isDigit(token[at]))
        return 0;
    const std::string number(token.substr(0, token.find_first_not_of("+-.0123456789eE")));
    constexpr double MaxValue = std::numeric_limits<double>::max();
    return std::clamp(CPLAtof(number.c_str()), -MaxValue, MaxValue);
}

std::uint8_t leadingByte(std::string_view token)
{
    const bool isNegative = token.starts_with('-');
    if (isNegative || token.starts_with('+'))
        token.remove_prefix(1);
    unsigned number = 0;
    const auto read = std::from_chars(token.data(), token.data() + token.size(), number);
    if (read.ec == std::errc::result_out_of_range)
        number = 255;
    return isNegative ? 0 : static_cast<std::uint8_t>(std::min(number, 255U));
}

std::optional<Rgba> readColor(const Tokens &tokens)
{
    const auto alphaAt = [&tokens](std::size_t index) {
        return index < tokens.count ? leadingByte(tokens.text[index]) : std::uint8_t(255);
    };
    if (tokens.count >= 4)
        return Rgba{leadingByte(tokens.text[1]), leadingByte(tokens.text[2]),
                    leadingByte(tokens.text[3]), alphaAt(4)};

    const auto named =
        std::find_if(NamedColors.begin(), NamedColors.end(), [&tokens](const NamedColor &one) {
            return contract::isSameWord(one.name, tokens.text[1]);
        });
    if (named == NamedColors.end()) {
        report("MESS_SCENE_NO_COLOR", tokens.text[1]);
        return std::nullopt;
    }
    Rgba color = named->color;
    color.alpha = alphaAt(2);
    return color;
}

bool isPercentage(std::string_view token)
{
    return token.size() >= 2 && token.ends_with('%');
}

double atPercentage(double percentage, double minimum, double maximum)
{
    const double value = minimum + (maximum - minimum) * percentage / 100;
    return std::isfinite(value) ? value : std::lerp(minimum, maximum, percentage / 100);
}

/// Reads lines into a table.
class LineReader
{
public:
    LineReader(double minimum, double maximum)
        : m_minimum(minimum)
        , m_maximum(maximum)
        , m_hasRange(minimum != ColorMap::Unset && maximum != ColorMap::Unset)
    {}

    /// Reads a line; false if it is invalid, so that the whole file is.
    bool take(std::string_view line)
    {
        const Tokens tokens = tokensOf(line);
        const std::string_view first = tokens.text.front();
        if (tokens.count < 2 || first.front() == '#' || first.front() == '/')
            return true;
        if (contract::isSameWord(first, "nv")) {
            m_table.noDataColor = readColor(tokens);
            return m_table.noDataColor.has_value();
        }

        double value = leadingNumber(first);
        if (isPercentage(first)) {
            if (!m_hasRange)
                return true;
            if (value < 0 || value > 100) {
                report("MESS_SCENE_BAD_SHARE", first);
                return false;
            }
            value = atPercentage(value, m_minimum, m_maximum);
        }
        const std::optional<Rgba> color = readColor(tokens);
        if (color)
            m_table.associations.push_back({value, *color});
        return color.has_value();
    }

    ColorTable sortedTable() &&
    {
        sortByValue(m_table);
        return std::move(m_table);
    }

private:
    double m_minimum;
    double m_maximum;
    bool m_hasRange;
    ColorTable m_table;
};

} // namespace

std::optional<ColorTable> parseColorMapText(std::string_view text, double minimum, double maximum)
{
    if (text.starts_with(ByteOrderMark))
        text.remove_prefix(ByteOrderMark.size());
    LineReader reader(minimum, maximum);
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        if (!reader.take(text.substr(0, end)))
            return std::nullopt;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return std::move(reader).sortedTable();
}

std::string colorMapText(const ColorMap &map)
{
    std::string text;
    const auto addLine = [&text](std::string_view first, const Rgba &color) {
        text += first;
        for (const int part : {color.red, color.green, color.blue, color.alpha})
            text += ' ' + std::to_string(part);
        text += '\n';
    };
    for (const ColorAssociation &one : map.associations()) {
        std::array<char, 32> digits{};
        const char *end = std::to_chars(digits.begin(), digits.end(), one.value).ptr;
        addLine({digits.data(), static_cast<std::size_t>(end - digits.data())}, one.color);
    }
    if (map.noDataColor())
        addLine("nv", *map.noDataColor());
    return text;
}

} // namespace vlt::colormaps
