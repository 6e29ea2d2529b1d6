#pragma once

#include "contract/ChosenNumber.h"

#include <QSpinBox>

#include <type_traits>

namespace vlt::wizard {

/// Gives a spin box or slider the range of a number and, as its value, the first-run value. Large
/// whole numbers are shown in groups of digits.
template<typename Box, typename Number>
void offer(Box *box, const contract::ChosenNumber<Number> &number)
{
    if constexpr (std::is_same_v<Box, QSpinBox>)
        box->setGroupSeparatorShown(true);
    box->setRange(number.minimum, number.maximum);
    box->setValue(number.firstRun);
}

} // namespace vlt::wizard
