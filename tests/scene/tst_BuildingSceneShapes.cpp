#include "CityTesting.h"
#include "plugins/scene/buildings/CityMesh.h"
#include "plugins/scene/buildings/CityTree.h"
#include "plugins/scene/buildings/RoofTriangles.h"
#include "support/Cases.h"

#include <QtTest>

#include <array>
#include <cmath>

using namespace vlt::scene;
using namespace towntest;

namespace {

/// A spiral of `turns` turns and this number of points, with radii from 5 to 10.
Ring spiral(int turns, int points)
{
    Ring ring;
    for (int i = 0; i < points; ++i) {
        const double angle = 2 * M_PI * turns * i / points;
        const double radius = turns == 1 ? 10 : 7.5 + 2.5 * std::cos(angle / 2);
        ring.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
    }
    return ring;
}

const Ring Ell = {{0, 0}, {10, 0}, {10, 5}, {5, 5}, {5, 10}, {0, 10}};
const Ring BowTie = {{0, 0}, {10, 10}, {10, 0}, {0, 10}};

bool isInside(const Rings &rings, double x, double y)
{
    bool inside = false;
    for (const Ring &ring : rings) {
        for (std::size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++) {
            if ((ring[i].y() > y) != (ring[j].y() > y) &&
                x < ring[i].x() + (ring[j].x() - ring[i].x()) * (y - ring[i].y()) /
                                      (ring[j].y() - ring[i].y()))
                inside = !inside;
        }
    }
    return inside;
}

struct Face
{
    osg::Vec3d a, b, c;
    osg::Vec3d reported; ///< normal of the last vertex
    osg::Vec4ub color;
    osg::Vec3d cross() const { return (b - a) ^ (c - a); }
    double area() const { return cross().length() / 2; }
    osg::Vec3d normal() const { return cross() / cross().length(); }
    osg::Vec3d middle() const { return (a + b + c) / 3; }
    bool isRoof() const { return normal().z() > 0.5; }
};

osg::Vec3d normalAt(const CityMesh &mesh, std::uint32_t index)
{
    const osg::Vec3s normal = mesh.normals().at(index);
    return osg::Vec3d(normal.x(), normal.y(), normal.z()) / 32767;
}

std::vector<Face> facesOf(const CityMesh &mesh)
{
    std::vector<Face> faces;
    const auto &indices = mesh.indices();
    for (std::size_t i = 0; i + 2 < indices.size(); i += 3) {
        const std::uint32_t last = indices[i + 2];
        faces.push_back({mesh.vertices().at(indices[i]), mesh.vertices().at(indices[i + 1]),
                         mesh.vertices().at(last), normalAt(mesh, last), mesh.colors().at(last)});
    }
    return faces;
}

} // namespace

