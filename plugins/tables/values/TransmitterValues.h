#pragma once

#include "plugins/tables/table/ColumnStatistics.h"

#include <functional>
#include <optional>
#include <string_view>

namespace vlt::driver {

/// Words in columns of numbers.
struct ValueWords
{
    std::function<bool(std::string_view)> isMissing = isMissingWord; ///< stands for no value
    /// Stands for all directions, in columns of azimuths and of beam widths.
    std::function<bool(std::string_view)> isOmni = [](std::string_view) { return false; };
    /// The height above ground in a text that may state others; see heightAboveGround().
    std::function<std::string_view(std::string_view)> aboveGround = [](std::string_view text) {
        return text;
    };
};

/// Why a value cannot be used.
enum class ValueFault {
    Unreadable,
    OutOfRange, ///< of contract/TransmitterRanges.h, or a frequency that is not positive
};

/// The value of a transmitter in a cell. Without a number and without a fault the cell holds no
/// value: it is empty, has a word for that, or a filler such as 999999999 or -9999.
struct TransmitterValue
{
    std::optional<double> number;
    std::optional<ValueFault> fault;
    bool isOmni = false; ///< the cell says that the antenna radiates in all directions
    /// The cell has a word such as N/A: an azimuth that is not known, while an empty cell or a
    /// dash may also stand for an antenna without one.
    bool isUnknown = false;

    bool isAbsent() const { return !number && !fault && !isOmni; }
};

/// The height of an antenna above ground, in metres: 30, 30,5 m, 98.4 ft, 1 234,5.
///
/// @param unitM  metres per unit of a number without a unit
TransmitterValue readAntennaHeightM(std::string_view text, double unitM, const ValueWords &words);

/// An azimuth in degrees from north, 0 <= number < 360: 120, 120°, 133,5 deg, 133 gon, -30, N30W,
/// SSW.
///
/// @param unitDeg  degrees per unit of a number without a unit
TransmitterValue readAzimuthDeg(std::string_view text, double unitDeg, const ValueWords &words);

/// A tilt in degrees, -90 to 90; positive ones point below the horizon.
///
/// @param unitDeg  degrees per unit of a number without a unit; negative if negative numbers point
///                 below the horizon
TransmitterValue readTiltDeg(std::string_view text, double unitDeg, const ValueWords &words);

/// A beam width in degrees, 0 to 360.
TransmitterValue readBeamWidthDeg(std::string_view text, double unitDeg, const ValueWords &words);

/// A frequency in MHz; see readFrequencyMHz().
TransmitterValue readFrequency(std::string_view text, std::optional<double> unitMHz,
                               const ValueWords &words);

} // namespace vlt::driver
