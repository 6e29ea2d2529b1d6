#include "plugins/scene/pylon/Masts.h"

#include "plugins/scene/mesh/Palette.h"
#include "plugins/scene/mesh/Solids.h"
#include "plugins/scene/pylon/Fittings.h"
#include "plugins/scene/pylon/MastSection.h"
#include "plugins/scene/pylon/WaterTowerShape.h"

namespace vlt::scene {

namespace {

constexpr int PlainSides = 12;

/// Adds a mast as truncated cones or pyramids with the sections of the mast.
void addPlainBody(Mesh &mesh, const MastDesign &mast)
{
    const int corners = mastSection(mast, 0).sides;
    const int sides = corners == 0 ? PlainSides : corners;
    const bool wooden = mast.type == PylonType::WoodPanel;
    const std::vector<double> heights =
        wooden ? std::vector<double>{0, mast.heightM} : bandHeights(mast);
    Mesh body;
    for (std::size_t i = 1; i < heights.size(); ++i) {
        const double low = heights[i - 1];
        const double high = heights[i];
        Profile profile = {{mastSection(mast, low).circumradius(), low},
                           {mastSection(mast, high).circumradius(), high}};
        if (i + 1 == heights.size())
            profile.emplace_back(0, high);
        const Color color =
            wooden ? palette::Wood : bandColor(mast, (low + high) / 2, palette::Galvanised);
        addRevolved(body, profile, sides, color, corners == 0 ? Faces::Round : Faces::Flat);
    }
    mesh.append(body, turnedTo(corners == 0 ? 0 : 180.0 / sides));
}

} // namespace

void addMast(Meshes &meshes, const MastDesign &mast)
{
    switch (mast.type) {
    case PylonType::MonopolePanel:
    case PylonType::MonopoleCylinder:
    case PylonType::MonopoleSlim:
        return addTubeMast(meshes, mast);
    case PylonType::LatticePanel:
    case PylonType::LatticeCylinder:
        return addLatticeMast(meshes, mast);
    case PylonType::GuyedPanel:
        return addGuyedMast(meshes, mast);
    case PylonType::RooftopPanel:
    case PylonType::RooftopCylinder:
        return addRooftop(meshes, mast);
    case PylonType::WoodPanel:
        return addWoodenPole(meshes, mast);
    case PylonType::WaterTowerPanel:
        return addWaterTower(meshes, mast);
    }
}

double addPlainMast(Meshes &meshes, const MastDesign &mast)
{
    if (isRooftop(mast.type)) {
        const double half = mastSection(mast, 0).inradiusM;
        addBox(meshes.matt, {-half, -half, 0}, {half, half, mast.roofM}, palette::Plaster);
        addTube(meshes.metal, {0, 0, mast.roofM}, {0, 0, mast.heightM}, 0.15, 0.15, PlainSides,
                palette::Galvanised, Ends::Closed);
    } else if (mast.type == PylonType::WaterTowerPanel) {
        addRevolved(meshes.matt, waterTowerWall(mast), PlainSides, palette::Concrete);
        addRevolved(meshes.matt, waterTowerRoof(mast), PlainSides, palette::Concrete);
    } else
        addPlainBody(mast.type == PylonType::WoodPanel ? meshes.matt : meshes.metal, mast);
    return mast.heightM;
}

} // namespace vlt::scene
