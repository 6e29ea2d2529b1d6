#include "plugins/scene/layers/LayerLegend.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vlt::scene {

namespace legend = contract::legend;

namespace {

using linkpath::ClearanceStatus;

legend::Rgba rgbaOf(const Color &color)
{
    return {color.r(), color.g(), color.b(), color.a()};
}

} // namespace

std::vector<legend::Row> sectorRows(const std::map<int, Color> &transmitters)
{
    std::vector<legend::Row> rows;
    for (const auto &[number, color] : transmitters) {
        auto row =
            std::find_if(rows.begin(), rows.end(), [&color = color](const legend::Row &known) {
                return known.color == rgbaOf(color);
            });
        if (row == rows.end())
            row = rows.insert(rows.end(), {legend::Sector, rgbaOf(color), {}});
        row->texts.push_back(std::to_string(number));
    }
    return rows;
}

std::vector<legend::Row> linkRows(const LinkRecords &records, const LinkAppearance &appearance)
{
    static constexpr std::pair<ClearanceStatus, const char *> Kinds[] = {
        {ClearanceStatus::Clear, legend::Clear},
        {ClearanceStatus::Marginal, legend::Marginal},
        {ClearanceStatus::Obstructed, legend::Obstructed},
        {ClearanceStatus::Unknown, legend::Unknown}};
    std::vector<legend::Row> rows;
    for (const auto &[status, kind] : Kinds) {
        const auto found = records.statuses.find(status);
        if (found == records.statuses.end() || found->second == 0)
            continue;
        rows.push_back(
            {kind, rgbaOf(lineColor(status, appearance)), {std::to_string(found->second)}});
    }
    if (rows.empty())
        rows.push_back({legend::Link, rgbaOf(appearance.color), {}});
    if (appearance.fresnelZone > 0 && appearance.fresnelColor.a() > 0)
        rows.push_back({legend::Fresnel,
                        rgbaOf(appearance.fresnelColor),
                        {std::to_string(appearance.fresnelZone),
                         std::to_string(std::lround(100 * appearance.fresnelShare))}});
    return rows;
}

} // namespace vlt::scene
