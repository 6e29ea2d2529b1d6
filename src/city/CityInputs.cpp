#include "city/CityInputs.h"

#include "city/GroundHeights.h"
#include "contract/BadLayer.h"
#include "localfiles/LocalFormats.h"

#include <cpl_error.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>

namespace vlt::city {

namespace {

using contract::BadLayer;
using contract::BuildingDocument;
using contract::BuildingFootprints;
using contract::CityCounts;

constexpr double ReadingShare = 5.0 / 6; ///< of the work

/// Removes buildings by their index, with their ground heights if these are known. The reason
/// becomes that of features without any building left.
template<typename Predicate>
void removeBuildings(CityInputs &city, contract::LeftOutReason reason, const Predicate &isRemoved)
{
    std::vector<Footprints::Building> &buildings = city.footprints.buildings;
    std::size_t kept = 0;
    for (std::size_t i = 0; i < buildings.size(); ++i) {
        if (isRemoved(i)) {
            city.fates[city.footprints.features[buildings[i].feature].row] = reason;
            continue;
        }
        buildings[kept] = buildings[i];
        if (!city.baseM.empty())
            city.baseM[kept] = city.baseM[i];
        ++kept;
    }
    buildings.resize(kept);
    if (!city.baseM.empty())
        city.baseM.resize(kept);
    for (const Footprints::Building &building : buildings)
        city.fates[city.footprints.features[building.feature].row].reset();
}

/// Determines the frame, transforms the buildings to it and removes features with a vertex that has
/// no position in it.
void position(CityInputs &city)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const Footprints &footprints = city.footprints;
    city.positions = footprints.positions;
    city.frame = localframe::moveToFrame(city.srs ? &*city.srs : nullptr, city.positions);
    std::vector<bool> isPlaced(footprints.features.size(), true);
    for (const Footprints::Building &building : footprints.buildings) {
        for (const Footprints::Ring &ring : footprints.ringsOf(building)) {
            for (std::uint32_t i = ring.begin; i < ring.end; ++i) {
                if (!std::isfinite(city.positions[i].x) || !std::isfinite(city.positions[i].y))
                    isPlaced[building.feature] = false;
            }
        }
    }
    removeBuildings(city, contract::LeftOutReason::NoPosition,
                    [&](std::size_t i) { return !isPlaced[footprints.buildings[i].feature]; });
}

/// Takes the ground off the heights of roofs above sea level, and removes buildings whose roof is
/// not above it.
void standOnGround(CityInputs &city)
{
    Footprints &footprints = city.footprints;
    for (std::size_t i = 0; i < footprints.buildings.size(); ++i) {
        Footprints::Building &building = footprints.buildings[i];
        if (footprints.features[building.feature].isAboveSea)
            building.heightM -= city.baseM[i];
    }
    removeBuildings(city, contract::LeftOutReason::BelowGround,
                    [&](std::size_t i) { return !(footprints.buildings[i].heightM > 0); });
}

/// Lets buildings start at the ground whose underside is not below their roof.
void checkBottoms(CityInputs &city)
{
    std::vector<bool> isRaised(city.footprints.features.size());
    for (Footprints::Building &building : city.footprints.buildings) {
        if (building.bottomM < building.heightM)
            continue;
        building.bottomM = 0;
        isRaised[building.feature] = true;
    }
    city.counts.substitutes.raisedBottom =
        static_cast<std::size_t>(std::count(isRaised.begin(), isRaised.end(), true));
}

/// Number of features with the same outline as another one. The user is informed about them,
/// because walls and roofs flicker if they coincide.
std::size_t countCoincident(const Footprints &footprints)
{
    using Outline = std::array<double, 5>; // extent and number of vertices
    std::vector<Outline> outlines;
    for (const std::size_t first : firstBuildings(footprints)) {
        const Footprints::Ring &ring = footprints.rings[footprints.buildings[first].ringBegin];
        Outline outline{HUGE_VAL, HUGE_VAL, -HUGE_VAL, -HUGE_VAL,
                        static_cast<double>(ring.end - ring.begin)};
        for (const Place &position : footprints.positionsOf(ring)) {
            outline[0] = std::min(outline[0], position.x);
            outline[1] = std::min(outline[1], position.y);
            outline[2] = std::max(outline[2], position.x);
            outline[3] = std::max(outline[3], position.y);
        }
        outlines.push_back(outline);
    }
    std::sort(outlines.begin(), outlines.end());
    std::size_t count = 0;
    for (std::size_t i = 1; i < outlines.size(); ++i)
        count += outlines[i] == outlines[i - 1] ? 1 : 0;
    return count;
}

/// Counts the features that were read, that are left out and that are drawn, by the origin of their
/// height.
void countFeatures(const CityInputs &city, CityCounts &counts)
{
    counts.features = city.fates.size();
    for (const auto &fate : city.fates) {
        if (fate)
            ++countOf(*fate, counts.leftOut);
    }
    const Footprints &footprints = city.footprints;
    for (const std::size_t first : firstBuildings(footprints)) {
        const HeightSource source = footprints.features[footprints.buildings[first].feature].source;
        counts.substitutes.elseField += source == HeightSource::ElseField ? 1 : 0;
        counts.substitutes.defaultHeight += source == HeightSource::Default ? 1 : 0;
        ++counts.drawn;
    }
}

/// Determines the core of the city, and reports the buildings that are far from it.
void findCore(CityInputs &city, Notices &notices)
{
    city.core = coreOf(city.footprints, city.positions);
    if (!city.core)
        return;
    const Footprints &footprints = city.footprints;
    const Place &farthest =
        footprints
            .positions[footprints.rings[footprints.buildings[city.core->farthest].ringBegin].begin];
    std::ostringstream place;
    place.imbue(std::locale::classic());
    place << std::setprecision(9) << farthest.x << ' ' << farthest.y;
    notices.push_back(contract::formatted(
        "MESS_SCENE_FAR_AWAY",
        {std::to_string(city.core->far), std::to_string(city.counts.drawn),
         std::to_string(std::llround(city.core->distanceM / 1000)), place.str()}));
}

/// Adds a notice for each reason that applies to any feature.
void report(const CityCounts &counts, const BuildingFootprints &source, Notices &notices)
{
    struct Reason
    {
        std::size_t count;
        contract::SceneTextId text;
        std::string value = {};
    };
    const contract::LeftOut &leftOut = counts.leftOut;
    const contract::Substitutes &substitutes = counts.substitutes;
    const contract::BuildingHeights &heights = source.heights;
    std::ostringstream defaultM;
    defaultM.imbue(std::locale::classic());
    defaultM << heights.defaultM.value_or(0);
    const Reason reasons[] = {
        {leftOut.missingHeight, "MESS_SCENE_NO_HEIGHT", source.heightField},
        {leftOut.notPositive, "MESS_SCENE_ZERO_HEIGHT", source.heightField},
        {leftOut.tooHigh, "MESS_SCENE_TOO_HIGH", source.heightField},
        {leftOut.belowGround, "MESS_SCENE_BELOW_GROUND"},
        {leftOut.noShape, "MESS_SCENE_NO_POLYGON"},
        {leftOut.noPosition, "MESS_SCENE_NO_PLACE"},
        {substitutes.elseField, "MESS_SCENE_ELSE_HEIGHT", heights.elseField},
        {substitutes.defaultHeight, "MESS_SCENE_DEFAULT_HEIGHT", defaultM.str()},
        {counts.coincident, "MESS_SCENE_COINCIDENT"},
        {substitutes.terrainBase, "MESS_SCENE_TERRAIN_BASE", heights.baseField},
        {substitutes.lowestGround, "MESS_SCENE_LOWEST_GROUND"},
        {substitutes.raisedBottom, "MESS_SCENE_RAISED_BOTTOM"}};
    for (const auto &[count, text, value] : reasons) {
        if (count > 0)
            notices.push_back(contract::formatted(
                text, {std::to_string(count), std::to_string(counts.features), value}));
    }
}

} // namespace

