#include "srs/SrsSearch.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using vlt::geodata::SrsKind;
using vlt::geodata::SrsRecord;
using vlt::srs::SrsSearch;

/// Codes, names and areas are those of the EPSG registry.
class TestSrsSearch : public QObject
{
    Q_OBJECT

    vlt::srs::SharedSrsSearch m_search;

    QStringList found(const vlt::srs::SrsQuery &query) const
    {
        QStringList keys;
        for (const int index : m_search->find(query))
            keys += m_search->systems().at(index).key();
        return keys;
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_search = vlt::srs::sharedSrsSearch().result();
        QVERIFY(m_search);
    }

    void listsEverySystemForMapsOnce()
    {
        QSet<QString> keys;
        for (const SrsRecord &system : m_search->systems())
            keys.insert(system.key());

        QCOMPARE(keys.size(), m_search->systems().size());
        QVERIFY(keys.contains(u"EPSG:2154"_s) && keys.contains(u"EPSG:4979"_s));
        QVERIFY(!keys.contains(u"EPSG:5773"_s)); // EGM96 height: no place on a map
        QCOMPARE(m_search->systems().constFirst().key(), u"EPSG:2000"_s); // Anguilla 1957
    }

    void knowsWhereASystemMayBeUsed()
    {
        const SrsRecord *lambert = m_search->systemOf(u"epsg:2154"_s);
        QVERIFY(lambert && lambert->bounds);
        QCOMPARE(lambert->name, u"RGF93 v1 / Lambert-93"_s);
        QCOMPARE(lambert->kind, SrsKind::Projected);
        QCOMPARE(lambert->projectionMethod, u"Lambert Conic Conformal (2SP)"_s);
        QVERIFY(lambert->area.contains(u"France métropolitaine including Corsica"_s));
        QCOMPARE(lambert->bounds->west, -9.86);
        QCOMPARE(lambert->bounds->north, 51.56);

        // two areas of use: 25.5 .. 28.51 degrees of longitude, and the whole country
        const SrsRecord *finland = m_search->systemOf(u"EPSG:2393"_s);
        QVERIFY(finland && finland->bounds && finland->area.contains(u"; "_s));
        QCOMPARE(finland->bounds->west, 19.24);
        QCOMPARE(finland->bounds->east, 31.59);

        QVERIFY(!m_search->systemOf(u"EPSG:99999"_s));
    }

    void findsTheWantedSystemFirst_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("first");
        QTest::newRow("number") << u"2154"_s << u"EPSG:2154"_s;
        QTest::newRow("code") << u"EPSG:2154"_s << u"EPSG:2154"_s;
        QTest::newRow("code in words") << u" epsg  2154 "_s << u"EPSG:2154"_s;
        QTest::newRow("code of a deprecated system") << u"27582"_s << u"EPSG:27582"_s;
        QTest::newRow("name") << u"lambert 93"_s << u"EPSG:2154"_s;
        QTest::newRow("name, other order") << u"93 Lambert RGF93"_s << u"EPSG:2154"_s;
        QTest::newRow("shorter of two names") << u"lambert zone ii"_s << u"EPSG:27572"_s;
        QTest::newRow("without the blank; also IGNF's code of another")
            << u"wgs84"_s << u"EPSG:4326"_s;
        QTest::newRow("several, shortened") << u"WGS84/utm31N"_s << u"EPSG:32631"_s;
        QTest::newRow("area, accent left out") << u"lambert-93 metropolitaine"_s << u"EPSG:2154"_s;
        QTest::newRow("accent too many") << u"lambért 93"_s << u"EPSG:2154"_s;
        QTest::newRow("nothing") << u"lambert nowhere"_s << QString();
    }

    void findsTheWantedSystemFirst()
    {
        QFETCH(QString, text);

        const QStringList keys = found({text, {}, false});

        QTEST(keys.value(0), "first");
    }

    void filtersByKindAndDeprecation()
    {
        QCOMPARE(found({u"WGS 84"_s, SrsKind::Geocentric, false}).value(0), u"EPSG:4978"_s);
        QCOMPARE(found({u"WGS 84"_s, SrsKind::Geographic3D, false}).value(0), u"EPSG:4979"_s);
        QCOMPARE(found({u"2154"_s, SrsKind::Compound, false}).value(0), QString());
        const QString withdrawn = u"NTF (Paris) / France II"_s;
        QVERIFY(!found({withdrawn, {}, false}).contains(u"EPSG:27582"_s));
        QCOMPARE(found({withdrawn, {}, true}).value(0), u"EPSG:27582"_s);

        const auto everything = static_cast<size_t>(m_search->systems().size());
        QCOMPARE(m_search->find({u" - "_s, {}, true}).size(), everything);
        QVERIFY(m_search->find({{}, {}, false}).size() < everything);
    }

    void ranksBetterMatchesFirst()
    {
        const auto system = [](int code, const char *name, SrsKind kind = SrsKind::Projected) {
            SrsRecord record;
            record.authority = u"X"_s;
            record.code = QString::number(code);
            record.name = QString::fromLatin1(name);
            record.kind = kind;
            return record;
        };
        SrsRecord elsewhere = system(9, "Other");
        elsewhere.area = u"North of the Grid"_s;
        const SrsSearch search({elsewhere, system(8, "Regrid anorth"), system(7, "Grid of North"),
                                system(6, "Old north grid"),
                                system(5, "North Grid 1", SrsKind::Compound),
                                system(4, "North Grid 2"), system(3, "North Grid 3"),
                                system(2, "NORTH / Grid"), system(1, "South Grid")});
        QStringList codes;
        for (const int index : search.find({u"north grid"_s, {}, false}))
            codes += search.systems().at(index).code;

        QCOMPARE(codes.join(u' '), u"2 4 3 5 6 7 8 9"_s);
    }

    void marksDeprecatedSystems()
    {
        const auto entry = [this](const QString &key) {
            return vlt::srs::entryOf(*m_search->systemOf(key));
        };
        const vlt::srs::SrsEntry current{u"NTF (Paris) / Lambert zone II"_s, {}, u"EPSG:27572"_s};
        const vlt::srs::SrsEntry withdrawn{
            u"NTF (Paris) / France II (deprecated)"_s, {}, u"EPSG:27582"_s};
        QCOMPARE(entry(u"EPSG:27572"_s), current);
        QCOMPARE(entry(u"EPSG:27582"_s), withdrawn);
    }

    void tellsTheDefinition_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("start");
        QTest::newRow("code") << u"EPSG:2154"_s << u"PROJCRS[\"RGF93 v1 / Lambert-93\",\n"_s;
        QTest::newRow("PROJ") << u"+proj=longlat +datum=WGS84"_s << u"GEOGCRS["_s;
        QTest::newRow("blank") << QString() << QString();
        QTest::newRow("no definition") << u"Lambert nowhere"_s << QString();
        QTest::newRow("file") << u"/etc/passwd"_s << QString();
    }

    void tellsTheDefinition()
    {
        QFETCH(QString, text);
        QFETCH(QString, start);

        const QString definition = vlt::geodata::srsDefinitionText(text);

        QCOMPARE(definition.left(start.size()), start);
        QCOMPARE(definition.isEmpty(), start.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestSrsSearch)
#include "tst_SrsSearch.moc"
