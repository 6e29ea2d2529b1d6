#include "localframe/NearOnes.h"

#include <algorithm>
#include <cmath>

namespace vlt::localframe {

namespace {

constexpr double TailShare = 0.05;
constexpr double MaxExtents = 20;
constexpr double MinFarM = 20000;

} // namespace

Interval nearOnes(std::vector<double> values, double unitM)
{
    const auto last = static_cast<double>(values.size() - 1);
    const auto at = [&values](double rank) {
        const auto nth = values.begin() + static_cast<std::ptrdiff_t>(rank);
        std::nth_element(values.begin(), nth, values.end());
        return *nth;
    };
    const double minimum = at(std::ceil(TailShare * last));
    const double maximum = at(std::floor((1 - TailShare) * last));
    const double margin = std::max(MinFarM / unitM, MaxExtents * (maximum - minimum));
    return {minimum - margin, maximum + margin};
}

} // namespace vlt::localframe
