#include "plugins/scene/buildings/BuildingScene.h"

#include "city/CityInputs.h"
#include "contract/FileSearch.h"
#include "contract/SceneFactKeys.h"
#include "contract/SceneObjects.h"
#include "contract/SceneTexts.h"
#include "localfiles/LocalFormats.h"
#include "plugins/scene/buildings/CityColors.h"
#include "plugins/scene/buildings/CityLegend.h"
#include "plugins/scene/buildings/CityNodes.h"
#include "plugins/scene/buildings/TexbDocument.h"
#include "plugins/scene/buildings/TexturedTile.h"
#include "plugins/scene/reading/SceneFacts.h"
#include "plugins/scene/reading/SceneObjects.h"
#include "plugins/scene/reading/TableReading.h"

#include <osg/BoundingBox>

#include <algorithm>
#include <cmath>
#include <utility>

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

CityModel readCity(const BuildingDocument &document, const Directories &directories,
                   Notices &notices, const Progress &progress)
{
    city::CityInputs inputs = city::readCityInputs(document, directories, notices, progress);
    CityModel city;
    city.footprints = std::move(inputs.footprints);
    city.frame = sceneFrame(inputs.frame, inputs.srs ? &*inputs.srs : nullptr);
    city.srs = city.frame.wkt;
    city.positions = std::move(inputs.positions);
    city.baseM = std::move(inputs.baseM);
    city.counts = inputs.counts;
    city.core = inputs.core;
    return city;
}

void colour(CityModel &city, const BuildingDocument &document, const Directories &directories,
            Notices &notices, const Progress &progress)
{
    const BuildingFootprints &footprints = document.footprints;
    const bool isOne = footprints.roofColor.empty() || footprints.roofColor == footprints.wallColor;
    if (!document.colors.field.empty()) { // the other colors are for readers that do not know this
        city.wallColors =
            fieldColors(city, document, directories, notices, part(progress, 0.6, 0.8));
        city.roofColors = city.wallColors;
    } else {
        city.wallColors = townColors(city, footprints.wallColor, document.colors, directories,
                                     notices, part(progress, 0.6, isOne ? 0.8 : 0.7));
        const std::size_t ofWalls = city.legend.size();
        if (!isOne)
            setPart(city.legend, 0, contract::legend::Walls);
        city.roofColors = isOne ? city.wallColors
                                : townColors(city, footprints.roofColor, document.colors,
                                             directories, notices, part(progress, 0.7, 0.8));
        setPart(city.legend, ofWalls, contract::legend::Roofs);
    }
    std::size_t &invisible = city.counts.substitutes.transparent;
    for (const std::size_t i : city::firstBuildings(city.footprints))
        invisible += city.wallColors[i].alpha == 0 && city.roofColors[i].alpha == 0 ? 1 : 0;
    if (invisible > 0)
        notices.push_back(
            contract::formatted("MESS_SCENE_TRANSPARENT",
                                {std::to_string(invisible), std::to_string(city.counts.drawn)}));
}

/// States which buildings are the core of the city; nothing if all are.
void setCore(osg::Group &scene, const std::optional<city::CityCore> &core)
{
    if (!core)
        return;
    const auto whole = [](double number) { return std::to_string(std::llround(number)); };
    scene.addDescription(std::string(contract::facts::Core) + '=' +
                         whole(std::floor(core->least.x)) + ' ' + whole(std::floor(core->least.y)) +
                         ' ' + whole(std::ceil(core->most.x)) + ' ' +
                         whole(std::ceil(core->most.y)));
}

/// The function that makes tiles with images; empty if the document has no usable images. Adds the
/// images to the legend.
TexturedMaker texturedMaker(const std::shared_ptr<CityModel> &city,
                            const BuildingDocument &document, const Directories &directories,
                            Notices &notices, const Progress &progress)
{
    if (!document.textures || document.footprints.texturedVisibilityM <= 0)
        return {};
    const std::shared_ptr<TextureImages> images =
        TextureImages::open(*city, *document.textures, directories, notices, progress);
    if (images->isEmpty())
        return {};
    addImages(city->legend, *images, *document.textures);
    return [city = std::shared_ptr<const CityModel>(city), images, textures = *document.textures,
            skirtM = document.footprints.skirtHeightM](std::span<const std::uint32_t> buildings,
                                                       const osg::Vec3d &origin) {
        return buildTexturedTile(*city, textures, *images, buildings, origin, skirtM);
    };
}

