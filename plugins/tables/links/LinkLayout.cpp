#include "plugins/tables/links/LinkLayout.h"

#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/links/EndWords.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/table/HeaderWords.h"
#include "plugins/tables/values/Quantity.h"

#include <algorithm>
#include <functional>
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

/// How well a column fits; 0 if it does not. The column with the highest value is used, the first
/// one among equals.
using Fit = int;
using FitOf = std::function<Fit(const EndWords &name)>;

Fit fitOfIdentifier(const EndWords &name)
{
    static const std::vector<Words> Accepted = {{"site"},         {"name"},     {"id"},
                                                {"nom"},          {"station"},  {"node"},
                                                {"call", "sign"}, {"callsign"}, {"end"}};
    // "End" or "Start" alone may also be a date
    if (name.words.empty())
        return name.isNumbered || isIn({"start", "end"}, name.endWord) ? 0 : 1;
    const bool antenna = name.words == Words{"antenna"} && name.endIndex == 1 && !name.isNumbered;
    const bool accepted = std::find(Accepted.begin(), Accepted.end(), name.words) != Accepted.end();
    return accepted || antenna ? 1 : 0;
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

/// All column names, split into words.
using Names = std::vector<EndWords>;

/// The field of an end that fits best; -1 if none fits.
int bestFit(const Names &names, LinkEndId end, const FitOf &fitOf)
{
    int best = -1;
    Fit bestFit = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (const Fit fit = names[i].end == end ? fitOf(names[i]) : 0; fit > bestFit) {
            best = static_cast<int>(i);
            bestFit = fit;
        }
    }
    return best;
}

/// Reads the names in the header instead of those of the fields, because the number that makes the
/// name of a field unique does not name an end.
Names readNames(const TableProfile &table, EndStyle style)
{
    Names names;
    names.reserve(table.fields.size());
    for (const Field &field : table.fields) {
        const auto inHeader = table.header.names.find(field.column);
        const bool isNamed = inHeader != table.header.names.end();
        names.push_back(readEndWords(isNamed ? inHeader->second : std::string(), style));
    }
    return names;
}

PointFields findEnd(const Names &names, LinkEndId end, const std::vector<Field> &fields,
                    const Vocabulary &vocabulary)
{
    FieldWords words(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i].end == end)
            words[i] = names[i].words;
    }
    return findPoint(words, fields, vocabulary);
}

/// The coordinates of both ends, and the column names as read in the style of the table.
struct FoundEnds
{
    Names names;
    PointFields a;
    PointFields b;
    bool areNumbered = false;

    bool found() const { return a.found() && b.found(); }
};

FoundEnds findEnds(const TableProfile &table, EndStyle style, const Vocabulary &vocabulary)
{
    FoundEnds ends;
    ends.names = readNames(table, style);
    ends.a = findEnd(ends.names, LinkEndId::A, table.fields, vocabulary);
    ends.b = findEnd(ends.names, LinkEndId::B, table.fields, vocabulary);
    ends.areNumbered = ends.found() &&
                       ends.names[static_cast<std::size_t>(ends.a.xField())].isNumbered &&
                       ends.names[static_cast<std::size_t>(ends.b.xField())].isNumbered;
    return ends;
}

FoundEnds findEnds(const TableProfile &table, const Vocabulary &vocabulary)
{
    FoundEnds ends = findEnds(table, EndStyle::Names, vocabulary);
    if (!ends.found()) {
        if (FoundEnds zero = findEnds(table, EndStyle::Zero, vocabulary); zero.found())
            return zero;
    }
    if (!ends.found() || ends.areNumbered) {
        if (FoundEnds numbered = findEnds(table, EndStyle::Numbers, vocabulary); numbered.found())
            return numbered;
    }
    return ends;
}

[[noreturn]] void refuse(const FoundEnds &ends, const std::vector<Field> &fields,
                         const Vocabulary &vocabulary)
{
    if (ends.a.found() || ends.b.found())
        throw RefusedFile(Refusal::NoLinks, "MESS_TAB_ONE_END", {ends.a.found() ? "B" : "A"});
    FieldWords words;
    for (const Field &field : fields)
        words.emplace_back(separatedWords(field.name, vocabulary));
    if (findPoint(words, fields, vocabulary).found())
        throw RefusedFile(Refusal::NoLinks, "MESS_TAB_SITES_NOT_LINKS");
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
                        const std::vector<Field> &all)
{
    const auto lengths = [&](const FitOf &fitOf) {
        return quantityField(bestFit(names, end, fitOf), metresPer, all);
    };
    LinkEndFields fields;
    fields.point = point;
    fields.identifier = bestFit(names, end, fitOfIdentifier);
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

/// Whether a header has columns of both ends.
bool namesBothEnds(const Header &header)
{
    for (const EndStyle style : {EndStyle::Names, EndStyle::Zero}) {
        bool a = false;
        bool b = false;
        for (const auto &[column, name] : header.names) {
            const LinkEndId end = readEndWords(name, style).end;
            a = a || end == LinkEndId::A;
            b = b || end == LinkEndId::B;
        }
        if (a && b)
            return true;
    }
    return false;
}

} // namespace

LinkLayout recogniseLinkLayout(const TableProfile &table, const Vocabulary &vocabulary)
{
    const FoundEnds ends = findEnds(table, vocabulary);
    if (!ends.found())
        refuse(ends, table.fields, vocabulary);
    LinkLayout layout;
    const auto ofLink = [&](const FitOf &fitOf) {
        return bestFit(ends.names, LinkEndId::None, fitOf);
    };
    layout.ends = {endFields(ends.names, LinkEndId::A, ends.a, table.fields),
                   endFields(ends.names, LinkEndId::B, ends.b, table.fields)};
    layout.name = ofLink(fitOfLinkName);
    layout.band = quantityField(ofLink(fitOfBand), megahertzPer, table.fields);
    layout.length = quantityField(ofLink(fitOfLength), metresPer, table.fields);
    layout.unit = commonUnit(findUnit(ends.a, table.fields, vocabulary),
                             findUnit(ends.b, table.fields, vocabulary));
    layout.epsg = findEpsg(table, ends.a, layout.unit);
    layout.format = findFormat(table, ends.areNumbered);
    return layout;
}

bool holdsLinks(const TableProfile &table, const Vocabulary &vocabulary)
{
    return namesBothEnds(table.header) && findEnds(table, vocabulary).found();
}

int linkSuitability(const TableProfile &start, const Vocabulary &vocabulary)
{
    constexpr uint64_t MinRows = 3;
    if (!namesBothEnds(start.header))
        return 0;
    return (findEnds(start, vocabulary).found() ? 4 : 2) + (start.rowCount >= MinRows ? 1 : 0);
}

} // namespace vlt::driver
