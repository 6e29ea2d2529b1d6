#pragma once

#include <osg/NodeCallback>
#include <osg/StateSet>

#include <mutex>

namespace vlt::scene {

/// Cull callback that gives the shaders below a node the height of the picture in pixels as
/// `uniform float pictureHeight`: what has a constant size on the screen needs it.
///
/// Such sizes are for a picture of 720 pixels or less; in a higher one they grow with it.
class PictureHeight : public osg::NodeCallback
{
public:
    void operator()(osg::Node *node, osg::NodeVisitor *visitor) override;

private:
    osg::ref_ptr<osg::StateSet> stateFor(double heightPx);

    std::mutex m_guard;
    osg::ref_ptr<osg::StateSet> m_state;
    double m_heightPx = 0;
};

/// Declares `pictureHeight`, and `float unit()`, the factor of sizes in pixels, in a shader.
inline constexpr char PictureUnitShader[] =
    "uniform float pictureHeight;\n"
    "float unit() { return clamp(pictureHeight / 720.0, 1.0, 4.0); }\n";

/// The same factor for a picture of this height.
double pictureUnit(double heightPx);

} // namespace vlt::scene
