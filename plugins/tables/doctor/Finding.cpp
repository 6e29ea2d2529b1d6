#include "plugins/tables/doctor/Finding.h"

#include <array>

namespace vlt::driver {

std::string_view findingWord(FindingKind kind)
{
    constexpr std::array<std::string_view, 11> Words = {
        "swapped",    "swappedRows", "sign",    "decimal",     "thousands",     "unitSystem",
        "undeclared", "outlier",     "stacked", "duplicateId", "outsideTerrain"};
    return Words.at(static_cast<std::size_t>(kind));
}

} // namespace vlt::driver
