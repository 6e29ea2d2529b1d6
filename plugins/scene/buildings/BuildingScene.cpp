#include "plugins/scene/buildings/BuildingScene.h"

#include "contract/FileSearch.h"
#include "contract/SceneFactKeys.h"
#include "plugins/scene/buildings/CityColors.h"
#include "plugins/scene/buildings/CityNodes.h"
#include "plugins/scene/buildings/DocumentFiles.h"
#include "plugins/scene/buildings/FootprintReader.h"
#include "plugins/scene/buildings/GroundHeights.h"
#include "plugins/scene/buildings/TexbDocument.h"
#include "plugins/scene/buildings/TexturedTile.h"
#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/SceneFacts.h"
#include "plugins/scene/reading/TableReading.h"

#include <cpl_conv.h>
#include <cpl_error.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace vlt::scene {

namespace {

using contract::BuildingDocument;
using contract::BuildingFootprints;
using Directories = std::vector<std::string>;

/// The progress of a part of the work, from one share of the whole to another.
Progress part(const Progress &whole, double from, double to)
{
    return [&whole, from, to](double share) { return whole(from + share * (to - from)); };
}

std::string wktOf(const std::optional<OGRSpatialReference> &srs)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const char *const options[] = {"FORMAT=WKT2", nullptr};
    char *text = nullptr;
    std::string wkt;
    if (srs && srs->exportToWkt(&text, options) == OGRERR_NONE)
        wkt = text;
    CPLFree(text);
    return wkt;
}

bool isPlaced(const CityModel &city, const Footprints::Building &building)
{
    for (const Footprints::Ring &ring : city.footprints.ringsOf(building)) {
        for (std::uint32_t i = ring.begin; i < ring.end; ++i) {
            if (!std::isfinite(city.positions[i].x()) || !std::isfinite(city.positions[i].y()))
                return false;
        }
    }
    return true;
}

/// Determines the frame, transforms the buildings to it and leaves out those that have no position
/// in it.
void position(CityModel &city, const OGRSpatialReference *srs)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    city.positions = city.footprints.positions;
    city.frame = moveToFrame(srs, city.positions);
    city.leftOut.noPosition =
        std::erase_if(city.footprints.buildings, [&city](const Footprints::Building &building) {
            return !isPlaced(city, building);
        });
}

std::size_t countOf(const LeftOut &leftOut)
{
    return leftOut.noHeight + leftOut.notPositive + leftOut.noShape + leftOut.noPosition;
}

void reportLeftOut(const LeftOut &leftOut, const std::string &heightField, std::size_t features,
                   Notices &notices)
{
    struct Reason
    {
        std::size_t count;
        contract::SceneTextId text;
    };
    const Reason reasons[] = {{leftOut.noHeight, "MESS_SCENE_NO_HEIGHT"},
                              {leftOut.notPositive, "MESS_SCENE_ZERO_HEIGHT"},
                              {leftOut.noShape, "MESS_SCENE_NO_POLYGON"},
                              {leftOut.noPosition, "MESS_SCENE_NO_PLACE"}};
    for (const auto &[count, text] : reasons) {
        if (count > 0)
            notices.push_back(contract::formatted(
                text, {std::to_string(count), std::to_string(features), heightField}));
    }
}

/// Number of buildings with the same outline as another one. The user is informed about them,
/// because walls and roofs flicker if they coincide.
std::size_t countCoincident(const CityModel &city)
{
    using Outline = std::array<double, 5>; // extent and number of vertices
    std::vector<Outline> outlines;
    for (const Footprints::Building &building : city.footprints.buildings) {
        const Footprints::Ring &ring = city.footprints.rings[building.ringBegin];
        Outline outline{HUGE_VAL, HUGE_VAL, -HUGE_VAL, -HUGE_VAL,
                        static_cast<double>(ring.end - ring.begin)};
        for (const osg::Vec2d &position : city.footprints.positionsOf(ring)) {
            outline[0] = std::min(outline[0], position.x());
            outline[1] = std::min(outline[1], position.y());
            outline[2] = std::max(outline[2], position.x());
            outline[3] = std::max(outline[3], position.y());
        }
        outlines.push_back(outline);
    }
    std::sort(outlines.begin(), outlines.end());
    std::size_t count = 0;
    for (std::size_t i = 1; i < outlines.size(); ++i)
        count += outlines[i] == outlines[i - 1] ? 1 : 0;
    return count;
}

