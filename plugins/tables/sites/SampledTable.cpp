#include "plugins/tables/sites/SampledTable.h"

#include "contract/TableTexts.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/roles/RoleEvidence.h"

namespace vlt::driver {

const std::vector<std::string> &SampledTable::words(int field)
{
    std::optional<std::vector<std::string>> &words = m_words[static_cast<std::size_t>(field)];
    if (!words)
        words = separatedWords(m_profile.nameWithUnit(field), m_vocabulary);
    return *words;
}

const ColumnFacts &SampledTable::facts(int field)
{
    std::optional<ColumnFacts> &facts = m_facts[static_cast<std::size_t>(field)];
    if (!facts)
        facts = factsOf(cells(field), m_vocabulary);
    return *facts;
}

std::string SampledTable::evidence(int field, Role role)
{
    if (m_stated.fields.contains(field))
        return m_stated.evidence;
    return m_profile.header.rows.empty()
               ? contract::formatted("MESS_TAB_EVIDENCE_NO_HEADER")
               : roleEvidence(m_profile.nameInHeader(field), role, facts(field));
}

} // namespace vlt::driver
