#pragma once

#include "landscape/Ground.h"

#include <osg/Camera>

#include <functional>
#include <future>

/// Makes the ground around a point of view, in the frame of the scene. It is called on another
/// thread, never twice at once; first for a rough ground, which is made at once.
using GroundMaker = std::function<osg::ref_ptr<osg::Node>(
    const osg::Vec3d &eye, const osg::Vec3d &target, vlt::landscape::Detail detail)>;

/// Sky, light and ground around the scene of a camera, as further children of the camera. The
/// ground follows the eye: it is made again when the eye has moved far, beside the interface.
class Surroundings
{
public:
    /// Nodes of the surroundings have only these bits, so that visitors can pass over them.
    static constexpr osg::Node::NodeMask Mask = 0x2;

    explicit Surroundings(osg::Camera &camera) : m_camera(camera) {}

    /// Sets the ground; an empty function shows no surroundings at all. The former ground stays
    /// until the new one is made.
    void show(GroundMaker maker);

    /// Puts the surroundings before the scene, after the viewer has changed the camera's children.
    void attach();

    /// Starts to make the ground if that is due, or takes what was made.
    ///
    /// @return  whether the picture has changed
    bool update(const osg::Vec3d &eye, const osg::Vec3d &target);

    /// The ground that is shown; null: none.
    osg::Node *ground() const { return m_ground.get(); }

    /// Whether a ground is being made or due.
    bool isBusy() const { return m_job.valid() || m_coming; }

private:
    void start(const osg::Vec3d &eye, const osg::Vec3d &target);
    bool takeLevel();
    bool isDue(const osg::Vec3d &eye, const osg::Vec3d &target) const;

    osg::Camera &m_camera;
    osg::ref_ptr<osg::Group> m_group; ///< sky, lights and ground
    osg::ref_ptr<osg::Node> m_ground;
    osg::ref_ptr<osg::Group> m_coming; ///< a finished ground that the renderer does not have yet
    unsigned m_uploaded = 0;           ///< levels of it that the renderer has
    std::shared_ptr<const GroundMaker> m_maker;
    std::shared_ptr<const GroundMaker> m_madeBy;                    ///< of the last job
    osg::Vec3d m_madeFor;                                           ///< target of the last job
    double m_madeFromM = 0;                                         ///< its distance from the eye
    vlt::landscape::Detail m_detail = vlt::landscape::Detail::Full; ///< of the last job
    std::future<osg::ref_ptr<osg::Node>> m_job;
};
