#include "plugins/scene/mesh/Palette.h"
#include "plugins/scene/pylon/Fittings.h"
#include "plugins/scene/pylon/LatticeColumn.h"
#include "plugins/scene/pylon/MastSection.h"
#include "plugins/scene/pylon/Masts.h"

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr double PlinthM = 0.3; ///< height of concrete above the ground

void addPlinth(Mesh &matt, const osg::Vec3d &at, double half, double top)
{
    addBox(matt, at + osg::Vec3d(-half, -half, -FoundationDepthM), at + osg::Vec3d(half, half, top),
           palette::Concrete);
}

/// Adds a ladder behind a face, and cables: beside the ladder in square towers, along the axis in
/// triangular ones, where there is no room beside the ladder.
void addClimb(Meshes &meshes, const MastDesign &mast, double bottom, double top)
{
    const bool square = mast.type == PylonType::LatticePanel;
    const double azimuth = square ? 180 : 240;
    const osg::Vec3d right = rightOf(azimuth);
    const auto line = [&](double inside, double aside) {
        const auto point = [&](double height) {
            const double out = mastSection(mast, height).inradiusM * inside;
            return towards(azimuth) * out + right * aside + osg::Vec3d(0, 0, height);
        };
        return Span{point(bottom), point(top)};
    };
    addLadder(meshes.metal, line(0.82, 0), right);
    Span cables = square ? line(0.82, 0.31) : line(0, 0);
    cables.bottom.z() = -0.05; // down to below the ground
    addCables(meshes.matt, cables, right, 3);
}

/// Adds a plate on top with the lightning rod.
void addHead(Meshes &meshes, const MastDesign &mast)
{
    const double top = mast.heightM;
    const double radius = mastSection(mast, top).circumradius() + legRadius(mast);
    const int sides = mastSection(mast, top).sides;
    Mesh plate;
    addRevolved(plate, {{0, top - 0.04}, {radius, top - 0.04}, {radius, top}, {0, top}}, sides,
                palette::DarkSteel, Faces::Flat);
    meshes.metal.append(plate, turnedTo(180.0 / sides));
    addRod(meshes.metal, {0, 0, top});
}

void addGuys(Meshes &meshes, const MastDesign &mast)
{
    const double anchor = 0.55 * mast.heightM;
    const int levels = std::clamp(static_cast<int>(mast.heightM / 12), 1, 6);
    for (int corner = 0; corner < 3; ++corner) {
        const osg::Vec3d out = towards((corner + 0.5) * 120);
        const osg::Vec3d ground = out * anchor;
        addPlinth(meshes.matt, ground, 0.45, 0.25);
        addTube(meshes.metal, ground + osg::Vec3d(0, 0, 0.2),
                ground - out * 0.25 + osg::Vec3d(0, 0, 0.6), 0.05, 0.05, 6, palette::DarkSteel,
                Ends::Closed);
        for (int level = 1; level <= levels; ++level) {
            const double height = mast.heightM * (level - 0.12) / levels;
            const osg::Vec3d hold = latticeCorner(mast, corner, height);
            const osg::Vec3d foot = ground - out * 0.25 + osg::Vec3d(0, 0, 0.6);
            addTube(meshes.metal, foot, hold, 0.016, 0.016, 5, palette::DarkSteel);
            const osg::Vec3d insulator = hold + (foot - hold) * 0.06;
            osg::Vec3d along = foot - hold;
            along.normalize();
            addTube(meshes.matt, insulator - along * 0.12, insulator + along * 0.12, 0.05, 0.05, 6,
                    palette::RadomeEnd, Ends::Closed);
        }
    }
}

} // namespace

void addLatticeMast(Meshes &meshes, const MastDesign &mast)
{
    const int sides = mastSection(mast, 0).sides;
    const double leg = legRadius(mast);
    for (int corner = 0; corner < sides; ++corner) {
        addPlinth(meshes.matt, latticeCorner(mast, corner, 0), 0.08 * mast.widthM + 0.1, PlinthM);
        addTube(meshes.metal, latticeCorner(mast, corner, 0) + osg::Vec3d(0, 0, PlinthM),
                latticeCorner(mast, corner, 0) + osg::Vec3d(0, 0, PlinthM + 0.06), 2.2 * leg,
                2.2 * leg, 12, palette::DarkSteel, Ends::Closed);
    }
    const double bottom = std::min(PlinthM, mast.heightM / 2);
    addLatticeColumn(meshes.metal, mast, bottom, mast.heightM);
    for (const double deck : mast.decksM)
        addPlatform(meshes.metal, mast, deck, mastSection(mast, deck).circumradius());
    addHead(meshes, mast);
    if (mast.widthM * 0.4 > 0.6 && mast.heightM > 4)
        addClimb(meshes, mast, bottom, mast.heightM * 0.96);
}

void addGuyedMast(Meshes &meshes, const MastDesign &mast)
{
    const double bottom = std::min(1.5, mast.heightM / 4);
    const double half = 0.2 * mast.widthM + 0.2;
    const double plinth = std::min(PlinthM, bottom / 2);
    addPlinth(meshes.matt, {}, half, plinth);
    for (int corner = 0; corner < 3; ++corner) // the legs meet in a hinge
        addTube(meshes.metal, {0, 0, plinth}, latticeCorner(mast, corner, bottom), legRadius(mast),
                legRadius(mast), 8, palette::Galvanised);
    addLatticeColumn(meshes.metal, mast, bottom, mast.heightM);
    addGuys(meshes, mast);
    addHead(meshes, mast);
    if (mast.widthM * 0.3 > 0.5 && mast.heightM > 8)
        addClimb(meshes, mast, bottom, mast.heightM * 0.96);
}

} // namespace vlt::scene
