#include "contract/SceneTexts.h"
#include "contract/TableTexts.h"
#include "support/Cases.h"

#include <QtTest>

#include <array>
#include <vector>

using namespace vlt::contract;

namespace {

QByteArray bytes(std::string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

std::vector<Text> allTexts()
{
    std::vector<Text> texts(TableTexts.begin(), TableTexts.end());
    texts.insert(texts.end(), SceneTexts.begin(), SceneTexts.end());
    return texts;
}

std::size_t placesIn(const Text &text)
{
    std::size_t count = 0;
    while (QByteArray(text.pattern).contains('%' + QByteArray::number(count + 1)))
        ++count;
    return count;
}

std::string_view view(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

std::string_view valueFor(ValueKind kind, std::string_view name)
{
    if (kind == ValueKind::Count)
        return "1277";
    return kind == ValueKind::Item ? "transmitter 3" : name;
}

} // namespace

/// Texts of the readers with values in them: each is recognised from the finished text.
class tst_TextPatterns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recognisesEveryText_data()
    {
        const Cases<QByteArray, QByteArray> row({"first", "second"});
        row("plain", "48.85", "7");
        row("nothing", {}, {});
        row("quotes", "48°51'24\"\"N", "\"");
        row("places", "100 %1 %2 %%", "%1");
        row("words of the texts", "x\" cannot be read: it is empty: \"y", "is not known");
        row("the end of another text", "\" cannot be read: it is not finite", "\" is not known");
        row("words between the places", "a\" to \"b\" in column 3 has no header", "9");
        row("lines and bars", "a\nb|Error|c\t", "é: <a>");
        row("WKT", "GEOGCS[\"WGS 84\",DATUM[\"W\",SPHEROID[\"W\",1,2]]]", "LOCAL_CS[\"a, b: 1\"]");
    }
    void recognisesEveryText()
    {
        QFETCH(QByteArray, first);
        QFETCH(QByteArray, second);
        const std::array<QByteArray, 5> names = {first, second, "third", "4.5", "1e9"};
        for (const Text &text : allTexts()) {
            std::vector<std::string_view> given;
            for (std::size_t i = 0; i < placesIn(text); ++i)
                given.push_back(valueFor(text.kinds[i], view(names[i])));
            const std::string english = filled(text.pattern, given);

            const auto found = recognised(english);

            QVERIFY2(found, english.c_str());
            QCOMPARE(found->text->key, text.key);
            QCOMPARE(found->values.size(), placesIn(text));
            for (std::size_t i = 0; i < found->values.size(); ++i)
                QCOMPARE(bytes(found->values[i]), bytes(given[i]));
        }
    }

    void leavesOtherTextsAlone_data()
    {
        const Cases<QByteArray> row({"text"});
        for (const char *text :
             {"", "%1", "the file is empty.", "The file is empty", "sites: the file is empty",
              "the coordinate \"1\" cannot be read: it is late", "the workbook lacks its part",
              "there is no transformation from the coordinate system \"4326\" at all",
              "le fichier est vide"})
            row(*text ? text : "nothing", text);
    }
    void leavesOtherTextsAlone()
    {
        QFETCH(QByteArray, text);

        QVERIFY(!recognised(text.toStdString()));
    }
};

QTEST_GUILESS_MAIN(tst_TextPatterns)
#include "tst_TextPatterns.moc"
