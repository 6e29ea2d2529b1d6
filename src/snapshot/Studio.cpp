#include "snapshot/Studio.h"

#include <osg/Depth>
#include <osg/Geometry>
#include <osg/LightModel>
#include <osg/LightSource>
#include <osg/MatrixTransform>
#include <osg/Projection>

#include <utility>

namespace vlt::snapshot {

namespace {

const osg::Vec4 SkyTop(0.52F, 0.68F, 0.86F, 1);
const osg::Vec4 SkyBottom(0.93F, 0.955F, 0.975F, 1);
constexpr int BehindAll = -1000; ///< render bin

/// Parallel light from `direction`.
osg::ref_ptr<osg::LightSource> makeLight(int number, const osg::Vec3 &direction,
                                         const osg::Vec4 &color, const osg::Vec4 &highlight)
{
    osg::ref_ptr<osg::LightSource> source = new osg::LightSource;
    osg::ref_ptr<osg::Light> light = new osg::Light(static_cast<unsigned>(number));
    light->setPosition(osg::Vec4(direction, 0));
    light->setAmbient(osg::Vec4(0, 0, 0, 1));
    light->setDiffuse(color);
    light->setSpecular(highlight);
    source->setLight(light);
    return source;
}

} // namespace

osg::ref_ptr<osg::Group> underLight(osg::Node *scene)
{
    const osg::Vec4 none(0, 0, 0, 1);
    osg::ref_ptr<osg::Group> group = new osg::Group;
    const osg::ref_ptr<osg::LightSource> head =
        makeLight(0, osg::Vec3(0, 0, 1), osg::Vec4(0.26F, 0.26F, 0.27F, 1), none);
    head->setReferenceFrame(osg::LightSource::ABSOLUTE_RF);
    const osg::ref_ptr<osg::LightSource> sun =
        makeLight(1, osg::Vec3(-0.85F, -0.35F, 0.6F), osg::Vec4(0.56F, 0.54F, 0.50F, 1),
                  osg::Vec4(0.8F, 0.8F, 0.75F, 1));
    const osg::ref_ptr<osg::LightSource> sky =
        makeLight(2, osg::Vec3(0, 0, 1), osg::Vec4(0.14F, 0.16F, 0.19F, 1), none);

    osg::StateSet *state = group->getOrCreateStateSet();
    for (const auto &light : {head, sun, sky}) {
        group->addChild(light);
        light->setStateSetModes(*state, osg::StateAttribute::ON);
    }
    osg::ref_ptr<osg::LightModel> model = new osg::LightModel;
    model->setAmbientIntensity(osg::Vec4(0.34F, 0.36F, 0.40F, 1));
    state->setAttributeAndModes(model);
    state->setMode(GL_LIGHTING, osg::StateAttribute::ON);
    state->setMode(GL_NORMALIZE, osg::StateAttribute::ON);
    group->addChild(scene);
    return group;
}

osg::ref_ptr<osg::Node> makeSky()
{
    osg::ref_ptr<osg::Geometry> quad = new osg::Geometry;
    const osg::ref_ptr<osg::Vec3Array> corners = new osg::Vec3Array;
    const osg::ref_ptr<osg::Vec4Array> colors = new osg::Vec4Array(osg::Array::BIND_PER_VERTEX);
    for (const auto &[x, y] : {std::pair(0, 0), {1, 0}, {1, 1}, {0, 1}}) {
        corners->push_back(osg::Vec3(static_cast<float>(x), static_cast<float>(y), 0));
        colors->push_back(y == 0 ? SkyBottom : SkyTop);
    }
    quad->setVertexArray(corners);
    quad->setColorArray(colors);
    quad->addPrimitiveSet(new osg::DrawArrays(GL_TRIANGLE_FAN, 0, 4));
    quad->setCullingActive(false);

    osg::ref_ptr<osg::MatrixTransform> place = new osg::MatrixTransform;
    place->setReferenceFrame(osg::Transform::ABSOLUTE_RF);
    place->setCullingActive(false);
    place->addChild(quad);
    osg::ref_ptr<osg::Projection> projection =
        new osg::Projection(osg::Matrix::ortho2D(0, 1, 0, 1));
    projection->setCullingActive(false);
    projection->addChild(place);

    osg::StateSet *state = projection->getOrCreateStateSet();
    state->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    state->setAttributeAndModes(new osg::Depth(osg::Depth::ALWAYS, 0, 1, false));
    state->setRenderBinDetails(BehindAll, "RenderBin");
    return projection;
}

} // namespace vlt::snapshot
