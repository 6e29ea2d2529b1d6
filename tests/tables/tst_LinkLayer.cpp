#include "DriverTesting.h"
#include "support/Cases.h"

#include <QRegularExpression>
#include <QtTest>

#include <cmath>

namespace {

/// All fields of a feature, numbers with at most `digits` decimals; "-" for none.
QString valuesOf(const OGRFeature &feature, int digits)
{
    QStringList values;
    for (int i = 0; i < feature.GetFieldCount(); ++i) {
        const bool isNumber = feature.GetFieldDefnRef(i)->GetType() == OFTReal;
        const double scale = std::pow(10, digits);
        values +=
            !feature.IsFieldSetAndNotNull(i) ? QStringLiteral("-")
            : isNumber
                ? QString::number(std::round(feature.GetFieldAsDouble(i) * scale) / scale, 'g', 15)
                : QString::fromUtf8(feature.GetFieldAsString(i));
    }
    return values.join(QLatin1Char('|'));
}

QString lineOf(const OGRGeometry *geometry)
{
    QStringList numbers;
    if (geometry)
        for (const OGRPoint &point : *geometry->toLineString())
            numbers << QString::number(point.getX()) << QString::number(point.getY());
    return numbers.join(QLatin1Char(' '));
}

/// The header of end B for a header of end A.
QByteArray otherEnd(const QByteArray &header)
{
    QString text = QString::fromUtf8(header);
    for (const auto &[a, b] : {std::pair("A", "B"), std::pair("TX", "RX"), std::pair("1", "2")})
        text.replace(QRegularExpression(QStringLiteral("\\b(lon)?%1\\b").arg(QLatin1String(a))),
                     QStringLiteral("\\1") + QLatin1String(b));
    return text.toUtf8();
}

// On the equator 0.1 degrees of longitude are 6378137 m * pi/1800 = 11131.949 m.
constexpr char Numbered[] =
    "Name;Call sign 1;Longitude 1;Latitude 1;Antenna height (m) 1;TX1 (MHz) 1;Azimuth (°) 1;"
    "Tilt (deg) 1;Call sign 2;Longitude 2;Latitude 2;Antenna height (m) 2;TX1 (MHz) 2;"
    "Azimuth (°) 2;Tilt (deg) 2;Path Length (km)\n"
    "L1;S1;10;0;30;11485;;-1,5;S2;10,1;0;35;11605;270,5;;11,1\n";
constexpr char SideBySide[] =
    "Exported by ATOLL\n"
    "Link,Site A,Longitude (A),A Latitude,Height A (ft),Name (B),X B,Y B,RX.Height,"
    "Frequency Band (GHz)\n"
    "L1,S1,10,0,100,S2,10.1,0,35,7/8\n"
    ",,10,0,98.5 ft,S3,east,0,,23\n";

} // namespace

