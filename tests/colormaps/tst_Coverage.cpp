#include "contract/NoDataText.h"
#include "coverage/CoverageRaster.h"
#include "coverage/LocalRaster.h"
#include "support/Cases.h"
#include "support/Files.h"
#include "support/GeoTiff.h"

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <numeric>

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

using namespace Qt::StringLiterals;
using namespace vlt::coverage;

namespace {

using Rings = std::vector<std::vector<Place>>;
using Placing = std::array<double, 6>;

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double FileNoData = -9999;
constexpr double TypedNoData = -77;

std::optional<double> valueUnder(CoverageRaster &raster, const Rings &rings, Reduction reduction)
{
    const std::vector<Ring> spans(rings.begin(), rings.end());
    return raster.valueUnder(spans, reduction);
}

Rings ringsOf(const OGRPolygon &polygon)
{
    Rings rings;
    for (const OGRLinearRing *ring : polygon) {
        rings.emplace_back();
        for (const OGRPoint &point : *ring)
            rings.back().push_back({point.getX(), point.getY()});
    }
    return rings;
}

OGRGeometryUniquePtr polygonOf(const QByteArray &wkt)
{
    OGRGeometry *geometry = nullptr;
    OGRGeometryFactory::createFromWkt(wkt.constData(), nullptr, &geometry);
    return OGRGeometryUniquePtr(geometry);
}

/// Reduces values directly by the definition.
double reduced(const std::vector<double> &values, Reduction reduction)
{
    std::map<double, int> counts;
    for (const double value : values)
        ++counts[value];
    if (counts.empty())
        return NaN;
    switch (reduction) {
    case Reduction::Minimum:
        return counts.begin()->first;
    case Reduction::Maximum:
        return counts.rbegin()->first;
    case Reduction::Average:
        return std::accumulate(values.begin(), values.end(), 0.0) / double(values.size());
    case Reduction::MostRepresented:
        break;
    }
    auto most = counts.begin();
    for (auto one = counts.begin(); one != counts.end(); ++one)
        most = one->second > most->second ? one : most;
    return most->first;
}

} // namespace

class tst_Coverage : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    /// Writes a GeoTIFF with the values, row by row.
    std::string fileOf(const char *name, int columns, const std::vector<double> &values,
                       const Placing &placing, int bands = 1, const char *append = "NO")
    {
        const char *options[] = {"TILED=YES", "BLOCKXSIZE=64", "BLOCKYSIZE=64",
                                 CSLTestBoolean(append) ? "APPEND_SUBDATASET=YES" : nullptr,
                                 nullptr};
        const int rows = int(values.size()) / columns;
        const auto value = [&](int column, int row, int band) {
            return values[std::size_t(row) * std::size_t(columns) + std::size_t(column)] + band - 1;
        };
        const auto finish = [](GDALDataset &made) {
            made.GetRasterBand(1)->SetNoDataValue(FileNoData);
        };
        return makeGeoTiff(
            m_dir.filePath(QLatin1String(name)),
            {columns, rows, bands, GDT_Float32, placing, "", value, finish, options});
    }

