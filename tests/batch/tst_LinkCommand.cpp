#include "ProgramRun.h"
#include "support/Cases.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

/// The first link goes 0.05 degrees to the north: 5557 m on the meridian at this latitude.
const QByteArray Table = "Name,Frequency Band (GHz),Site A,A Longitude,A Latitude,A Height (m),"
                         "Site B,B Longitude,B Latitude,B Height (m)\n"
                         "North,6,Alpha,2.0,45.0,30,Beta,2.0,45.05,30\n"
                         "High,6,Alpha,2.0,45.0,,Gamma,2.05,45.0,40\n"
                         "Lost,6,Alpha,2.0,45.0,30,Delta,east,45.0,20\n";

const QByteArray Geographic =
    "GEOGCS[\"WGS 84\",DATUM[\"WGS_1984\",SPHEROID[\"WGS 84\",6378137,298.257223563]],"
    "PRIMEM[\"Greenwich\",0],UNIT[\"degree\",0.0174532925199433]]";

/// Terrain at 100 m with a ridge across the middle of the first link, 0.01 degrees wide.
QByteArray terrain(int ridgeM)
{
    QByteArray grid = "ncols 100\nnrows 100\nxllcorner 1.98\nyllcorner 44.98\ncellsize 0.001\n"
                      "NODATA_value -9999\n";
    for (int row = 0; row < 100; ++row) {
        const bool isRidge = row >= 50 && row < 60; // 45.02 to 45.03
        grid += (QByteArray::number(isRidge ? ridgeM : 100) + ' ').repeated(100) + '\n';
    }
    return grid;
}

} // namespace

