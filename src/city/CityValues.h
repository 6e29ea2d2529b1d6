#pragma once

#include "city/CityInputs.h"
#include "coverage/CoverageRaster.h"

namespace vlt::city {

/// The values of the raster of colours under a feature.
struct FeatureValue
{
    std::optional<double> value;
    std::uint64_t pixels = 0;     ///< that have a value
    std::uint32_t countBegin = 0; ///< in CityValues::counts
    std::uint32_t countEnd = 0;
};

/// A class of a raster that some building covers.
struct RasterClass
{
    double value = 0;
    std::string name; ///< that the file gives it, else the value
};

/// The buildings of a document with the values of the raster that colours them.
struct CityValues
{
    CityInputs city; ///< with the counts of colours
    bool hasRaster = false;
    std::string unit;                 ///< that the raster states; may be empty
    std::vector<FeatureValue> values; ///< parallel to city.footprints.features if there is a raster
    std::vector<RasterClass> classes; ///< ascending; empty unless the raster is classified
    std::vector<coverage::ValueCount> counts; ///< of the classes under one feature after the other
    Notices notices;                          ///< of readCityInputs() and of the raster

    std::span<const coverage::ValueCount> countsOf(const FeatureValue &value) const
    {
        return std::span(counts).subspan(value.countBegin, value.countEnd - value.countBegin);
    }
};

/// Maximum number of classes of a classified raster.
inline constexpr std::size_t MaxClasses = 64;

enum class ClassCounts { Wanted, Ignored };

/// Reads the buildings of a document and the values under them. Colours count only if they come
/// from a raster: that of the walls, else that of the roofs.
///
/// A raster is classified if its file names classes or gives colours to its integers, or if the
/// document takes the most represented of its integers and none is negative, and if the buildings
/// cover no more than MaxClasses different ones.
///
/// @param directories  searched for relative paths, in this order
/// @param classCounts  whether the classes under each building are counted
/// @throws BadLayer    the footprints cannot be used
/// @throws Stopped     `progress` stopped the function
CityValues readCityValues(const contract::BuildingDocument &document,
                          const std::vector<std::string> &directories, ClassCounts classCounts,
                          const Progress &progress);

} // namespace vlt::city
