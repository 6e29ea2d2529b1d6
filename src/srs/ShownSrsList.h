#pragma once

#include "srs/DefaultSrsList.h"
#include "srs/LastUsedSrsList.h"
#include "srs/SrsEntryList.h"

namespace vlt::srs {

/// The systems that a chooser shows, one per row, and which of the rows is taken as chosen.
class ShownSrsList final : public SrsEntryList
{
public:
    /// Makes the list anew: everything used lately, then the defaults that are not among it.
    void fill(const LastUsedSrsList &lastUsed);
    void fill(const LastUsedSrsList &lastUsed, const DefaultSrsList &defaults);

    /// Puts an entry in front of the one at `index`, 0 .. count().
    void insert(int index, const SrsEntry &entry) { entries().insert(index, entry); }

    /// Puts an entry in place of the one at `index`, 0 .. count() - 1.
    void replace(int index, const SrsEntry &entry) { entries()[index] = entry; }

    /// Row taken as chosen; -1 for none. It may be a row of the chooser that holds no system.
    int currentIndex() const { return m_currentIndex; }
    void setCurrentIndex(int index) { m_currentIndex = index; }

private:
    int m_currentIndex = -1;
};

} // namespace vlt::srs
