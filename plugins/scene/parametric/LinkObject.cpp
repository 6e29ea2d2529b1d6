#include "plugins/scene/parametric/LinkObject.h"

#include "plugins/scene/parametric/ParametricQuery.h"

#include <array>
#include <utility>

namespace vlt::scene {

namespace {

// as the settings' pages have them
constexpr double ThinnestLink = 0.1;
constexpr double WidestLink = 1000;
constexpr int HighestZone = 10;
constexpr double SmallestK = 0.1;
constexpr double LargestK = 100;

Words wordsOf(const ItemText &item, const std::string &key, std::string &text)
{
    text = item(key);
    return {key, text};
}

double readNumber(const ItemText &item, const std::string &key, std::string_view name, double least,
                  double most)
{
    std::string text;
    Words words = wordsOf(item, key, text);
    words.expect(1, "NUMBER");
    return words.number(name, least, most);
}

LinkStyle readStyle(const ItemText &item)
{
    static constexpr std::array<std::pair<std::string_view, LinkStyle>, 3> Names = {{
        {"LINE", LinkStyle::Line},
        {"TUBE", LinkStyle::Tube},
        {"BILLBOARD", LinkStyle::Billboard},
    }};
    const std::string text = item("link_style");
    for (const auto &[name, style] : Names) {
        if (name == text)
            return style;
    }
    Words("link_style", text).refuse("style", text, "is unknown");
}

} // namespace

LinkLook readLinkLook(const ItemText &item, ClearanceWord clearance)
{
    LinkLook look;
    std::string text;
    look.style = readStyle(item);
    look.width = readNumber(item, "link_width", "width", ThinnestLink, WidestLink);
    Words color = wordsOf(item, "link_color", text);
    look.colorByClearance = clearance == ClearanceWord::Accepted && color.count() > 1;
    color.expect(look.colorByClearance ? 2 : 1, "rrggbbaa");
    look.color = color.color();
    if (const std::string_view word = color.word(); look.colorByClearance && word != "clearance")
        color.refuse("word", word, "is unknown");
    Words zone = wordsOf(item, "fresnel_zone", text);
    zone.expect(1, "NUMBER");
    look.fresnelZone = zone.wholeNumber("zone", 0, HighestZone);
    look.fresnelShare = readNumber(item, "fresnel_share", "share", 1, 100) / 100;
    Words fresnelColor = wordsOf(item, "fresnel_color", text);
    fresnelColor.expect(1, "rrggbbaa");
    look.fresnelColor = fresnelColor.color();
    look.kFactor = readNumber(item, "k_factor", "factor", SmallestK, LargestK);
    return look;
}

} // namespace vlt::scene
