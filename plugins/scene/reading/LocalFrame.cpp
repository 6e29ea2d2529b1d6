#include "plugins/scene/reading/LocalFrame.h"

#include "plugins/scene/reading/BadLayer.h"

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr double DegreesPerRadian = 57.29577951308232;
constexpr double WholeTurnRad = 2 * 3.14159265358979324;

osg::Vec2d middleOf(const std::vector<osg::Vec2d> &positions)
{
    osg::Vec2d least = positions.empty() ? osg::Vec2d() : positions.front();
    osg::Vec2d most = least;
    for (const osg::Vec2d &position : positions) {
        least.set(std::min(least.x(), position.x()), std::min(least.y(), position.y()));
        most.set(std::max(most.x(), position.x()), std::max(most.y(), position.y()));
    }
    return (least + most) / 2;
}

/// Centre of positions in a geographic system. If they are on both sides of the date line, western
/// longitudes are increased by 360 degrees first.
///
/// @param wholeTurn  360 degrees in the unit of the positions
osg::Vec2d geographicMiddle(std::vector<osg::Vec2d> positions, double wholeTurn)
{
    const auto [west, east] =
        std::minmax_element(positions.begin(), positions.end(),
                            [](const osg::Vec2d &a, const osg::Vec2d &b) { return a.x() < b.x(); });
    if (!positions.empty() && east->x() - west->x() > wholeTurn / 2) {
        for (osg::Vec2d &position : positions)
            position.x() += position.x() < 0 ? wholeTurn : 0;
    }
    osg::Vec2d middle = middleOf(positions);
    if (middle.x() > wholeTurn / 2)
        middle.x() -= wholeTurn;
    return middle;
}

osg::Vec2d transformed(OGRCoordinateTransformation &transformation, osg::Vec2d position)
{
    if (!transformation.Transform(1, &position.x(), &position.y()))
        position.set(NAN, NAN);
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

} // namespace

LocalFrame::LocalFrame(const OGRSpatialReference *srs, const std::vector<osg::Vec2d> &positions)
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

void LocalFrame::projectAround(const OGRSpatialReference &srs,
                               const std::vector<osg::Vec2d> &positions)
{
    const double unitRad = srs.GetAngularUnits();
    const double unitDeg = unitRad * DegreesPerRadian;
    m_centre = geographicMiddle(positions, WholeTurnRad / unitRad);
    OGRSpatialReference plane;
    plane.SetProjCS("around the places");
    plane.CopyGeogCSFrom(&srs);
    plane.SetAE(m_centre.y() * unitDeg, m_centre.x() * unitDeg, 0, 0);
    plane.SetLinearUnits(SRS_UL_METER, 1);
    plane.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRSpatialReference geographic(srs);
    geographic.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    m_toPlane.reset(OGRCreateCoordinateTransformation(&geographic, &plane));
    m_fromPlane.reset(OGRCreateCoordinateTransformation(&plane, &geographic));
    if (!m_toPlane || !m_fromPlane)
        throw BadLayer("MESS_SCENE_NO_PROJECTION");
}

osg::Vec2d LocalFrame::toFrame(const osg::Vec2d &position) const
{
    return m_toPlane ? transformed(*m_toPlane, position) : (position - m_centre) * m_unitM;
}

osg::Vec2d LocalFrame::fromFrame(const osg::Vec2d &position) const
{
    return m_fromPlane ? transformed(*m_fromPlane, position) : position / m_unitM + m_centre;
}

} // namespace vlt::scene