class tst_LinkCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_program = std::make_unique<ProgramRun>();
        writeFile(path(u"l.csv"_s), Table);
        writeFile(path(u"c.gvw"_s), "DEM Layers\n");
        writeFile(path(u"hills.asc"_s), terrain(128));
        writeFile(path(u"hills.prj"_s), Geographic);
        writeFile(path(u"elsewhere/old.lay"_s), "old");
    }

    void checksLinksOverATerrain_data()
    {
        const Cases<int, QString, QString, double> row(
            {"ridge", "options", "clearanceStatus", "clearance"});
        // In the middle the bulge of the earth is 0.454 m (2778.5 m squared over 2 * 4/3 * 6371
        // km), and the zone's radius at 6 GHz is 8.33 m (half the root of 0.049965 m * 5557 m).
        row("more than the radius", 120, {}, "clear", 9.546);
        row("19 % of the radius", 128, {}, "marginal", 1.546);
        row("less is asked for", 128, "--fresnel-share 18", "clear", 1.546);
        // The bulge is 6.058 m in the middle and 5.82 m at the ridge's southern edge, 556 m from
        // it.
        row("a small earth", 120, "--k-factor 0.1", "marginal", 3.942);
        row("the line is cut", 131, {}, "obstructed", qQNaN());
    }

    void checksLinksOverATerrain()
    {
        QFETCH(int, ridge);
        QFETCH(QString, options);
        QFETCH(double, clearance);
        writeFile(path(u"hills.asc"_s), terrain(ridge));

        const Run run = start(u"link ../l.csv --terrain ../hills.asc --report --json "_s + options);

        QCOMPARE(run.errors, QByteArray("vltlayers: rows that could not be placed: 1\n"));
        const QJsonObject reported = QJsonDocument::fromJson(run.output).object();
        const QJsonArray links = reported.value(u"links"_s).toArray();
        QCOMPARE(links.size(), 3);
        const QJsonObject north = links.at(0).toObject();
        QCOMPARE(north.value(u"row"_s).toInt(), 2);
        QCOMPARE(north.value(u"endB"_s).toString(), u"Beta"_s);
        QCOMPARE_LE(std::abs(north.value(u"lengthM"_s).toDouble() - 5557), 1.0);
        QCOMPARE(north.value(u"frequencyMHz"_s).toDouble(), 6000.0);
        QTEST(north.value(u"clearanceStatus"_s).toString(), "clearanceStatus");
        const QJsonObject worst = north.value(u"worst"_s).toObject();
        QCOMPARE_LE(std::abs(worst.value(u"distanceM"_s).toDouble() - 2778), 560.0);
        if (!qIsNaN(clearance)) {
            QCOMPARE_LE(std::abs(worst.value(u"clearanceM"_s).toDouble() - clearance), 0.02);
            QCOMPARE_LE(std::abs(worst.value(u"freeShare"_s).toDouble() - clearance / 8.33), 0.005);
        }
        QCOMPARE(links.at(1).toObject().value(u"clearanceStatus"_s).toString(), u"unknown"_s);
        QCOMPARE(links.at(1).toObject().value(u"why"_s).toString(), u"heightA"_s);
        QCOMPARE(links.at(2).toObject().value(u"placed"_s).toBool(true), false);
        QCOMPARE(reported.value(u"statusCounts"_s).toObject().value(u"unknown"_s).toInt(), 2);
    }

    /// Its figures are those of the report, in the language of the texts, not in the tests' locale.
    void drawsTheProfileOfALink()
    {
        for (const QString &name : {u"North"_s, u"#2"_s}) {
            const Run run =
                start(u"link ../l.csv --terrain ../hills.asc -o p.svg --profile "_s + name);
            QCOMPARE(run.status, 0);
            const QByteArray picture = readFile(path(u"elsewhere/p.svg"_s));
            for (const char *text :
                 {"North (Alpha \xe2\x80\x93 Beta)", "5.557 km", "6 GHz", "1.5 m"})
                QVERIFY2(picture.contains(text), text);
        }
        QCOMPARE(start(u"link ../l.csv -o p.png --profile North"_s).status, 0);
        QVERIFY(!QImage(path(u"elsewhere/p.png"_s)).isNull());
    }

    void printsAReportForPeopleBesideTheLayer()
    {
        const Run run = start(u"link ../l.csv --terrain ../hills.asc --report -o o.lay"_s);

        QCOMPARE(run.status, 0);
        const QList<QByteArray> lines = run.output.split('\n');
        QCOMPARE(lines.at(1).simplified(),
                 QByteArray("2 North Alpha Beta marginal 5.557 6000 2.778 1.5 19"));
        QVERIFY(lines.at(2).endsWith(" -  no antenna height at end A"));
        QCOMPARE(lines.at(3).simplified(),
                 QByteArray("4 Lost Alpha Delta not placed - 6000 - - - an end has no position"));
        QVERIFY(lines.contains("marginal        : 1"));
        const QByteArray layer = readFile(path(u"elsewhere/o.lay"_s));
        QVERIFY(layer.contains("<veltaroLayer kind=\"links\" version=\"1\">"));
        QCOMPARE(element(layer, "linkField"), QByteArray("Name"));
        QCOMPARE(element(layer, "endLayer"), QByteArray("l_ends"));
    }

    void writesEveryPanelValueAndTheTerrain()
    {
        const Run run = start(
            u"link ../l.csv --project ../c.gvw --terrain ../hills.asc -o o.lay --target-srs "
            "EPSG:2154 --pylon-width 3 --link-style Billboard --link-width 2.5 --link-color "
            "10203040 --color-by-clearance --fresnel-zone 2 --fresnel-share 80 --fresnel-color "
            "aabbcc --fresnel-transparency 100 --k-factor 1 --json --quiet"_s);

        QCOMPARE(run.errors, QByteArray());
        const QByteArray layer = readFile(path(u"elsewhere/o.lay"_s));
        const QByteArray source = element(layer, "source");
        QVERIFY2(source.startsWith("link:s_srs=4326,t_srs=EPSG:2154,data_folder="),
                 source.constData());
        QVERIFY2(
            source.endsWith("link_style=BILLBOARD,link_width=2.5,link_color=10203040 clearance,"
                            "fresnel_zone=2,fresnel_share=80,fresnel_color=aabbcc00,k_factor=1,"
                            "transmitter_scale=100,lods=10000 1000,dem_file=hills.asc,l.csv"),
            source.constData());
        QVERIFY(element(layer, "description")
                    .contains("<tr><td>Height (m)</td><td>[A Height (m)]</td>"
                              "<td>[B Height (m)]</td></tr>"));
        const QJsonObject reported = QJsonDocument::fromJson(run.output).object();
        QCOMPARE(reported.value(u"placedLinks"_s).toInt(), 2);
        QVERIFY(!reported.contains(u"links"_s));

        start(u"link ../l.csv --project ../c.gvw --terrain= -o o.lay --fresnel-zone 0"_s);
        const QByteArray plain = element(readFile(path(u"elsewhere/o.lay"_s)), "source");
        QVERIFY(plain.contains(",fresnel_zone=0,") && !plain.contains("dem_file"));
    }

    void takesColors_data()
    {
        const Cases<QString, QByteArray> row({"given", "inLayer"});
        row("digits", "A0b0C0", "a0b0c0ff");
        row("mark", "#A0b0C0", "a0b0c0ff");
        row("mark and alpha", "#a0b0c040", "a0b0c040");
        row("name", "DarkOrange", "ff8c00ff");
    }

    void takesColors()
    {
        QFETCH(QString, given);
        QFETCH(QByteArray, inLayer);

        const Run run = start(u"link ../l.csv --quiet -o o.lay --link-color "_s + given);

        QCOMPARE(run.errors, QByteArray());
        const QByteArray source = element(readFile(path(u"elsewhere/o.lay"_s)), "source");
        QVERIFY2(source.contains("link_color=" + inLayer + ','), source.constData());
    }

    void reportsWhatALinkTableHolds()
    {
        const Run text = start(u"info --link ../l.csv"_s);
        const Run json = start(u"info --link ../l.csv --json"_s);

        QVERIFY(text.output.contains("Number of links                           : 3\n"));
        QVERIFY(text.output.contains("Height of end B     : B Height (m)\n"));
        QVERIFY(text.output.contains("row 4, column B Longitude: "));
        const QJsonObject reported = QJsonDocument::fromJson(json.output).object();
        QCOMPARE(reported.value(u"frequencyUnit"_s).toString(), u"GHz"_s);
        QCOMPARE(reported.value(u"linkField"_s).toString(), u"Name"_s);
        const QJsonObject columns = reported.value(u"columns"_s).toObject();
        QCOMPARE(columns.value(u"endB"_s).toObject().value(u"longitude"_s).toString(),
                 u"B Longitude"_s);
        QVERIFY(columns.value(u"name"_s).isString() && reported.contains(u"problems"_s));
    }

    void refusesAndWritesNothing_data()
    {
        const Refusals row;
        row("link ../no.csv -o old.lay", 1, "../no.csv: This file can't be open as a link file (");
        row("info --link ../empty.csv", 1, "../empty.csv: This link file is empty");
        row("link ../lost.csv -o old.lay", 1, "../lost.csv: none of its links has a position");
        row("link ../l.csv -o old.lay --terrain ../l.csv", 1,
            "../l.csv: the terrain file cannot be read as a georeferenced raster (its format is "
            "not a known raster format)");
        row("link ../l.csv -o old.lay --terrain no.tif", 1, "(there is no such local file)");
        row("link ../l.csv -o ../hills.asc --terrain ../hills.asc", 1, "one of the input files");
        row("link ../l.csv -o - --report", 2, "'-o -' and --report cannot be combined");
        row("link ../l.csv -o old.svg --profile Nord", 1, "../l.csv: there is no link 'Nord'");
        row("link ../l.csv -o old.svg --profile Lost", 1, "the link 'Lost' has no profile: an end");
        row("link ../l.csv -o old.lay --profile North", 2, "give -o PROFILE.svg or PROFILE.png");
        row("link ../l.csv", 2, "no output file given (-o OUT.lay), and no --report");
        row("link ../l.csv -o old.lay --link-style rope", 2, "line|tube|billboard");
        row("link ../l.csv -o old.lay --link-color bluish", 2, "not \"bluish\"");
        row("link ../l.csv -o old.lay --fresnel-color aabbccdd", 2, "--fresnel-color");
        row("link ../l.csv -o old.lay --fresnel-color transparent", 2, "--fresnel-color");
        row("link ../l.csv -o old.lay --fresnel-zone 11", 2, "0 to 10");
        row("link ../l.csv -o old.lay --fresnel-share 0", 2, "1 to 100");
        row("link ../l.csv -o old.lay --k-factor inf", 2, "0.1 to 100");
        row("link ../l.csv -o old.lay --pylon-width 0", 2, "0.1 to 150");
        row("site ../l.csv -o old.lay --k-factor 1", 2, "k-factor");
    }

    void refusesAndWritesNothing()
    {
        const QByteArray header = Table.left(Table.indexOf('\n') + 1);
        writeFile(path(u"empty.csv"_s), header);
        writeFile(path(u"lost.csv"_s), header + Table.mid(Table.indexOf("Lost")));

        m_program->checkRefusal();
    }

private:
    QString path(const QString &name) const { return m_program->path(name); }
    Run start(const QString &arguments) const { return m_program->start(arguments); }

    std::unique_ptr<ProgramRun> m_program;
};

QTEST_GUILESS_MAIN(tst_LinkCommand)
#include "tst_LinkCommand.moc"
