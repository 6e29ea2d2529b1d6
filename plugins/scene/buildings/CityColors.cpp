#include "plugins/scene/buildings/CityColors.h"

#include "city/BuildingValues.h"
#include "city/CityInputs.h"
#include "city/FieldValues.h"
#include "colormaps/DistinctColors.h"
#include "contract/RasterColors.h"
#include "coverage/CoverageRaster.h"
#include "coverage/RasterStamp.h"
#include "localfiles/LocalFormats.h"
#include "plugins/scene/buildings/CityLegend.h"
#include "plugins/scene/buildings/ColorText.h"
#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/Stopped.h"
#include "plugins/scene/reading/TableLocation.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vlt::scene {

namespace {

using colormaps::ColorMap;
using colormaps::Rgba;
using contract::RasterColors;
using coverage::CoverageRaster;

constexpr Rgba WithoutValue{200, 200, 200, 255};
constexpr std::size_t BuildingsPerReport = 100; // few, because one may cover millions of pixels
constexpr double RangeShare = 0.5;              ///< of the work, if the whole raster is read

/// The range of the raster: the one of the document, unless the raster has changed since.
coverage::ValueRange rangeOf(CoverageRaster &raster, const RasterColors &colors,
                             const Progress &progress)
{
    if (colors.range && coverage::isUpToDate(*colors.range, raster))
        return {colors.range->minimum, colors.range->maximum};
    const std::optional<coverage::ValueRange> range = raster.range(
        [&](double share) { return progress(share * RangeShare) ? true : throw Stopped{}; });
    if (!range)
        throw BadLayer("MESS_SCENE_EMPTY_RASTER", {colors.raster});
    return *range;
}

/// Loads a colour map, stretched over a range if one is given.
ColorMap loadMap(const std::string &name, const std::vector<std::string> &directories,
                 const std::optional<coverage::ValueRange> &range)
{
    std::string path = locateFile(name, directories);
    if (path.empty()) // a layer's own map was copied together with its document
        path = locateFile(name.substr(name.rfind('/') + 1), directories);
    if (path.empty())
        throw BadLayer("MESS_SCENE_NO_MAP", {name});
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    CPLErrorReset();
    ColorMap map;
    if (!map.load(path, range ? range->minimum : ColorMap::Unset,
                  range ? range->maximum : ColorMap::Unset)) {
        const std::string why = CPLGetLastErrorMsg();
        throw BadLayer("MESS_SCENE_BAD_MAP",
                       {name, why.empty() ? contract::formatted("MESS_SCENE_NOT_A_MAP") : why});
    }
    return map;
}

/// Gives a feature's colour or value to all of its buildings.
template<typename Value>
void give(std::vector<Value> &values, const Footprints &footprints, std::size_t first,
          const Value &value)
{
    const std::uint32_t feature = footprints.buildings[first].feature;
    for (std::size_t i = first; i < values.size() && footprints.buildings[i].feature == feature;
         ++i)
        values[i] = value;
}

std::vector<Rgba> rasterColors(CityModel &city, const RasterColors &colors,
                               const std::vector<std::string> &directories, Notices &notices,
                               const Progress &progress)
{
    const std::unique_ptr<CoverageRaster> raster = city::openRaster(colors, directories);
    const city::PositionTransform transform(city.srs, raster->srs());
    city::checkTransform(transform, colors);
    const ColorMap map = loadMap(
        colors.map, directories,
        colors.isStretched ? std::optional(rangeOf(*raster, colors, progress)) : std::nullopt);

    const auto interpretation = colors.isInterpolated ? colormaps::Interpretation::Interpolation
                                                      : colormaps::Interpretation::ColorRanges;
    const Footprints &footprints = city.footprints;
    const std::vector<std::size_t> order = city::featuresInRows(footprints);
    const std::size_t number = order.size();
    std::vector<Rgba> found(footprints.buildings.size(), WithoutValue);
    const bool keepsValues = city.isPickable && city.values.empty(); // those of the walls
    if (keepsValues)
        city.values.resize(footprints.buildings.size());
    city::BuildingValues values(footprints, transform, *raster, colors.reduction);
    const double before = colors.isStretched ? RangeShare : 0;
    std::size_t done = 0;
    std::size_t without = 0;
    for (const std::size_t first : order) {
        const double share = static_cast<double>(done) / static_cast<double>(number);
        if (done++ % BuildingsPerReport == 0 && !progress(before + share * (1 - before)))
            throw Stopped{};
        const double value = values.under(first).value_or(std::nan(""));
        without += std::isnan(value) ? 1 : 0;
        const Rgba color = colorOf(map, value, interpretation).value_or(WithoutValue);
        give(found, footprints, first, color);
        if (keepsValues)
            give(city.values, footprints, first, static_cast<float>(value));
    }
    const Rgba noValue = colorOf(map, std::nan(""), interpretation).value_or(WithoutValue);
    addMap(city.legend, map, {nameOf(colors.raster), raster->unit(), interpretation},
           without > 0 ? &noValue : nullptr);
    std::size_t &counted = city.counts.substitutes.noValue;
    counted = std::max(counted, without);
    if (without > 0)
        notices.push_back(city::withoutValue(without, number, colors));
    return found;
}

/// The colours of rows of the source.
class RowColors
{
public:
    RowColors(const contract::BuildingDocument &document,
              const std::vector<std::string> &directories, const Progress &progress)
        : m_coloring(document.colors.coloring)
    {
        if (m_coloring != contract::FieldColoring::Distinct)
            m_map = loadMap(document.colors.map, directories, {});
        m_values = city::readColorField(document, directories, progress);
    }

