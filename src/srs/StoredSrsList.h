#pragma once

#include "srs/SrsEntryList.h"

namespace vlt::srs {

/// A list that is kept in the builder's settings. Every change is written through at once; what
/// others write meanwhile is seen by lists that are made afterwards.
class StoredSrsList : public SrsEntryList
{
public:
    /// Takes an entry out, then saves. An index out of range changes nothing.
    void removeAt(int index);

    /// Puts an entry in place of another, then saves. An index out of range changes nothing.
    void replaceAt(int index, const SrsEntry &entry);

    /// Writes the whole list in place of what is stored, numbered from 1 without gaps.
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
