#pragma once

#include <osg/BoundingBox>
#include <osg/Matrix>
#include <osg/NodeVisitor>

#include <optional>
#include <vector>

namespace vlt::snapshot {

/// Walks a scene and finds the extents of what is drawn for a certain eye: of levels of detail only
/// those count whose range holds the eye's distance. Texts do not count. Metres.
class DrawnExtents : public osg::NodeVisitor
{
public:
    enum class Deferred {
        ByBound, ///< a node that makes its content when drawn counts with its bound
        Made     ///< and here it makes its content now
    };

    /// @param eye      in the scene's frame; without one every level counts
    /// @param toScene  from the frame of the node that is walked to the scene's
    explicit DrawnExtents(Deferred deferred, const std::optional<osg::Vec3d> &eye = {},
                          const osg::Matrix &toScene = {});

    void apply(osg::Node &node) override;
    void apply(osg::Drawable &drawable) override;
    void apply(osg::Transform &transform) override;
    void apply(osg::Camera &camera) override;
    void apply(osg::LOD &levels) override;

    /// In the scene's frame; invalid where nothing is drawn.
    const osg::BoundingBoxd &extents() const { return m_extents; }

private:
    std::optional<osg::Vec3d> m_eye;
    std::vector<osg::Matrix> m_toScene;
    osg::BoundingBoxd m_extents;
};

} // namespace vlt::snapshot
