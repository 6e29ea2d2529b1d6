#include "plugins/scene/link/LinkScene.h"

#include "plugins/scene/link/LinkFactory.h"
#include "plugins/scene/pylon/PylonFactory.h"

namespace vlt::scene {

namespace {

constexpr std::size_t FewPylons = 16; ///< up to this number they are made at once

} // namespace

osg::ref_ptr<osg::Group> buildLinkScene(const LinkSceneQuery &scene)
{
    osg::ref_ptr<osg::Group> group = new osg::Group;
    PylonFactory factory(scene.pylons.size() <= FewPylons ? PreciseModel::AtOnce
                                                          : PreciseModel::WhenNeeded);
    for (const PylonObject &pylon : scene.pylons)
        group->addChild(factory.build(pylon));
    group->addChild(buildLinks(scene.links, scene.appearance));
    return group;
}

} // namespace vlt::scene
