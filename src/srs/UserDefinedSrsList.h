#pragma once

#include "srs/StoredSrsList.h"

namespace vlt::srs {

/// The systems that the user defined by hand, newest first: an alias each, and the definition as
/// code.
///
/// Stored as "UserDefinedSrsList/n_ALIAS" and "n_CODE". They are read in the order of their keys as
/// text, so 10 comes before 2; whatever lacks an alias or a code is passed over.
class UserDefinedSrsList final : public StoredSrsList
{
public:
    /// Reads the builder's settings.
    UserDefinedSrsList();

    /// Puts a system in front of all others, then saves.
    void add(const SrsEntry &entry);

    void save() const override;
};

} // namespace vlt::srs
