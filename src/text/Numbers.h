#pragma once

#include <QString>

namespace vlt::text {

/// General format with 6 significant digits in the C locale, whatever the process locale is: "2.5",
/// "3", "1e+08".
QString g6(double value);

/// General format with 9 significant digits in the C locale: millimetres for projected
/// coordinates, a decimetre or better for degrees.
QString g9(double value);

/// Fixed format with 6 decimals in the C locale: "2.500000".
QString f6(double value);

} // namespace vlt::text
