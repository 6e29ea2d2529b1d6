#include "plugins/tables/doctor/CoordinateDoctor.h"

#include <QStringList>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace vlt::driver;

using Points = QList<std::pair<double, double>>;

namespace {

/// `count` positions around a point, at distances of up to `radius` in both axes.
Points around(double x, double y, double radius, int count)
{
    Points points;
    for (int i = 0; i < count; ++i)
        points += {x + radius * std::sin(7.0 * i), y + radius * std::cos(5.0 * i)};
    return points;
}

SystemFacts degrees(std::optional<CoordinateBox> terrain = {})
{
    return {true, 180, 1, {}, terrain};
}

SystemFacts metres(std::optional<CoordinateBox> area = {})
{
    return {true, 0, 1, area, {}};
}

} // namespace

Q_DECLARE_METATYPE(SystemFacts)

/// Findings that small tables, which tst_RealTables has, do not show.
class tst_CoordinateDoctor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsMistakes_data()
    {
        QTest::addColumn<Points>("points");
        QTest::addColumn<SystemFacts>("system");
        QTest::addColumn<QStringList>("findings"); // kind and number of positions
        const auto row = [](const char *name, const Points &points, const SystemFacts &system,
                            const QStringList &findings = {}) {
            QTest::newRow(name) << points << system << findings;
        };
        const Points city = around(2.35, 48.85, 0.1, 9);
        row("three positions", Points{{2, 48}, {2.1, 48}, {48, 2}}, degrees());
        row("both sides of the date line", around(179.9, -17, 0.1, 5) + around(-179.9, -17, 0.1, 4),
            degrees());
        row("a city with few sites elsewhere in its country",
            around(2.35, 48.85, 0.1, 60) + around(-1.7, 48.1, 0.1, 6) + around(5.4, 43.3, 0.1, 5) +
                around(7.2, 43.7, 0.05, 4),
            degrees());
        row("two cities, one at the mirrored longitude, one not",
            around(2.35, 48.85, 0.1, 60) + around(-2.3, 48.8, 0.1, 3) + around(5.4, 43.3, 0.1, 9),
            degrees());
        row("an island across the ocean, whose longitude times ten is that of the others",
            around(-98, 38, 5, 60) + Points{{144.75, 13.4}, {144.8, 13.5}}, degrees());
        row("some signs lost, some axes exchanged, one digit lost",
            city + Points{{-2.3, 48.8}, {48.9, 2.4}, {2.3, 4.884}}, degrees(),
            {u"swappedRows 1"_s, u"sign 1"_s, u"decimal 1"_s});
        row("half of the rows exchanged",
            city +
                Points{
                    {48.8, 2.3}, {48.9, 2.4}, {48.8, 2.4}, {48.7, 2.2}, {48.6, 2.3}, {48.8, 2.5}},
            degrees(), {u"swappedRows 6"_s});
        row("one outlier in two rows", around(9.6, 45.7, 0.1, 20) + Points{{-46, -23}, {-46, -23}},
            degrees(), {u"outlier 2"_s});
        row("a range of mountains at 90 degrees, exchanged", around(23.7, 90, 0.5, 20), degrees(),
            {u"swapped 20"_s});
        row("one latitude beyond 90 degrees", city + Points{{2.3, 488.5}}, degrees());
        row("latitudes without their decimal mark",
            Points{{2.3, 48853}, {2.4, 48812}, {2.5, 48753}}, degrees(CoordinateBox{2, 48, 3, 49}),
            {u"decimal 3"_s});
        row("latitudes of a tenth", around(2.35, 4.885, 0.01, 9),
            degrees(CoordinateBox{2, 48, 3, 49}), {u"decimal 9"_s});
        row("millimetres near the origin", Points{{-5.25, 3.125}, {312.5, 1.5}, {7.75, 998.25}},
            SystemFacts{}, {u"undeclared 3"_s});
        row("thousands in one column only",
            Points{{600.123, 200456}, {601.5, 200789}, {602.987, 201001}}, metres(),
            {u"thousands 3"_s});
        row("metres in the area of use", around(600123, 200456, 1000, 9),
            metres(CoordinateBox{480000, 70000, 840000, 300000}));
        row("metres exchanged, with the same positions in both orders",
            around(200456, 600123, 1000, 9), metres(CoordinateBox{0, 0, 840000, 840000}));
        row("21 sites on a mast of 100", around(2, 48, 1, 79) + Points(21, {2.5, 48.5}), degrees(),
            {u"stacked 21"_s});
        row("numbers beyond all limits",
            city + Points{{1e300, -1e300}, {1e-300, 1e308}, {-1e308, 0}}, degrees());
    }
    void findsMistakes()
    {
        QFETCH(Points, points);
        QFETCH(SystemFacts, system);

        SurveyedPositions positions;
        for (const auto &[x, y] : std::as_const(points))
            positions.add(static_cast<int64_t>(positions.all().size()) + 2, x, y);
        QStringList found;
        for (const Finding &finding : diagnose(positions.all(), system))
            found += QString::fromUtf8(findingWord(finding.kind).data()) + u' ' +
                     QString::number(finding.count);

        QTEST(found, "findings");
    }

    void namesTheFirstTenRows()
    {
        SurveyedPositions positions;
        for (int row = 2; row < 40; ++row)
            positions.add(row, row % 3 == 0 ? -2.3 : 2.3 + row * 1e-3, 48.8, "A");
        const std::vector<Finding> findings = diagnose(positions.all(), degrees());

        QCOMPARE(findings.size(), 2U);
        QCOMPARE(findings[0].text,
                 "a sign seems to be lost in some rows of the longitudes: with the opposite one, "
                 "they lie among the others (13 of 38 positions, rows: 3, 6, 9, 12, 15, 18, 21, "
                 "24, 27, 30 ...)");
        QCOMPARE(findings[1].text, "site ids occur more than once: 38 of 38 sites share theirs "
                                   "(rows: 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 ...)");
    }
};

QTEST_GUILESS_MAIN(tst_CoordinateDoctor)
#include "tst_CoordinateDoctor.moc"
