#include "language/Numbers.h"

#include "language/VltLanguageManager.h"

#include <cmath>

namespace vlt::language {

namespace {

/// The number, or a positive zero if it would be shown as a zero.
double withoutNegativeZero(double number, int decimals)
{
    const double unit = std::pow(10, decimals);
    return std::abs(number * unit) < 0.5 ? 0 : number;
}

} // namespace

QLocale numberLocale()
{
    return QLocale(VltLanguageManager::getInstance().getCurrentLanguage().text);
}

QString wholeNumber(qint64 number)
{
    return numberLocale().toString(number);
}

QString fixedNumber(double number, int decimals)
{
    return numberLocale().toString(withoutNegativeZero(number, decimals), 'f', decimals);
}

QString shortNumber(double number, int maxDecimals)
{
    int decimals = maxDecimals;
    for (double scaled = std::round(number * std::pow(10, maxDecimals));
         decimals > 0 && std::fmod(scaled, 10) == 0; scaled /= 10)
        --decimals;
    return fixedNumber(number, decimals);
}

QString roundNumber(double number, int digits)
{
    return numberLocale().toString(number, 'g', digits);
}

} // namespace vlt::language
