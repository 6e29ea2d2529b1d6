#include "plugins/tables/cells/GroupedNumber.h"
#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/PositionReader.h"
#include "plugins/tables/sites/SiteLayout.h"
#include "plugins/tables/values/Angle.h"
#include "plugins/tables/values/CoordinatePair.h"
#include "plugins/tables/values/Utm.h"
#include "support/Cases.h"

#include <QtTest>

#include <cmath>

using namespace vlt::driver;

namespace {

/// A table with these texts in the cells of its columns.
TableProfile tableOf(const QList<QPair<QByteArray, QList<QByteArray>>> &columns)
{
    TableProfile table;
    for (const auto &[name, texts] : columns) {
        Field field;
        field.name = name.toStdString();
        for (const QByteArray &text : texts)
            field.samples.push_back(text.toStdString());
        table.fields.push_back(field);
    }
    return table;
}

/// The positions of the rows as "x y", or the reason why there is none.
QStringList positionsOf(const TableProfile &table, const SiteLayout &layout)
{
    const PositionReader reader(table, layout.point, layout.unit);
    QStringList positions;
    for (std::size_t row = 0; row < table.fields.front().samples.size(); ++row) {
        std::vector<Cell> cells(table.fields.size());
        std::vector<const Cell *> ofFields;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            cells[i].text = table.fields[i].samples[row];
            ofFields.push_back(&cells[i]);
        }
        std::vector<RowProblem> problems;
        const Position position = reader.read(1, ofFields, problems);
        positions +=
            position.found
                ? QStringLiteral("%1 %2").arg(position.x, 0, 'g', 12).arg(position.y, 0, 'g', 12)
                : QString::fromStdString(problems.front().text);
    }
    return positions;
}

} // namespace

