#include "ObjectScene.h"
#include "picking/ObjectPicker.h"
#include "support/Cases.h"

#include <osg/Geode>
#include <osg/Geometry>

#include <QtTest>

using namespace vlt::picking;
namespace keys = vlt::contract::objects;

namespace {

constexpr double Width = 800;
constexpr double Height = 600;
const osg::Vec3d Eye(0, -1000, 300);

/// Two triangles side by side, 100 m wide each, which stand at y = 0: objects 7 and 2.
osg::ref_ptr<osg::Geometry> twoFaces()
{
    osg::ref_ptr<osg::Geometry> faces = new osg::Geometry;
    const std::vector<osg::Vec3> corners = {{-100, 0, 0}, {0, 0, 0},   {-50, 0, 90},
                                            {0, 0, 0},    {100, 0, 0}, {50, 0, 90}};
    faces->setVertexArray(new osg::Vec3Array(corners.begin(), corners.end()));
    faces->addPrimitiveSet(new osg::DrawArrays(GL_TRIANGLES, 0, 6));
    addArray<osg::UIntArray>(*faces, keys::Ranges, std::vector<unsigned>{0, 7, 1, 2});
    return faces;
}

/// Sites 0 to 8 along the x axis, 40 m high; links between neighbours, the last with a zone.
osg::ref_ptr<osg::Group> sitesOrLinks(const std::string &kind)
{
    std::vector<osg::Vec3> places;
    std::vector<float> sizes;
    for (int i = 0; i < 9; ++i) {
        const auto x = static_cast<float>(300 * (i - 4));
        places.emplace_back(x, 200.F, 0.F);
        if (kind == keys::Link)
            places.emplace_back(x + 300, 200.F, 0.F);
        sizes.push_back(kind == keys::Site ? 40 : i == 4 ? 50 : 0);
    }
    return sceneOf(kind, places, sizes);
}

osg::Matrixd toWindow(const osg::Vec3d &target)
{
    return osg::Matrixd::lookAt(Eye, target, osg::Vec3d(0, 0, 1)) *
           osg::Matrixd::perspective(30, Width / Height, 1, 10000) *
           osg::Matrixd::translate(1, 1, 1) * osg::Matrixd::scale(Width / 2, Height / 2, 0.5);
}

} // namespace

class tst_ObjectPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheObjectUnderThePixel_data()
    {
        // place: in the scene; asideX, asideY: pixels from there; object: -1 for none
        const Cases<QByteArray, osg::Vec3d, double, double, double, int> row(
            {"kind", "place", "asideX", "asideY", "surfaceM", "object"});
        const double endless = std::numeric_limits<double>::infinity();
        row("on a mast", keys::Site, {0, 200, 20}, 0, 0, endless, 4);
        row("beside a mast", keys::Site, {0, 200, 20}, 15, 0, endless, 4);
        row("below its foot", keys::Site, {0, 200, 0}, 0, -15, endless, 4);
        row("too far from it", keys::Site, {0, 200, 20}, 18, 0, endless, -1);
        row("the next one", keys::Site, {300, 200, 40}, -10, 10, endless, 5);
        row("behind a hill", keys::Site, {0, 200, 20}, 0, 0, 900, -1);
        row("seen through the crest", keys::Site, {0, 200, 20}, 0, 0, 1150, 4);
        row("on a face", keys::Site, {-50, 0, 20}, 0, 0, 1040, 7);
        row("on the next face", keys::Site, {50, 0, 20}, 0, 0, 1040, 2);
        row("a face before a mast", keys::Site, {-20, 0, 5}, 0, 0, 1040, 7);
        row("on a line", keys::Link, {-450, 200, 0}, 0, 5, endless, 2);
        row("far from it", keys::Link, {-450, 200, 0}, 0, 8, endless, -1);
        row("at its end", keys::Link, {1500, 200, 0}, 5, 0, endless, 8);
        row("in a zone", keys::Link, {150, 200, 40}, 0, 0, endless, 4);
        row("outside the zone", keys::Link, {150, 200, 60}, 0, 0, endless, -1);
        row("beside the zone's tip", keys::Link, {10, 200, 25}, 0, 0, endless, -1);
        row("on a distant roof", keys::Building, {300, 200, 0}, 3, 0, endless, 5);
        row("beside it", keys::Building, {300, 200, 0}, 6, 0, endless, -1);
    }
    void findsTheObjectUnderThePixel()
    {
        QFETCH(QByteArray, kind);
        QFETCH(osg::Vec3d, place);
        QFETCH(double, asideX);
        QFETCH(double, asideY);
        QFETCH(double, surfaceM);
        QFETCH(int, object);
        const osg::ref_ptr<osg::Group> scene = sitesOrLinks(kind.toStdString());
        osg::ref_ptr<osg::Geode> faces = new osg::Geode;
        faces->addDrawable(twoFaces());
        scene->addChild(faces);
        const auto objects = SceneObjects::of(*scene);
        QVERIFY(objects);

        Sight sight;
        sight.toWindow = toWindow(place);
        sight.eye = Eye;
        sight.at = {Width / 2 + asideX, Height / 2 + asideY};
        sight.surfaceM = surfaceM;
        const osg::Matrixd toScene = osg::Matrixd::inverse(sight.toWindow);
        osg::ref_ptr<osgUtil::LineSegmentIntersector> ray = new osgUtil::LineSegmentIntersector(
            osg::Vec3d(sight.at, 0) * toScene, osg::Vec3d(sight.at, 1) * toScene);
        osgUtil::IntersectionVisitor visitor(ray);
        if (kind == keys::Site)
            scene->accept(visitor);
        sight.met = ray->getIntersections();
        const auto found = objectAt(*objects, sight);
        QCOMPARE(found ? static_cast<int>(*found) : -1, object);
    }

    /// A line that passes beside the eye is seen only before it.
    void cutsLinesAtTheEye()
    {
        const osg::ref_ptr<osg::Group> scene =
            sceneOf(keys::Link, {{0, -3000, 290}, {0, 3000, 290}}, {0});
        Sight sight;
        sight.toWindow = toWindow({0, 0, 290});
        sight.eye = Eye;
        for (const auto &[y, isThere] : {std::pair(500, true), std::pair(-1500, false)}) {
            const osg::Vec3d at = osg::Vec3d(0, y, 290) * sight.toWindow;
            sight.at = {at.x(), at.y()};
            QCOMPARE(objectAt(*SceneObjects::of(*scene), sight).has_value(), isThere);
        }
    }

    void findsObjectsByRowAndName()
    {
        const auto links = SceneObjects::of(*sitesOrLinks(keys::Link));
        QVERIFY(links);
        QCOMPARE(links->ofRow(13).value_or(99), 3U);
        QVERIFY(!links->ofRow(9));
        QCOMPARE(links->named(QStringLiteral("name 3")), QList<std::size_t>{3});
        QVERIFY(links->named(QStringLiteral("Name")).isEmpty());
        const osg::BoundingBoxd zone = links->extent(4);
        QCOMPARE(zone._min, osg::Vec3d(0, 150, -50));
        QCOMPARE(zone._max, osg::Vec3d(300, 250, 50));
        QVERIFY(!SceneObjects::of(*osg::ref_ptr(new osg::Group)));
    }
};

Q_DECLARE_METATYPE(osg::Vec3d)
QTEST_GUILESS_MAIN(tst_ObjectPicker)
#include "tst_ObjectPicker.moc"
