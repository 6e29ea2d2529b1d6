#pragma once

#include "landscape/Ground.h"
#include "snapshot/SceneSource.h"

#include <QString>
#include <QStringList>

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

    /// Lays a local image with a place on the earth over the ground.
    void drape(const QString &image);

    /// Shows a terrain or an image only, no plane without these.
    void leaveOutPlane() { m_hasPlane = false; }

    /// The reasons why a terrain or an image is not shown, as for language::readerText(); known
    /// after the ground is made.
    const QStringList &problems() const { return m_problems; }

    /// The ground around a point of view, in the scene's frame.
    osg::ref_ptr<osg::Node> around(const osg::Vec3d &eye, const osg::Vec3d &target,
                                   landscape::Detail detail = landscape::Detail::Full);

private:
    void report(std::string text);

    std::optional<landscape::FrameOnEarth> m_frame;
    std::unique_ptr<landscape::Terrain> m_terrain;
    std::unique_ptr<landscape::Imagery> m_imagery;
    double m_heightM = 0; ///< of the plane
    bool m_hasPlane = true;
    QStringList m_problems;
};

/// A function that makes the ground under a scene around a point of view, with the terrain of the
/// scene, else another one. Not for two threads at once.
///
/// @param terrain  path; may be empty
std::function<osg::ref_ptr<osg::Node>(const osg::Vec3d &eye, const osg::Vec3d &target,
                                      landscape::Detail detail)>
groundUnder(const Scene &scene, const QString &terrain);

} // namespace vlt::snapshot
