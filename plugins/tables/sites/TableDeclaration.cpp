#include "plugins/tables/sites/TableDeclaration.h"

#include "plugins/tables/table/HeaderWords.h"

#include <algorithm>

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

} // namespace

std::string findEpsg(const TableProfile &table, const PointFields &point, CoordinateUnit unit)
{
    if (point.utm && !point.utm->only)
        return point.utm->epsg();
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
    if (unit != CoordinateUnit::Meters && point.x.found() &&
        lowerCase(table.fields[static_cast<std::size_t>(point.x.value)].name).find("wgs84") !=
            std::string::npos)
        return "4326";
    return point.utm ? point.utm->epsg() : std::string();
}

} // namespace vlt::driver
