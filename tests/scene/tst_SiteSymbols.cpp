#include "ScenePicture.h"

#include "plugins/scene/layers/PylonTiles.h"
#include "support/Cases.h"

#include <QtTest>

#include <cmath>
#include <string>

using namespace vlt::scene;

namespace {

const Color Red(255, 0, 0, 255);

/// A site at the origin, with a red sector to the east, on pylons visible up to 1000 m.
PylonRecords site(double azimuthDeg, double northDeg, AntennaKind kind = AntennaKind::Default)
{
    PylonDesign design;
    design.heightM = 30;
    design.widthM = 2;
    design.sectorRadiusM = 100;
    design.sectorHeightM = 10;
    design.symbolicDistanceM = 1000;
    design.realisticDistanceM = 500;
    Transmitter transmitter;
    transmitter.heightM = 28;
    transmitter.azimuthDeg = azimuthDeg;
    transmitter.color = Red;
    transmitter.kind = kind;
    design.transmitters = {transmitter};
    PylonRecords records;
    records.sites.push_back({"", {}, 0, static_cast<float>(northDeg)});
    records.designs.push_back(design);
    return records;
}

struct Reds
{
    int count = 0;
    double right = 0; ///< mean position, pixels from the middle of the picture
    double up = 0;
};

Reds redsIn(const osg::Image &image)
{
    Reds reds;
    for (int y = 0; y < image.t(); ++y) {
        for (int x = 0; x < image.s(); ++x) {
            const osg::Vec4 color = image.getColor(x, y);
            if (color.r() < 0.8F || color.g() > 0.2F)
                continue;
            ++reds.count;
            reds.right += x - image.s() / 2;
            reds.up += y - image.t() / 2;
        }
    }
    reds.right /= std::max(reds.count, 1);
    reds.up /= std::max(reds.count, 1);
    return reds;
}

} // namespace

class tst_SiteSymbols : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_screen = openContext(1); // the X server restarts when its last client disconnects
    }
    void cleanupTestCase() { m_screen = nullptr; }

    void showSectorsFromAfar_data()
    {
        // The centre of a petal is two thirds of 15 pixels from the mast, and seen from the south
        // 0.6 of it or less.
        const Cases<double, double, QList<double>, double, double> row(
            {"azimuth", "north", "eye", "right", "up"});
        row("east, from above", 90, 0, {0, -1, 5000}, 9, 0);
        row("east, from twice as far", 90, 0, {0, -1, 10000}, 9, 0);
        row("west of true north", 0, -90, {0, -1, 5000}, -9, 0);
        row("south, from above", 180, 0, {0, -1, 5000}, 0, -9);
        row("north, from the south", 0, 0, {0, -4900, 980}, 0, 20.6 + 5.4);
        row("east, from the east", 90, 0, {4900, 0, 980}, 0, 20.6 - 5.4);
    }

    void showSectorsFromAfar()
    {
        QFETCH(double, azimuth);
        QFETCH(double, north);
        QFETCH(QList<double>, eye);
        QFETCH(double, right);
        QFETCH(double, up);
        const auto scene = buildPylonTiles(site(azimuth, north), TileContent::WhenDrawn);

        const auto image = scenePicture(scene, {eye[0], eye[1], eye[2]});

        if (!image)
            QSKIP("no screen");
        const Reds reds = redsIn(*image);
        const std::string found = std::to_string(reds.count) + " pixels at " +
                                  std::to_string(reds.right) + ' ' + std::to_string(reds.up);
        QVERIFY2(reds.count > 20 && reds.count < 130, found.c_str());
        QVERIFY2(std::abs(reds.right - right) < 1.6 && std::abs(reds.up - up) < 1.6, found.c_str());
    }

    void leaveTheRestAsItIs_data()
    {
        const Cases<TileContent, AntennaKind, double> row({"content", "kind", "distance"});
        row("other programs have dots", TileContent::AtOnce, AntennaKind::Default, 5000);
        row("pylons of links have round symbols", TileContent::WhenDrawn, AntennaKind::Dish, 5000);
    }

    void leaveTheRestAsItIs()
    {
        QFETCH(TileContent, content);
        QFETCH(AntennaKind, kind);
        QFETCH(double, distance);

        const auto image =
            scenePicture(buildPylonTiles(site(90, 0, kind), content), {0, -1, distance});

        if (!image)
            QSKIP("no screen");
        QCOMPARE(redsIn(*image).count, 0);
    }

private:
    osg::ref_ptr<osg::GraphicsContext> m_screen;
};

QTEST_MAIN(tst_SiteSymbols)
#include "tst_SiteSymbols.moc"
