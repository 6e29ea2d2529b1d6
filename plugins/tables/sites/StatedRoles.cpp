#include "plugins/tables/sites/StatedRoles.h"

#include "contract/TableTexts.h"
#include "plugins/tables/roles/NameWords.h"
#include "plugins/tables/roles/Role.h"
#include "plugins/tables/sites/NameList.h"

#include <algorithm>
#include <optional>

namespace vlt::driver {

namespace {

bool isRoleOfSites(std::string_view name)
{
    const Role role = roleOfName(name);
    return role == Role::SiteId || role == Role::SiteName || role == Role::X || role == Role::Y ||
           (role >= Role::Pair && role <= Role::Operator);
}

bool isRoleOf(contract::TableKind kind, std::string_view name)
{
    if (kind == contract::TableKind::Sites)
        return isRoleOfSites(name);
    constexpr std::string_view OfLinks[] = {"linkName", "lengthLink", "frequency",
                                            "band",     "diameter",   "repeater"};
    constexpr std::string_view OfEnds[] = {"siteId",
                                           "siteName",
                                           "x",
                                           "y",
                                           "pair",
                                           "utmZone",
                                           "groundHeight",
                                           "antennaHeight",
                                           "seaLevelHeight",
                                           "azimuth",
                                           "tilt",
                                           "frequency",
                                           "offsetX",
                                           "offsetY",
                                           "diameter"};
    const auto isIn = [](const auto &names, std::string_view of) {
        return std::find(std::begin(names), std::end(names), of) != std::end(names);
    };
    const bool isOfEnd = name.ends_with('A') || name.ends_with('B');
    return isIn(OfLinks, name) || (isOfEnd && isIn(OfEnds, name.substr(0, name.size() - 1)));
}

void report(const NameList &names, contract::TableTextId id, const std::string &file,
            std::vector<RowProblem> &problems)
{
    if (!names.text().empty())
        problems.push_back({0, {}, false, contract::formatted(id, {file, names.text()})});
}

/// The fields of a table by their names.
class FieldNames
{
public:
    explicit FieldNames(const TableProfile &table)
    {
        const bool isHeaderless = table.header.rows.empty();
        for (std::size_t i = 0; i < table.fields.size(); ++i) {
            const int field = static_cast<int>(i);
            m_names.emplace(table.fields[i].name, field);
            m_folded.emplace(folded(table.fields[i].name), field);
            if (isHeaderless)
                m_names.emplace("Column " + std::to_string(table.fields[i].column + 1), field);
        }
    }

    std::optional<int> find(const std::string &name) const
    {
        if (const auto exact = m_names.find(name); exact != m_names.end())
            return exact->second;
        const auto similar = m_folded.find(folded(name));
        return similar == m_folded.end() ? std::nullopt : std::optional(similar->second);
    }

private:
    std::map<std::string, int> m_names;
    std::map<std::string, int> m_folded;
};

} // namespace

StatedRoles findStatedRoles(const contract::ColumnMapping &mapping, contract::TableKind kind,
                            const TableProfile &table, const std::string &file,
                            std::vector<RowProblem> &problems)
{
    StatedRoles stated;
    stated.evidence = contract::formatted("MESS_TAB_EVIDENCE_STATED", {file});
    const FieldNames names(table);
    NameList unknown;
    NameList gone;
    NameList twice;
    for (const auto &[role, columns] : mapping.roles) {
        if (!isRoleOf(kind, role)) {
            unknown.add(role);
            continue;
        }
        std::vector<int> fields;
        for (const std::string &column : columns) {
            const std::optional<int> field = column.empty() ? -1 : names.find(column);
            if (!field)
                gone.add(column);
            else if (*field >= 0 &&
                     (stated.fields.contains(*field) ||
                      std::find(fields.begin(), fields.end(), *field) != fields.end()))
                twice.add(column);
            else
                fields.push_back(*field);
        }
        if (fields.size() != columns.size())
            continue;
        stated.fields.insert(fields.begin(), fields.end());
        stated.roles.emplace(role, std::move(fields));
    }
    stated.fields.erase(-1);
    report(unknown, "MESS_TAB_MAPPING_ROLES", file, problems);
    report(gone, "MESS_TAB_MAPPING_COLUMNS", file, problems);
    report(twice, "MESS_TAB_MAPPING_TWICE", file, problems);
    return stated;
}

} // namespace vlt::driver
