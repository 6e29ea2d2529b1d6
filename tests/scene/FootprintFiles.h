#pragma once

#include <ogrsf_frmts.h>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTest>

/// Helpers for the tests of building documents: files of footprints and documents about them.
namespace footprinttest {

inline constexpr double East = 650000;
inline constexpr double North = 6860000;

struct Feature
{
    QByteArray wkt;    ///< metres from East, North
    QByteArray height; ///< as text; "null" for none
};
using Features = QList<Feature>;

inline const QByteArray Square = "POLYGON((0 0,10 0,10 10,0 10,0 0))";

/// Moves points to East, North.
struct Mover : OGRDefaultGeometryVisitor
{
    using OGRDefaultGeometryVisitor::visit;
    void visit(OGRPoint *point) override
    {
        point->setX(point->getX() + East);
        point->setY(point->getY() + North);
    }
};

/// A file of footprints with the field "Height".
inline void makeFootprints(const QString &path, const Features &features,
                           OGRFieldType type = OFTReal, const char *format = "GPKG")
{
    GDALAllRegister();
    GDALDriver *driver = GetGDALDriverManager()->GetDriverByName(format);
    driver->QuietDelete(path.toUtf8());
    const GDALDatasetUniquePtr dataset(
        driver->Create(path.toUtf8(), 0, 0, 0, GDT_Unknown, nullptr));
    QVERIFY(dataset);
    OGRSpatialReference srs;
    srs.importFromEPSG(2154);
    OGRLayer *layer = dataset->CreateLayer("Town", &srs, wkbUnknown);
    OGRFieldDefn other("Other", OFTString);
    OGRFieldDefn height("Height", type);
    layer->CreateField(&other);
    layer->CreateField(&height);
    Mover mover;
    for (const auto &[wkt, text] : features) {
        OGRFeature feature(layer->GetLayerDefn());
        if (text != "null")
            feature.SetField(1, text.constData());
        OGRGeometry *shape = nullptr;
        OGRGeometryFactory::createFromWkt(wkt, nullptr, &shape);
        QCOMPARE(shape == nullptr, wkt.isEmpty());
        if (shape)
            shape->accept(&mover);
        feature.SetGeometryDirectly(shape);
        QCOMPARE(layer->CreateFeature(&feature), OGRERR_NONE);
    }
}

/// A document of grey buildings.
inline QByteArray document(const QByteArray &file = "town.gpkg", const QByteArray &more = {},
                           const QByteArray &terrain = {}, const QByteArray &noData = {})
{
    return "<veltaroTexturedBuildings cache=\"none\"><vector filename=\"" + file +
           "\" layer=\"Town\" hfield=\"Height\" wallColor=\"#808080\" " + more +
           " /><elevation source=\"dtm\" filename=\"" + terrain + "\" nodata=\"" + noData +
           "\" /></veltaroTexturedBuildings>";
}

} // namespace footprinttest