/// Notations of positions in tables.
class tst_Coordinates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAngles_data()
    {
        const Cases<QByteArray, bool, double> row({"text", "isX", "degrees"});
        // 48 + 51/60 + 24/3600 = 48.856667; 3 + 22/60 + 5.12/3600 = 3.368089
        row("decimal", "48.85", false, 48.85);
        row("decimal comma", " -3,37 ", true, -3.37);
        row("hemisphere behind", "48.85 S", false, -48.85);
        row("signs", "48°51'24\"N", false, 48.8566667);
        row("doubled seconds mark", "48°51'24\"\"N", false, 48.8566667);
        row("typographic", "48°51′24″N", false, 48.8566667);
        row("blanks", "48 51 24.0 N", false, 48.8566667);
        row("letter first", "N48 51.4", false, 48.8566667);
        row("letters", "48d51m24s", false, 48.8566667);
        row("colons", "48:51:24", false, 48.8566667);
        row("west", "3°22'05.12\"W", true, -3.3680889);
        row("seconds with a comma", "3°22'05,12\"w", true, -3.3680889);
        row("word", "48°51'24\" Nord", false, 48.8566667);
        row("word first", "SÜD 48.85", false, -48.85);
        row("French west", "3.37 Ouest", true, -3.37);
        row("German east", "3d22m5.12s Ost", true, 3.3680889);
        row("Dutch east", "3.37° OL", true, 3.37);
        row("Polish north", "50°30' północ", false, 50.5);
        row("Swedish west, shortened", "3.37 väs", true, -3.37);
        row("dashes", "48-51-24 S", false, -48.8566667);
        row("dots", "48.51.24,0", false, 48.8566667);
        row("words", "N 48 deg 51 min 24.0 sec", false, 48.8566667);
        row("minus and parts", "-0 30 0", true, -0.5);
        row("without separators", "485124N", false, 48.8566667);
        row("the letter first", "W0032205.12", true, -3.3680889);
    }
    void readsAngles()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, isX);
        QFETCH(double, degrees);

        const Angle angle = readAngle(text.toStdString(), isX ? Axis::X : Axis::Y);

        QVERIFY2(!angle.fault, angle.fault ? angle.fault->text().key : "");
        QVERIFY(std::abs(angle.degrees - degrees) < 1e-6);
    }

    void refusesWhatIsNoAngle_data()
    {
        const Cases<QByteArray> row({"text"});
        for (const char *text :
             {"",          "-",         "north",  "48.85 E",  "48 61 00",   "48 51 60",
              "48.5 30 N", "1 2 3 4",   "3.37 O", "-3.37 W",  "3.37 Ouest", "48.85 noon",
              "48.85 po",  "48.8.5",    "48-51",  "48.51.60", "1e5x",       "12/05/2020",
              "NaN",       "10 N 20 S", "486024N"})
            row(*text ? text : "empty", text);
    }
    void refusesWhatIsNoAngle()
    {
        QFETCH(QByteArray, text);

        QVERIFY(readAngle(text.toStdString(), Axis::Y).fault);
    }

    void readsGroupedThousands_data()
    {
        const Cases<double> row({"number"}); // 0: none
        row("652 000,5", 652000.5);
        row("652,000.5", 652000.5);
        row("-652.000,5", -652000.5);
        row("6 862 000", 6862000);
        row("6,862,000", 6862000);
        row("1'234.5", 1234.5);
        row("1’234", 1234);
        row("6\u00A0862\u00A0000,25", 6862000.25);
        row("652\u202F000", 652000);
        row("652,000", 0); // a decimal comma
        row("652.000", 0);
        row("652000.5", 0); // not grouped
        row("48 51", 0);
        row("48 51 24.5", 0);
        row("0 030.5", 0);
        row("1 234 56", 0);
        row("1 234,567.5", 0); // three marks
        row("1234 567", 0);
        row("652 000,", 0);
    }
    void readsGroupedThousands()
    {
        QTEST(parseGroupedNumber(QTest::currentDataTag()).value_or(0), "number");
    }

    void readsColumns_data()
    {
        QTest::addColumn<QList<QByteArray>>("x");
        QTest::addColumn<QList<QByteArray>>("y");
        QTest::addColumn<QList<QByteArray>>("hemispheres"); // of x; empty without that column
        QTest::addColumn<CoordinateUnit>("unit");
        QTest::addColumn<QStringList>("positions");
        const auto row = [](const char *name, const QList<QByteArray> &x,
                            const QList<QByteArray> &y, CoordinateUnit unit,
                            const QStringList &positions,
                            const QList<QByteArray> &hemispheres = {}) {
            QTest::newRow(name) << x << y << hemispheres << unit << positions;
        };
        row("blanks between thousands", {"652 000,5", "9 500"},
            {"6 862 000", "6\u00A0862\u00A0001,25"}, CoordinateUnit::Meters,
            {QStringLiteral("652000.5 6862000"), QStringLiteral("9500 6862001.25")});
        row("marks between thousands", {"652,000.5", "652.000,5"}, {"6862000", "6,862,000"},
            CoordinateUnit::Meters,
            {QStringLiteral("652000.5 6862000"), QStringLiteral("652000.5 6862000")});
        row("degrees and minutes", {"2 30", "102 45,5"}, {"48 15", "48 30.5"}, CoordinateUnit::Dms,
            {QStringLiteral("2.5 48.25"), QStringLiteral("102.758333333 48.5083333333")});
        row("O beside E is west", {"2°30' O", "2°30' E"}, {"48°15' N", "48°30' N"},
            CoordinateUnit::Dms, {QStringLiteral("-2.5 48.25"), QStringLiteral("2.5 48.5")});
        row("O beside W is east", {"2.5 O", "3.5W"}, {"48", "49"}, CoordinateUnit::Degrees,
            {QStringLiteral("2.5 48"), QStringLiteral("-3.5 49")});
        row("O beside Oeste is west", {"2.5", "3.5"}, {"48", "49"}, CoordinateUnit::Degrees,
            {QStringLiteral("-2.5 48"), QStringLiteral("-3.5 49")}, {"O", "Oeste"});
        row("O beside E and W", {"1", "2", "3"}, {"47", "48", "49"}, CoordinateUnit::Degrees,
            {QStringLiteral("the coordinate \"1\" cannot be read: the letter O may mean west "
                            "(Ouest, Oeste) or east (Ost): use W or E"),
             QStringLiteral("2 48"), QStringLiteral("-3 49")},
            {"O", "East", "Western"});
    }
    void readsColumns()
    {
        QFETCH(QList<QByteArray>, x);
        QFETCH(QList<QByteArray>, y);
        QFETCH(QList<QByteArray>, hemispheres);
        QFETCH(CoordinateUnit, unit);
        TableProfile table = tableOf({{"X", x}, {"Y", y}, {"X direction", hemispheres}});
        if (hemispheres.isEmpty())
            table.fields.pop_back();

        const SiteLayout layout = recogniseSiteLayout(table, installedVocabulary().words);

        QVERIFY(layout.unit == unit);
        QTEST(positionsOf(table, layout), "positions");
    }

    void readsPairs_data()
    {
        const Cases<QByteArray, bool, double, double> row({"text", "good", "x", "y"});
        row("latitude first", "51.34764,12.31237", true, 12.31237, 51.34764);
        row("semicolon, decimal commas", "51,34;12,31", true, 12.31, 51.34);
        row("slash, decimal commas", "48,85 / 2,27", true, 2.27, 48.85);
        row("slash and letters", "E2.27/N48.85", true, 2.27, 48.85);
        row("no slash of a date", "12/05", false, 0, 0);
        row("no slashes of a path", "48.85/2.27/35.0", false, 0, 0);
        row("D/M/S", "49°11'24\"N,16°30'0\"E", true, 16.5, 49.19);
        row("letters turn it round", "16.5 E, 49.19 N", true, 16.5, 49.19);
        row("WKT has longitude first", "POINT (2.27 48.85)", true, 2.27, 48.85);
        row("POINT(2.27 48.85)", "POINT(2.27 48.85)", true, 2.27, 48.85);
        row("srid=4326;point z (2.27 48.85 35.0)", "srid=4326;point z (2.27 48.85 35.0)", true,
            2.27, 48.85);
        row("{'lon': 2.27, 'lat': 48.85}", "{'lon': 2.27, 'lat': 48.85}", true, 2.27, 48.85);
        row("{\"latitude\":48.85,\"longitude\":\"2.27\",\"altitude\":35}",
            "{\"latitude\":48.85,\"longitude\":\"2.27\",\"altitude\":35}", true, 2.27, 48.85);
        row("{'y': 48.85, 'x': 2.27}", "{'y': 48.85, 'x': 2.27}", true, 2.27, 48.85);
        row("{\"type\": \"Point\", \"coordinates\": [2.27, 48.85, 35]}",
            "{\"type\": \"Point\", \"coordinates\": [2.27, 48.85, 35]}", true, 2.27, 48.85);
        row("lat 48.85 lon 2.27", "lat 48.85 lon 2.27", true, 2.27, 48.85);
        row("Lng=2,27; Lat=48,85", "Lng=2,27; Lat=48,85", true, 2.27, 48.85);
        row("latitude: 48°51'00\"N, longitude: 2°16'12\"O",
            "latitude: 48°51'00\"N, longitude: 2°16'12\"O", true, -2.27, 48.85);
        row("(48.85, 2.27)", "(48.85, 2.27)", true, 2.27, 48.85);
        row("48°51'0\"N 2°16'12\"E", "48°51'0\"N 2°16'12\"E", true, 2.27, 48.85);
        row("N 48 51 E 2 16.2", "N 48 51 E 2 16.2", true, 2.27, 48.85);
        row("48.85 Nord 2.27 Ost", "48.85 Nord 2.27 Ost", true, 2.27, 48.85);
        row("POINT EMPTY", "POINT EMPTY", false, 0, 0);
        row("LINESTRING (2 48, 3 49)", "LINESTRING (2 48, 3 49)", false, 0, 0);
        row("Latimer Road 5, London", "Latimer Road 5, London", false, 0, 0);
        row("{'lat': 48.85}", "{'lat': 48.85}", false, 0, 0);
        row("{'lat': None, 'lon': None}", "{'lat': None, 'lon': None}", false, 0, 0);
        row("48 51", "48 51", false, 0, 0);
        row("one number with a comma", "48,85", false, 0, 0);
        row("outside the globe", "95.0,12.0", false, 0, 0);
        row("three numbers", "2.27,48.85,35.0", false, 0, 0);
    }
    void readsPairs()
    {
        QFETCH(QByteArray, text);
        QFETCH(double, x);
        QFETCH(double, y);

        const CoordinatePair pair =
            readCoordinatePair(text.toStdString(), PairOrder::LatitudeFirst, LetterO::West);

        QTEST(!pair.fault, "good");
        QVERIFY(std::abs(pair.x - x) < 1e-9 && std::abs(pair.y - y) < 1e-9);
    }

    void readsZonesOfUtm_data()
    {
        const Cases<QByteArray, QByteArray> row({"text", "zone"}); // empty for none
        row("zone first", "18T 585628 4511322", "18T");
        row("in words", "UTM zone 32N 500000 4649776.5", "32N");
        row("separate letter", "18 t 585628mE 4511322mN", "18T");
        row("zone last", "585628, 4511322, 18T", "18T");
        row("without a letter", "33 E391000 N5820000", "33");
        row("easting outside the zone", "18T 58562 4511322", "");
        row("zone 61", "61N 500000 4649776", "");
        row("no band", "18I 585628 4511322", "");
        row("degrees", "48.85 2.35 30", "");
        row("MGRS", "18TWL8562811322", "");
    }
    void readsZonesOfUtm()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, zone);

        const auto found = readUtmPosition(text.toStdString());

        QByteArray read = found ? QByteArray::number(found->zone.number) : QByteArray();
        if (found && found->zone.letter != 0)
            read += found->zone.letter;
        QCOMPARE(read, zone);
    }

    void findsTheOrderOfPairs_data()
    {
        QTest::addColumn<QByteArray>("column");
        QTest::addColumn<QList<QByteArray>>("texts");
        QTest::addColumn<QStringList>("positions");
        const auto row = [](const char *name, const char *column, const QList<QByteArray> &texts,
                            const QStringList &positions) {
            QTest::newRow(name) << QByteArray(column) << texts << positions;
        };
        const QStringList apart = {QStringLiteral("103.8 1.3"), QStringLiteral("88.5 22.5")};
        row("nothing says it", "Position", {"48.85, 2.27"}, {QStringLiteral("2.27 48.85")});
        row("the values say longitude", "Position", {"103.8, 1.3", "88.5, 22.5"}, apart);
        row("the values say latitude", "lon_lat", {"1.3, 103.8", "22.5, 88.5"}, apart);
        row("the name says it", "Longitude/Latitude", {"2.27, 48.85"},
            {QStringLiteral("2.27 48.85")});
        row("a name in the cells", "lon,lat", {"lat=48.85 lon=2.27", "49°N 3°O", "49°N 3°E"},
            {QStringLiteral("2.27 48.85"), QStringLiteral("-3 49"), QStringLiteral("3 49")});
        QList<QByteArray> texts(29, "48.85, 2.27");
        QStringList positions(29, QStringLiteral("2.27 48.85"));
        texts += "148.85, 2.27";
        positions += QStringLiteral(
            "the coordinate \"148.85, 2.27\" cannot be read: it lies outside the globe");
        row("one mistake", "Position", texts, positions);
    }
    void findsTheOrderOfPairs()
    {
        QFETCH(QByteArray, column);
        QFETCH(QList<QByteArray>, texts);
        QFETCH(QStringList, positions);
        const TableProfile table = tableOf({{column, texts}});

        QCOMPARE(positionsOf(table, recogniseSiteLayout(table, installedVocabulary().words)),
                 positions);
    }
};

QTEST_GUILESS_MAIN(tst_Coordinates)
#include "tst_Coordinates.moc"
