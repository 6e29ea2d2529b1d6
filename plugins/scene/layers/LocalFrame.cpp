#include "layers/LocalFrame.h"

#include "layers/BadLayer.h"

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace vlt::scene {

namespace {

constexpr double WholeTurnDeg = 360;

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
osg::Vec2d geographicMiddle(std::vector<osg::Vec2d> places)
{
    const auto [west, east] =
        std::minmax_element(places.begin(), places.end(),
                            [](const osg::Vec2d &a, const osg::Vec2d &b) { return a.x() < b.x(); });
    if (!places.empty() && east->x() - west->x() > WholeTurnDeg / 2) {
        for (osg::Vec2d &place : places)
            place.x() += place.x() < 0 ? WholeTurnDeg : 0;
    }
    osg::Vec2d middle = middleOf(places);
    if (middle.x() > WholeTurnDeg / 2)
        middle.x() -= WholeTurnDeg;
    return middle;
}

osg::Vec2d projectAround(const OGRSpatialReference &srs, std::vector<osg::Vec2d> &places)
{
    const osg::Vec2d middle = geographicMiddle(places);
    OGRSpatialReference plane;
    plane.SetProjCS("around the sites");
    plane.CopyGeogCSFrom(&srs);
    plane.SetAE(middle.y(), middle.x(), 0, 0);
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

} // namespace

osg::Vec2d moveToLocalFrame(const OGRSpatialReference *srs, std::vector<osg::Vec2d> &places)
{
    if (srs && srs->IsGeographic())
        return projectAround(*srs, places);
    if (srs && !srs->IsProjected() && !srs->IsLocal())
        throw BadLayer("the coordinate system of the sites is neither projected nor geographic");
    const double unitM = srs ? srs->GetLinearUnits() : 1;
    const osg::Vec2d middle = middleOf(places);
    for (osg::Vec2d &place : places)
        place = (place - middle) * unitM;
    return middle;
}

} // namespace vlt::scene
