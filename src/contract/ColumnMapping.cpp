#include "contract/ColumnMapping.h"

#include "contract/MappingJson.h"
#include "contract/QueryOptions.h"

#include <algorithm>

namespace vlt::contract {

namespace {

using Json = nlohmann::json;
using OrderedJson = nlohmann::ordered_json;

constexpr int Version = 1;
constexpr char SitesWord[] = "sites";
constexpr char LinksWord[] = "links";
constexpr char Corrections[] = "corrections";
constexpr int Indent = 4;

/// The text of a value that may only be one of two.
bool isSecond(const Json &value, const std::string &place, const char *first, const char *second)
{
    const std::string text = textOf(value, place);
    if (text != first && text != second)
        refuseValue(place);
    return text == second;
}

std::string systemOf(const Json &value, const std::string &place)
{
    constexpr std::string_view Authority = "EPSG:";
    constexpr std::size_t MaxDigits = 9;
    std::string text = textOf(value, place);
    const std::string_view code =
        std::string_view(text).substr(std::min(Authority.size(), text.size()));
    if (!text.starts_with(Authority) || code.empty() || code.size() > MaxDigits ||
        code.find_first_not_of("0123456789") != std::string_view::npos)
        refuseValue(place);
    return text;
}

std::vector<std::int64_t> headerRowsOf(const Json &value, const std::string &place)
{
    if (!value.is_array() || value.size() > MaxHeaderRows)
        refuseValue(place);
    std::vector<std::int64_t> rows;
    for (const Json &row : value) {
        const std::int64_t last = rows.empty() ? 0 : rows.back();
        if (!row.is_number_integer() || row <= last || row > MaxHeaderRow)
            refuseValue(place);
        rows.push_back(row.get<std::int64_t>());
    }
    return rows;
}

StatedColumns columnsOf(const Json &value, const std::string &place)
{
    if (value.is_null())
        return {};
    if (!value.is_array())
        return {textOf(value, place)};
    StatedColumns columns;
    for (const Json &column : value)
        columns.push_back(column.is_null() ? std::string() : textOf(column, place));
    if (columns.size() == 1) // a list, unlike a single column
        columns.emplace_back();
    return columns;
}

std::map<std::string, StatedColumns> rolesOf(const Json &value, const std::string &place)
{
    if (!value.is_object())
        refuseValue(place);
    std::map<std::string, StatedColumns> roles;
    for (const auto &[role, columns] : value.items()) {
        std::string where = place;
        where.append(".").append(role);
        roles.emplace(role, columnsOf(columns, where));
    }
    return roles;
}

void readMember(const std::string &key, const Json &value, ColumnMapping &mapping)
{
    if (key == "kind")
        mapping.kind =
            isSecond(value, key, SitesWord, LinksWord) ? TableKind::Links : TableKind::Sites;
    else if (key == "sheet")
        mapping.sheet = textOf(value, key);
    else if (key == "headerRows")
        mapping.headerRows = headerRowsOf(value, key);
    else if (key == "axes")
        mapping.swapsAxes = isSecond(value, key, "", query::SwappedAxes);
    else if (key == "sourceSrs")
        mapping.sourceSrs = systemOf(value, key);
    else if (key == "sectors")
        mapping.sectors = textOf(value, key);
    else if (key == "sites")
        mapping.sites = textOf(value, key);
    else if (key == "roles")
        mapping.roles = rolesOf(value, key);
    else if (key == Corrections)
        mapping.corrections = correctionsOf(value, key);
    else if (key != "version")
        throw UnusableMapping{formatted("MESS_TAB_MAPPING_KEY", {key})};
}

/// Throws Json::exception or UnusableMapping.
ColumnMapping mappingOf(std::string_view text)
{
    const Json document = Json::parse(text);
    if (!document.is_object() || !document.contains("version"))
        throw UnusableMapping{formatted("MESS_TAB_MAPPING_NONE")};
    if (document["version"] != Version)
        throw UnusableMapping{formatted("MESS_TAB_MAPPING_VERSION", {document["version"].dump()})};
    ColumnMapping mapping;
    for (const auto &[key, value] : document.items())
        readMember(key, value, mapping);
    return mapping;
}

OrderedJson jsonOf(const StatedColumns &columns)
{
    if (columns.empty())
        return nullptr;
    if (columns.size() == 1)
        return columns.front();
    OrderedJson list = OrderedJson::array();
    for (const std::string &column : columns)
        list.push_back(column.empty() ? OrderedJson() : OrderedJson(column));
    return list;
}

/// The last entry of a mapping, whose many rows take a line each.
std::string correctionLines(const std::vector<PositionCorrection> &corrections)
{
    const auto line = [](std::string &text, bool isFirst, std::size_t depth) -> std::string & {
        return text.append(isFirst ? "\n" : ",\n").append(depth * std::size_t{Indent}, ' ');
    };
    std::string text;
    line(text, false, 1).append("\"").append(Corrections).append("\": [");
    for (const PositionCorrection &correction : corrections) {
        line(text, &correction == &corrections.front(), 2).append(dumped(headOf(correction)));
        if (correction.rows.empty())
            continue;
        text.pop_back(); // the closing brace
        text += ",\"rows\":[";
        for (const CorrectedRow &row : correction.rows)
            line(text, &row == &correction.rows.front(), 3).append(dumped(jsonOf(row)));
        text += "]}";
    }
    line(text, true, 1).append("]\n}");
    return text;
}

} // namespace

ReadMapping readMapping(std::string_view text)
{
    if (text.size() > MaxMappingBytes)
        return {{}, formatted("MESS_TAB_MAPPING_LARGE")};
    try {
        return {mappingOf(text), {}};
    } catch (const UnusableMapping &unusable) {
        return {{}, unusable.reason};
    } catch (const Json::parse_error &error) {
        const auto line = 1 + std::count(text.begin(),
                                         text.begin() + static_cast<std::ptrdiff_t>(
                                                            std::min(error.byte, text.size())),
                                         '\n');
        return {{}, formatted("MESS_TAB_MAPPING_JSON", {std::to_string(line)})};
    } catch (const Json::exception &) { // for instance bytes that are not UTF-8
        return {{}, formatted("MESS_TAB_MAPPING_NONE")};
    }
}

std::string writeMapping(const ColumnMapping &mapping)
{
    OrderedJson document = {{"version", Version}};
    const auto add = [&document](const char *key, const std::string &text) {
        if (!text.empty())
            document[key] = text;
    };
    if (mapping.kind)
        document["kind"] = *mapping.kind == TableKind::Links ? LinksWord : SitesWord;
    add("sheet", mapping.sheet);
    if (mapping.headerRows)
        document["headerRows"] = *mapping.headerRows;
    add("axes", mapping.swapsAxes ? query::SwappedAxes : "");
    add("sourceSrs", mapping.sourceSrs);
    add("sectors", mapping.sectors);
    add("sites", mapping.sites);
    for (const auto &[role, columns] : mapping.roles)
        document["roles"][role] = jsonOf(columns);
    std::string text = dumped(document, Indent);
    if (!mapping.corrections.empty()) {
        text.resize(text.rfind("\n}"));
        text += correctionLines(mapping.corrections);
    }
    return text + "\n";
}

std::string mappingFileOf(std::string_view tablePath)
{
    return std::string(tablePath) + ".columns.json";
}

} // namespace vlt::contract
