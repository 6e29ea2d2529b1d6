#include "plugins/tables/sites/JoinKey.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/roles/NameWords.h"

#include <algorithm>

namespace vlt::driver {

std::string joinKey(std::string_view id)
{
    id = trimmed(id);
    const std::size_t end = std::min(id.find_first_not_of("0123456789"), id.size());
    const bool isWhole =
        end > 0 && (end == id.size() || (id[end] == '.' && id.find_first_not_of('0', end + 1) ==
                                                               std::string_view::npos));
    if (!isWhole)
        return folded(id);
    const std::string_view digits = id.substr(0, end);
    return std::string(digits.substr(std::min(digits.find_first_not_of('0'), end - 1)));
}

} // namespace vlt::driver
