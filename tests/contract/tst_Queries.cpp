#include "contract/ConnectionString.h"
#include "contract/QueryOptions.h"
#include "links/LinkLayer.h"
#include "plugins/scene/layers/LinkLayerStyle.h"
#include "plugins/scene/parametric/BadQuery.h"
#include "sites/SiteLayer.h"
#include "support/Cases.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vlt;
using namespace vlt::contract;

namespace {

/// The input of a layer whose query has every option.
template<typename Input>
Input fullInput()
{
    Input input;
    input.file.filePath = u"/p/t.csv"_s;
    input.file.reading = {u"S"_s, u"CP1250"_s, u"tab"_s, true, u"c.csv"_s, u"s.csv"_s, u"m.json"_s};
    input.sourceSrs = u"4326"_s;
    input.targetSrs = u"2154"_s;
    input.catalogues = {{{u"monopole_panel"_s, {}, {}}}, {{{QColor(255, 0, 0)}, {}, {}}}};
    input.project = {u"/p/a.gvw"_s, u"/p/dem/t.tif"_s};
    return input;
}

ConnectionString linkQuery()
{
    return *parseConnection(links::linkQuery(fullInput<links::LinkLayerInput>()).toStdString());
}

std::vector<std::string> keysOf(const ConnectionString &query)
{
    std::vector<std::string> keys;
    for (const auto &[key, value] : query.options)
        keys.push_back(key);
    return keys;
}

bool isRead(const QueryOption &option)
{
    return (option.purpose == OptionPurpose::Pylons || option.purpose == OptionPurpose::Links) &&
           option.key != query::DataFolder; // the scene makes its pylons without it
}

/// The scene's error for a query; empty if it can draw it.
std::string faultOf(const ConnectionString &query)
{
    try {
        scene::readLinkLayerStyle(query);
        return {};
    } catch (const scene::BadQuery &fault) {
        return fault.what();
    }
}

/// The query with another number in the value of an option.
ConnectionString withNumber(ConnectionString query, std::string_view key, int word, double number)
{
    for (auto &[name, value] : query.options) {
        if (name != key)
            continue;
        QStringList words = QString::fromStdString(value).split(u' ');
        words[word] = QString::number(number, 'g', 10);
        value = words.join(u' ').toStdString();
    }
    return query;
}

} // namespace

class tst_Queries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void carriesEveryOptionInOrder()
    {
        std::vector<std::string> all;
        std::vector<std::string> ofSites;
        for (const QueryOption &option : QueryOptions) {
            if (option.purpose == OptionPurpose::Checking)
                continue;
            all.emplace_back(option.key);
            if (option.purpose != OptionPurpose::Links && option.purpose != OptionPurpose::Heights)
                ofSites.emplace_back(option.key);
        }
        const auto siteQuery =
            parseConnection(sites::siteQuery(fullInput<sites::SiteLayerInput>()).toStdString());

        QVERIFY(keysOf(linkQuery()) == all);
        QVERIFY(keysOf(*siteQuery) == ofSites);
        for (const auto &[key, value] : linkQuery().options) // no value contains another option
            QVERIFY2(!value.empty() && value.find(',') == std::string::npos, key.c_str());
        QCOMPARE(linkQuery().path, std::string("t.csv"));
        QCOMPARE(faultOf(linkQuery()), std::string());
    }

    void needsEveryOptionThatTheSceneReads()
    {
        for (const QueryOption &option : QueryOptions) {
            ConnectionString query = linkQuery();
            std::erase_if(query.options, [&](const auto &one) { return one.first == option.key; });

            const std::string fault = faultOf(query);

            QVERIFY2(fault.empty() != isRead(option), option.key.data());
            QVERIFY2(fault.empty() || fault.find(option.key) != std::string::npos, fault.c_str());
        }
    }

    void drawsEveryNumberThatAUserMayChoose_data()
    {
        const Cases<QByteArray, int, Range, double> row({"key", "word", "range", "tooLarge"});
        for (const QueryOption &option : QueryOptions) {
            for (int i = 0; i < static_cast<int>(option.numbers.size()); ++i) {
                const auto &range = option.numbers[static_cast<std::size_t>(i)];
                if (!range)
                    continue;
                // pylons have wider limits in the scene
                const bool isOfLinks = option.purpose == OptionPurpose::Links;
                const QByteArray key = option.key.data();
                row((key + ' ' + QByteArray::number(i)).constData(), key, i, *range,
                    isOfLinks ? range->maximum + 1 : 2e9);
            }
        }
    }

    void drawsEveryNumberThatAUserMayChoose()
    {
        QFETCH(QByteArray, key);
        QFETCH(int, word);
        QFETCH(Range, range);
        QFETCH(double, tooLarge);
        const auto fault = [&](double number) {
            return faultOf(withNumber(linkQuery(), key.toStdString(), word, number));
        };

        QCOMPARE(fault(range.minimum), std::string());
        QCOMPARE(fault(range.maximum), std::string());
        for (const double refused : {range.minimum - 2, tooLarge})
            QVERIFY2(fault(refused).starts_with(key.toStdString()), fault(refused).c_str());
    }
};

QTEST_GUILESS_MAIN(tst_Queries)
#include "tst_Queries.moc"
