#pragma once

#include "srs/SrsEntry.h"

#include <QList>

namespace vlt::srs {

/// An ordered list of coordinate systems for reading. Derived classes differ in the source of the
/// entries and in the changes that they allow.
class SrsEntryList
{
public:
    int count() const { return static_cast<int>(m_entries.size()); }

    /// The entry at an index 0 .. count() - 1.
    const SrsEntry &at(int index) const { return m_entries.at(index); }

    /// Index of the first entry with exactly this code; -1 if there is none.
    int indexOfCode(const QString &code) const;

    bool isIndex(int index) const { return index >= 0 && index < count(); }

    QList<SrsEntry>::const_iterator begin() const { return m_entries.cbegin(); }
    QList<SrsEntry>::const_iterator end() const { return m_entries.cend(); }

protected:
    SrsEntryList() = default;
    ~SrsEntryList() = default;
    SrsEntryList(const SrsEntryList &) = default;
    SrsEntryList &operator=(const SrsEntryList &) = default;
    SrsEntryList(SrsEntryList &&) = default;
    SrsEntryList &operator=(SrsEntryList &&) = default;

    QList<SrsEntry> &entries() { return m_entries; }

private:
    QList<SrsEntry> m_entries;
};

} // namespace vlt::srs
