#include "plugins/tables/roles/RoleEvidence.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Numbers.h"

namespace vlt::driver {

namespace {

bool holdsNames(Role role)
{
    switch (role) {
    case Role::SiteId:
    case Role::SiteName:
    case Role::UtmZone:
    case Role::SectorId:
    case Role::Technology:
    case Role::Operator:
    case Role::LinkName:
    case Role::Repeater:
        return true;
    default:
        return false;
    }
}

} // namespace

std::string roleEvidence(const std::string &name, Role role, const ColumnFacts &facts)
{
    using contract::formatted;
    if (facts.filled == 0)
        return formatted("MESS_TAB_EVIDENCE_EMPTY", {name});
    if (holdsNames(role) || facts.numeric * 2 <= facts.filled)
        return formatted("MESS_TAB_EVIDENCE_TEXTS",
                         {name, std::to_string(facts.filled), std::to_string(facts.distinct)});
    const std::string count = std::to_string(facts.numeric);
    const std::string least = numberText(facts.minimum);
    const std::string greatest = numberText(facts.maximum);
    if (facts.lists * 2 > facts.numeric)
        return formatted("MESS_TAB_EVIDENCE_LISTS", {name, count, least, greatest});
    return facts.areWhole ? formatted("MESS_TAB_EVIDENCE_WHOLE", {name, count, least, greatest})
                          : formatted("MESS_TAB_EVIDENCE_NUMBERS", {name, count, least, greatest});
}

} // namespace vlt::driver
