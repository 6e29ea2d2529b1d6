#include "LayerScenes.h"
#include "contract/SceneLegend.h"
#include "plugins/scene/layers/LayerScene.h"
#include "plugins/scene/layers/LinkRecords.h"
#include "plugins/scene/reading/TableLocation.h"
#include "support/Cases.h"
#include "support/GeoTiff.h"

#include <osg/ValueObject>

#include <QtTest>

#include <array>
#include <cmath>
#include <set>

namespace {

using namespace layertest;
using namespace vlt::scene;
using vlt::linkpath::ClearanceStatus;

// Positions in RGF93. In Lambert-93 A is (650000, 6860000), A1 is one metre north of it, B 3000 m
// east and 4000 m north of A, C 4000 m east of A.
const QByteArray A = "48.838110123,2.318790597";
const QByteArray A1 = "48.838119116,2.318790479";
const QByteArray B = "48.874307556,2.359219079";
const QByteArray C = "48.838408049,2.373284961";

const QByteArray Header =
    "Name,Call sign 1,Latitude 1,Longitude 1,Antenna height (m) 1,TX1 (MHz) 1,"
    "Call sign 2,Latitude 2,Longitude 2,Antenna height (m) 2,TX1 (MHz) 2\n";

const QByteArray Rows = "clear,A," + A + ",30,23000,B," + B + ",40,23000\n" +       //
                        "obstructed,A," + A1 + ",20,23000,C," + C + ",20,23000\n" + //
                        "marginal,B," + B + ",2,23000,C," + C + ",2,23000\n" +      //
                        "unknown,B," + B + ",30,,C," + C + ",30,\n" +               //
                        "unplaced,A,,,30,23000,B," + B + ",30,23000\n";

const QByteArray LinkAppearance = "link_style=TUBE,link_width=4,link_color=1f6feb80 clearance,"
                                  "fresnel_zone=1,fresnel_share=60,fresnel_color=ffa50066,"
                                  "k_factor=1.33333,";

QByteArray linkSource(const QByteArray &system = "2154", const QByteArray &terrain = "dem.tif")
{
    return "link:s_srs=4171,t_srs=" + system + ",data_folder=d," + PylonStyle + LinkAppearance +
           "lods=100000 1000,dem_file=" + terrain + ",t.csv";
}

QByteArray layerText(const QByteArray &source)
{
    return "<veltaroLayer kind=\"links\" version=\"1\"><title>Hops</title><source><![CDATA[" +
           source + "]]></source><linkField>Name</linkField></veltaroLayer>";
}

/// The height of the test's terrain in Lambert-93: a plane that rises to the east by 1 in 100, with
/// a hill across the path from A to C.
double terrainM(double x, double y)
{
    const bool isHill = std::abs(x - 652000) < 150 && std::abs(y - 6860000) < 500;
    return isHill ? 400 : 100 + (x - 650000) / 100;
}

std::vector<vlt::contract::legend::Row> legendOf(const osg::Node &scene)
{
    std::string text;
    scene.getUserValue(vlt::contract::legend::Key, text);
    return vlt::contract::legend::rowsOf(text);
}

double turned(double azimuthDeg)
{
    return std::fmod(azimuthDeg + 720, 360);
}

} // namespace