class tst_BuildingSceneShapes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coversRoofsAndLooksOutwards_data()
    {
        // walls: 0: only the roof
        const Cases<Rings, double, int, bool> row({"rings", "area", "walls", "isCrossed"});
        const Ring court = square(3, 3, 4);
        row("L: 10 x 10 - 5 x 5", {Ell}, 75, 6);
        row("clockwise L", {turned(Ell)}, 75, 6);
        row("U: 9 x 9 - 3 x 6", {{{0, 0}, {9, 0}, {9, 9}, {6, 9}, {6, 3}, {3, 3}, {3, 9}, {0, 9}}},
            63, 8);
        row("courtyard", {square(0, 0, 10), court}, 84, 8);
        row("courtyard the other way", {square(0, 0, 10), turned(court)}, 84, 8);
        row("courtyard, both clockwise", {turned(square(0, 0, 10)), turned(court)}, 84, 8);
        row("two courtyards", {square(0, 0, 10), square(1, 1, 2), square(6, 6, 3)}, 87, 12);
        row("a courtyard that touches a wall", {square(0, 0, 10), square(3, 0, 4)}, 84);
        row("a courtyard that touches a corner", {square(0, 0, 10), {{0, 0}, {4, 2}, {2, 4}}}, 94);
        row("points twice", {{{0, 0}, {0, 0}, {10, 0}, {10, 10}, {10, 10}, {0, 10}}}, 100);
        row("points on a side", {{{0, 0}, {5, 0}, {10, 0}, {10, 5}, {10, 10}, {0, 10}}}, 100, 6);
        row("a spike", {{{0, 0}, {10, 0}, {10, 10}, {5, 10}, {5, 25}, {5, 10}, {0, 10}}}, 100);
        row("touches itself: two squares at a corner",
            {{{0, 0}, {5, 0}, {5, 5}, {10, 5}, {10, 10}, {5, 10}, {5, 5}, {0, 5}}}, 50, 8);
        row("no area", {{{0, 0}, {5, 5}, {10, 10}}}, 0);
        row("crosses itself: two triangles of 25, walls on both sides", {BowTie}, 50, 8, true);
        row("two turns, inner outside again: 1/2 of the integral of |r1^2 - r2^2| = 150",
            {spiral(2, 400)}, 150, 0, true);
        row("circle of 2000 points: n/2 r^2 sin(2 pi/n)", {spiral(1, 2000)},
            1000 * 100 * std::sin(2 * M_PI / 2000));
        row("far from the origin", {square(1e6, 1e6, 10), square(1000003, 1000003, 4)}, 84);
    }

    void coversRoofsAndLooksOutwards()
    {
        QFETCH(Rings, rings);
        QFETCH(double, area);
        QFETCH(int, walls);
        QFETCH(bool, isCrossed);
        RoofTriangles roof;
        roof.addRing(BowTie); // cleared before the next roof
        roof.cut();
        roof.clear();
        for (const Ring &ring : rings)
            roof.addRing(ring);

        roof.cut();

        double covered = 0;
        for (const auto &[a, b, c] : roof.triangles()) {
            const Ring corners = {roof.points().at(a), roof.points().at(b), roof.points().at(c)};
            QVERIFY(doubledArea(corners) > 0);
            covered += doubledArea(corners) / 2;
            const osg::Vec2d middle = (corners[0] + corners[1] + corners[2]) / 3;
            QVERIFY(isInside(rings, middle.x(), middle.y()));
        }
        QCOMPARE(roof.isCrossed(), isCrossed);
        const double tolerance = isCrossed ? 1e-3 * area : 1e-6 * std::max(area, 1.0);
        QVERIFY2(std::abs(covered - area) <= tolerance, QByteArray::number(covered));
        if (walls > 0)
            looksOutwards(rings, area, walls, isCrossed);
    }

    void boxesKeepAreaHeightAndLight()
    {
        CityModel city;
        add(city, {Ell, square(1, 1, 2)}); // 75 - 4
        add(city, {{{0, 0}, {5, 5}, {10, 10}}});
        CityMesh mesh(city, {});

        mesh.addBoxes(0);

        QCOMPARE(mesh.vertices().size(), std::size_t{8});
        double roof = 0;
        for (const Face &face : facesOf(mesh)) {
            QVERIFY((face.normal() - face.reported).length() < 1e-4);
            QVERIFY(face.normal() * (face.middle() - osg::Vec3d(5, 5, 36)) > 0);
            roof += face.isRoof() ? face.area() : 0;
        }
        QVERIFY(std::abs(roof - 71) < 1e-3);
        mesh.addBoxes(1); // a line: no area, but numbers
        for (const osg::Vec3 &vertex : mesh.vertices())
            QVERIFY(vertex.valid());
    }

    void translucentFacesAreBlendedAndTransparentOnesLeftOut_data()
    {
        // opaque, translucent: number of indices in full detail, as a box and as a dot
        const Cases<int, int, QList<std::size_t>, QList<std::size_t>> row(
            {"wallAlpha", "roofAlpha", "opaque", "translucent"});
        row("opaque", 255, 255, {30, 30, 1}, {0, 0, 0});
        row("translucent roof", 255, 254, {24, 24, 0}, {6, 6, 1});
        row("translucent walls, no roof", 1, 0, {0, 0, 0}, {24, 24, 0});
        row("transparent", 0, 0, {0, 0, 0}, {0, 0, 0});
    }

    void translucentFacesAreBlendedAndTransparentOnesLeftOut()
    {
        QFETCH(int, wallAlpha);
        QFETCH(int, roofAlpha);
        CityModel city;
        add(city, {square(0, 0, 10)});
        city.wallColors[0].alpha = std::uint8_t(wallAlpha);
        city.roofColors[0].alpha = std::uint8_t(roofAlpha);
        std::array<CityMesh, 3> meshes = {CityMesh(city, {}), CityMesh(city, {}),
                                          CityMesh(city, {})};

        meshes[0].addBuilding(0, 1);
        meshes[1].addBoxes(0);
        meshes[2].addDot(0);

        QList<std::size_t> opaque;
        QList<std::size_t> translucent;
        const osg::ref_ptr<osg::StateSet> solid = plainFaceState();
        const osg::ref_ptr<osg::StateSet> blended = translucentState(*solid);
        QCOMPARE(blended->getMode(GL_BLEND), osg::StateAttribute::ON);
        QCOMPARE(solid->getMode(GL_BLEND), osg::StateAttribute::INHERIT);
        for (const CityMesh &mesh : meshes) {
            osg::ref_ptr<osg::Geode> geode = new osg::Geode;
            mesh.addTo(*geode, solid, blended);
            opaque << 0;
            translucent << 0;
            for (unsigned i = 0; i < geode->getNumDrawables(); ++i) {
                const osg::Geometry &drawn = *geode->getDrawable(i)->asGeometry();
                (drawn.getStateSet() == solid ? opaque : translucent).back() +=
                    drawn.getPrimitiveSet(0)->getNumIndices();
            }
        }
        QTEST(opaque, "opaque");
        QTEST(translucent, "translucent");
    }

    void buildingsMayStartAboveTheGround()
    {
        CityModel city;
        add(city, {square(0, 0, 10), square(2, 2, 3)});
        city.footprints.buildings[0].bottomM = 4;
        CityMesh mesh(city, {0, 0, BaseM});
        mesh.addBuilding(0, 5);
        mesh.addBoxes(0);

        double below = 0;
        for (const Face &face : facesOf(mesh)) {
            QVERIFY(std::min({face.a.z(), face.b.z(), face.c.z()}) >= 4);
            if (face.normal().z() < -0.5) {
                below += face.area();
                QCOMPARE(face.reported, osg::Vec3d(0, 0, -1));
            }
        }
        QVERIFY(std::abs(below - 91) < 1e-3);
    }

    void tilesHoldEachBuildingOnce_data()
    {
        // widest: distance of two buildings in one tile
        const Cases<double, double> row({"tileSize", "widest"});
        row("250 m", 250, 250);
        row("as large as can be: quartered where there are many", 1e300, 3200);
        row("small ones: doubled until they are few enough", 1e-3, 64);
        row("smaller than numbers can be divided by", 1e-310, 64);
    }

    void tilesHoldEachBuildingOnce()
    {
        QFETCH(double, tileSize);
        QFETCH(double, widest);
        constexpr int Side = 160;
        CityModel city;
        for (int i = 0; i < Side * Side; ++i) {
            const int row = i / Side;
            add(city, {square(20 * (i % Side), 20 * row, 8)});
        }

        const CityTiles tiles = growCityTree(city, tileSize);

        std::vector<const CityTree *> left = {tiles.root.get()};
        std::vector<int> found(std::size_t(Side) * Side);
        std::size_t tileCount = 0;
        while (!left.empty()) {
            const CityTree &tree = *left.back();
            left.pop_back();
            for (const auto &branch : tree.branches)
                left.push_back(branch.get());
            if (!tree.isTile())
                continue;
            ++tileCount;
            QVERIFY(tree.buildings.size() <= MaxBuildingsPerTile);
            for (const std::uint32_t building : tree.buildings)
                ++found[building];
            QVERIFY(tree.bound.xMax() - tree.bound.xMin() - 8 <= widest);
            QVERIFY(tree.bound.yMax() - tree.bound.yMin() - 8 <= widest);
        }
        QCOMPARE(found, std::vector<int>(std::size_t(Side) * Side, 1));
        QVERIFY(tileCount <= MaxTiles);
    }

    void aCityMayBeEmptyOrOnePlace()
    {
        CityModel city;
        QVERIFY(!growCityTree(city, 250).root);

        for (int i = 0; i < 3000; ++i)
            add(city, {square(0, 0, 10)});
        const CityTiles tiles = growCityTree(city, 250);
        QVERIFY(tiles.root->isTile());
        QCOMPARE(tiles.root->buildings.size(), std::size_t{3000});
    }

