#include "plugins/tables/links/LinkColumnName.h"

#include "plugins/tables/roles/NameMatch.h"

#include <algorithm>
#include <optional>

namespace vlt::driver {

namespace {

using Words = std::vector<std::string>;

LinkEndId endOf(const WordMeaning *meaning)
{
    return !meaning          ? LinkEndId::None
           : meaning->isEndA ? LinkEndId::A
           : meaning->isEndB ? LinkEndId::B
                             : LinkEndId::None;
}

bool isNumberOfEnd(const std::string &word, EndStyle style)
{
    const bool zero = style == EndStyle::Zero;
    return word == (zero ? "0" : "1") || word == (zero ? "1" : "2");
}

/// A word, or some in a row, that may name an end.
struct EndToken
{
    std::size_t first = 0;
    std::size_t count = 1;
    LinkEndId end = LinkEndId::None;
    bool isNumber = false;
    bool isWeak = false;
    bool isInPhrase = false; ///< part of a phrase for a value, such as "TX MHz"
};

class NameReader
{
public:
    NameReader(const Words &words, const Vocabulary &vocabulary)
        : m_words(words)
        , m_vocabulary(vocabulary)
        , m_isInPhrase(words.size())
        , m_plainSize(words.size())
    {
        while (m_plainSize > 0 && isUnit(m_words[m_plainSize - 1]))
            --m_plainSize;
        forEachPhrase([this](std::size_t first, std::size_t count, const WordMeaning &meaning) {
            if (count > 1 && meaning.roles.any())
                std::fill_n(m_isInPhrase.begin() + static_cast<std::ptrdiff_t>(first), count, true);
        });
        forEachPhrase([this](std::size_t first, std::size_t count, const WordMeaning &meaning) {
            const bool isLonger = !m_tokens.empty() && m_tokens.back().first == first;
            if (isLonger && endOf(&meaning) != LinkEndId::None)
                m_tokens.pop_back();
            addToken(first, count, meaning);
        });
    }

    const std::vector<EndToken> &tokens() const { return m_tokens; }

    std::optional<EndToken> find(EndStyle style) const
    {
        const std::optional<EndToken> named = findNamed();
        const std::optional<EndToken> number = findNumber(style);
        if (style != EndStyle::Names && number)
            return number;
        return named && (!named->isInPhrase || !number) ? named : number;
    }

private:
    /// Calls an action with all words and phrases that the vocabulary knows.
    template<typename Action>
    void forEachPhrase(Action action) const
    {
        for (std::size_t first = 0; first < m_words.size(); ++first) {
            std::string joined;
            for (std::size_t count = 1;
                 count <= m_vocabulary.longestPhrase() && first + count <= m_words.size();
                 ++count) {
                joined += m_words[first + count - 1];
                if (const WordMeaning *meaning = m_vocabulary.find(joined))
                    action(first, count, *meaning);
            }
        }
    }

    bool isUnit(const std::string &word) const
    {
        const WordMeaning *meaning = m_vocabulary.find(word);
        return meaning && meaning->isUnit() && endOf(meaning) == LinkEndId::None;
    }

    void addToken(std::size_t first, std::size_t count, const WordMeaning &meaning)
    {
        const LinkEndId end = endOf(&meaning);
        const bool isWithinLast = !m_tokens.empty() &&
                                  first < m_tokens.back().first + m_tokens.back().count &&
                                  first > m_tokens.back().first;
        if (end == LinkEndId::None || isWithinLast)
            return;
        const auto begin = m_isInPhrase.begin() + static_cast<std::ptrdiff_t>(first);
        const bool isInPhrase = std::all_of(begin, begin + static_cast<std::ptrdiff_t>(count),
                                            [](bool isIn) { return isIn; });
        const bool isWeak = meaning.isWeakEnd || meaning.part.has_value();
        if (isWeak && first > 0 && first + count < m_plainSize) // "height of the antenna"
            return;
        m_tokens.push_back({first, count, end, false, isWeak, isInPhrase});
    }

    /// The first of the best tokens, but the last one if all are weak.
    std::optional<EndToken> findNamed() const
    {
        const EndToken *best = nullptr;
        const auto rank = [](const EndToken &token) {
            return token.isInPhrase ? 0 : token.isWeak ? 1 : 2;
        };
        for (const EndToken &token : m_tokens) {
            if (!best || rank(token) > rank(*best) || (rank(token) == 1 && rank(*best) == 1))
                best = &token;
        }
        return best ? std::optional(*best) : std::nullopt;
    }

