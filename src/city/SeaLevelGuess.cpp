#include "city/SeaLevelGuess.h"

#include <algorithm>
#include <cmath>

namespace vlt::city {

namespace {

constexpr std::size_t MinSample = 10;
constexpr std::size_t MaxSample = 500;
constexpr double MinHouseM = 1.5;
constexpr double MaxHouseM = 100;
constexpr double HouseShare = 0.9;
constexpr double HighGroundM = 60; ///< few towns have only buildings of this height
constexpr double LowGroundM = 15;
constexpr double SlopedM = 10;      ///< difference of the ground that heights above it do not show
constexpr double FollowShare = 0.7; ///< of the values' spread that is left above the ground

double percentile(std::vector<double> values, double share)
{
    const auto at = static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), values.begin() + at, values.end());
    return values[static_cast<std::size_t>(at)];
}

/// Difference between the tenth and the ninetieth percentile.
double spread(const std::vector<double> &values)
{
    return percentile(values, 0.9) - percentile(values, 0.1);
}

} // namespace

bool areProbablyAboveSea(const CityInputs &city)
{
    std::vector<double> grounds;
    std::vector<double> values;
    std::vector<double> differences;
    const std::vector<Footprints::Building> &buildings = city.footprints.buildings;
    const std::size_t step = buildings.size() / MaxSample + 1;
    for (std::size_t i = 0; i < buildings.size(); i += step) {
        const Footprints::Feature &feature = city.footprints.features[buildings[i].feature];
        if (feature.isAboveSea || feature.source != HeightSource::Field)
            continue;
        if (!std::isnan(feature.groundM))
            return false;
        grounds.push_back(city.baseM[i]);
        values.push_back(buildings[i].heightM);
        differences.push_back(values.back() - grounds.back());
    }
    if (values.size() < MinSample)
        return false;
    const auto houses =
        std::count_if(differences.begin(), differences.end(), [](double difference) {
            return difference >= MinHouseM && difference <= MaxHouseM;
        });
    if (static_cast<double>(houses) < HouseShare * static_cast<double>(values.size()))
        return false;
    const double groundM = percentile(grounds, 0.5);
    return groundM > HighGroundM || ((groundM > LowGroundM || spread(grounds) > SlopedM) &&
                                     spread(differences) < FollowShare * spread(values));
}

} // namespace vlt::city
