#include "PylonTesting.h"

#include "plugins/scene/mesh/Solids.h"
#include "plugins/scene/pylon/Antennas.h"
#include "plugins/scene/pylon/Masts.h"
#include "plugins/scene/pylon/Sectors.h"
#include "support/Cases.h"

#include <algorithm>
#include <cmath>

using namespace pylontest;

namespace {

bool near(const osg::Vec3d &one, const osg::Vec3d &other, double tolerance = 0.001)
{
    return (one - other).length() <= tolerance;
}

/// The first fault of a mesh: a triangle whose front side is opposite to its normals, a normal that
/// is not a unit vector, a vertex that is not finite.
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

} // namespace

class tst_PylonShapes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesAntennas_data()
    {
        const Cases<QByteArray, int, double, double> row({"type", "index", "x", "y"});
        // platform 0.625 * 2.5, pipe 0.08 outside, antenna 0.28 before it: 1.9225 from the axis
        row("north", "monopole_panel", 0, 0, 1.9225);
        row("120", "monopole_panel", 1, 1.664934, -0.96125);
        row("240, tilt -5", "monopole_panel", 2, -1.664934, -0.96125);
        row("140, tilt +5", "monopole_panel", 4, 1.235759, -1.472720);
        // tube at the lower arm, 22.28 m: 2.5 * (0.08 - 0.03 * 22.28 / 25) = 0.13316; + 0.16 + 0.28
        row("slim: 0.13316 + 0.44", "monopole_slim", 0, 0, 0.57316);
        // pipe on a square of half length 3.75 - 0.45; towards 120 at 3.3 / cos 30
        row("roof, north", "rooftop_panel", 0, 0, 3.58);
        row("roof, 120", "rooftop_panel", 1, 3.542487, -2.045256);
        // face of the triangle at the lower arm: 2.5 * (1 - 0.6 * 22.28 / 25) = 1.1632, inradius
        // 0.335787; + 0.45 + 0.28
        row("lattice: 0.335787 + 0.73", "lattice_cylinder", 0, 0, 1.065787);
        // gallery 3.75 + 0.35, + 0.08 + 0.28
        row("water tower, gallery", "watertower_panel", 0, 0, 4.46);
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
        // lean: shift of a point 1 m above the centre: sin of the tilt
        const Cases<double, double> row({"tilt", "lean"});
        row("+5", 5, 0.0872);
        row("-5", -5, -0.0872);
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

        // The highest point belongs to the upper lid, at most half its depth from the middle line.
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

        // The distance between them is 1.4 widths of 0.3 m, in the direction east-west.
        QVERIFY(near(places[0].centre - places[1].centre, {-0.42, 0, 0}));
        QVERIFY(near(places[2].centre - places[1].centre, {0.42, 0, 0}));
    }

    void drawsWedges_data()
    {
        // corners: x, y of the arc's ends: 32.5 degrees aside
        const Cases<double, QList<double>> row({"azimuth", "corners"});
        row("north", 0, {-107.4600, 168.6783, 107.4600, 168.6783});
        row("120", 120, {199.8096, 8.7239, 92.3497, -177.4022});
        row("240", 240, {-92.3497, -177.4022, -199.8096, 8.7239});
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
        // transmitters: height, azimuth, beam width
        // bottoms: sectors 20 m high, 2 m apart, in rising order
        const Cases<QList<double>, QList<double>> row({"transmitters", "bottoms"});
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
        PylonDesign design = demonstration("wood_panel");
        design.transmitters.clear();
        for (qsizetype i = 0; i < transmitters.size(); i += 3)
            design.transmitters.push_back({transmitters[i], transmitters[i + 1], 0,
                                           transmitters[i + 2], 0, Color(255, 0, 0, 255)});

        QList<double> found;
        for (const Sector &sector : stackSectors(design))
            found << sector.bottomM;

        QTEST(found, "bottoms");
    }

    void buildsEachMastToMeasure_data()
    {
        // reach: maximum distance of a vertex from the axis
        const Cases<double> row({"reach"});
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
        QFETCH(double, reach);
        const PylonDesign design = demonstration(QTest::currentDataTag());
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

    void hasNoFaceTurnedOver_data() { addTypes(); }
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
};

QTEST_APPLESS_MAIN(tst_PylonShapes)
#include "tst_PylonShapes.moc"
