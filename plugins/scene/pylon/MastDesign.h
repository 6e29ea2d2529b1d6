#pragma once

#include "plugins/scene/parametric/PylonObject.h"

#include <compare>
#include <vector>

namespace vlt::scene {

/// The design of a mast without its antennas: equal masts share their geometry.
struct MastDesign
{
    PylonType type = PylonType::MonopolePanel;
    double heightM = 0; ///< at least that of the highest antenna
    double widthM = 0;
    double roofM = 0;            ///< rooftops: height of the roof
    std::vector<double> decksM;  ///< heights of the platforms' floors, ascending
    std::vector<double> framesM; ///< lattices: heights of frames for brackets, ascending

    // NOLINTNEXTLINE(modernize-use-nullptr): the check mistakes the comparison's own 0
    std::partial_ordering operator<=>(const MastDesign &) const = default;
};

/// The mast for a pylon's antennas. Types with platforms have one below each group of antennas. The
/// heights of decks and frames are rounded to centimetres.
MastDesign mastDesign(const PylonDesign &pylon);

bool hasPlatforms(PylonType type);
bool isRooftop(PylonType type);
bool isLattice(PylonType type);
bool hasCylindricalAntennas(PylonType type);

/// Size of a transmitter's antenna after scaling, in metres. Length and width of a dish are the
/// diameter of its reflector.
struct AntennaSize
{
    double length;
    double width;
    double depth;
};
inline constexpr double DishDepth = 0.45; ///< from hub to cover, in diameters
AntennaSize antennaSize(const PylonDesign &pylon, const Transmitter &transmitter);

/// Vertical distance in metres of an antenna's brackets from its centre.
double bracketOffset(const AntennaSize &size);

} // namespace vlt::scene
