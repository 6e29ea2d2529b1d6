#pragma once

#include "contract/SceneLegend.h"
#include "plugins/scene/layers/LinkRecords.h"

#include <map>
#include <vector>

namespace vlt::scene {

/// Rows of the legend for transmitters: one for each colour, with the numbers of those that have
/// it.
std::vector<contract::legend::Row> sectorRows(const std::map<int, Color> &transmitters);

/// Rows of the legend for links: the classes of clearance that links have, else their one colour;
/// and the Fresnel zone if it is drawn.
std::vector<contract::legend::Row> linkRows(const LinkRecords &records,
                                            const LinkAppearance &appearance);

} // namespace vlt::scene
