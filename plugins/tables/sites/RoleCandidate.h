#pragma once

#include "plugins/tables/roles/Role.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

namespace vlt::driver {

/// The score of a role that is stated: more than any name has.
constexpr double ScoreOfStated = 1e6;

/// A role that a column may have.
///
/// @tparam Owner  what the values belong to: a transmitter, an end of a link
template<typename Owner>
struct RoleCandidate
{
    int field = 0;
    Role role = Role::None;
    Owner owner = {};
    double score = 0;
    bool isStated = false;
};

/// Gives each column one role, and each role of an owner one column: the strongest candidates
/// first, then the columns on the left.
///
/// @param mayRepeat  a role that several columns may have
/// @return           the candidates that were chosen, in the order of the columns
template<typename Owner>
std::vector<RoleCandidate<Owner>> chooseRoles(std::vector<RoleCandidate<Owner>> candidates,
                                              Role mayRepeat = Role::None)
{
    using Candidate = RoleCandidate<Owner>;
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const Candidate &a, const Candidate &b) { return a.score > b.score; });
    std::set<std::pair<Role, Owner>> taken;
    std::set<int> used;
    std::vector<Candidate> chosen;
    for (const Candidate &candidate : candidates) {
        if (used.contains(candidate.field) ||
            (!taken.emplace(candidate.role, candidate.owner).second && candidate.role != mayRepeat))
            continue;
        used.insert(candidate.field);
        chosen.push_back(candidate);
    }
    std::sort(chosen.begin(), chosen.end(),
              [](const Candidate &a, const Candidate &b) { return a.field < b.field; });
    return chosen;
}

} // namespace vlt::driver
