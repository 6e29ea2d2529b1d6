#include "contract/SceneTexts.h"
#include "contract/TableTexts.h"
#include "language/Dictionary.h"
#include "support/Files.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using vlt::contract::SceneTexts;
using vlt::contract::TableTexts;
using vlt::language::Texts;

namespace {

const QDir Source(QStringLiteral(VLT_SOURCE_DIR));

/// Every message key in the sources and forms.
QSet<QString> usedKeys()
{
    static const QRegularExpression key(u"\\bMESS_[A-Z0-9_]+(?:\\.\\.\\.)?"_s);
    QSet<QString> keys;
    QDirIterator files(Source.filePath(u"src"_s), {u"*.cpp"_s, u"*.h"_s, u"*.ui"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString text = QString::fromUtf8(readFile(files.next()));
        for (auto matches = key.globalMatch(text); matches.hasNext();)
            keys.insert(matches.next().captured());
    }
    return keys;
}

/// The texts of a language from all its dictionaries; a broken dictionary fails the test.
Texts shippedTexts(const QString &code)
{
    Texts texts;
    for (const QString &place :
         {u"installation/MESSAGES"_s, u"installation/addons/telecom/MESSAGES"_s}) {
        const QDir dir(Source.filePath(place));
        for (const QString &name : dir.entryList({u"*_%1.ts"_s.arg(code)}, QDir::Files)) {
            const vlt::Result<Texts> read = vlt::language::readDictionary(dir.filePath(name));
            if (read)
                texts.insert(read.value());
            else
                QTest::qFail(qPrintable(read.error().text), __FILE__, __LINE__);
        }
    }
    return texts;
}

QString listed(const QSet<QString> &keys)
{
    QStringList list = keys.values();
    list.sort();
    return list.join(QLatin1Char(' '));
}

QSet<QString> keysOf(const Texts &texts)
{
    const QStringList keys = texts.keys();
    return {keys.begin(), keys.end()};
}

/// The placeholders "%1", "_F_", "__NAME__" ... of a text, sorted, with repetitions.
QStringList placeholders(const QString &text)
{
    static const QRegularExpression mark(
        u"%L?\\d{1,2}|(?<![A-Za-z0-9])_{1,2}[A-Z0-9]+_{1,2}(?![A-Za-z0-9])"_s);
    QStringList found;
    for (auto matches = mark.globalMatch(text); matches.hasNext();)
        found += matches.next().captured();
    found.sort();
    return found;
}

} // namespace

class tst_MessageKeys : public QObject
{
    Q_OBJECT

    Texts m_english;
    Texts m_french;
    QSet<QString> m_used;

private Q_SLOTS:
    void initTestCase()
    {
        m_english = shippedTexts(u"en"_s);
        m_french = shippedTexts(u"fr"_s);
        m_used = usedKeys();
        QVERIFY(!m_english.isEmpty() && !m_french.isEmpty() && !m_used.isEmpty());
    }

    void everyKeyHasAText()
    {
        // The uses of this key have different English titles.
        QCOMPARE(listed(m_used - keysOf(m_english)), u"MESS_ERREUR"_s);
        QCOMPARE(listed(m_used - keysOf(m_french)), QString());
    }

    void everyTextHasAKey()
    {
        QCOMPARE(listed(keysOf(m_english) - m_used), QString());
        QCOMPARE(listed(keysOf(m_french) - m_used), QString());
    }

    /// The English text that a reader writes is the one in the dictionary.
    void readersWriteWhatTheDictionaryHas()
    {
        QSet<QString> done;
        const auto check = [&](const vlt::contract::Text &text) {
            const QString key = QString::fromUtf8(text.key);
            if (!done.contains(key)) // only the first of several forms
                QCOMPARE(m_english.value(key), QString::fromUtf8(text.pattern));
            done.insert(key);
        };
        std::for_each(TableTexts.begin(), TableTexts.end(), check);
        std::for_each(SceneTexts.begin(), SceneTexts.end(), check);
    }

    void bothLanguagesHaveTheSamePlaceholders()
    {
        for (auto text = m_english.cbegin(); text != m_english.cend(); ++text) {
            if (m_french.contains(text.key()) &&
                placeholders(m_french.value(text.key())) != placeholders(text.value()))
                QFAIL(qPrintable(text.key()));
        }
    }
};

QTEST_GUILESS_MAIN(tst_MessageKeys)
#include "tst_MessageKeys.moc"
