#include "plugins/scene/parametric/LinkQuery.h"

#include "plugins/scene/parametric/BadQuery.h"
#include "plugins/scene/parametric/PylonItems.h"

namespace vlt::scene {

namespace {

namespace keys = contract::query;

LinkObject readLink(const std::string &item, std::string_view text)
{
    Words words(item, text);
    const bool hasColor = words.count() == 8;
    words.expect(hasColor ? 8 : 7, "X1 Y1 Z1 X2 Y2 Z2 FREQUENCYMHZ [rrggbbaa]");
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
        if (key == "pylon") {
            const std::string number = std::to_string(scene.pylons.size() + 1);
            scene.pylons.push_back(readPylon("pylon " + number, value, common));
        } else if (key == "transmitter" || key == "dish") {
            const std::string item = std::string(key) + " " + std::to_string(++transmitters);
            if (scene.pylons.empty())
                throw BadQuery("MESS_QUERY_BEFORE_PYLON", {item});
            scene.pylons.back().design.transmitters.push_back(
                key == "dish" ? readDish(item, value) : readTransmitter(item, value));
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
    const ParametricQuery query(url, {"object", keys::DataFolder, keys::PylonType, "pylon",
                                      "transmitter", "dish", keys::TransmitterScale, "lod", "link",
                                      keys::LinkStyle, keys::LinkWidth, keys::LinkColor,
                                      keys::FresnelZone, keys::FresnelShare, keys::FresnelColor,
                                      keys::KFactor});
    const std::string_view object = query.single("object");
    if (object != "link")
        Words("object", object).refuseUnknown("MESS_QUANTITY_KIND", object);
    checkCount(query, "pylon", MaxQueryPylons);
    checkCount(query, "link", MaxQueryLinks);
    checkTransmitterCount(query.all("transmitter").size() + query.all("dish").size());
    LinkSceneQuery scene;
    readPylons(query, scene);
    for (const std::string_view text : query.all("link"))
        scene.links.push_back(readLink("link " + std::to_string(scene.links.size() + 1), text));
    if (scene.links.empty())
        throw BadQuery("MESS_QUERY_NO_ITEM", {"link"});
    const auto item = [&query](std::string_view key) { return std::string(query.single(key)); };
    scene.look = readLinkAppearance(item, ClearanceWord::Refused);
    return scene;
}

} // namespace vlt::scene
