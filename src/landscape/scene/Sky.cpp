#include "landscape/scene/Sky.h"

#include "landscape/scene/Colors.h"

#include <osg/Depth>
#include <osg/Geometry>
#include <osg/MatrixTransform>
#include <osg/Projection>
#include <osgUtil/CullVisitor>

#include <algorithm>
#include <array>
#include <cmath>

namespace vlt::landscape {

namespace {

constexpr int BehindAll = -1000; ///< render bin

constexpr double MaxSlopeDeg = 80; ///< from the middle of the picture; the rest is out of view

/// Moves the bands of the sky to the horizon of the camera that draws them.
class LevelWithHorizon : public osg::NodeCallback
{
public:
    explicit LevelWithHorizon(osg::Geometry &sky) : m_sky(sky) {}

    void operator()(osg::Node *node, osg::NodeVisitor *visitor) override
    {
        if (osgUtil::CullVisitor *culling = visitor->asCullVisitor())
            level(*culling->getModelViewMatrix(), *culling->getProjectionMatrix());
        traverse(node, visitor);
    }

private:
    void level(const osg::Matrixd &view, const osg::Matrixd &projection)
    {
        const double up = -view(2, 2); // z of the direction of the camera, in the scene
        const double pitchDeg = osg::RadiansToDegrees(std::asin(std::clamp(up, -1.0, 1.0)));
        auto &corners = static_cast<osg::Vec3Array &>(*m_sky.getVertexArray());
        for (std::size_t i = 0; i < SkyBands.size(); ++i) {
            const double slopeDeg =
                std::clamp(SkyBands[i].elevationDeg - pitchDeg, -MaxSlopeDeg, MaxSlopeDeg);
            const double y = std::tan(osg::DegreesToRadians(slopeDeg)) * projection(1, 1);
            for (const std::size_t corner : {2 * i, 2 * i + 1})
                corners[corner].y() = static_cast<float>(y);
        }
        // the picture is filled, however narrow the bands are
        for (const std::size_t side : {0, 1}) {
            corners[side].y() = std::min(corners[side].y(), -1.0F);
            float &top = corners[2 * SkyBands.size() - 2 + side].y();
            top = std::max(top, 1.0F);
        }
        corners.dirty();
    }

    osg::Geometry &m_sky;
};

} // namespace

osg::ref_ptr<osg::Node> makeSky()
{
    osg::ref_ptr<osg::Geometry> sky = new osg::Geometry;
    const osg::ref_ptr<osg::Vec3Array> corners = new osg::Vec3Array;
    const osg::ref_ptr<osg::Vec4Array> colors = new osg::Vec4Array(osg::Array::BIND_PER_VERTEX);
    for (const SkyBand &band : SkyBands) {
        for (const float x : {-1.0F, 1.0F}) {
            corners->push_back(osg::Vec3(x, 0, 0));
            colors->push_back(colorOf(band.rgb));
        }
    }
    sky->setVertexArray(corners);
    sky->setColorArray(colors);
    sky->addPrimitiveSet(
        new osg::DrawArrays(GL_TRIANGLE_STRIP, 0, static_cast<int>(corners->size())));
    sky->setCullingActive(false);
    sky->setDataVariance(osg::Object::DYNAMIC);
    sky->setUseDisplayList(false);

    osg::ref_ptr<osg::MatrixTransform> place = new osg::MatrixTransform;
    place->setReferenceFrame(osg::Transform::ABSOLUTE_RF);
    place->setCullingActive(false);
    place->addChild(sky);
    osg::ref_ptr<osg::Projection> projection =
        new osg::Projection(osg::Matrix::ortho2D(-1, 1, -1, 1));
    projection->setCullingActive(false);
    projection->addChild(place);

    osg::ref_ptr<osg::Group> group = new osg::Group;
    group->setName("sky");
    group->addChild(projection);
    group->setCullingActive(false);
    group->setCullCallback(new LevelWithHorizon(*sky));
    osg::StateSet *state = group->getOrCreateStateSet();
    state->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    state->setAttributeAndModes(new osg::Depth(osg::Depth::ALWAYS, 0, 1, false));
    state->setRenderBinDetails(BehindAll, "RenderBin");
    return group;
}

} // namespace vlt::landscape
