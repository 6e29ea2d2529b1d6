#include "srs/ShownSrsList.h"

namespace vlt::srs {

void ShownSrsList::fill(const LastUsedSrsList &lastUsed)
{
    entries().clear();
    for (const SrsEntry &entry : lastUsed)
        entries().append(entry);
}

void ShownSrsList::fill(const LastUsedSrsList &lastUsed, const DefaultSrsList &defaults)
{
    fill(lastUsed);
    for (const SrsEntry &entry : defaults) {
        if (lastUsed.indexOfCode(entry.code) < 0)
            entries().append(entry);
    }
}

} // namespace vlt::srs
