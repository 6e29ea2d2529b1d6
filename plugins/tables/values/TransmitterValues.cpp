#include "plugins/tables/values/TransmitterValues.h"

#include "contract/TransmitterRanges.h"
#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/values/Quantity.h"

#include <algorithm>
#include <cmath>

namespace vlt::driver {

namespace {

using contract::Range;
using contract::TableTextId;

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

TransmitterValue checked(std::optional<double> number, const Range &range, TableTextId unreadable,
                         TableTextId outOfRange)
{
    if (!number)
        return {std::nullopt, unreadable};
    if (!range.contains(*number))
        return {std::nullopt, outOfRange};
    return {number, std::nullopt};
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
    if (text.empty())
        return {};
    return checked(readLengthM(text, unitM), contract::AntennaHeightM, "MESS_TAB_HEIGHT_UNREADABLE",
                   "MESS_TAB_HEIGHT_RANGE");
}

TransmitterValue readAzimuthDeg(std::string_view text, double unitDeg, const ValueWords &words)
{
    text = valueText(text, words);
    if (text.empty())
        return {};
    if (words.isOmni(text))
        return {std::nullopt, std::nullopt, true};
    TransmitterValue azimuth = checked(readDegrees(text, unitDeg), contract::AzimuthDeg,
                                       "MESS_TAB_AZIMUTH_NO_NUMBER", "MESS_TAB_AZIMUTH_RANGE");
    if (azimuth.number)
        azimuth.number = wholeTurnsRemoved(*azimuth.number);
    return azimuth;
}

TransmitterValue readTiltDeg(std::string_view text, double unitDeg, const ValueWords &words)
{
    text = valueText(text, words);
    if (text.empty())
        return {};
    return checked(readDegrees(text, unitDeg), contract::TiltDeg, "MESS_TAB_TILT_UNREADABLE",
                   "MESS_TAB_TILT_RANGE");
}

TransmitterValue readBeamWidthDeg(std::string_view text, double unitDeg, const ValueWords &words)
{
    text = valueText(text, words);
    if (text.empty())
        return {};
    return checked(readDegrees(text, unitDeg), contract::BeamWidthDeg,
                   "MESS_TAB_BEAM_WIDTH_UNREADABLE", "MESS_TAB_BEAM_WIDTH_RANGE");
}

TransmitterValue readFrequency(std::string_view text, std::optional<double> unitMHz,
                               const ValueWords &words)
{
    text = valueText(text, words);
    if (text.empty())
        return {};
    const auto megahertz = readFrequencyMHz(text, unitMHz);
    if (!megahertz)
        return {std::nullopt, TableTextId("MESS_TAB_FREQUENCY_UNREADABLE")};
    if (*megahertz <= 0)
        return {std::nullopt, TableTextId("MESS_TAB_FREQUENCY_NOT_POSITIVE")};
    return {megahertz, std::nullopt};
}

} // namespace vlt::driver
