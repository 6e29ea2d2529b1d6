#pragma once

#include <vector>

namespace vlt::localframe {

struct Interval
{
    double minimum = 0;
    double maximum = 0;

    bool contains(double value) const { return value >= minimum && value <= maximum; }
};

/// The interval of coordinates that are not far from all others: their distance from the middle
/// nine tenths is at most 20 km or, if that is more, 20 times the extent of these.
///
/// @param values  at least 3
/// @param unitM   metres per unit
Interval nearOnes(std::vector<double> values, double unitM);

} // namespace vlt::localframe
