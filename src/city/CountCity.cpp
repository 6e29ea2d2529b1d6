#include "city/CountCity.h"

#include "city/BuildingValues.h"
#include "city/CityInputs.h"
#include "contract/BadLayer.h"
#include "contract/Stopped.h"

namespace vlt::city {

namespace {

using contract::BadLayer;
using contract::RasterColors;

constexpr double InputsShare = 0.6; ///< of the work, if there is a raster
constexpr std::size_t BuildingsPerReport = 100;

/// Number of features without a value in the raster.
std::size_t countWithoutValue(const CityInputs &city, const RasterColors &colors,
                              const std::vector<std::string> &directories, const Progress &progress)
{
    const auto raster = openRaster(colors, directories);
    const PositionTransform transform(wktOf(city.srs), raster->srs());
    checkTransform(transform, colors);
    BuildingValues values(city.footprints, transform, *raster, colors.reduction);
    const std::vector<std::size_t> order = featuresInRows(city.footprints);
    std::size_t without = 0;
    std::size_t done = 0;
    for (const std::size_t first : order) {
        if (done++ % BuildingsPerReport == 0 &&
            !progress(static_cast<double>(done - 1) / static_cast<double>(order.size())))
            throw contract::Stopped{};
        without += values.under(first) ? 0 : 1;
    }
    return without;
}

} // namespace

contract::CityCounts countCity(const contract::BuildingDocument &document,
                               const std::vector<std::string> &directories, Notices &notices,
                               const Progress &progress)
{
    const auto colors = contract::parseRasterColors(document.footprints.wallColor);
    const double inputsShare = colors ? InputsShare : 1;
    CityInputs city = readCityInputs(document, directories, notices,
                                     [&](double share) { return progress(share * inputsShare); });
    if (!colors)
        return city.counts;
    std::size_t &without = city.counts.substitutes.noValue;
    try {
        without = countWithoutValue(city, *colors, directories, [&](double share) {
            return progress(InputsShare + share * (1 - InputsShare));
        });
    } catch (const BadLayer &fault) {
        notices.push_back(fault.what());
        without = city.counts.drawn;
        return city.counts;
    }
    if (without > 0)
        notices.push_back(withoutValue(without, city.counts.drawn, *colors));
    return city.counts;
}

} // namespace vlt::city
