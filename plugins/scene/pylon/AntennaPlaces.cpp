#include "plugins/scene/pylon/AntennaPlaces.h"

#include "plugins/scene/mesh/Solids.h"
#include "plugins/scene/pylon/MastSection.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace vlt::scene {

namespace {

constexpr double SameDirectionDeg = 15;
constexpr double PipeRoomM = 0.05;    ///< the pipe's radius
constexpr double OutsideRailM = 0.08; ///< distance from a platform's corners to the pipes
constexpr double MaxRowWidthM = 3;
constexpr double MaxDishDistanceM = 2.5; ///< maximum distance from the axis without a platform
constexpr double DishRoom = 0.55;        ///< free space on each side / diameter

double standoff(const AntennaSize &size, double scale, double tiltDeg)
{
    const double swing = size.length / 2 * std::sin(std::abs(osg::DegreesToRadians(tiltDeg)));
    return std::max(0.28 * scale, PipeRoomM + size.depth / 2 + swing);
}

/// Distance from the mast's outline to the pipes, for types without platforms.
double armLength(PylonType type)
{
    switch (type) {
    case PylonType::LatticeCylinder:
    case PylonType::GuyedPanel:
        return 0.45;
    case PylonType::MonopoleSlim:
        return 0.16;
    default:
        return 0.25;
    }
}

/// Height of the platform's floor below an antenna; null if there is no platform below it.
const double *deckBelow(const MastDesign &mast, double antennaBottom)
{
    const double *found = nullptr;
    for (const double &deck : mast.decksM) {
        if (deck <= antennaBottom)
            found = &deck;
    }
    return found && antennaBottom - *found < RailingM + 1.2 ? found : nullptr;
}

/// Sideways shifts, in metres, that separate antennas of nearly the same azimuth and height.
std::vector<double> rowSteps(const PylonDesign &pylon)
{
    const std::vector<Transmitter> &all = pylon.transmitters;
    std::vector<std::size_t> order(all.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&all](std::size_t a, std::size_t b) {
        return all[a].heightM < all[b].heightM;
    });
    std::vector<double> steps(all.size(), 0);
    std::vector<bool> done(all.size(), false);
    for (std::size_t i = 0; i < order.size(); ++i) {
        const Transmitter &first = all[order[i]];
        std::vector<std::size_t> row;
        for (std::size_t k = i; k < order.size(); ++k) {
            const Transmitter &other = all[order[k]];
            if (other.heightM - first.heightM > antennaSize(pylon, first).length)
                break;
            if (!done[order[k]] && std::abs(std::remainder(other.azimuthDeg - first.azimuthDeg,
                                                           360)) < SameDirectionDeg)
                row.push_back(order[k]);
        }
        std::stable_sort(row.begin(), row.end(), [&](std::size_t a, std::size_t b) {
            return std::remainder(all[a].azimuthDeg - first.azimuthDeg, 360) <
                   std::remainder(all[b].azimuthDeg - first.azimuthDeg, 360);
        });
        const double middle = (static_cast<double>(row.size()) - 1) / 2;
        const double room = middle > 0 ? MaxRowWidthM / (2 * middle) : 0;
        for (std::size_t k = 0; k < row.size(); ++k) {
            const double width = antennaSize(pylon, all[row[k]]).width * 1.4;
            steps[row[k]] = (static_cast<double>(k) - middle) * std::min(width, room);
            done[row[k]] = true;
        }
    }
    return steps;
}

/// Distance from the axis at which a dish does not touch neighbours with other azimuths.
double roomyDistance(const PylonDesign &pylon, const Transmitter &dish)
{
    if (dish.kind != AntennaKind::Dish)
        return 0;
    double distance = 0;
    for (const Transmitter &other : pylon.transmitters) {
        const double between = std::abs(std::remainder(other.azimuthDeg - dish.azimuthDeg, 360));
        const double room =
            (antennaSize(pylon, dish).length + antennaSize(pylon, other).length) / 2;
        if (other.kind == AntennaKind::Dish && between >= SameDirectionDeg &&
            std::abs(other.heightM - dish.heightM) < room)
            distance =
                std::max(distance, DishRoom * room / std::sin(osg::DegreesToRadians(between / 2)));
    }
    return std::min(distance, MaxDishDistanceM);
}

/// Sets the position of the pipe and the points that hold it.
void hang(AntennaPlace &place, const PylonDesign &pylon, const MastDesign &mast, double step,
          double leastDistance)
{
    const double centre = place.centre.z();
    const double half = place.size.length / 2;
    const double lift = bracketOffset(place.size);
    place.pipeBottom = centre - half - 0.1;
    place.pipeTop = centre + half + 0.1;
    const double *deck = deckBelow(mast, centre - half);
    double distance = 0;
    double inner = 0;
    std::vector<double> heights = {centre - lift, centre + lift};
    if (isRooftop(mast.type)) {
        const double inset = mastSection(mast, mast.roofM).inradiusM - 0.45;
        distance = MastSection{4, std::max(inset, 0.1)}.reach(place.azimuthDeg);
        place.pipeBottom = mast.roofM;
        place.standsOnRoof = true;
    } else if (deck) {
        const double radius = platformRadius(mast, *deck);
        distance = radius + OutsideRailM;
        inner = radius * std::cos(osg::PI / platformCorners(mast.type)) - 0.04;
        heights = {*deck - 0.03, *deck + RailingM};
        place.pipeBottom = *deck - 0.1;
    } else {
        const double outline = std::max(mastSection(mast, centre - lift).reach(place.azimuthDeg),
                                        mastSection(mast, centre + lift).reach(place.azimuthDeg));
        distance = std::max(leastDistance,
                            outline + armLength(mast.type) * std::max(1.0, pylon.antennaScale));
    }
    place.pipe = towards(place.azimuthDeg) * distance + rightOf(place.azimuthDeg) * step;
    if (place.standsOnRoof)
        return;
    const double bearing = osg::RadiansToDegrees(std::atan2(place.pipe.x(), place.pipe.y()));
    for (double height : heights) {
        height = std::clamp(height, 0.0, mast.heightM - 0.05);
        const double hold = deck ? inner : mastSection(mast, height).reach(bearing) - 0.01;
        place.holds.push_back(towards(bearing) * hold + osg::Vec3d(0, 0, height));
        place.pipeBottom = std::min(place.pipeBottom, height - 0.05);
        place.pipeTop = std::max(place.pipeTop, height + 0.05);
    }
}

} // namespace

std::vector<AntennaPlace> placeAntennas(const PylonDesign &pylon, const MastDesign &mast)
{
    std::vector<AntennaPlace> places;
    if (pylon.antennaScale <= 0)
        return places;
    const std::vector<double> steps = rowSteps(pylon);
    for (std::size_t i = 0; i < pylon.transmitters.size(); ++i) {
        const Transmitter &transmitter = pylon.transmitters[i];
        AntennaPlace place;
        place.kind = transmitter.kind;
        place.azimuthDeg = transmitter.azimuthDeg;
        place.tiltDeg = transmitter.tiltDeg;
        place.size = antennaSize(pylon, transmitter);
        place.mark = transmitter.color;
        place.mark.a() = 255;
        place.centre.z() = transmitter.heightM;
        hang(place, pylon, mast, steps[i], roomyDistance(pylon, transmitter));
        const osg::Vec3d ahead =
            towards(place.azimuthDeg) * standoff(place.size, pylon.antennaScale, place.tiltDeg);
        place.centre = place.pipe + ahead + osg::Vec3d(0, 0, transmitter.heightM);
        places.push_back(place);
    }
    return places;
}

} // namespace vlt::scene
