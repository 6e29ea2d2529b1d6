#include "srs/SrsSearch.h"

#include <QPromise>
#include <QStringList>
#include <QThreadPool>

#include <algorithm>
#include <array>

namespace vlt::srs {

using geodata::SrsRecord;

namespace {

/// In the order in which the found systems are shown.
enum Rank {
    CodeTyped,
    NameTyped,
    NameStarts,
    TextInName,
    WordsStartInName,
    WordsInName,
    WordsAnywhere,
    RankCount
};

/// Whether a system places points in a plane or by longitude and latitude, as maps mostly want it.
bool isHorizontal(const SrsRecord &system)
{
    return system.kind == geodata::SrsKind::Projected ||
           system.kind == geodata::SrsKind::Geographic2D;
}

bool isNumber(const QString &code)
{
    return std::all_of(code.begin(), code.end(), [](QChar c) { return c.isDigit(); });
}

/// Letters that do not decompose into a plain one and an accent.
QString plainLetter(QChar letter)
{
    switch (letter.unicode()) {
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

/// Words without case, accents and punctuation, each after a blank; digits that follow a letter
/// start a word of their own.
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

} // namespace

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
        m_folded.push_back(std::move(texts));
        m_indexOfKey.insert(system.key().toCaseFolded(), i);
    }
}

std::vector<int> SrsSearch::find(const SrsQuery &query) const
{
    const QString text = folded(query.text);
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    const auto eachWord = [&words](auto &&holds) {
        return std::all_of(words.begin(), words.end(), holds);
    };
    const auto rankOf = [&](const Folded &texts) {
        if (texts.name == text)
            return NameTyped;
        if (texts.name.startsWith(text))
            return NameStarts;
        if (texts.name.contains(text))
            return TextInName;
        if (eachWord([&](const QString &word) { return texts.name.contains(u' ' + word); }))
            return WordsStartInName;
        return eachWord([&](const QString &word) { return texts.name.contains(word); })
                   ? WordsInName
                   : WordsAnywhere;
    };

    // of each rank the horizontal systems, then the others
    std::array<std::vector<int>, size_t{2} * RankCount> found;
    for (size_t i = 0; i < m_folded.size(); ++i) {
        const SrsRecord &system = m_systems.at(static_cast<qsizetype>(i));
        const Folded &texts = m_folded[i];
        if (query.kind && system.kind != *query.kind)
            continue;
        const bool isTyped = !words.isEmpty() && (texts.key == text || texts.number == text);
        const bool isFound =
            (query.withDeprecated || !system.isDeprecated) &&
            eachWord([&](const QString &word) { return texts.all.contains(word); });
        if (!isTyped && !isFound)
            continue;
        const bool isSecond = !words.isEmpty() && !isHorizontal(system);
        const int place = 2 * (isTyped ? CodeTyped : rankOf(texts)) + (isSecond ? 1 : 0);
        found.at(static_cast<size_t>(place)).push_back(static_cast<int>(i));
    }

    std::vector<int> inOrder;
    for (const std::vector<int> &indices : found)
        inOrder.insert(inOrder.end(), indices.begin(), indices.end());
    return inOrder;
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
