#include "mesh/Solids.h"
#include "parametric/PylonQuery.h"
#include "pylon/Antennas.h"
#include "pylon/Masts.h"
#include "pylon/PylonFactory.h"
#include "pylon/Sectors.h"

#include <osg/ComputeBoundsVisitor>
#include <osg/Geometry>
#include <osg/LOD>
#include <osg/MatrixTransform>
#include <osgDB/FileNameUtils>
#include <osgDB/ReadFile>
#include <osgDB/Registry>
#include <osgUtil/Optimizer>

#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace vlt::scene;

namespace {

const std::string Demonstration =
    "inline://parametric/query?object=pylon&data_folder=/opt/R&D/addons/telecom/pylons"
    "&pylon_type=monopole_panel&pylon=0 0 0 25 2.5 200 20 2&transmitter=23 0 0 0 0 ff000080"
    "&transmitter=23 120 0 0 0 00ff00ff&transmitter=23 240 -5 0 0 ff000080"
    "&transmitter=20 20 0 0 0 00ff00ff&transmitter=20 140 +5 0 0 ff000080"
    "&transmitter=20 260 0 0 0 00ff00ff&transmitter_scale=100&lod=10000 1000.inlinepylonurl";

std::string replaced(std::string text, const std::string &what, const std::string &with)
{
    const std::size_t at = text.find(what);
    return at == std::string::npos ? text : text.replace(at, what.size(), with);
}

PylonDesign demonstration(const char *type)
{
    const PylonOrFault read = parsePylonQuery(replaced(Demonstration, "monopole_panel", type));
    return std::get<PylonObject>(read).design;
}

bool near(const osg::Vec3d &one, const osg::Vec3d &other, double tolerance = 0.001)
{
    return (one - other).length() <= tolerance;
}

/// Counts what a visit of all children reaches.
struct Counter : osg::NodeVisitor
{
    explicit Counter(VisitorType type = NODE_VISITOR)
        : osg::NodeVisitor(type, TRAVERSE_ALL_CHILDREN)
    {}
    void apply(osg::Geometry &geometry) override
    {
        ++drawables;
        vertices += geometry.getVertexArray()->getNumElements();
        lists += geometry.getUseDisplayList() ? 1 : 0;
    }
    std::size_t drawables = 0;
    std::size_t vertices = 0;
    int lists = 0;
};

Counter counted(osg::Node &node)
{
    Counter counter;
    node.accept(counter);
    return counter;
}

/// The first thing that is wrong with a mesh: a triangle whose front is not where its normals
/// point, a normal that is no unit vector, a vertex that is not finite.
std::string faultOf(const Mesh &mesh)
{
    const std::vector<unsigned> &indices = mesh.indices();
    for (std::size_t i = 0; i + 2 < indices.size(); i += 3) {
        const osg::Vec3d a = mesh.positions().at(indices[i]);
        const osg::Vec3d b = mesh.positions().at(indices[i + 1]);
        const osg::Vec3d c = mesh.positions().at(indices[i + 2]);
        const osg::Vec3d front = (b - a) ^ (c - a);
        if (!a.valid() || !b.valid() || !c.valid() || !std::isfinite(front.length()))
            return "not finite";
        for (std::size_t k = i; k < i + 3; ++k) {
            const osg::Vec3d normal = mesh.normals().at(indices[k]);
            if (std::abs(normal.length() - 1) > 1e-3)
                return "normal of length " + std::to_string(normal.length());
            if (front * normal < -1e-9)
                return "turned over near " + std::to_string(a.x()) + " " + std::to_string(a.y()) +
                       " " + std::to_string(a.z());
        }
    }
    return {};
}

/// Keeps what the scene library tells.
struct Listener : osg::NotifyHandler
{
    void notify(osg::NotifySeverity, const char *message) override { text += message; }
    std::string text;
};

const std::initializer_list<const char *> Types = {
    "monopole_panel", "monopole_cylinder", "monopole_slim",    "lattice_panel", "lattice_cylinder",
    "guyed_panel",    "rooftop_panel",     "rooftop_cylinder", "wood_panel",    "watertower_panel"};

} // namespace

class PylonsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensTheDemonstrationThroughTheLoader()
    {
        const osg::ref_ptr<osg::Node> node =
            osgDB::readRefNodeFile(replaced(Demonstration, "=0 0 0 25", "=652000.25 6.8e6 35 25"));

        QVERIFY(node);
        auto *place = node->asTransform()->asMatrixTransform();
        QVERIFY(near(place->getMatrix().getTrans(), {652000.25, 6.8e6, 35}, 0));
        const auto *levels = dynamic_cast<const osg::LOD *>(place->getChild(0));
        QVERIFY(levels && levels->getNumChildren() == 2);
        QCOMPARE(levels->getCenter(), osg::LOD::vec_type(0, 0, 12.5));
        QCOMPARE(levels->getMinRange(0), 0.F);
        QCOMPARE(levels->getMaxRange(0), 1000.F);
        QCOMPARE(levels->getMinRange(1), 1000.F);
        QCOMPARE(levels->getMaxRange(1), 10000.F);
        // upper wedges: 52 m high; 200 m to the north
        osg::ComputeBoundsVisitor bounds;
        place->getChild(0)->accept(bounds);
        QVERIFY(std::abs(bounds.getBoundingBox().zMax() - 52) < 0.01);
        QVERIFY(std::abs(bounds.getBoundingBox().yMax() - 200) < 0.01);
    }

    void leavesOtherNamesToOthers()
    {
        osgDB::ReaderWriter *reader =
            osgDB::Registry::instance()->getReaderWriterForExtension("inlinepylonurl");
        QVERIFY(reader);
        QVERIFY(reader->readNode(Demonstration + ".osgt", nullptr).notHandled());
        QVERIFY(!osgDB::containsServerAddress(Demonstration));
    }

    void tellsARefusalOnce()
    {
        const osg::ref_ptr<osg::NotifyHandler> before = osg::getNotifyHandler();
        const osg::ref_ptr<Listener> listener = new Listener;
        osg::setNotifyHandler(listener);
        const osg::ref_ptr<osg::Node> node =
            osgDB::readRefNodeFile(replaced(Demonstration, "=100&lod", "=1e4&lod"));
        osg::setNotifyHandler(before);

        QVERIFY(!node);
        const std::string told = "transmitter_scale: the scale \"1e4\" is not within 0 to 1000";
        const std::size_t at = listener->text.find(told);
        QVERIFY2(at != std::string::npos, listener->text.c_str());
        QCOMPARE(listener->text.find(told, at + 1), std::string::npos);
    }

    void readsTheRecord()
    {
        const PylonDesign design = demonstration("wood_panel");

        QCOMPARE(design.type, PylonType::WoodPanel);
        QCOMPARE(design.heightM, 25.0);
        QCOMPARE(design.widthM, 2.5);
        QCOMPARE(design.sectorRadiusM, 200.0);
        QCOMPARE(design.sectorHeightM, 20.0);
        QCOMPARE(design.sectorSpacingM, 2.0);
        QCOMPARE(design.antennaScale, 1.0);
        QCOMPARE(design.transmitters.size(), std::size_t{6});
        QCOMPARE(design.transmitters[2].azimuthDeg, 240.0);
        QCOMPARE(design.transmitters[2].tiltDeg, -5.0);
        QCOMPARE(design.transmitters[4].heightM, 20.0);
        QCOMPARE(design.transmitters[4].tiltDeg, 5.0);
        QVERIFY(design.transmitters[2].color == Color(255, 0, 0, 128));
    }

    void refusesWhatCannotBeDrawn_data()
    {
        QTest::addColumn<QByteArray>("what");
        QTest::addColumn<QByteArray>("with");
        QTest::addColumn<QByteArray>("told");
        const auto row = [](const char *what, const char *with, const char *told) {
            QTest::newRow(told) << QByteArray(what) << QByteArray(with) << QByteArray(told);
        };
        row("inline://parametric/query?", "/tmp/", "is not a query");
        row("object=pylon&", "", "object is missing");
        row("object=pylon", "object=tree", "object: the kind \"tree\" is unknown");
        row("object=pylon", "object=pylon&object=pylon", "object is given more than once");
        row("&pylon_type=monopole_panel", "", "pylon_type is missing");
        row("monopole_panel", "tripod", "pylon_type: the type \"tripod\" is unknown");
        row("object=pylon", "object=pylon&colour=red", "the item \"colour=red\" is unknown");
        row("&lod=10000 1000", "", "lod is missing");
        row("&lod=", "&lod=1 1&lod=", "lod is given more than once");
        row("lod=10000 1000", "lod=10000", "lod: \"10000\" is not \"SYMBOLIC REALISTIC\"");
        row("=10000 1000", "=-1 1000", "the symbolic distance \"-1\"");
        row("=10000 1000", "=1000 inf", "the realistic distance \"inf\" is not a number");
        row("=0 0 0 25", "=0 0 25", "pylon: \"0 0 25 2.5 200 20 2\" is not");
        row("=0 0 0 25", "=0 0 0 1e999", "the height \"1e999\" is not within");
        row("=0 0 0 25", "=0 0 0 0", "the height \"0\"");
        row("=0 0 0 25", "=0 nan 0 25", "the y \"nan\" is not a number");
        row("2.5 200 20 2", "2,5 200 20 2", "the width \"2,5\" is not a number");
        row("2.5 200 20 2", "2.5 -200 20 2", "the sector radius \"-200\"");
        row("2.5 200 20 2", "2.5 200 20 -2", "the sector spacing \"-2\"");
        row("=23 120 0", "=-23 120 0", "transmitter 2: the height \"-23\"");
        row("=23 120 0", "=23 1200 0", "transmitter 2: the azimuth \"1200\"");
        row("=23 240 -5", "=23 240 -95", "transmitter 3: the tilt \"-95\"");
        row("=23 240 -5", "=23 240 --5", "transmitter 3: the tilt \"--5\" is not a number");
        row("+5 0 0", "+5 361 0", "transmitter 5: the beam width \"361\"");
        row("+5 0 0", "+5 0 31", "transmitter 5: the antenna length \"31\"");
        row("00ff00ff", "00ff00", "transmitter 2: the colour \"00ff00\" is not rrggbbaa");
        row("00ff00ff", "00ff00+f", "the colour \"00ff00+f\" is not rrggbbaa");
    }
    void refusesWhatCannotBeDrawn()
    {
        QFETCH(QByteArray, what);
        QFETCH(QByteArray, with);
        QFETCH(QByteArray, told);

        const PylonOrFault read =
            parsePylonQuery(replaced(Demonstration, what.toStdString(), with.toStdString()));

        QVERIFY(std::holds_alternative<std::string>(read));
        const std::string text = std::get<std::string>(read);
        QVERIFY2(text.find(told.toStdString()) != std::string::npos, text.c_str());
    }

    void placesAntennas_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<int>("index");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        // platform 0.625 * 2.5, pipe 0.08 outside, antenna 0.28 before it: 1.9225 from the axis
        const auto row = [](const char *type, int index, double x, double y, const char *how) {
            QTest::newRow(how) << QByteArray(type) << index << x << y;
        };
        row("monopole_panel", 0, 0, 1.9225, "north");
        row("monopole_panel", 1, 1.664934, -0.96125, "120");
        row("monopole_panel", 2, -1.664934, -0.96125, "240, tilt -5");
        row("monopole_panel", 4, 1.235759, -1.472720, "140, tilt +5");
        // tube at the lower arm, 22.28 m: 2.5 * (0.08 - 0.03 * 22.28 / 25) = 0.13316; + 0.16 + 0.28
        row("monopole_slim", 0, 0, 0.57316, "slim: 0.13316 + 0.44");
        // pipe on a square of half length 3.75 - 0.45; towards 120 at 3.3 / cos 30
        row("rooftop_panel", 0, 0, 3.58, "roof, north");
        row("rooftop_panel", 1, 3.542487, -2.045256, "roof, 120");
        // face of the triangle at the lower arm: 2.5 * (1 - 0.6 * 22.28 / 25) = 1.1632, inradius
        // 0.335787; + 0.45 + 0.28
        row("lattice_cylinder", 0, 0, 1.065787, "lattice: 0.335787 + 0.73");
        // gallery 3.75 + 0.35, + 0.08 + 0.28
        row("watertower_panel", 0, 0, 4.46, "water tower, gallery");
    }
    void placesAntennas()
    {
        QFETCH(QByteArray, type);
        QFETCH(int, index);
        QFETCH(double, x);
        QFETCH(double, y);
        const PylonDesign design = demonstration(type.constData());
        const auto at = static_cast<std::size_t>(index);

        const std::vector<AntennaPlace> places = placeAntennas(design, mastDesign(design));

        QCOMPARE(places.size(), std::size_t{6});
        const osg::Vec3d expected(x, y, design.transmitters[at].heightM);
        QVERIFY2(near(places[at].centre, expected),
                 qPrintable(QStringLiteral("%1 %2 %3")
                                .arg(places[at].centre.x(), 0, 'f', 6)
                                .arg(places[at].centre.y(), 0, 'f', 6)
                                .arg(places[at].centre.z(), 0, 'f', 6)));
    }

    void tiltsDownwardsWhenPositive_data()
    {
        QTest::addColumn<double>("tilt");
        QTest::addColumn<double>("lean"); // of a point 1 m above the centre: sin of the tilt
        QTest::newRow("+5") << 5.0 << 0.0872;
        QTest::newRow("-5") << -5.0 << -0.0872;
    }
    void tiltsDownwardsWhenPositive()
    {
        QFETCH(double, tilt);
        QFETCH(double, lean);
        AntennaPlace place;
        place.centre = {10, 20, 30};
        place.azimuthDeg = 120;
        place.tiltDeg = tilt;
        place.size = {2, 0.3, 0.15};
        Meshes meshes;

        addAntennas(meshes, {place}, false);

        // the highest point belongs to the upper lid, within its half depth of the middle line
        const auto &points = meshes.matt.positions();
        const osg::Vec3d top =
            *std::max_element(points.begin(), points.end(),
                              [](const auto &a, const auto &b) { return a.z() < b.z(); });
        const double ahead = (top - place.centre) * osg::Vec3d(0.866025, -0.5, 0);
        const double edge = tilt > 0 ? -0.0765 : 0.0765; // the lid's rear or front edge is highest
        QVERIFY2(std::abs(ahead - edge * 0.9962 - lean) < 0.004,
                 qPrintable(QString::number(ahead)));
    }

    void keepsAntennasOfOneDirectionApart()
    {
        PylonDesign design = demonstration("guyed_panel");
        design.transmitters.assign(3, design.transmitters[0]);

        const std::vector<AntennaPlace> places = placeAntennas(design, mastDesign(design));

        // 1.4 widths of 0.3 m between them, to the east and west
        QVERIFY(near(places[0].centre - places[1].centre, {-0.42, 0, 0}));
        QVERIFY(near(places[2].centre - places[1].centre, {0.42, 0, 0}));
    }

    void drawsWedges_data()
    {
        QTest::addColumn<double>("azimuth");
        QTest::addColumn<QList<double>>("corners"); // x, y of the arc's ends: 32.5 degrees aside
        QTest::newRow("north") << 0.0 << QList<double>{-107.4600, 168.6783, 107.4600, 168.6783};
        QTest::newRow("120") << 120.0 << QList<double>{199.8096, 8.7239, 92.3497, -177.4022};
        QTest::newRow("240") << 240.0 << QList<double>{-92.3497, -177.4022, -199.8096, 8.7239};
    }
    void drawsWedges()
    {
        QFETCH(double, azimuth);
        QFETCH(QList<double>, corners);
        Mesh fill;
        Mesh edges(Mesh::Kind::Lines);

        addSector(fill, edges, {azimuth, 65, 200, 32, 20, Color(255, 0, 0, 128)}, {1000, 0, 5});

        for (const double z : {37.0, 57.0}) {
            for (const qsizetype i : {0, 2}) {
                const osg::Vec3d corner(1000 + corners[i], corners[i + 1], z);
                const auto isCorner = [&](const osg::Vec3 &at) { return near(at, corner, 0.01); };
                for (const Mesh *mesh : {&fill, &edges})
                    QVERIFY(
                        std::any_of(mesh->positions().begin(), mesh->positions().end(), isCorner));
            }
        }
        QCOMPARE(fill.vertexCount(), std::size_t{70});
        QCOMPARE(faultOf(fill), std::string());
    }

    void stacksSectorsThatWouldCollide_data()
    {
        QTest::addColumn<QList<double>>("transmitters"); // height, azimuth, beam width
        QTest::addColumn<QList<double>>("bottoms");      // 20 m high, 2 m apart; rising
        const auto row = [](const char *what, const QList<double> &transmitters,
                            const QList<double> &bottoms) {
            QTest::newRow(what) << transmitters << bottoms;
        };
        row("demonstration", {23, 0, 0, 23, 120, 0, 23, 240, 0, 20, 20, 0, 20, 140, 0, 20, 260, 0},
            {10, 10, 10, 32, 32, 32});
        row("one direction three times", {20, 50, 0, 20, 50, 0, 20, 50, 0}, {10, 32, 54});
        row("across north", {20, 350, 0, 20, 10, 0}, {10, 32});
        row("side by side", {20, 0, 0, 20, 65, 0}, {10, 10});
        row("a whole turn in three", {20, 0, 120, 20, 120, 120, 20, 240, 120}, {10, 10, 10});
        row("far above", {20, 0, 0, 60, 0, 0}, {10, 50});
        row("never below the foot", {5, 0, 0}, {0});
        row("all round above a narrow one", {20, 0, 30, 21, 90, 360}, {10, 32});
        row("room below a lifted one", {20, 0, 0, 20, 30, 0, 20, 70, 0}, {10, 10, 32});
        row("pushed from one into the next", {20, 0, 0, 30, 70, 0, 31, 35, 0}, {10, 20, 42});
    }
    void stacksSectorsThatWouldCollide()
    {
        QFETCH(QList<double>, transmitters);
        QFETCH(QList<double>, bottoms);
        PylonDesign design = demonstration("wood_panel");
        design.transmitters.clear();
        for (qsizetype i = 0; i < transmitters.size(); i += 3)
            design.transmitters.push_back({transmitters[i], transmitters[i + 1], 0,
                                           transmitters[i + 2], 0, Color(255, 0, 0, 255)});

        QList<double> found;
        for (const Sector &sector : stackSectors(design))
            found << sector.bottomM;

        QCOMPARE(found, bottoms);
    }

    void buildsEachMastToMeasure_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<double>("reach"); // largest distance of anything from the axis
        const auto row = [](const char *type, double reach) {
            QTest::newRow(type) << QByteArray(type) << reach;
        };
        row("monopole_panel", 1.5625); // platform: 5/8 of the width
        row("monopole_cylinder", 1.5625);
        row("monopole_slim", 0.44);     // foundation: 2.2 * 0.08 * 2.5
        row("lattice_panel", 2.192);    // plinth of 0.6 m at (1.25, 1.25)
        row("lattice_cylinder", 1.856); // plinth of 0.6 m at (1.25, 0.7217)
        row("guyed_panel", 14.366);     // anchor of 0.9 m at 0.55 * 25 towards 60
        row("rooftop_panel", 5.360);    // corner of the roof: 3.75 + 0.04 both ways
        row("rooftop_cylinder", 5.360);
        row("wood_panel", 0.339);     // lowest step: 0.1686 + 0.17
        row("watertower_panel", 4.1); // gallery: 3.75 + 0.35
    }
    void buildsEachMastToMeasure()
    {
        QFETCH(QByteArray, type);
        QFETCH(double, reach);
        const PylonDesign design = demonstration(type.constData());
        Meshes meshes;

        addMast(meshes, mastDesign(design));

        double farthest = 0;
        double lowest = 0;
        double highest = 0;
        for (const Mesh *mesh : {&meshes.metal, &meshes.matt}) {
            for (const osg::Vec3 &at : mesh->positions()) {
                farthest = std::max(farthest, std::hypot(double{at.x()}, double{at.y()}));
                lowest = std::min(lowest, double{at.z()});
                highest = std::max(highest, double{at.z()});
            }
        }
        QVERIFY2(std::abs(farthest - reach) < 0.005, qPrintable(QString::number(farthest)));
        QVERIFY2(std::abs(highest - 26.2) < 0.005, qPrintable(QString::number(highest))); // rod
        QVERIFY2(std::abs(lowest + 0.5) < 0.005, qPrintable(QString::number(lowest)));
    }

    void hasNoFaceTurnedOver_data()
    {
        QTest::addColumn<QByteArray>("type");
        for (const char *type : Types)
            QTest::newRow(type) << QByteArray(type);
    }
    void hasNoFaceTurnedOver()
    {
        QFETCH(QByteArray, type);
        PylonDesign design = demonstration(type.constData());
        design.transmitters[4].kind = AntennaKind::Dish;
        for (const auto &[height, width, scale] : {std::array{25.0, 2.5, 1.0},
                                                   {0.1, 0.01, 10.0},
                                                   {2000.0, 1000.0, 0.01},
                                                   {3.0, 150.0, 3.0}}) {
            design.heightM = height;
            design.widthM = width;
            design.antennaScale = scale;
            Meshes meshes;
            addMast(meshes, mastDesign(design));
            addAntennas(meshes, placeAntennas(design, mastDesign(design)),
                        hasCylindricalAntennas(design.type));
            addPlainMast(meshes, mastDesign(design));
            QCOMPARE(faultOf(meshes.metal), std::string());
            QCOMPARE(faultOf(meshes.matt), std::string());
        }
    }

    void keepsToTheVertexBudget_data() { hasNoFaceTurnedOver_data(); }
    void keepsToTheVertexBudget()
    {
        QFETCH(QByteArray, type);
        PylonDesign design = demonstration(type.constData());
        const Counter usual = counted(*PylonFactory().design(design));
        qInfo("%s: %zu vertices, %zu drawables", type.constData(), usual.vertices, usual.drawables);

        design.heightM = 2000;
        design.transmitters.clear();
        for (std::size_t i = 0; i < MaxTransmitters; ++i)
            design.transmitters.push_back(
                {2000.0 * static_cast<double>(i) / MaxTransmitters, static_cast<double>(i % 360), 0,
                 360, 30, Color(9, 9, 9, 9), i % 2 ? AntennaKind::Dish : AntennaKind::Usual});
        const Counter worst = counted(*PylonFactory().design(design));

        QVERIFY(usual.vertices > 2000 && usual.vertices < 25000);
        QVERIFY(usual.drawables <= 4 + 6 + 3);
        QVERIFY2(worst.vertices <= MaxPylonVertices, qPrintable(QString::number(worst.vertices)));
        QCOMPARE(usual.lists + worst.lists, 0);
    }

    void sharesWhatIsEqual()
    {
        PylonFactory factory(PreciseModel::WhenNeeded);
        const PylonDesign design = demonstration("lattice_panel");
        PylonDesign other = design;
        other.transmitters[0].azimuthDeg = 1;
        const auto below = [&](const osg::Vec3d &foot, const PylonDesign &pylon) {
            return osg::ref_ptr<osg::Node>(factory.build({foot, pylon})->asGroup()->getChild(0));
        };

        const osg::ref_ptr<osg::Node> first = below({1, 2, 3}, design);
        const osg::ref_ptr<osg::Node> second = below({7, 8, 9}, other);

        QCOMPARE(below({4, 5, 6}, design).get(), first.get());
        QVERIFY(first != second);
        // the precise representation comes with the first drawing; its bound does not change then
        const osg::BoundingSphere before = first->getBound();
        const std::size_t symbolic = counted(*first).drawables;
        Counter drawing(osg::NodeVisitor::CULL_VISITOR);
        first->accept(drawing);
        QCOMPARE(drawing.drawables, symbolic + 4);
        QCOMPARE(counted(*first).drawables, symbolic + 4);
        QCOMPARE(first->getBound().radius(), before.radius());
        osg::ComputeBoundsVisitor bounds;
        factory.precise(design)->accept(bounds);
        for (unsigned corner = 0; corner < 8; ++corner) {
            const auto *levels = first->asGroup();
            QVERIFY(
                levels->getChild(0)->getBound().contains(bounds.getBoundingBox().corner(corner)));
        }
    }

    void survivesOptimisers_data()
    {
        QTest::addColumn<int>("opacity");
        QTest::addColumn<int>("translucent"); // drawables of their own, to be sorted
        QTest::newRow("translucent") << 128 << 6;
        QTest::newRow("opaque") << 255 << 0;
    }
    void survivesOptimisers()
    {
        QFETCH(int, opacity);
        QFETCH(int, translucent);
        PylonDesign design = demonstration("wood_panel");
        for (Transmitter &transmitter : design.transmitters)
            transmitter.color.a() = static_cast<unsigned char>(opacity);
        const osg::ref_ptr<osg::Group> node = new osg::Group;
        node->addChild(PylonFactory().build({osg::Vec3d(652000.25, 6.8e6, 35), design}));

        osgUtil::Optimizer().optimize(node);

        struct : osg::NodeVisitor
        {
            void apply(osg::Geometry &geometry) override
            {
                const osg::StateSet *state = geometry.getStateSet();
                sorted += state && state->getRenderingHint() == osg::StateSet::TRANSPARENT_BIN;
                farthest = std::max(farthest, geometry.getBoundingBox().xMax());
            }
            int sorted = 0;
            float farthest = 0;
        } found;
        found.setTraversalMode(osg::NodeVisitor::TRAVERSE_ALL_CHILDREN);
        node->accept(found);
        QCOMPARE(found.sorted, translucent);
        QVERIFY(found.farthest < 201); // large coordinates stay in the transform
    }

    void leavesOutWhatIsInvisible()
    {
        PylonDesign design = demonstration("wood_panel");
        const std::size_t all = counted(*PylonFactory().design(design)).drawables;
        design.transmitters[0].color.a() = 0;
        QCOMPARE(counted(*PylonFactory().design(design)).drawables, all - 1);
        design.antennaScale = 0;
        QCOMPARE(counted(*PylonFactory().design(design)).drawables, all - 3);
    }
};

QTEST_APPLESS_MAIN(PylonsTest)
#include "tst_Pylons.moc"
