#pragma once

#include "contract/ChosenNumber.h"

namespace vlt::wizard {

/// Gives a spin box or slider the range of a number and, as its value, the first-run value.
template<typename Box, typename Number>
void offer(Box *box, const contract::ChosenNumber<Number> &number)
{
    box->setRange(number.minimum, number.maximum);
    box->setValue(number.firstRun);
}

} // namespace vlt::wizard
