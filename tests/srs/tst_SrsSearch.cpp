#include "platform/Settings.h"
#include "srs/DefaultSrsList.h"
#include "srs/SrsSearch.h"
#include "support/Cases.h"

#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;
using vlt::geodata::isInside;
using vlt::geodata::SrsBounds;
using vlt::geodata::SrsKind;
using vlt::geodata::SrsRecord;

/// Codes, names and areas are those of the EPSG registry.
class tst_SrsSearch : public QObject
{
    Q_OBJECT

    const vlt::srs::SharedSrsSearch m_search = vlt::srs::sharedSrsSearch().result();
    vlt::srs::SrsPreferences m_preferences; ///< with the installation's default systems

    QString firstFound(const vlt::srs::SrsQuery &query) const
    {
        const std::vector<int> found = m_search->find(query);
        return found.empty() ? QString() : m_search->systems().at(found.front()).key();
    }

private Q_SLOTS:
    void initTestCase()
    {
        vlt::platform::builderSettings()->setValue(u"INSTALL_DIR"_s,
                                                   QStringLiteral(VLT_INSTALLATION));
        const vlt::srs::DefaultSrsList defaults;
        m_preferences.defaults = {defaults.begin(), defaults.end()};
        QVERIFY(!m_preferences.defaults.isEmpty());
        m_preferences.first = {{{}, {}, u"EPSG:31370"_s}, {{}, {}, u"31469"_s}};
    }

    void knowsEverySystemForMapsOnce()
    {
        QCOMPARE(m_search->systems().constFirst().key(), u"EPSG:2000"_s); // Anguilla 1957
        QVERIFY(m_search->systemOf(u"epsg:4979"_s));
        QVERIFY(!m_search->systemOf(u"EPSG:5773"_s)); // EGM96 height: not a system of a map
        QVERIFY(vlt::geodata::srsDefinitionText(u"EPSG:2154"_s).startsWith(u"PROJCRS[\"RGF93"));

        // This system has two areas of use: 25.5 .. 28.51 degrees of longitude, and the whole
        // country.
        const auto found = m_search->find({u"KKJ / Finland Uniform"_s, SrsKind::Projected, true});
        QCOMPARE(found.size(), size_t{1});
        const SrsRecord &finland = m_search->systems().at(found.front());
        QVERIFY(finland.bounds && finland.area.contains(u"; "_s));
        QCOMPARE(finland.bounds->west, 19.24);
        QCOMPARE(finland.bounds->east, 31.59);
    }

    void findsTheWantedSystemFirst()
    {
        QCOMPARE(firstFound({u"2154"_s, {}, false}), u"EPSG:2154"_s);
        QCOMPARE(firstFound({u" epsg  2154 "_s, {}, false}), u"EPSG:2154"_s);
        QCOMPARE(firstFound({u"93 Lambert RGF93"_s, {}, false}), u"EPSG:2154"_s);
        QCOMPARE(firstFound({u"lambert-93 metropolitaine"_s, {}, false}), u"EPSG:2154"_s);
        QCOMPARE(firstFound({u"27582"_s, {}, false}), u"EPSG:27582"_s); // a deprecated system
        QCOMPARE(firstFound({u"wgs84"_s, {}, false}), u"EPSG:4326"_s);  // also a code of IGNF's
        QCOMPARE(firstFound({u"lambert nowhere"_s, {}, false}), QString());
    }

    void findsTheLikelierSystemFirst_data()
    {
        const Cases<QString> row({"code"});
        row("utm 30", "EPSG:25830");
        row("utm 60", "EPSG:32660"); // not a default; WGS 84 before others
        row("wgs", "EPSG:4326");
        row("etrs", "EPSG:4258");
        row("etrs89 utm 30", "EPSG:25830");
        row("british", "EPSG:27700");
        row("france", "EPSG:2154");
        row("mercator", "EPSG:3857");
        row("lambert", "EPSG:31370");      // recently used
        row("gauss kruger", "EPSG:31469"); // the project's
        row("new zealand", "EPSG:2193");
        for (const vlt::srs::SrsEntry &entry : m_preferences.defaults)
            row(qPrintable(entry.alias), entry.code);
    }

