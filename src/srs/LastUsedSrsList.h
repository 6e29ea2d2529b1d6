#pragma once

#include "srs/StoredSrsList.h"

namespace vlt::srs {

/// The systems chosen last, newest first, ten at most.
///
/// Stored as "LastUsedSrsList/n_CODE", "n_ALIAS" and "n_IS_USER_DEF", n = 1 .. 10. Numbers whose
/// code or alias is missing are passed over; without the flag, an entry counts as user-defined.
class LastUsedSrsList final : public StoredSrsList
{
public:
    static constexpr int MaximumCount = 10;

    /// Reads the builder's settings.
    LastUsedSrsList();

    /// Notes that a system was chosen, then saves. A system whose code is listed already goes to
    /// the front as it is stored: its old alias and flag stay. A new one displaces the oldest of a
    /// full list.
    void use(const SrsEntry &entry);

    void save() const override;
};

} // namespace vlt::srs
