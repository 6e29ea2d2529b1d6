#include "links/LinkColumnSet.h"
#include "support/Cases.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::links;

namespace {

using Members = QList<std::pair<QString, QString>>;

void addEnd(Members &all, const QString &mark, const LinkEndColumns &end)
{
    const std::pair<QString, QString> members[] = {{u"id"_s, end.identifier},
                                                   {u"x"_s, end.longitude},
                                                   {u"y"_s, end.latitude},
                                                   {u"height"_s, end.height},
                                                   {u"frequency"_s, end.frequency},
                                                   {u"azimuth"_s, end.azimuth},
                                                   {u"tilt"_s, end.tilt},
                                                   {u"dx"_s, end.dx},
                                                   {u"dy"_s, end.dy}};
    for (const auto &[name, column] : members)
        all.append({mark + name, column});
}

/// The names of the members that have a column, with that column if it is wanted: "A.x=East".
QString filledMembers(const LinkColumnSet &set, bool withColumns = false)
{
    Members all = {{u"name"_s, set.name}, {u"band"_s, set.band}, {u"length"_s, set.length}};
    addEnd(all, u"A."_s, set.tx);
    addEnd(all, u"B."_s, set.rx);
    QStringList filled;
    for (const auto &[name, column] : std::as_const(all)) {
        if (!column.isEmpty())
            filled << (withColumns ? name + u'=' + column : name);
    }
    return filled.join(u' ');
}

} // namespace

class tst_LinkColumns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recognisesAFieldByItsWholeName_data()
    {
        const Cases<QString> row({"members"});
        row("NAME", "name");
        row("Link Name", "");
        row("frequency band", "band");
        row("Frequency Band (GHz)", "band");
        row("Frequency Band (GHz, duplex)", "");
        row("Frequency  Band", "");
        row("Length", "length");
        row("Path  Length (miles)", "length");
        row("PathLength", "");
        row("Call sign 1", "A.id");
        row("TX", "A.id");
        row("Site A", "A.id");
        row("Site B.ID", "B.id");
        row("TX Name", "A.id");
        row("Name (B)", "B.id");
        row("Antenna RX", "B.id");
        row("Antenna (RX)", "");
        row("Site A Name 2", "");
        row("A X", "A.x");
        row("Longitude 1", "A.x");
        row("Longitude 1 (WGS84)", "");
        row("site tx.longitude (\u00b0)", "A.x");
        row("Longitude (B)", "B.x");
        row("Longitude (B) in degrees", "B.x");
        row("Longitude(B)", "");
        row("XA", "");
        row("Latitude 2", "B.y");
        row("Y RX", "B.y");
        row("Latitude 3", "");
        row("Antenna height (m) 2", "B.height");
        row("Antenna height (ft) 2", "");
        row("Height A (m)", "A.height");
        row("TX1 (MHz) 1", "A.frequency");
        row("TX1 (MHz) 2", "B.frequency");
        row("RX Frequency (MHz)", "B.frequency");
        row("Azimuth (deg) 1", "A.azimuth");
        row("Azimuth (a\nb) 2", "B.azimuth");
        row("Azimuth 1", "");
        row("Tilt () 2", "B.tilt");
        row("Tilt (A)", "A.tilt");
        row("DX (1) (m)", "A.dx");
        row("DX (1)", "");
        row("Site RX.DY", "B.dy");
        row("DY (2) (m)", "B.dy");
    }

    void recognisesAFieldByItsWholeName()
    {
        const QString field = QString::fromUtf8(QTest::currentDataTag());

        QTEST(filledMembers(recogniseLinkColumns(QStringList{field})), "members");
    }

    void keepsTheFirstColumnOfAKind()
    {
        const LinkColumnSet set =
            recogniseLinkColumns({u"TX ID"_s, u"Name"_s, u"TX Name"_s, u"name"_s, u"Site B"_s});

        LinkColumnSet expected;
        expected.name = u"Name"_s;
        expected.tx.identifier = u"TX ID"_s;
        expected.rx.identifier = u"Site B"_s;
        QCOMPARE(set, expected);
    }

    void findsTheFirstAndLongestUnit_data()
    {
        const Cases<QString, QString, QString> row({"field", "frequency", "length"});
        row("MHz, not the Hz in it", "Frequency Band (MHz)", "MHz", {});
        row("letters of another case", "Frequency Band (kHz)", "Hz", {});
        row("no unit at all", "FREQUENCY BAND (GHZ)", {}, {});
        row("miles, not m", "Path Length (miles)", {}, "miles");
        row("km", "Length (km)", {}, "km");
        row("m at the start of a word", "Length (metres)", {}, "m");
        row("feet", "Length (feet)", {}, "feet");
        row("no such column", "Frequency (MHz)", {}, {});
    }

    void findsTheFirstAndLongestUnit()
    {
        QFETCH(QString, field);

        const LinkColumnSet set = recogniseLinkColumns(QStringList{field});

        QTEST(set.frequencyUnit, "frequency");
        QTEST(set.lengthUnit, "length");
    }

    void takesColumnsOfRolesWhereNoNameFits_data()
    {
        // roles: role=column ...; columns: what they fill, with the units
        const Cases<QStringList, QString, QString> row({"roles", "members", "units"});
        row("in Polish", {u"linkName=Relacja"_s, u"siteNameA=Stacja Tx"_s, u"xB=Dl geo Rx"_s},
            "name=Relacja A.id=Stacja Tx B.x=Dl geo Rx", "/");
        row("name before id", {u"siteIdA=NE"_s, u"siteNameA=Near"_s, u"siteIdB=FE"_s},
            "A.id=Near B.id=FE", "/");
        row("units", {u"band=BAND_GHZ"_s, u"lengthLink=hop [mi]"_s},
            "band=BAND_GHZ length=hop [mi]", "GHZ/mi");
        row("unit in words", {u"lengthLink=Distance_meters"_s}, "length=Distance_meters",
            "/meters");
        row("a letter is no unit", {u"lengthLink=Medium"_s}, "length=Medium", "/");
        row("one frequency for both ends",
            {u"frequency=F (MHz)"_s, u"frequencyB=F2"_s, u"antennaHeightA=HBA"_s},
            "A.height=HBA A.frequency=F (MHz) B.frequency=F2", "/");
        row("in parts", {u"yA=D"_s, u"yA=M"_s, u"yA=S"_s, u"azimuthA=Az"_s}, "A.azimuth=Az", "/");
        row("above sea level", {u"seaLevelHeightA=AMSL"_s}, "", "/");
        row("names of the fields first", {u"linkName=Hop"_s, u"xA=East"_s}, "name=Name A.x=East",
            "/");
    }

    void takesColumnsOfRolesWhereNoNameFits()
    {
        QFETCH(QStringList, roles);
        QList<vlt::geodata::ColumnRole> columns;
        for (const QString &role : std::as_const(roles))
            columns.append({role.section(u'=', 0, 0), {}, role.section(u'=', 1), {}});
        const bool hasName = QByteArray(QTest::currentDataTag()).startsWith("names");

        const LinkColumnSet set =
            recogniseLinkColumns(hasName ? QStringList(u"Name"_s) : QStringList(), columns);

        QTEST(filledMembers(set, true), "members");
        QTEST(set.frequencyUnit + u'/' + set.lengthUnit, "units");
    }
};

QTEST_GUILESS_MAIN(tst_LinkColumns)
#include "tst_LinkColumns.moc"
