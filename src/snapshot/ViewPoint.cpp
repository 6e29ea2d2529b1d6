#include "snapshot/ViewPoint.h"

#include "snapshot/CityView.h"
#include "snapshot/DrawnExtents.h"
#include "snapshot/SiteLevels.h"
#include "snapshot/Subject.h"

#include <algorithm>
#include <cmath>

namespace vlt::snapshot {

namespace {

constexpr double SectorsMargin = 1.25; ///< larger, to show the neighbouring sites
constexpr double RangeMargin = 0.05;   ///< relative, to the distances where levels change

Result<ViewPoint> viewOfAll(osg::Node &scene, double aspect)
{
    DrawnExtents everything(DrawnExtents::Deferred::ByBound);
    scene.accept(everything);
    if (!everything.extents().valid())
        return Error{QStringLiteral("MESS_SNAP_EMPTY"), QStringLiteral("the scene is empty"), {}};
    osg::BoundingBoxd box = everything.extents();
    double distance = Subject(box, aspect).distance(DefaultFieldDeg);
    // At a smaller distance, other levels with other extents may be drawn.
    constexpr int attempts = 4;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const Subject subject(box, aspect);
        DrawnExtents drawn(DrawnExtents::Deferred::Made,
                           subject.from(distance, DefaultFieldDeg).eye);
        scene.accept(drawn);
        if (!drawn.extents().valid())
            return Error{
                QStringLiteral("MESS_SNAP_TOO_FAR"),
                QStringLiteral("the whole scene is only in view from beyond the apparition "
                               "distance: increase this distance or use --view symbolic"),
                {}};
        const double next = Subject(drawn.extents(), aspect).distance(DefaultFieldDeg);
        if (next >= distance)
            break;
        box = drawn.extents();
        distance = next;
    }
    return Subject(box, aspect).from(distance, DefaultFieldDeg);
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

} // namespace

Result<ViewPoint> findViewPoint(osg::Node &scene, SceneView view, double aspect)
{
    const std::optional<qint64> buildings = buildingCount(scene);
    if (view == SceneView::All)
        return buildings ? viewOfCity(scene, *buildings, aspect) : viewOfAll(scene, aspect);
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
