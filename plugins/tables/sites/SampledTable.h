#pragma once

#include "plugins/tables/roles/ColumnFacts.h"
#include "plugins/tables/roles/Role.h"
#include "plugins/tables/sites/StatedRoles.h"
#include "plugins/tables/table/Table.h"

#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// The names and sampled values of a table while the roles of its columns are searched.
class SampledTable
{
public:
    /// All arguments have to exist as long as this object.
    SampledTable(const TableProfile &profile, const Vocabulary &vocabulary,
                 const StatedRoles &stated)
        : m_profile(profile)
        , m_vocabulary(vocabulary)
        , m_stated(stated)
        , m_words(profile.fields.size())
        , m_facts(profile.fields.size())
    {}

    const TableProfile &profile() const { return m_profile; }
    const Vocabulary &vocabulary() const { return m_vocabulary; }
    const StatedRoles &stated() const { return m_stated; }
    int fieldCount() const { return static_cast<int>(m_profile.fields.size()); }
    const std::vector<std::string> &cells(int field) const
    {
        return m_profile.sampledColumns[static_cast<std::size_t>(field)];
    }

    /// The words in the name of a column, with its unit.
    const std::vector<std::string> &words(int field);
    /// What the values of a column are like.
    const ColumnFacts &facts(int field);
    /// Why a column has a role, as a text for the user.
    std::string evidence(int field, Role role);

private:
    const TableProfile &m_profile;
    const Vocabulary &m_vocabulary;
    const StatedRoles &m_stated;
    std::vector<std::optional<std::vector<std::string>>> m_words;
    std::vector<std::optional<ColumnFacts>> m_facts;
};

} // namespace vlt::driver
