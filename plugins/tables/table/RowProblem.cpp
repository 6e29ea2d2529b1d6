#include "plugins/tables/table/RowProblem.h"

namespace vlt::driver {

std::string quotation(std::string_view value)
{
    constexpr std::size_t MaxLength = 60;
    if (value.size() <= MaxLength)
        return std::string(value);
    std::size_t cut = MaxLength;
    while (cut > 0 && (value[cut] & 0xC0) == 0x80) // never inside a character
        --cut;
    return std::string(value.substr(0, cut)) + "...";
}

} // namespace vlt::driver
