#include "plugins/scene/mesh/Palette.h"
#include "plugins/scene/pylon/Fittings.h"
#include "plugins/scene/pylon/MastSection.h"
#include "plugins/scene/pylon/Masts.h"

#include <algorithm>

namespace vlt::scene {

namespace {

constexpr int TubeSides = 24;
constexpr double LadderAzimuthDeg = 190;
constexpr double CableAzimuthDeg = 172;

double radiusAt(const MastDesign &mast, double height)
{
    return mastSection(mast, height).inradiusM;
}

/// A straight line along the tube, with a gap to its surface.
Span alongTube(const MastDesign &mast, double azimuthDeg, double bottom, double top, double gap)
{
    const osg::Vec3d out = towards(azimuthDeg);
    return {out * (radiusAt(mast, bottom) + gap) + osg::Vec3d(0, 0, bottom),
            out * (radiusAt(mast, top) + gap) + osg::Vec3d(0, 0, top)};
}

void addStandoffs(Mesh &metal, const MastDesign &mast, double azimuthDeg, double top, double gap)
{
    const int count = std::clamp(static_cast<int>((top - 1.5) / 2.4), 1, 40);
    for (int i = 0; i < count; ++i) {
        const double height = 1.5 + (top - 1.5) * i / count;
        const Span span = alongTube(mast, azimuthDeg, height, height, gap);
        addTube(metal,
                towards(azimuthDeg) * (radiusAt(mast, height) * 0.9) + osg::Vec3d(0, 0, height),
                span.bottom, 0.02, 0.02, 5, palette::DarkSteel);
        addTube(metal, span.bottom - rightOf(azimuthDeg) * 0.2,
                span.bottom + rightOf(azimuthDeg) * 0.2, 0.018, 0.018, 5, palette::DarkSteel);
    }
}

/// Adds the tube: pieces with a collar at each joint, in the colours of the bands.
void addTubeBody(Mesh &metal, const MastDesign &mast)
{
    const std::vector<double> heights = bandHeights(mast);
    for (std::size_t i = 1; i < heights.size(); ++i) {
        const double low = heights[i - 1];
        const double high = heights[i];
        Profile profile = {{radiusAt(mast, low), low}, {radiusAt(mast, high), high}};
        if (i + 1 == heights.size())
            profile.emplace_back(0, high);
        addRevolved(metal, profile, TubeSides,
                    bandColor(mast, (low + high) / 2, palette::Galvanised));
    }
    const int lengths = std::clamp(static_cast<int>(mast.heightM / 8), 1, 24);
    for (int i = 0; i < lengths; ++i) {
        const double height = mast.heightM * i / lengths;
        const double radius = radiusAt(mast, height);
        const double collar = radius * (i == 0 ? 1.45 : 1.18);
        const double half = i == 0 ? 0.05 : 0.06;
        const double middle = i == 0 ? 0.2 : height;
        addRevolved(metal,
                    {{radius * 0.95, middle - half},
                     {collar, middle - half},
                     {collar, middle + half},
                     {radius * 0.95, middle + half}},
                    TubeSides, bandColor(mast, middle, palette::DarkSteel));
    }
}

void addFoundation(Mesh &matt, const MastDesign &mast)
{
    const double radius = radiusAt(mast, 0) * 2.2;
    Mesh block;
    addRevolved(block, {{radius, -FoundationDepthM}, {radius, 0.15}, {0, 0.15}}, 8,
                palette::Concrete, Faces::Flat);
    matt.append(block, turnedTo(180.0 / 8));
}

} // namespace

void addTubeMast(Meshes &meshes, const MastDesign &mast)
{
    addFoundation(meshes.matt, mast);
    addTubeBody(meshes.metal, mast);
    addRod(meshes.metal, {0, 0, mast.heightM});
    for (const double deck : mast.decksM)
        addPlatform(meshes.metal, mast, deck, radiusAt(mast, deck));

    const bool slim = mast.type == PylonType::MonopoleSlim;
    const double top = mast.decksM.empty() ? 0.85 * mast.heightM
                                           : std::min(mast.decksM.back() + 1.2, mast.heightM);
    if (slim || top < 4)
        return;
    addLadder(meshes.metal, alongTube(mast, LadderAzimuthDeg, 0.3, top, 0.2),
              rightOf(LadderAzimuthDeg));
    addStandoffs(meshes.metal, mast, LadderAzimuthDeg, top, 0.2);
    addCables(meshes.matt, alongTube(mast, CableAzimuthDeg, 0.1, top, 0.035),
              rightOf(CableAzimuthDeg), 3);
}

void addWoodenPole(Meshes &meshes, const MastDesign &mast)
{
    const double top = mast.heightM;
    addRevolved(
        meshes.matt,
        {{radiusAt(mast, 0), -FoundationDepthM}, {radiusAt(mast, top), top - 0.04}, {0, top}}, 16,
        palette::Wood);
    addRod(meshes.metal, {0, 0, top});
    // climbing steps, alternately on the left and on the right
    const int steps = std::clamp(static_cast<int>((top - 5) / 0.45), 0, 200);
    for (int i = 0; i < steps; ++i) {
        const double height = 3.2 + (top - 5) * i / std::max(1, steps);
        const double azimuth = i % 2 == 0 ? 130 : 230;
        const osg::Vec3d up(0, 0, height);
        const double radius = radiusAt(mast, height);
        const osg::Vec3d out = towards(azimuth);
        addTube(meshes.metal, out * (radius * 0.8) + up, out * (radius + 0.17) + up, 0.012, 0.012,
                5, palette::DarkSteel, Ends::Closed);
    }
    if (top > 4)
        addCables(meshes.matt, alongTube(mast, 180, -0.05, 0.9 * top, 0.02), rightOf(180), 2);
}

} // namespace vlt::scene