    bool hasValue(std::size_t row) const { return m_values.hasValue(row); }
    bool hasTexts() const { return m_coloring == contract::FieldColoring::Distinct; }
    float number(std::size_t row) const { return static_cast<float>(m_values.numbers[row]); }
    std::string text(std::size_t row) const
    {
        return hasValue(row) ? m_values.distinct[m_values.texts[row]].text : std::string();
    }

    /// @param withoutValue  some buildings have none
    void addTo(LegendRows &legend, const std::string &field, bool withoutValue) const
    {
        const Rgba color =
            hasTexts() ? WithoutValue
                       : colorOf(m_map, std::nan(""), interpretation()).value_or(WithoutValue);
        const Rgba *noValue = withoutValue ? &color : nullptr;
        if (hasTexts())
            addKinds(legend, m_values, field, noValue);
        else
            addMap(legend, m_map, {field, "", interpretation()}, noValue);
    }

    /// A colour map may have a colour for rows without a value.
    Rgba at(std::size_t row) const
    {
        if (hasTexts())
            return hasValue(row) ? colormaps::distinctColor(m_values.texts[row]) : WithoutValue;
        return colorOf(m_map, m_values.numbers[row], interpretation()).value_or(WithoutValue);
    }

private:
    colormaps::Interpretation interpretation() const
    {
        return m_coloring == contract::FieldColoring::Interpolation
                   ? colormaps::Interpretation::Interpolation
                   : colormaps::Interpretation::ColorRanges;
    }

    contract::FieldColoring m_coloring;
    ColorMap m_map;
    city::FieldValues m_values;
};

} // namespace

std::vector<Rgba> fieldColors(CityModel &city, const contract::BuildingDocument &document,
                              const std::vector<std::string> &directories, Notices &notices,
                              const Progress &progress)
{
    const Footprints &footprints = city.footprints;
    std::vector<Rgba> found(footprints.buildings.size(), WithoutValue);
    std::size_t &without = city.counts.substitutes.noValue;
    try {
        const RowColors colors(document, directories, progress);
        if (city.isPickable)
            colors.hasTexts() ? city.texts.resize(found.size()) : city.values.resize(found.size());
        for (const std::size_t first : city::firstBuildings(footprints)) {
            const std::size_t row = footprints.features[footprints.buildings[first].feature].row;
            give(found, footprints, first, colors.at(row));
            if (!city.values.empty())
                give(city.values, footprints, first, colors.number(row));
            if (!city.texts.empty())
                give(city.texts, footprints, first, colors.text(row));
            without += colors.hasValue(row) ? 0 : 1;
        }
        colors.addTo(city.legend, document.colors.field, without > 0);
        if (without > 0)
            notices.push_back(
                contract::formatted("MESS_SCENE_NO_FIELD_VALUE",
                                    {std::to_string(without), std::to_string(city.counts.drawn),
                                     document.colors.field}));
    } catch (const BadLayer &fault) {
        notices.push_back(fault.what());
        without = city.counts.drawn;
    }
    return found;
}

std::vector<Rgba> townColors(CityModel &city, const std::string &colorText,
                             const contract::BuildingColors &others,
                             const std::vector<std::string> &directories, Notices &notices,
                             const Progress &progress)
{
    const std::size_t number = city.footprints.buildings.size();
    if (colorText.empty())
        return std::vector<Rgba>(number, WithoutValue);
    if (const std::optional<Rgba> plain = parseColor(colorText))
        return std::vector<Rgba>(number, *plain);
    try {
        const std::optional<RasterColors> colors = contract::parseRasterColors(colorText, others);
        if (!colors)
            throw BadLayer("MESS_SCENE_NO_COLORS", {colorText});
        return rasterColors(city, *colors, directories, notices, progress);
    } catch (const BadLayer &fault) {
        notices.push_back(fault.what());
        city.counts.substitutes.noValue = city.counts.drawn;
    }
    return std::vector<Rgba>(number, WithoutValue);
}

} // namespace vlt::scene