private:
    static void looksOutwards(const Rings &rings, double area, int walls, bool isCrossed)
    {
        CityModel city;
        add(city, rings);
        const osg::Vec3d origin(100, -50, 7);
        CityMesh mesh(city, origin);

        mesh.addBuilding(0, 5);

        double wallArea = 0;
        double roofArea = 0;
        int wallFaces = 0;
        const std::vector<Face> faces = facesOf(mesh);
        for (const Face &face : faces) {
            const osg::Vec3d outside = face.middle() + origin + face.normal() * 0.01;
            const osg::Vec3d inside = face.middle() + origin - face.normal() * 0.01;
            if (!isCrossed) {
                QVERIFY(isInside(rings, inside.x(), inside.y()));
                QCOMPARE(isInside(rings, outside.x(), outside.y()), face.isRoof());
            }
            QCOMPARE(face.color,
                     face.isRoof() ? osg::Vec4ub(200, 100, 50, 255) : osg::Vec4ub(10, 20, 30, 255));
            (face.isRoof() ? roofArea : wallArea) += face.area();
            wallFaces += face.isRoof() ? 0 : 1;
            for (const osg::Vec3d &corner : {face.a, face.b, face.c}) {
                const double z = corner.z() + origin.z();
                QVERIFY(z == BaseM + 12 || (!face.isRoof() && z == BaseM - 5));
            }
        }
        for (std::size_t i = 0; i < mesh.indices().size(); ++i) // no vertex belongs to two planes
            QVERIFY((normalAt(mesh, mesh.indices()[i]) - faces[i / 3].normal()).length() < 1e-4);
        QCOMPARE(wallFaces, 2 * walls);
        QVERIFY(std::abs(roofArea - area) < 1e-3);
        double around = 0;
        for (const Ring &ring : rings) {
            for (std::size_t i = 0; i < ring.size(); ++i)
                around += (ring[(i + 1) % ring.size()] - ring[i]).length();
        }
        QVERIFY(std::abs(wallArea - (isCrossed ? 2 : 1) * around * (12 + 5)) < 1e-2);
    }
};

QTEST_GUILESS_MAIN(tst_BuildingSceneShapes)
#include "tst_BuildingSceneShapes.moc"
