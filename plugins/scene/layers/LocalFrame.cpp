#include "layers/LocalFrame.h"

#include "layers/BadLayer.h"

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace vlt::scene {

namespace {

constexpr double DegreesPerRadian = 57.29577951308232;
constexpr double WholeTurnRad = 2 * 3.14159265358979324;

osg::Vec2d middleOf(const std::vector<osg::Vec2d> &places)
{
    osg::Vec2d least = places.empty() ? osg::Vec2d() : places.front();
    osg::Vec2d most = least;
    for (const osg::Vec2d &place : places) {
        least.set(std::min(least.x(), place.x()), std::min(least.y(), place.y()));
        most.set(std::max(most.x(), place.x()), std::max(most.y(), place.y()));
    }
    return (least + most) / 2;
}

/// Places on both sides of the date line get longitudes that go on beyond it.
///
/// @param wholeTurn  in the unit of the places
osg::Vec2d geographicMiddle(std::vector<osg::Vec2d> places, double wholeTurn)
{
    const auto [west, east] =
        std::minmax_element(places.begin(), places.end(),
                            [](const osg::Vec2d &a, const osg::Vec2d &b) { return a.x() < b.x(); });
    if (!places.empty() && east->x() - west->x() > wholeTurn / 2) {
        for (osg::Vec2d &place : places)
            place.x() += place.x() < 0 ? wholeTurn : 0;
    }
    osg::Vec2d middle = middleOf(places);
    if (middle.x() > wholeTurn / 2)
        middle.x() -= wholeTurn;
    return middle;
}

osg::Vec2d projectAround(const OGRSpatialReference &srs, std::vector<osg::Vec2d> &places)
{
    const double unitRad = srs.GetAngularUnits();
    const double unitDeg = unitRad * DegreesPerRadian;
    const osg::Vec2d middle = geographicMiddle(places, WholeTurnRad / unitRad);
    OGRSpatialReference plane;
    plane.SetProjCS("around the sites");
    plane.CopyGeogCSFrom(&srs);
    plane.SetAE(middle.y() * unitDeg, middle.x() * unitDeg, 0, 0);
    plane.SetLinearUnits(SRS_UL_METER, 1);
    plane.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRSpatialReference geographic(srs);
    geographic.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    const std::unique_ptr<OGRCoordinateTransformation> transformation(
        OGRCreateCoordinateTransformation(&geographic, &plane));
    if (!transformation)
        throw BadLayer("the coordinate system of the sites cannot be projected");
    for (osg::Vec2d &place : places) {
        if (!transformation->Transform(1, &place.x(), &place.y()))
            place.x() = std::numeric_limits<double>::quiet_NaN();
    }
    return middle;
}

/// As South African grids do.
bool countsWestAndSouth(const OGRSpatialReference &srs)
{
    OGRAxisOrientation first = OAO_Other;
    OGRAxisOrientation second = OAO_Other;
    srs.GetAxis(nullptr, 0, &first);
    srs.GetAxis(nullptr, 1, &second);
    return (first == OAO_West && second == OAO_South) || (first == OAO_South && second == OAO_West);
}

} // namespace

osg::Vec2d moveToLocalFrame(const OGRSpatialReference *srs, std::vector<osg::Vec2d> &places)
{
    if (srs && srs->IsGeographic())
        return projectAround(*srs, places);
    if (srs && !srs->IsProjected() && !srs->IsLocal())
        throw BadLayer("the coordinate system of the sites is neither projected nor geographic");
    double unitM = srs ? srs->GetLinearUnits() : 1;
    if (srs && countsWestAndSouth(*srs))
        unitM = -unitM;
    const osg::Vec2d middle = middleOf(places);
    for (osg::Vec2d &place : places)
        place = (place - middle) * unitM;
    return middle;
}

} // namespace vlt::scene
