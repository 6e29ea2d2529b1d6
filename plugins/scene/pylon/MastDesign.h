#pragma once

#include "plugins/scene/parametric/PylonObject.h"

#include <compare>
#include <vector>

namespace vlt::scene {

/// What a mast without its antennas is made from: equal masts share their geometry.
struct MastDesign
{
    PylonType type = PylonType::MonopolePanel;
    double heightM = 0; ///< up to the highest antenna at least
    double widthM = 0;
    double roofM = 0;            ///< rooftops: height of the roof
    std::vector<double> decksM;  ///< heights of the platforms' floors, rising
    std::vector<double> framesM; ///< lattices: heights where brackets need a frame, rising

    // NOLINTNEXTLINE(modernize-use-nullptr): the check mistakes the comparison's own 0
    std::partial_ordering operator<=>(const MastDesign &) const = default;
};

/// What the pylon's mast has to carry. Platforms lie below each group of antennas on types that
/// have platforms; the heights of decks and frames are rounded to centimetres.
MastDesign mastDesign(const PylonDesign &pylon);

bool hasPlatforms(PylonType type);
bool isRooftop(PylonType type);
bool isLattice(PylonType type);
bool hasCylindricalAntennas(PylonType type);

/// Measures of a transmitter's antenna after scaling, metres. A dish is as long and wide as its
/// reflector.
struct AntennaSize
{
    double length;
    double width;
    double depth;
};
inline constexpr double DishDepth = 0.45; ///< from hub to cover, of the diameter
AntennaSize antennaSize(const PylonDesign &pylon, const Transmitter &transmitter);

/// Where the brackets of an antenna hold on to a mast, above and below its centre.
double bracketOffset(const AntennaSize &size);

} // namespace vlt::scene
