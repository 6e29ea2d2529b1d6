#include "plugins/scene/mesh/Palette.h"
#include "plugins/scene/pylon/Fittings.h"
#include "plugins/scene/pylon/MastSection.h"
#include "plugins/scene/pylon/Masts.h"
#include "plugins/scene/pylon/WaterTowerShape.h"

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr double StoreyM = 3;
constexpr int MaxStoreys = 40;
constexpr int TowerSides = 48;

/// Adds rows of windows slightly in front of the four walls.
void addWindows(Mesh &matt, double half, double roof)
{
    const int storeys = std::clamp(static_cast<int>(roof / StoreyM), 0, MaxStoreys);
    const int columns = std::clamp(static_cast<int>(2 * half / 2.2), 1, 8);
    const double storey = roof / std::max(1, storeys);
    const double pitch = 2 * half / columns;
    for (int floor = 0; floor < storeys; ++floor) {
        const double middle = (floor + 0.55) * storey;
        for (int column = 0; column < columns; ++column) {
            const double aside = (column + 0.5) * pitch - half;
            for (const double azimuth : {0, 90, 180, 270}) {
                const osg::Vec3d out = towards(azimuth);
                const osg::Vec3d right = rightOf(azimuth);
                addBox(matt, out * half + right * aside + osg::Vec3d(0, 0, middle),
                       right * (0.32 * pitch), out * 0.03, {0, 0, 0.27 * storey}, palette::Glass);
            }
        }
    }
}

void addParapet(Mesh &matt, double half, double roof)
{
    constexpr double Thickness = 0.22;
    const double height = std::min(0.45, roof);
    for (const double azimuth : {0, 90, 180, 270}) {
        const osg::Vec3d out = towards(azimuth);
        // Each wall covers one corner, so that no two walls share a face.
        addBox(matt,
               out * (half - Thickness / 2 + 0.04) + rightOf(azimuth) * (Thickness / 2) +
                   osg::Vec3d(0, 0, roof + height / 2 - 0.05),
               rightOf(azimuth) * (half - Thickness / 2 + 0.04), out * (Thickness / 2),
               {0, 0, height / 2 + 0.05}, palette::Concrete);
    }
}

} // namespace

void addRooftop(Meshes &meshes, const MastDesign &mast)
{
    const double half = mastSection(mast, mast.roofM).inradiusM;
    const double roof = mast.roofM;
    addBox(meshes.matt, {-half, -half, -FoundationDepthM}, {half, half, roof - 0.06},
           palette::Plaster);
    const double felt = half - 0.15;
    addBox(meshes.matt, {-felt, -felt, roof - 0.07}, {felt, felt, roof}, palette::RoofFelt);
    addWindows(meshes.matt, half, roof);
    addParapet(meshes.matt, half, roof);
    // equipment cabinets, and the pole with the lightning rod at the centre
    const double cabinet = std::min(0.45, 0.2 * half);
    for (const double x : {-1.3, 0.0, 1.3})
        addBox(meshes.metal, {x * cabinet * 1.9 - cabinet, -0.75 * half, roof},
               {x * cabinet * 1.9 + cabinet, -0.75 * half + 1.6 * cabinet, roof + 3.4 * cabinet},
               palette::Radome);
    addTube(meshes.metal, {0, 0, roof}, {0, 0, mast.heightM}, 0.06, 0.05, 10, palette::Galvanised,
            Ends::Closed);
    const double stay = roof + 0.6 * (mast.heightM - roof);
    for (const double azimuth : {0, 120, 240})
        addTube(meshes.metal, {0, 0, stay},
                towards(azimuth) * std::min(1.2, 0.5 * half) + osg::Vec3d(0, 0, roof), 0.025, 0.025,
                6, palette::Galvanised);
    addRod(meshes.metal, {0, 0, mast.heightM});
}

void addWaterTower(Meshes &meshes, const MastDesign &mast)
{
    const double gallery = mast.decksM.front();
    Profile wall = waterTowerWall(mast);
    wall.insert(wall.begin(), {wall.front().x(), -FoundationDepthM});
    addRevolved(meshes.matt, wall, TowerSides, palette::Concrete);
    addRevolved(meshes.matt, waterTowerRoof(mast), TowerSides, palette::Plaster);
    // a band around the foot of the tank, and a door
    const double tank = 1.5 * mast.widthM;
    const double foot = waterTowerTankFoot(mast);
    addRevolved(meshes.matt,
                {{0.98 * tank, foot},
                 {1.012 * tank, foot + 0.03 * tank},
                 {1.012 * tank, foot + 0.17 * tank},
                 {0.98 * tank, foot + 0.2 * tank}},
                TowerSides, palette::Plaster);
    const double shaft = waterTowerRadius(mast, 0.05 * gallery);
    const double door = std::min(1.0, 0.05 * gallery);
    addBox(meshes.metal, towards(180) * (shaft * 1.03) + osg::Vec3d(0, 0, door),
           rightOf(180) * std::min(0.45, 0.4 * shaft), towards(180) * (0.09 * shaft), {0, 0, door},
           palette::DarkSteel);
    addPlatform(meshes.metal, mast, gallery, waterTowerRadius(mast, gallery));
    addRod(meshes.metal, {0, 0, mast.heightM});
}

} // namespace vlt::scene
