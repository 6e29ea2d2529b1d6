#include "snapshot/ViewPoint.h"

#include "snapshot/CityView.h"
#include "snapshot/DrawnExtents.h"
#include "snapshot/SceneEarth.h"
#include "snapshot/SiteLevels.h"
#include "snapshot/Subject.h"

#include <algorithm>
#include <cmath>

namespace vlt::snapshot {

namespace {

constexpr double SectorsMargin = 1.25; ///< larger, to show the neighbouring sites
constexpr double RangeMargin = 0.05;   ///< relative, to the distances where levels change

Result<ViewPoint> viewOfAll(osg::Node &scene, double aspect, const Axes &axes)
{
    DrawnExtents everything(DrawnExtents::Deferred::ByBound);
    scene.accept(everything);
    if (!everything.extents().valid())
        return Error{QStringLiteral("MESS_SNAP_EMPTY"), QStringLiteral("the scene is empty"), {}};
    osg::BoundingBoxd box = everything.extents();
    double distance = Subject(box, aspect, DefaultMargin, axes).distance(DefaultFieldDeg);
    // At a smaller distance, other levels with other extents may be drawn.
    constexpr int attempts = 4;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const Subject subject(box, aspect, DefaultMargin, axes);
        DrawnExtents drawn(DrawnExtents::Deferred::Made,
                           subject.from(distance, DefaultFieldDeg).eye);
        scene.accept(drawn);
        if (!drawn.extents().valid())
            return Error{
                QStringLiteral("MESS_SNAP_TOO_FAR"),
                QStringLiteral("the whole scene is only in view from beyond the apparition "
                               "distance: increase this distance or use --view symbolic"),
                {}};
        const double next =
            Subject(drawn.extents(), aspect, DefaultMargin, axes).distance(DefaultFieldDeg);
        if (next >= distance)
            break;
        box = drawn.extents();
        distance = next;
    }
    return Subject(box, aspect, DefaultMargin, axes).from(distance, DefaultFieldDeg);
}

Result<ViewPoint> viewOfLevel(const osg::Vec3d &centre, const Level &level, double aspect,
                              double margin)
{
    if (!level.extents.valid() || level.toM <= level.fromM)
        return Error{QStringLiteral("MESS_SNAP_NO_LEVEL"),
                     QStringLiteral("its sites do not have this representation"),
                     {}};
    const Subject subject(level.extents, aspect, margin);
    // Levels depend on the distance from the site's centre, which differs from that of the box.
    const double aside = (subject.centre() - centre).length();
    const double least = level.fromM > 0 ? level.fromM * (1 + RangeMargin) + aside : 0;
    const double most = level.toM * (1 - RangeMargin) - aside;
    double distance = subject.distance(DefaultFieldDeg);
    distance = std::max(std::min(distance, most), least);
    if (distance - aside >= level.toM || distance <= 0)
        distance = (level.fromM + level.toM) / 2;
    return subject.from(distance, subject.fieldDeg(distance));
}

Axes axesOf(osg::Node &scene, SceneView view, bool isCity)
{
    if (view == SceneView::All)
        return isCity ? steepAxes() : defaultAxes();
    const double northDeg = NorthAtPlace(frameOf(scene))({0, 0});
    return view == SceneView::Top ? downwardAxes(northDeg) : northwardAxes(northDeg);
}

} // namespace

Result<ViewPoint> findViewPoint(osg::Node &scene, SceneView view, double aspect)
{
    const std::optional<qint64> buildings = buildingCount(scene);
    if (view != SceneView::Symbolic && view != SceneView::Precise) {
        const Axes axes = axesOf(scene, view, buildings.has_value());
        return buildings ? viewOfCity(scene, *buildings, aspect, axes)
                         : viewOfAll(scene, aspect, axes);
    }
    const std::optional<SiteLevels> site = buildings ? std::nullopt : findMiddleSite(scene);
    if (!site)
        return Error{QStringLiteral("MESS_SNAP_NO_SITES"),
                     QStringLiteral("it contains no sites: only --view all is possible"),
                     {}};
    return view == SceneView::Symbolic
               ? viewOfLevel(site->centre, site->symbolic, aspect, SectorsMargin)
               : viewOfLevel(site->centre, site->precise, aspect, DefaultMargin);
}

} // namespace vlt::snapshot
