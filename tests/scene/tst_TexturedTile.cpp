#include "TownTesting.h"
#include "buildings/TexturedTile.h"

#include <osg/Geode>
#include <osg/Geometry>
#include <osg/Texture2D>

#include <QTemporaryDir>
#include <QtTest>

#include <array>
#include <cmath>
#include <set>
#include <thread>

namespace {

using namespace vlt::scene;
using namespace towntest;
using Places = Ring;

constexpr double SkirtM = 2;
const osg::Vec3d Origin(10, 20, 1);
const Places Square = square(25, 25, 20); ///< corners in middles of pixels
const Places Courtyard = square(15, 15, 70);

/// A building of some rings, the first of which is the outer one, in a plane of metres.
Town townOf(const Rings &rings, float heightM)
{
    Town town;
    add(town, rings, heightM);
    town.frame.local = std::make_shared<LocalFrame>(nullptr, town.places);
    for (osg::Vec2d &place : town.places)
        place = town.frame.local->toFrame(place);
    return town;
}

/// A corner of a face that shows an image.
struct Corner
{
    osg::Vec2d place; ///< in the town's system
    double z;         ///< in the town's frame
    osg::Vec3 normal;
    std::array<int, 4> color; ///< of the image there
};

std::array<int, 4> colorAt(const osg::Image &image, const osg::Vec2 &at)
{
    const std::uint8_t *pixel =
        image.data(static_cast<unsigned>(at.x() * static_cast<float>(image.s())),
                   static_cast<unsigned>(at.y() * static_cast<float>(image.t())));
    return {pixel[0], pixel[1], pixel[2], pixel[3]};
}

struct Tile
{
    osg::ref_ptr<osg::Geode> geode;
    std::vector<Corner> corners;
    std::vector<const osg::Texture2D *> textures;
    std::set<double> plainLevels; ///< of faces in the town's colours
    unsigned edges = 0;

    Tile(const Town &town, const TexbTextures &look, TextureImages &images)
    {
        const std::array<std::uint32_t, 1> all = {0};
        const osg::ref_ptr<osg::Node> node =
            buildTexturedTile(town, look, images, all, Origin, SkirtM);
        geode = dynamic_cast<osg::Geode *>(node.get());
        for (unsigned i = 0; geode && i < geode->getNumDrawables(); ++i)
            take(town, *geode->getDrawable(i)->asGeometry());
    }

    void take(const Town &town, const osg::Geometry &geometry)
    {
        const osg::PrimitiveSet &drawn = *geometry.getPrimitiveSet(0);
        if (drawn.getMode() == GL_LINES) {
            edges += drawn.getNumPrimitives();
            return;
        }
        const auto &vertices = static_cast<const osg::Vec3Array &>(*geometry.getVertexArray());
        const auto *texture = dynamic_cast<const osg::Texture2D *>(
            geometry.getStateSet()->getTextureAttribute(0, osg::StateAttribute::TEXTURE));
        if (texture)
            textures.push_back(texture);
        for (unsigned i = 0; i < drawn.getNumIndices(); ++i) {
            const unsigned at = drawn.index(i);
            const osg::Vec3d vertex = osg::Vec3d(vertices[at]) + Origin;
            if (!texture) {
                plainLevels.insert(vertex.z());
                continue;
            }
            const auto &normals = static_cast<const osg::Vec3Array &>(*geometry.getNormalArray());
            const auto &where = static_cast<const osg::Vec2Array &>(*geometry.getTexCoordArray(0));
            const osg::Vec2d place = town.frame.local->fromFrame({vertex.x(), vertex.y()});
            corners.push_back(
                {place, vertex.z(), normals[at], colorAt(*texture->getImage(), where[at])});
        }
    }
};

} // namespace

class TexturedTileTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    /// Its lower left corner is the town's origin.
    std::string imageOf(const char *name, int side, int bands, GDALDataType type,
                        const decltype(Image::value) &value,
                        const decltype(Image::finish) &finish = {})
    {
        return make(m_dir.filePath(QLatin1String(name)),
                    {side, side, bands, type, {}, 10, "", value, finish});
    }

    /// Red tells the column, green the row, blue the height.
    TexbTextures lookOf(TextureMode mode, const std::vector<double> &heights)
    {
        TexbTextures look;
        look.mode = mode;
        look.edgeColor = "#010203";
        for (const double height : heights)
            look.images.push_back(
                {imageOf(qPrintable(QStringLiteral("%1.tif").arg(height)), 10, 3, GDT_Byte,
                         [height](int column, int row, int band) {
                             return band == 1 ? 20 * column : band == 2 ? 20 * row : height;
                         }),
                 height});
        return look;
    }

    static std::array<int, 4> expectedAt(const osg::Vec2d &place, int heightM)
    {
        return {20 * int(place.x() / 10), 20 * int((100 - place.y()) / 10), heightM, 255};
    }

    static bool goOn(double) { return true; }

    static std::shared_ptr<TextureImages> open(const Town &town, const TexbTextures &look)
    {
        Notices notices;
        const auto images = TextureImages::open(town, look, {"/"}, notices, goOn);
        return notices.empty() ? images : nullptr;
    }

