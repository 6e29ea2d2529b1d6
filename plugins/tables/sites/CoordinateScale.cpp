#include "plugins/tables/sites/CoordinateScale.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/sites/SystemNames.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace vlt::driver {

namespace {

using Words = std::vector<std::string>;

constexpr double MaxLatitude = 90;
constexpr double MaxLongitude = 180;
constexpr double GreatestKm = 20000; ///< larger values are no kilometres

/// The sampled numbers of a column.
struct SampledNumbers
{
    std::size_t count = 0;
    std::size_t fine = 0; ///< those with four decimals or more
    bool areWhole = true;
    bool areNegative = false; ///< at least one of them
    double maximum = 0;       ///< of the absolute values
};

SampledNumbers numbersOf(const Field &field)
{
    SampledNumbers numbers;
    constexpr std::size_t FineDecimals = 4;
    for (const std::string &text : field.samples) {
        const std::string_view value = trimmed(text);
        const std::optional<double> number = parseEitherNumber(value);
        if (!number)
            continue;
        const std::size_t mark = value.find_first_of(".,");
        ++numbers.count;
        numbers.fine += mark != value.npos && value.size() - mark > FineDecimals ? 1 : 0;
        numbers.areNegative = numbers.areNegative || *number < 0;
        numbers.areWhole = numbers.areWhole && std::floor(*number) == *number;
        numbers.maximum = std::max(numbers.maximum, std::abs(*number));
    }
    return numbers;
}

/// Metres or degrees per unit in a name, if that is a power of ten other than 1.
std::optional<double> powerInName(const Words &words, std::optional<double> WordMeaning::*unit,
                                  const Vocabulary &vocabulary)
{
    constexpr double Precision = 1e-9;
    const std::optional<double> size = unitOfName(words, unit, vocabulary);
    const double exponent = size ? std::log10(*size) : 0;
    return std::abs(exponent) > Precision && std::abs(exponent - std::round(exponent)) < Precision
               ? size
               : std::nullopt;
}

bool names(const Words &words, Role role, const Vocabulary &vocabulary)
{
    const std::vector<NameMatch> matches = matchName(words, vocabulary);
    return std::any_of(matches.begin(), matches.end(),
                       [role](const NameMatch &match) { return match.role == role; });
}

/// Whole numbers in columns of longitudes and latitudes: the decimal mark of all is lost. Metres
/// under wrong names are positive and smaller.
CoordinateScale scaleOfLostMark(const SampledNumbers &x, const SampledNumbers &y)
{
    constexpr double LeastUnlikeMetres = 1e7;
    if (!x.areNegative && !y.areNegative && std::max(x.maximum, y.maximum) < LeastUnlikeMetres)
        return {};
    for (const double factor : {1e-6, 1e-7}) {
        if (x.maximum * factor <= MaxLongitude && y.maximum * factor <= MaxLatitude)
            return std::max(x.maximum, y.maximum) * factor < 1
                       ? CoordinateScale()
                       : CoordinateScale{factor, true, true};
    }
    return {};
}

/// Whether a name states degrees, or a system of longitudes and latitudes.
bool statesDegrees(const Field &field, const Vocabulary &vocabulary)
{
    const std::string name = nameWithUnit(field);
    return name.find("\u00B0") != name.npos || name.find("\u00BA") != name.npos ||
           unitOfName(separatedWords(name, vocabulary), &WordMeaning::degrees, vocabulary) ||
           !datumNamed(name, vocabulary).empty();
}

} // namespace

CoordinateScale findScale(const PointFields &point, const std::vector<Field> &fields,
                          const Vocabulary &vocabulary)
{
    if (!point.x.found() || !point.y.found() || point.x.inParts() || point.y.inParts() ||
        point.x.style != AngleStyle::Plain)
        return {};
    const Field &fieldX = fields[static_cast<std::size_t>(point.x.value)];
    const Field &fieldY = fields[static_cast<std::size_t>(point.y.value)];
    const Words nameX = separatedWords(nameWithUnit(fieldX), vocabulary);
    const Words nameY = separatedWords(nameWithUnit(fieldY), vocabulary);
    const SampledNumbers x = numbersOf(fieldX);
    const SampledNumbers y = numbersOf(fieldY);
    const bool areWhole = x.count > 0 && y.count > 0 && x.areWhole && y.areWhole;
    const auto stated = [&](std::optional<double> WordMeaning::*unit) {
        const auto ofX = powerInName(nameX, unit, vocabulary);
        return ofX == powerInName(nameY, unit, vocabulary) ? ofX : std::nullopt;
    };
    const auto degrees = stated(&WordMeaning::degrees);
    if (degrees && areWhole && x.maximum * *degrees <= MaxLongitude &&
        y.maximum * *degrees <= MaxLatitude)
        return {*degrees, true, false};
    const auto metres = stated(&WordMeaning::metres);
    if (metres && (*metres < 1 || std::max(x.maximum, y.maximum) <= GreatestKm))
        return {*metres, false, false};
    if (!degrees && areWhole && names(nameX, Role::Longitude, vocabulary) &&
        names(nameY, Role::Latitude, vocabulary))
        return scaleOfLostMark(x, y);
    return {};
}

bool areDegrees(const PointFields &point, const std::vector<Field> &fields,
                const Vocabulary &vocabulary)
{
    const Field &fieldX = fields[static_cast<std::size_t>(point.x.value)];
    const Field &fieldY = fields[static_cast<std::size_t>(point.y.value)];
    const SampledNumbers x = numbersOf(fieldX);
    const SampledNumbers y = numbersOf(fieldY);
    if (x.count == 0 || y.count == 0 || x.maximum > MaxLongitude || y.maximum > MaxLatitude)
        return false;
    const bool areFine = x.fine * 2 > x.count && y.fine * 2 > y.count;
    return areFine || (statesDegrees(fieldX, vocabulary) && statesDegrees(fieldY, vocabulary));
}

void addScaleProblem(const PointFields &point, const std::vector<Field> &fields,
                     std::vector<RowProblem> &problems)
{
    if (!point.scale.isGuessed)
        return;
    const auto name = [&fields](int field) { return fields[static_cast<std::size_t>(field)].name; };
    problems.push_back({0,
                        {},
                        false,
                        contract::formatted("MESS_TAB_LOST_DECIMALS",
                                            {name(point.yField()), name(point.xField()),
                                             numberText(std::round(1 / point.scale.factor))})});
}

} // namespace vlt::driver
