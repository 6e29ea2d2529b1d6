#include "picking/ObjectPicker.h"

#include "contract/SceneObjects.h"

#include <osg/ValueObject>

#include <algorithm>
#include <cmath>

namespace vlt::picking {

namespace {

using Intersection = osgUtil::LineSegmentIntersector::Intersection;

constexpr double SitePx = 16;      ///< radius of a site's symbol
constexpr double LinePx = 6;       ///< around a line of sight
constexpr double RoofPx = 4;       ///< around a distant building, which is a dot
constexpr double SeenShare = 1.15; ///< symbols are seen through ground that is slightly nearer
constexpr double SameMastM = 25;   ///< from the position of a link's end to any part of its mast
constexpr double NearPlane = 1e-3;

/// The number of the object to which a triangle belongs.
std::optional<std::size_t> inRanges(const osg::UIntArray &ranges, unsigned triangle)
{
    std::size_t low = 0; // in pairs
    std::size_t high = ranges.size() / 2;
    const auto firstOf = [&ranges](std::size_t pair) { return ranges[2 * pair]; };
    while (high - low > 1) {
        const std::size_t middle = (low + high) / 2;
        (firstOf(middle) <= triangle ? low : high) = middle;
    }
    if (high == 0 || firstOf(low) > triangle)
        return std::nullopt;
    return ranges[2 * low + 1];
}

std::optional<std::size_t> objectOf(const Intersection &met)
{
    for (const osg::Node *node : met.nodePath) {
        unsigned number = 0;
        if (node->getUserValue(contract::objects::Number, number))
            return number;
    }
    if (!met.drawable || !met.drawable->getUserDataContainer())
        return std::nullopt;
    const auto *ranges = dynamic_cast<const osg::UIntArray *>(
        met.drawable->getUserDataContainer()->getUserObject(contract::objects::Ranges));
    return ranges ? inRanges(*ranges, met.primitiveIndex) : std::nullopt;
}

/// A line of the scene as it is seen.
struct SeenLine
{
    double distancePx = 0; ///< from the point of the view
    osg::Vec3d nearest;    ///< the place on the line that is seen there
    double share = 0;      ///< of the line from its start to that place
    double pxPerM = 0;     ///< across the line, at that place
};

std::optional<SeenLine> see(const Sight &sight, osg::Vec3d from, osg::Vec3d to)
{
    const auto depth = [&](const osg::Vec3d &place) {
        return (osg::Vec4d(place, 1) * sight.toWindow).w();
    };
    // only what is before the eye has a place in the window
    const double wFrom = depth(from);
    const double wTo = depth(to);
    if (wFrom < NearPlane && wTo < NearPlane)
        return std::nullopt;
    const osg::Vec3d whole = to - from;
    double cutFrom = 0;
    double cutTo = 1;
    if (wFrom < NearPlane)
        cutFrom = (NearPlane - wFrom) / (wTo - wFrom);
    if (wTo < NearPlane)
        cutTo = (NearPlane - wFrom) / (wTo - wFrom);
    const osg::Vec3d start = from + whole * cutFrom;
    const osg::Vec3d end = from + whole * cutTo;

    const osg::Vec3d a = start * sight.toWindow;
    const osg::Vec3d b = end * sight.toWindow;
    const osg::Vec2d along(b.x() - a.x(), b.y() - a.y());
    const osg::Vec2d off(sight.at.x() - a.x(), sight.at.y() - a.y());
    const double length2 = along.length2();
    const double onScreen = length2 > 0 ? std::clamp(off * along / length2, 0.0, 1.0) : 0;
    SeenLine seen;
    seen.distancePx = (off - along * onScreen).length();
    // shares of the screen become shares of the line by the depths of the ends
    const double wA = depth(start);
    const double wB = depth(end);
    const double inScene = onScreen * wA / (onScreen * wA + (1 - onScreen) * wB);
    seen.share = cutFrom + (cutTo - cutFrom) * inScene;
    seen.nearest = from + whole * seen.share;
    osg::Vec3d across = (seen.nearest - sight.eye) ^ whole;
    if (across.normalize() > 0) {
        const osg::Vec3d here = seen.nearest * sight.toWindow;
        const osg::Vec3d aside = (seen.nearest + across) * sight.toWindow;
        seen.pxPerM = osg::Vec2d(aside.x() - here.x(), aside.y() - here.y()).length();
    }
    return seen;
}

/// The best object so far: the one with the lowest score.
struct Best
{
    std::optional<std::size_t> object;
    double score = std::numeric_limits<double>::infinity();

