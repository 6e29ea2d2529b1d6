#include "colormaps/ColorMap.h"

#include "colormaps/ColorMapText.h"
#include "colormaps/PaletteFile.h"
#include "contract/SceneTexts.h"

#include <cpl_error.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace vlt::colormaps {

namespace {

bool isSet(double end)
{
    return end != ColorMap::Unset && std::isfinite(end);
}

bool endsIn(std::string_view path, std::string_view lowerCaseEnd)
{
    const auto isSame = [](unsigned char a, unsigned char b) { return std::tolower(a) == b; };
    return path.size() >= lowerCaseEnd.size() &&
           std::equal(path.end() - static_cast<std::ptrdiff_t>(lowerCaseEnd.size()), path.end(),
                      lowerCaseEnd.begin(), isSame);
}

/// The bytes of a regular file, at most MaxFileSize + 1; nothing if it cannot be read.
std::optional<std::string> readFile(const std::string &path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return std::nullopt;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    std::ifstream stream(path, std::ios::binary);
    if (error || !stream)
        return std::nullopt;
    std::string bytes(std::min<std::uintmax_t>(size, ColorMap::MaxFileSize + 1), '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (stream.bad())
        return std::nullopt;
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

ColorTable readText(const std::string &path, double minimum, double maximum)
{
    const std::optional<std::string> text = readFile(path);
    if (!text) {
        CPLError(CE_Failure, CPLE_AppDefined, "%s",
                 contract::formatted("MESS_SCENE_NO_MAP_FILE", {path}).c_str());
        return {};
    }
    if (text->size() > ColorMap::MaxFileSize) {
        CPLError(CE_Failure, CPLE_AppDefined, "%s",
                 contract::formatted("MESS_SCENE_LARGE_MAP", {path}).c_str());
        return {};
    }
    std::optional<ColorTable> table = parseColorMapText(*text, minimum, maximum);
    if (!table)
        return {};
    if (table->associations.empty()) {
        CPLError(CE_Failure, CPLE_AppDefined, "%s",
                 contract::formatted("MESS_SCENE_NO_MAP_IN", {path}).c_str());
        return {};
    }
    return *std::move(table);
}

ColorTable readTable(const std::string &path, double minimum, double maximum)
{
    if (endsIn(path, "index.txt"))
        return {};
    if (endsIn(path, ".txt") || endsIn(path, ".cmap"))
        return readText(path, minimum, maximum);
    if (endsIn(path, ".tc"))
        return {parsePalette(readFile(path).value_or(std::string())), std::nullopt};
    return {};
}

} // namespace

void sortByValue(ColorTable &table)
{
    std::stable_sort(
        table.associations.begin(), table.associations.end(),
        [](const ColorAssociation &a, const ColorAssociation &b) { return a.value < b.value; });
}

bool ColorMap::load(const std::string &path, double minimum, double maximum)
{
    m_minimum = isSet(minimum) ? minimum : Unset;
    m_maximum = isSet(maximum) ? maximum : Unset;
    m_colors = readTable(path, m_minimum, m_maximum);
    if (m_colors.associations.empty())
        return false;
    stretch();
    return true;
}

bool ColorMap::hasRange() const
{
    return isSet(m_minimum) && isSet(m_maximum);
}

void ColorMap::stretch()
{
    std::vector<ColorAssociation> &all = m_colors.associations;
    const double first = all.front().value;
    const double last = all.back().value;
    if (!hasRange()) {
        m_minimum = first;
        m_maximum = last;
        return;
    }

    // halves, if the difference of the values is too large for a number
    const double scale = std::isfinite(last - first) ? 1 : 0.5;
    const double span = last * scale - first * scale;
    const double range = m_maximum - m_minimum;
    for (ColorAssociation &one : all) {
        const double share = span > 0 ? (one.value * scale - first * scale) / span : 0;
        one.value = std::isfinite(range) ? share * range + m_minimum
                                         : std::lerp(m_minimum, m_maximum, share);
    }
    if (range < 0)
        sortByValue(m_colors);
}

} // namespace vlt::colormaps
