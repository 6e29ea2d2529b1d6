#include "plugins/scene/parametric/LinkQuery.h"

#include "contract/ParametricKeys.h"
#include "contract/QueryOptions.h"
#include "plugins/scene/parametric/BadQuery.h"
#include "plugins/scene/parametric/PylonItems.h"

namespace vlt::scene {

namespace {

namespace keys = contract::query;
namespace parametric = contract::parametric;

LinkObject readLink(const std::string &item, std::string_view text)
{
    Words words(item, text);
    const bool hasColor = words.count() == 8;
    words.expect(hasColor ? 8 : 7, parametric::LinkWords);
    LinkObject link;
    link.a = readPlace(words);
    link.b = readPlace(words);
    if (link.a == link.b)
        throw BadQuery("MESS_QUERY_SAME_POSITION", {item});
    const std::string_view frequency = words.next();
    link.frequencyMHz = words.number("MESS_QUANTITY_FREQUENCY", {0, MaxMHz});
    if (link.frequencyMHz > 0 && link.frequencyMHz < MinMHz)
        throw BadQuery("MESS_QUERY_LOW_FREQUENCY", {item, shown(frequency)});
    if (hasColor)
        link.color = words.color();
    return link;
}

/// Reads the pylons with their antennas: the only items whose order is relevant.
void readPylons(const ParametricQuery &query, LinkSceneQuery &scene)
{
    const PylonDesign common = readCommonDesign(query);
    std::size_t transmitters = 0;
    for (const auto &[key, value] : query.items()) {
        if (key == parametric::Pylon) {
            const std::string item = numbered(key, scene.pylons.size() + 1);
            scene.pylons.push_back(readPylon(item, value, common));
        } else if (key == parametric::Transmitter || key == parametric::Dish) {
            const std::string item = numbered(key, ++transmitters);
            if (scene.pylons.empty())
                throw BadQuery("MESS_QUERY_BEFORE_PYLON", {item});
            scene.pylons.back().design.transmitters.push_back(
                key == parametric::Dish ? readDish(item, value) : readTransmitter(item, value));
        }
    }
}

void checkCount(const ParametricQuery &query, std::string_view key, std::size_t most)
{
    const std::size_t count = query.all(key).size();
    if (count > most)
        throw BadQuery("MESS_QUERY_MANY_ITEMS", {std::to_string(count), key, std::to_string(most)});
}

} // namespace

LinkSceneQuery parseLinkQuery(std::string_view url)
{
    const ParametricQuery query(url, {parametric::Object, keys::DataFolder, keys::PylonType,
                                      parametric::Pylon, parametric::Transmitter, parametric::Dish,
                                      keys::TransmitterScale, parametric::Distances,
                                      parametric::Link, keys::LinkStyle, keys::LinkWidth,
                                      keys::LinkColor, keys::FresnelZone, keys::FresnelShare,
                                      keys::FresnelColor, keys::KFactor});
    expectObject(query, parametric::ObjectLink);
    checkCount(query, parametric::Pylon, MaxQueryPylons);
    checkCount(query, parametric::Link, MaxQueryLinks);
    checkTransmitterCount(query.all(parametric::Transmitter).size() +
                          query.all(parametric::Dish).size());
    LinkSceneQuery scene;
    readPylons(query, scene);
    for (const std::string_view text : query.all(parametric::Link))
        scene.links.push_back(readLink(numbered(parametric::Link, scene.links.size() + 1), text));
    if (scene.links.empty())
        throw BadQuery("MESS_QUERY_NO_ITEM", {parametric::Link});
    const auto item = [&query](std::string_view key) { return std::string(query.single(key)); };
    scene.appearance = readLinkAppearance(item, ClearanceWord::Refused);
    return scene;
}

} // namespace vlt::scene
