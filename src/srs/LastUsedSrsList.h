#pragma once

#include "srs/StoredSrsList.h"

namespace vlt::srs {

/// The last used systems, newest first, at most ten.
///
/// Stored as "LastUsedSrsList/n_CODE", "n_ALIAS" and "n_IS_USER_DEF", n = 1 .. 10. Numbers without
/// a code or an alias are skipped; without the flag, an entry counts as user-defined.
class LastUsedSrsList final : public StoredSrsList
{
public:
    static constexpr int MaxCount = 10;

    /// Reads the builder's settings.
    LastUsedSrsList();

    /// Adds a system that was chosen, then saves. If its code is already in the list, the stored
    /// entry is moved to the front, with its old alias and flag. In a full list, a new entry
    /// replaces the oldest.
    void use(const SrsEntry &entry);

    void save() const override;
};

} // namespace vlt::srs
