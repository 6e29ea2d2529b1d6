#include "contract/TextPatterns.h"

#include <QtTest>

using namespace vlt::contract;

namespace {

QByteArray bytes(std::string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

} // namespace

/// The texts of the table reader: each of them is found again in what it becomes.
class TableTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recognisesEveryText_data()
    {
        QTest::addColumn<QByteArray>("first");
        QTest::addColumn<QByteArray>("second");
        QTest::newRow("plain") << QByteArray("48.85") << QByteArray("7");
        QTest::newRow("nothing") << QByteArray() << QByteArray();
        QTest::newRow("quotes") << QByteArray("48°51'24\"\"N") << QByteArray("\"");
        QTest::newRow("places") << QByteArray("100 %1 %2 %%") << QByteArray("%1");
        QTest::newRow("words of the texts")
            << QByteArray("x\" cannot be read: it is empty: \"y") << QByteArray("is not known");
        QTest::newRow("the end of another text")
            << QByteArray("\" cannot be read: it is not finite") << QByteArray("\" is not known");
        QTest::newRow("words between the places")
            << QByteArray("a\" to \"b\" in column 3 has no header") << QByteArray("9");
        QTest::newRow("lines and bars") << QByteArray("a\nb|Error|c\t") << QByteArray("é: <a>");
        QTest::newRow("WKT") << QByteArray("GEOGCS[\"WGS 84\",DATUM[\"W\",SPHEROID[\"W\",1,2]]]")
                             << QByteArray("LOCAL_CS[\"a, b: 1\"]");
    }
    void recognisesEveryText()
    {
        QFETCH(QByteArray, first);
        QFETCH(QByteArray, second);
        const std::string_view one(first.constData(), static_cast<size_t>(first.size()));
        const std::string_view two(second.constData(), static_cast<size_t>(second.size()));
        int withTwoValues = 0;
        for (const Text &text : Texts) {
            const QByteArray pattern(text.pattern);
            const qsizetype places = pattern.contains("%2") ? 2 : pattern.contains("%1") ? 1 : 0;
            const std::string english = formatted(text, {one, two});

            const auto found = recognised(english);

            QVERIFY2(found, english.c_str());
            QCOMPARE(found->text->key, text.key);
            QCOMPARE(static_cast<qsizetype>(found->values.size()), places);
            QCOMPARE(bytes(places > 0 ? found->values[0] : one), first);
            QCOMPARE(bytes(places > 1 ? found->values[1] : two), second);
            withTwoValues += places == 2 ? 1 : 0;
        }
        QCOMPARE(withTwoValues, 4);
    }

    void leavesOtherTextsAlone_data()
    {
        QTest::addColumn<QByteArray>("text");
        for (const char *text :
             {"", "%1", "the file is empty.", "The file is empty", "sites: the file is empty",
              "the coordinate \"1\" cannot be read: it is late", "the workbook lacks its part",
              "there is no way from the coordinate system \"4326\" at all", "le fichier est vide"})
            QTest::newRow(*text ? text : "nothing") << QByteArray(text);
    }
    void leavesOtherTextsAlone()
    {
        QFETCH(QByteArray, text);

        QVERIFY(!recognised(text.toStdString()));
    }
};

QTEST_GUILESS_MAIN(TableTexts)
#include "tst_TableTexts.moc"
