#include "plugins/tables/roles/NameMatch.h"

#include "plugins/tables/roles/NameWords.h"
#include "plugins/tables/roles/UnitScale.h"

#include <algorithm>
#include <charconv>

namespace vlt::driver {

namespace {

constexpr std::size_t MinFusedSize = 4; ///< bytes of words that are written together
constexpr int FullStrength = 100;
constexpr int StrengthBesideKnown = 90;
constexpr int StrengthBesideUnknown = 65;
constexpr int StrengthPerUnknown = 10;
constexpr int MinStrength = 25;
constexpr int MaxSector = 99;

bool isNumber(const std::string &word)
{
    return !word.empty() && word.find_first_not_of("0123456789") == std::string::npos;
}

/// Appends the parts of a word that is written together, if the vocabulary knows all of them.
bool separate(const std::string &word, const Vocabulary &vocabulary, int depth,
              std::vector<std::string> &parts)
{
    for (std::size_t cut = std::min(word.size() - 1, vocabulary.longestTogether()); cut >= 2;
         --cut) {
        const std::string before = word.substr(0, cut);
        const WordMeaning *first = vocabulary.find(before);
        if (!first || !(first->roles.any() || first->isSite || first->isSector || first->isEndA ||
                        first->isEndB))
            continue;
        const std::string after = word.substr(cut);
        const WordMeaning *second = vocabulary.find(after);
        // a single letter is an end of a link only
        const bool known = second && (after.size() > 1 ? !second->isUnit() || second->roles.any()
                                                       : second->isEndA || second->isEndB);
        if (known && (after.size() > 1 || before.size() > 2)) {
            parts.push_back(before);
            parts.push_back(after);
            return true;
        }
        std::vector<std::string> further;
        if (depth > 0 && after.size() >= MinFusedSize &&
            separate(after, vocabulary, depth - 1, further)) {
            parts.push_back(before);
            parts.insert(parts.end(), further.begin(), further.end());
            return true;
        }
    }
    return false;
}

/// The words of a name without those of a phrase.
class Remainder
{
public:
    Remainder(const std::vector<std::string> &words, std::size_t first, std::size_t count,
              const Vocabulary &vocabulary)
        : m_words(words)
        , m_first(first)
        , m_end(first + count)
        , m_vocabulary(vocabulary)
        , m_isTaken(words.size())
    {
        std::fill(m_isTaken.begin() + static_cast<std::ptrdiff_t>(first),
                  m_isTaken.begin() + static_cast<std::ptrdiff_t>(m_end), true);
        findNeutral();
    }

    /// The number of a sector: a number beside a word for sectors or beside the phrase, a letter
    /// beside a word for sectors, or a name such as alpha. -1 for none.
    int takeSector()
    {
        if (takeAllSectors())
            return -1;
        for (std::size_t at = 0; at < m_words.size(); ++at) {
            if (m_isTaken[at])
                continue;
            const bool besideWord = isSectorWord(at - 1) || isSectorWord(at + 1);
            const bool besidePhrase = at + 1 == m_first || at == m_end;
            const std::string &word = m_words[at];
            int number = -1;
            if (isNumber(word) && (besideWord || besidePhrase))
                std::from_chars(word.data(), word.data() + word.size(), number);
            else if (word.size() == 1 && word[0] >= 'a' && word[0] <= 'f' &&
                     (isSectorWord(at - 1) || (besidePhrase && at == lastPlainWord())))
                number = word[0] - 'a' + 1;
            else if (const int named = m_vocabulary.numberOfSectorName(word); named > 0)
                number = named;
            if (number < 0 || number > MaxSector)
                continue;
            m_isTaken[at] = true;
            return number;
        }
        return -1;
    }

