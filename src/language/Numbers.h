#pragma once

#include <QLocale>
#include <QString>

namespace vlt::language {

/// The format of numbers in texts for people: that of the chosen language, whatever the locale of
/// the process is. Files, queries and reports for programs are in the C locale.
QLocale numberLocale();

/// "12,040"
QString wholeNumber(qint64 number);

/// With a fixed number of decimals: "10.730".
QString fixedNumber(double number, int decimals);

/// With as many decimals as needed, `maxDecimals` at most: "1,000", "10.73".
QString shortNumber(double number, int maxDecimals);

/// With a number of significant digits at most, without superfluous zeros; large and small numbers
/// have an exponent.
QString roundNumber(double number, int digits = 6);

} // namespace vlt::language