CityModel readCity(const BuildingDocument &document, const Directories &directories,
                   Notices &notices, const Progress &progress)
{
    const BuildingFootprints &footprints = document.footprints;
    const std::string file = locateDataset(footprints.file, directories);
    if (file.empty())
        throw BadLayer("MESS_SCENE_NO_FOOTPRINTS", {footprints.file});
    ReadFootprints read = readFootprints({file, footprints.layer, footprints.heightField}, notices,
                                         part(progress, 0, 0.5));
    const OGRSpatialReference *srs = read.srs ? &*read.srs : nullptr;
    CityModel city;
    city.footprints = std::move(read.footprints);
    city.srs = wktOf(read.srs);
    city.leftOut = read.leftOut;
    position(city, srs);
    reportLeftOut(city.leftOut, footprints.heightField, read.features, notices);
    if (const std::size_t count = countCoincident(city); count > 0)
        notices.push_back(contract::formatted(
            "MESS_SCENE_COINCIDENT", {std::to_string(count), std::to_string(read.features)}));
    const GroundSource terrain{document.terrain.file,
                               locateDataset(document.terrain.file, directories),
                               document.terrain.noData};
    city.baseM = groundUnder(city.footprints, srs, terrain, notices, part(progress, 0.5, 0.6));
    return city;
}

void colour(CityModel &city, const BuildingFootprints &footprints, const Directories &directories,
            Notices &notices, const Progress &progress)
{
    const bool isOne = footprints.roofColor.empty() || footprints.roofColor == footprints.wallColor;
    city.wallColors = townColors(city, footprints.wallColor, directories, notices,
                                 part(progress, 0.6, isOne ? 0.8 : 0.7));
    city.roofColors = isOne ? city.wallColors
                            : townColors(city, footprints.roofColor, directories, notices,
                                         part(progress, 0.7, 0.8));
    std::size_t invisible = 0;
    for (std::size_t i = 0; i < city.wallColors.size(); ++i)
        invisible += city.wallColors[i].alpha == 0 && city.roofColors[i].alpha == 0 ? 1 : 0;
    if (invisible > 0)
        notices.push_back(contract::formatted(
            "MESS_SCENE_TRANSPARENT",
            {std::to_string(invisible), std::to_string(city.wallColors.size())}));
}

/// The function that makes tiles with images; empty if the document has no usable images.
TexturedMaker texturedMaker(const std::shared_ptr<const CityModel> &city,
                            const BuildingDocument &document, const Directories &directories,
                            Notices &notices, const Progress &progress)
{
    if (!document.textures || document.footprints.texturedVisibilityM <= 0)
        return {};
    const std::shared_ptr<TextureImages> images =
        TextureImages::open(*city, *document.textures, directories, notices, progress);
    if (images->isEmpty())
        return {};
    return [city, images, textures = *document.textures, skirtM = document.footprints.skirtHeightM](
               std::span<const std::uint32_t> buildings, const osg::Vec3d &origin) {
        return buildTexturedTile(*city, textures, *images, buildings, origin, skirtM);
    };
}

} // namespace

osg::ref_ptr<osg::Group> readBuildingScene(const std::string &document, const std::string &project,
                                           Notices &notices, const Progress &progress)
{
    const BuildingDocument texb = readTexbDocument(document);
    const Directories directories = contract::searchDirectories(document, project);
    const BuildingFootprints &footprints = texb.footprints;
    const auto city = std::make_shared<CityModel>(readCity(texb, directories, notices, progress));
    colour(*city, footprints, directories, notices, progress);
    const CityStyle look{footprints.tileSizeM, footprints.extrudedVisibilityM,
                         footprints.texturedVisibilityM, footprints.skirtHeightM,
                         texturedMaker(city, texb, directories, notices, part(progress, 0.8, 0.9))};
    osg::ref_ptr<osg::Group> scene = buildCity(city, look, part(progress, 0.9, 1));
    setFrame(*scene, city->frame);
    setCount(*scene, contract::facts::Buildings, city->footprints.buildings.size());
    setCount(*scene, contract::facts::LeftOut, countOf(city->leftOut));
    return scene;
}

} // namespace vlt::scene
