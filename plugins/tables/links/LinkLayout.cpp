#include "plugins/tables/links/LinkLayout.h"

#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/links/EndColumns.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/table/HeaderWords.h"
#include "plugins/tables/values/Quantity.h"

#include <algorithm>
#include <initializer_list>

namespace vlt::driver {

namespace {

using Words = std::vector<std::string>;
using WordList = std::initializer_list<std::string_view>;

const WordList FrequencyWords = {"frequency",  "freq",      "fréquence", "frequence",
                                 "frecuencia", "frequenza", "frequenz",  "f"};
const WordList HeightWords = {"height", "hauteur", "höhe", "hoehe", "altura", "altezza", "agl"};
const WordList AzimuthWords = {"azimuth", "azimut", "azi"};
const WordList TiltWords = {"tilt"};
const WordList DxWords = {"dx"};
const WordList DyWords = {"dy"};
const WordList SeaLevelWords = {"npm", "amsl", "asl", "msl", "sea", "ngf"};
/// Words of heights that are not those of the antenna.
const WordList OtherHeightWords = {"terrain", "ground",    "tower",   "mast",
                                   "pylon",   "structure", "building"};

bool isIn(WordList list, std::string_view word)
{
    return std::find(list.begin(), list.end(), word) != list.end();
}

bool holds(const Words &words, WordList list)
{
    return std::any_of(words.begin(), words.end(),
                       [list](const std::string &word) { return isIn(list, word); });
}

bool startsWith(const Words &words, WordList list)
{
    return !words.empty() && isIn(list, words.front());
}

bool isAboveSea(const EndWords &name)
{
    return holds(name.words, SeaLevelWords);
}

bool isHeight(const EndWords &name)
{
    const bool polish = name.words.size() >= 2 && name.words[0] == "h" && name.words[1] == "t";
    return holds(name.words, HeightWords) || polish;
}

Fit fitOfHeight(const EndWords &name)
{
    if (!isHeight(name) || isAboveSea(name))
        return 0;
    const bool plain = startsWith(name.words, HeightWords) ||
                       (startsWith(name.words, {"antenna"}) && name.words[1] == "height");
    return plain ? 2 : holds(name.words, OtherHeightWords) ? 0 : 1;
}

Fit fitOfSeaLevelHeight(const EndWords &name)
{
    return isHeight(name) && isAboveSea(name) ? 1 : 0;
}

Fit fitOfFrequency(const EndWords &name)
{
    if (startsWith(name.words, FrequencyWords) || startsWith(name.words, {"tx1"}))
        return 2;
    const bool other = holds(name.words, {"rx", "rx1", "band", "spacing", "separation"});
    return !other && (holds(name.words, FrequencyWords) || startsWith(name.words, {"tx2"})) ? 1 : 0;
}

/// Prefers columns that start with a word of the list to those that only contain one.
FitOf fitOfWords(WordList list)
{
    return [list](const EndWords &name) {
        return startsWith(name.words, list) ? 2 : holds(name.words, list) ? 1 : 0;
    };
}

Fit fitOfLinkName(const EndWords &name)
{
    static const std::vector<Words> ByRank = {
        {"name"},        {"link"},      {"link", "name"}, {"link", "id"}, {"id"},        {"hop"},
        {"hop", "name"}, {"hop", "id"}, {"path", "name"}, {"liaison"},    {"cml", "id"},
    };
    const auto found = std::find(ByRank.begin(), ByRank.end(), name.words);
    return static_cast<Fit>(ByRank.end() - found);
}

Fit fitOfBand(const EndWords &name)
{
    if (holds(name.words, {"width", "bandwidth", "spacing", "separation", "rx"}))
        return 0;
    const bool frequency = startsWith(name.words, FrequencyWords);
    if (frequency && name.words.size() >= 2 && name.words[1] == "band")
        return 3;
    return frequency ? 2 : startsWith(name.words, {"band"}) ? 1 : 0;
}

Fit fitOfLength(const EndWords &name)
{
    Words words = name.words;
    words.erase(std::remove_if(words.begin(), words.end(),
                               [](const std::string &word) {
                                   return metresPer(word) || isIn({"path", "link", "hop"}, word);
                               }),
                words.end());
    return words == Words{"length"} || words == Words{"pathlength"}   ? 2
           : words == Words{"distance"} || words == Words{"longueur"} ? 1
                                                                      : 0;
}

int identifierOf(const Names &names, LinkEndId end, const Vocabulary &vocabulary)
{
    return bestFit(names, end, [&vocabulary](const EndWords &name) {
        return fitOfIdentifier(name, vocabulary);
    });
}

/// The names of the columns of a position.
std::string namesOf(const PointFields &point, const std::vector<Field> &fields)
{
    const auto name = [&fields](int field) { return fields[static_cast<std::size_t>(field)].name; };
    return point.pair >= 0 ? name(point.pair) : name(point.x.value) + ", " + name(point.y.value);
}

[[noreturn]] void refuse(const FoundEnds &ends, const std::vector<Field> &fields,
                         const Vocabulary &vocabulary)
{
    const bool hasA = ends.points[0].found();
    if (hasA || ends.points[1].found())
        throw RefusedFile(Refusal::NoLinks, "MESS_TAB_ONE_END", {hasA ? "B" : "A"});
    const auto name = [&](LinkEndId end) {
        const int field = identifierOf(ends.names, end, vocabulary);
        return field < 0 ? std::string() : fields[static_cast<std::size_t>(field)].name;
    };
    if (const std::string a = name(LinkEndId::A), b = name(LinkEndId::B); !a.empty() && !b.empty())
        throw RefusedFile(Refusal::NoLinks, "MESS_TAB_ENDS_ONLY_NAMED", {a, b});
    FieldWords words;
    for (const Field &field : fields)
        words.emplace_back(separatedWords(field.name, vocabulary));
    if (const PointFields point = findPoint(words, fields, vocabulary); point.found())
        throw RefusedFile(Refusal::NoLinks, "MESS_TAB_SITES_NOT_LINKS", {namesOf(point, fields)});
    throw RefusedFile(Refusal::NoLinks, "MESS_TAB_NO_ENDS");
}

std::string findFormat(const TableProfile &table, bool numbered)
{
    std::vector<std::string> texts = table.header.titles;
    texts.push_back(table.sheet);
    for (const std::string &text : texts) {
        const Words words = wordsOf(text);
        for (const char *tool : {"asset", "atoll"}) {
            if (std::find(words.begin(), words.end(), tool) != words.end())
                return tool;
        }
    }
    return numbered ? "generic (numbered ends)" : "generic (ends side by side)";
}

QuantityField quantityField(int field, UnitOf unitOf, const std::vector<Field> &fields)
{
    return {field, field < 0
                       ? std::nullopt
                       : unitInName(nameWithUnit(fields[static_cast<std::size_t>(field)]), unitOf)};
}

LinkEndFields endFields(const Names &names, LinkEndId end, const PointFields &point,
                        const std::vector<Field> &all, const Vocabulary &vocabulary)
{
    const auto lengths = [&](const FitOf &fitOf) {
        return quantityField(bestFit(names, end, fitOf), metresPer, all);
    };
    LinkEndFields fields;
    fields.point = point;
    fields.identifier = identifierOf(names, end, vocabulary);
    fields.height = lengths(fitOfHeight);
    if (!fields.height.found())
        fields.seaLevelHeight = bestFit(names, end, fitOfSeaLevelHeight);
    fields.frequency = quantityField(bestFit(names, end, fitOfFrequency), megahertzPer, all);
    fields.azimuth = bestFit(names, end, fitOfWords(AzimuthWords));
    fields.tilt = bestFit(names, end, fitOfWords(TiltWords));
    fields.dx = lengths(fitOfWords(DxWords));
    fields.dy = lengths(fitOfWords(DyWords));
    return fields;
}

/// The common unit of both ends. Metres have priority because a small easting, near the false
/// origin, can also be read as degrees.
CoordinateUnit commonUnit(CoordinateUnit a, CoordinateUnit b)
{
    for (const CoordinateUnit unit : {CoordinateUnit::Meters, CoordinateUnit::Dms}) {
        if (a == unit || b == unit)
            return unit;
    }
    return CoordinateUnit::Degrees;
}

/// The layout with these ends, without the unit and system of the positions.
LinkLayout layoutOf(const TableProfile &table, const FoundEnds &ends, const Vocabulary &vocabulary)
{
    LinkLayout layout;
    const auto ofLink = [&](const FitOf &fitOf) {
        return bestFit(ends.names, LinkEndId::None, fitOf);
    };
    layout.ends = {endFields(ends.names, LinkEndId::A, ends.points[0], table.fields, vocabulary),
                   endFields(ends.names, LinkEndId::B, ends.points[1], table.fields, vocabulary)};
    for (std::size_t end = 0; end < layout.ends.size(); ++end) {
        if (ends.identifiers[end] >= 0)
            layout.ends[end].identifier = ends.identifiers[end];
    }
    layout.name = ofLink(fitOfLinkName);
    layout.band = quantityField(ofLink(fitOfBand), megahertzPer, table.fields);
    layout.length = quantityField(ofLink(fitOfLength), metresPer, table.fields);
    layout.format = findFormat(table, ends.areNumbered);
    return layout;
}

} // namespace

LinkLayout recogniseLinkLayout(const TableProfile &table, const Vocabulary &vocabulary)
{
    const FoundEnds ends = findPlacedEnds(table, vocabulary);
    if (!ends.found())
        refuse(ends, table.fields, vocabulary);
    LinkLayout layout = layoutOf(table, ends, vocabulary);
    layout.unit = commonUnit(findUnit(ends.points[0], table.fields, vocabulary),
                             findUnit(ends.points[1], table.fields, vocabulary));
    layout.epsg = findEpsg(table, ends.points[0], layout.unit);
    return layout;
}

std::optional<LinkLayout> recogniseNamedLinks(const TableProfile &table,
                                              const Vocabulary &vocabulary,
                                              const SiteDirectory &sites,
                                              const TableDeclaration &ofSites)
{
    const FoundEnds ends = findNamedEnds(table, vocabulary, sites);
    if (!ends.found())
        return std::nullopt;
    LinkLayout layout = layoutOf(table, ends, vocabulary);
    layout.unit = ofSites.unit;
    layout.epsg = ofSites.epsg;
    return layout;
}

bool holdsLinks(const TableProfile &table, const Vocabulary &vocabulary)
{
    return namesBothEnds(table.header) && findPlacedEnds(table, vocabulary).found();
}

int linkSuitability(const TableProfile &start, const Vocabulary &vocabulary)
{
    constexpr uint64_t MinRows = 3;
    if (!namesBothEnds(start.header))
        return 0;
    return (findPlacedEnds(start, vocabulary).found() ? 4 : 2) +
           (start.rowCount >= MinRows ? 1 : 0);
}

} // namespace vlt::driver
