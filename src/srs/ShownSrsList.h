#pragma once

#include "srs/DefaultSrsList.h"
#include "srs/LastUsedSrsList.h"
#include "srs/SrsEntryList.h"

namespace vlt::srs {

/// The systems of a chooser, one per row, and the chosen row.
class ShownSrsList final : public SrsEntryList
{
public:
    /// Replaces the list by the last used systems, followed by the defaults that are not among
    /// them.
    void fill(const LastUsedSrsList &lastUsed);
    void fill(const LastUsedSrsList &lastUsed, const DefaultSrsList &defaults);

    /// Inserts an entry before `index`, 0 .. count().
    void insert(int index, const SrsEntry &entry) { entries().insert(index, entry); }

    /// Replaces the entry at `index`, 0 .. count() - 1.
    void replace(int index, const SrsEntry &entry) { entries()[index] = entry; }

    /// The chosen row; -1 for none. It may be a row of the chooser without a system.
    int currentIndex() const { return m_currentIndex; }
    void setCurrentIndex(int index) { m_currentIndex = index; }

private:
    int m_currentIndex = -1;
};

} // namespace vlt::srs