    /// The frequency band in MHz that a number says: 900 in "900 Azimuth"; 0 for none.
    int takeBand()
    {
        constexpr int MinBand = 400;
        constexpr int MaxBand = 6000;
        constexpr int Step = 50; // between the names of bands
        for (std::size_t at = 0; at < m_words.size(); ++at) {
            const std::string &word = m_words[at];
            int number = 0;
            if (!m_isTaken[at] && isNumber(word))
                std::from_chars(word.data(), word.data() + word.size(), number);
            if (number < MinBand || number > MaxBand || number % Step != 0)
                continue;
            m_isTaken[at] = true;
            return number;
        }
        return 0;
    }

    /// The part of a coordinate that a word or two words say: "deg", "E/W".
    CoordinatePart takePart()
    {
        for (std::size_t first = 0; first < m_words.size(); ++first) {
            std::string joined;
            for (std::size_t at = first; at < m_words.size() && at < first + 2 && !m_isTaken[at];
                 ++at) {
                joined += m_words[at];
                const WordMeaning *meaning = m_vocabulary.find(joined);
                if (!meaning || !meaning->part)
                    continue;
                std::fill(m_isTaken.begin() + static_cast<std::ptrdiff_t>(first),
                          m_isTaken.begin() + static_cast<std::ptrdiff_t>(at + 1), true);
                return *meaning->part;
            }
        }
        return CoordinatePart::Whole;
    }

    /// The number of words that are not understood.
    int unknownWords() const
    {
        int count = 0;
        for (std::size_t at = 0; at < m_words.size(); ++at)
            count += !m_isTaken[at] && !m_isNeutral[at] ? 1 : 0;
        return count;
    }

    bool isEmpty() const
    {
        return std::find(m_isTaken.begin(), m_isTaken.end(), false) == m_isTaken.end();
    }

    std::string text() const
    {
        std::string rest;
        for (std::size_t at = 0; at < m_words.size(); ++at) {
            const WordMeaning *meaning = m_vocabulary.find(m_words[at]);
            if (!m_isTaken[at] && !(meaning && meaning->isUnit()))
                rest += m_words[at] + ' ';
        }
        return rest;
    }

private:
    /// The index of the last word that is no unit.
    std::size_t lastPlainWord() const
    {
        std::size_t last = m_words.size() - 1;
        while (last > 0 && m_isUnit[last])
            --last;
        return last;
    }

    bool isSectorWord(std::size_t at) const
    {
        return at < m_words.size() && !m_isTaken[at] && m_vocabulary.isSectorWord(m_words[at]);
    }

    /// Takes the numbers of a column that holds the values of all sectors: "S1 S2", "1/2/3".
    bool takeAllSectors()
    {
        for (std::size_t first = 0; first < m_words.size(); ++first) {
            const std::size_t step = isSectorWord(first) ? 2 : 1;
            const auto isNext = [&](std::size_t at, int number) {
                return at + step <= m_words.size() && !m_isTaken[at] && !m_isTaken[at + step - 1] &&
                       (step == 1 || m_words[at] == m_words[first]) &&
                       m_words[at + step - 1] == std::to_string(number);
            };
            int count = 0;
            std::size_t end = first;
            for (; isNext(end, count + 1); end += step)
                ++count;
            if (count < (step == 2 ? 2 : 3))
                continue;
            std::fill(m_isTaken.begin() + static_cast<std::ptrdiff_t>(first),
                      m_isTaken.begin() + static_cast<std::ptrdiff_t>(end), true);
            return true;
        }
        return false;
    }

    /// Marks the words of sites, sectors and units; some of them are phrases.
    void findNeutral()
    {
        constexpr std::size_t MaxWords = 4;
        m_isNeutral.resize(m_words.size());
        m_isUnit.resize(m_words.size());
        for (std::size_t first = 0; first < m_words.size(); ++first) {
            std::string joined;
            for (std::size_t at = first;
                 at < m_words.size() && at < first + MaxWords && !m_isTaken[at]; ++at) {
                joined += m_words[at];
                const WordMeaning *meaning = m_vocabulary.find(joined);
                if (meaning && meaning->isUnit())
                    m_isUnit[at] = true;
                const bool isNeutral = meaning ? meaning->isSite || meaning->isSector ||
                                                     meaning->isSexagesimal || meaning->isUnit()
                                               : at == first && factorOfScale(joined);
                if (isNeutral)
                    std::fill(m_isNeutral.begin() + static_cast<std::ptrdiff_t>(first),
                              m_isNeutral.begin() + static_cast<std::ptrdiff_t>(at + 1), true);
            }
        }
    }

