#include "plugins/tables/sites/TableDeclaration.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/sites/SystemNames.h"
#include "plugins/tables/table/HeaderWords.h"

#include <algorithm>
#include <set>

namespace vlt::driver {

namespace {

/// The digits after "EPSG" in a text, such as EPSG:2154, epsg 4326 or (EPSG=27572).
std::string epsgIn(const std::string &text)
{
    const std::string lower = lowerCase(text);
    for (std::size_t at = lower.find("epsg"); at != std::string::npos;
         at = lower.find("epsg", at + 1)) {
        std::size_t digit = lower.find_first_not_of(" :=#/", at + 4);
        std::string code;
        while (digit < lower.size() && lower[digit] >= '0' && lower[digit] <= '9')
            code += lower[digit++];
        if (code.size() >= 4 && code.size() <= 6)
            return code;
    }
    return {};
}

/// The code in the titles, the names or a column of codes; empty for none.
std::string statedEpsg(const TableProfile &table)
{
    for (const std::string &title : table.header.titles) {
        if (std::string code = epsgIn(title); !code.empty())
            return code;
    }
    for (const Field &field : table.fields) {
        if (std::string code = epsgIn(field.name); !code.empty())
            return code;
    }
    for (const Field &field : table.fields) {
        const std::string name = lowerCase(field.name);
        if ((name != "epsg" && name != "srid" && name != "epsg code") || field.samples.empty())
            continue;
        const bool constant =
            std::all_of(field.samples.begin(), field.samples.end(),
                        [&](const std::string &text) { return text == field.samples.front(); });
        if (constant)
            return epsgIn("epsg:" + field.samples.front()).empty()
                       ? epsgIn(field.samples.front())
                       : epsgIn("epsg:" + field.samples.front());
    }
    return {};
}

/// Finds the datum in a column of its name; rows of several datums have no common system.
void useDatumColumn(const TableProfile &table, const Vocabulary &vocabulary,
                    TableDeclaration &declaration)
{
    for (const Field &field : table.fields) {
        const std::vector<std::string> words = wordsOf(field.name);
        if (std::find(words.begin(), words.end(), "datum") == words.end())
            continue;
        std::set<std::string> codes;
        std::string names;
        for (const std::string &text : field.samples) {
            const std::string code = datumNamed(text, vocabulary);
            if (!code.empty() && codes.insert(code).second) {
                names += (names.empty() ? "" : ", ") + std::string(trimmed(text));
                declaration.epsg = declaration.epsg.empty() ? code : declaration.epsg;
            }
        }
        if (codes.size() > 1)
            declaration.systemProblem =
                contract::formatted("MESS_TAB_DATUMS", {field.name, names, declaration.epsg});
        if (!codes.empty())
            return;
    }
}

} // namespace

void findSystem(const TableProfile &table, const PointFields &point, const Vocabulary &vocabulary,
                TableDeclaration &declaration)
{
    const bool hasManyZones = point.utm && !point.utm->only;
    declaration.epsg = hasManyZones ? point.utm->epsg() : statedEpsg(table);
    if (declaration.epsg.empty() && point.utm)
        declaration.epsg = point.utm->epsg();
    if (!declaration.epsg.empty() || declaration.unit == CoordinateUnit::Meters || !point.found())
        return;
    const std::string &name = table.fields[static_cast<std::size_t>(point.xField())].name;
    declaration.epsg = datumNamed(name, vocabulary);
    if (declaration.epsg.empty() && lowerCase(name).find("wgs84") != std::string::npos)
        declaration.epsg = "4326"; // also within a word
    if (declaration.epsg.empty())
        useDatumColumn(table, vocabulary, declaration);
    for (const std::string &title : table.header.titles) {
        if (declaration.epsg.empty())
            declaration.epsg = datumNamed(title, vocabulary);
    }
}

} // namespace vlt::driver
