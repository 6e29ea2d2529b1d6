#include "contract/ScenePlace.h"
#include "snapshot/EarthPlaces.h"
#include "support/Cases.h"
#include "support/GeoTiff.h"

#include <QTemporaryDir>

#include <osg/Group>
#include <osg/ValueObject>

using namespace Qt::StringLiterals;
using vlt::snapshot::EarthPlaces;

class tst_EarthPlaces : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void statesPlaces_data()
    {
        // degrees by gdaltransform; the terrain rises by 1 m in 10 m to the east
        const Cases<int, QString, double, double, QString> row(
            {"system", "centre", "x", "y", "texts"});
        const char *lambert = "221598 6758871";
        row("on the terrain", 2154, lambert, 0, 0,
            "RGF93 v1 / Lambert-93|221,598  6,758,871|47.75586° N  3.39222° W|ground 160 m");
        row("between its pixels", 2154, lambert, 34, 0,
            "RGF93 v1 / Lambert-93|221,632  6,758,871|47.75589° N  3.39176° W|ground 163 m");
        row("beside it", 2154, lambert, -5000, 0,
            "RGF93 v1 / Lambert-93|216,598  6,758,871|47.75220° N  3.45873° W");
        row("degrees", 4326, "-3.3922168 47.7558612", 0, 0,
            "WGS 84|47.75586° N  3.39222° W|ground 160 m");
        row("another quarter of the earth", 4326, "18.5 -33.25", 0, 0,
            "WGS 84|33.25000° S  18.50000° E");
        row("nowhere", 0, "0 0", 0, 0, "");
    }
    void statesPlaces()
    {
        QFETCH(int, system);
        QFETCH(QString, centre);
        QFETCH(double, x);
        QFETCH(double, y);
        const QString terrain = m_dir.filePath(u"dem.tif"_s);
        makeGeoTiff(terrain, {100, 100, 1, GDT_Float32, northUp(221000, 6758000, 20, 100),
                              "EPSG:2154", [](int column, int, int) { return 101 + 2 * column; }});
        osg::ref_ptr<osg::Group> scene = new osg::Group;
        scene->addDescription("centre=" + centre.toStdString());
        if (OGRSpatialReference srs; system > 0 && srs.importFromEPSG(system) == OGRERR_NONE)
            scene->setUserValue(vlt::contract::place::System, vlt::localframe::wktOf(&srs));

        const auto place = EarthPlaces(*scene, terrain).at(x, y);
        QTEST(place ? placeTexts(*place).join(u'|') : QString(), "texts");
    }
};

QTEST_GUILESS_MAIN(tst_EarthPlaces)
#include "tst_EarthPlaces.moc"
