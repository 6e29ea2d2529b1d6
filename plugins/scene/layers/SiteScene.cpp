#include "plugins/scene/layers/SiteScene.h"

#include "contract/SceneFactKeys.h"
#include "contract/SceneObjects.h"
#include "plugins/scene/layers/LayerLegend.h"
#include "plugins/scene/reading/SceneFacts.h"
#include "plugins/scene/reading/SceneObjects.h"

namespace vlt::scene {

namespace {

SceneObjects objectsOf(const SiteRecords &records)
{
    std::vector<double> topsM;
    topsM.reserve(records.designs.size());
    for (const PylonDesign &design : records.designs)
        topsM.push_back(mastTopM(design));
    SceneObjects objects;
    objects.reserve(records.sites.size());
    for (const SiteRecord &site : records.sites) {
        objects.places->push_back(site.foot);
        objects.sizes->push_back(static_cast<float>(topsM[site.design]));
        objects.rows->push_back(site.row);
        objects.addName(site.name);
    }
    return objects;
}

} // namespace

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
    if (content == TileContent::WhenDrawn)
        objectsOf(records).addTo(*group, contract::objects::Site);
    if (!records.sites.empty())
        group->addChild(buildPylonTiles(std::move(records), content));
    return group;
}

} // namespace vlt::scene
