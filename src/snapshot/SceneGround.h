#pragma once

#include "landscape/Terrain.h"
#include "snapshot/SceneSource.h"

#include <QString>

#include <osg/Node>

#include <functional>
#include <memory>

namespace vlt::snapshot {

/// The ground under a scene: its terrain, or a plane with a metric grid. Not for two threads at
/// once.
class SceneGround
{
public:
    /// Opens the terrain that the scene itself has, else another one.
    ///
    /// @param terrain   path; may be empty
    /// @param isChosen  `terrain` is chosen for the scene, and comes before the scene's own
    SceneGround(const osg::Node &scene, const QString &terrain, bool isChosen);

    /// The reason why a terrain is not shown, as for language::readerText(); empty if it is shown
    /// or there is none.
    const QString &problem() const { return m_problem; }

    /// The ground around a point of view, in the scene's frame.
    osg::ref_ptr<osg::Node> around(const osg::Vec3d &eye, const osg::Vec3d &target);

private:
    std::unique_ptr<landscape::Terrain> m_terrain;
    double m_heightM = 0; ///< of the plane
    QString m_problem;
};

/// A function that makes the ground under a scene around a point of view, with the terrain of the
/// scene, else another one. Not for two threads at once.
///
/// @param terrain  path; may be empty
std::function<osg::ref_ptr<osg::Node>(const osg::Vec3d &eye, const osg::Vec3d &target)>
groundUnder(const Scene &scene, const QString &terrain);

} // namespace vlt::snapshot
