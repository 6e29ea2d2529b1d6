#pragma once

#include <optional>
#include <string_view>

namespace vlt::driver {

/// Metres per unit of a length that a word names (m, km, ft, feet, miles, ...).
std::optional<double> metresPer(std::string_view word);

/// MHz per unit of a frequency that a word names (Hz, kHz, MHz, GHz, THz).
std::optional<double> megahertzPer(std::string_view word);

using UnitOf = std::optional<double> (*)(std::string_view word);

/// The first unit that a column name or the end of a value names.
std::optional<double> unitInName(std::string_view name, UnitOf unitOf);

/// A length such as 30, 30.5 m, 98,4 ft or 12km, in metres.
///
/// @param unitM  metres per unit of a number that stands alone
std::optional<double> readLengthM(std::string_view text, double unitM);

/// An angle that is written as one number, with a degree sign or without.
std::optional<double> readDegrees(std::string_view text);

/// The number that a text starts with as a frequency in MHz: "23 GHz", "7/8 GHz",
/// "['006123.10', '006123.10']".
///
/// @param unitMHz  MHz per unit where the text names none; nothing: below 200 means GHz, from a
///                 million on Hz, else MHz
std::optional<double> readFrequencyMHz(std::string_view text, std::optional<double> unitMHz);

} // namespace vlt::driver
