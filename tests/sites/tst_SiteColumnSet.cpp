#include "contract/SiteColumns.h"
#include "sites/SiteColumnSet.h"
#include "support/Cases.h"

#include <QTest>

using vlt::sites::recogniseSiteColumns;
using vlt::sites::SiteColumnSet;

namespace {

/// The members that a single field fills, one letter each: name, x, y, terrain height, sector id,
/// height, azimuth, tilt.
QString filledMembers(const SiteColumnSet &set)
{
    QString letters;
    const std::pair<bool, char> members[] = {
        {!set.name.isEmpty(), 'n'},      {!set.x.isEmpty(), 'x'},
        {!set.y.isEmpty(), 'y'},         {!set.terrainHeight.isEmpty(), 'g'},
        {!set.sectorIds.isEmpty(), 's'}, {!set.heights.isEmpty(), 'h'},
        {!set.azimuths.isEmpty(), 'a'},  {!set.tilts.isEmpty(), 't'}};
    for (const auto &[filled, letter] : members) {
        if (filled)
            letters += QLatin1Char(letter);
    }
    return letters;
}

} // namespace

class tst_SiteColumnSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recognisesAFieldByItsWholeName_data()
    {
        const Cases<QString> row({"members"});
        row("Site", "n");
        row("SITE ID", "n");
        row("SiteID", "n");
        row("site   name", "n");
        row("NAME", "n");
        row("Site number", "");
        row("Site name 2", "");
        row("My Site", "");
        row("x", "x");
        row("Site.longitude", "x");
        row("Site  longitude", "x");
        row("Site--longitude", "");
        row("Site_X", "x");
        row("SiteX", "");
        row("XY", "");
        row("LATITUDE", "y");
        row("Site\nY", "y");
        row("Transmitter-1 Terrain Height (m)", "g");
        row("Transmitter-1TerrainHeight", "g");
        row("Transmitter-2 Terrain Height (m)", "");
        row("Transmitter-12 ANT-INDEX", "s");
        row("transmitter-3 transmitter", "s");
        row("Transmitter-3 Antenna ID", "s");
        row("Transmitter-3 Sector ID", "s");
        row("Transmitter- Sector ID", "");
        row("Transmitter-3 HEIGHT", "h");
        row("Transmitter-3 height(m)", "h");
        row("Transmitter-3 Height (m)", "h");
        row("Transmitter-3 Height  (m)", "");
        row("Transmitter-3 Height (ft)", "");
        row("Transmitter-3 Azimuth", "a");
        row("Transmitter-3 Azimuth (°)", "a");
        row("Transmitter-3 azimuth(°", "a");
        row("Transmitter-3 Azimuth (%1)", "a");
        row("Transmitter-3 Azimuth (", "");
        row("Transmitter-3 Azimuth (deg)", "");
        row("Transmitter-3 DOWN-TILT", "t");
        row("Transmitter-3 Mechanical tilt", "t");
        row("Transmitter-3 Mech. downtilt (°)", "t");
        row("Transmitter-3 Mech. down tilt (°)", "");
        row("Transmitter-3 mechtilt", "t");
        row("Transmitter-3 mechTİLT", "t");
        row("Sİte ID", "n");
        row("Transmitter-3 Tilt(°)", "t");
        row("Transmitter-3 Tilt (deg)", "");
        row("Transmitter-3 Electrical tilt", "");
        row("Transmitter-3 Tilt (%1)", "");
        row("Transmitter-3\u00a0ANT-INDEX", "s");
        row("Site\u00a0ID", "n");
    }

    void recognisesAFieldByItsWholeName()
    {
        const QString field = QString::fromUtf8(QTest::currentDataTag());

        QTEST(filledMembers(recogniseSiteColumns(QStringList{field})), "members");
    }

    void keepsTheFirstSingleColumnAndEveryListedOne()
    {
        const QStringList fields = {QStringLiteral("X"),
                                    QStringLiteral("Site ID"),
                                    QStringLiteral("Longitude"),
                                    QStringLiteral("Transmitter-2 Azimuth (\u00b0)"),
                                    QStringLiteral("Name"),
                                    QStringLiteral("Transmitter-1 Azimuth"),
                                    QStringLiteral("Transmitter-1 Tilt")};

        const SiteColumnSet set = recogniseSiteColumns(fields);

        SiteColumnSet expected;
        expected.name = QStringLiteral("Site ID");
        expected.x = QStringLiteral("X");
        expected.azimuths = {fields.at(3), fields.at(5)};
        expected.tilts = {fields.at(6)};
        QCOMPARE(set, expected);
    }

    void readsADegreeSignInOneByte()
    {
        const auto columns =
            vlt::contract::recogniseColumns({"Transmitter-2 Tilt (\xB0)", "Transmitter-12\xA0"
                                                                          "Azimuth (\xB0)"});

        QCOMPARE(columns.tilts, std::vector<int>{0});
        QCOMPARE(columns.azimuths, std::vector<int>{1});
        QCOMPARE(vlt::contract::transmitterOfColumn("Transmitter-12\xA0"
                                                    "Azimuth (\xB0)"),
                 12);
        QCOMPARE(vlt::contract::transmitterOfColumn("Site ID"), std::nullopt);
    }

    void recognisesNothingInATableThatCannotBeOpened()
    {
        for (const char *connection : {"site:/nowhere/x.csv", "link:/nowhere/x.csv", "/etc/passwd",
                                       "", "http://127.0.0.1:9/x.csv"})
            QCOMPARE(recogniseSiteColumns(QString::fromLatin1(connection), QString()),
                     SiteColumnSet());
    }
};

QTEST_GUILESS_MAIN(tst_SiteColumnSet)
#include "tst_SiteColumnSet.moc"
