#include "ObjectScene.h"
#include "contract/ScenePlace.h"
#include "snapshot/JoinedScenes.h"
#include "snapshot/ObjectView.h"
#include "snapshot/SceneEarth.h"
#include "snapshot/ViewPoint.h"
#include "support/Cases.h"

#include <ogr_spatialref.h>

#include <osg/Geode>
#include <osg/MatrixTransform>
#include <osg/Shape>
#include <osg/ShapeDrawable>

using namespace Qt::StringLiterals;
using vlt::snapshot::SceneView;

namespace {

/// A scene that states its place; 0: none.
osg::ref_ptr<osg::Group> placed(int epsg, const QString &centre)
{
    osg::ref_ptr<osg::Group> scene = new osg::Group;
    if (epsg == 0)
        return scene;
    OGRSpatialReference system;
    system.importFromEPSG(epsg);
    char *wkt = nullptr;
    system.exportToWkt(&wkt);
    scene->setUserValue(vlt::contract::place::System, std::string(wkt));
    CPLFree(wkt);
    scene->addDescription("centre=" + centre.toStdString());
    return scene;
}

/// A place of Lambert 93 in UTM zone 30, whose grid north differs by 5 degrees there.
QString inZone30(vlt::contract::Place place)
{
    OGRSpatialReference lambert;
    OGRSpatialReference zone;
    lambert.importFromEPSG(2154);
    zone.importFromEPSG(32630);
    const std::unique_ptr<OGRCoordinateTransformation> into(
        OGRCreateCoordinateTransformation(&lambert, &zone));
    into->Transform(1, &place.x, &place.y);
    return QStringLiteral("%1 %2").arg(place.x, 0, 'f', 2).arg(place.y, 0, 'f', 2);
}

} // namespace

