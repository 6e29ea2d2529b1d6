#include "plugins/tables/sites/CoordinateScale.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/roles/NameMatch.h"

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
    bool areWhole = true;
    double maximum = 0; ///< of the absolute values
};

SampledNumbers numbersOf(const Field &field)
{
    SampledNumbers numbers;
    for (const std::string &text : field.samples) {
        const std::optional<double> number = parseEitherNumber(trimmed(text));
        if (!number)
            continue;
        ++numbers.count;
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
        return {*degrees, true};
    const auto metres = stated(&WordMeaning::metres);
    if (metres && (*metres < 1 || std::max(x.maximum, y.maximum) <= GreatestKm))
        return {*metres, false};
    return {};
}

} // namespace vlt::driver
