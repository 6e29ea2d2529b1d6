#include "srs/StoredSrsList.h"

namespace vlt::srs {

void StoredSrsList::removeAt(int index)
{
    if (!isIndex(index))
        return;
    entries().removeAt(index);
    save();
}

void StoredSrsList::replaceAt(int index, const SrsEntry &entry)
{
    if (!isIndex(index))
        return;
    entries().replace(index, entry);
    save();
}

} // namespace vlt::srs
