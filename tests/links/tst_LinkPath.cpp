#include "linkpath/Fresnel.h"
#include "linkpath/PathProfiler.h"
#include "support/Cases.h"
#include "support/GeoTiff.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace vlt::linkpath;

namespace {

constexpr int Columns = 400;
constexpr int Rows = 20;
constexpr double PixelM = 30;
constexpr double WestM = 494000; // the middle of the zone, at 500000, is between the ends
constexpr double NorthM = 5400300;
constexpr double PlainM = 100;
constexpr double NoDataM = -9999;
constexpr LinkEnd WestEnd{495000, 5400000, 50.0};
constexpr LinkEnd EastEnd{505000, 5400000, 50.0};

std::shared_ptr<OGRSpatialReference> utm(int zone = 31)
{
    auto srs = std::make_shared<OGRSpatialReference>();
    srs->importFromEPSG(32600 + zone);
    srs->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return srs;
}

/// A plain with a wall across the middle of the links, and one at `otherColumn`.
std::shared_ptr<TerrainRaster> terrain(const QString &path, double wallM, int otherColumn = -1,
                                       double otherM = 0)
{
    const auto heightM = [&](int column, int, int) {
        const bool isOther = otherColumn >= 0 && std::abs(column - otherColumn) <= 2;
        const bool isWall = std::abs(column - Columns / 2) <= 2;
        return isOther ? otherM : isWall ? wallM : PlainM;
    };
    const auto finish = [](GDALDataset &file) { file.GetRasterBand(1)->SetNoDataValue(NoDataM); };
    const GeoTiff image{.columns = Columns,
                        .rows = Rows,
                        .type = GDT_Float32,
                        .placing = {WestM, PixelM, 0, NorthM, 0, -PixelM},
                        .system = "EPSG:32631",
                        .value = heightM,
                        .finish = finish};
    return TerrainRaster::open(makeGeoTiff(path, image)).file;
}

} // namespace

