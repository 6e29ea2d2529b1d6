#include "plugins/scene/layers/LinkLayerScene.h"

#include "contract/SceneFactKeys.h"
#include "contract/SceneObjects.h"
#include "plugins/scene/layers/LayerLegend.h"
#include "plugins/scene/link/LinkFactory.h"
#include "plugins/scene/link/LinkZones.h"
#include "plugins/scene/reading/SceneFacts.h"
#include "plugins/scene/reading/SceneObjects.h"

#include <array>
#include <utility>

namespace vlt::scene {

namespace {

/// The names of links at their middles; `links` are those of the rows.
std::vector<NamedPlace> namesOf(const LinkRows &rows, const std::vector<LinkObject> &links)
{
    std::vector<NamedPlace> names;
    for (std::size_t i = 0; i < links.size(); ++i) {
        if (!rows.rows[i].name.empty())
            names.push_back(
                {rows.rows[i].name, (links[i].a + links[i].b) / 2, NamedPlace::Kind::Line});
    }
    return names;
}

/// @param links  those of the rows
SceneObjects objectsOf(const LinkRows &rows, const std::vector<LinkObject> &links,
                       const LinkAppearance &appearance)
{
    SceneObjects objects;
    objects.reserve(links.size());
    for (std::size_t i = 0; i < links.size(); ++i) {
        const std::optional<Ellipsoid> zone = zoneOf(links[i], appearance);
        objects.places->push_back(links[i].a);
        objects.places->push_back(links[i].b);
        objects.sizes->push_back(static_cast<float>(zone ? zone->halfWidth : 0));
        objects.rows->push_back(rows.rows[i].row);
        objects.addName(rows.rows[i].name);
    }
    return objects;
}

} // namespace

osg::ref_ptr<osg::Group> buildLinkLayerScene(const LinkRows &rows, LinkRecords records,
                                             const LinkAppearance &appearance,
                                             const std::string &title, const std::string &terrain,
                                             TileContent content)
{
    osg::ref_ptr<osg::Group> group = new osg::Group;
    group->setName(title);
    setFrame(*group, rows.frame);
    setGround(*group, lowestFootM(records.pylons), terrain);
    setCount(*group, contract::facts::Links, records.links.size());
    setCount(*group, contract::facts::Pylons, records.pylons.sites.size());
    setCount(*group, contract::facts::Unplaced, rows.unplaced);
    static constexpr std::array<std::pair<const char *, linkpath::ClearanceStatus>, 4> Statuses = {{
        {"clear", linkpath::ClearanceStatus::Clear},
        {"marginal", linkpath::ClearanceStatus::Marginal},
        {"obstructed", linkpath::ClearanceStatus::Obstructed},
        {"unknown", linkpath::ClearanceStatus::Unknown},
    }};
    for (const auto &[name, status] : Statuses) {
        if (!records.statuses.empty())
            setCount(*group, name, records.statuses[status]);
    }
    setLegend(*group, linkRows(records, appearance));
    if (rows.isCut)
        setCut(*group);
    if (content == TileContent::WhenDrawn)
        objectsOf(rows, records.links, appearance).addTo(*group, contract::objects::Link);
    group->addChild(
        buildPylonTiles(std::move(records.pylons), content, namesOf(rows, records.links)));
    group->addChild(buildLinks(records.links, appearance));
    return group;
}

} // namespace vlt::scene