    /// The last digit outside of phrases: "TX1 (MHz) 2", "Azimuth (deg 1) 2".
    std::optional<EndToken> findNumber(EndStyle style) const
    {
        for (std::size_t at = m_words.size(); at-- > 0;) {
            if (!isNumberOfEnd(m_words[at], style) || m_isInPhrase[at])
                continue;
            const bool isA = m_words[at] == (style == EndStyle::Zero ? "0" : "1");
            return EndToken{at, 1, isA ? LinkEndId::A : LinkEndId::B, true};
        }
        return std::nullopt;
    }

    const Words &m_words;
    const Vocabulary &m_vocabulary;
    std::vector<bool> m_isInPhrase;
    std::size_t m_plainSize; ///< number of words before the units at the end
    std::vector<EndToken> m_tokens;
};

void eraseWords(Words &words, std::size_t first, std::size_t count)
{
    const auto begin = words.begin() + static_cast<std::ptrdiff_t>(first);
    words.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
}

/// The size of the part before the word for an end in an unknown word; 0 if there is none.
std::size_t sizeBeforeEnd(const std::string &word, const Vocabulary &vocabulary)
{
    if (vocabulary.find(word))
        return 0;
    for (std::size_t cut = 1; cut < word.size(); ++cut) {
        const WordMeaning *before = vocabulary.find(word.substr(0, cut));
        if (before && before->roles.any() &&
            endOf(vocabulary.find(word.substr(cut))) != LinkEndId::None)
            return cut;
    }
    return 0;
}

bool isEnd(const std::string &word, const Vocabulary &vocabulary)
{
    return isNumberOfEnd(word, EndStyle::Numbers) || isNumberOfEnd(word, EndStyle::Zero) ||
           endOf(vocabulary.find(word)) != LinkEndId::None;
}

/// A name without the end behind an arrow: "Azimuth 1" for "Azimuth 1→2", whose value belongs to
/// the first end.
std::string withoutEndOfArrow(const std::string &name, const Vocabulary &vocabulary)
{
    constexpr std::size_t MaxWords = 2; // "Site 2"
    for (const std::string_view arrow : {"\u2192", "\u21D2", "\u2794", "->", "=>", ">"}) {
        const std::size_t at = name.find(arrow);
        if (at == std::string::npos)
            continue;
        const Words before = separatedWords(name.substr(0, at), vocabulary);
        const std::string rest = name.substr(at + arrow.size());
        const Words after = separatedWords(rest, vocabulary);
        if (before.empty() || !isEnd(before.back(), vocabulary))
            return name;
        for (std::size_t i = 0; i < std::min(MaxWords, after.size()); ++i) {
            if (!isEnd(after[i], vocabulary) || after[i] == before.back())
                continue;
            std::string first = name.substr(0, name.find_last_not_of(" -=", at - 1) + 1);
            for (std::size_t next = i + 1; next < after.size(); ++next)
                first += ' ' + after[next];
            return first;
        }
        return name;
    }
    return name;
}

} // namespace

Words linkWords(const std::string &name, const Vocabulary &vocabulary)
{
    Words words;
    for (std::string &word : separatedWords(withoutEndOfArrow(name, vocabulary), vocabulary)) {
        const std::size_t cut = sizeBeforeEnd(word, vocabulary);
        if (cut > 0)
            words.push_back(word.substr(0, cut));
        words.push_back(word.substr(cut));
    }
    return words;
}

LinkColumnName readColumnName(const Words &words, EndStyle style, const Vocabulary &vocabulary)
{
    LinkColumnName name;
    name.words = words;
    const std::optional<EndToken> token = NameReader(words, vocabulary).find(style);
    if (!token)
        return name;
    name.end = token->end;
    name.isNumbered = token->isNumber;
    name.isWeak = token->isWeak;
    name.endIndex = token->first;
    eraseWords(name.words, token->first, token->count);
    if (name.words.size() > 1)
        std::erase_if(name.words, [&vocabulary](const std::string &word) {
            const WordMeaning *meaning = vocabulary.find(word);
            return meaning && meaning->isWeakEnd && !meaning->part && meaning->roles.none();
        });
    return name;
}

Words withoutEnds(const Words &words, const Vocabulary &vocabulary)
{
    Words rest = words;
    const NameReader reader(words, vocabulary);
    std::for_each(reader.tokens().rbegin(), reader.tokens().rend(),
                  [&rest](const auto &token) { eraseWords(rest, token.first, token.count); });
    return rest;
}

} // namespace vlt::driver
