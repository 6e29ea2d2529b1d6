#include "landscape/Ground.h"
#include "landscape/Relief.h"
#include "localfiles/ReducedRead.h"
#include "support/Cases.h"
#include "support/GeoTiff.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace vlt::landscape;

namespace {

constexpr double X = 650000; ///< of the frame's origin, EPSG:2154
constexpr double Y = 6860000;
constexpr double LonDeg = 2.3188; ///< of the same point
constexpr double LatDeg = 48.8381;

/// Metres above the sea, a plane that no interpolation bends.
double slopeM(double east, double north)
{
    return 100 + east / 50 + north / 100;
}

/// A raster of any size without a file, which records what is read of it.
class MadeUpRaster : public GDALDataset
{
public:
    MadeUpRaster(int side, int blockWidth, int blockHeight)
    {
        nRasterXSize = side;
        nRasterYSize = side;
        SetBand(1, new Band(*this, blockWidth, blockHeight));
    }

    GIntBig maxCached = 0; ///< bytes in the library's cache
    int blocksRead = 0;

private:
    class Band : public GDALRasterBand
    {
    public:
        Band(MadeUpRaster &raster, int blockWidth, int blockHeight) : m_raster(raster)
        {
            nBlockXSize = blockWidth;
            nBlockYSize = blockHeight;
            eDataType = GDT_Float32;
        }
        CPLErr IReadBlock(int column, int row, void *data) override
        {
            m_raster.maxCached = std::max(m_raster.maxCached, GDALGetCacheUsed64());
            ++m_raster.blocksRead;
            for (int i = 0; i < nBlockXSize * nBlockYSize; ++i)
                static_cast<float *>(data)[i] = float(column * nBlockXSize + i % nBlockXSize) +
                                                float(row * nBlockYSize + i / nBlockXSize) / 2;
            return CE_None;
        }

    private:
        MadeUpRaster &m_raster;
    };
};

} // namespace

class tst_Landscape : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    static FrameOnEarth place()
    {
        FrameOnEarth place;
        place.srs.importFromEPSG(2154);
        place.srs.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        place.frame = std::make_shared<vlt::localframe::LocalFrame>(
            &place.srs, std::vector<vlt::contract::Place>{{X, Y}});
        return place;
    }

    std::unique_ptr<Terrain> open(const QString &name, std::optional<double> noData = {}) const
    {
        return Terrain::open(m_dir.filePath(name).toStdString(), noData, place()).file;
    }

    /// An image, 2 km wide, whose halves have one color each.
    void makeImage(const char *name, int bands, GDALDataType type, std::array<double, 4> west,
                   std::array<double, 4> east, const std::function<void(GDALDataset &)> &finish)
    {
        const bool isInDegrees = QByteArray(name) == "degrees.tif";
        // the same place: the convergence of the meridians is below 1 degree there
        const std::array<double, 6> inDegrees = {LonDeg - 0.0136, 0.000136, 0,
                                                 LatDeg + 0.009,  0,        -0.00009};
        makeGeoTiff(m_dir.filePath(QLatin1String(name)),
                    {200, 200, bands, type,
                     isInDegrees ? inDegrees : northUp(X - 1000, Y - 1000, 10, 200),
                     isInDegrees ? "EPSG:4326" : "EPSG:2154",
                     [=](int column, int, int band) {
                         return (column < 100 ? west : east)[std::size_t(band - 1)];
                     },
                     finish});
    }

