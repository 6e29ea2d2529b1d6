#pragma once

#include <optional>
#include <string_view>

namespace vlt::driver {

/// Metres per unit, for the name of a unit of length (m, km, ft, feet, miles, ...).
std::optional<double> metresPer(std::string_view word);

/// MHz per unit, for the name of a unit of frequency (Hz, kHz, MHz, GHz, THz).
std::optional<double> megahertzPer(std::string_view word);

/// Degrees per unit, for the name or the sign of a unit of angle (°, deg, gon, grad, rad, ...). The
/// German "Grad" is a degree, "grad" a gon.
std::optional<double> degreesPer(std::string_view word);

using UnitOf = std::optional<double> (*)(std::string_view word);

/// A column of lengths or frequencies.
struct QuantityField
{
    int field = -1;             ///< -1 for none
    std::optional<double> unit; ///< metres or MHz per unit in its name
    int unitField = -1;         ///< a field with the unit of each row; -1 for none

    bool found() const { return field >= 0; }
};

/// The first unit in a column name or at the end of a value.
std::optional<double> unitInName(std::string_view name, UnitOf unitOf);

/// A length such as 30, 30.5 m, 98,4 ft or 12km, in metres.
///
/// @param unitM  metres per unit of a number without a unit
std::optional<double> readLengthM(std::string_view text, double unitM);

/// An angle written as one number, such as 120, 120° or 133,5 gon, in degrees.
///
/// @param unitDeg  degrees per unit of a number without a unit
std::optional<double> readDegrees(std::string_view text, double unitDeg = 1);

/// The number at the start of a text as a frequency in MHz. Examples: "23 GHz", "7/8 GHz",
/// "['006123.10', '006123.10']".
///
/// @param unitMHz  MHz per unit if the text has no unit; without it, numbers below 200 are in GHz,
///                 from a million on in Hz, and others in MHz
std::optional<double> readFrequencyMHz(std::string_view text, std::optional<double> unitMHz);

} // namespace vlt::driver
