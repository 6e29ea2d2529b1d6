#include "localframe/LocalFrame.h"

#include "contract/BadLayer.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace vlt::localframe {

using contract::BadLayer;

namespace {

constexpr double MaxDistanceM = 3e7; ///< from the median; more than half the earth's circumference
constexpr double DegreesPerRadian = 57.29577951308232;
constexpr double WholeTurnRad = 2 * 3.14159265358979324;

Place middleOf(const std::vector<Place> &positions)
{
    Place least = positions.empty() ? Place() : positions.front();
    Place most = least;
    for (const Place &position : positions) {
        least = {std::min(least.x, position.x), std::min(least.y, position.y)};
        most = {std::max(most.x, position.x), std::max(most.y, position.y)};
    }
    return {(least.x + most.x) / 2, (least.y + most.y) / 2};
}

/// Centre of positions in a geographic system. If they are on both sides of the date line, western
/// longitudes are increased by 360 degrees first.
///
/// @param wholeTurn  360 degrees in the unit of the positions
Place geographicMiddle(std::vector<Place> positions, double wholeTurn)
{
    const auto [west, east] =
        std::minmax_element(positions.begin(), positions.end(),
                            [](const Place &a, const Place &b) { return a.x < b.x; });
    if (!positions.empty() && east->x - west->x > wholeTurn / 2) {
        for (Place &position : positions)
            position.x += position.x < 0 ? wholeTurn : 0;
    }
    Place middle = middleOf(positions);
    if (middle.x > wholeTurn / 2)
        middle.x -= wholeTurn;
    return middle;
}

Place transformed(OGRCoordinateTransformation &transformation, Place position)
{
    if (!transformation.Transform(1, &position.x, &position.y))
        position = {NAN, NAN};
    return position;
}

/// Whether the axes of a system point to the west and south, as in South African grids.
bool countsWestAndSouth(const OGRSpatialReference &srs)
{
    OGRAxisOrientation first = OAO_Other;
    OGRAxisOrientation second = OAO_Other;
    srs.GetAxis(nullptr, 0, &first);
    srs.GetAxis(nullptr, 1, &second);
    return (first == OAO_West && second == OAO_South) || (first == OAO_South && second == OAO_West);
}

double medianOf(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The positions that determine the centre of a frame. A mistyped position far outside the earth is
/// left out, because a frame that included it would be too far from all others.
std::vector<Place> likely(const std::vector<Place> &positions, double unitM)
{
    if (positions.empty())
        return {};
    std::vector<double> x;
    std::vector<double> y;
    for (const Place &position : positions) {
        x.push_back(position.x);
        y.push_back(position.y);
    }
    const Place midst{medianOf(std::move(x)), medianOf(std::move(y))};
    std::vector<Place> near;
    std::copy_if(
        positions.begin(), positions.end(), std::back_inserter(near), [&](const Place &position) {
            return std::hypot(position.x - midst.x, position.y - midst.y) * unitM <= MaxDistanceM;
        });
    return near;
}

} // namespace

LocalFrame::LocalFrame(const OGRSpatialReference *srs, const std::vector<Place> &positions)
{
    if (srs && srs->IsGeographic()) {
        projectAround(*srs, positions);
        return;
    }
    if (srs && !srs->IsProjected() && !srs->IsLocal())
        throw BadLayer("MESS_SCENE_NO_FRAME");
    m_unitM = srs ? srs->GetLinearUnits() : 1;
    if (srs && countsWestAndSouth(*srs))
        m_unitM = -m_unitM;
    m_centre = middleOf(positions);
}

void LocalFrame::projectAround(const OGRSpatialReference &srs, const std::vector<Place> &positions)
{
    const double unitRad = srs.GetAngularUnits();
    const double unitDeg = unitRad * DegreesPerRadian;
    m_centre = geographicMiddle(positions, WholeTurnRad / unitRad);
    OGRSpatialReference plane;
    plane.SetProjCS("around the places");
    plane.CopyGeogCSFrom(&srs);
    plane.SetAE(m_centre.y * unitDeg, m_centre.x * unitDeg, 0, 0);
    plane.SetLinearUnits(SRS_UL_METER, 1);
    plane.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRSpatialReference geographic(srs);
    geographic.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    m_toPlane.reset(OGRCreateCoordinateTransformation(&geographic, &plane));
    m_fromPlane.reset(OGRCreateCoordinateTransformation(&plane, &geographic));
    if (!m_toPlane || !m_fromPlane)
        throw BadLayer("MESS_SCENE_NO_PROJECTION");
}

Place LocalFrame::toFrame(const Place &position) const
{
    if (m_toPlane)
        return transformed(*m_toPlane, position);
    return {(position.x - m_centre.x) * m_unitM, (position.y - m_centre.y) * m_unitM};
}

Place LocalFrame::fromFrame(const Place &position) const
{
    if (m_fromPlane)
        return transformed(*m_fromPlane, position);
    return {position.x / m_unitM + m_centre.x, position.y / m_unitM + m_centre.y};
}

std::shared_ptr<const LocalFrame> moveToFrame(const OGRSpatialReference *srs,
                                              std::vector<Place> &positions)
{
    const double unitM = srs && srs->IsProjected() ? srs->GetLinearUnits() : 1;
    auto frame = std::make_shared<const LocalFrame>(srs, likely(positions, unitM));
    for (Place &position : positions) {
        position = frame->toFrame(position);
        if (!(std::hypot(position.x, position.y) <= MaxDistanceM))
            position.x = std::numeric_limits<double>::quiet_NaN();
    }
    return frame;
}

} // namespace vlt::localframe