private Q_SLOTS:
    void initTestCase() { GDALAllRegister(); }

    void roofsShowTheNextImage_data()
    {
        QTest::addColumn<double>("heightM");
        QTest::addColumn<int>("image");
        QTest::newRow("below all") << 1.5 << 3;
        QTest::newRow("half-way: the lower one") << 6. << 3;
        QTest::newRow("beyond half-way") << 6.5 << 9;
        QTest::newRow("above all") << 99. << 21;
    }

    void roofsShowTheNextImage()
    {
        QFETCH(const double, heightM);
        QFETCH(const int, image);
        const Town town = townOf({Square}, float(heightM));
        const TexbTextures look = lookOf(TextureMode::Roofs, {21, 3, 9});
        const auto images = open(town, look);
        QVERIFY(images);

        const Tile tile(town, look, *images);

        QCOMPARE(tile.corners.size(), 6U); // two triangles
        for (const Corner &corner : tile.corners) {
            QCOMPARE(corner.z, BaseM + heightM);
            QCOMPARE(corner.color, expectedAt(corner.place, image));
        }
        QCOMPARE(tile.plainLevels, std::set<double>({BaseM - SkirtM, BaseM + heightM}));
        QCOMPARE(tile.edges, 0U);
        TexbTextures edged = look;
        edged.forceEdgeCreation = true;
        QCOMPARE(Tile(town, edged, *images).edges, 12U);
    }

    void wallsHaveBandsOfColorsBesideThem_data()
    {
        QTest::addColumn<bool>("isReversed");
        QTest::newRow("as stored") << false;
        QTest::newRow("the other direction") << true;
    }

    void wallsHaveBandsOfColorsBesideThem()
    {
        QFETCH(const bool, isReversed);
        std::vector<Places> rings = {Courtyard, Square};
        for (Places &ring : rings) {
            if (isReversed)
                std::reverse(ring.begin(), ring.end());
        }
        const Town town = townOf(rings, 12);
        TexbTextures look = lookOf(TextureMode::Walls, {3, 9, 99});
        look.bufferM = 10;
        look.processComplexBuildings = true;
        const auto images = open(town, look);

        const Tile tile(town, look, *images);

        QCOMPARE(tile.corners.size(), 8 * 2 * 6U);
        std::map<int, std::set<double>> levels;
        for (const Corner &corner : tile.corners) {
            const osg::Vec2d beside =
                corner.place + osg::Vec2d(corner.normal.x(), corner.normal.y()) * look.bufferM;
            // outside is away from the middle around the building, towards it in the courtyard
            const bool isHole = corner.place.x() >= 25 && corner.place.x() <= 45 &&
                                corner.place.y() >= 25 && corner.place.y() <= 45;
            const osg::Vec2d middle = isHole ? osg::Vec2d(35, 35) : osg::Vec2d(50, 50);
            QCOMPARE((beside - middle).length() > (corner.place - middle).length(), !isHole);
            QCOMPARE(corner.color, expectedAt(beside, corner.color[2]));
            levels[corner.color[2]].insert(corner.z);
        }
        // borders half-way between 3 and 9
        const std::map<int, std::set<double>> expected = {{3, {BaseM - SkirtM, BaseM + 6}},
                                                          {9, {BaseM + 6, BaseM + 12}}};
        QCOMPARE(levels, expected);
        QCOMPARE(tile.plainLevels, std::set<double>({BaseM + 12}));
    }

    void storeysHaveFloorsWithinTheBuilding_data()
    {
        QTest::addColumn<float>("heightM");
        QTest::addColumn<QList<int>>("floors");
        QTest::newRow("two of three") << 12.F << QList<int>{3, 9};
        QTest::newRow("one just at the top") << 3.F << QList<int>{3};
        QTest::newRow("lower than all: plain") << 2.F << QList<int>{};
    }

    void storeysHaveFloorsWithinTheBuilding()
    {
        QFETCH(const float, heightM);
        QFETCH(const QList<int>, floors);
        const Town town = townOf({Square}, heightM);
        const TexbTextures look = lookOf(TextureMode::Storeys, {3, 9, 21});
        const auto images = open(town, look);

        const Tile tile(town, look, *images);

        QCOMPARE(tile.corners.size(), std::size_t(6 * floors.size()));
        QCOMPARE(tile.plainLevels.empty(), !floors.isEmpty());
        for (const Corner &corner : tile.corners) {
            QVERIFY(floors.contains(corner.color[2]));
            QCOMPARE(corner.z, BaseM + corner.color[2]);
            QCOMPARE(corner.color, expectedAt(corner.place, corner.color[2]));
        }
        // those of the whole, and around each floor
        QCOMPARE(tile.edges, floors.isEmpty() ? 0U : unsigned(12 + 4 * floors.size()));
    }

    void leavesComplexBuildingsAsTheyAre()
    {
        const Town town = townOf({Courtyard, Square}, 10);
        const TexbTextures look = lookOf(TextureMode::Roofs, {3});

        const Tile tile(town, look, *open(town, look));

        QVERIFY(tile.corners.empty());
        QCOMPARE(tile.plainLevels, std::set<double>({BaseM - SkirtM, BaseM + 10}));
    }

    void readsAllKindsOfPixels_data()
    {
        using Finish = std::function<void(GDALDataset &)>;
        QTest::addColumn<int>("bands");
        QTest::addColumn<int>("type");
        QTest::addColumn<Finish>("finish");
        QTest::addColumn<QList<int>>("expected"); ///< of a pixel whose band b is 50 * b
        const Finish noData = [](GDALDataset &image) {
            for (int i = 1; i <= image.GetRasterCount(); ++i)
                image.GetRasterBand(i)->SetNoDataValue(50);
        };
        const Finish palette = [](GDALDataset &image) {
            GDALColorTable table;
            const GDALColorEntry entry{7, 8, 9, 255};
            table.SetColorEntry(50, &entry);
            image.GetRasterBand(1)->SetColorTable(&table);
        };
        const Finish opacity = [](GDALDataset &image) {
            image.GetRasterBand(image.GetRasterCount())->SetColorInterpretation(GCI_AlphaBand);
        };
        QTest::newRow("grey") << 1 << int(GDT_Byte) << Finish() << QList<int>{50, 50, 50, 255};
        QTest::newRow("grey without data") << 1 << int(GDT_Byte) << noData << QList<int>{0};
        QTest::newRow("values from 0 to 250: a fifth of white")
            << 1 << int(GDT_Float32) << Finish() << QList<int>{51, 51, 51, 255};
        QTest::newRow("palette") << 1 << int(GDT_Byte) << palette << QList<int>{7, 8, 9, 255};
        QTest::newRow("colours") << 3 << int(GDT_Byte) << Finish() << QList<int>{50, 100, 150, 255};
        QTest::newRow("only red has no data")
            << 3 << int(GDT_Byte) << noData << QList<int>{50, 100, 150, 255};
        QTest::newRow("opacity") << 4 << int(GDT_Byte) << opacity << QList<int>{50, 100, 150, 200};
    }

    void readsAllKindsOfPixels()
    {
        QFETCH(const int, bands);
        QFETCH(const int, type);
        QFETCH(const std::function<void(GDALDataset &)>, finish);
        QFETCH(const QList<int>, expected);
        const std::string path = imageOf(
            "kind.tif", 3, bands, GDALDataType(type),
            [](int column, int, int band) { return column == 1 ? 50 * band : 125 * column; },
            finish);
        std::string reason;
        const auto image = TextureImage::open(path, {}, false, &reason);
        QVERIFY2(image, reason.c_str());
        Places places = {{15, 15}};
        image->toPixels(places);
        QCOMPARE(places.front(), osg::Vec2d(1.5, 1.5));

        const ImageCrop crop = image->crop(places, 0, 64);

        const std::array<int, 4> found = colorAt(*crop.image, crop.coordinates(places.front()));
        if (expected.size() == 1)
            QCOMPARE(found[3], 0);
        else
            QCOMPARE(QList<int>(found.begin(), found.end()), expected);
        const osg::Vec2 outside = crop.coordinates({-0.5, 1.5});
        QCOMPARE(colorAt(*crop.image, outside)[3], 0);
    }

    void dilatesAndStaysSmall()
    {
        constexpr int Side = 2100;
        const std::string path = imageOf(
            "large.tif", Side, 1, GDT_Byte,
            [](int column, int, int) { return column < Side / 2 ? 0 : 200; },
            [](GDALDataset &image) { image.GetRasterBand(1)->SetNoDataValue(0); });
        std::string reason;
        const auto image = TextureImage::open(path, {}, true, &reason);
        const Places whole = {{0, 0}, {Side, Side}};

        const ImageCrop crop = image->crop(whole, 100, MostCropPixels);

        QCOMPARE(std::max(crop.image->s(), crop.image->t()), MostCropPixels);
        const auto opacityAt = [&crop](double column) {
            return colorAt(*crop.image, crop.coordinates({column, 1000.5}))[3];
        };
        QCOMPARE(opacityAt(Side / 2 + 10), 255);
        QCOMPARE(opacityAt(Side / 2 - 95), 255);
        QCOMPARE(opacityAt(Side / 2 - 105), 0);

        // a building of a large town has little of the memory for all
        Town town = townOf({square(10, 10, 10 * Side - 20)}, 9);
        TexbTextures look;
        look.images = {{path, 9}};
        const auto sizeOf = [&] {
            return Tile(town, look, *open(town, look)).textures.front()->getImage()->s();
        };
        QCOMPARE(sizeOf(), MostCropPixels);
        town.footprints.buildings.resize(100000);
        QVERIFY(sizeOf() <= 64);
    }

    void transformsToTheSystemOfTheImage()
    {
        // pixels of 0.0001 degrees by the Greenwich meridian; the town's metres in UTM 31
        const std::string path = imageOf(
            "degrees.tif", 100, 3, GDT_Byte,
            [](int column, int row, int band) { return band == 1 ? column : row; },
            [](GDALDataset &image) {
                std::array<double, 6> placing{2.995, 1e-4, 0, 48.005, 0, -1e-4};
                OGRSpatialReference srs;
                srs.importFromEPSG(4326);
                image.SetGeoTransform(placing.data());
                image.SetSpatialRef(&srs);
            });
        OGRSpatialReference utm;
        utm.importFromEPSG(32631);
        char *wkt = nullptr;
        utm.exportToWkt(&wkt);
        const std::string srs = wkt;
        CPLFree(wkt);
        std::string reason;
        const auto image = TextureImage::open(path, srs, true, &reason);
        QVERIFY2(image, reason.c_str());
        // on the zone's middle: easting 500000, northing 0.9996 of the meridian's arc to 48 north
        Places places = {{500000, 5316300.4}, {NAN, 0}};

        image->toPixels(places);

        QVERIFY(std::abs(places[0].x() - 50) < 0.01);
        QVERIFY(std::abs(places[0].y() - 50) < 0.1);
        QCOMPARE(image->crop(places, 0, 64).coordinates(places[1]), osg::Vec2());
    }

    void namesImagesThatItCannotShow()
    {
        TexbTextures look = lookOf(TextureMode::Roofs, {3});
        const std::string unplaced =
            imageOf("unplaced.tif", 1, 1, GDT_Byte, [](int, int, int) { return 1; });
        {
            const GDALDatasetUniquePtr plain(
                GetGDALDriverManager()->GetDriverByName("GTiff")->Create(unplaced.c_str(), 1, 1, 1,
                                                                         GDT_Byte, nullptr));
        }
        look.images.push_back({unplaced, 6});
        look.images.push_back({"absent.tif", 9});
        look.images.push_back({look.images.front().path, 3});
        look.images.push_back({"http://localhost/a.tif", 12});
        Notices notices;

        const auto images = TextureImages::open(townOf({Square}, 10), look, {"/"}, notices, goOn);

        QCOMPARE(images->levels().size(), 1U);
        const QStringList reasons = {
            QStringLiteral("unplaced.tif\" is not shown (it has no place)"),
            QStringLiteral("\"absent.tif\" is not shown (no local file has this name)"),
            QStringLiteral("3.tif\" is not shown (another one has the same height)"),
            QStringLiteral("\"http://localhost/a.tif\" is not shown (no local file")};
        QCOMPARE(notices.size(), std::size_t(reasons.size()));
        for (int i = 0; i < reasons.size(); ++i)
            QVERIFY2(QString::fromStdString(notices[std::size_t(i)]).contains(reasons[i]),
                     notices[std::size_t(i)].c_str());
    }

    void servesSeveralThreads()
    {
        const Town town = townOf({Square}, 12);
        const TexbTextures look = lookOf(TextureMode::Walls, {3, 9});
        const auto images = open(town, look);
        std::array<std::size_t, 8> right{};
        std::vector<std::thread> threads;
        for (std::size_t &count : right) {
            threads.emplace_back([&] {
                const Tile tile(town, look, *images);
                for (const Corner &corner : tile.corners)
                    count += corner.color == expectedAt(corner.place, corner.color[2]) ? 1 : 0;
            });
        }
        for (std::thread &thread : threads)
            thread.join();

        for (const std::size_t count : right)
            QCOMPARE(count, 4 * 2 * 6U);
    }
};

QTEST_GUILESS_MAIN(TexturedTileTest)
#include "tst_TexturedTile.moc"
