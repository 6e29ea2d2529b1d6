#include "LayerScenes.h"
#include "contract/SceneObjects.h"
#include "plugins/scene/reading/LayerFile.h"
#include "support/Cases.h"
#include "support/GeoTiff.h"

#include <osg/Geometry>
#include <osg/ValueObject>
#include <osgDB/WriteFile>

#include <QtTest>

#include <array>
#include <cmath>
#include <map>
#include <string>

namespace {

using namespace layertest;

const QByteArray Header = "Site ID,X,Y,Transmitter-1 Terrain Height (m),Transmitter-1 height (m),"
                          "Transmitter-1 Azimuth (\u00b0),Transmitter-2 height (m),"
                          "Transmitter-2 Azimuth (\u00b0)\n";

QByteArray layerText(const std::string &source, const char *siteField = "Site ID")
{
    return "<?xml version=\"1.0\"?>\n<!-- <veltaroLayer kind=\"none\"> -->\n"
           "<veltaroLayer kind=\"sites\" version=\"1\"><title><![CDATA[A & <B>]]></title>"
           "<description><![CDATA[<title>[x]</title><source>no</source>]]></description>"
           "<source><![CDATA[" +
           QByteArray::fromStdString(source) + "]]></source><siteField>" + siteField +
           "</siteField></veltaroLayer>";
}

std::string siteSource(const std::string &table, const std::string &srs = "2154")
{
    return "site:s_srs=" + srs + ",t_srs=" + srs + ",data_folder=d," + PylonStyle +
           "lods=10000 1000," + table;
}

} // namespace

