#include "plugins/scene/pylon/Fittings.h"

#include "plugins/scene/mesh/Palette.h"
#include "plugins/scene/pylon/MastSection.h"

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr double TallM = 45; ///< masts of at least this height have aviation marking
constexpr int Bands = 7;
constexpr int MaxRungs = 160;

} // namespace

void addLadder(Mesh &metal, const Span &span, const osg::Vec3d &right)
{
    constexpr double HalfWidth = 0.2;
    for (const double side : {-HalfWidth, HalfWidth})
        addTube(metal, span.bottom + right * side, span.top + right * side, 0.025, 0.025, 4,
                palette::DarkSteel, Ends::Closed);
    const osg::Vec3d way = span.top - span.bottom;
    const int rungs = std::min(MaxRungs, static_cast<int>(way.length() / 0.3));
    for (int i = 1; i <= rungs; ++i) {
        const osg::Vec3d at = span.bottom + way * ((i - 0.5) / rungs);
        addTube(metal, at - right * HalfWidth, at + right * HalfWidth, 0.014, 0.014, 4,
                palette::DarkSteel);
    }
}

void addCables(Mesh &matt, const Span &span, const osg::Vec3d &right, int count)
{
    constexpr double Pitch = 0.055;
    for (int i = 0; i < count; ++i) {
        const osg::Vec3d aside = right * ((i - (count - 1) / 2.0) * Pitch);
        addTube(matt, span.bottom + aside, span.top + aside, 0.022, 0.022, 5, palette::Cable,
                Ends::Closed);
    }
}

void addRail(Mesh &metal, double radius, int corners, double heightM, double railRadius,
             const Color &color)
{
    const double step = 360.0 / corners;
    const double phase = step / 2; // a face towards north, as in MastSection
    for (int i = 0; i < corners; ++i) {
        const osg::Vec3d up(0, 0, heightM);
        addTube(metal, towards(phase + i * step) * radius + up,
                towards(phase + (i + 1) * step) * radius + up, railRadius, railRadius, 6, color);
    }
}

void addPlatform(Mesh &metal, const MastDesign &mast, double deckM, double bodyRadius)
{
    constexpr double Thickness = 0.06;
    const int corners = platformCorners(mast.type);
    const double radius = platformRadius(mast, deckM);
    const double inner = std::min(bodyRadius * 0.9, radius * 0.9);
    const double step = 360.0 / corners;

    Mesh floor;
    addRevolved(
        floor,
        {{inner, deckM - Thickness}, {radius, deckM - Thickness}, {radius, deckM}, {inner, deckM}},
        corners, palette::Grating, Faces::Flat);
    addRevolved(floor,
                {{radius - 0.02, deckM},
                 {radius, deckM},
                 {radius, deckM + 0.12},
                 {radius - 0.02, deckM + 0.12},
                 {radius - 0.02, deckM}},
                corners, palette::DarkSteel, Faces::Flat);
    metal.append(floor, turnedTo(step / 2));

    const double rail = radius - 0.03;
    addRail(metal, rail, corners, deckM + RailingM, 0.026, palette::Galvanised);
    addRail(metal, rail, corners, deckM + RailingM / 2, 0.018, palette::Galvanised);
    for (int i = 0; i < corners; ++i) {
        const osg::Vec3d out = towards((i + 0.5) * step);
        addTube(metal, out * rail + osg::Vec3d(0, 0, deckM),
                out * rail + osg::Vec3d(0, 0, deckM + RailingM + 0.02), 0.024, 0.024, 6,
                palette::Galvanised, Ends::Closed);
        if (mast.type == PylonType::WaterTowerPanel || (corners > 8 && i % 2 == 1))
            continue;
        const osg::Vec3d beam(0, 0, deckM - Thickness - 0.04);
        const double drop = std::min(0.8 * (radius - bodyRadius), 1.0);
        addTube(metal, out * (bodyRadius * 0.8) + beam, out * (radius - 0.06) + beam, 0.045, 0.045,
                6, palette::DarkSteel, Ends::Closed);
        addTube(metal, out * (bodyRadius * 0.8) + beam - osg::Vec3d(0, 0, drop),
                out * (radius - 0.25) + beam, 0.03, 0.03, 6, palette::DarkSteel, Ends::Closed);
    }
}

void addRod(Mesh &metal, const osg::Vec3d &foot)
{
    addTube(metal, foot - osg::Vec3d(0, 0, 0.3), foot + osg::Vec3d(0, 0, RodM), 0.025, 0.008, 6,
            palette::DarkSteel, Ends::Closed);
}

std::vector<double> bandHeights(const MastDesign &mast)
{
    std::vector<double> heights;
    const int bands = mast.heightM >= TallM ? Bands : 1;
    for (int i = 0; i <= bands; ++i)
        heights.push_back(mast.heightM * i / bands);
    return heights;
}

Color bandColor(const MastDesign &mast, double heightM, const Color &plain)
{
    if (mast.heightM < TallM)
        return plain;
    const int band = std::clamp(static_cast<int>(heightM / mast.heightM * Bands), 0, Bands - 1);
    return band % 2 == 0 ? palette::AviationRed : palette::AviationWhite;
}

} // namespace vlt::scene
