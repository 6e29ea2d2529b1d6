#include "plugins/scene/pylon/Dish.h"

#include "plugins/scene/mesh/Palette.h"
#include "plugins/scene/mesh/Solids.h"

namespace vlt::scene {

namespace {

// Lengths along the axis in diameters, from the hub to the cover; their sum is DishDepth.
constexpr double Hub = 0.1;
constexpr double Reflector = 0.2;
constexpr double Shroud = 0.11;
constexpr double Cover = DishDepth - Hub - Reflector - Shroud;
constexpr double Rim = 0.015; ///< thickness

/// Converts a profile from diameters to metres and centres it along the axis.
Profile scaled(Profile profile, const AntennaSize &size)
{
    for (osg::Vec2d &point : profile) {
        point *= size.length;
        point.y() -= size.depth / 2;
    }
    return profile;
}

/// Rise of a paraboloid at a distance from its axis; `depth` is the rise at its edge.
double bow(double depth, double fromAxis)
{
    return depth * 4 * fromAxis * fromAxis;
}

} // namespace

double dishBack(const AntennaSize &size, double fromAxis)
{
    return (Hub + bow(Reflector, fromAxis / size.length)) * size.length - size.depth / 2;
}

double dishHubRadius(const AntennaSize &size)
{
    return 0.13 * size.length;
}

void addDish(Mesh &matt, const AntennaPlace &place, bool detailed)
{
    const int steps = detailed ? 6 : 2;
    const int segments = detailed ? 40 : 12;
    Profile back;
    Profile front;
    for (int i = 0; i <= steps; ++i) {
        const double fromAxis = 0.5 * i / steps;
        back.emplace_back(fromAxis, Hub + bow(Reflector, fromAxis));
        front.emplace_back(0.5 - fromAxis, DishDepth - bow(Cover, 0.5 - fromAxis));
    }
    const double foot = Hub + Reflector;
    const double top = foot + Shroud;
    const Profile rim = {
        {0.5, foot - Rim}, {0.5 + Rim, foot - Rim}, {0.5 + Rim, foot + Rim}, {0.5, foot + Rim}};
    const Profile lid = {
        {0.5, top - Rim}, {0.5 + Rim / 2, top - Rim}, {0.5 + Rim / 2, top}, {0.5, top}};
    Mesh body; // about the z axis
    const auto add = [&](const Profile &profile, const Color &color) {
        addRevolved(body, scaled(profile, place.size), segments, color);
    };
    add(back, palette::Radome);
    add({{0.5, foot}, {0.5, foot + 0.35 * Shroud}}, palette::Radome);
    add({{0.5, foot + 0.35 * Shroud}, {0.5, foot + 0.7 * Shroud}}, place.mark);
    add({{0.5, foot + 0.7 * Shroud}, {0.5, top}}, palette::Radome);
    add(front, palette::DishCover);
    if (detailed) {
        add(rim, palette::RadomeEnd);
        add(lid, palette::RadomeEnd);
    }
    matt.append(body, osg::Matrixd::rotate(-osg::PI_2, osg::Vec3d(1, 0, 0)));
}

} // namespace vlt::scene
