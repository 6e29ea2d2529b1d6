#include "plugins/scene/layers/LayerScene.h"

#include "contract/FileSearch.h"
#include "contract/QueryOptions.h"
#include "contract/SceneTexts.h"
#include "plugins/scene/layers/LinkLayerScene.h"
#include "plugins/scene/layers/LinkLayerStyle.h"
#include "plugins/scene/layers/LinkRecords.h"
#include "plugins/scene/layers/SiteScene.h"
#include "plugins/scene/reading/TableLocation.h"

namespace vlt::scene {

namespace {

using Directories = std::vector<std::string>;
using Notices = std::vector<std::string>;

/// The terrain under links; null if the layer has none or the terrain cannot be used.
std::shared_ptr<linkpath::TerrainRaster> openTerrain(const contract::ConnectionString &table,
                                                     const Directories &directories,
                                                     Notices &notices)
{
    const std::string named = table.option(contract::query::TerrainFile);
    if (named.empty())
        return nullptr;
    auto [terrain, reason] = linkpath::TerrainRaster::open(locateFile(named, directories));
    if (!terrain)
        notices.push_back(contract::formatted("MESS_SCENE_LINK_TERRAIN", {named, reason}));
    return std::move(terrain);
}

osg::ref_ptr<osg::Group> readLinks(const LayerFile &file, const Directories &directories,
                                   const LayerRequest &request, Notices &notices)
{
    const auto table = locateTable(file.source, file.kind, directories);
    const LinkLayerStyle style = readLinkLayerStyle(table);
    const LinkRows links = readLinkRows(table, file);
    const auto terrain = openTerrain(table, directories, notices);
    const linkpath::PathProfiler profiler(terrain, links.srs.IsEmpty() ? nullptr : &links.srs);
    LinkRecords records = placeLinks(links, style, profiler);
    if (terrain && records.groundless > 0)
        notices.push_back(contract::formatted(
            "MESS_SCENE_LINK_GROUND",
            {std::to_string(records.groundless), std::to_string(records.pylons.sites.size())}));
    return buildLinkLayerScene(
        links, std::move(records), style.appearance, file.title,
        terrain ? locateFile(table.option(contract::query::TerrainFile), directories) : "",
        request.content);
}

} // namespace

osg::ref_ptr<osg::Group> readLayerScene(const LayerFile &file, const std::string &path,
                                        const LayerRequest &request, Notices &notices)
{
    const Directories directories = contract::searchDirectories(path, request.project);
    if (file.kind == LayerKind::Links)
        return readLinks(file, directories, request, notices);
    const auto table = locateTable(file.source, file.kind, directories);
    return buildSiteScene(readSiteRecords(table, file, readSiteStyle(table), request.terrain),
                          file.title, request.content);
}

} // namespace vlt::scene
