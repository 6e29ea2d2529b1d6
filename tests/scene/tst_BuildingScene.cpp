#include "FootprintFiles.h"
#include "LayerScenes.h"
#include "picking/ObjectPicker.h"
#include "plugins/scene/buildings/BuildingScene.h"
#include "plugins/scene/reading/BadLayer.h"
#include "support/Cases.h"
#include "support/GeoTiff.h"

#include <osg/Geometry>

#include <QTemporaryDir>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace vlt;
using namespace vlt::scene;
using namespace footprinttest;

namespace {

/// The drawables of a scene that are visible from near, in its frame.
struct Drawn : layertest::Everything
{
    explicit Drawn(const osg::ref_ptr<osg::Group> &scene) { scene->accept(*this); }

    void apply(osg::LOD &lod) override
    {
        const bool byPixels = lod.getRangeMode() == osg::LOD::PIXEL_SIZE_ON_SCREEN;
        if (!byPixels)
            farthest.push_back(lod.getMaxRange(lod.getNumRanges() - 1) - lod.getRadius());
        for (unsigned i = byPixels ? lod.getNumChildren() - 1 : 0; i < lod.getNumChildren(); ++i)
            lod.getChild(i)->accept(*this);
    }

    void apply(osg::Geometry &geometry) override
    {
        const auto &vertices = dynamic_cast<const osg::Vec3Array &>(*geometry.getVertexArray());
        const osg::PrimitiveSet &drawn = *geometry.getPrimitiveSet(0);
        for (unsigned i = 0; i + 2 < drawn.getNumIndices(); i += 3) {
            const auto at = [&](unsigned k) {
                return osg::Vec3d(vertices.at(drawn.index(i + k))) + place;
            };
            const osg::Vec3d cross = (at(1) - at(0)) ^ (at(2) - at(0));
            bottom = std::min({bottom, at(0).z(), at(1).z(), at(2).z()});
            if (cross.z() > 0.9 * cross.length()) {
                roofArea += cross.z() / 2;
                tops.insert(at(0).z());
            } else {
                ++wallFaces;
            }
        }
    }

    double roofArea = 0;
    int wallFaces = 0;
    double bottom = 1e9;
    std::set<double> tops;
    std::vector<float> farthest;
};

} // namespace