    const std::vector<std::string> &m_words;
    std::size_t m_first;
    std::size_t m_end;
    const Vocabulary &m_vocabulary;
    std::vector<bool> m_isTaken;
    std::vector<bool> m_isNeutral;
    std::vector<bool> m_isUnit; ///< also the last word of a phrase that is one
};

bool isOfAntenna(Role role)
{
    return role == Role::AntennaHeight || role == Role::Azimuth || role == Role::MechanicalTilt ||
           role == Role::ElectricalTilt || role == Role::Tilt || role == Role::BeamWidth;
}

bool isCoordinate(Role role)
{
    return role >= Role::Longitude && role <= Role::Y;
}

NameMatch matchOf(Role role, const std::vector<std::string> &words, std::size_t first,
                  std::size_t count, const Vocabulary &vocabulary)
{
    NameMatch match;
    match.role = role;
    Remainder remainder(words, first, count, vocabulary);
    match.sector = remainder.takeSector();
    if (isOfAntenna(role))
        match.band = remainder.takeBand();
    if (isCoordinate(role))
        match.part = remainder.takePart();
    const int unknown = remainder.unknownWords();
    match.strength =
        unknown > 0 ? std::max(MinStrength, StrengthBesideUnknown - StrengthPerUnknown * unknown)
        : remainder.isEmpty() ? FullStrength
                              : StrengthBesideKnown;
    match.strength += static_cast<int>(count) - 1; // the longer phrase is the more precise one
    match.rest = remainder.text();
    return match;
}

/// The words of a name. A power of ten before a unit is one word, so that its digits are not taken
/// for the number of a sector, and the unit is the next one.
std::vector<std::string> wordsWithScale(std::string_view name, const Vocabulary &vocabulary)
{
    const std::optional<UnitScale> scale = findUnitScale(name);
    if (!scale)
        return nameWords(name);
    std::vector<std::string> unit = nameWords(name.substr(scale->end));
    for (const std::string_view sign : {"\u00B0", "\u00BA"}) {
        if (name.substr(scale->end).starts_with(sign))
            unit.insert(unit.begin(), "deg");
    }
    const WordMeaning *meaning = unit.empty() ? nullptr : vocabulary.find(unit.front());
    if (!meaning || !meaning->isUnit())
        return nameWords(name);
    std::vector<std::string> words = nameWords(name.substr(0, scale->begin));
    words.push_back(scale->word);
    words.insert(words.end(), unit.begin(), unit.end());
    return words;
}

} // namespace

std::vector<std::string> separatedWords(std::string_view name, const Vocabulary &vocabulary)
{
    constexpr std::size_t MaxWords = 24; // bounds the work for names of thousands of columns
    std::vector<std::string> words;
    for (std::string &word : wordsWithScale(name, vocabulary)) {
        if (words.size() >= MaxWords)
            break;
        if (word.size() < MinFusedSize || vocabulary.find(word) ||
            !separate(word, vocabulary, 1, words))
            words.push_back(std::move(word));
    }
    return words;
}

std::vector<NameMatch> matchName(const std::vector<std::string> &words,
                                 const Vocabulary &vocabulary)
{
    std::vector<NameMatch> matches;
    for (std::size_t first = 0; first < words.size(); ++first) {
        std::string joined;
        for (std::size_t count = 1;
             count <= vocabulary.longestPhrase() && first + count <= words.size(); ++count) {
            joined += words[first + count - 1];
            const WordMeaning *meaning = vocabulary.find(joined);
            if (!meaning || meaning->roles.none())
                continue;
            for (int i = 1; i < RoleCount; ++i) {
                const Role role = static_cast<Role>(i);
                if (!meaning->roles[static_cast<std::size_t>(i)] || vocabulary.forbids(role, words))
                    continue;
                // "Beam" may be a width, but "Beam 1 height" names the sector
                if (role == Role::BeamWidth && meaning->isSector && words.size() > 1)
                    continue;
                NameMatch match = matchOf(role, words, first, count, vocabulary);
                if (role == Role::AntennaHeight && joined.size() == 1 &&
                    match.strength < StrengthBesideKnown)
                    continue;
                const auto same =
                    std::find_if(matches.begin(), matches.end(),
                                 [role](const NameMatch &other) { return other.role == role; });
                if (same == matches.end())
                    matches.push_back(std::move(match));
                else if (match.strength > same->strength)
                    *same = std::move(match);
            }
        }
    }
    return matches;
}

std::optional<NameMatch> matchKindOfRows(const std::vector<std::string> &words,
                                         const Vocabulary &vocabulary)
{
    bool areSites = !words.empty();
    bool areSectors = !words.empty();
    for (const std::string &word : words) {
        const WordMeaning *meaning = vocabulary.find(word);
        areSites = areSites && meaning && meaning->isSite;
        areSectors = areSectors && meaning && meaning->isSector && word.size() > 1;
    }
    if (!areSites && !areSectors)
        return std::nullopt;
    NameMatch match;
    match.role = areSectors ? Role::SectorId : Role::SiteName;
    match.strength = StrengthBesideKnown;
    match.sector = -1;
    return match;
}

std::optional<double> unitOfName(const std::vector<std::string> &words,
                                 std::optional<double> WordMeaning::*unit,
                                 const Vocabulary &vocabulary)
{
    constexpr std::size_t MaxWords = 2; // "kHz" is split at its capital
    for (std::size_t first = 0; first < words.size(); ++first) {
        for (std::size_t count = std::min(MaxWords, words.size() - first); count > 0; --count) {
            const std::string joined = count == 1 ? words[first] : words[first] + words[first + 1];
            const WordMeaning *meaning = vocabulary.find(joined);
            if (!meaning || !(meaning->*unit))
                continue;
            const auto scale = first > 0 ? factorOfScale(words[first - 1]) : std::nullopt;
            return *(meaning->*unit) * scale.value_or(1);
        }
    }
    return std::nullopt;
}

bool saysDownIsNegative(const std::vector<std::string> &words, const Vocabulary &vocabulary)
{
    for (std::size_t first = 0; first < words.size(); ++first) {
        std::string joined;
        for (std::size_t at = first; at < words.size() && at < first + vocabulary.longestPhrase();
             ++at) {
            joined += words[at];
            const WordMeaning *meaning = vocabulary.find(joined);
            if (meaning && meaning->isDownNegative)
                return true;
        }
    }
    return false;
}

std::optional<double> metresOfUnit(std::string_view text, const Vocabulary &vocabulary)
{
    std::string joined;
    for (const std::string &word : nameWords(text))
        joined += word;
    const WordMeaning *meaning = vocabulary.find(joined);
    return meaning ? meaning->metres : std::nullopt;
}

double unitOfColumn(Role role, const std::vector<std::string> &words, const Vocabulary &vocabulary)
{
    switch (role) {
    case Role::AntennaHeight:
    case Role::GroundHeight:
    case Role::SeaLevelHeight:
        return unitOfName(words, &WordMeaning::metres, vocabulary).value_or(1);
    case Role::Azimuth:
    case Role::MechanicalTilt:
    case Role::ElectricalTilt:
    case Role::Tilt:
    case Role::BeamWidth:
        return unitOfName(words, &WordMeaning::degrees, vocabulary).value_or(1);
    default:
        return 1;
    }
}

} // namespace vlt::driver
