#include "srs/SrsSearch.h"

#include <QTest>

using namespace Qt::StringLiterals;
using vlt::geodata::SrsKind;
using vlt::geodata::SrsRecord;

/// Codes, names and areas are those of the EPSG registry.
class TestSrsSearch : public QObject
{
    Q_OBJECT

    const vlt::srs::SharedSrsSearch m_search = vlt::srs::sharedSrsSearch().result();

    QString firstFound(const vlt::srs::SrsQuery &query) const
    {
        const std::vector<int> found = m_search->find(query);
        return found.empty() ? QString() : m_search->systems().at(found.front()).key();
    }

private Q_SLOTS:
    void knowsEverySystemForMapsOnce()
    {
        QCOMPARE(m_search->systems().constFirst().key(), u"EPSG:2000"_s); // Anguilla 1957
        QVERIFY(m_search->systemOf(u"epsg:4979"_s));
        QVERIFY(!m_search->systemOf(u"EPSG:5773"_s)); // EGM96 height: no place on a map
        QVERIFY(vlt::geodata::srsDefinitionText(u"EPSG:2154"_s).startsWith(u"PROJCRS[\"RGF93"));

        // two areas of use: 25.5 .. 28.51 degrees of longitude, and the whole country
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
        QCOMPARE(firstFound({u"27582"_s, {}, false}), u"EPSG:27582"_s); // a deprecated one
        QCOMPARE(firstFound({u"wgs84"_s, {}, false}), u"EPSG:4326"_s);  // also a code of IGNF's
        QCOMPARE(firstFound({u"lambert nowhere"_s, {}, false}), QString());
    }

    void filtersByKindAndDeprecation()
    {
        const QString withdrawn = u"NTF (Paris) / France II"_s;
        QCOMPARE(firstFound({u"WGS 84"_s, SrsKind::Geocentric, false}), u"EPSG:4978"_s);
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

QTEST_GUILESS_MAIN(TestSrsSearch)
#include "tst_SrsSearch.moc"
