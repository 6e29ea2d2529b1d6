#include "plugins/scene/pylon/Antennas.h"

#include "plugins/scene/mesh/Palette.h"
#include "plugins/scene/mesh/Solids.h"
#include "plugins/scene/pylon/Dish.h"

#include <cmath>

namespace vlt::scene {

namespace {

/// Horizontal section of a radome that faces +y: a flat back and a curved front, or a circle.
Outline radomeOutline(const AntennaSize &size, bool cylinder, int steps)
{
    Outline outline;
    const double half = size.width / 2;
    if (cylinder) {
        for (int i = 0; i < 2 * steps; ++i) {
            const double angle = osg::PI * i / steps;
            outline.emplace_back(half * std::cos(angle), half * std::sin(angle));
        }
        return outline;
    }
    const double back = -size.depth / 2;
    const double shoulder = 0.05 * size.depth;
    outline = {{-half, shoulder},
               {-half, back + 0.02 * size.width},
               {-half + 0.04 * size.width, back},
               {half - 0.04 * size.width, back},
               {half, back + 0.02 * size.width}};
    for (int i = 0; i < steps; ++i) {
        const double angle = osg::PI * i / steps;
        outline.emplace_back(half * std::cos(angle),
                             shoulder + (size.depth / 2 - shoulder) * std::sin(angle));
    }
    return outline;
}

Outline shrunk(Outline outline, double share)
{
    for (osg::Vec2d &point : outline)
        point *= share;
    return outline;
}

/// A radome about the origin that faces +y, with a coloured mark below its upper end.
void addRadome(Mesh &matt, const AntennaPlace &place, bool cylinder, bool detailed)
{
    const AntennaSize &size = place.size;
    const double half = size.length / 2;
    const Outline outline = radomeOutline(size, cylinder, detailed ? 8 : 3);
    const double markFoot = half - 0.16 * size.length;
    const double markHead = half - 0.11 * size.length;
    if (!detailed) {
        addPrism(matt, outline, -half, markFoot, palette::Radome);
        addPrism(matt, outline, markFoot, half, place.mark);
        return;
    }
    const double lid = 0.02 * size.length;
    addPrism(matt, outline, -half + lid, markFoot, palette::Radome, Ends::Open);
    addPrism(matt, outline, markFoot, markHead, place.mark, Ends::Open);
    addPrism(matt, outline, markHead, half - lid, palette::Radome, Ends::Open);
    addPrism(matt, shrunk(outline, 1.02), half - lid, half, palette::Radome);
    addPrism(matt, shrunk(outline, 1.02), -half, -half + lid, palette::RadomeEnd);
    for (const double x : {-0.22, 0.22})
        addTube(matt, {x * size.width, 0, -half - 0.035 * size.length}, {x * size.width, 0, -half},
                0.07 * size.width, 0.07 * size.width, 8, palette::Cable, Ends::Closed);
}

osg::Matrixd antennaMatrix(const AntennaPlace &place)
{
    return osg::Matrixd::rotate(-osg::DegreesToRadians(place.tiltDeg), osg::Vec3d(1, 0, 0)) *
           turnedTo(place.azimuthDeg) * osg::Matrixd::translate(place.centre);
}

/// The points on the back of an antenna where its two clamps are.
std::vector<osg::Vec3d> backPoints(const AntennaPlace &place)
{
    std::vector<osg::Vec3d> points;
    for (const double lift : {-bracketOffset(place.size), bracketOffset(place.size)}) {
        const bool isDish = place.kind == AntennaKind::Dish;
        const double back = isDish ? dishBack(place.size, lift) : -0.4 * place.size.depth;
        points.emplace_back(0, back, lift);
    }
    return points;
}

/// The pipe, two clamps that follow the tilt, and arms to the mast or a stand on the roof.
void addBracket(Mesh &metal, const AntennaPlace &place, bool detailed)
{
    const double radius = 0.04;
    const int sides = detailed ? 10 : 5;
    const osg::Vec3d axis(place.pipe.x(), place.pipe.y(), 0);
    addTube(metal, axis + osg::Vec3d(0, 0, place.pipeBottom),
            axis + osg::Vec3d(0, 0, place.pipeTop), radius, radius, sides, palette::Galvanised,
            detailed ? Ends::Closed : Ends::Open);
    const osg::Matrixd matrix = antennaMatrix(place);
    if (place.kind == AntennaKind::Dish) {
        const double thick = dishHubRadius(place.size);
        addTube(metal, axis + osg::Vec3d(0, 0, place.centre.z()),
                osg::Vec3d(0, -0.5 * place.size.depth, 0) * matrix, 0.06, thick, detailed ? 16 : 6,
                palette::DarkSteel, Ends::Closed);
    }
    for (const osg::Vec3d &point : backPoints(place)) {
        const osg::Vec3d back = point * matrix;
        addTube(metal, axis + osg::Vec3d(0, 0, back.z()), back, 0.03, 0.03, detailed ? 8 : 4,
                palette::DarkSteel);
        if (detailed)
            addTube(metal, axis + osg::Vec3d(0, 0, back.z() - 0.05),
                    axis + osg::Vec3d(0, 0, back.z() + 0.05), 0.06, 0.06, 8, palette::DarkSteel,
                    Ends::Closed);
    }
    for (const osg::Vec3d &hold : place.holds)
        addTube(metal, hold, axis + osg::Vec3d(0, 0, hold.z()), 0.032, 0.032, detailed ? 8 : 4,
                palette::Galvanised);
    if (!place.standsOnRoof || !detailed)
        return;
    const osg::Vec3d foot = axis + osg::Vec3d(0, 0, place.pipeBottom);
    addBox(metal, foot + osg::Vec3d(0, 0, 0.02), towards(place.azimuthDeg) * 0.16,
           -rightOf(place.azimuthDeg) * 0.16, {0, 0, 0.02}, palette::DarkSteel);
    for (const double aside : {-140, 140})
        addTube(metal, foot + towards(place.azimuthDeg + aside) * 0.75,
                foot + osg::Vec3d(0, 0, 0.45 * (place.pipeTop - place.pipeBottom)), 0.022, 0.022, 6,
                palette::Galvanised);
}

} // namespace

void addAntennas(Meshes &meshes, const std::vector<AntennaPlace> &places, bool cylinders)
{
    const bool detailed = places.size() <= MaxDetailed;
    for (const AntennaPlace &place : places) {
        Mesh body;
        if (place.kind == AntennaKind::Dish)
            addDish(body, place, detailed);
        else
            addRadome(body, place, cylinders, detailed);
        meshes.matt.append(body, antennaMatrix(place));
        addBracket(meshes.metal, place, detailed);
    }
}

} // namespace vlt::scene
