#include "city/RingArea.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vlt::city {

namespace {

using contract::Place;
using Ring = std::span<const Place>;

constexpr double MinAreaShare = 1e-9; ///< as a share of the square of a ring's extent
/// Rings with more vertices are compared by their signed area only, because the time for the other
/// one grows with the square of their number.
constexpr std::size_t MaxCrossedVertices = 2000;

/// Total width of a ring at a height, by the even-odd rule.
double widthAt(Ring ring, double y)
{
    std::vector<double> crossings;
    Place before = ring.back();
    for (const Place &at : ring) {
        if ((before.y <= y) != (at.y <= y))
            crossings.push_back(before.x + (y - before.y) / (at.y - before.y) * (at.x - before.x));
        before = at;
    }
    std::sort(crossings.begin(), crossings.end());
    double width = 0;
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
        width += crossings[i + 1] - crossings[i];
    return width;
}

/// Area of a ring that may cross itself, at least to a third: the widths at the middle of the slabs
/// between its vertices.
double crossedArea(Ring ring)
{
    if (ring.size() > MaxCrossedVertices)
        return 0;
    std::vector<double> heights;
    for (const Place &at : ring)
        heights.push_back(at.y);
    std::sort(heights.begin(), heights.end());
    double area = 0;
    for (std::size_t i = 0; i + 1 < heights.size(); ++i) {
        const double thickness = heights[i + 1] - heights[i];
        if (thickness <= 0)
            continue;
        for (const double share : {0.25, 0.75}) // a crossing may lie in the middle
            area += thickness / 2 * widthAt(ring, heights[i] + share * thickness);
    }
    return area;
}

} // namespace

bool hasArea(Ring ring)
{
    if (ring.size() < 3)
        return false;
    const Place origin = ring.front();
    double doubled = 0;
    double extent = 0;
    Place before{ring.back().x - origin.x, ring.back().y - origin.y};
    for (const Place &position : ring) {
        const Place at{position.x - origin.x, position.y - origin.y};
        doubled += before.x * at.y - before.y * at.x;
        extent = std::max({extent, std::abs(at.x), std::abs(at.y)});
        before = at;
    }
    const double least = MinAreaShare * extent * extent;
    if (std::abs(doubled) > least)
        return true;
    std::vector<Place> near;
    for (const Place &position : ring)
        near.push_back({position.x - origin.x, position.y - origin.y});
    return crossedArea(near) * 2 > least;
}

} // namespace vlt::city
