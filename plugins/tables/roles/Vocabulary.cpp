#include "plugins/tables/roles/Vocabulary.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/roles/NameWords.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <numbers>
#include <numeric>
#include <stdexcept>
#include <tuple>

namespace vlt::driver {

namespace {

using Json = nlohmann::json;

struct Unit
{
    const char *name;
    std::optional<double> WordMeaning::*member;
    double size;
};

constexpr std::size_t PhrasesExpected = 6000;
constexpr double FootM = 0.3048;
constexpr double MileM = 1609.344;

constexpr std::array Units = {
    Unit{"m", &WordMeaning::metres, 1},
    Unit{"dm", &WordMeaning::metres, 0.1},
    Unit{"cm", &WordMeaning::metres, 0.01},
    Unit{"mm", &WordMeaning::metres, 0.001},
    Unit{"km", &WordMeaning::metres, 1000},
    Unit{"ft", &WordMeaning::metres, FootM},
    Unit{"mi", &WordMeaning::metres, MileM},
    Unit{"Hz", &WordMeaning::megahertz, 1e-6},
    Unit{"kHz", &WordMeaning::megahertz, 1e-3},
    Unit{"MHz", &WordMeaning::megahertz, 1},
    Unit{"GHz", &WordMeaning::megahertz, 1000},
    Unit{"THz", &WordMeaning::megahertz, 1e6},
    Unit{"deg", &WordMeaning::degrees, 1},
    Unit{"microdeg", &WordMeaning::degrees, 1e-6},
    Unit{"grad", &WordMeaning::degrees, 0.9},
    Unit{"rad", &WordMeaning::degrees, 180 / std::numbers::pi},
};

constexpr std::array<std::pair<const char *, CoordinatePart>, 4> Parts = {{
    {"degrees", CoordinatePart::Degrees},
    {"minutes", CoordinatePart::Minutes},
    {"seconds", CoordinatePart::Seconds},
    {"hemisphere", CoordinatePart::Hemisphere},
}};

/// Calls an action with every text of a list, or of lists by language.
template<typename Action>
void forEachText(const Json &texts, Action action)
{
    if (texts.is_string()) {
        action(texts.get_ref<const std::string &>());
        return;
    }
    for (const Json &part : texts)
        forEachText(part, action);
}

/// Calls an action with language and text of every text in lists by language; those of a list
/// without languages are of "any".
template<typename Action>
void forEachLanguage(const Json &lists, Action action)
{
    if (!lists.is_object()) {
        forEachText(lists, [&](const std::string &text) { action("any", text); });
        return;
    }
    for (const auto &[language, texts] : lists.items())
        forEachText(texts, [&, of = language](const std::string &text) { action(of, text); });
}

std::string joined(const std::vector<std::string> &words)
{
    return std::accumulate(words.begin(), words.end(), std::string());
}

/// The member of an object; null if there is none.
const Json *memberOf(const Json &object, const char *name)
{
    const auto found = object.find(name);
    return found == object.end() ? nullptr : &*found;
}

ValueTest valueTestOf(const Json &test)
{
    ValueTest read;
    const auto number = [&test](const char *name) {
        const Json *found = memberOf(test, name);
        return found ? std::optional(found->get<double>()) : std::nullopt;
    };
    read.minimum = number("min");
    read.maximum = number("max");
    const Json *whole = memberOf(test, "whole");
    read.isWhole = whole && whole->get<bool>();
    if (const Json *words = memberOf(test, "words"))
        forEachText(*words, [&read](const std::string &word) { read.words.insert(folded(word)); });
    return read;
}

/// Throws Json::exception or std::invalid_argument if the layout is not one.
KnownTable knownTableOf(const Json &layout)
{
    KnownTable table;
    table.name = layout.at("name").get<std::string>();
    table.holdsLinks = layout.at("kind").get<std::string>() == "links";
    for (const Json &column : layout.at("columns"))
        table.columns.push_back(column.is_null() ? std::string() : column.get<std::string>());
    const Json *tests = memberOf(layout, "tests");
    if (!tests || tests->empty()) // any table of that width would do
        throw std::invalid_argument("the layout \"" + table.name + "\" has no tests");
    for (const auto &[column, test] : tests->items())
        table.tests.emplace(std::stoul(column), valueTestOf(test));
    return table;
}

/// A section of the vocabulary; one that is missing is empty.
const Json &sectionOf(const Json &root, const char *name)
{
    static const Json Nothing = Json::object();
    const Json *found = memberOf(root, name);
    return found && found->is_structured() ? *found : Nothing;
}

/// Puts the systems of a section before others.
void addSystems(const Json &section, std::vector<NamedSystem> &others)
{
    std::vector<NamedSystem> systems;
    for (const Json &entry : section) {
        const Json *epsg = entry.is_object() ? memberOf(entry, "epsg") : nullptr;
        const Json *names = epsg ? memberOf(entry, "names") : nullptr;
        if (!names || !epsg->is_number_integer())
            throw std::invalid_argument("a system needs \"epsg\" and \"names\"");
        systems.push_back({std::to_string(epsg->get<int>()), {}, {}});
        if (const Json *range = memberOf(entry, "northX"))
            systems.back().northX =
                CoordinateRange{range->at("easting").get<std::array<double, 2>>(),
                                range->at("northing").get<std::array<double, 2>>()};
        forEachText(*names, [&systems](const std::string &name) {
            systems.back().names.push_back(nameWords(name));
        });
    }
    others.insert(others.begin(), systems.begin(), systems.end());
}

} // namespace

/// Changes the meaning of a phrase, whose words need not be separated.
template<typename Change>
void Vocabulary::addPhrase(const std::string &phrase, Change change)
{
    const std::vector<std::string> words = nameWords(phrase);
    if (words.empty())
        return;
    const std::string together = joined(words);
    change(m_phrases[together]);
    m_longestTogether = std::max(m_longestTogether, together.size());
    m_longestPhrase = std::max(m_longestPhrase, words.size());
}

/// The bit of a language; none for "any", and beyond the number of bits.
std::uint32_t Vocabulary::languageBit(const std::string &language)
{
    constexpr std::size_t MaxLanguages = 32;
    if (language == "any")
        return 0;
    auto found = std::find(m_languages.begin(), m_languages.end(), language);
    if (found == m_languages.end() && m_languages.size() < MaxLanguages)
        found = m_languages.insert(found, language);
    return found == m_languages.end() ? 0 : std::uint32_t{1} << (found - m_languages.begin());
}

void Vocabulary::addHemispheres(const Json &hemispheres)
{
    for (const auto &[name, direction, withO] :
         {std::tuple("north", Direction::North, static_cast<std::uint32_t *>(nullptr)),
          std::tuple("south", Direction::South, static_cast<std::uint32_t *>(nullptr)),
          std::tuple("east", Direction::East, &m_eastO),
          std::tuple("west", Direction::West, &m_westO)}) {
        const auto addWord = [this, of = direction, to = withO](const std::string &language,
                                                                const std::string &word) {
            const std::uint32_t bit = languageBit(language);
            m_hemispheres.add(of, word, bit);
            if (to && word == "O")
                *to |= bit;
        };
        if (const Json *texts = memberOf(hemispheres, name))
            forEachLanguage(*texts, addWord);
    }
}

void Vocabulary::addRoles(const Json &root)
{
    const Json &roles = sectionOf(root, "roles");
    m_phrases.reserve(PhrasesExpected);
    for (const auto &[name, texts] : roles.items()) {
        const Role role = roleOfName(name);
        if (role == Role::None)
            throw std::invalid_argument("the role \"" + name + "\" is not known");
        forEachLanguage(
            texts, [&, isOf = role](const std::string &language, const std::string &phrase) {
                addPhrase(phrase, [isOf, bit = languageBit(language)](WordMeaning &meaning) {
                    meaning.roles.set(static_cast<std::size_t>(isOf));
                    meaning.languages |= bit;
                });
            });
    }
    const Json &exclusions = sectionOf(root, "not");
    for (const auto &[name, texts] : exclusions.items()) {
        auto &forbidden = m_forbidden[roleOfName(name)];
        forEachText(texts, [&forbidden](const std::string &phrase) {
            forbidden.insert(joined(nameWords(phrase)));
        });
    }
}

void Vocabulary::addPartsOfNames(const Json &root)
{
    const auto addTo = [&](const Json &texts, auto change) {
        forEachText(texts, [&](const std::string &phrase) { addPhrase(phrase, change); });
    };
    const Json &parts = sectionOf(root, "parts");
    for (const auto &[name, part] : Parts) {
        if (const Json *texts = memberOf(parts, name))
            addTo(*texts, [part = part](WordMeaning &meaning) { meaning.part = part; });
    }
    const Json &signs = sectionOf(root, "partSigns");
    for (const auto &[name, part] : Parts) {
        if (const Json *texts = memberOf(signs, name))
            forEachText(*texts, [this, of = part](const std::string &sign) {
                m_partSigns.emplace(folded(sign), of);
            });
    }
    const Json &ends = sectionOf(root, "ends");
    if (const Json *texts = memberOf(ends, "a"))
        addTo(*texts, [](WordMeaning &meaning) { meaning.isEndA = true; });
    if (const Json *texts = memberOf(ends, "b"))
        addTo(*texts, [](WordMeaning &meaning) { meaning.isEndB = true; });
    if (const Json *texts = memberOf(ends, "weak"))
        addTo(*texts, [](WordMeaning &meaning) { meaning.isWeakEnd = true; });
    addTo(sectionOf(root, "sector"), [](WordMeaning &meaning) { meaning.isSector = true; });
    addTo(sectionOf(root, "sexagesimal"),
          [](WordMeaning &meaning) { meaning.isSexagesimal = true; });
    addTo(sectionOf(root, "antennaKind"),
          [](WordMeaning &meaning) { meaning.isAntennaKind = true; });
    addTo(sectionOf(root, "unitColumn"), [](WordMeaning &meaning) { meaning.isUnitColumn = true; });
    addTo(sectionOf(root, "downIsNegative"),
          [](WordMeaning &meaning) { meaning.isDownNegative = true; });
    addTo(sectionOf(root, "site"), [](WordMeaning &meaning) { meaning.isSite = true; });
    const Json &units = sectionOf(root, "units");
    for (const Unit &unit : Units) {
        if (const Json *texts = memberOf(units, unit.name))
            addTo(*texts, [&unit](WordMeaning &meaning) { meaning.*unit.member = unit.size; });
    }
    if (const Json *texts = memberOf(units, "other"))
        addTo(*texts, [](WordMeaning &meaning) { meaning.isOtherUnit = true; });
    int sector = 0;
    for (const Json &names : sectionOf(root, "sectorNames")) {
        ++sector;
        forEachText(names, [&](const std::string &n) { m_sectorNames.emplace(folded(n), sector); });
    }
    for (const Json &words : sectionOf(root, "sequences")) {
        std::vector<std::string> &sequence = m_sequences.emplace_back();
        forEachText(words, [&](const std::string &w) { sequence.push_back(joined(nameWords(w))); });
    }
}

void Vocabulary::addWordsOfValues(const Json &root)
{
    for (const auto &[name, to] : {std::pair("missing", &m_missing), std::pair("total", &m_totals),
                                   std::pair("omni", &m_omni), std::pair("yes", &m_yes)})
        forEachText(sectionOf(root, name),
                    [to = to](const std::string &word) { to->insert(word); });
}

void Vocabulary::add(std::string_view text)
{
    Json root;
    try {
        root = Json::parse(text);
    } catch (const Json::exception &error) {
        throw std::invalid_argument(error.what());
    }
    if (!root.is_object())
        throw std::invalid_argument("not an object");
    addRoles(root);
    addHemispheres(sectionOf(root, "hemispheres"));
    addPartsOfNames(root);
    addSystems(sectionOf(root, "systems"), m_systems);
    addSystems(sectionOf(root, "datums"), m_datums);
    addWordsOfValues(root);
    try {
        for (const Json &layout : sectionOf(root, "layouts"))
            m_knownTables.push_back(knownTableOf(layout));
    } catch (const std::exception &error) { // of the library too, whose texts name the member
        throw std::invalid_argument(std::string("layouts: ") + error.what());
    }
}

const WordMeaning *Vocabulary::find(std::string_view joinedWords) const
{
    if (joinedWords.size() > m_longestTogether) // a text of a cell may be long
        return nullptr;
    const auto found = m_phrases.find(std::string(joinedWords));
    return found == m_phrases.end() ? nullptr : &found->second;
}

bool Vocabulary::forbids(Role role, const std::vector<std::string> &words) const
{
    const auto found = m_forbidden.find(role);
    if (found == m_forbidden.end())
        return false;
    for (std::size_t first = 0; first < words.size(); ++first) {
        std::string phrase;
        for (std::size_t at = first; at < words.size() && at < first + 3; ++at) {
            phrase += words[at];
            if (found->second.contains(phrase))
                return true;
        }
    }
    return false;
}

int Vocabulary::signOfO(const std::vector<std::vector<std::string>> &names) const
{
    std::vector<std::size_t> counts(m_languages.size());
    for (const std::vector<std::string> &words : names) {
        std::uint32_t languages = 0;
        for (std::size_t first = 0; first < words.size(); ++first) {
            std::string phrase;
            for (std::size_t at = first; at < words.size() && at < first + m_longestPhrase; ++at) {
                phrase += words[at];
                if (const WordMeaning *meaning = find(phrase))
                    languages |= meaning->languages;
            }
        }
        for (std::size_t bit = 0; bit < counts.size(); ++bit)
            counts[bit] += languages >> bit & 1;
    }
    const auto best = std::max_element(counts.begin(), counts.end());
    if (best == counts.end() || *best == 0)
        return 0;
    std::uint32_t likely = 0;
    for (std::size_t bit = 0; bit < counts.size(); ++bit)
        likely |= counts[bit] == *best ? std::uint32_t{1} << bit : 0;
    return signOfO(likely);
}

int Vocabulary::signOfO(std::uint32_t languages) const
{
    if (languages == 0)
        return 0;
    return (languages & ~m_westO) == 0 ? -1 : (languages & ~m_eastO) == 0 ? 1 : 0;
}

int Vocabulary::numberOfSectorName(std::string_view word) const
{
    const auto found = m_sectorNames.find(folded(word));
    return found == m_sectorNames.end() ? 0 : found->second;
}

std::optional<CoordinatePart> Vocabulary::partOfSign(std::string_view sign) const
{
    const auto found = m_partSigns.find(folded(sign));
    return found == m_partSigns.end() ? std::nullopt : std::optional(found->second);
}

std::vector<SequencePlace> Vocabulary::placesInSequences(std::string_view joinedWords) const
{
    std::vector<SequencePlace> places;
    for (std::size_t i = 0; i < m_sequences.size(); ++i) {
        const auto found = std::find(m_sequences[i].begin(), m_sequences[i].end(), joinedWords);
        if (found != m_sequences[i].end())
            places.push_back({i, static_cast<int>(found - m_sequences[i].begin()) + 1});
    }
    return places;
}

void ValueWordSet::insert(std::string_view word)
{
    const std::string key = folded(word);
    if (!key.empty())
        m_firstBytes.set(static_cast<unsigned char>(key[0]));
    m_words.insert(key);
}

bool ValueWordSet::contains(std::string_view text) const
{
    constexpr std::size_t MaxSize = 40; // longer texts are none of these
    text = trimmed(text);
    if (text.empty() || text.size() > MaxSize)
        return false;
    // what folding makes of a character of ASCII does not depend on what follows it
    const bool mayBe = (text[0] & 0x80) != 0 ||
                       m_firstBytes[static_cast<unsigned char>(folded(text.substr(0, 1))[0])];
    return mayBe && m_words.contains(folded(text));
}

} // namespace vlt::driver