    void findsTheLikelierSystemFirst()
    {
        const QString text = QString::fromUtf8(QTest::currentDataTag());

        const std::vector<int> found = m_search->find({text, {}, false}, m_preferences);

        QVERIFY(!found.empty());
        QTEST(m_search->systems().at(found.front()).key(), "code");
    }

    void prefersSystemsOfTheDataArea()
    {
        const auto first = [this](const QString &text, const SrsBounds &area) {
            const std::vector<int> found = m_search->find({text, {}, false}, {{}, area, {}});
            return m_search->systems().at(found.front()).key();
        };
        const SrsBounds brittany{-3.5, 47.6, -3.2, 47.9};
        const SrsBounds fiji{177, -19, -179, -16}; // across the 180th meridian
        const SrsBounds fijiGrid{176.81, -20.81, -178.15, -12.42};

        QCOMPARE(first(u"british"_s, {-1, 51, 0, 52}), u"EPSG:27700"_s);
        QCOMPARE(first(u"lambert zone"_s, brittany), u"EPSG:27572"_s); // zone I is further north
        QCOMPARE(first(u"map grid"_s, fiji), u"EPSG:3460"_s);
        QVERIFY(holds(fijiGrid, fiji) && !holds(fiji, fijiGrid) && !holds(fijiGrid, brittany));
        QVERIFY(isInside(fijiGrid, -179, -18) && !isInside(fijiGrid, -178, -18));
        QVERIFY(isInside(fijiGrid, -178, -18, 0.5) && !isInside(fijiGrid, 0, -18, 0.5));
        QVERIFY(isInside({-180, -90, 180, 90}, 180, -90));
    }

    void understandsAWordWithAWrongLetter_data()
    {
        const Cases<QString> row({"nearText"});
        row("lambrt 93", "lambert 93");
        row("wsg84", "wgs 84");
        row("epgs:2154", "epsg 2154");
        row("Gau\u00dfs Kr\u00fcgr", "gauss kruger");
        row("lambert 93", {}); // nothing is wrong
        row("xyzzy", {});
    }

    void understandsAWordWithAWrongLetter()
    {
        QTEST(m_search->nearText(QString::fromUtf8(QTest::currentDataTag())), "nearText");
    }

    void filtersByKindAndDeprecation()
    {
        const QString withdrawn = u"NTF (Paris) / France II"_s;
        QVERIFY(!m_search->systemOf(u"EPSG:4978"_s)); // geocentric: not a system of a map
        QCOMPARE(firstFound({u"2154"_s, SrsKind::Compound, false}), QString());
        QVERIFY(firstFound({withdrawn, {}, false}) != u"EPSG:27582");
        QCOMPARE(firstFound({withdrawn, {}, true}), u"EPSG:27582"_s);
        QCOMPARE(qsizetype(m_search->find({u" - "_s, {}, true}).size()),
                 m_search->systems().size());
    }

    void ranksBetterMatchesFirst()
    {
        QList<SrsRecord> systems;
        for (const QString &name : {u"Regrid anorth"_s, u"Grid of North"_s, u"Old north grid"_s,
                                    u"North Grid 1"_s, u"NORTH / Grid"_s, u"South Grid"_s}) {
            SrsRecord system;
            system.name = name;
            system.kind = SrsKind::Projected;
            systems += system;
        }
        systems[5].area = u"North"_s;
        systems += systems[3];
        systems[3].kind = SrsKind::Compound;

        const std::vector<int> expected = {4, 6, 3, 2, 1, 0, 5};
        QCOMPARE(vlt::srs::SrsSearch(systems).find({u"north grid"_s, {}, false}), expected);
    }
};

QTEST_GUILESS_MAIN(tst_SrsSearch)
#include "tst_SrsSearch.moc"
