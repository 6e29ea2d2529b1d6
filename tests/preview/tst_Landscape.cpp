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

    std::unique_ptr<Terrain> open(const QString &name, std::optional<double> noData = {}) const
    {
        FrameOnEarth place;
        place.srs.importFromEPSG(2154);
        place.srs.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        place.frame = std::make_shared<vlt::localframe::LocalFrame>(
            &place.srs, std::vector<vlt::contract::Place>{{X, Y}});
        return Terrain::open(m_dir.filePath(name).toStdString(), noData, place).file;
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
        const std::vector<GroundLevel> levels = makeGround(*terrain, {{100, 0}, 300});

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

    void makesNoGroundWithoutHeights()
    {
        const auto terrain = open(u"small.tif"_s);
        QVERIFY(makeGround(*terrain, {{1e6, 0}, 300}).empty());
        QVERIFY(!open(u"none.tif"_s));
    }

    void isBrighterTowardsTheSun()
    {
        // a roof whose ridge goes from south to north; the sun is in the west
        Lattice fine{{{0, 0}, 100}, 20, 0, {}};
        for (int i = 0; i < fine.points() * fine.points(); ++i)
            fine.heightM.push_back(50 - std::abs(float(fine.at(i % fine.points(), 0).x)) / 4);
        const auto picture = reliefPicture(fine, fine, {0, 100}, 1e6);
        const auto green = [&](int column) {
            return int(picture[std::size_t(10 * fine.cells + column) * 3 + 1]);
        };

        QVERIFY(green(4) > green(15) + 40);
        QVERIFY(green(15) > 60); // no slope is black
    }
};

QTEST_GUILESS_MAIN(tst_Landscape)
#include "tst_Landscape.moc"
