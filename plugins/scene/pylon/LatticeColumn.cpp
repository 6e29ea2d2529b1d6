#include "plugins/scene/pylon/LatticeColumn.h"

#include "plugins/scene/mesh/Palette.h"
#include "plugins/scene/mesh/Solids.h"
#include "plugins/scene/pylon/Fittings.h"
#include "plugins/scene/pylon/MastSection.h"

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr int MaxBays = 64;

/// Heights of the ends of the bays. A bay is about as high as its face is wide.
std::vector<double> bayHeights(const MastDesign &mast, double bottom, double top)
{
    const double foot = mastSection(mast, bottom).inradiusM;
    const double head = mastSection(mast, top).inradiusM;
    const MastSection middle = mastSection(mast, (bottom + top) / 2);
    const double face = 2 * middle.inradiusM * std::tan(osg::PI / middle.sides);
    const int bays =
        static_cast<int>(std::clamp((top - bottom) / (1.1 * face), 3.0, 1.0 * MaxBays));
    const double ratio = std::pow(head / foot, 1.0 / bays);
    std::vector<double> heights = {bottom};
    double whole = 0;
    for (int i = 0; i < bays; ++i)
        whole += std::pow(ratio, i);
    for (int i = 0; i < bays; ++i)
        heights.push_back(heights.back() + (top - bottom) * std::pow(ratio, i) / whole);
    heights.back() = top;
    return heights;
}

void addFrame(Mesh &metal, const MastDesign &mast, double height, double radius)
{
    const int sides = mastSection(mast, height).sides;
    for (int corner = 0; corner < sides; ++corner)
        addTube(metal, latticeCorner(mast, corner, height), latticeCorner(mast, corner + 1, height),
                radius, radius, 6, bandColor(mast, height, palette::Galvanised));
}

} // namespace

double legRadius(const MastDesign &mast)
{
    const MastSection foot = mastSection(mast, 0);
    return 0.028 + 0.015 * 2 * foot.inradiusM * std::tan(osg::PI / foot.sides);
}

osg::Vec3d latticeCorner(const MastDesign &mast, int corner, double height)
{
    const MastSection section = mastSection(mast, height);
    return towards((corner + 0.5) * 360 / section.sides) * section.circumradius() +
           osg::Vec3d(0, 0, height);
}

void addLatticeColumn(Mesh &metal, const MastDesign &mast, double bottom, double top)
{
    const double leg = legRadius(mast);
    const double brace = 0.45 * leg;
    const std::vector<double> heights = bayHeights(mast, bottom, top);
    const int sides = mastSection(mast, bottom).sides;
    for (std::size_t i = 1; i < heights.size(); ++i) {
        const double low = heights[i - 1];
        const double high = heights[i];
        const Color color = bandColor(mast, (low + high) / 2, palette::Galvanised);
        const Ends ends = i + 1 == heights.size() ? Ends::Closed : Ends::Open;
        for (int corner = 0; corner < sides; ++corner) {
            const osg::Vec3d foot = latticeCorner(mast, corner, low);
            const osg::Vec3d nextFoot = latticeCorner(mast, corner + 1, low);
            const osg::Vec3d head = latticeCorner(mast, corner, high);
            const osg::Vec3d nextHead = latticeCorner(mast, corner + 1, high);
            addTube(metal, foot, head, leg, leg, 8, color, ends);
            addTube(metal, foot, nextHead, brace, brace, 5, color);
            addTube(metal, nextFoot, head, brace, brace, 5, color);
        }
        addFrame(metal, mast, high, brace);
    }
    for (const double frame : mast.framesM) {
        if (frame > bottom)
            addFrame(metal, mast, std::min(frame, mast.heightM - 0.05), 0.7 * leg);
    }
}

} // namespace vlt::scene
