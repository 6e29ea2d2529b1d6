#pragma once

#include "srs/SrsEntryList.h"

namespace vlt::srs {

/// A list that is stored in the builder's settings. Each change is saved immediately. Changes by
/// other programs are visible only in objects that are created later.
class StoredSrsList : public SrsEntryList
{
public:
    /// Removes an entry, then saves. An index out of range has no effect.
    void removeAt(int index);

    /// Replaces an entry, then saves. An index out of range has no effect.
    void replaceAt(int index, const SrsEntry &entry);

    /// Replaces the stored list by this one, numbered from 1 without gaps.
    virtual void save() const = 0;

protected:
    StoredSrsList() = default;
    virtual ~StoredSrsList() = default;
    StoredSrsList(const StoredSrsList &) = default;
    StoredSrsList &operator=(const StoredSrsList &) = default;
    StoredSrsList(StoredSrsList &&) = default;
    StoredSrsList &operator=(StoredSrsList &&) = default;
};

} // namespace vlt::srs
