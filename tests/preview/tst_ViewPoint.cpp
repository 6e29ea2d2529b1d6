#include "contract/ScenePlace.h"
#include "snapshot/ViewPoint.h"
#include "support/Cases.h"

#include <ogr_spatialref.h>

#include <osg/Geode>
#include <osg/Shape>
#include <osg/ShapeDrawable>
#include <osg/ValueObject>

using namespace Qt::StringLiterals;
using vlt::snapshot::SceneView;

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
        osg::ref_ptr<osg::Geode> scene = new osg::Geode;
        scene->addDrawable(new osg::ShapeDrawable(new osg::Box(osg::Vec3(), 300, 200, 10)));
        if (!place.isEmpty()) {
            OGRSpatialReference lambert;
            lambert.importFromEPSG(2154);
            char *wkt = nullptr;
            lambert.exportToWkt(&wkt);
            scene->setUserValue(vlt::contract::place::System, std::string(wkt));
            CPLFree(wkt);
            scene->addDescription("centre=" + place.toStdString());
        }
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
};

QTEST_GUILESS_MAIN(tst_ViewPoint)
#include "tst_ViewPoint.moc"
