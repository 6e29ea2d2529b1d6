#include "srs/SrsSearch.h"

#include "geodata/SrsDefinition.h"
#include "srs/TextDistance.h"

#include <QPromise>
#include <QStringList>
#include <QThreadPool>

#include <algorithm>
#include <limits>
#include <tuple>

namespace vlt::srs {

using geodata::SrsRecord;

namespace {

/// Quality of a match, best first.
enum Rank {
    CodeTyped,
    NameTyped,
    NameStarts,
    TextInName,
    WordsStartInName,
    WordsInName,
    WordsAnywhere
};

/// Minimum length of a word that may be replaced by a similar one; numbers are never replaced.
constexpr qsizetype MinNearWord = 3;
/// Minimum length of a word that may also be similar to the start of a longer one.
constexpr qsizetype MinNearStart = 4;

/// Whether a system is projected or two-dimensional geographic, as maps normally need.
bool isHorizontal(const SrsRecord &system)
{
    return system.kind == geodata::SrsKind::Projected ||
           system.kind == geodata::SrsKind::Geographic2D;
}

bool isNumber(const QString &code)
{
    return std::all_of(code.begin(), code.end(), [](QChar c) { return c.isDigit(); });
}

/// Basic letters for a letter that Unicode does not decompose into a basic letter and an accent.
QString plainLetter(QChar letter)
{
    switch (letter.unicode()) {
    case 0xdf:
        return QStringLiteral("ss");
    case 0xe6:
        return QStringLiteral("ae");
    case 0xf8:
        return QStringLiteral("o");
    case 0x111:
        return QStringLiteral("d");
    case 0x131:
        return QStringLiteral("i");
    case 0x142:
        return QStringLiteral("l");
    case 0x153:
        return QStringLiteral("oe");
    default:
        return letter;
    }
}

/// The words of a text without case, accents and punctuation, each after a blank. Digits after a
/// letter are a separate word.
QString folded(const QString &text)
{
    const QString plain = text.toCaseFolded().normalized(QString::NormalizationForm_KD);
    QString words;
    words.reserve(plain.size() + 8);
    QChar previous = u' ';
    for (const QChar c : plain) {
        if (c.isMark())
            continue;
        const bool inWord = c.isLetterOrNumber();
        if (inWord && (!previous.isLetterOrNumber() || (c.isDigit() && previous.isLetter())))
            words += u' ';
        if (inWord)
            words += plainLetter(c);
        previous = c;
    }
    return words;
}

QStringList wordsOf(const QString &folded)
{
    return folded.split(u' ', Qt::SkipEmptyParts);
}

/// Whether the datum is used worldwide or all over Europe.
bool isWorldwideName(const QString &foldedName)
{
    const QString name = foldedName + u' ';
    return name.startsWith(QLatin1String(" wgs 84 ")) ||
           name.startsWith(QLatin1String(" etrs 89 "));
}

/// The folded text of a query and its words.
struct Wanted
{
    explicit Wanted(const QString &folded) : text(folded), words(wordsOf(folded)) {}

    template<typename Holds>
    bool eachWord(Holds &&holds) const
    {
        return std::all_of(words.begin(), words.end(), holds);
    }
    bool isWithin(const QString &folded) const
    {
        return eachWord([&](const QString &word) { return folded.contains(word); });
    }
    bool startsWordsOf(const QString &folded) const
    {
        return eachWord([&](const QString &word) { return folded.contains(u' ' + word); });
    }

    Rank rankOf(const QString &name) const
    {
        if (name == text)
            return NameTyped;
        if (name.startsWith(text))
            return NameStarts;
        if (name.contains(text))
            return TextInName;
        if (startsWordsOf(name))
            return WordsStartInName;
        return isWithin(name) ? WordsInName : WordsAnywhere;
    }

