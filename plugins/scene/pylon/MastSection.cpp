#include "plugins/scene/pylon/MastSection.h"

#include "plugins/scene/pylon/WaterTowerShape.h"

#include <osg/Math>

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr double WalkwayM = 0.75; ///< free width of a platform
// minimum sizes of a mast with antennas, for every width of the design
constexpr double ThinnestTubeM = 0.06;
constexpr double NarrowestFaceM = 0.25;
constexpr double MinRoofM = 1.5;

double narrowing(const MastDesign &mast, double heightM, double foot, double top)
{
    const double share = std::clamp(heightM / mast.heightM, 0.0, 1.0);
    return mast.widthM * (foot + (top - foot) * share);
}

/// The section of a tube with the given radius.
MastSection tube(double radius)
{
    return {0, std::max(radius, ThinnestTubeM)};
}

/// A regular polygon whose faces have the given width.
MastSection polygon(int sides, double face)
{
    return {sides, std::max(face, NarrowestFaceM) / 2 / std::tan(osg::PI / sides)};
}

} // namespace

double MastSection::reach(double azimuthDeg) const
{
    if (sides == 0)
        return inradiusM;
    const double faceAngle = 360.0 / sides;
    const double off = std::remainder(azimuthDeg, faceAngle);
    return inradiusM / std::cos(osg::DegreesToRadians(off));
}

double MastSection::circumradius() const
{
    return sides == 0 ? inradiusM : inradiusM / std::cos(osg::PI / sides);
}

MastSection mastSection(const MastDesign &mast, double heightM)
{
    switch (mast.type) {
    case PylonType::MonopolePanel:
    case PylonType::MonopoleCylinder:
        return tube(narrowing(mast, heightM, 0.15, 0.08));
    case PylonType::MonopoleSlim:
        return tube(narrowing(mast, heightM, 0.08, 0.05));
    case PylonType::LatticePanel:
        return polygon(4, narrowing(mast, heightM, 1, 0.4));
    case PylonType::LatticeCylinder:
        return polygon(3, narrowing(mast, heightM, 1, 0.4));
    case PylonType::GuyedPanel:
        return polygon(3, 0.3 * mast.widthM);
    case PylonType::RooftopPanel:
    case PylonType::RooftopCylinder:
        return {4, std::max(1.5 * mast.widthM, MinRoofM)};
    case PylonType::WoodPanel:
        return tube(narrowing(mast, heightM, 0.07, 0.05));
    case PylonType::WaterTowerPanel:
        return {0, waterTowerRadius(mast, heightM)};
    }
    return {};
}

double platformRadius(const MastDesign &mast, double deckM)
{
    if (mast.type == PylonType::WaterTowerPanel)
        return waterTowerRadius(mast, deckM) + 0.35;
    const double body = mastSection(mast, deckM).circumradius();
    return std::max(0.625 * mast.widthM, body + WalkwayM);
}

int platformCorners(PylonType type)
{
    return type == PylonType::LatticePanel ? 8 : type == PylonType::WaterTowerPanel ? 24 : 16;
}

} // namespace vlt::scene
