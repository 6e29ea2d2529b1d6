#include "contract/RasterColors.h"

#include "contract/Words.h"

namespace vlt::contract {

namespace {

/// The words for true and for false.
using Choice = const char *const[2];
constexpr Choice Stretch = {"stretched", "absolute"};
constexpr Choice Interpolation = {"interpolation", "colorrange"};
constexpr Choice InCapitals = {"TRUE", "FALSE"};

constexpr char ImageStart[] = "IMAGE;";
constexpr char ColorMapStart[] = "cmap:datasource=";
constexpr char NoDataKey[] = ";nd=";
constexpr char MapKey[] = ";cmap=";
constexpr char StretchKey[] = ";stretchcmap=";
constexpr char InterpolationKey[] = ";interpolatecmap=";
constexpr char BandKey[] = ";band=";
constexpr char Band[] = "1"; ///< readers of the texts take no other band
constexpr char ReductionKey[] = ";type=";

const char *chosen(const Choice &words, bool isYes)
{
    return words[isYes ? 0 : 1];
}

std::optional<bool> choice(const Choice &words, std::string_view word)
{
    if (isSameWord(words[0], word))
        return true;
    return isSameWord(words[1], word) ? std::optional(false) : std::nullopt;
}

/// Removes the last `mark` and all that follows it from a text, and returns what followed; nothing
/// if there is no mark.
std::optional<std::string> takeFromEnd(std::string_view &text, std::string_view mark)
{
    const std::size_t at = text.rfind(mark);
    if (at == std::string_view::npos)
        return std::nullopt;
    std::string value(text.substr(at + mark.size()));
    text = text.substr(0, at);
    return value;
}

std::string takeWord(std::string_view &text, std::string_view mark)
{
    return takeFromEnd(text, mark).value_or("");
}

std::optional<Reduction> takeReduction(std::string_view &text, std::string_view mark)
{
    return valueOf<Reduction>(ReductionWords, takeWord(text, mark));
}

std::optional<RasterColors> parseImage(std::string_view text)
{
    const std::optional<std::string> last = takeFromEnd(text, ";");
    std::optional<bool> isInterpolated = choice(Interpolation, last.value_or(""));
    const bool hasNoData = last && !isInterpolated;
    if (hasNoData)
        isInterpolated = choice(Interpolation, takeWord(text, ";"));
    const auto isStretched = choice(Stretch, takeWord(text, ";"));
    const auto reduction = takeReduction(text, ";");
    const auto map = takeFromEnd(text, ";");
    if (!isInterpolated || !isStretched || !reduction || !map || map->empty() || text.empty())
        return std::nullopt;
    return RasterColors{std::string(text),     *map, *reduction, *isStretched, *isInterpolated,
                        hasNoData ? *last : ""};
}

std::optional<RasterColors> parseColorMap(std::string_view text)
{
    const auto reduction = takeReduction(text, ReductionKey);
    const auto band = takeFromEnd(text, BandKey);
    const auto isInterpolated = choice(InCapitals, takeWord(text, InterpolationKey));
    const auto isStretched = choice(InCapitals, takeWord(text, StretchKey));
    const auto map = takeFromEnd(text, MapKey);
    const std::string noData = takeWord(text, NoDataKey);
    if (!reduction || band != Band || !isInterpolated || !isStretched || !map || map->empty() ||
        text.empty())
        return std::nullopt;
    return RasterColors{std::string(text), *map, *reduction, *isStretched, *isInterpolated, noData};
}

} // namespace

std::string imageColorText(const RasterColors &colors)
{
    std::string text = ImageStart + colors.raster;
    for (const std::string_view part :
         {std::string_view(colors.map), std::string_view(wordOf(ReductionWords, colors.reduction)),
          std::string_view(chosen(Stretch, colors.isStretched)),
          std::string_view(chosen(Interpolation, colors.isInterpolated))})
        text.append(";").append(part);
    return colors.noData.empty() ? text : text + ';' + colors.noData;
}

std::string colorMapColorText(const RasterColors &colors)
{
    std::string text = ColorMapStart + colors.raster;
    if (!colors.noData.empty())
        text += NoDataKey + colors.noData;
    text += MapKey + colors.map;
    text.append(StretchKey).append(chosen(InCapitals, colors.isStretched));
    text.append(InterpolationKey).append(chosen(InCapitals, colors.isInterpolated));
    text.append(BandKey).append(Band);
    return text.append(ReductionKey).append(wordOf(ReductionWords, colors.reduction));
}

std::optional<RasterColors> parseRasterColors(std::string_view text, const BuildingColors &others)
{
    constexpr std::string_view image = ImageStart;
    constexpr std::string_view colorMap = ColorMapStart;
    std::optional<RasterColors> colors;
    if (text.starts_with(image))
        colors = parseImage(text.substr(image.size()));
    else if (text.starts_with(colorMap))
        colors = parseColorMap(text.substr(colorMap.size()));
    if (colors) {
        colors->band = others.band;
        colors->range = others.range;
    }
    return colors;
}

} // namespace vlt::contract