class tst_SiteLayerScene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesSitesAroundTheirMiddle_data()
    {
        const Cases<QByteArray, QByteArray, double, double, double> row(
            {"rows", "srs", "east", "north", "tolerance"});
        // The origin is the middle of A and B; east and north give the vector from A to C.
        row("metres",
            "A,650000,6860000,100,30,0,,\nB,651000,6862000,0,30,"
            "0,,\nC,650300,6860400,120,30,0,,\n",
            "2154", 300, 400, 0.001);
        // US survey feet: 1200/3937 m
        row("feet",
            "A,6000000,2000000,100,30,0,,\nB,6010000,2010000,0,30,"
            "0,,\nC,6003937,2003937,120,30,0,,\n",
            "2227", 1200, 1200, 0.001);
        // WGS 84 at 60 degrees: 0.01 degree of longitude is 558.00 m, of latitude 1114.12 m
        // (radii of curvature N = 6394209.17 m, M = 6383453.86 m)
        row("degrees",
            "A,10,60,100,30,0,,\nB,10.02,60.02,0,30,0,,\n"
            "C,10.01,60.01,120,30,0,,\n",
            "4326", 558.00, 1114.12, 0.25);
        // 0.01 grad on the ellipsoid of NTF: N = 6394584.6 m, M = 6383653.0 m
        row("grads",
            "A,2,66.66666667,100,30,0,,\n"
            "B,2.02,66.68666667,0,30,0,,\n"
            "C,2.01,66.67666667,120,30,0,,\n",
            "4807", 502.23, 1002.74, 0.25);
        // the same places: a metre on the map is half a metre on the ground
        row("Mercator",
            "A,1113194.908,8399737.890,100,30,0,,\nB,1115421.298,8404192.016,0,30,0,,\n"
            "C,1114308.103,8401964.616,120,30,0,,\n",
            "3857", 558.00, 1114.12, 0.25);
        row("counted to the west and south",
            "A,10000,2900000,100,30,0,,\nB,11000,2902000,0,30,0,,\n"
            "C,10300,2900400,120,30,0,,\n",
            "2053", -300, -400, 0.001);
        row("both sides of the date line",
            "A,179.99,60,100,30,0,,\nB,-179.99,60.02,0,30,0,,\n"
            "C,180,60.01,120,30,0,,\n",
            "4326", 558.00, 1114.12, 0.25);
    }

    void placesSitesAroundTheirMiddle()
    {
        QFETCH(QByteArray, rows);
        QFETCH(QByteArray, srs);
        QFETCH(double, east);
        QFETCH(double, north);
        QFETCH(double, tolerance);
        writeFile(path(QStringLiteral("t.csv")), Header + rows + "D,,,,,,,\n");
        writeFile(path(QStringLiteral("t.lay")), layerText(siteSource("t.csv", srs.toStdString())));

        const Opened opened = open(path(QStringLiteral("t.lay")));
        QVERIFY2(opened.scene, opened.fault.c_str());
        Everything found;
        opened.scene->accept(found);

        const osg::Vec3d way = found.feet["C"] - found.feet["A"];
        QVERIFY2(std::abs(way.x() - east) <= tolerance, std::to_string(way.x()).c_str());
        QVERIFY2(std::abs(way.y() - north) <= tolerance, std::to_string(way.y()).c_str());
        QVERIFY((found.feet["A"] + found.feet["B"] - osg::Vec3d(0, 0, 100)).length() < 1);
        QCOMPARE(found.feet["C"].z(), 120.0);
        QCOMPARE(opened.fact("sites"), std::string("3"));
        QCOMPARE(opened.fact("unplaced"), std::string("1"));
        QCOMPARE(opened.fact("srs"), "EPSG:" + srs.toStdString());
        QCOMPARE(opened.scene->getName(), std::string("A & <B>"));
    }

    void standOnTheTerrainOfTheCaller()
    {
        // A at (650000, 6860000) has a ground height in the table; B and C have none, C is outside
        writeFile(path(QStringLiteral("t.csv")),
                  Header + "A,650000,6860000,100,30,0,,\nB,650500,6860500,,30,0,,\n"
                           "C,652000,6862000,,30,0,,\n");
        writeFile(path(QStringLiteral("t.lay")), layerText(siteSource("t.csv")));
        const osg::ref_ptr<osgDB::Options> options = new osgDB::Options;
        options->setPluginStringData(
            "vlt.terrain", makeGeoTiff(path(QStringLiteral("dem.tif")),
                                       {20, 20, 1, GDT_Float32, northUp(649000, 6859000, 100, 20),
                                        "EPSG:2154", [](int, int, int) { return 42; }}));
        const auto heights = [&](const osgDB::Options *with) {
            Everything found;
            open(path(QStringLiteral("t.lay")), with).scene->accept(found);
            return std::array{found.feet["A"].z(), found.feet["B"].z(), found.feet["C"].z()};
        };

        QCOMPARE(heights(options), (std::array{100.0, 42.0, 0.0}));
        QCOMPARE(heights(nullptr), (std::array{100.0, 0.0, 0.0}));
    }

    void namesStandOverTheirSites()
    {
        writeFile(path(QStringLiteral("t.csv")), Header +
                                                     "Gr\u00e9\u00e9,650000,6860000,50,30,0,,\n"
                                                     "B,650500,6860000,0,,,,\n");
        writeFile(path(QStringLiteral("t.lay")), layerText(siteSource("t.csv"), "no such field"));

        Everything found;
        open(path(QStringLiteral("t.lay"))).scene->accept(found);

        QCOMPARE(found.labels.size(), std::size_t{2});
        const osg::Vec3d above = found.labels["Gr\u00e9\u00e9"] - found.feet["Gr\u00e9\u00e9"];
        QVERIFY(std::hypot(above.x(), above.y()) < 0.01);
        QVERIFY(above.z() > 40 && above.z() < 60); // the sector reaches from 20 to 40
    }

    /// Sectors of the symbolic representation, distinguished by the direction of their outer
    /// corners.
    void colorsTransmittersInTurn()
    {
        writeFile(path(QStringLiteral("t.csv")), Header + "A,650000,6860000,0,30,90,30,270\n");
        writeFile(path(QStringLiteral("t.lay")), layerText(siteSource("t.csv")));
        Everything found;
        const Opened opened = open(path(QStringLiteral("t.lay")));
        opened.scene->accept(found);

        std::string legend;
        opened.scene->getUserValue("vlt.legend", legend);
        QCOMPARE(legend, std::string("sector\tff0000ff\t1\nsector\t00ff00ff\t2\n"));
        std::map<bool, double> reach; // farthest x of the red and of the other drawables
        for (const osg::ref_ptr<const osg::Drawable> &drawable : found.drawables) {
            const auto *points =
                dynamic_cast<const osg::Vec3Array *>(drawable->asGeometry()->getVertexArray());
            const auto *colors =
                dynamic_cast<const osg::Vec4ubArray *>(drawable->asGeometry()->getColorArray());
            for (unsigned i = 0; colors->size() == points->size() && i < points->size(); ++i) {
                const osg::Vec4ub color = (*colors)[i];
                const double x = (*points)[i].x();
                if (color.b() == 0 && (color.r() == 0) != (color.g() == 0) &&
                    std::abs(x) > std::abs(reach[color.r() > 0]))
                    reach[color.r() > 0] = x;
            }
        }
        QVERIFY(std::abs(reach[true] - 200) < 0.01);
        QVERIFY(std::abs(reach[false] + 200) < 0.01);
    }

    /// Expected are the convergences of the projections: n (lon0 - lon) of a conic one, and
    /// atan(tan(lon - lon0) sin(lat)) of a transverse Mercator projection.
    void turnsPylonsToTrueNorth_data()
    {
        const Cases<QByteArray, std::string, double> row({"positions", "srs", "north"});
        row("west of the meridian of a cone", "A,223951.524,6758027.195,0,30,0,,\n", "2154", 4.615);
        row("east of the meridian of a cylinder", "A,611891.935,5317388.799,0,30,0,,\n", "32631",
            -1.115);
        row("counted to the west and south", "A,-100120.866,2877217.612,0,30,0,,\n", "2053", 0.438);
        row("in degrees", "A,0,48,0,30,0,,\nB,3,48,0,30,0,,\n", "4326", 1.115);
        row("in the middle", "A,700000,6776254,0,30,0,,\n", "2154", 0);
    }
    void turnsPylonsToTrueNorth()
    {
        QFETCH(QByteArray, positions);
        QFETCH(std::string, srs);
        QFETCH(double, north);
        writeFile(path(QStringLiteral("t.csv")), Header + positions);
        writeFile(path(QStringLiteral("t.lay")), layerText(siteSource("t.csv", srs)));
        Everything found;
        open(path(QStringLiteral("t.lay"))).scene->accept(found);

        const osg::Vec3d ahead = found.ahead["A"];
        const double pylon = osg::RadiansToDegrees(std::atan2(ahead.x(), ahead.y()));
        QVERIFY2(std::abs(pylon - north) < 0.01, std::to_string(pylon).c_str());
    }

    void drawsOnlyWhatCanBeRead_data()
    {
        const Cases<QByteArray, QByteArray, bool, bool> row({"height", "azimuth", "east", "west"});
        row("numbers", "30", "90", true, false);
        row("units", "98.4 ft", "90\u00b0", true, false);
        row("units in words", "30 m", "90 deg", true, false);
        row("no azimuth", "30", "", true, true);
        row("azimuth not known", "30", "N/A", true, true);
        row("a list", "30", "90/270", false, false);
        row("beyond a turn", "30", "1200", false, false);
        row("too high", "99999", "90", false, false);
    }
    void drawsOnlyWhatCanBeRead()
    {
        QFETCH(QByteArray, height);
        QFETCH(QByteArray, azimuth);
        // the second site has a text in each column, which are texts therefore
        writeFile(path(QStringLiteral("t.csv")),
                  Header + "A,650000,6860000,0," + height + ',' + azimuth + ",,\nB,,,0,x,x,,\n");
        writeFile(path(QStringLiteral("t.lay")), layerText(siteSource("t.csv")));
        Everything found;
        open(path(QStringLiteral("t.lay"))).scene->accept(found);

        double east = 0;
        double west = 0;
        for (const osg::ref_ptr<const osg::Drawable> &drawable : found.drawables) {
            const osg::BoundingBox box = drawable->getBoundingBox();
            east = std::max<double>(east, box.xMax());
            west = std::min<double>(west, box.xMin());
        }
        QTEST(east > 100, "east");
        QTEST(west < -100, "west");
    }

    void sharesEqualPylons()
    {
        const auto count = [this](int sites) {
            QByteArray rows;
            for (int i = 0; i < sites; ++i)
                rows += QByteArray("S%1,%2,%3,0,30,0,28,120\n")
                            .replace("%1", QByteArray::number(i))
                            .replace("%2", QByteArray::number(650000 + i % 40 * 300))
                            .replace("%3", QByteArray::number(6860000 + i / 40 * 300));
            writeFile(path(QStringLiteral("t.csv")), Header + rows);
            writeFile(path(QStringLiteral("t.lay")), layerText(siteSource("t.csv")));
            Everything found;
            open(path(QStringLiteral("t.lay"))).scene->accept(found);
            return std::pair(found.drawables.size(), found.feet.size());
        };

        const auto [one, oneFoot] = count(1);
        const auto [thousand, feet] = count(1000);

        QCOMPARE(oneFoot, std::size_t{1});
        QCOMPARE(feet, std::size_t{1000});
        // 16 tiles of 63 sites, each with its masts, opaque sectors and dots, and one block.
        QVERIFY2(thousand <= one + std::size_t{16} * 3 + 1, std::to_string(thousand).c_str());
    }

    /// A written scene has the masts, because it cannot make them on demand.
    void isWholeForWhoWritesIt()
    {
        writeFile(path(QStringLiteral("t.csv")), Header + "A,650000,6860000,0,30,90,30,270\n");
        writeFile(path(QStringLiteral("t.lay")), layerText(siteSource("t.csv")));
        const osg::ref_ptr<osgDB::Options> drawn = new osgDB::Options;
        drawn->setPluginStringData("vlt.drawn", "1");
        for (const osgDB::Options *options :
             {static_cast<osgDB::Options *>(nullptr), drawn.get()}) {
            const Opened opened = open(path(QStringLiteral("t.lay")), options);
            const std::string file = path(QStringLiteral("out.osgt")).toStdString();
            QVERIFY(osgDB::writeNodeFile(*opened.scene, file));

            Everything found;
            osgDB::readRefNodeFile(file)->accept(found);

            QCOMPARE(found.drawables.size() > 5, options == nullptr); // otherwise only its dot
            QCOMPARE(found.labels.size(), std::size_t(options ? 0 : 1));
        }
    }

    /// A program that draws the scene finds each site's row; the second row has no place.
    void statesItsSites()
    {
        namespace keys = vlt::contract::objects;
        writeFile(path(QStringLiteral("t.csv")),
                  Header + "A,650000,6860000,10,30,90,,\nB,,,0,30,90,,\nC,650300,6860400,20,,,,\n");
        writeFile(path(QStringLiteral("t.lay")), layerText(siteSource("t.csv")));
        const osg::ref_ptr<osgDB::Options> drawn = new osgDB::Options;
        drawn->setPluginStringData("vlt.drawn", "1");
        const Opened opened = open(path(QStringLiteral("t.lay")), drawn);

        const osg::UserDataContainer &data = *opened.scene->getUserDataContainer();
        const auto &rows = dynamic_cast<const osg::UIntArray &>(*data.getUserObject(keys::Rows));
        const auto &feet = dynamic_cast<const osg::Vec3Array &>(*data.getUserObject(keys::Places));
        std::string names;
        QVERIFY(opened.scene->getUserValue(keys::Names, names));

        QCOMPARE(names, std::string("A\nC\n"));
        QCOMPARE(rows.asVector(), (std::vector<unsigned>{2, 4}));
        QVERIFY((feet[1] - feet[0] - osg::Vec3(300, 400, 10)).length() < 0.01);
    }

    void looksForTheTableInOrder()
    {
        const auto table = [](int rows) {
            return Header + QByteArray("A,650000,6860000,0,30,0,,\n").repeated(rows);
        };
        const QString layer = writeFile(path(QStringLiteral("layers/t.lay")),
                                        layerText(siteSource("tables/a, b.csv")));

        QCOMPARE(foundInOrder(layer, QStringLiteral("tables/a, b.csv"), table, "sites"),
                 QStringLiteral("1 2 3 4 4"));
    }

    void readsTheShippedTemplates()
    {
        using namespace vlt::scene;
        using Values = std::vector<std::string>; // source, layer, endLayer, siteField
        const std::tuple<const char *, LayerKind, Values> templates[] = {
            {"pylons/template_sites.lay",
             LayerKind::Sites,
             {"__SITE_URL__", "__LAYER__", "", "__SITE_FIELD__"}},
            {"pylons/template_links.lay",
             LayerKind::Links,
             {"__LINK_URL__", "__LAYER__", "__END_LAYER__", "__SITE_FIELD__"}},
            {"template/template_texb.lay", LayerKind::Buildings, {"__TEXB_URL__", "", "", ""}}};
        for (const auto &[name, kind, values] : templates) {
            const LayerFile file =
                readLayerFile(std::string(VLT_INSTALLATION "/addons/telecom/") + name);

            QVERIFY2(file.kind == kind, name);
            QCOMPARE(file.title, std::string("__TITLE__"));
            QCOMPARE((Values{file.source, file.layer, file.endLayer, file.siteField}), values);
        }
    }

    void refusesByName_data()
    {
        const Cases<QByteArray, QByteArray> row({"layer", "named"});
        const QByteArray good = layerText(siteSource("t.csv"));
        const auto changed = [&good](const char *what, const char *with) {
            return QByteArray(good).replace(what, with);
        };
        row("empty", {}, "veltaroLayer");
        row("kind of query", changed("=\"sites\"", "=\"links\""), "link:");
        row("no end", good.left(good.indexOf("]]></source")), "source");
        row("other driver", changed("site:", "CSV:"), "site:");
        row("remote", changed("t.csv]", "/vsicurl/http://h/t.csv]"), "/vsicurl");
        row("endless radius", changed("200 20 2", "inf 20 2"), "radius");
        row("type", changed("monopole_panel", "obelisk"), "obelisk");
        row("colour", changed("00ff00ff", "00ff00"), "\"00ff00\"");
        row("system", changed("t_srs=2154", "t_srs=99"), "99");
        row("no positions", changed("t.csv]", "none.csv]"), "none.csv");
    }

    void refusesByName()
    {
        QFETCH(QByteArray, layer);
        QFETCH(QByteArray, named);
        writeFile(path(QStringLiteral("t.csv")), Header + "A,650000,6860000,0,30,0,,\n");
        writeFile(path(QStringLiteral("none.csv")), Header + "A,,,0,30,0,,\n");
        writeFile(path(QStringLiteral("t.lay")), layer);

        const Opened opened = open(path(QStringLiteral("t.lay")));

        QVERIFY(!opened.scene);
        QVERIFY2(QByteArray::fromStdString(opened.fault).contains(named), opened.fault.c_str());
    }

    void readsEveryEncoding_data()
    {
        const Cases<QByteArray> row({"bytes"});
        const QString layer = QStringLiteral("<veltaroLayer kind='sites'><source>site:donn%1es/"
                                             "&#128225;.csv</source></veltaroLayer>");
        const QString declared = QStringLiteral("<?xml version='1.0' encoding='%1'?>");
        const QString wanted = layer.arg(QChar(0xe9));
        row("references", layer.arg(QStringLiteral("&#xE9;")).toUtf8());
        row("mark", "\xEF\xBB\xBF" + wanted.toUtf8());
        row("declared", (declared.arg(QStringLiteral("iso-8859-1")) + wanted).toLatin1());
        row("declared, and not so", (declared.arg(QStringLiteral("iso-8859-1")) + wanted).toUtf8());
        const QString wide = declared.arg(QStringLiteral("UTF-16")) + wanted;
        QByteArray little;
        QByteArray big;
        for (const QChar unit : wide) {
            little.append(char(unit.unicode() & 0xFF)).append(char(unit.unicode() >> 8));
            big.append(char(unit.unicode() >> 8)).append(char(unit.unicode() & 0xFF));
        }
        row("UTF-16, no mark", little);
        row("UTF-16, mark", "\xFE\xFF" + big);
    }

    void readsEveryEncoding()
    {
        QFETCH(QByteArray, bytes);
        writeFile(path(QStringLiteral("e.lay")), bytes);

        const auto file =
            vlt::scene::readLayerFile(path(QStringLiteral("e.lay")).toLocal8Bit().toStdString());

        QCOMPARE(file.source, std::string("site:donn\u00e9es/\U0001F4E1.csv"));
    }

    void readsTextThatNobodyEscaped()
    {
        const vlt::scene::LayerFile file = vlt::scene::parseLayerFile(
            "<veltaroLayer kind='sites'><source> site:R&D/a&amp;b]]>.csv </source><layer/>"
            "<title><![CDATA[x]]>y]]></title></veltaroLayer>");

        QCOMPARE(file.source, std::string("site:R&D/a&b]]>.csv"));
        QCOMPARE(file.title, std::string("x]]>y"));
    }

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_SiteLayerScene)
#include "tst_SiteLayerScene.moc"