std::string wktOf(const std::optional<OGRSpatialReference> &srs)
{
    return localframe::wktOf(srs ? &*srs : nullptr);
}

std::vector<std::size_t> firstBuildings(const Footprints &footprints)
{
    const std::vector<Footprints::Building> &buildings = footprints.buildings;
    std::vector<std::size_t> first;
    for (std::size_t i = 0; i < buildings.size(); ++i) {
        if (i == 0 || buildings[i].feature != buildings[i - 1].feature)
            first.push_back(i);
    }
    return first;
}

CityInputs readCityInputs(const BuildingDocument &document,
                          const std::vector<std::string> &directories, Notices &notices,
                          const Progress &progress)
{
    const BuildingFootprints &source = document.footprints;
    const std::string path = localfiles::locateDataset(source.file, directories);
    if (path.empty())
        throw BadLayer("MESS_SCENE_NO_FOOTPRINTS", {source.file});
    ReadFootprints read = readFootprints(
        path, source, notices, [&](double share) { return progress(share * ReadingShare); });
    CityInputs city;
    city.footprints = std::move(read.footprints);
    city.srs = std::move(read.srs);
    city.fates = std::move(read.fates);
    position(city);

    const contract::BuildingTerrain &terrain = document.terrain;
    Notices ofGround; // stand behind those of the buildings that are left out
    city.baseM = groundUnder(
        city.footprints, city.srs ? &*city.srs : nullptr,
        {terrain.file, localfiles::locateDataset(terrain.file, directories), terrain.noData},
        source.heights.base, city.counts.substitutes, ofGround,
        [&](double share) { return progress(ReadingShare + share * (1 - ReadingShare)); });
    standOnGround(city);
    checkBottoms(city);
    city.counts.coincident = countCoincident(city.footprints);
    countFeatures(city, city.counts);
    report(city.counts, source, notices);
    findCore(city, notices);
    notices.insert(notices.end(), ofGround.begin(), ofGround.end());
    return city;
}

} // namespace vlt::city
