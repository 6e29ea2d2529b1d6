#pragma once

#include "contract/QueryOptions.h"
#include "plugins/scene/mesh/Mesh.h"

#include <osg/Vec3d>

#include <compare>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace vlt::scene {

/// The types of the pylon catalogue.
enum class PylonType {
    MonopolePanel,
    MonopoleCylinder,
    MonopoleSlim,
    LatticePanel,
    LatticeCylinder,
    GuyedPanel,
    RooftopPanel,
    RooftopCylinder,
    WoodPanel,
    WaterTowerPanel,
};

/// The type with the given name in queries ("monopole_panel"); nothing for any other text.
std::optional<PylonType> pylonTypeNamed(std::string_view name);

enum class AntennaKind {
    Default, ///< a panel or a cylinder, depending on the type of the mast
    Dish,    ///< the antenna of a microwave link
};

/// A transmitter: an antenna in the precise representation, a sector in the symbolic one.
struct Transmitter
{
    double heightM = 0;        ///< centre of the antenna above the foot
    double azimuthDeg = 0;     ///< 0 is north, clockwise
    double tiltDeg = 0;        ///< positive: the beam points below the horizon
    double beamWidthDeg = 0;   ///< horizontal; 0: DefaultBeamWidthDeg or DefaultDishBeamDeg
    double antennaLengthM = 0; ///< before scaling; 0: DefaultAntennaLengthM or DefaultDishDiameterM
    Color color;               ///< of the sector and of the antenna's mark
    AntennaKind kind = AntennaKind::Default;

    // NOLINTNEXTLINE(modernize-use-nullptr): the check mistakes the comparison's own 0
    std::partial_ordering operator<=>(const Transmitter &) const = default;
};

inline constexpr double DefaultBeamWidthDeg = 65;
inline constexpr double DefaultAntennaLengthM = 2;
inline constexpr double DefaultDishBeamDeg = 20; ///< of its sector; the real beam is hardly visible
inline constexpr double DefaultDishDiameterM = 0.9;

/// Everything about a pylon except its position: pylons of equal design share their geometry.
struct PylonDesign
{
    PylonType type = PylonType::MonopolePanel;
    double heightM = 0; ///< of the mast, without its lightning rod
    double widthM = 0;  ///< of the mast; MastSection.h gives its meaning for each type
    double sectorRadiusM = 0;
    double sectorHeightM = 0;  ///< thickness of a sector
    double sectorSpacingM = 0; ///< vertical gap between stacked sectors
    double antennaScale = 1;   ///< 0: no antennas
    /// The pylon is drawn up to this distance.
    double symbolicDistanceM = contract::query::SymbolicDistanceM.firstRun;
    /// The precise representation is drawn up to this distance.
    double realisticDistanceM = contract::query::RealisticDistanceM.firstRun;
    std::vector<Transmitter> transmitters;

    // NOLINTNEXTLINE(modernize-use-nullptr): the check mistakes the comparison's own 0
    std::partial_ordering operator<=>(const PylonDesign &) const = default;
};

/// A pylon with its position: x east, y north, z up, metres.
struct PylonObject
{
    osg::Vec3d foot;
    PylonDesign design;
    double northDeg = 0; ///< direction of azimuth 0, clockwise from the y axis
};

inline constexpr std::size_t MaxTransmitters = 1024;

} // namespace vlt::scene
