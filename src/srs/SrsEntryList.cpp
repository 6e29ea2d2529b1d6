#include "srs/SrsEntryList.h"

#include <algorithm>

namespace vlt::srs {

int SrsEntryList::indexOfCode(const QString &code) const
{
    const auto found =
        std::find_if(begin(), end(), [&](const SrsEntry &entry) { return entry.code == code; });
    return found == end() ? -1 : static_cast<int>(found - begin());
}

} // namespace vlt::srs
