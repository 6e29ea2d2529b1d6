#include "QueryTesting.h"
#include "ScenePicture.h"

#include "plugins/scene/link/LinkFactory.h"
#include "plugins/scene/mesh/Solids.h"
#include "plugins/scene/parametric/LinkQuery.h"
#include "plugins/scene/pylon/Antennas.h"
#include "plugins/scene/pylon/PylonFactory.h"
#include "plugins/scene/pylon/Sectors.h"
#include "support/Cases.h"

#include <osg/ComputeBoundsVisitor>
#include <osg/Geometry>
#include <osg/LOD>
#include <osg/LineWidth>
#include <osgDB/ReadFile>

#include <algorithm>
#include <cmath>

using namespace querytest;
using namespace vlt::scene;

namespace {

const std::string Demonstration =
    "inline://parametric/query?object=link&data_folder=/opt/R&D/pylons&pylon_type=monopole_panel"
    "&pylon=0 0 0 25 2.5 200 20 2&dish=23 90 0 0 ff000080&transmitter=20 240 -5 0 0 00ff00ff"
    "&pylon=200 0 0 25 2.5 200 20 2&dish=23 270 0 1.2 ff000080"
    "&transmitter_scale=100&lod=10000 1000&link=0 0 23 200 0 23 200"
    "&link=0 0 20 9 9 9 0 010203ff&link_style=TUBE&link_width=4&link_color=1f6febff"
    "&fresnel_zone=1&fresnel_share=60&fresnel_color=ffa50066&k_factor=1.33333.inlinepylonurl";

LinkSceneQuery demonstration()
{
    return parseLinkQuery(Demonstration);
}

LinkAppearance appearanceOf(LinkStyle style, double width)
{
    LinkAppearance appearance;
    appearance.style = style;
    appearance.width = width;
    appearance.color = Color(0, 255, 0, 255);
    return appearance;
}

/// Collects the properties of all drawables; positions are in the scene's coordinates.
struct Finder : osg::NodeVisitor
{
    Finder() : osg::NodeVisitor(TRAVERSE_ALL_CHILDREN) {}
    void apply(osg::Geometry &geometry) override
    {
        const osg::Matrixd place = osg::computeLocalToWorld(getNodePath());
        const auto &points = dynamic_cast<const osg::Vec3Array &>(*geometry.getVertexArray());
        const auto *facing = dynamic_cast<const osg::Vec3Array *>(geometry.getNormalArray());
        for (unsigned i = 0; i < points.size(); ++i) {
            vertices.push_back(osg::Vec3d(points[i]) * place);
            normals.push_back(facing ? (*facing)[i] : osg::Vec3());
        }
        sorted += geometry.getStateSet()->getRenderingHint() == osg::StateSet::TRANSPARENT_BIN;
        ++drawables;
    }
    void apply(osg::LOD &lod) override
    {
        levels = std::max(levels, lod.getNumChildren());
        traverse(lod);
    }
    std::vector<osg::Vec3d> vertices;
    std::vector<osg::Vec3d> normals;
    int drawables = 0;
    int sorted = 0;
    unsigned levels = 0; ///< maximum number of levels in one node
};

Finder found(osg::Node &node)
{
    Finder finder;
    node.accept(finder);
    return finder;
}

} // namespace