class tst_BuildingScene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_notices.clear(); }

    void readsShapes_data()
    {
        const Cases<QByteArray, int, double, QByteArray, QByteArray> table(
            {"wkt", "walls", "area", "file", "format"});
        const QByteArray hole = "(3 3,3 7,7 7,7 3,3 3)";
        const auto row = [&table](const char *name, const QByteArray &wkt, int walls, double area,
                                  const QByteArray &file = "town.gpkg",
                                  const QByteArray &format = "GPKG") {
            table(name, wkt, walls, area, file, format);
        };
        row("polygon", Square, 4, 100);
        row("with heights of its points", "POLYGON Z((0 0 5,10 0 6,10 10 7,0 10 8,0 0 5))", 4, 100);
        row("clockwise with a hole", "POLYGON((0 0,0 10,10 10,10 0,0 0)," + hole + ")", 8, 84);
        row("two parts, one with a hole",
            "MULTIPOLYGON(((0 0,10 0,10 10,0 10,0 0)," + hole + "),((20 0,22 0,22 2,20 2,20 0)))",
            12, 88);
        row("within collections",
            "GEOMETRYCOLLECTION(POINT(1 1),GEOMETRYCOLLECTION(LINESTRING(0 0,9 9)," + Square + "))",
            4, 100);
        row("a part without an area", "MULTIPOLYGON(((0 0,5 0,10 0,0 0)),((0 0,4 0,4 4,0 0)))", 3,
            8);
        row("a hole without an area", "POLYGON((0 0,10 0,10 10,0 10,0 0),(3 3,5 5,3 3,3 3))", 4,
            100);
        row("figure of eight", "POLYGON((0 0,10 10,10 0,0 10,0 0))", 8, 50);
        row("there and back", "POLYGON((0 0,10 10,10 0,10 10,0 0))", 0, 0);
        row("points twice", "POLYGON((0 0,0 0,10 0,10 10,10 10,0 10,0 0,0 0))", 4, 100);
        row("GeoJSON", Square, 4, 100, "Town.geojson", "GeoJSON");
        row("a folder of a shapefile", Square, 4, 100, "folder", "ESRI Shapefile");
        row("line", "LINESTRING(0 0,10 0,10 10)", 0, 0);
        row("empty", "POLYGON EMPTY", 0, 0);
        row("none", {}, 0, 0);
    }

    void readsShapes()
    {
        QFETCH(QByteArray, wkt);
        QFETCH(int, walls);
        QFETCH(double, area);
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, format);
        makeFootprints(path(file), {{wkt, "5"}}, OFTReal, format);

        const osg::ref_ptr<osg::Group> scene = read(document(file));

        const Drawn drawn(scene);
        QCOMPARE(drawn.wallFaces, 2 * walls);
        QVERIFY2(std::abs(drawn.roofArea - area) < 1e-3, QByteArray::number(drawn.roofArea));
        QCOMPARE(m_opened.fact("buildings"), std::string(walls > 0 ? "1" : "0"));
        QCOMPARE(m_opened.fact("leftOut"), std::string(walls > 0 ? "0" : "1"));
        QCOMPARE(reported("no polygon with an area"), walls == 0);
        QCOMPARE(m_opened.fact("srs"), std::string("EPSG:2154"));
        if (area == 100)
            QCOMPARE(m_opened.fact("centre"), std::string("650005 6860005"));
        QVERIFY(scene->getBound().center().length() < 20);
    }

    void curvesBecomeLines()
    {
        makeFootprints(path("town.gpkg"), {{"CURVEPOLYGON(CIRCULARSTRING(0 0,20 0,0 0))", "5"}});
        const Drawn drawn(read(document()));
        QVERIFY(std::abs(drawn.roofArea - 100 * M_PI) < 1); // more than 45 sides
    }

    /// The second feature has two buildings, the third one none.
    void findsBuildingsUnderPoints()
    {
        makeFootprints(path("town.gpkg"),
                       {{Square, "5"},
                        {"MULTIPOLYGON(((20 0,30 0,30 10,20 0)),((40 0,50 0,50 10,40 0)))", "6"},
                        {"LINESTRING(0 0,1 1)", "9"},
                        {"POLYGON((60 0,70 0,70 10,60 0))", "7"}});
        writeFile(path("t.texb"), document());
        const auto scene = readBuildingScene(
            path("t.texb").toStdString(), {}, m_notices, [](double) { return true; }, true);
        const auto buildings = vlt::picking::SceneObjects::of(*scene);
        QVERIFY(buildings);
        QCOMPARE(buildings->count(), std::size_t{4});
        QList<qint64> rows;
        for (std::size_t i = 0; i < buildings->count(); ++i) {
            rows << buildings->row(i);
            const osg::Vec3d roof = buildings->place(i) + osg::Vec3d(1, -1, 0);
            osg::ref_ptr<osgUtil::LineSegmentIntersector> ray = new osgUtil::LineSegmentIntersector(
                roof + osg::Vec3d(0, 0, 9), roof - osg::Vec3d(0, 0, 1));
            osgUtil::IntersectionVisitor visitor(ray);
            visitor.setLODSelectionMode(osgUtil::IntersectionVisitor::USE_HIGHEST_LEVEL_OF_DETAIL);
            scene->accept(visitor);
            vlt::picking::Sight sight;
            sight.met = ray->getIntersections();
            QCOMPARE(vlt::picking::objectAt(*buildings, sight).value_or(99), i);
        }
        QCOMPARE(rows, (QList<qint64>{0, 1, 1, 3}));
        QCOMPARE(buildings->sizeM(3), 7.0);
    }

    void reportsOfEqualOutlines()
    {
        makeFootprints(path("town.gpkg"),
                       {{Square, "5"}, {Square, "6"}, {"POLYGON((20 0,30 0,30 10,20 0))", "6"}});

        read(document());

        QVERIFY(reported("1 of 3 buildings have the same outline as another one"));
    }

    void separatesFarBuildingsFromTheCore_data()
    {
        // east: of the last of 20 buildings, the others are within 200 m
        const Cases<int, QString, QByteArray> row({"east", "core", "notice"});
        row("beside them", 200, u"absent"_s, {});
        row("within 20 km", 20000, u"absent"_s, {});
        row("far", 3000000, u"-95 -5 95 5"_s,
            "1 of 20 buildings lie far from all others, up to 3000 km away; the farthest is at "
            "3650000 6860000");
        row("far to the west", -50000, u"-95 -5 95 5"_s, "up to 50 km away");
    }

    void separatesFarBuildingsFromTheCore()
    {
        QFETCH(int, east);
        QFETCH(QByteArray, notice);
        Features features;
        for (int i = 0; i < 20; ++i) {
            const int x = i < 19 ? 10 * i : east;
            const auto corner = [x](int dx) { return QByteArray::number(x + dx); };
            features.append({"POLYGON((" + corner(0) + " 0," + corner(10) + " 0," + corner(10) +
                                 " 10," + corner(0) + " 10," + corner(0) + " 0))",
                             "5"});
        }
        makeFootprints(path("town.gpkg"), features);

        read(document());

        QTEST(QString::fromStdString(m_opened.fact("core")), "core");
        QCOMPARE(reported("far from all others"), !notice.isEmpty());
        QVERIFY(notice.isEmpty() || reported(notice));
    }

    void reportsOfBuildingsThatAreNotVisible()
    {
        makeFootprints(path("town.gpkg"), {{Square, "5"}, {"POLYGON((90 0,95 0,95 5,90 0))", "5"}});
        makeTerrain("values.tif", -5, 5, [](int column, int, int) { return column; });
        writeFile(path("map.txt"), "0 255 0 0 90\n10 0 255 0 90\nnv 0 0 0 0\n");

        read(document().replace("#808080",
                                "IMAGE;values.tif;map.txt;average;absolute;interpolation"));

        QVERIFY(reported("1 of 2 buildings have no value in the raster"));
        QVERIFY(reported("1 of 2 buildings are not visible: their color is transparent"));
    }

    void readsHeights_data()
    {
        // height: 0 if left out
        const Cases<OGRFieldType, QByteArray, double, QByteArray> row(
            {"type", "text", "height", "notice"});
        const QByteArray none = "1 of 2 buildings are left out: no height in the field \"height\"";
        const QByteArray low = "1 of 2 buildings are left out: a height of zero or less";
        const QByteArray high = "1 of 2 buildings are left out: a height of more than 10,000 m";
        row("integer", OFTInteger, "12", 12);
        row("64 bits", OFTInteger64, "12", 12);
        row("real", OFTReal, "12.25", 12.25);
        row("text", OFTString, "12.25", 12.25);
        row("decimal comma and blanks", OFTString, " 12,25 ", 12.25);
        row("null", OFTReal, "null", 0, none);
        row("blank text", OFTString, "  ", 0, none);
        row("more than a height", OFTString, "39' 4 1", 0, none);
        row("feet and inches", OFTString, "49' 2.5511811023622\"", 15);
        row("not finite", OFTString, "inf", 0, none);
        row("a mark of none", OFTReal, "3.4e38", 0, high);
        row("a mark of none in 64 bits", OFTInteger64, "99999999999", 0, high);
        row("negative mark of none", OFTInteger, "-9999", 0, low);
        row("zero", OFTReal, "0", 0, low);
    }

    void readsHeights()
    {
        QFETCH(OGRFieldType, type);
        QFETCH(QByteArray, text);
        QFETCH(double, height);
        QFETCH(QByteArray, notice);
        makeFootprints(path("town.gpkg"),
                       {{Square, "40"}, {"POLYGON((20 0,30 0,30 10,20 0))", text}}, type);

        // Layer and field are found in any case.
        const Drawn drawn(
            read(document().replace("\"Height", "\"height").replace("\"Town", "\"TOWN")));

        const std::set<double> tops = height > 0 ? std::set{height, 40.0} : std::set{40.0};
        QCOMPARE(drawn.tops, tops);
        QCOMPARE(m_opened.fact("leftOut"), std::string(height > 0 ? "0" : "1"));
        QVERIFY(notice.isEmpty() || reported(notice));
    }

    /// The terrain rises to the east by 1 in 10 from 100 m at East. A square of 10 m has the mean
    /// height of its corners, 0.5 m above its western side.
    void standsOnTheGround_data()
    {
        const Cases<QByteArray, double, QByteArray, QByteArray> row(
            {"terrain", "base", "notice", "noData"});
        const QByteArray zero = "the buildings stand at height 0";
        row("the same system", "dem.tif", 100.5);
        row("its system is not known", "bare.tif", 100.5);
        row("degrees", "degrees.tif", 77);
        row("its western columns are typed to have none: those of 101 count", "steps.tif", 101, {},
            "-5");
        row("the typed value of no data is none", "dem.tif", 100.5,
            "the no-data value \"abc\" of the terrain is not a number and has no effect", "abc");
        row("one of two buildings is beyond it", "flat.tif", 50,
            "1 of 2 buildings stand on the lowest ground");
        row("elsewhere", "far.tif", 0, "they stand at height 0");
        row("none", {}, 0, zero);
        row("no raster", "town.gpkg", 0, zero);
        row("over the network", "/vsicurl/http://localhost:9/dem.tif", 0, zero);
    }

    void standsOnTheGround()
    {
        QFETCH(QByteArray, terrain);
        QFETCH(QByteArray, noData);
        QFETCH(double, base);
        QFETCH(QByteArray, notice);
        Features features = {{Square, "5"}};
        if (terrain == "flat.tif")
            features << Feature{"POLYGON((9000 0,9010 0,9010 10,9000 0))", "5"};
        makeFootprints(path("town.gpkg"), features);
        makeTerrain("flat.tif", -50, 10, [](int, int, int) { return 50; });
        const auto slope = [](int column, int, int) { return 95.5 + column; };
        makeTerrain("dem.tif", -50, 10, slope);
        makeTerrain("bare.tif", -50, 10, slope, "");
        makeTerrain("far.tif", 5000, 10, slope);
        // The western corners of the square lie between two columns of -5.
        makeTerrain("steps.tif", -8, 4, [](int column, int, int) { return column < 3 ? -5 : 101; });
        makeGeoTiff(path("degrees.tif"), {10, 10, 1, GDT_Byte, northUp(2, 48, 0.1, 10), "EPSG:4326",
                                          [](int, int, int) { return 77; }});

        const Drawn drawn(read(document("town.gpkg", "skirtHeight=\"3\"", terrain, noData)));

        QCOMPARE(drawn.tops.size(), std::size_t{1});
        QVERIFY2(std::abs(*drawn.tops.begin() - (base + 5)) < 1e-3,
                 QByteArray::number(*drawn.tops.begin()));
        QVERIFY(std::abs(drawn.bottom - (base - 3)) < 1e-3);
        QCOMPARE(m_notices.empty(), notice.isEmpty());
        QVERIFY(notice.isEmpty() || reported(notice));
    }

    void isSeenUpToItsDistance()
    {
        Features features;
        for (int i = 0; i < 20; ++i) {
            const QByteArray x = QByteArray::number(100 * i);
            features.append({"POLYGON((" + x + " 0," + x + " 9," + x + "5 9," + x + " 0))", "5"});
        }
        makeFootprints(path("town.gpkg"), features);

        const Drawn drawn(
            read(document("town.gpkg", "tileSize=\"400\" extrudedVisibility=\"700\"")));

        QVERIFY(drawn.farthest.size() >= 5); // 1.9 km in tiles of 400 m
        for (const float distance : drawn.farthest)
            QVERIFY(std::abs(distance - 700) < 0.01);
    }

private:
    QString path(const QByteArray &name) const
    {
        return m_folder.filePath(QString::fromUtf8(name));
    }

    /// Writes a terrain of ten by ten pixels.
    void makeTerrain(const char *name, double x, double pixel,
                     const decltype(GeoTiff::value) &heightM,
                     const char *system = "EPSG:2154") const
    {
        makeGeoTiff(path(name), {10, 10, 1, GDT_Float32,
                                 northUp(East + x, North - 5 * pixel, pixel, 10), system, heightM});
    }

    osg::ref_ptr<osg::Group> read(const QByteArray &text)
    {
        writeFile(path("t.texb"), text);
        m_opened.scene = readBuildingScene(path("t.texb").toStdString(), {}, m_notices,
                                           [](double) { return true; });
        return m_opened.scene;
    }

    bool reported(const QByteArray &text) const
    {
        return std::any_of(m_notices.begin(), m_notices.end(), [&](const std::string &notice) {
            return QByteArray::fromStdString(notice).contains(text);
        });
    }

    QTemporaryDir m_folder;
    layertest::Opened m_opened;
    Notices m_notices;
};

QTEST_GUILESS_MAIN(tst_BuildingScene)
#include "tst_BuildingScene.moc"