class tst_ViewPoint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksTowardsTrueNorth_data()
    {
        // place: easting in Lambert 93; bearing: direction of the upper edge of the picture, in
        // degrees clockwise from the y axis: the constant of the cone times the longitude
        const Cases<QString, int, bool, double, double> row(
            {"place", "view", "isCity", "bearing", "steepness"});
        row("north", "219000 6754000", int(SceneView::North), false, 4.6595, 0.545);
        row("a town to the north", "219000 6754000", int(SceneView::North), true, 4.6595, 0.545);
        row("from above", "219000 6754000", int(SceneView::Top), false, 4.6595, 1);
        row("on the central meridian", "700000 6600000", int(SceneView::Top), false, 0, 1);
        row("without a place", "", int(SceneView::Top), false, 0, 1);
    }
    void looksTowardsTrueNorth()
    {
        QFETCH(QString, place);
        QFETCH(int, view);
        QFETCH(bool, isCity);
        QFETCH(double, bearing);
        QFETCH(double, steepness);
        const osg::ref_ptr<osg::Group> scene = placed(place.isEmpty() ? 0 : 2154, place);
        osg::ref_ptr<osg::Geode> box = new osg::Geode;
        box->addDrawable(new osg::ShapeDrawable(new osg::Box(osg::Vec3(), 300, 200, 10)));
        scene->addChild(box);
        if (isCity)
            scene->addDescription("buildings=1");

        const auto point = vlt::snapshot::findViewPoint(*scene, SceneView(view), 1.5);
        QVERIFY(point);
        osg::Vec3d way = point.value().target - point.value().eye;
        way.normalize();
        const osg::Vec3d up = point.value().up;
        const osg::Vec3d heading = way.z() < -0.99 ? up : way;
        QVERIFY(std::abs(osg::RadiansToDegrees(std::atan2(heading.x(), heading.y())) - bearing) <
                0.01);
        QVERIFY(std::abs(-way.z() - steepness) < 0.001);
        QVERIFY(std::abs(way * up) < 1e-9);
    }

    void showsOneObjectWhole_data()
    {
        // heading: of the camera, clockwise from the y axis
        const Cases<QByteArray, QString, std::vector<osg::Vec3>, double> row(
            {"kind", "id", "places", "heading"});
        row("site", "site", "Name 1", {{0, 0, 0}, {900, 500, 20}}, 35.54);
        row("site of a row", "site", "#11", {{0, 0, 0}, {900, 500, 20}}, 35.54);
        row("link to the east", "link", "Name 0", {{0, 0, 30}, {9000, 0, 60}}, 0);
        row("link to the north", "link", "name 0", {{0, 0, 30}, {0, 9000, 60}}, -90);
        row("link to the south-west", "link", "#10", {{0, 0, 30}, {-900, -900, 60}}, -45);
    }
    void showsOneObjectWhole()
    {
        QFETCH(QByteArray, kind);
        QFETCH(QString, id);
        QFETCH(std::vector<osg::Vec3>, places);
        QFETCH(double, heading);
        const auto object = vlt::snapshot::ShownObject::from(QString::fromUtf8(kind) + u':' + id);
        QVERIFY(object);
        const osg::ref_ptr<osg::Group> scene =
            sceneOf(kind.toStdString(), places,
                    kind == "link" ? std::vector<float>{40.F} : std::vector<float>{40.F, 40.F});
        const auto point = vlt::snapshot::viewOfObject(*scene, *object, 1.5);
        QVERIFY(point);
        const osg::Vec3d way = point.value().target - point.value().eye;
        QVERIFY2(std::abs(osg::RadiansToDegrees(std::atan2(way.x(), way.y())) - heading) < 0.1,
                 QByteArray::number(osg::RadiansToDegrees(std::atan2(way.x(), way.y()))));

        const osg::Matrixd toPicture =
            osg::Matrixd::lookAt(point.value().eye, point.value().target, point.value().up) *
            osg::Matrixd::perspective(point.value().fieldOfViewDeg, 1.5, 1, 1e6);
        const osg::Vec3d first = osg::Vec3d(kind == "link" ? places[0] : places[1]) * toPicture;
        const osg::Vec3d last =
            osg::Vec3d(places[1] + (kind == "link" ? osg::Vec3() : osg::Vec3(0, 0, 40))) *
            toPicture;
        const double filled = std::max(std::abs(last.x() - first.x()), last.y() - first.y());
        QVERIFY2(filled > 1.45 && filled < 2, QByteArray::number(filled));
        for (const osg::Vec3d &seen : {first, last})
            QVERIFY(std::abs(seen.x()) < 1 && std::abs(seen.y()) < 1);
    }

    void joinsScenesAtTheirPlaces_data()
    {
        // east, north: of the second scene's point from the first one's origin
        const Cases<int, QString, double, double> row({"epsg", "centre", "east", "north"});
        row("the same system", 2154, "220300 6754400", 1300, 400);
        row("another system", 32630, inZone30({220300, 6754400}), 1300, 400);
        row("no place", 0, "", 0, 0);
    }
    void joinsScenesAtTheirPlaces()
    {
        QFETCH(int, epsg);
        QFETCH(QString, centre);
        QFETCH(double, east);
        QFETCH(double, north);
        const auto first = placed(2154, u"219000 6754000"_s);
        const auto second = placed(epsg, centre);
        second->setUserValue("vlt.legend", std::string("link\t00000000\n"));

        const vlt::snapshot::Scene all = vlt::snapshot::joined({first, second});
        QCOMPARE(all.valid(), epsg != 0);
        if (epsg == 0)
            return;
        const auto &moved = dynamic_cast<osg::MatrixTransform &>(*all->asGroup()->getChild(1));
        const osg::Vec3d origin = osg::Vec3d() * moved.getMatrix();
        QVERIFY2(std::hypot(origin.x() - east, origin.y() - north) < 1,
                 qPrintable(u"%1 %2"_s.arg(origin.x()).arg(origin.y())));
        // a step to true north in one scene is one in the other, too
        const auto bearing = [](const vlt::snapshot::Scene &scene, double x, double y) {
            return vlt::snapshot::NorthAtPlace(vlt::snapshot::frameOf(*scene))({x, y});
        };
        const double turn = osg::DegreesToRadians(bearing(second, 0, 0));
        const osg::Vec3d step =
            osg::Vec3d(std::sin(turn), std::cos(turn), 0) * moved.getMatrix() - origin;
        QVERIFY(std::abs(osg::RadiansToDegrees(std::atan2(step.x(), step.y())) -
                         bearing(all, east, north)) < 0.01);
        QCOMPARE(vlt::snapshot::legendTextOf(*all), std::string("link\t00000000\n"));
    }

    void namesSimilarObjects()
    {
        const osg::ref_ptr<osg::Group> scene =
            sceneOf("site", {{0, 0, 0}, {9, 9, 9}, {5, 5, 5}}, {40, 40, 40});
        const auto reasonFor = [&scene](const QString &text) {
            const auto object = vlt::snapshot::ShownObject::from(text);
            const auto point = vlt::snapshot::viewOfObject(*scene, *object, 1);
            return point ? QString() : point.error().key + u' ' + point.error().detail;
        };
        QCOMPARE(reasonFor(u"site:Nam 2"_s),
                 u"MESS_SNAP_NO_SITE Nam 2; similar names: Name 2, Name 0, Name 1"_s);
        QCOMPARE(reasonFor(u"site:#9"_s), u"MESS_SNAP_NO_SITE #9"_s);
        QCOMPARE(reasonFor(u"link:Name 1"_s), u"MESS_SNAP_NO_LINK Name 1"_s);
        QVERIFY(!vlt::snapshot::ShownObject::from(u"site:"_s));
        QVERIFY(!vlt::snapshot::ShownObject::from(u"town:1"_s));
    }
};

QTEST_GUILESS_MAIN(tst_ViewPoint)
#include "tst_ViewPoint.moc"