class tst_LinkPath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The expected radii are those of the common formula 17.31 sqrt(n d1 d2/(f d)) with km and GHz.
    void radii_data()
    {
        const Cases<int, double, double, double, double> row(
            {"zone", "frequencyMHz", "d1", "d2", "radius"});
        row("40 km at 6 GHz", 1, 6000, 20000, 20000, 22.35);
        row("near an end", 1, 6000, 1000, 39000, 6.98);
        row("second zone", 2, 6000, 20000, 20000, 31.61);
        row("1 km at 80 GHz", 1, 80000, 500, 500, 0.968);
        row("10 km at 450 MHz", 1, 450, 5000, 5000, 40.81);
    }

    void radii()
    {
        QFETCH(int, zone);
        QFETCH(double, frequencyMHz);
        QFETCH(double, d1);
        QFETCH(double, d2);
        QFETCH(double, radius);
        QVERIFY(std::abs(fresnelRadiusM(zone, frequencyMHz, d1, d2) - radius) < 0.0007 * radius);
    }

    // 10 km at 6 GHz, antennas 150 m above the sea, a wall in the middle. There the first zone has
    // a radius of sqrt(0.04997 * 5000 * 5000/10000) = 11.18 m, and the bulge of the earth is 5000 *
    // 5000/(2 * 4/3 * 6371009) = 1.47 m.
    void statuses_data()
    {
        const Cases<double, double, double, ClearanceStatus, double> row(
            {"wall", "share", "k", "status", "clearance"});
        row("60 % of 11.18 m are free", 140, 0.6, 4.0 / 3, ClearanceStatus::Clear, 8.53);
        row("all of it is not", 140, 1, 4.0 / 3, ClearanceStatus::Marginal, 8.53);
        row("near miss", 147.9, 0.6, 4.0 / 3, ClearanceStatus::Marginal, 0.63);
        row("cut by the curvature alone", 149, 0.6, 4.0 / 3, ClearanceStatus::Obstructed, -0.47);
        row("flat earth", 149, 0.6, 1e6, ClearanceStatus::Marginal, 1);
        row("bent downwards", 147.9, 0.6, 0.6, ClearanceStatus::Obstructed, 2.1 - 3.27);
        row("hill", 180, 0.6, 4.0 / 3, ClearanceStatus::Obstructed, -31.47);
    }

    void statuses()
    {
        QFETCH(double, wall);
        QFETCH(double, share);
        QFETCH(double, k);
        QFETCH(ClearanceStatus, status);
        QFETCH(double, clearance);
        const PathProfiler profiler(terrain(m_dir.filePath(QStringLiteral("terrain.tif")), wall),
                                    utm().get());
        for (const bool swapped : {false, true}) {
            const Clearance checked = profiler.check(swapped ? EastEnd : WestEnd,
                                                     swapped ? WestEnd : EastEnd, 6000, {share, k});
            QVERIFY(checked.status == status);
            QVERIFY(std::abs(checked.worst->clearanceM - clearance) < 0.02);
            QVERIFY(std::abs(checked.worst->radiusM - 11.18) < 0.01);
            QVERIFY(std::abs(checked.worst->distanceM - 5000) < 80); // the wall is 150 m wide
        }
    }

    // Flinders Peak to Buninyong, as published for the geodetic datum of Australia: 54972.271 m in
    // the direction 306 degrees 52' 05.37". On a plane without a system: 3, 4, 5.
    void distances()
    {
        OGRSpatialReference australia;
        australia.importFromEPSG(4283);
        const PathProfiler earth(nullptr, &australia);
        const LinkEnd flinders{
            144 + 25. / 60 + 29.52440 / 3600, -(37 + 57. / 60 + 3.72030 / 3600), {}};
        const LinkEnd buninyong{
            143 + 55. / 60 + 35.38390 / 3600, -(37 + 39. / 60 + 10.15610 / 3600), {}};
        QVERIFY(std::abs(*earth.lengthM(flinders, buninyong) - 54972.271) < 0.001);
        QVERIFY(std::abs(*earth.azimuthDeg(flinders, buninyong) - (306 + 52. / 60 + 5.37 / 3600)) <
                1e-5);

        const PathProfiler plane(nullptr, nullptr);
        QCOMPARE(*plane.lengthM({100, 100, {}}, {97, 104, {}}), 5.0);
        QVERIFY(std::abs(*plane.azimuthDeg({100, 100, {}}, {97, 104, {}}) - 323.13) < 0.01);
    }

    void whatCannotBeChecked()
    {
        const auto checked = [this](double wall, int otherColumn, double otherM, LinkEnd a,
                                    double f) {
            const PathProfiler profiler(
                terrain(m_dir.filePath(QStringLiteral("holes.tif")), wall, otherColumn, otherM),
                utm().get());
            const Clearance clearance = profiler.check(a, EastEnd, f, {});
            return std::pair(clearance.status, clearance.lack);
        };
        const auto unknown = [](Lack lack) { return std::pair(ClearanceStatus::Unknown, lack); };
        QCOMPARE(checked(110, -1, 0, WestEnd, 6000),
                 std::pair(ClearanceStatus::Clear, Lack::Nothing));
        QCOMPARE(checked(110, -1, 0, WestEnd, 0), unknown(Lack::Frequency));
        QCOMPARE(checked(110, -1, 0, {WestEnd.x, WestEnd.y, {}}, 6000), unknown(Lack::HeightA));
        QCOMPARE(checked(110, 100, NoDataM, WestEnd, 6000), unknown(Lack::TerrainOfPath));
        QCOMPARE(checked(160, 100, NoDataM, WestEnd, 6000),
                 std::pair(ClearanceStatus::Obstructed, Lack::Nothing));
        QCOMPARE(checked(110, -1, 0, {WestM - 500, WestEnd.y, 50.0}, 6000),
                 unknown(Lack::TerrainOfPath));
    }

    // 10 km of the grid are 10004 m on the ellipsoid, because the scale is 0.9996 here.
    void profiles()
    {
        const auto file = terrain(m_dir.filePath(QStringLiteral("profile.tif")), 140, 100, NoDataM);
        const auto onTerrain = PathProfiler(file, utm().get()).profile(WestEnd, EastEnd);
        QCOMPARE_LE(std::abs(onTerrain->lengthM - 10004.0), 1.0);
        QVERIFY(onTerrain->hasTerrain && !onTerrain->isWhole);
        QCOMPARE(onTerrain->groundAM, std::optional(PlainM));
        const auto height = [&onTerrain](double distanceM) {
            const auto next = std::find_if(
                onTerrain->points.begin(), onTerrain->points.end(),
                [distanceM](const ProfilePoint &point) { return point.distanceM >= distanceM; });
            return next->terrainM;
        };
        QCOMPARE(height(onTerrain->lengthM / 2), 140.0);
        QCOMPARE(height(4000), PlainM);

        const auto level = PathProfiler(nullptr, utm().get()).profile(WestEnd, EastEnd);
        QVERIFY(!level->hasTerrain && level->isWhole);
        QCOMPARE(level->points.back().distanceM, onTerrain->lengthM);
        QCOMPARE(level->groundBM, std::optional(0.0));
    }

    // Two rows of two pixels, stored as 10, 20, 30 and `last`.
    void heights_data()
    {
        // height: not finite for none; scaling: factor and offset
        using Numbers = QList<double>;
        const Cases<double, Numbers, double, QString, Numbers, int, Numbers> table(
            {"height", "place", "last", "unit", "scaling", "epsg", "placing"});
        const auto row = [&table](const char *name, double height, const Numbers &place,
                                  double last = 40, const char *unit = "m",
                                  const Numbers &scaling = {1, 0}, int epsg = 2154,
                                  const Numbers &placing = {6e5, 100, 0, 7e6, 0, -100}) {
            table(name, height, place, last, unit, scaling, epsg, placing);
        };
        const double none = std::nan("");
        row("middle of all", 25, {600100, 6999900});
        row("middle of a pixel", 30, {600050, 6999850});
        row("at the edge", 20, {600200 + 1e-6, 6999950});
        row("beyond it", none, {600201, 6999950});
        row("feet", 7.62, {600100, 6999900}, 40, "ft");
        row("scaled feet", 34.29, {600100, 6999900}, 40, "ft", {0.5, 100});
        row("from the south", 10, {600050, 6999850}, 40, "m", {1, 0}, 2154,
            {6e5, 100, 0, 6999800, 0, 100});
        row("a quarter turned", 30, {600150, 6999950}, 40, "m", {1, 0}, 2154,
            {6e5, 0, 100, 7e6, -100, 0});
        row("beyond the date line", 25, {-180, -17}, 40, "m", {1, 0}, 4326,
            {179, 1, 0, -16, 0, -1});
        row("a whole turn further", 25, {-3, 47}, 40, "m", {1, 0}, 4326, {356, 1, 0, 48, 0, -1});
        row("a hole", none, {600140, 6999860}, -9999.9);
        row("beside it", 20, {600150, 6999950}, -9999.9);
        row("no height of the earth", none, {600140, 6999860}, -32768);
    }

    void heights()
    {
        QFETCH(int, epsg);
        QFETCH(QList<double>, placing);
        QFETCH(double, last);
        QFETCH(QString, unit);
        QFETCH(QList<double>, scaling);
        QFETCH(QList<double>, place);
        QFETCH(double, height);
        const QByteArray path = m_dir.filePath(QStringLiteral("four.tif")).toLocal8Bit();
        GDALAllRegister();
        GDALDatasetUniquePtr file(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
            path.constData(), 2, 2, 1, GDT_Float32, nullptr));
        OGRSpatialReference srs;
        srs.importFromEPSG(epsg);
        GDALRasterBand &band = *file->GetRasterBand(1);
        double values[] = {10, 20, 30, last};
        file->SetGeoTransform(placing.data());
        file->SetSpatialRef(&srs);
        band.SetNoDataValue(-9999.9);
        band.SetUnitType(unit.toLatin1().constData());
        band.SetScale(scaling[0]);
        band.SetOffset(scaling[1]);
        QCOMPARE(band.RasterIO(GF_Write, 0, 0, 2, 2, values, 2, 2, GDT_Float64, 0, 0, nullptr),
                 CE_None);
        file.reset();

        const auto read = TerrainRaster::open(path.toStdString())->heightM(place[0], place[1]);

        QCOMPARE(read.has_value(), std::isfinite(height));
        QVERIFY(!read || std::abs(*read - height) < 1e-3);
    }

    /// The format presents such a grid as three colour bands before the band of its heights.
    void heightsBehindAPicture()
    {
        const auto plain = terrain(m_dir.filePath(QStringLiteral("plain.tif")), 300);
        const QByteArray grid = m_dir.filePath(QStringLiteral("plain.grd")).toLocal8Bit();
        {
            const GDALDatasetUniquePtr file(
                GDALDataset::Open(m_dir.filePath(QStringLiteral("plain.tif")).toLocal8Bit()));
            QVERIFY(
                GDALDatasetUniquePtr(GetGDALDriverManager()->GetDriverByName("NWT_GRD")->CreateCopy(
                    grid.constData(), file.get(), false, nullptr, nullptr, nullptr)));
        }

        const auto read = TerrainRaster::open(grid.toStdString());

        QVERIFY(read);
        constexpr int Middle = Columns / 2;
        for (const double x : {WestM + 2.5 * PixelM, WestM + Middle * PixelM})
            QVERIFY(std::abs(*read->heightM(x, NorthM - PixelM) -
                             *plain->heightM(x, NorthM - PixelM)) < 0.1);
    }

    void refusedTerrain_data()
    {
        GDALAllRegister();
        const Cases<QString> row({"path"});
        row("no file", m_dir.filePath(QStringLiteral("none.tif")));
        row("virtual file", "/vsimem/a.tif");
        row("address", "http://127.0.0.1/a.tif");
        row("no raster", __FILE__);
        row("folder", m_dir.path());
        const QString wide = m_dir.filePath(QStringLiteral("wide.tif"));
        CPLStringList options;
        options.SetNameValue("SPARSE_OK", "TRUE");
        options.SetNameValue("COMPRESS", "DEFLATE");
        options.SetNameValue("BLOCKYSIZE", "20000");
        GDALDatasetUniquePtr file(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
            wide.toLocal8Bit().constData(), 100000, 20000, 1, GDT_Float32, options.List()));
        double place[6] = {WestM, 1, 0, NorthM, 0, -1};
        file->SetGeoTransform(place);
        file->SetSpatialRef(utm().get());
        row("one block of 8 GB", wide);
    }

    void refusedTerrain()
    {
        QFETCH(QString, path);
        const auto opened = TerrainRaster::open(path.toStdString());
        QVERIFY(!opened);
        QVERIFY(!opened.reason.empty());
    }

private:
    QTemporaryDir m_dir;
};

QTEST_MAIN(tst_LinkPath)
#include "tst_LinkPath.moc"
