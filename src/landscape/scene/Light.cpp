#include "landscape/scene/Light.h"

#include "landscape/Relief.h"

#include <osg/LightModel>
#include <osg/LightSource>

namespace vlt::landscape {

namespace {

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

osg::ref_ptr<osg::Group> makeLights(osg::StateSet &lit)
{
    const osg::Vec4 none(0, 0, 0, 1);
    osg::ref_ptr<osg::Group> group = new osg::Group;
    const osg::ref_ptr<osg::LightSource> head =
        makeLight(0, osg::Vec3(0, 0, 1), osg::Vec4(0.26F, 0.26F, 0.27F, 1), none);
    head->setReferenceFrame(osg::LightSource::ABSOLUTE_RF);
    const osg::ref_ptr<osg::LightSource> sun =
        makeLight(1, osg::Vec3d(Sun[0], Sun[1], Sun[2]), osg::Vec4(0.56F, 0.54F, 0.50F, 1),
                  osg::Vec4(0.8F, 0.8F, 0.75F, 1));
    const osg::ref_ptr<osg::LightSource> sky =
        makeLight(2, osg::Vec3(0, 0, 1), osg::Vec4(0.14F, 0.16F, 0.19F, 1), none);

    for (const auto &light : {head, sun, sky}) {
        group->addChild(light);
        light->setStateSetModes(lit, osg::StateAttribute::ON);
    }
    osg::ref_ptr<osg::LightModel> model = new osg::LightModel;
    model->setAmbientIntensity(osg::Vec4(0.34F, 0.36F, 0.40F, 1));
    lit.setAttributeAndModes(model);
    lit.setMode(GL_LIGHTING, osg::StateAttribute::ON);
    lit.setMode(GL_NORMALIZE, osg::StateAttribute::ON);
    return group;
}

osg::ref_ptr<osg::Group> underLight(osg::Node *scene)
{
    osg::ref_ptr<osg::Group> group = new osg::Group;
    group->addChild(makeLights(*group->getOrCreateStateSet()));
    group->addChild(scene);
    return group;
}

} // namespace vlt::landscape