private Q_SLOTS:
    void initTestCase()
    {
        const auto make = [this](const char *name, double pixelM, int side, auto height,
                                 auto finish) {
            makeGeoTiff(m_dir.filePath(QLatin1String(name)),
                        {side, side, 1, GDT_Float32,
                         northUp(X - pixelM * side / 2, Y - pixelM * side / 2, pixelM, side),
                         "EPSG:2154",
                         [=](int column, int row, int) {
                             return height((column + 0.5 - side / 2.0) * pixelM,
                                           (side / 2.0 - row - 0.5) * pixelM);
                         },
                         finish});
        };
        const auto asItIs = [](GDALDataset &) {};
        make("slope.tif", 20, 1000, slopeM, asItIs);
        make("small.tif", 20, 100, slopeM, asItIs);
        make("large.tif", 5, 2600, slopeM, asItIs);
        make(
            "feet.tif", 20, 1000,
            [](double east, double north) { return slopeM(east, north) / 0.3048; },
            [](GDALDataset &made) { made.GetRasterBand(1)->SetUnitType("ft"); });
        make(
            "lake.tif", 20, 1000,
            [](double east, double north) {
                return std::hypot(east, north) < 1000 ? -9999 : slopeM(east, north);
            },
            [](GDALDataset &made) { made.GetRasterBand(1)->SetNoDataValue(-9999); });
        const std::array<double, 4> brown = {200, 100, 50, 255};
        const std::array<double, 4> blue = {20, 40, 60, 255};
        for (const char *name : {"rgb.tif", "degrees.tif"})
            makeImage(name, 3, GDT_Byte, brown, blue, asItIs);
        makeImage("rgba.tif", 4, GDT_Byte, brown, {20, 40, 60, 0}, [](GDALDataset &made) {
            made.GetRasterBand(4)->SetColorInterpretation(GCI_AlphaBand);
        });
        makeImage("nodata.tif", 3, GDT_Byte, {0, 100, 50}, {0, 0, 0},
                  [](GDALDataset &made) { made.GetRasterBand(1)->SetNoDataValue(0); });
        makeImage("palette.tif", 1, GDT_Byte, {1}, {2}, [](GDALDataset &made) {
            GDALColorTable palette;
            const GDALColorEntry one{10, 20, 30, 255};
            const GDALColorEntry two{90, 80, 70, 255};
            palette.SetColorEntry(1, &one);
            palette.SetColorEntry(2, &two);
            made.GetRasterBand(1)->SetColorTable(&palette);
        });
        makeImage("gray16.tif", 1, GDT_UInt16, {3000}, {500}, asItIs);
        // the same, but the file does not name the value
        make(
            "marked.tif", 20, 1000,
            [](double east, double north) {
                return std::hypot(east, north) < 1000 ? -1 : slopeM(east, north);
            },
            asItIs);
    }

    void readsHeights_data()
    {
        // known: share of the heights that are known
        const Cases<QString, double, double, int, double> row(
            {"file", "noData", "halfM", "cells", "known"});
        row("finer than the terrain", u"slope.tif"_s, NAN, 500, 200, 1);
        row("its resolution", u"slope.tif"_s, NAN, 2000, 200, 1);
        row("coarser", u"slope.tif"_s, NAN, 9000, 60, 1);
        row("of a large file", u"large.tif"_s, NAN, 6000, 1024, 1);
        row("beyond its edges", u"small.tif"_s, NAN, 2000, 100, 0.25);
        row("feet", u"feet.tif"_s, NAN, 2000, 200, 1);
        // 4 km wide, without a disc of 1 km: 1 - pi / 16
        row("without data", u"lake.tif"_s, NAN, 2000, 200, 0.804);
        row("without data, coarser", u"lake.tif"_s, NAN, 2000, 50, 0.804);
        row("chosen value of no data", u"marked.tif"_s, -1, 2000, 50, 0.804);
    }

    void readsHeights()
    {
        QFETCH(QString, file);
        QFETCH(double, noData);
        QFETCH(double, known);
        const auto terrain = open(file, std::isnan(noData) ? std::nullopt : std::optional(noData));
        QVERIFY(terrain);
        QFETCH(double, halfM);
        QFETCH(int, cells);

        const Lattice lattice = terrain->heights({{300, 200}, halfM}, cells);
        const Lattice middle = terrain->heights({{0, 0}, halfM}, cells);

        int found = 0;
        for (int i = 0; i < int(middle.heightM.size()); ++i) {
            const float height = middle.heightM[std::size_t(i)];
            const Place at = middle.at(i % middle.points(), i / middle.points());
            if (std::isnan(height) || std::hypot(at.x, at.y) > 0.95 * halfM)
                continue;
            // an average may be half a pixel of the excerpt beside its centre
            const double tolerance = 0.02 + lattice.stepM() / 50;
            QVERIFY2(std::abs(height - slopeM(at.x, at.y)) < tolerance,
                     QByteArray::number(height - slopeM(at.x, at.y)));
        }
        for (const float height : middle.heightM)
            found += std::isnan(height) ? 0 : 1;
        QVERIFY2(std::abs(double(found) / double(middle.heightM.size()) - known) < 0.03,
                 QByteArray::number(double(found) / double(middle.heightM.size())));
        if (known == 1)
            QVERIFY(std::abs(lattice.heightM[lattice.index(cells / 2, cells / 2)] -
                             slopeM(300, 200)) < 1);
    }

    void readsInBoundedMemory_data()
    {
        const Cases<int, int> row({"blockWidth", "blockHeight"});
        row("rows", 6000, 1);
        row("strips", 6000, 64);
        row("tiles", 256, 256);
    }

    void readsInBoundedMemory()
    {
        QFETCH(int, blockWidth);
        QFETCH(int, blockHeight);
        constexpr int Side = 6000; // 144 MB
        MadeUpRaster raster(Side, blockWidth, blockHeight);
        std::vector<float> values;
        QVERIFY(vlt::localfiles::readReduced(raster, {1}, {0, 0, Side, Side, 500, 500},
                                             GRIORA_Average, values));

        const GIntBig limit = 50'000'000;
        QVERIFY2(raster.maxCached < limit, QByteArray::number(raster.maxCached));
        QVERIFY(GDALGetCacheUsed64() < 1'000'000);
        const int blocks = int(std::ceil(double(Side) / blockWidth)) * (Side / blockHeight);
        QVERIFY2(raster.blocksRead < 1.6 * blocks, QByteArray::number(raster.blocksRead));
        for (const int at : {0, 77, 250, 499}) { // a pixel of 12 x 12, counted from its middle
            const double expected = (at * 12 + 5.5) + (at * 12 + 5.5) / 2;
            QVERIFY(std::abs(values[std::size_t(at) * 500 + std::size_t(at)] - expected) < 0.1);
        }
    }

    void makesLevelsWithoutGaps()
    {
        // the finest level is small, so that the outer ones go beyond the terrain
        const auto terrain = open(u"small.tif"_s);
        const std::vector<GroundLevel> levels = makeGround({terrain.get()}, {{100, 0}, 300});

        QCOMPARE(levels.size(), std::size_t(Levels));
        for (std::size_t i = 0; i < levels.size(); ++i) {
            const Lattice &inner = levels[i].mesh;
            QCOMPARE(levels[i].picture.size(), std::size_t(PicturePx) * PicturePx * 3);
            QVERIFY(std::none_of(inner.heightM.begin(), inner.heightM.end(),
                                 [](float height) { return std::isnan(height); }));
            if (i + 1 == levels.size())
                continue;
            const Lattice &outer = levels[i + 1].mesh;
            for (int k = 0; k <= MeshCells; k += MeshCells / HoleCells) {
                const int at = (MeshCells - HoleCells) / 2 + k / 3;
                QCOMPARE(inner.heightM[inner.index(k, 0)], outer.heightM[outer.index(at, 40)]);
                QCOMPARE(inner.heightM[inner.index(MeshCells, k)],
                         outer.heightM[outer.index(80, at)]);
            }
            const float middle =
                (inner.heightM[inner.index(3, 0)] * 2 + inner.heightM[inner.index(6, 0)]) / 3;
            QVERIFY(std::abs(inner.heightM[inner.index(4, 0)] - middle) < 1e-3);
        }
        // far away, the air hides the ground
        const std::vector<unsigned char> &far = levels.back().picture;
        for (std::size_t i = 0; i < 3; ++i)
            QCOMPARE(far[i], static_cast<unsigned char>(std::lround(Haze[i])));
    }

    void makesARoughGround()
    {
        const auto terrain = open(u"large.tif"_s);
        const auto levels = makeGround({terrain.get()}, {{0, 0}, 2500}, Detail::Rough);
        QCOMPARE(levels.size(), std::size_t(Levels));
        QCOMPARE(levels[2].picture.size(), std::size_t(RoughPicturePx) * RoughPicturePx * 3);
        for (const Place &at : {Place{0, 0}, Place{900, -1200}, Place{-1500, 300}}) {
            const Lattice &mesh = levels[0].mesh;
            const auto cell = [&](double metres) {
                return int(std::lround((metres + mesh.square.halfM) / mesh.stepM()));
            };
            const float height = mesh.heightM[mesh.index(cell(at.x), cell(at.y))];
            QVERIFY2(std::abs(height - slopeM(at.x, at.y)) < 4, QByteArray::number(height));
        }
    }

    void makesNoGroundWithoutHeights()
    {
        const auto terrain = open(u"small.tif"_s);
        QVERIFY(makeGround({terrain.get()}, {{1e6, 0}, 300}).empty());
        QVERIFY(!open(u"none.tif"_s));
    }

    void readsImages_data()
    {
        // color: of the western half, then of the eastern one, red green blue opacity
        const Cases<QString, QString, QString> row({"file", "west", "east"});
        row("colors", u"rgb.tif"_s, u"200 100 50 255"_s, u"20 40 60 255"_s);
        row("opacity", u"rgba.tif"_s, u"200 100 50 255"_s, u"0 0 0 0"_s);
        row("no data in all bands", u"nodata.tif"_s, u"0 100 50 255"_s, u"0 0 0 0"_s);
        row("palette", u"palette.tif"_s, u"10 20 30 255"_s, u"90 80 70 255"_s);
        row("gray, 16 bits", u"gray16.tif"_s, u"255 255 255 255"_s, u"0 0 0 255"_s);
        row("its own system", u"degrees.tif"_s, u"200 100 50 255"_s, u"20 40 60 255"_s);
    }

    void readsImages()
    {
        QFETCH(QString, file);
        const auto image = Imagery::open(m_dir.filePath(file).toStdString(), place());
        QVERIFY2(image.file, image.reason.c_str());
        constexpr int Cells = 64;
        const std::vector<unsigned char> colors = image->colors({{0, 0}, 1500}, Cells);
        const auto at = [&](int column, int line) {
            QStringList parts;
            for (std::size_t i = 0; i < 4; ++i)
                parts.append(QString::number(
                    colors[4 * (std::size_t(line) * Cells + std::size_t(column)) + i]));
            return parts[3] == u"0"_s ? u"0 0 0 0"_s : parts.join(u' ');
        };
        QTEST(at(20, 32), "west");
        QTEST(at(44, 32), "east");
        QCOMPARE(at(2, 32), u"0 0 0 0"_s); // the file is 2 km wide
        QCOMPARE(at(32, 61), u"0 0 0 0"_s);
    }

    void laysImagesOverTheGround()
    {
        const auto image = Imagery::open(m_dir.filePath(u"rgb.tif"_s).toStdString(), place());
        const auto terrain = open(u"small.tif"_s); // as wide as the image
        for (Terrain *under : {static_cast<Terrain *>(nullptr), terrain.get()}) {
            const auto levels = makeGround({under, image.file.get(), 7}, {{0, 0}, 2000});
            QCOMPARE(levels.size(), std::size_t(Levels));
            QVERIFY(levels[0].hasImage && levels[0].hasHeights == (under != nullptr));
            const auto red = [&](int column) {
                return int(levels[0].picture[3 * (std::size_t(PicturePx / 2) * PicturePx +
                                                  std::size_t(column))]);
            };
            QVERIFY(red(PicturePx * 3 / 8) > red(PicturePx * 5 / 8) + 90);
            QVERIFY(red(PicturePx / 8) > 190); // pale ground beside the image
            if (!under)
                QCOMPARE(levels[0].mesh.heightM.front(), 7.0F);
        }
        QVERIFY(!makeGround({nullptr, image.file.get()}, {{0, 0}, 50})[0].hasHeights);
        QVERIFY(makeGround({nullptr, image.file.get()}, {{1e6, 0}, 50}).empty());
    }

    void refusesOtherFiles()
    {
        QCOMPARE(Imagery::open(m_dir.filePath(u"none.tif"_s).toStdString(), place()).reason,
                 std::string("there is no such local file"));
    }

    void isBrighterTowardsTheSun()
    {
        // a roof whose ridge goes from south to north; the sun is in the west
        Lattice fine{{{0, 0}, 100}, 20, 0, {}};
        for (int i = 0; i < fine.points() * fine.points(); ++i)
            fine.heightM.push_back(50 - std::abs(float(fine.at(i % fine.points(), 0).x)) / 4);
        const auto picture = reliefPicture(fine, fine, {{0, 100}, 1e6});
        const auto green = [&](int column) {
            return int(picture[std::size_t(10 * fine.cells + column) * 3 + 1]);
        };

        QVERIFY(green(4) > green(15) + 40);
        QVERIFY(green(15) > 60); // no slope is black
    }
};

QTEST_GUILESS_MAIN(tst_Landscape)
#include "tst_Landscape.moc"
