#include "plugins/scene/layers/LinkLayerScene.h"

#include "plugins/scene/link/LinkFactory.h"
#include "plugins/scene/reading/SceneFacts.h"

#include <array>
#include <utility>

namespace vlt::scene {

osg::ref_ptr<osg::Group> buildLinkLayerScene(const LinkRows &rows, LinkRecords records,
                                             const LinkLook &look, const std::string &title,
                                             TileContent content)
{
    osg::ref_ptr<osg::Group> group = new osg::Group;
    group->setName(title);
    tellFrame(*group, rows.frame);
    tellCount(*group, "links", records.links.size());
    tellCount(*group, "pylons", records.pylons.sites.size());
    tellCount(*group, "unplaced", rows.unplaced);
    static constexpr std::array<std::pair<const char *, linkpath::Verdict>, 4> Verdicts = {{
        {"clear", linkpath::Verdict::Clear},
        {"marginal", linkpath::Verdict::Marginal},
        {"obstructed", linkpath::Verdict::Obstructed},
        {"unknown", linkpath::Verdict::Unknown},
    }};
    for (const auto &[name, verdict] : Verdicts) {
        if (!records.verdicts.empty())
            tellCount(*group, name, records.verdicts[verdict]);
    }
    if (rows.isCut)
        tellCut(*group);
    group->addChild(buildPylonTiles(std::move(records.pylons), content));
    group->addChild(buildLinks(records.links, look));
    return group;
}

} // namespace vlt::scene
