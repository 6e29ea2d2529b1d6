#pragma once

#include "srs/StoredSrsList.h"

namespace vlt::srs {

/// The systems that the user defined, newest first, each with an alias, and with the definition as
/// code.
///
/// Stored as "UserDefinedSrsList/n_ALIAS" and "n_CODE". They are read in the alphabetical order of
/// the keys, so 10 comes before 2. Entries without an alias or a code are skipped.
class UserDefinedSrsList final : public StoredSrsList
{
public:
    /// Reads the builder's settings.
    UserDefinedSrsList();

    /// Inserts a system before all others, then saves.
    void add(const SrsEntry &entry);

    void save() const override;
};

} // namespace vlt::srs
