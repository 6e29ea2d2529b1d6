#include "language/Numbers.h"
#include "language/VltLanguageManager.h"
#include "support/Cases.h"
#include "support/Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QByteArray message(const char *key, const char *translation)
{
    return QByteArray("<message id=\"") + key + "\"><source>English</source>" + translation +
           "</message>";
}

void putDictionary(const QDir &dir, const QString &name, const QByteArray &messages)
{
    writeFile(dir.filePath(name),
              "<TS version=\"2.1\"><context><name/>" + messages + "</context></TS>");
}

/// A dictionary on a disk that fails after the first bytes.
class FailingDisk : public QIODevice
{
public:
    explicit FailingDisk(const QByteArray &readable) : m_rest(readable) { open(ReadOnly); }

    bool atEnd() const override { return false; }

protected:
    qint64 readData(char *to, qint64 most) override
    {
        if (m_rest.isEmpty())
            return -1;
        const QByteArray part = m_rest.left(most);
        m_rest.remove(0, part.size());
        std::copy(part.begin(), part.end(), to);
        return part.size();
    }
    qint64 writeData(const char * /*from*/, qint64 /*size*/) override { return -1; }

private:
    QByteArray m_rest;
};

} // namespace

class tst_Language : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesNumbersInTheLanguage_data()
    {
        // texts: 12040; 10.73 with 3 decimals fixed; 1000 and -0.04 with 1 at most; 1e6 / 3
        const Cases<QString, QLocale, QString> row({"language", "user", "texts"});
        row("English", "en", QLocale(u"de"_s), u"12,040|10.730|1,000|0|333,333"_s);
        row("French", "fr", QLocale(u"en"_s), u"12\u202f040|10,730|1\u202f000|0|333\u202f333"_s);
    }

    void writesNumbersInTheLanguage()
    {
        using namespace vlt::language;
        QFETCH(QString, language);
        QFETCH(QLocale, user);
        VltLanguageManager::getInstance().defaultSetup({}, language, {});
        QLocale::setDefault(user);
        QTEST(QStringList({wholeNumber(12040), fixedNumber(10.73, 3), shortNumber(1000, 1),
                           shortNumber(-0.04, 1), roundNumber(1e6 / 3)})
                  .join(u'|'),
              "texts");
        QLocale::setDefault(QLocale::system());
        VltLanguageManager::getInstance().defaultSetup({}, {}, {});
    }

    void knowsALanguageByNameOrCode_data()
    {
        const Cases<QString, QString, bool> row({"name", "code", "reversed"});
        row("English name, capitals", "FRENCH", "fr", false);
        row("code with a country", "FR_be", "fr", false);
        row("own name", "Français", "fr", false);
        row("written from the right", "Arabic", "ar", true);
        row("none", {}, "en", false);
        row("C locale", "C", "en", false);
    }

    void knowsALanguageByNameOrCode()
    {
        QFETCH(QString, name);
        VltLanguageManager &manager = VltLanguageManager::getInstance();

        manager.defaultSetup(QString(), name, QString());

        QTEST(manager.getCurrentLanguage().text, "code");
        QTEST(manager.currentLanguageNeedsReversedLayout(), "reversed");
    }

    void takesTheTextsOfTheChosenLanguage()
    {
        const QTemporaryDir root;
        const QDir messages(root.filePath(u"MESSAGES"_s));
        const QDir addOn(root.filePath(u"addon"_s));
        putDictionary(
            messages, u"base_fr.ts"_s,
            message("K_BASE", "<translation>de base &amp; &lt;b&gt;</translation>") +
                message("K_BOTH", "<translation>de base</translation>") +
                message("K_DRAFT", "<translation type=\"unfinished\">brouillon</translation>") +
                message("K_EMPTY", "<translation type=\"unfinished\"></translation>") +
                message("K_GONE", "<translation type=\"vanished\">parti</translation>"));
        putDictionary(messages, u"base_en.ts"_s,
                      message("K_BASE", "<translation>basic</translation>"));
        putDictionary(addOn, u"telecom_fr.ts"_s,
                      message("K_BOTH", "<translation>du module</translation>"));
        VltLanguageManager &manager = VltLanguageManager::getInstance();

        manager.defaultSetup(messages.path(), u"FRENCH"_s, QString());
        manager.findAndSetupAddOnsMessages(addOn.path(), QString());

        QCOMPARE(dico_label("K_BASE", "d"), u"de base & <b>"_s);
        QCOMPARE(dico_label("K_BOTH", "d"), u"du module"_s);
        QCOMPARE(dico_label("K_DRAFT", "d"), u"brouillon"_s);
        for (const char *key : {"K_EMPTY", "K_GONE", "K_UNKNOWN"})
            QCOMPARE(dico_label(key, "défaut"), u"défaut"_s);
        QVERIFY(manager.skippedDictionaries().isEmpty());

        manager.defaultSetup(messages.path(), u"en"_s, QString());
        QCOMPARE(dico_label("K_BASE", "d"), u"basic"_s);
        QCOMPARE(dico_label("K_DRAFT", "d"), u"d"_s); // no text of the former language is left
    }

    void passesOverBrokenDictionaries_data()
    {
        const Cases<QByteArray> row({"content"});
        const QByteArray bad = message("K_BAD", "<translation>x</translation>");
        row("cut short", "<TS><context>" + bad);
        row("other document", "<html>" + bad + "</html>");
        row("not UTF-8", "<TS><context>" + bad + "\xE9</context></TS>");
    }

    void passesOverBrokenDictionaries()
    {
        QFETCH(QByteArray, content);
        const QTemporaryDir dir;
        const QString bad = writeFile(dir.filePath(u"bad_fr.ts"_s), content);
        putDictionary(QDir(dir.path()), u"good_fr.ts"_s,
                      message("K_GOOD", "<translation>bon</translation>"));
        VltLanguageManager &manager = VltLanguageManager::getInstance();

        manager.defaultSetup(dir.path(), u"fr"_s, QString());

        QCOMPARE(dico_label("K_GOOD", "d"), u"bon"_s);
        QCOMPARE(dico_label("K_BAD", "d"), u"d"_s);
        QCOMPARE(manager.skippedDictionaries().size(), 1);
        QCOMPARE(manager.skippedDictionaries().first().path, bad);
    }

    void givesUpADictionaryThatCannotBeReadToItsEnd()
    {
        const QByteArray start = "<TS><context>" + message("K", "<translation>x</translation>");
        for (const QByteArray &readable :
             {QByteArray(), start, QByteArray(start + "</context></TS>\n")}) {
            FailingDisk disk(readable);

            const auto texts = vlt::language::readDictionary(disk, u"messages_fr.ts"_s);

            QVERIFY(!texts);
            QCOMPARE(texts.error().path, u"messages_fr.ts"_s);
        }
    }
};

QTEST_GUILESS_MAIN(tst_Language)
#include "tst_Language.moc"