class tst_Links : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_screen = openContext(1); // the X server restarts when its last client disconnects
    }
    void cleanupTestCase() { m_screen = nullptr; }

    void readsTheRecord()
    {
        const LinkSceneQuery scene = demonstration();

        QCOMPARE(scene.pylons.size(), std::size_t{2});
        QCOMPARE(scene.pylons[0].design.transmitters.size(), std::size_t{2});
        QCOMPARE(scene.pylons[1].design.transmitters.size(), std::size_t{1});
        const Transmitter &dish = scene.pylons[1].design.transmitters[0];
        QVERIFY(dish.kind == AntennaKind::Dish && dish.antennaLengthM == 1.2);
        QVERIFY(scene.pylons[0].design.transmitters[1].kind == AntennaKind::Default);
        QCOMPARE(scene.links.size(), std::size_t{2});
        QVERIFY(scene.links[0].b == osg::Vec3d(200, 0, 23) && !scene.links[0].color);
        QCOMPARE(scene.links[0].frequencyMHz, 200.0);
        QVERIFY(scene.links[1].color == Color(1, 2, 3, 255));
        QVERIFY(scene.appearance.style == LinkStyle::Tube && scene.appearance.width == 4);
        QVERIFY(scene.appearance.fresnelZone == 1 && scene.appearance.fresnelShare == 0.6);
        QVERIFY(scene.appearance.fresnelColor == Color(255, 165, 0, 102));
        QCOMPARE(scene.appearance.kFactor, 1.33333);
    }

    void refusesWhatCannotBeDrawn_data()
    {
        addRefusals({
            {"object=link", "object=tree", "object: the kind \"tree\" is unknown"},
            {"object=link", "object=link&object=pylon", "object is given more than once"},
            {"&lod=10000 1000", "", "lod is missing"},
            {"&pylon=200 0 0 25", "&pylon=200 0 0 0", "pylon 2: the height \"0\""},
            {"&pylon=0 0 0 25 2.5 200 20 2", "", "dish 1 stands before the first pylon"},
            {"&dish=23 270 0 1.2", "&dish=23 270 0 31", "dish 3: the diameter \"31\""},
            {"&dish=23 270 0 1.2", "&dish=23 270 0", "dish 3: \"23 270 0 ff000080\" is not"},
            {"&link=0 0 23 200 0 23 200&link=0 0 20 9 9 9 0 010203ff", "", "link is missing"},
            {"200 0 23 200", "nan 0 23 200", "link 1: the x \"nan\" is not a number"},
            {"200 0 23 200", "200 0 1e10 200", "link 1: the z \"1e10\" is not within"},
            {"200 0 23 200", "0 0 23 200", "link 1: both ends have the same position"},
            {"200 0 23 200", "200 0 23 -1", "link 1: the frequency \"-1\" is not within"},
            {"200 0 23 200", "200 0 23 .01", "link 1: the frequency \".01\" is neither 0 nor"},
            {"010203ff", "010203", "link 2: the color \"010203\" is not rrggbbaa"},
            {"=TUBE", "=tube", "link_style: the style \"tube\" is unknown"},
            {"&link_width=4", "&link_width=0", "link_width: the width \"0\" is not within"},
            {"&link_width=4", "&link_width=4&link_width=4", "link_width is given more than once"},
            {"1f6febff", "1f6febff clearance", "link_color: \"1f6febff clearance\" is not"},
            {"_zone=1", "_zone=1.5", "fresnel_zone: the zone \"1.5\" is not a whole number"},
            {"_zone=1", "_zone=11", "fresnel_zone: the zone \"11\" is not within 0 to 10"},
            {"_share=60", "_share=inf", "fresnel_share: the share \"inf\" is not a number"},
            {"&fresnel_color=ffa50066", "", "fresnel_color is missing"},
            {"k_factor=1.33333", "k_factor=0", "k_factor: the factor \"0\" is not within"},
        });
    }
    void refusesWhatCannotBeDrawn() { compareRefusal(Demonstration, parseLinkQuery); }

    void colorsByClearanceInLayersOnly()
    {
        const auto item = [](std::string_view key) {
            return std::string(key == "link_style"      ? "LINE"
                               : key == "link_color"    ? "1f6feb80 clearance"
                               : key == "fresnel_color" ? "00000000"
                                                        : "1");
        };
        const LinkAppearance appearance = readLinkAppearance(item, ClearanceWord::Accepted);
        QVERIFY(appearance.colorByClearance && appearance.color == Color(0x1f, 0x6f, 0xeb, 0x80));
    }

    void opensThroughTheLoader()
    {
        const osg::ref_ptr<osg::Node> node = osgDB::readRefNodeFile(Demonstration);

        QVERIFY(node && node->asGroup()->getNumChildren() == 3);
        const auto *pylon = node->asGroup()->getChild(0)->asGroup()->getChild(0);
        QCOMPARE(dynamic_cast<const osg::LOD &>(*pylon).getMaxRange(1), 10000.F);
        // Tubes, their thin lines, the casings of these, and the ellipsoid of the only link with a
        // frequency.
        const Finder links = found(*node->asGroup()->getChild(2));
        QCOMPARE(links.drawables, 4);
        QCOMPARE(links.sorted, 1);
    }

    void drawsTheExactZone_data()
    {
        // way: vector from one antenna to the other
        // radius: in the middle: sqrt(d (2 D + d))/2, d = n lambda/2
        // detour: d
        const Cases<QList<double>, double, int, double, double, double> row(
            {"way", "frequencyMHz", "zone", "share", "radius", "detour"});
        row("40 km, 6 GHz", {40000, 0, 0}, 6000, 1, 1, 22.3530, 0.0249827);
        row("60 %", {24000, 32000, 0}, 6000, 1, 0.6, 13.4118, 0.0249827);
        row("vertical", {0, 0, -1000}, 200, 1, 1, 19.3618, 0.7494811);
        row("steep, zone 3", {360, -480, 800}, 18000, 3, 1, 3.5344, 0.0249827);
    }
    void drawsTheExactZone()
    {
        QFETCH(QList<double>, way);
        QFETCH(double, frequencyMHz);
        QFETCH(int, zone);
        QFETCH(double, share);
        QFETCH(double, radius);
        QFETCH(double, detour);
        const osg::Vec3d a(652000.25, 983000.5, 120);
        const osg::Vec3d axis(way[0], way[1], way[2]);
        LinkAppearance appearance = appearanceOf(LinkStyle::Line, 1);
        appearance.color = Color(0, 0, 0, 0);
        appearance.fresnelZone = zone;
        appearance.fresnelShare = share;
        appearance.fresnelColor = Color(255, 165, 0, 102);

        const Finder zones = found(*buildLinks({{a, a + axis, frequencyMHz, {}}}, appearance));

        QCOMPARE(zones.drawables, 1);
        const double tolerance = axis.length() > 10000 ? 0.005 : 0.001; // single precision
        double widest = 0;
        for (std::size_t i = 0; i < zones.vertices.size(); ++i) {
            osg::Vec3d fromA = zones.vertices[i] - a;
            osg::Vec3d fromB = fromA - axis;
            widest = std::max(widest, (fromA ^ axis).length() / axis.length());
            if (share < 1)
                continue;
            const double sum = fromA.normalize() + fromB.normalize();
            QVERIFY2(std::abs(sum - axis.length() - detour) < tolerance,
                     qPrintable(QString::number(sum, 'f', 4)));
            // a ray from one focus is reflected to the other
            osg::Vec3d normal = fromA + fromB;
            if (normal.normalize() > 1e-3)
                QVERIFY(normal * zones.normals[i] > 0.98);
        }
        QVERIFY2(std::abs(widest - radius) < 0.003, qPrintable(QString::number(widest, 'f', 4)));
    }

    void looksAsItsStyleWants_data()
    {
        // pixels: width; 0.2607 per metre at 1000 m, for 60 degrees; without the dark edges
        const Cases<LinkStyle, double, QList<double>, int, bool> row(
            {"style", "width", "eye", "pixels", "isParallel"});
        row("line", LinkStyle::Line, 5, {0, -1000, 0}, 5);
        row("line from afar", LinkStyle::Line, 5, {0, -20000, 0}, 5);
        row("tube", LinkStyle::Tube, 100, {0, -1000, 0}, 24);
        row("tube from below", LinkStyle::Tube, 100, {0, 700, -714}, 24);
        row("hairline of a far tube", LinkStyle::Tube, 1, {0, -20000, 0}, 1);
        row("band", LinkStyle::Billboard, 100, {0, -1000, 0}, 23);
        row("band from above", LinkStyle::Billboard, 100, {0, 0, 1000}, 23);
        row("band from below", LinkStyle::Billboard, 100, {0, 700, -714}, 23);
        row("band, parallel", LinkStyle::Billboard, 100, {0, 600, -800}, 22, true);
    }
    void looksAsItsStyleWants()
    {
        QFETCH(LinkStyle, style);
        QFETCH(double, width);
        QFETCH(QList<double>, eye);
        QFETCH(bool, isParallel);
        QFETCH(int, pixels);
        const osg::ref_ptr<osg::Group> scene =
            buildLinks({{{-9000, 0, 0}, {9000, 0, 0}, 0, {}}}, appearanceOf(style, width));

        const auto image = scenePicture(scene, {eye[0], eye[1], eye[2]}, isParallel);

        if (!image)
            QSKIP("no screen");
        int across = 0;
        for (unsigned y = 0; y < 301; ++y)
            across += image->getColor(150, y).g() > 0.4F;
        QVERIFY2(std::abs(across - pixels) <= 1, qPrintable(QString::number(across)));
        int edges = 0; // a quarter of the brightness
        for (unsigned y = 0; y < 301; ++y)
            edges += std::abs(image->getColor(150, y).g() - 0.25F) < 0.05F;
        QVERIFY2(edges >= 1, "no dark edge");
    }

    void letsTheZoneShineThrough_data()
    {
        const Cases<int, QList<double>, int> row({"links", "eye", "red"});
        row("two walls: 0.4", 1, {0, -1000, 0}, 102);
        row("from inside, one wall: 1 - sqrt(0.6)", 1, {0, -10, 0}, 57);
        // The walls face the eye by 0.198 and are darker by 1 - 0.75 - 0.25 * 0.198.
        row("flat along it: 0.4", 1, {-1700, -150, 0}, 82);
        row("an ellipsoid of many", 20, {0, -4900, 0}, 102);
        row("a strip", 20, {0, -5100, 0}, 102);
        row("a strip, obliquely: the axis has a sine of 0.515", 20, {-5000, 100, 3000}, 90);
    }
    void letsTheZoneShineThrough()
    {
        QFETCH(int, links);
        QFETCH(QList<double>, eye);
        QFETCH(int, red);
        LinkAppearance appearance = appearanceOf(LinkStyle::Line, 1);
        appearance.color = Color(0, 0, 0, 0);
        appearance.fresnelZone = 1;
        appearance.fresnelColor = Color(255, 165, 0, 102);

        std::vector<LinkObject> all(static_cast<std::size_t>(links),
                                    {{-500, -1e6, 0}, {500, -1e6, 0}, 30, {}});
        all.front() = {{-500, 0, 0}, {500, 0, 0}, 30, {}};
        const auto image =
            scenePicture(buildLinks(all, appearance), {eye[0], eye[1], eye[2]}, false);

        if (!image)
            QSKIP("no screen");
        const osg::Vec4 color = image->getColor(150, 150);
        QVERIFY2(std::abs(color.r() * 255 - red) < 4, qPrintable(QString::number(color.r())));
        QVERIFY2(std::abs(color.g() / color.r() - 0.647) < 0.03, "not in its colour");
    }

    void drawsTheLineOverItsZone_data()
    {
        const Cases<LinkStyle, double> row({"style", "eye"});
        row("line", LinkStyle::Line, -200);
        row("tube", LinkStyle::Tube, -200);
        row("band", LinkStyle::Billboard, -200);
        row("line from afar", LinkStyle::Line, -20000); // the zone is as thin as its line
        row("tube from afar", LinkStyle::Tube, -20000);
        row("band from afar", LinkStyle::Billboard, -20000);
    }
    void drawsTheLineOverItsZone()
    {
        QFETCH(LinkStyle, style);
        QFETCH(double, eye);
        LinkAppearance appearance = appearanceOf(style, 3);
        appearance.fresnelZone = 1;
        appearance.fresnelColor = Color(255, 0, 0, 200);

        const auto image = scenePicture(
            buildLinks({{{-9000, 0, 0}, {9000, 0, 0}, 6000, {}}}, appearance), {0, eye, 0}, false);

        if (!image)
            QSKIP("no screen");
        for (int x = 140; x < 160; ++x) {
            osg::Vec4 line;
            for (int y = 148; y < 153; ++y)
                line = std::max(line, image->getColor(x, y),
                                [](auto &a, auto &b) { return a.g() < b.g(); });
            QVERIFY(line.g() > 0.9F && line.r() < 0.1F);
        }
    }

    void keepsManyLinksSmall()
    {
        LinkAppearance appearance = appearanceOf(LinkStyle::Tube, 4);
        appearance.fresnelZone = 1;
        appearance.fresnelColor = Color(255, 165, 0, 102);
        std::vector<LinkObject> links;
        for (int i = 0; i < 10000; ++i) {
            const int row = i / 100;
            const osg::Vec3d a((i % 100) * 5000, row * 5000, 100);
            links.push_back({a, a + osg::Vec3d(4000, 3000, 50), 18000, {}});
        }

        const osg::ref_ptr<osg::Group> scene = buildLinks(links, appearance);

        const Finder all = found(*scene);
        qInfo("%zu vertices, %d drawables", all.vertices.size(), all.drawables);
        QVERIFY(all.vertices.size() < 3500000);
        QVERIFY(all.drawables <= 4 * 64);
        QCOMPARE(all.levels, 1U); // those of pylons have several
        osg::ComputeBoundsVisitor bounds;
        scene->accept(bounds);
        QVERIFY(std::abs(bounds.getBoundingBox().xMax() - 499000) < 5);
        QVERIFY(std::abs(bounds.getBoundingBox().yMax() - 498000) < 5);
    }

    void hangsDishes()
    {
        PylonDesign design = demonstration().pylons[0].design;
        PylonDesign panels = design;
        panels.transmitters[0].kind = AntennaKind::Default;
        QVERIFY(design != panels);
        design.transmitters.resize(1);
        design.transmitters[0].tiltDeg = 10;
        const MastDesign mast = mastDesign(design);
        Meshes meshes;

        const std::vector<AntennaPlace> places = placeAntennas(design, mast);
        addAntennas(meshes, places, false);

        // Its rim is a little wider than 0.9 m; its cover faces east and 10 degrees downwards.
        const osg::Vec3d faced(0.984808, 0, -0.173648);
        double widest = 0;
        double foremost = 0;
        for (const osg::Vec3 &at : meshes.matt.positions()) {
            const osg::Vec3d off = osg::Vec3d(at) - places[0].centre;
            widest = std::max(widest, (off - faced * (off * faced)).length());
            foremost = std::max(foremost, off * faced);
        }
        QCOMPARE(places[0].centre.z(), 23.0);
        QVERIFY(std::abs(widest - 0.4635) < 0.001);
        QVERIFY(std::abs(foremost - 0.2025) < 0.001);
        QCOMPARE(stackSectors(design)[0].beamWidthDeg, 20.0);

        // Two dishes on a thin pole, at an angle of 60 degrees.
        design.type = PylonType::MonopoleSlim;
        design.transmitters.push_back(design.transmitters[0]);
        design.transmitters[1].azimuthDeg = 150;
        const std::vector<AntennaPlace> two = placeAntennas(design, mastDesign(design));
        QVERIFY((two[0].centre - two[1].centre).length() > 0.95);
    }

private:
    osg::ref_ptr<osg::GraphicsContext> m_screen;
};

QTEST_APPLESS_MAIN(tst_Links)
#include "tst_Links.moc"