SceneObjects objectsOf(const CityModel &city)
{
    const Footprints &footprints = city.footprints;
    const auto bytesOf = [](const std::vector<colormaps::Rgba> &colors) {
        osg::ref_ptr<osg::Vec4ubArray> bytes = new osg::Vec4ubArray;
        bytes->reserve(static_cast<unsigned>(colors.size()));
        for (const colormaps::Rgba &color : colors)
            bytes->push_back({color.red, color.green, color.blue, color.alpha});
        return bytes;
    };
    SceneObjects objects;
    objects.reserve(footprints.buildings.size());
    for (std::size_t i = 0; i < footprints.buildings.size(); ++i) {
        const Footprints::Building &building = footprints.buildings[i];
        const Footprints::Ring &outline = footprints.rings[building.ringBegin];
        osg::BoundingBoxd bound;
        for (std::uint32_t at = outline.begin; at < outline.end; ++at)
            bound.expandBy(city.positions[at].x, city.positions[at].y,
                           city.baseM[i] + building.heightM);
        objects.places->push_back(bound.center());
        objects.sizes->push_back(building.heightM);
        objects.rows->push_back(footprints.features[building.feature].row);
        if (!city.texts.empty())
            objects.addName(city.texts[i]);
    }
    if (!city.values.empty())
        objects.values = new osg::FloatArray(city.values.begin(), city.values.end());
    objects.wallColors = bytesOf(city.wallColors);
    objects.roofColors = bytesOf(city.roofColors);
    return objects;
}

void setCounts(osg::Group &scene, const contract::CityCounts &counts)
{
    using namespace contract;
    setCount(scene, facts::Features, counts.features);
    setCount(scene, facts::Buildings, counts.drawn);
    setCount(scene, facts::LeftOut, sumOf(counts.leftOut, LeftOutCounts));
    for (const NamedCount<LeftOut> &name : LeftOutCounts)
        setCount(scene, name.key, counts.leftOut.*name.count);
    for (const NamedCount<Substitutes> &name : SubstituteCounts)
        setCount(scene, name.key, counts.substitutes.*name.count);
    setCount(scene, facts::Coincident, counts.coincident);
}

} // namespace

osg::ref_ptr<osg::Group> readBuildingScene(const std::string &document, const std::string &project,
                                           Notices &notices, const Progress &progress, bool isDrawn)
{
    const BuildingDocument texb = readTexbDocument(document);
    const Directories directories = contract::searchDirectories(document, project);
    const BuildingFootprints &footprints = texb.footprints;
    const auto city =
        std::make_shared<CityModel>(readCity(texb, directories, notices, part(progress, 0, 0.6)));
    city->isPickable = isDrawn;
    colour(*city, texb, directories, notices, progress);
    const CityStyle look{footprints.tileSizeM, footprints.extrudedVisibilityM,
                         footprints.texturedVisibilityM, footprints.skirtHeightM,
                         texturedMaker(city, texb, directories, notices, part(progress, 0.8, 0.9))};
    if (!look.makeTextured) // only images lie by the positions in their original system
        city->footprints.positions = std::vector<city::Place>(); // releases its memory
    osg::ref_ptr<osg::Group> scene = buildCity(city, look, part(progress, 0.9, 1));
    setFrame(*scene, city->frame);
    setCore(*scene, city->core);
    const contract::BuildingTerrain &terrain = texb.terrain;
    setGround(*scene,
              city->baseM.empty() ? 0 : *std::min_element(city->baseM.begin(), city->baseM.end()),
              terrain.file.empty() ? "" : localfiles::locateDataset(terrain.file, directories),
              terrain.noData);
    setCounts(*scene, city->counts);
    setLegend(*scene, city->legend);
    if (isDrawn)
        objectsOf(*city).addTo(*scene, contract::objects::Building);
    return scene;
}

} // namespace vlt::scene
