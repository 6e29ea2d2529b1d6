#pragma once

#include <osg/BoundingBox>
#include <osg/Matrix>
#include <osg/NodeVisitor>

#include <optional>
#include <vector>

namespace vlt::snapshot {

/// Visits a scene and finds the extents, in metres, of all that is drawn for an eye position. A
/// level of detail counts only if its range contains the eye's distance. Texts do not count.
class DrawnExtents : public osg::NodeVisitor
{
public:
    enum class Deferred {
        ByBound, ///< a node that makes its content when it is drawn counts with its bound
        Made     ///< such a node makes its content now
    };

    /// @param eye      in the scene's frame; nothing: every level counts
    /// @param toScene  transformation from the frame of the visited node to the scene's frame
    explicit DrawnExtents(Deferred deferred, const std::optional<osg::Vec3d> &eye = {},
                          const osg::Matrix &toScene = {});

    void apply(osg::Node &node) override;
    void apply(osg::Drawable &drawable) override;
    void apply(osg::Transform &transform) override;
    void apply(osg::Camera &camera) override;
    void apply(osg::LOD &levels) override;

    /// In the scene's frame; invalid if nothing is drawn.
    const osg::BoundingBoxd &extents() const { return m_extents; }

private:
    std::optional<osg::Vec3d> m_eye;
    std::vector<osg::Matrix> m_toScene;
    osg::BoundingBoxd m_extents;
};

} // namespace vlt::snapshot