class tst_LinkLayerScene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const auto heightM = [](int column, int row, int) {
            return terrainM(648050 + 100 * column, 6866950 - 100 * row);
        };
        makeGeoTiff(
            path("dem.tif"),
            {80, 80, 1, GDT_Float32, {648000, 100, 0, 6867000, 0, -100}, "EPSG:2154", heightM});
        writeFile(path("t.csv"), Header + Rows);
    }

    void putsLinksOntoTheTerrain_data()
    {
        const Cases<QByteArray, double, double> row({"system", "lengthM", "azimuthDeg"});
        row("metres", "2154", 5000, 36.87);
        // Along the geodesic, with the mean of the azimuths at its ends.
        row("degrees", "4171", 5000.54, 36.39);
        // UTM 31 in feet: A is (1476422.2, 17748304.5), B (1486266.3, 17761421.3)
        row("feet", "+proj=utm +zone=31 +ellps=GRS80 +units=ft", 4998.68, 36.89);
    }

    void putsLinksOntoTheTerrain()
    {
        QFETCH(QByteArray, system);
        QFETCH(double, lengthM);
        QFETCH(double, azimuthDeg);

        const LinkRecords records = recordsOf(linkSource(system));

        QCOMPARE(records.pylons.sites.size(), std::size_t{3}); // A and A1 are one site
        const std::array<double, 3> groundM{100, 130, 140};
        const std::array<double, 3> mastsM{32, 42, 32};
        for (std::size_t i = 0; i < 3; ++i) {
            const SiteRecord &site = records.pylons.sites[i];
            QCOMPARE(site.name, std::string(1, "ABC"[i]));
            QVERIFY(std::abs(site.foot.z() - groundM[i]) < 0.05);
            QCOMPARE(records.pylons.designs[site.design].heightM, mastsM[i]);
        }
        const LinkObject &link = records.links.front();
        QVERIFY(std::abs(link.a.z() - 130) < 0.05 && std::abs(link.b.z() - 170) < 0.05);
        const osg::Vec3d way = link.b - link.a;
        QVERIFY(std::abs(std::hypot(way.x(), way.y()) - lengthM) < 0.1);
        // 40 m over 5 km are 0.458 degrees
        const Transmitter &there = records.pylons.designs[0].transmitters[0];
        const Transmitter &back = records.pylons.designs[1].transmitters[0];
        QVERIFY(there.kind == AntennaKind::Dish && there.heightM == 30 && back.heightM == 40);
        QVERIFY(std::abs(turned(there.azimuthDeg) - azimuthDeg) < 0.03);
        QVERIFY(std::abs(turned(back.azimuthDeg) - azimuthDeg - 180) < 0.03);
        QVERIFY(std::abs(there.tiltDeg + 0.458) < 0.002 && std::abs(back.tiltDeg - 0.458) < 0.002);
        QCOMPARE(records.pylons.designs[1].transmitters.size(), std::size_t{3});
    }

    void leavesOutWhatIsBeyondTheEarth()
    {
        const QByteArray good = ",650000,6860000,20,23000,B,653000,6864000,70,23000\n";
        writeFile(path("slip.csv"),
                  QByteArray(Header).replace("Lat", "X").replace("Long", "Y").replace("itude", "") +
                      "a,A" + good + "b,A" + good +
                      "slip,A,6.5e300,6860000,30,23000,B,653000,6864000,70,23000\n"
                      "thin,A,650000,6860000,30,1e-3,A,650003,6860000,90,1e-3\n");

        const LinkRecords records = recordsOf(
            linkSource().replace("s_srs=4171", "s_srs=2154").replace("t.csv", "slip.csv"));

        QCOMPARE(records.links.size(), std::size_t{3});
        QVERIFY((records.links[0].a - osg::Vec3d(-1500, -2000, 120)).length() < 1);
        QCOMPARE(records.links[2].frequencyMHz, 0.0); // not a microwave frequency
        // The mast is also high enough for a link between two of its own antennas.
        QCOMPARE(records.pylons.designs[0].heightM, 92.0);
    }

    void colorsLinksByTheirClearance()
    {
        const LinkRecords records = recordsOf(linkSource());

        // Halfway between B and C the radius of the first zone is 3.66 m; 2 m less 0.25 m of
        // curvature are free.
        const std::array<ClearanceStatus, 3> expected{
            ClearanceStatus::Clear, ClearanceStatus::Obstructed, ClearanceStatus::Marginal};
        QCOMPARE(records.links.size(), std::size_t{4});
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const auto rgb = vlt::linkpath::clearanceColor(expected[i]);
            QVERIFY(records.links[i].color == Color(rgb[0], rgb[1], rgb[2], 0x80));
        }
        QVERIFY(!records.links[3].color && records.links[3].frequencyMHz == 0);
    }

    void theLegendHasTheColorsOfTheLinks()
    {
        writeFile(path("t.lay"), layerText(linkSource()));
        const auto rows = legendOf(*open(path("t.lay")).scene);
        const LinkRecords records = recordsOf(linkSource());
        // clear, obstructed, marginal
        for (const auto &[link, row] : {std::pair(0U, 0U), {1U, 2U}, {2U, 1U}}) {
            const auto &color = rows.at(row).color;
            QVERIFY(records.links[link].color == Color(color[0], color[1], color[2], color[3]));
        }
    }

    void showsAWholeLayer()
    {
        writeFile(path("t.lay"), layerText(linkSource()));
        const Opened opened = open(path("t.lay"));
        QVERIFY2(opened.scene, opened.fault.c_str());
        Everything found;
        opened.scene->accept(found);

        QCOMPARE(opened.scene->getName(), std::string("Hops"));
        for (const auto &[fact, value] : {std::pair("links", "4"),
                                          {"pylons", "3"},
                                          {"unplaced", "1"},
                                          {"clear", "1"},
                                          {"marginal", "1"},
                                          {"obstructed", "1"},
                                          {"unknown", "1"},
                                          {"srs", "EPSG:2154"}})
            QVERIFY2(opened.fact(fact) == value, fact);
        QCOMPARE(found.labels.size(), std::size_t{3});
        QVERIFY(std::abs(found.feet["C"].z() - 140) < 0.05);
        QStringList legend;
        for (const auto &row : legendOf(*opened.scene)) {
            legend << QString::fromStdString(row.kind);
            for (const std::string &text : row.texts)
                legend.last() += u' ' + QString::fromStdString(text);
        }
        QCOMPARE(legend.join(u','),
                 QStringLiteral("clear 1,marginal 1,obstructed 1,unknown 1,fresnel 1 60"));
        // The origin is the middle of A and B.
        QVERIFY((found.feet["A"] + found.feet["B"] - osg::Vec3d(-1000, 0, 230)).length() < 1.5);
    }

    void saysWhyThereIsNoTerrain_data()
    {
        const Cases<QByteArray, QByteArray> row({"terrain", "said"});
        row("absent", "none.tif", "\"none.tif\"");
        row("no raster", "t.csv", "\"t.csv\"");
        row("remote", "/vsicurl/http://h/d.tif", "/vsicurl");
        row("elsewhere", "far.asc", "3 of 3 pylons");
    }

    void saysWhyThereIsNoTerrain()
    {
        QFETCH(QByteArray, terrain);
        QFETCH(QByteArray, said);
        writeFile(path("far.asc"),
                  "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\n1 2\n3 4\n");
        writeFile(path("far.prj"),
                  "GEOGCS[\"WGS\",DATUM[\"D_WGS_1984\",SPHEROID[\"WGS_1984\",6378137,"
                  "298.257223563]],PRIMEM[\"Greenwich\",0],"
                  "UNIT[\"Degree\",0.0174532925199433]]\n");
        writeFile(path("t.lay"), layerText(linkSource("2154", terrain)));

        std::vector<std::string> notices;
        const std::string layer = path("t.lay").toStdString();
        const auto scene = readLayerScene(readLayerFile(layer), layer, {}, notices);

        QCOMPARE(notices.size(), std::size_t{1});
        QVERIFY2(QByteArray::fromStdString(notices[0]).contains(said), notices[0].c_str());
        Everything found;
        scene->accept(found);
        QCOMPARE(found.feet["C"].z(), 0.0);
    }

    void statesWhereItLies()
    {
        writeFile(path("t.lay"), layerText(linkSource()));
        const osg::ref_ptr<osg::Group> scene = open(path("t.lay")).scene;
        QVERIFY(scene);
        std::string terrain;
        std::string system;
        double lowestM = 0;

        QVERIFY(scene->getUserValue("vlt.terrain", terrain));
        QVERIFY(scene->getUserValue("vlt.srs", system));
        QVERIFY(scene->getUserValue("vlt.ground", lowestM));

        QVERIFY(QFileInfo(QString::fromStdString(terrain)) == QFileInfo(path("dem.tif")));
        QVERIFY(system.find("2154") != std::string::npos);
        Everything found;
        scene->accept(found);
        for (const auto &[name, foot] : found.feet)
            QVERIFY(foot.z() >= lowestM);
    }

    void refusesByName_data()
    {
        const Cases<QByteArray, QByteArray, QByteArray> row({"what", "with", "named"});
        row("query", "link:", "site:", "link:");
        row("word", " clearance", " tilt", "\"tilt\"");
        row("share", "share=60", "share=nan", "fresnel_share");
        row("pylon", "monopole_panel", "obelisk", "obelisk");
        row("table", "t.csv", "u.csv", "u.csv");
        row("no positions", "t.csv", "none.csv", "none of 1 links");
        row("system", "t_srs=2154", "t_srs=99", "99");
    }

    void refusesByName()
    {
        QFETCH(QByteArray, what);
        QFETCH(QByteArray, with);
        QFETCH(QByteArray, named);
        writeFile(path("none.csv"), Header + "n,A,,,30,23000,B," + B + ",40,23000\n");
        writeFile(path("t.lay"), layerText(linkSource().replace(what, with)));

        const Opened opened = open(path("t.lay"));

        QVERIFY(!opened.scene);
        QVERIFY2(QByteArray::fromStdString(opened.fault).contains(named), opened.fault.c_str());
    }

    void looksForTheTableInOrder()
    {
        const auto table = [](int rows) {
            return Header + ("n,A," + A + ",30,23000,B," + B + ",40,23000\n").repeated(rows);
        };
        const QString layer =
            writeFile(path("layers/t.lay"), layerText(linkSource().replace("t.csv", "hops/a.csv")));

        QCOMPARE(foundInOrder(layer, QStringLiteral("hops/a.csv"), table, "links"),
                 QStringLiteral("1 2 3 4 4"));
    }

private:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    LinkRecords recordsOf(const QByteArray &source) const
    {
        const auto table =
            locateTable(source.toStdString(), LayerKind::Links, {m_folder.path().toStdString()});
        const LinkRows rows = readLinkRows(table, {});
        const vlt::linkpath::PathProfiler profiler(
            vlt::linkpath::TerrainRaster::open(path("dem.tif").toStdString()).file, &rows.srs);
        return placeLinks(rows, readLinkLayerStyle(table), profiler);
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_LinkLayerScene)
#include "tst_LinkLayerScene.moc"
