#pragma once

#include "geodata/LinkCheck.h"

namespace vlt::links {

/// A link of a check, with what its profile needs.
struct ChosenLink
{
    geodata::LinkReport link;
    QString endSystem; ///< of the check
    geodata::LinkCheckInput input;
};

} // namespace vlt::links
