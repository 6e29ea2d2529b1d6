#include "plugins/tables/values/TransmitterValues.h"

#include "contract/TransmitterRanges.h"
#include "plugins/tables/cells/Bearing.h"
#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/values/Quantity.h"

#include <algorithm>
#include <cmath>

namespace vlt::driver {

namespace {

using contract::Range;

/// Whether a text is a number of nines only, which programs write for an unknown value. A height of
/// 99999 m or a frequency of 9999 MHz is short enough to be a mistake or a value.
bool isFiller(std::string_view text)
{
    constexpr std::size_t MinDigits = 6;
    constexpr std::size_t MinDigitsBelowZero = 4;
    const bool isNegative = text.starts_with('-');
    if (isNegative)
        text.remove_prefix(1);
    const std::size_t nines = std::min(text.find_first_not_of('9'), text.size());
    const std::string_view rest = text.substr(nines);
    const bool isWhole = rest.find_first_not_of('0', rest.empty() ? 0 : 1) == rest.npos &&
                         (rest.empty() || rest[0] == '.' || rest[0] == ',');
    return isWhole && nines >= (isNegative ? MinDigitsBelowZero : MinDigits);
}

/// The text of a cell that holds a value; empty for others.
std::string_view valueText(std::string_view text, const ValueWords &words)
{
    text = trimmed(text);
    return text.empty() || isFiller(text) || words.isMissing(text) ? std::string_view() : text;
}

TransmitterValue checked(std::optional<double> number, const Range &range)
{
    if (!number)
        return {std::nullopt, ValueFault::Unreadable};
    if (!range.contains(*number))
        return {std::nullopt, ValueFault::OutOfRange};
    return {number, std::nullopt};
}

bool hasLetter(std::string_view text)
{
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; });
}

/// An angle, or a word for all directions.
TransmitterValue readDirection(std::string_view text, double unitDeg, const ValueWords &words,
                               const Range &range)
{
    if (words.isOmni(text)) // "ND" is also a word for no value
        return {std::nullopt, std::nullopt, true};
    const std::string_view value = valueText(text, words);
    if (value.empty())
        return {std::nullopt, std::nullopt, false, hasLetter(text)};
    text = value;
    return checked(readDegrees(text, unitDeg), range);
}

double wholeTurnsRemoved(double degrees)
{
    constexpr double WholeTurnDeg = 360;
    const double rest = std::fmod(degrees, WholeTurnDeg);
    return rest < 0 ? rest + WholeTurnDeg : std::abs(rest); // no negative zero
}

} // namespace

TransmitterValue readAntennaHeightM(std::string_view text, double unitM, const ValueWords &words)
{
    text = valueText(text, words);
    return text.empty()
               ? TransmitterValue()
               : checked(readLengthM(words.aboveGround(text), unitM), contract::AntennaHeightM);
}

TransmitterValue readAzimuthDeg(std::string_view text, double unitDeg, const ValueWords &words)
{
    if (const auto bearing = parseBearing(text))
        return {bearing, std::nullopt};
    if (const auto point = parseCompassPoint(text))
        return {point, std::nullopt};
    TransmitterValue azimuth = readDirection(text, unitDeg, words, contract::AzimuthDeg);
    if (azimuth.number)
        azimuth.number = wholeTurnsRemoved(*azimuth.number);
    return azimuth;
}

TransmitterValue readTiltDeg(std::string_view text, double unitDeg, const ValueWords &words)
{
    text = valueText(text, words);
    if (text.empty())
        return {};
    TransmitterValue tilt = checked(readDegrees(text, std::abs(unitDeg)), contract::TiltDeg);
    if (tilt.number && unitDeg < 0)
        tilt.number = 0 - *tilt.number; // no negative zero
    return tilt;
}

TransmitterValue readBeamWidthDeg(std::string_view text, double unitDeg, const ValueWords &words)
{
    return readDirection(text, unitDeg, words, contract::BeamWidthDeg);
}

TransmitterValue readFrequency(std::string_view text, std::optional<double> unitMHz,
                               const ValueWords &words)
{
    text = valueText(text, words);
    if (text.empty())
        return {};
    const auto megahertz = readFrequencyMHz(text, unitMHz);
    if (!megahertz)
        return {std::nullopt, ValueFault::Unreadable};
    if (*megahertz <= 0)
        return {std::nullopt, ValueFault::OutOfRange};
    return {megahertz, std::nullopt};
}

} // namespace vlt::driver
