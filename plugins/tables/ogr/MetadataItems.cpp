#include "plugins/tables/ogr/MetadataItems.h"

#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/SystemNames.h"

#include <set>

namespace vlt::driver {

namespace metadata = contract::metadata;

namespace {

/// The names of the changes that corrections make: negateX,negateY.
std::string namesOf(const std::vector<contract::PositionCorrection> &corrections)
{
    std::set<contract::PositionChange> changes;
    for (const contract::PositionCorrection &correction : corrections)
        changes.insert(correction.change);
    std::string names;
    for (const contract::PositionChange change : changes)
        names.append(names.empty() ? "" : ",").append(contract::changeName(change));
    return names;
}

} // namespace

CPLStringList problemItems(const ProblemList &problems)
{
    CPLStringList items;
    items.SetNameValue(metadata::ProblemCount, std::to_string(problems.count()).c_str());
    std::size_t number = 0;
    for (const RowProblem &problem : problems.kept()) {
        const std::string row = problem.row > 0 ? std::to_string(problem.row) : std::string();
        const char *severity =
            problem.isError ? metadata::ErrorSeverity : metadata::WarningSeverity;
        const std::string value = metadata::ProblemPrefix + std::to_string(++number) + '=' + row +
                                  metadata::ProblemSeparator + problem.column +
                                  metadata::ProblemSeparator + severity +
                                  metadata::ProblemSeparator + problem.text;
        items.AddString(value.c_str());
    }
    return items;
}

CPLStringList
findingItems(const std::vector<Finding> &findings,
             const std::vector<std::vector<contract::PositionCorrection>> &corrections)
{
    CPLStringList items;
    items.SetNameValue(metadata::FindingCount, std::to_string(findings.size()).c_str());
    for (std::size_t i = 0; i < findings.size(); ++i) {
        const Finding &finding = findings[i];
        const std::string number = std::to_string(i + 1);
        const std::string cure = corrections[i].empty() ? finding.cure : namesOf(corrections[i]);
        std::string value(findingWord(finding.kind));
        for (const std::string &part : {cure, finding.text})
            value.append(1, metadata::FindingSeparator).append(part);
        items.SetNameValue((metadata::FindingPrefix + number).c_str(), value.c_str());
        if (!corrections[i].empty())
            items.SetNameValue((metadata::CorrectionPrefix + number).c_str(),
                               contract::writeCorrections(corrections[i]).c_str());
    }
    return items;
}

CPLStringList systemItems(const TableFacts &facts)
{
    const Vocabulary &vocabulary = installedVocabulary().words;
    std::string named;
    for (const std::string &code : systemsNamed(facts.table, facts.point(), vocabulary))
        named += (named.empty() ? "" : " ") + code;
    std::string known;
    for (const NamedSystem &system : vocabulary.systems())
        known += (known.empty() ? "" : " ") + system.epsg;
    CPLStringList items;
    items.SetNameValue(metadata::NamedSystems, named.c_str());
    items.SetNameValue(metadata::KnownSystems, known.c_str());
    return items;
}

void addRoleItem(CPLStringList &items, std::string_view role, const std::string &sector,
                 const std::string &column, const std::string &evidence, const char *prefix)
{
    std::string value;
    for (const std::string &part : {std::string(role), sector, column})
        value += part + metadata::RoleSeparator;
    items.SetNameValue((prefix + std::to_string(items.Count())).c_str(),
                       (value + evidence).c_str());
}

void addSecondRoles(CPLStringList &items, const SecondRoles &second)
{
    CPLStringList own; // so that its numbers start with 1
    own.SetNameValue(metadata::SecondNameItem, second.table.c_str());
    for (const SecondRole &role : second.columns)
        addRoleItem(own, roleName(role.role), role.sector, role.column, role.evidence,
                    metadata::SecondRolePrefix);
    for (int i = 0; i < own.Count(); ++i)
        items.AddString(own[i]);
}

} // namespace vlt::driver
