#include "plugins/scene/layers/SiteScene.h"

#include "contract/SceneFactKeys.h"
#include "plugins/scene/layers/LayerLegend.h"
#include "plugins/scene/reading/SceneFacts.h"

namespace vlt::scene {

osg::ref_ptr<osg::Group> buildSiteScene(SiteRecords records, const std::string &title,
                                        TileContent content)
{
    osg::ref_ptr<osg::Group> group = new osg::Group;
    group->setName(title);
    setFrame(*group, records.frame);
    setGround(*group, lowestFootM(records), records.terrain);
    setCount(*group, contract::facts::Sites, records.sites.size());
    setCount(*group, contract::facts::Unplaced, records.unplaced);
    if (records.isCut)
        setCut(*group);
    setLegend(*group, sectorRows(records.transmitters));
    if (!records.sites.empty())
        group->addChild(buildPylonTiles(std::move(records), content));
    return group;
}

} // namespace vlt::scene
