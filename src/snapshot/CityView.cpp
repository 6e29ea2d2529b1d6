#include "snapshot/CityView.h"

#include "contract/SceneFactKeys.h"
#include "snapshot/DrawnExtents.h"
#include "snapshot/SceneSource.h"

#include <QString>

#include <osg/LOD>
#include <osg/Transform>

#include <algorithm>

namespace vlt::snapshot {

namespace {

using Deferred = DrawnExtents::Deferred;

/// For towns with more buildings the bounds of the tiles are used, because it would take too long
/// to make all buildings only to measure them.
constexpr qint64 MaxMeasured = 20000;

osg::BoundingBoxd extentsFrom(osg::Node &scene, Deferred deferred,
                              const std::optional<osg::Vec3d> &eye)
{
    DrawnExtents drawn(deferred, eye);
    scene.accept(drawn);
    return drawn.extents();
}

/// Finds out whether a part of the scene's core is not drawn because it is too far from the eye.
class HiddenParts : public osg::NodeVisitor
{
public:
    HiddenParts(const osg::Vec3d &eye, const osg::BoundingBoxd &core)
        : osg::NodeVisitor(TRAVERSE_ALL_CHILDREN)
        , m_eye(eye)
        , m_core(core)
    {}

    bool found() const { return m_found; }

    void apply(osg::LOD &levels) override
    {
        if (levels.getRangeMode() == osg::LOD::DISTANCE_FROM_EYE_POINT) {
            const osg::Matrixd toScene = osg::computeLocalToWorld(getNodePath());
            const osg::Vec3d centre = levels.getCenter() * toScene;
            if (centre.x() < m_core.xMin() || centre.x() > m_core.xMax() ||
                centre.y() < m_core.yMin() || centre.y() > m_core.yMax())
                return;
            const double distance = (centre - m_eye).length();
            double reach = 0;
            for (unsigned level = 0; level < levels.getNumRanges(); ++level)
                reach = std::max<double>(reach, levels.getMaxRange(level));
            m_found = m_found || distance >= reach;
        }
        if (!m_found)
            traverse(levels);
    }

private:
    osg::Vec3d m_eye;
    osg::BoundingBoxd m_core;
    bool m_found = false;
};

bool isWhole(osg::Node &scene, const osg::BoundingBoxd &core, const osg::Vec3d &eye)
{
    HiddenParts hidden(eye, core);
    scene.accept(hidden);
    return !hidden.found();
}

bool reachesMiddle(const osg::BoundingBoxd &drawn, const osg::Vec3d &middle)
{
    return drawn.valid() && drawn.xMin() <= middle.x() && drawn.xMax() >= middle.x() &&
           drawn.yMin() <= middle.y() && drawn.yMax() >= middle.y();
}

} // namespace

std::optional<qint64> buildingCount(const osg::Node &scene)
{
    const std::optional<QString> count = sceneFact(scene, contract::facts::Buildings);
    return count ? std::optional(count->toLongLong()) : std::nullopt;
}

Result<ViewPoint> viewOfCity(osg::Node &scene, qint64 buildings, double aspect, const Axes &axes)
{
    const Deferred deferred = buildings > MaxMeasured ? Deferred::ByBound : Deferred::Made;
    osg::BoundingBoxd city = extentsFrom(scene, deferred, std::nullopt);
    if (!city.valid())
        return Error{QStringLiteral("MESS_SNAP_EMPTY"), QStringLiteral("the scene is empty"), {}};
    if (const auto core = coreOf(scene))
        city.set(core->xMin(), core->yMin(), city.zMin(), core->xMax(), core->yMax(), city.zMax());
    const Subject subject(city, aspect, DefaultMargin, axes);
    constexpr double fieldStepDeg = 8;
    double field = DefaultFieldDeg;
    while (field <= MaxFieldDeg) {
        const ViewPoint view = subject.from(subject.distance(field), field);
        if (isWhole(scene, city, view.eye))
            return view;
        field += fieldStepDeg;
    }
    constexpr double nearer = 0.85;
    constexpr double beyondMiddle = 0.6; // of the distance: shows buildings behind the centre
    constexpr double nearestM = 10;
    double distance = subject.distance(DefaultFieldDeg);
    while (distance > nearestM) {
        const ViewPoint view = subject.from(distance, DefaultFieldDeg);
        if (reachesMiddle(extentsFrom(scene, deferred, view.eye), view.target))
            return subject.from(distance * beyondMiddle, DefaultFieldDeg);
        distance *= nearer;
    }
    return Error{QStringLiteral("MESS_SNAP_TOO_FAR"),
                 QStringLiteral("the whole scene is only in view from beyond the apparition "
                                "distance: increase this distance or use --view symbolic"),
                 {}};
}

} // namespace vlt::snapshot
