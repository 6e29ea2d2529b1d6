#include "plugins/tables/doctor/Correction.h"

#include <algorithm>
#include <cmath>

namespace vlt::driver {

namespace {

std::vector<Correction> allCorrections()
{
    constexpr int MaxShift = 6; // digits by which a decimal mark is displaced
    std::vector<Correction> all = {{FindingKind::Swapped, true, 1, 1},
                                   {FindingKind::Sign, false, -1, 1},
                                   {FindingKind::Sign, false, 1, -1},
                                   {FindingKind::Sign, false, -1, -1}};
    for (int shift = 1; shift <= MaxShift; ++shift) {
        for (const double factor : {std::pow(10, shift), std::pow(10, -shift)}) {
            all.push_back({FindingKind::Decimal, false, factor, 1});
            all.push_back({FindingKind::Decimal, false, 1, factor});
            all.push_back({FindingKind::Decimal, false, factor, factor});
        }
    }
    return all;
}

double medianOf(const std::vector<SurveyedPosition> &positions,
                double SurveyedPosition::*coordinate)
{
    std::vector<double> values;
    values.reserve(positions.size());
    for (const SurveyedPosition &position : positions)
        values.push_back(position.*coordinate);
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>((values.size() - 1) / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

std::span<const Correction> corrections()
{
    static const std::vector<Correction> all = allCorrections();
    return all;
}

contract::PositionCorrection statementOf(const Correction &correction)
{
    using contract::PositionChange;
    if (correction.isSwap)
        return {PositionChange::Swap, 1, {}};
    const bool inX = correction.factorX != 1;
    const bool inY = correction.factorY != 1;
    const auto choose = [&](PositionChange x, PositionChange y, PositionChange both) {
        return inX && inY ? both : inX ? x : y;
    };
    const double factor = inX ? correction.factorX : correction.factorY;
    if (factor == -1)
        return {choose(PositionChange::NegateX, PositionChange::NegateY, PositionChange::Negate),
                1,
                {}};
    return {
        choose(PositionChange::ScaleX, PositionChange::ScaleY, PositionChange::Scale), factor, {}};
}

SurveyedPosition middleOf(const std::vector<SurveyedPosition> &positions)
{
    SurveyedPosition middle;
    middle.x = medianOf(positions, &SurveyedPosition::x);
    middle.y = medianOf(positions, &SurveyedPosition::y);
    return middle;
}

} // namespace vlt::driver