private Q_SLOTS:
    void initTestCase() { GDALAllRegister(); }

    void agreesWithGeometryOverTheCity_data()
    {
        const Cases<Placing, int> row({"placing", "mode"});
        const double turn = 0.4;
        const Placing straight{221450, 3, 0, 6758660, 0, -3};
        const Placing rotated{221250,  3 * std::cos(turn), 3 * std::sin(turn),
                              6758500, 3 * std::sin(turn), -3 * std::cos(turn)};
        for (const int mode : {0, 1, 2, 3}) {
            row(qPrintable(u"straight %1"_s.arg(mode)), straight, mode);
            row(qPrintable(u"rotated %1"_s.arg(mode)), rotated, mode);
        }
    }

    /// Compares with the geometry library's point-in-polygon test of every pixel.
    void agreesWithGeometryOverTheCity()
    {
        QFETCH(const Placing, placing);
        QFETCH(const int, mode);
        const auto reduction = static_cast<Reduction>(mode);
        constexpr int Columns = 420;
        constexpr int Rows = 400;
        std::vector<double> values;
        for (int i = 0; i < Columns * Rows; ++i) {
            const int noise = (i * 7919) % 17;
            values.push_back(noise == 0   ? FileNoData
                             : noise == 1 ? TypedNoData
                                          : std::round(-60 - i % Columns / 40.0 - noise / 4.0));
        }
        const auto raster =
            CoverageRaster::open(fileOf("town.tif", Columns, values, placing), "-77");
        QVERIFY(raster);
        const GDALDatasetUniquePtr city(GDALDataset::Open(VLT_TOWN, GDAL_OF_VECTOR));
        QVERIFY(city);

        int compared = 0;
        int pixels = 0;
        for (const OGRFeatureUniquePtr &feature : *city->GetLayer(0)) {
            const OGRGeometry *shape = feature->GetGeometryRef();
            if (wkbFlatten(shape->getGeometryType()) != wkbPolygon || compared == 50)
                continue;
            OGREnvelope envelope;
            shape->getEnvelope(&envelope);
            std::vector<double> within;
            for (int i = 0; i < Columns * Rows; ++i) {
                const int row = i / Columns;
                const double c = i % Columns + 0.5;
                const double r = row + 0.5;
                const double x = placing[0] + c * placing[1] + r * placing[2];
                const double y = placing[3] + c * placing[4] + r * placing[5];
                if (x < envelope.MinX || x > envelope.MaxX || y < envelope.MinY ||
                    y > envelope.MaxY)
                    continue;
                const OGRPoint centre(x, y);
                const double value = values[std::size_t(i)];
                if (shape->Contains(&centre) && value != FileNoData && value != TypedNoData)
                    within.push_back(value);
            }
            if (within.empty())
                continue;
            const Rings rings = ringsOf(*shape->toPolygon());
            const ValuesUnder found =
                raster->under(std::vector<Ring>(rings.begin(), rings.end()), reduction, true);
            QVERIFY(found.value);
            QCOMPARE(*found.value, reduced(within, reduction));
            QCOMPARE(found.pixels, within.size());
            std::vector<double> counted;
            for (const ValueCount &one : found.counts)
                counted.insert(counted.end(), one.pixels, one.value);
            std::sort(within.begin(), within.end());
            QCOMPARE(counted, within);
            ++compared;
            pixels += int(within.size());
        }
        QCOMPARE(compared, 50);
        QVERIFY(pixels > 500);
    }

    void takesTheRightPixels_data()
    {
        const Cases<QByteArray, int, double> row({"wkt", "mode", "expected"});
        // 10 20 30 40
        // 50 60 no 80   pixels of 10 by 10, from (0, 30) to (40, 0)
        // 90 60 77 30
        row("smaller than a pixel: that under its middle", "POLYGON((11 21,13 21,13 23,11 23))", 0,
            20);
        row("the middle of an L, which is not that of its box",
            "POLYGON((16 11,24 11,24 12,17 12,17 14,16 14))", 0, 60);
        row("outside", "POLYGON((-20 0,-10 0,-10 10))", 0, NaN);
        row("partly outside", "POLYGON((-9 1,9 1,9 99,-9 99))", 2, 50);
        row("only what has no value", "POLYGON((20 0,30 0,30 20,20 20))", 1, NaN);
        row("no-data left out of the average: (60 + 80) / 2",
            "POLYGON((10 10,40 10,40 20,10 20,10 10))", 2, 70);
        row("hole", "POLYGON((0 0,20 0,20 30,0 30),(1 11,19 11,19 19,1 19))", 2, 45);
        row("most represented", "POLYGON((0 0,20 0,20 30,0 30))", 3, 60);
        row("all: two values twice, the lower one", "POLYGON((-1 -1,99 -1,99 99,-1 99))", 3, 30);
        row("a place that is none", "POLYGON((0 0,40 0,1e400 30,0 30))", 0, NaN);
        row("a place out of reach", "POLYGON((-1e308 0,1e308 1,40 30,0 30))", 0, NaN);
    }

    void takesTheRightPixels()
    {
        QFETCH(const QByteArray, wkt);
        QFETCH(const int, mode);
        const std::string path =
            fileOf("few.tif", 4, {10, 20, 30, 40, 50, 60, FileNoData, 80, 90, 60, TypedNoData, 30},
                   {0, 10, 0, 30, 0, -10});
        const auto raster = CoverageRaster::open(path, " -77 ");
        QVERIFY(raster);
        const OGRGeometryUniquePtr shape = polygonOf(wkt);
        QVERIFY(shape);

        QTEST(valueUnder(*raster.file, ringsOf(*shape->toPolygon()), static_cast<Reduction>(mode))
                  .value_or(NaN),
              "expected");
    }

    void scalesValuesAndFindsTheirRange()
    {
        const double endless = std::numeric_limits<double>::infinity();
        const std::string path =
            fileOf("scaled.tif", 3, {1, NaN, 7, FileNoData, endless, -77}, {0, 1, 0, 2, 0, -1});
        {
            const GDALDatasetUniquePtr file(
                GDALDataset::Open(path.c_str(), GDAL_OF_RASTER | GDAL_OF_UPDATE));
            file->GetRasterBand(1)->SetScale(0.5);
            file->GetRasterBand(1)->SetOffset(-100);
        }
        const auto plain = CoverageRaster::open(path, "");
        const auto typed = CoverageRaster::open(path, "-77");

        QCOMPARE(plain->range()->minimum, -138.5);
        QCOMPARE(typed->range()->minimum, -99.5);
        QCOMPARE(typed->range()->maximum, -96.5);
        QCOMPARE(valueUnder(*typed.file, {{{0, 0}, {3, 0}, {3, 2}, {0, 2}}}, Reduction::Average),
                 -98.);
        QVERIFY(!typed->range([](double) { return false; }));
        {
            const GDALDatasetUniquePtr file(
                GDALDataset::Open(path.c_str(), GDAL_OF_RASTER | GDAL_OF_UPDATE));
            std::array<std::uint8_t, 6> isSeen{1, 1, 0, 1, 1, 1};
            QCOMPARE(file->CreateMaskBand(GMF_PER_DATASET), CE_None);
            QCOMPARE(file->GetRasterBand(1)->GetMaskBand()->RasterIO(
                         GF_Write, 0, 0, 3, 2, isSeen.data(), 3, 2, GDT_Byte, 0, 0, nullptr),
                     CE_None);
        }
        QCOMPARE(CoverageRaster::open(path, "-77")->range()->maximum, -99.5);
        QVERIFY(!CoverageRaster::open(fileOf("none.tif", 1, {FileNoData}, {}), "")->range());
    }

    void distinguishesClassesFromNumbers_data()
    {
        using Finish = std::function<void(GDALDataset &)>;
        const Cases<int, Finish, int, QByteArray> row({"type", "finish", "kind", "names"});
        const auto named = [](GDALDataset &made) {
            const char *const names[] = {"", "none", "forest", nullptr};
            made.GetRasterBand(1)->SetCategoryNames(const_cast<char **>(names));
        };
        row("reals", GDT_Float32, {}, int(ValueKind::Numbers), "");
        row("integers", GDT_Int16, {}, int(ValueKind::Integers), "");
        row(
            "stored levels", GDT_Int16,
            [](GDALDataset &made) { made.GetRasterBand(1)->SetScale(0.1); },
            int(ValueKind::Numbers), "");
        row(
            "colours", GDT_Byte,
            [](GDALDataset &made) {
                GDALColorTable colors;
                colors.SetColorEntry(1, std::array<GDALColorEntry, 1>{{{255, 0, 0, 255}}}.data());
                made.GetRasterBand(1)->SetColorTable(&colors);
            },
            int(ValueKind::Classes), "");
        row("names", GDT_Byte, named, int(ValueKind::Classes), "none|forest");
    }

    void distinguishesClassesFromNumbers()
    {
        QFETCH(int, type);
        QFETCH(std::function<void(GDALDataset &)>, finish);
        const std::string path = makeGeoTiff(
            m_dir.filePath(QString::fromUtf8(QTest::currentDataTag()) + u".tif"_s),
            {2, 2, 1, static_cast<GDALDataType>(type), northUp(0, 0, 1, 2), "", {}, finish});

        const auto raster = CoverageRaster::open(path, "");

        QVERIFY2(raster, raster.reason.c_str());
        QTEST(int(raster->valueKind()), "kind");
        QByteArrayList names;
        for (const double value : {-1.0, 0.0, 1.0, 1.5, 2.0, 3.0}) {
            if (const std::string name = raster->className(value); !name.empty())
                names << QByteArray::fromStdString(name);
        }
        QTEST(names.join('|'), "names");
    }

    void findsTheRangeOfEachType_data()
    {
        // noData: the values of the file and of the user
        const Cases<int, double, double, double, double> row(
            {"type", "fileNoData", "typedNoData", "minimum", "maximum"});
        row("bytes", GDT_Byte, 0, 255, 1, 50);
        row("no-data that bytes do not have", GDT_Byte, -1, 7.5, 0, 255);
        row("small integers", GDT_Int16, 0, 255, 1, 50);
        row("small natural numbers", GDT_UInt16, 0, 50, 1, 255);
        row("integers", GDT_Int32, 255, 50, 0, 49);
        row("natural numbers", GDT_UInt32, 1e30, 0, 1, 255);
        row("single precision", GDT_Float32, 255, 0, 1, 50);
        row("double precision", GDT_Float64, 255, 1e-300, 0, 50);
    }

    void findsTheRangeOfEachType()
    {
        QFETCH(int, type);
        QFETCH(double, fileNoData);
        QFETCH(double, typedNoData);
        // 0 .. 50 and 255 in 4 rows of 13
        const auto value = [](int column, int row, int) {
            const int number = 13 * row + column;
            return number > 50 ? 255 : number;
        };
        const auto finish = [fileNoData](GDALDataset &made) {
            made.GetRasterBand(1)->SetNoDataValue(fileNoData);
        };
        const std::string path =
            makeGeoTiff(m_dir.filePath(u"type.tif"_s), {13, 4, 1, static_cast<GDALDataType>(type),
                                                        northUp(0, 0, 1, 4), "", value, finish});

        const auto raster =
            CoverageRaster::open(path, QByteArray::number(typedNoData).toStdString());

        const auto range = raster ? raster->range() : std::nullopt;
        QTEST(range ? range->minimum : NaN, "minimum");
        QTEST(range ? range->maximum : NaN, "maximum");
    }

    /// The format presents such a grid as three colour bands before the band of its values.
    void readsValuesBehindAPicture()
    {
        const std::string path = fileOf("level.tif", 2, {-120, -90, -70, -60}, {0, 1, 0, 2, 0, -1});
        const std::string grid = m_dir.filePath(u"level.grd"_s).toStdString();
        {
            const GDALDatasetUniquePtr plain(GDALDataset::Open(path.c_str()));
            QVERIFY(
                GDALDatasetUniquePtr(GetGDALDriverManager()->GetDriverByName("NWT_GRD")->CreateCopy(
                    grid.c_str(), plain.get(), false, nullptr, nullptr, nullptr)));
        }

        const auto raster = CoverageRaster::open(grid, "");

        QVERIFY(raster && raster->range());
        QVERIFY(std::abs(raster->range()->minimum + 120) < 0.1); // stored in steps
        QVERIFY(std::abs(raster->range()->maximum + 60) < 0.1);
        const auto picture = openLocalRaster(grid, RasterUse::Picture);
        QCOMPARE(picture->GetRasterBand(1)->GetColorInterpretation(), GCI_RedBand);
    }

    /// By rank among the integers from -100 to 99.
    void findsPercentiles_data()
    {
        const Cases<double, double, double, double> row({"low", "high", "lower", "upper"});
        row("ends", 0, 100, -100, 99);
        row("two per cent of 200", 2, 98, -97, 95);
        row("between two ranks", 0.6, 50, -99, -1);
    }

    void findsPercentiles()
    {
        QFETCH(double, low);
        QFETCH(double, high);
        std::vector<double> values(200);
        std::iota(values.begin(), values.end(), -100);
        std::reverse(values.begin() + 20, values.end());
        values.insert(values.begin() + 7, 10, FileNoData);

        const auto found =
            CoverageRaster::open(fileOf("many.tif", 7, values, {}), "")->percentiles(low, high);

        QVERIFY(found);
        QTEST(found->minimum, "lower");
        QTEST(found->maximum, "upper");
        QVERIFY(!CoverageRaster::open(fileOf("none.tif", 1, {FileNoData}, {}), "")
                     ->percentiles(low, high));
    }

    void readsTheChosenBand()
    {
        const std::string path = fileOf("three.tif", 1, {5}, {0, 1, 0, 1, 0, -1}, 3);
        for (const int band : {1, 2, 3})
            QCOMPARE(CoverageRaster::open(path, "", band)->range()->minimum, 4. + band);
    }

    void opensPartsThatAFileLists()
    {
        fileOf("parts.tif", 1, {1}, {0, 1, 0, 1, 0, -1});
        fileOf("parts.tif", 1, {2}, {0, 1, 0, 1, 0, -1}, 1, "YES");
        {
            const GDALDatasetUniquePtr source(GDALDataset::FromHandle(
                GDALOpen(fileOf("two.tif", 1, {2}, {}, 2).c_str(), GA_ReadOnly)));
            const GDALDatasetUniquePtr copy(
                GetGDALDriverManager()->GetDriverByName("netCDF")->CreateCopy(
                    m_dir.filePath(u"parts.nc"_s).toLocal8Bit().constData(), source.get(), FALSE,
                    nullptr, nullptr, nullptr));
        }
        const auto names = {"GTIFF_DIR:2:parts.tif", "GTIFF_DIR:2:./parts.tif",
                            "NETCDF:\"parts.nc\":Band1"};
        for (const std::string name : names) {
            const std::string located =
                locateRaster(name, {"/nowhere", m_dir.path().toStdString()});
            const auto raster = CoverageRaster::open(located, "");
            QVERIFY2(raster, located.c_str());
            QCOMPARE(raster->range()->minimum, 2.);
        }
    }

    /// Even if a file lists such a name: some formats then use the network themselves.
    void opensNoPartElsewhere()
    {
        const std::string path = fileOf("liar.tif", 1, {1}, {0, 1, 0, 1, 0, -1});
        const std::string named = "NETCDF:\"http://localhost:9/a.nc\":" + path;
        GDALDatasetUniquePtr(GDALDataset::Open(path.c_str(), GDAL_OF_RASTER | GDAL_OF_UPDATE))
            ->SetMetadataItem("SUBDATASET_1_NAME", named.c_str(), "SUBDATASETS");
        const auto opened = CoverageRaster::open(named, "");
        QVERIFY(!opened);
        QCOMPARE(opened.reason, "not in a file of this computer");
        for (const std::string &name :
             {std::string("NETCDF:http://localhost:9/a.nc:z"), "NETCDF:http:/" + path + ":z",
              std::string("GTIFF_DIR:1:/vsicurl/http://localhost:9/a.tif")})
            QVERIFY2(!openListedPart(name), name.c_str());
        QVERIFY(openListedPart("GTIFF_DIR:1:" + path));
    }

    void readsTypedValuesOfNoData()
    {
        using vlt::contract::noDataNumber;
        for (const char *text : {"-99.5", "-99,5", " -99,5\t", "-995e-1"})
            QCOMPARE(noDataNumber(text), std::optional(-99.5));
        QCOMPARE(noDataNumber("+7"), std::optional(7.));
        for (const char *text : {"", " ", "-", "ten", "1.5 m", "1,000.5", "1 000", "0x10"})
            QVERIFY2(!noDataNumber(text), text);
        QVERIFY(vlt::contract::isNoDataText(" ") && !vlt::contract::isNoDataText("ten"));
    }

    void refusesOthers_data()
    {
        const Cases<QString, QString, QString> row({"name", "noData", "reason"});
        row("picture", "picture.ppm", {}, "it does not have exactly one band");
        row("no such band", "one.tif", {}, "it has no band 2");
        row("no number", "one.tif", "1.5 m", "the no-data value \"1.5 m\" is not a number");
        row("absent", "absent.tif", {}, "there is no such local file");
        row("more marks of paths than can be tried", u":/"_s.repeated(50000), {},
            "there is no such local file");
        row("part that is none", "GTIFF_DIR:1:one.tif", {}, "there is no such local file");
        row("memory", "/vsimem/one.tif", {}, "there is no such local file");
        row("network", "/vsicurl/http://localhost/one.tif", {}, "there is no such local file");
        row("source elsewhere", "source.vrt", {}, "virtual rasters are not opened");
    }

    void refusesOthers()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, noData);
        QFETCH(const QString, reason);
        const std::string path = fileOf("one.tif", 1, {1}, {});
        writeFile(m_dir.filePath(u"picture.ppm"_s), "P6\n1 1\n255\nabc");
        writeFile(m_dir.filePath(u"source.vrt"_s), "<VRTDataset/>");
        GDALDriver *tiff = GetGDALDriverManager()->GetDriverByName("GTiff");
        QVERIFY(tiff->CopyFiles("/vsimem/one.tif", path.c_str()) == CE_None);

        const std::string located = locateRaster(name.toStdString(), {m_dir.path().toStdString()});
        const bool isOther = reason.endsWith(u"band 2"_s);
        const auto opened = CoverageRaster::open(located, noData.toStdString(), isOther ? 2 : 1);
        QVERIFY(!opened);
        QVERIFY2(QString::fromStdString(opened.reason).contains(reason), opened.reason.c_str());
    }
};

QTEST_GUILESS_MAIN(tst_Coverage)
#include "tst_Coverage.moc"
