#include "snapshot/ViewPoint.h"

#include "snapshot/DrawnExtents.h"
#include "snapshot/SiteLevels.h"

#include <algorithm>
#include <cmath>

namespace vlt::snapshot {

namespace {

constexpr double UsualFieldDeg = 30;
constexpr double NarrowestFieldDeg = 0.5;
constexpr double WidestFieldDeg = 70;
constexpr double Margin = 1.08;        ///< room around what is to be seen
constexpr double SectorsMargin = 1.25; ///< more of it, for the neighbours
constexpr double RangeMargin = 0.05;   ///< kept away from the distances where levels change
constexpr double NearestM = 1;

/// The picture's axes: to the right, up, and from the target to the eye.
struct Axes
{
    osg::Vec3d right;
    osg::Vec3d up;
    osg::Vec3d back;
};

/// Looking from the south-west, a little above, as the wizard's preview does.
Axes usualAxes()
{
    Axes axes;
    axes.back = osg::Vec3d(-0.55, -0.77, 0.32);
    axes.back.normalize();
    axes.right = osg::Vec3d(osg::Z_AXIS) ^ axes.back;
    axes.right.normalize();
    axes.up = axes.back ^ axes.right;
    return axes;
}

/// A box as seen along the usual axes.
class Subject
{
public:
    Subject(const osg::BoundingBoxd &box, double aspect, double margin)
        : m_box(box)
        , m_aspect(aspect)
        , m_margin(margin)
    {}

    osg::Vec3d centre() const { return m_box.center(); }

    /// Distance from the centre at which the box fills a field of view.
    double distance(double fieldDeg) const
    {
        const double slope = std::tan(osg::DegreesToRadians(fieldDeg) / 2) / m_margin;
        double distance = NearestM;
        for (unsigned corner = 0; corner < 8; ++corner) {
            const osg::Vec3d at = m_box.corner(corner) - centre();
            distance = std::max(distance, at * m_axes.back + half(at) / slope);
        }
        return distance;
    }

    /// Field of view that the box fills from a distance.
    double fieldDeg(double distance) const
    {
        double slope = 0;
        for (unsigned corner = 0; corner < 8; ++corner) {
            const osg::Vec3d at = m_box.corner(corner) - centre();
            const double depth = std::max(distance - at * m_axes.back, NearestM);
            slope = std::max(slope, m_margin * half(at) / depth);
        }
        return std::clamp(osg::RadiansToDegrees(2 * std::atan(slope)), NarrowestFieldDeg,
                          WidestFieldDeg);
    }

    ViewPoint from(double distance, double field) const
    {
        return {centre() + m_axes.back * distance, centre(), field};
    }

private:
    /// Half the picture's height that a point needs beside the centre.
    double half(const osg::Vec3d &at) const
    {
        return std::max(std::abs(at * m_axes.up), std::abs(at * m_axes.right) / m_aspect);
    }

    osg::BoundingBoxd m_box;
    double m_aspect;
    double m_margin;
    Axes m_axes = usualAxes();
};

Result<ViewPoint> viewOfAll(osg::Node &scene, double aspect)
{
    DrawnExtents everything(DrawnExtents::Deferred::ByBound);
    scene.accept(everything);
    if (!everything.extents().valid())
        return Error{QStringLiteral("MESS_SNAP_EMPTY"), QStringLiteral("the scene is empty"), {}};
    osg::BoundingBoxd box = everything.extents();
    double distance = Subject(box, aspect, Margin).distance(UsualFieldDeg);
    // Nearer by, other levels of other extents may be drawn.
    constexpr int attempts = 4;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const Subject subject(box, aspect, Margin);
        DrawnExtents drawn(DrawnExtents::Deferred::Made, subject.from(distance, UsualFieldDeg).eye);
        scene.accept(drawn);
        if (!drawn.extents().valid())
            return Error{QStringLiteral("MESS_SNAP_TOO_FAR"),
                         QStringLiteral("all is in view only from where nothing is drawn any more; "
                                        "a longer apparition distance or --view symbolic helps"),
                         {}};
        const double next = Subject(drawn.extents(), aspect, Margin).distance(UsualFieldDeg);
        if (next >= distance)
            break;
        box = drawn.extents();
        distance = next;
    }
    return Subject(box, aspect, Margin).from(distance, UsualFieldDeg);
}

/// The part of a slender mast where its antennas are; all of anything else.
Level headOf(Level mast)
{
    constexpr double share = 0.55;
    osg::BoundingBoxd &box = mast.extents;
    const double height = box.zMax() - box.zMin();
    const double width = std::max(box.xMax() - box.xMin(), box.yMax() - box.yMin());
    if (box.valid() && width < share * height)
        box.zMin() = box.zMax() - share * height;
    return mast;
}

Result<ViewPoint> viewOfLevel(const osg::Vec3d &centre, const Level &level, double aspect,
                              double margin)
{
    if (!level.extents.valid() || level.toM <= level.fromM)
        return Error{QStringLiteral("MESS_SNAP_NO_LEVEL"),
                     QStringLiteral("its sites are never drawn that way"),
                     {}};
    const Subject subject(level.extents, aspect, margin);
    // Levels change by the distance from the site's centre, which is not quite the box's.
    const double aside = (subject.centre() - centre).length();
    const double least = level.fromM > 0 ? level.fromM * (1 + RangeMargin) + aside : 0;
    const double most = level.toM * (1 - RangeMargin) - aside;
    double distance = subject.distance(UsualFieldDeg);
    distance = std::max(std::min(distance, most), least);
    if (distance - aside >= level.toM || distance <= 0)
        distance = (level.fromM + level.toM) / 2;
    return subject.from(distance, subject.fieldDeg(distance));
}

} // namespace

Result<ViewPoint> findViewPoint(osg::Node &scene, SceneView view, double aspect)
{
    if (view == SceneView::All)
        return viewOfAll(scene, aspect);
    const std::optional<SiteLevels> site = findMiddleSite(scene);
    if (!site)
        return Error{QStringLiteral("MESS_SNAP_NO_SITES"),
                     QStringLiteral("there are no sites in it: only --view all can be made of it"),
                     {}};
    return view == SceneView::Symbolic
               ? viewOfLevel(site->centre, site->symbolic, aspect, SectorsMargin)
               : viewOfLevel(site->centre, headOf(site->precise), aspect, Margin);
}

} // namespace vlt::snapshot
