#include "plugins/scene/buildings/BuildingScene.h"

#include "contract/FileSearch.h"
#include "plugins/scene/buildings/DocumentFiles.h"
#include "plugins/scene/buildings/FootprintReader.h"
#include "plugins/scene/buildings/GroundHeights.h"
#include "plugins/scene/buildings/TexbDocument.h"
#include "plugins/scene/buildings/TexturedTile.h"
#include "plugins/scene/buildings/TownColors.h"
#include "plugins/scene/buildings/TownNodes.h"
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

bool isPlaced(const Town &town, const Footprints::Building &building)
{
    for (const Footprints::Ring &ring : town.footprints.ringsOf(building)) {
        for (std::uint32_t i = ring.begin; i < ring.end; ++i) {
            if (!std::isfinite(town.places[i].x()) || !std::isfinite(town.places[i].y()))
                return false;
        }
    }
    return true;
}

/// Determines the frame, transforms the buildings to it and leaves out those that have no position
/// in it.
void place(Town &town, const OGRSpatialReference *srs)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    town.places = town.footprints.places;
    town.frame = moveToFrame(srs, town.places);
    town.leftOut.noPlace =
        std::erase_if(town.footprints.buildings, [&town](const Footprints::Building &building) {
            return !isPlaced(town, building);
        });
}

std::size_t countOf(const LeftOut &leftOut)
{
    return leftOut.noHeight + leftOut.notPositive + leftOut.noShape + leftOut.noPlace;
}

void tellLeftOut(const LeftOut &leftOut, const std::string &heightField, std::size_t features,
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
                              {leftOut.noPlace, "MESS_SCENE_NO_PLACE"}};
    for (const auto &[count, text] : reasons) {
        if (count > 0)
            notices.push_back(contract::formatted(
                text, {std::to_string(count), std::to_string(features), heightField}));
    }
}

/// Number of buildings with the same outline as another one. The user is informed about them,
/// because walls and roofs flicker if they coincide.
std::size_t countCoincident(const Town &town)
{
    using Outline = std::array<double, 5>; // extent and number of vertices
    std::vector<Outline> outlines;
    for (const Footprints::Building &building : town.footprints.buildings) {
        const Footprints::Ring &ring = town.footprints.rings[building.ringBegin];
        Outline outline{HUGE_VAL, HUGE_VAL, -HUGE_VAL, -HUGE_VAL,
                        static_cast<double>(ring.end - ring.begin)};
        for (const osg::Vec2d &place : town.footprints.placesOf(ring)) {
            outline[0] = std::min(outline[0], place.x());
            outline[1] = std::min(outline[1], place.y());
            outline[2] = std::max(outline[2], place.x());
            outline[3] = std::max(outline[3], place.y());
        }
        outlines.push_back(outline);
    }
    std::sort(outlines.begin(), outlines.end());
    std::size_t count = 0;
    for (std::size_t i = 1; i < outlines.size(); ++i)
        count += outlines[i] == outlines[i - 1] ? 1 : 0;
    return count;
}

Town readTown(const BuildingDocument &document, const Directories &directories, Notices &notices,
              const Progress &progress)
{
    const BuildingFootprints &footprints = document.footprints;
    const std::string file = locateDataset(footprints.file, directories);
    if (file.empty())
        throw BadLayer("MESS_SCENE_NO_FOOTPRINTS", {footprints.file});
    ReadFootprints read = readFootprints({file, footprints.layer, footprints.heightField}, notices,
                                         part(progress, 0, 0.5));
    const OGRSpatialReference *srs = read.srs ? &*read.srs : nullptr;
    Town town;
    town.footprints = std::move(read.footprints);
    town.srs = wktOf(read.srs);
    town.leftOut = read.leftOut;
    place(town, srs);
    tellLeftOut(town.leftOut, footprints.heightField, read.features, notices);
    if (const std::size_t count = countCoincident(town); count > 0)
        notices.push_back(contract::formatted(
            "MESS_SCENE_COINCIDENT", {std::to_string(count), std::to_string(read.features)}));
    const GroundSource terrain{document.terrain.file,
                               locateDataset(document.terrain.file, directories),
                               document.terrain.noData};
    town.baseM = groundUnder(town.footprints, srs, terrain, notices, part(progress, 0.5, 0.6));
    return town;
}

void colour(Town &town, const BuildingFootprints &footprints, const Directories &directories,
            Notices &notices, const Progress &progress)
{
    const bool isOne = footprints.roofColor.empty() || footprints.roofColor == footprints.wallColor;
    town.wallColors = townColors(town, footprints.wallColor, directories, notices,
                                 part(progress, 0.6, isOne ? 0.8 : 0.7));
    town.roofColors = isOne ? town.wallColors
                            : townColors(town, footprints.roofColor, directories, notices,
                                         part(progress, 0.7, 0.8));
}

/// The function that makes tiles with images; empty if the document has no usable images.
TexturedMaker texturedMaker(const std::shared_ptr<const Town> &town,
                            const BuildingDocument &document, const Directories &directories,
                            Notices &notices, const Progress &progress)
{
    if (!document.textures || document.footprints.texturedVisibilityM <= 0)
        return {};
    const std::shared_ptr<TextureImages> images =
        TextureImages::open(*town, *document.textures, directories, notices, progress);
    if (images->isEmpty())
        return {};
    return [town, images, textures = *document.textures, skirtM = document.footprints.skirtHeightM](
               std::span<const std::uint32_t> buildings, const osg::Vec3d &origin) {
        return buildTexturedTile(*town, textures, *images, buildings, origin, skirtM);
    };
}

} // namespace

osg::ref_ptr<osg::Group> readBuildingScene(const std::string &document, const std::string &project,
                                           Notices &notices, const Progress &progress)
{
    const BuildingDocument texb = readTexbDocument(document);
    const Directories directories = contract::searchDirectories(document, project);
    const BuildingFootprints &footprints = texb.footprints;
    const auto town = std::make_shared<Town>(readTown(texb, directories, notices, progress));
    colour(*town, footprints, directories, notices, progress);
    const TownLook look{footprints.tileSizeM, footprints.extrudedVisibilityM,
                        footprints.texturedVisibilityM, footprints.skirtHeightM,
                        texturedMaker(town, texb, directories, notices, part(progress, 0.8, 0.9))};
    osg::ref_ptr<osg::Group> scene = buildTown(town, look, part(progress, 0.9, 1));
    tellFrame(*scene, town->frame);
    tellCount(*scene, "buildings", town->footprints.buildings.size());
    tellCount(*scene, "leftOut", countOf(town->leftOut));
    return scene;
}

} // namespace vlt::scene
