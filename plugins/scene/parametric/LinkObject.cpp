#include "plugins/scene/parametric/LinkObject.h"

#include "plugins/scene/parametric/ParametricQuery.h"

namespace vlt::scene {

namespace keys = contract::query;

namespace {

Words wordsOf(const ItemText &item, const std::string &key, std::string &text)
{
    text = item(key);
    return {key, text};
}

double readNumber(const ItemText &item, const std::string &key, contract::SceneTextId name,
                  const contract::Range &range)
{
    std::string text;
    Words words = wordsOf(item, key, text);
    words.expect(1, "NUMBER");
    return words.number(name, range);
}

LinkStyle readStyle(const ItemText &item)
{
    const std::string text = item(keys::LinkStyle);
    const auto style = contract::linkStyleOf(text);
    if (!style)
        Words(keys::LinkStyle, text).refuseUnknown("MESS_QUANTITY_STYLE", text);
    return *style;
}

} // namespace

LinkAppearance readLinkAppearance(const ItemText &item, ClearanceWord clearance)
{
    LinkAppearance appearance;
    std::string text;
    appearance.style = readStyle(item);
    appearance.width =
        readNumber(item, keys::LinkWidth, "MESS_QUANTITY_WIDTH", keys::LinkWidthPixelsOrM);
    Words color = wordsOf(item, keys::LinkColor, text);
    appearance.colorByClearance = clearance == ClearanceWord::Accepted && color.count() > 1;
    color.expect(appearance.colorByClearance ? 2 : 1, "rrggbbaa");
    appearance.color = color.color();
    if (const std::string_view word = color.word();
        appearance.colorByClearance && word != keys::ClearanceWord)
        color.refuseUnknown("MESS_QUANTITY_WORD", word);
    Words zone = wordsOf(item, keys::FresnelZone, text);
    zone.expect(1, "NUMBER");
    appearance.fresnelZone = zone.wholeNumber(
        "MESS_QUANTITY_ZONE", {keys::NoFresnelZone, keys::FresnelZoneNumber.maximum});
    appearance.fresnelShare =
        readNumber(item, keys::FresnelShare, "MESS_QUANTITY_SHARE", keys::FresnelSharePercent) /
        100;
    Words fresnelColor = wordsOf(item, keys::FresnelColor, text);
    fresnelColor.expect(1, "rrggbbaa");
    appearance.fresnelColor = fresnelColor.color();
    appearance.kFactor =
        readNumber(item, keys::KFactor, "MESS_QUANTITY_K_FACTOR", keys::KFactorNumber);
    return appearance;
}

} // namespace vlt::scene