    void offer(std::size_t other, double otherScore)
    {
        if (otherScore < score) {
            object = other;
            score = otherScore;
        }
    }
};

bool isVisible(const Sight &sight, const osg::Vec3d &place)
{
    return (place - sight.eye).length() <= SeenShare * sight.surfaceM;
}

std::optional<std::size_t> siteNear(const SceneObjects &objects, const Sight &sight)
{
    Best best;
    for (std::size_t i = 0; i < objects.count(); ++i) {
        const osg::Vec3d foot = objects.place(i);
        const auto seen = see(sight, foot, foot + osg::Vec3d(0, 0, objects.sizeM(i)));
        if (seen && seen->distancePx <= SitePx * sight.unitPx && isVisible(sight, seen->nearest))
            best.offer(i, seen->distancePx);
    }
    return best.object;
}

std::optional<std::size_t> buildingNear(const SceneObjects &objects, const Sight &sight)
{
    Best best;
    for (std::size_t i = 0; i < objects.count(); ++i) {
        const auto seen = see(sight, objects.place(i), objects.place(i) + osg::Vec3d(0, 0, 1e-3));
        if (seen && seen->distancePx <= RoofPx * sight.unitPx && isVisible(sight, seen->nearest))
            best.offer(i, seen->distancePx);
    }
    return best.object;
}

/// Half the width of a Fresnel zone at a share of the link's length.
double halfWidthM(double middleM, double share)
{
    return 2 * middleM * std::sqrt(std::max(share * (1 - share), 0.0));
}

std::optional<std::size_t> linkNear(const SceneObjects &objects, const Sight &sight)
{
    Best line;
    Best zone;
    for (std::size_t i = 0; i < objects.count(); ++i) {
        const auto seen = see(sight, objects.place(i, 0), objects.place(i, 1));
        if (!seen || !isVisible(sight, seen->nearest))
            continue;
        if (seen->distancePx <= LinePx * sight.unitPx)
            line.offer(i, seen->distancePx);
        const double zonePx = seen->pxPerM * halfWidthM(objects.sizeM(i), seen->share);
        if (seen->distancePx <= zonePx)
            zone.offer(i, (seen->nearest - sight.eye).length());
    }
    return line.object ? line.object : zone.object;
}

/// A link that ends at the mast at a place: the one whose end is nearest.
std::optional<std::size_t> linkAt(const SceneObjects &objects, const osg::Vec3d &place)
{
    Best best;
    for (std::size_t i = 0; i < objects.count(); ++i) {
        for (const std::size_t end : {0U, 1U}) {
            const osg::Vec3d aside = objects.place(i, end) - place;
            if (osg::Vec2d(aside.x(), aside.y()).length() <= SameMastM)
                best.offer(i, aside.length());
        }
    }
    return best.object;
}

} // namespace

std::optional<std::size_t> objectAt(const SceneObjects &objects, const Sight &sight)
{
    for (const Intersection &met : sight.met) {
        const std::optional<std::size_t> object = objectOf(met);
        if (object && *object < objects.count())
            return object;
    }
    switch (objects.kind()) {
    case Kind::Site:
        return siteNear(objects, sight);
    case Kind::Building:
        return buildingNear(objects, sight);
    case Kind::Link:
        break;
    }
    if (const auto link = linkNear(objects, sight))
        return link;
    return sight.met.empty() ? std::nullopt
                             : linkAt(objects, sight.met.begin()->getWorldIntersectPoint());
}

} // namespace vlt::picking