/// Tables of links, read with the GDAL library like in any program.
class tst_LinkLayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GDALAllRegister();
        QVERIFY(m_folder.isValid());
    }

    void givesLinksAndTheirEnds_data()
    {
        const Cases<QByteArray, QString, QString, QStringList, QStringList> row(
            {"text", "format", "firstField", "lines", "ends"});
        const QString line = QStringLiteral("10 0 10.1 0");
        row("numbered ends", Numbered, "generic (numbered ends)", "Site ID", {line},
            {QStringLiteral("S1|10|0|L1|30|90|-1.5|L1|2|A|11485|11131.949"),
             QStringLiteral("S2|10.1|0|L1|35|270.5|-|L1|2|B|11605|11131.949")});
        row("ends side by side", SideBySide, "atoll", "NAME", {line, QString()},
            {QStringLiteral("S1|10|0|L1|30.48|90|-|L1|3|A|7000|11131.949"),
             QStringLiteral("S2|10.1|0|L1|35|270|-|L1|3|B|7000|11131.949"),
             QStringLiteral("-|10|0|-|30.023|-|-|row 4|4|A|23000|-"),
             QStringLiteral("S3|-|-|-|-|-|-|row 4|4|B|23000|-")});
        row("start and end",
            "Frequency,PathLength,XStart,YStart,XEnd,YEnd,ID\n"
            "18.7,11.1,10,0,10.1,0,7\n",
            "generic (ends side by side)", "Site ID", {line},
            {QStringLiteral("-|10|0|7|-|90|-|7|2|A|18700|11131.949"),
             QStringLiteral("-|10.1|0|7|-|270|-|7|2|B|18700|11131.949")});
        row("names that are there twice",
            "Name,Name,X A,Y A,X A,X B,Y B,Frequency\nL,M,10,0,11,10.1,0,7\n",
            "generic (ends side by side)", "Site ID", {line},
            {QStringLiteral("-|10|0|L|-|90|-|L|2|A|7000|11131.949"),
             QStringLiteral("-|10.1|0|L|-|270|-|L|2|B|7000|11131.949")});
        row("ends 0 and 1, transmitting and receiving",
            "link,site_0_lat,site_0_lon,site_1_lat,site_1_lon,tx freq 0,rx freq 0,"
            "tx freq 1\n7,0,10,0,10.1,6000,6100,6200\n",
            "generic (numbered ends)", "Site ID", {line},
            {QStringLiteral("-|10|0|7|-|90|-|7|2|A|6000|11131.949"),
             QStringLiteral("-|10.1|0|7|-|270|-|7|2|B|6200|11131.949")});
        row("ends with words of their own",
            "Call sign;Pos. Nodo Lat;Pos. Nodo Lon;Nodo altezza;Pos. Ripresa Lat;Pos. Ripresa Lon;"
            "Ripresa altezza\nW7;0;10;30;0;10,1;35\n",
            "generic (ends side by side)", "Site ID", {line},
            {QStringLiteral("-|10|0|W7|30|90|-|W7|2|A|-|11131.949"),
             QStringLiteral("-|10.1|0|W7|35|270|-|W7|2|B|-|11131.949")});
        row("one end with a word of its own",
            "Link,Site,Lat,Lon,Antenna height,Client site,Client lat,Client lon,Frequency\n"
            "L,S1,0,10,30,S2,0,10.1,7\n",
            "generic (ends side by side)", "Site ID", {line},
            {QStringLiteral("S1|10|0|L|-|90|-|L|2|A|7000|11131.949"),
             QStringLiteral("S2|10.1|0|L|-|270|-|L|2|B|7000|11131.949")});
        row("columns that are there twice", "Link,Site,Lat,Lon,Site,Lat,Lon\nL,S1,0,10,S2,0,10.1\n",
            "generic (ends side by side)", "Site ID", {line},
            {QStringLiteral("S1|10|0|L|-|90|-|L|2|A|-|11131.949"),
             QStringLiteral("S2|10.1|0|L|-|270|-|L|2|B|-|11131.949")});
    }
    void givesLinksAndTheirEnds()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, ends);
        const Warnings warnings;
        m_folder.write("l.csv", text);
        const auto dataset = m_folder.open("link:", "l.csv");
        QVERIFY2(dataset, qPrintable(warnings.texts.join(QLatin1Char('\n'))));
        OGRLayer *linkLayer = dataset->GetLayer(0);
        OGRLayer *endLayer = dataset->GetLayer(1);

        QStringList foundLines;
        for (const OGRFeatureUniquePtr &link : *linkLayer)
            foundLines += lineOf(link->GetGeometryRef());
        QStringList foundEnds;
        for (const OGRFeatureUniquePtr &end : *endLayer) {
            foundEnds += valuesOf(*end, 3);
            QCOMPARE(end->GetFID() / 2, end->GetFieldAsInteger64("Link row"));
            QCOMPARE(end->GetGeometryRef() != nullptr, !end->IsFieldNull(1) && end->IsFieldSet(1));
        }

        QCOMPARE(dataset->GetLayerCount(), 2);
        QCOMPARE(endLayer->GetName(), "l_ends");
        QTEST(foundLines, "lines");
        QCOMPARE(foundEnds, ends);
        QCOMPARE(endLayer->GetFeatureCount(), ends.size());
        QTEST(QString::fromUtf8(endLayer->GetLayerDefn()->GetFieldDefn(0)->GetNameRef()),
              "firstField");
        for (OGRLayer *layer : {linkLayer, endLayer}) {
            QTEST(QString::fromUtf8(layer->GetMetadataItem("format")), "format");
            QCOMPARE(layer->GetMetadataItem("unit"), "DEGREES");
        }
    }

    void recognisesColumns_data()
    {
        const Cases<QByteArray, QByteArray, bool> row({"header", "field", "endA"});
        const QList<std::pair<QByteArray, QByteArray>> headers = {
            {"Call sign 1|A|TX|Site A|Site  TX Name|A.ID|Name (A)|ID (TX)|Name TX|Antenna A",
             "Site ID"},
            {"Longitude 1|Site A X|A Longitude|TX.Longitude|X (A)|Longitude (TX)|Longitude TX|"
             "X A (m)|Longitude TX (transmitter)|Dł geo TX|Longitude 1 (°)|lon1",
             "Longitude"},
            {"Latitude 1|Site A Y|A Latitude|TX.Latitude|Y (A)|Latitude (TX)|Latitude TX|"
             "Y A north|Lat A|Sz geo TX",
             "Latitude"},
            {"Antenna height (m) 1|Site A Height|TX.Height (m)|Height (A)|Height TX above ground|"
             "A Height of tower|Hauteur A",
             "Transmitter-1 Height (m)"},
            {"TX1 (MHz) 1|Site A Frequency (MHz)|TX.Frequency (MHz)|Frequency (A) (MHz)|"
             "Frequency TX (MHz)|A Frequency Band (MHz)",
             "Frequency (MHz)"},
            {"Azimuth (deg 2) 1|Site A Azimuth|TX.Azimuth|Azimuth (A)|Azimuth TX true",
             "Transmitter-1 Azimuth (°)"},
            {"Tilt (°) 1|Site A Tilt|TX.Tilt|Tilt (A)|Tilt TX (°)", "Transmitter-1 Tilt (°)"}};
        for (const auto &[list, field] : headers)
            for (const QByteArray &header : list.split('|'))
                for (const QByteArray &name : {header, otherEnd(header)})
                    row(name.constData(), name, field, (name == header));
    }
    void recognisesColumns()
    {
        QFETCH(QByteArray, header);
        QFETCH(QByteArray, field);
        QFETCH(bool, endA);
        const Warnings warnings;
        const QByteArray coordinate = field == "Longitude" || field == "Latitude" ? field : "";
        QByteArray names = header;
        QByteArray row = "12";
        for (const char *other : {"Longitude A", "Latitude A", "Longitude B", "Latitude B"})
            if (QByteArray(other) != coordinate + (endA ? " A" : " B")) {
                names += QByteArray(";") + other;
                row += ";10";
            }
        m_folder.write("c.csv", names + "\n" + row + "\n");
        const auto dataset = m_folder.open("link:", "c.csv");
        QVERIFY2(dataset, qPrintable(warnings.texts.join(QLatin1Char('\n'))));

        const OGRFeatureUniquePtr end(dataset->GetLayer(1)->GetFeature(endA ? 4 : 5));

        QCOMPARE(QByteArray(end->GetFieldAsString(field.constData())), QByteArray("12"));
    }

    void readsQuantities_data()
    {
        // value: empty for none
        const Cases<QByteArray, QByteArray, QByteArray> table({"header", "cell", "value"});
        const auto row = [&table](const char *header, const char *cell, const char *value) {
            table((QByteArray(header) + ": " + cell).constData(), header, cell, value);
        };
        row("Height A", "30,5", "30.5");
        row("Height A (feet)", "100", "30.48");
        row("Height A (ft)", "30 m", "30");
        row("Height A", "100'", "30.48");
        row("Height A", "30 apples", "");
        row("Frequency A", "23", "23000");
        row("Frequency A", "11485", "11485");
        row("Frequency A", "23000000000", "23000");
        row("Frequency A", "1.15E+10", "11500");
        row("Frequency A (kHz)", "7000000", "7000");
        row("Frequency A [THz]", "0.08", "80000");
        row("Frequency A (MHz)", "38.5 GHz", "38500");
        row("Frequency A (MHz)", "11,485.5", "11485.5");
        row("Frequency A (MHz)", "['006123.10000000', '006125.10000000']", "6123.1");
        row("Frequency A (MHz)", "11 485", "");
        row("Frequency A", "-23", "");
        row("F [GHz]", "38,5", "38500");
        row("Band", "18-23 GHz", "18000");
        row("Bandwidth (MHz)", "28", "");
    }
    void readsQuantities()
    {
        QFETCH(QByteArray, header);
        QFETCH(QByteArray, cell);
        const Warnings warnings;
        m_folder.write("q.csv",
                       "Link;X A;Y A;X B;Y B;" + header + "\nL;10;1;11;1;\"" + cell + "\"\n");
        const auto dataset = m_folder.open("link:", "q.csv");
        QVERIFY(dataset);

        const OGRFeatureUniquePtr end(dataset->GetLayer(1)->GetFeature(4));

        QTEST(QByteArray(end->GetFieldAsString(
                  header.startsWith("Height") ? "Transmitter-1 Height (m)" : "Frequency (MHz)")),
              "value");
    }

    void movesEndsByTheirOffsets_data()
    {
        // row: X A, Y A, X B, Y B, DX A, DY A
        const Cases<QByteArray, QByteArray, double, double> row(
            {"options", "row", "east", "north"});
        // WGS 84 at the equator: 100 m / 6378137 m and 100 m / 6335439.327 m in degrees
        row("degrees, east", {}, "10;0;11;0;100;", 10.00089831528, 0);
        row("degrees, north", {}, "10;0;11;0;NA;100 m", 10, 0.00090436947);
        row("metres", "s_srs=2154,", "700000;6600000;710000;6600000;100;-50", 700100, 6599950);
        // a US survey foot is 1200/3937 m
        row("feet", "s_srs=2229,", "6500000;1800000;6510000;1800000;1200;0", 6503937, 1800000);
        row("unreadable", {}, "10;0;11;0;x;5 apples", 10, 0);
    }
    void movesEndsByTheirOffsets()
    {
        QFETCH(QByteArray, options);
        QFETCH(QByteArray, row);
        QFETCH(double, east);
        QFETCH(double, north);
        const Warnings warnings;
        m_folder.write("o.csv", "X A;Y A;X B;Y B;DX (A) (m);A.DY\n" + row + "\n");
        const auto dataset = m_folder.open("link:" + options, "o.csv");
        QVERIFY(dataset);

        const OGRFeatureUniquePtr end(dataset->GetLayer(1)->GetFeature(4));

        const OGRPoint *point = end->GetGeometryRef()->toPoint();
        QVERIFY(std::abs(point->getX() - east) < 1e-9 * std::abs(east));
        QVERIFY(std::abs(point->getY() - north) < 1e-9 * (1 + std::abs(north)));
        QCOMPARE(end->GetFieldAsDouble(1), point->getX());
        QCOMPARE(end->GetFieldAsDouble(2), point->getY());
    }

    void saysWhatIsWrong_data()
    {
        // problem: empty: none
        const Cases<QByteArray, QByteArray, QString> row({"header", "row", "problem"});
        const QByteArray header = "Link;X A;Y A;X B;Y B;Height A;Height B;Frequency (GHz);Length";
        row("nothing", header + " (km)", "L;10;0;10,1;0;30;30;7;11,6", "");
        row("an end without a position", header, "L;10;0;x;0;30;30;7;",
            "2|X B|Error|the coordinate \"x\" cannot be read: it holds no number");
        row("an end at null island", header, "L;0;0;1;0;30;30;7;",
            "2|X A|Error|the coordinate \"0\" cannot be read: 0, 0 stands for an unknown position");
        row("one position", header + " (km)", "L;10;0;10,000001;0;30;30;7;9",
            "2||Warning|the ends of the link are less than a meter apart");
        row("no height", header, "L;10;0;11;0;30;;7;",
            "2|Height B|Warning|the antenna height is empty");
        row("an unreadable height", header, "L;10;0;11;0;high;30;7;",
            "2|Height A|Warning|the antenna height \"high\" cannot be read");
        row("no frequency", header, "L;10;0;11;0;30;30;n/a;",
            "2|Frequency (GHz)|Warning|the frequency is empty");
        row("an unreadable frequency", header, "L;10;0;11;0;30;30;E-band;",
            "2|Frequency (GHz)|Warning|the frequency \"E-band\" cannot be read");
        row("a frequency of 0", header, "L;10;0;11;0;30;30;0;",
            "2|Frequency (GHz)|Warning|the frequency \"0\" is not positive");
        row("a length in miles", header + " (miles)", "L;10;0;10,1;0;30;30;7;10",
            "2|Length (miles)|Warning|the stated length of 16093 m does not match the distance "
            "between the ends, which is 11132 m");
        row("a length without a unit", header, "L;10;0;10,1;0;30;30;7;10", "");
        row("lengths without a unit that are kilometres",
            "Link;X A;Y A;X B;Y B;Height A;Height B;Frequency;Length",
            "L;10;0;10,1;0;30;30;7;11,1\nM;10;0;10,2;0;30;30;7;22,3\nN;10;0;10,3;0;30;30;7;33,4\n"
            "O;10;0;10,4;0;30;30;7;44,5\nP;10;0;10,5;0;30;30;7;44,5",
            "6|Length|Warning|the stated length of 44500 m does not match the distance between the "
            "ends, which is 55660 m");
        row("a short link that is 90 m off", header + " (m)", "L;10;0;10,01;0;30;30;7;1200", "");
        row("an offset", "X A;Y A;X B;Y B;Height A;Height B;Frequency;DX B",
            "10;0;11;0;30;30;7;5 apples",
            "2|DX B|Warning|the offset \"5 apples\" cannot be read: the position is taken without "
            "it");
        row("heights above the sea", "X A;Y A;X B;Y B;H t A [m npm];Height B;Frequency",
            "10;0;11;0;130;30;7",
            "||Warning|the heights in column \"H t A [m npm]\" are above sea level, not above "
            "ground: they are not used");
        row("no frequencies", "X A;Y A;X B;Y B;Height A;Tower height B", "10;0;11;0;30;30",
            "||Warning|no column with frequencies was recognized");
        row("dishes", "X A;Y A;X B;Y B;Height A;Height B;Frequency;Dish A (m);Antenna diameter B",
            "10;0;11;0;30;30;7;0,6;1,2",
            "||Warning|the dishes are drawn with the size that the layer states, not with the "
            "diameters in the table (Dish A (m), Antenna diameter B)");
        row("a repeater", "X A;Y A;X B;Y B;Height A;Height B;Frequency;Passive repeater;Dish A",
            "10;0;11;0;30;30;7;Umlenker 3;",
            "||Warning|passive repeaters are not drawn: each link is a straight line between its "
            "ends (Passive repeater)");
        row("an unreadable length", header + " (km)", "L;10;0;11;0;30;30;7;short",
            "2|Length (km)|Warning|the stated length \"short\" cannot be read");
        row("no heights", "X A;Y A;X B;Y B;Frequency;Ground height A", "10;0;11;0;7;30",
            "||Warning|no columns with antenna heights above ground were recognized");
    }
    void saysWhatIsWrong()
    {
        QFETCH(QByteArray, header);
        QFETCH(QByteArray, row);
        QFETCH(QString, problem);
        const Warnings warnings;
        m_folder.write("p.csv", header + "\n" + row + "\n");
        const auto dataset = m_folder.open("link:", "p.csv");
        QVERIFY(dataset);
        const auto count = [](OGRLayer &layer) {
            for (const OGRFeatureUniquePtr &feature : layer)
                static_cast<void>(feature);
        };

        count(*dataset->GetLayer(0));
        count(*dataset->GetLayer(1));

        QCOMPARE(problemsOf(*dataset->GetLayer(0)).mid(1),
                 problem.isEmpty() ? QStringList()
                                   : QStringList{QStringLiteral("PROBLEM_1=") + problem});
        QCOMPARE(problemsOf(*dataset->GetLayer(1)), QStringList());
        QCOMPARE(warnings.texts.size(), !problem.isEmpty() && problem[0].isDigit() ? 1 : 0);
    }

    void refusesOtherTables_data()
    {
        const Cases<QByteArray, QString> row({"text", "reason"});
        row("sites", "Site;Longitude;Latitude;Azimuth 1\nS;2;48;90\n",
            "this is a table of sites, not of links: it has the coordinates of one position per "
            "row (Longitude, Latitude), not those of two ends");
        row("two positions of a site",
            "Site;Lat;Lon;GPS planned lat;GPS planned lon\nS;48;2;48,0001;2\n",
            "this is a table of sites");
        row("one end", "Link;Longitude B;Latitude B\nL;2;48\n", "those of end A are missing");
        row("one coordinate", "Link;Near lat;Near lon;Far lon\nL;48;2;3\n",
            "the latitude or northing of end B is missing");
        row("ends by name only", "Link;A;B;Length (km)\nL;S1;S2;11\n",
            "the ends of the links are only named (A; B): their positions must stand in a table "
            "of sites, on another sheet of the workbook or in the file that SITES (--sites) names");
        row("neither ends nor positions", "Link;Length (km)\nL;11\n",
            "no columns with coordinates of both ends were recognized");
        row("no header",
            "3334173;Cancelled;41.59;-83.09306;176.0m;41.59;-83.4;185.3m;"
            "['006123.10', '006123.10']\n",
            "no header was found");
    }
    void refusesOtherTables()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, reason);
        const Warnings warnings;
        m_folder.write("r.csv", text);

        QVERIFY(!m_folder.open("link:", "r.csv"));
        QVERIFY2(warnings.texts.join(QLatin1Char('\n')).contains(reason),
                 qPrintable(warnings.texts.join(QLatin1Char('\n'))));
    }

    void prefersTheSheetOfItsKind()
    {
        const auto sheet = [](const QByteArray &name, const QByteArrayList &cells) {
            QByteArray text = "<Worksheet ss:Name=\"" + name + "\"><Table>";
            for (int i = 0; i < cells.size(); ++i)
                text += (i % 4 == 0 ? "<Row>" : "") +
                        ("<Cell><Data ss:Type=\"String\">" + cells[i]) + "</Data></Cell>" +
                        (i % 4 == 3 ? "</Row>" : "");
            return text + "</Table></Worksheet>";
        };
        m_folder.write("w.xml",
                       "<?xml version=\"1.0\"?><Workbook "
                       "xmlns=\"urn:schemas-microsoft-com:office:spreadsheet\" "
                       "xmlns:ss=\"urn:schemas-microsoft-com:office:spreadsheet\">" +
                           sheet("Sites", {"Site", "X", "Y", "Name", "S", "2", "48", "n"}) +
                           sheet("Links", {"X A", "Y A", "X B", "Y B", "2", "48", "3", "48"}) +
                           "</Workbook>");

        QCOMPARE(m_folder.open("link:", "w.xml")->GetLayer(0)->GetName(), "Links");
        QCOMPARE(m_folder.open("site:", "w.xml")->GetLayer(0)->GetName(), "Sites");
    }

    void readsEndsAtRandomWithinAWalk()
    {
        const Warnings warnings;
        m_folder.write("n.csv", SideBySide);
        const auto dataset = m_folder.open("link:", "n.csv");
        OGRLayer *ends = dataset->GetLayer(1);
        const OGRFeatureUniquePtr first(ends->GetNextFeature());
        const OGRFeatureUniquePtr last(ends->GetFeature(9));
        OGREnvelope extent;
        QCOMPARE(ends->GetExtent(&extent), OGRERR_NONE); // reads all features too
        const OGRFeatureUniquePtr second(ends->GetNextFeature());

        QCOMPARE(first->GetFID(), 6);
        QCOMPARE(last->GetFieldAsString(0), "S3");
        QCOMPARE(second->GetFID(), 7);
        QCOMPARE(second->GetFieldAsString(0), "S2");
        QCOMPARE(extent.MaxX, 10.1);
        for (const GIntBig missing : {-1, 0, 1, 2, 5, 10})
            QVERIFY(!OGRFeatureUniquePtr(ends->GetFeature(missing)));
        for (const int index : {0, 1, 2, 3}) {
            QCOMPARE(ends->SetNextByIndex(index), OGRERR_NONE);
            const OGRFeatureUniquePtr next(ends->GetNextFeature());
            QCOMPARE(next->GetFID(), 6 + index);
            QCOMPARE(next->GetFieldAsString("End"), index % 2 == 0 ? "A" : "B");
        }
        QVERIFY(ends->SetNextByIndex(4) != OGRERR_NONE);
    }

    void filtersBothLayers()
    {
        const Warnings warnings;
        m_folder.write("f.csv", SideBySide);
        const auto dataset = m_folder.open("link:t_srs=3857,", "f.csv");
        OGRLayer *links = dataset->GetLayer(0);
        OGRLayer *ends = dataset->GetLayer(1);
        const double x = 6378137 * 10 * M_PI / 180; // 10 degrees east in EPSG:3857
        const char *ignored[] = {"Link", "Transmitter-1 Height (m)", nullptr};

        QCOMPARE(ends->SetIgnoredFields(ignored), OGRERR_NONE);
        ends->SetSpatialFilterRect(x - 1, -1, x + 1, 1);
        links->SetSpatialFilterRect(x + 1000, -1, x + 2000, 1);

        QCOMPARE(ends->GetFeatureCount(), 2);
        QCOMPARE(links->GetFeatureCount(), 1);
        ends->SetAttributeFilter("\"Link row\" = 4");
        QCOMPARE(ends->GetFeatureCount(), 1);
        const OGRFeatureUniquePtr end(ends->GetNextFeature());
        QCOMPARE(end->GetFID(), 8);
        QVERIFY(!end->IsFieldSet(4) && !end->IsFieldSet(7));
        QCOMPARE(end->GetFieldAsDouble("Frequency (MHz)"), 23000.0);
        QCOMPARE(end->GetFieldAsDouble("Longitude"), 10.0); // in the file's system
    }

private:
    TableFolder m_folder;
};

QTEST_GUILESS_MAIN(tst_LinkLayer)
#include "tst_LinkLayer.moc"
