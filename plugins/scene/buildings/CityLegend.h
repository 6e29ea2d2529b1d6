#pragma once

#include "city/FieldValues.h"
#include "colormaps/ColorLookup.h"
#include "contract/BuildingDocument.h"
#include "contract/SceneLegend.h"
#include "plugins/scene/buildings/TextureImages.h"

#include <string>
#include <vector>

namespace vlt::scene {

using LegendRows = std::vector<contract::legend::Row>;

/// What the values of a colour map are.
struct MappedValues
{
    std::string name;
    std::string unit; ///< may be empty
    colormaps::Interpretation interpretation = colormaps::Interpretation::Interpolation;
};

/// Adds the rows of a colour map to a legend.
///
/// @param noValue  colour of buildings without a value; null if there are none
void addMap(LegendRows &legend, const colormaps::ColorMap &map, const MappedValues &values,
            const colormaps::Rgba *noValue);

/// Adds the rows of the most frequent texts of a field, each with its colour.
void addKinds(LegendRows &legend, const city::FieldValues &values, const std::string &field,
              const colormaps::Rgba *noValue);

/// States of the maps from the row `first` on which parts of buildings they colour.
void setPart(LegendRows &legend, std::size_t first, const char *part);

/// Adds the images that are drawn, from the lowest to the highest.
void addImages(LegendRows &legend, const TextureImages &images,
               const contract::BuildingTextures &textures);

/// The last part of a path, without the suffix of a file.
std::string nameOf(const std::string &path);

} // namespace vlt::scene