    QString text;
    QStringList words;
};

} // namespace

/// The preferences for a system.
struct SrsSearch::Preferred
{
    int first = std::numeric_limits<int>::max();
    int byDefault = std::numeric_limits<int>::max();
    QStringList aliases; ///< folded
};

SrsSearch::SrsSearch(QList<SrsRecord> systems) : m_systems(std::move(systems))
{
    m_folded.reserve(static_cast<size_t>(m_systems.size()));
    for (qsizetype i = 0; i < m_systems.size(); ++i) {
        const SrsRecord &system = m_systems.at(i);
        Folded texts;
        texts.name = folded(system.name);
        texts.key = folded(system.key());
        if (isNumber(system.code))
            texts.number = folded(system.code);
        texts.all = texts.name + u'\n' + texts.key + u'\n' + folded(system.area);
        texts.isWorldwide = isWorldwideName(texts.name);
        for (const QString &word : wordsOf(QString(texts.all).replace(u'\n', u' '))) {
            if (word.size() >= MinNearWord && !isNumber(word))
                ++m_words[word];
        }
        m_folded.push_back(std::move(texts));
        m_indexOfKey.insert(system.key().toCaseFolded(), i);
    }
}

QHash<qsizetype, SrsSearch::Preferred>
SrsSearch::preferredSystems(const SrsPreferences &preferences) const
{
    QHash<qsizetype, Preferred> preferred;
    const auto add = [&](const QList<SrsEntry> &entries, int Preferred::*rank) {
        for (int i = 0; i < entries.size(); ++i) {
            const QString key = geodata::listedCode(entries.at(i).code).toCaseFolded();
            const auto index = m_indexOfKey.constFind(key);
            if (index == m_indexOfKey.constEnd())
                continue;
            Preferred &system = preferred[*index];
            system.*rank = std::min(system.*rank, i);
            system.aliases << folded(entries.at(i).alias);
        }
    };
    add(preferences.first, &Preferred::first);
    add(preferences.defaults, &Preferred::byDefault);
    return preferred;
}

std::vector<int> SrsSearch::find(const SrsQuery &query, const SrsPreferences &preferences) const
{
    const Wanted wanted(folded(query.text));
    const bool hasWords = !wanted.words.isEmpty();
    const QHash<qsizetype, Preferred> preferred = preferredSystems(preferences);
    const Preferred other;

    // rank, kind, order in the preferences, area, order in the defaults, datum, index
    using SortKey = std::tuple<int, bool, int, bool, int, bool, int>;
    std::vector<SortKey> found;
    for (int i = 0; i < m_systems.size(); ++i) {
        const SrsRecord &system = m_systems.at(i);
        const Folded &texts = m_folded[static_cast<size_t>(i)];
        if (query.kind && system.kind != *query.kind)
            continue;
        const auto known = preferred.constFind(i);
        const Preferred &preference = known == preferred.constEnd() ? other : *known;
        const QString all = preference.aliases.isEmpty()
                                ? texts.all
                                : texts.all + preference.aliases.join(QString());
        const bool isTyped = hasWords && (texts.key == wanted.text || texts.number == wanted.text);
        if (!isTyped && ((system.isDeprecated && !query.withDeprecated) || !wanted.isWithin(all)))
            continue;

        Rank rank = isTyped ? CodeTyped : wanted.rankOf(texts.name);
        for (const QString &alias : preference.aliases)
            rank = std::min(rank, wanted.rankOf(alias));
        if (!preference.aliases.isEmpty() && wanted.startsWordsOf(all))
            rank = std::min(rank, NameStarts);
        const bool isInArea =
            preferences.area && system.bounds && geodata::holds(*system.bounds, *preferences.area);
        found.emplace_back(hasWords ? rank : CodeTyped, hasWords && !isHorizontal(system),
                           preference.first, !isInArea, preference.byDefault, !texts.isWorldwide,
                           i);
    }
    std::sort(found.begin(), found.end());

    std::vector<int> inOrder;
    inOrder.reserve(found.size());
    for (const SortKey &key : found)
        inOrder.push_back(std::get<6>(key));
    return inOrder;
}

bool SrsSearch::hasWords(const QString &text)
{
    return !folded(text).isEmpty();
}

QString SrsSearch::nearWord(const QString &word) const
{
    QString best;
    int bestCount = 0;
    for (auto known = m_words.constBegin(); known != m_words.constEnd(); ++known) {
        bool isNear = differsByOneLetter(word, known.key());
        for (const qsizetype length : {word.size() - 1, word.size(), word.size() + 1})
            isNear = isNear || (word.size() >= MinNearStart && known.key().size() > length &&
                                differsByOneLetter(word, QStringView(known.key()).left(length)));
        // equal words are compared because the order in the hash is random
        const bool isBetter = *known > bestCount || (*known == bestCount && known.key() < best);
        if (isNear && isBetter) {
            best = known.key();
            bestCount = *known;
        }
    }
    return best;
}

QString SrsSearch::nearText(const QString &text) const
{
    QStringList words = wordsOf(folded(text));
    bool isChanged = false;
    for (QString &word : words) {
        if (word.size() < MinNearWord || isNumber(word) ||
            std::any_of(m_folded.begin(), m_folded.end(),
                        [&word](const Folded &texts) { return texts.all.contains(word); }))
            continue;
        word = nearWord(word);
        if (word.isEmpty())
            return {};
        isChanged = true;
    }
    return isChanged ? words.join(u' ') : QString();
}

const SrsRecord *SrsSearch::systemOf(const QString &key) const
{
    const auto index = m_indexOfKey.constFind(key.toCaseFolded());
    return index == m_indexOfKey.constEnd() ? nullptr : &m_systems.at(*index);
}

SrsEntry entryOf(const SrsRecord &system)
{
    SrsEntry entry;
    entry.alias = system.name;
    if (system.isDeprecated)
        entry.alias += QLatin1String(" (deprecated)");
    entry.code = system.key();
    return entry;
}

QFuture<SharedSrsSearch> sharedSrsSearch()
{
    static const QFuture<SharedSrsSearch> search = [] {
        auto promise = std::make_shared<QPromise<SharedSrsSearch>>();
        promise->start();
        QThreadPool::globalInstance()->start([promise] {
            Result<QList<SrsRecord>> catalogue = geodata::readSrsCatalogue();
            promise->addResult(catalogue
                                   ? std::make_shared<const SrsSearch>(std::move(catalogue).value())
                                   : SharedSrsSearch());
            promise->finish();
        });
        return promise->future();
    }();
    return search;
}

} // namespace vlt::srs
