#include "CityTesting.h"
#include "plugins/scene/buildings/TexturedTile.h"
#include "support/Cases.h"
#include "support/GeoTiff.h"

#include <osg/Geode>
#include <osg/Geometry>
#include <osg/Texture2D>

#include <QTemporaryDir>
#include <QtTest>

#include <array>
#include <atomic>
#include <cmath>
#include <map>
#include <set>
#include <thread>

namespace {

using namespace vlt::contract;
using namespace vlt::scene;
using namespace towntest;
using Positions = Ring;
using Shown = std::map<int, std::set<double>>; ///< heights above the ground, by height of the image

constexpr double SkirtM = 2;
const osg::Vec3d Origin(10, 20, 1);
const Positions Square = square(25, 25, 20); ///< the corners are centres of pixels
const Positions Courtyard = square(15, 15, 70);

/// A building with these rings, the outer one first, in a system in metres.
CityModel townOf(const Rings &rings, float heightM)
{
    CityModel city;
    add(city, rings, heightM);
    city.frame.local =
        std::make_shared<LocalFrame>(vlt::localframe::moveToFrame(nullptr, city.positions));
    return city;
}

/// A vertex of a face with an image.
struct Corner
{
    osg::Vec2d position; ///< in the city's system
    double z;            ///< above the ground
    osg::Vec3 normal;
    std::array<int, 4> color; ///< colour of the image at the vertex
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
    std::vector<Corner> corners;
    int imageColumns = 0;
    std::set<double> plainLevels; ///< heights of faces in the city's colours
    unsigned edges = 0;

    Tile(const CityModel &city, const BuildingTextures &look, TextureImages &images)
    {
        const std::array<std::uint32_t, 1> all = {0};
        const osg::ref_ptr<osg::Node> node =
            buildTexturedTile(city, look, images, all, Origin, SkirtM);
        auto *geode = dynamic_cast<osg::Geode *>(node.get());
        for (unsigned i = 0; geode && i < geode->getNumDrawables(); ++i)
            take(city, *geode->getDrawable(i)->asGeometry());
    }

    void take(const CityModel &city, const osg::Geometry &geometry)
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
            imageColumns = texture->getImage()->s();
        for (unsigned i = 0; i < drawn.getNumIndices(); ++i) {
            const unsigned at = drawn.index(i);
            const osg::Vec3d vertex = osg::Vec3d(vertices[at]) + Origin - osg::Vec3d(0, 0, BaseM);
            if (!texture) {
                plainLevels.insert(vertex.z());
                continue;
            }
            const auto &normals = static_cast<const osg::Vec3Array &>(*geometry.getNormalArray());
            const auto &where = static_cast<const osg::Vec2Array &>(*geometry.getTexCoordArray(0));
            const osg::Vec2d position = city.frame.local->fromFrame({vertex.x(), vertex.y()});
            corners.push_back(
                {position, vertex.z(), normals[at], colorAt(*texture->getImage(), where[at])});
        }
    }
};

} // namespace

class tst_TexturedTile : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    /// Writes an image whose lower left corner is the city's origin.
    std::string imageOf(const char *name, int side, int bands, GDALDataType type,
                        const decltype(GeoTiff::value) &value,
                        const decltype(GeoTiff::finish) &finish = {})
    {
        return makeGeoTiff(m_dir.filePath(QLatin1String(name)),
                           {side, side, bands, type, northUp(0, 0, 10, side), "", value, finish});
    }

    /// The red value is the column, the green one the row, the blue one the height.
    BuildingTextures lookOf(TextureMode mode, const std::vector<double> &heights)
    {
        BuildingTextures look;
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

    static std::array<int, 4> expectedAt(const osg::Vec2d &position, int heightM)
    {
        return {20 * int(position.x() / 10), 20 * int((100 - position.y()) / 10), heightM, 255};
    }

    static bool goOn(double) { return true; }

    static std::shared_ptr<TextureImages> open(const CityModel &city, const BuildingTextures &look)
    {
        Notices notices;
        const auto images = TextureImages::open(city, look, {"/"}, notices, goOn);
        return notices.empty() ? images : nullptr;
    }

    static std::unique_ptr<TextureImage> openImage(const std::string &path, const char *srs = "",
                                                   bool isKeptOpen = true)
    {
        return TextureImage::open(path, srs, isKeptOpen);
    }

private Q_SLOTS:
    void initTestCase() { GDALAllRegister(); }

    void showsImages_data()
    {
        using enum TextureMode;
        // plain: heights of faces in the city's colours
        const Cases<TextureMode, Rings, float, unsigned, Shown, std::set<double>, unsigned> row(
            {"mode", "rings", "heightM", "corners", "shown", "plain", "edges"});
        row("a roof below all", Roofs, {Square}, 1.5, 6, {{3, {1.5}}}, {-SkirtM, 1.5});
        row("half-way: the lower one", Roofs, {Square}, 6, 6, {{3, {6}}}, {-SkirtM, 6});
        row("beyond half-way", Roofs, {Square}, 6.5, 6, {{9, {6.5}}}, {-SkirtM, 6.5});
        row("above all", Roofs, {Square}, 99, 6, {{21, {99}}}, {-SkirtM, 99});
        row("a complex one stays as it is", Roofs, {Courtyard, Square}, 10, 0, {}, {-SkirtM, 10});
        // The border is halfway between 3 and 9; two bands of eight walls.
        const Shown bands = {{3, {-SkirtM, 6}}, {9, {6, 12}}};
        row("walls", Walls, {Courtyard, Square}, 12, 2 * 8 * 6, bands, {12});
        row("clockwise walls", Walls, {turned(Courtyard), turned(Square)}, 12, 2 * 8 * 6, bands,
            {12});
        // Edges of the building and around each storey.
        row("two of three storeys", Storeys, {Square}, 12, 12, {{3, {3}}, {9, {9}}}, {},
            12 + 2 * 4);
        row("one just at the top", Storeys, {Square}, 3, 6, {{3, {3}}}, {}, 12 + 4);
        row("lower than all: plain", Storeys, {Square}, 2, 0, {}, {-SkirtM, 2});
    }

    void showsImages()
    {
        QFETCH(const TextureMode, mode);
        QFETCH(const Rings, rings);
        QFETCH(const float, heightM);
        QFETCH(const unsigned, corners);
        QFETCH(const Shown, shown);
        QFETCH(const unsigned, edges);
        const CityModel city = townOf(rings, heightM);
        BuildingTextures look = lookOf(mode, {21, 3, 9});
        look.bufferM = 10;
        look.processComplexBuildings = mode == TextureMode::Walls;
        const auto images = open(city, look);
        QVERIFY(images);

        const Tile tile(city, look, *images);

        QCOMPARE(tile.corners.size(), corners);
        Shown found;
        for (const Corner &corner : tile.corners) {
            const osg::Vec2d beside =
                corner.position + osg::Vec2d(corner.normal.x(), corner.normal.y()) * *look.bufferM;
            QCOMPARE(corner.color, expectedAt(beside, corner.color[2]));
            found[corner.color[2]].insert(corner.z);
            // The outside of the building is away from the middle; in the courtyard it is towards
            // the middle.
            const bool isHole = (corner.position - osg::Vec2d(35, 35)).length() < 15;
            const osg::Vec2d middle = isHole ? osg::Vec2d(35, 35) : osg::Vec2d(50, 50);
            if (mode == TextureMode::Walls)
                QCOMPARE((beside - middle).length() > (corner.position - middle).length(), !isHole);
            else
                QCOMPARE(corner.normal, osg::Vec3(0, 0, 1));
        }
        QCOMPARE(found, shown);
        QTEST(tile.plainLevels, "plain");
        QCOMPARE(tile.edges, edges);
        look.forceEdgeCreation = true;
        if (mode == TextureMode::Roofs)
            QCOMPARE(Tile(city, look, *images).edges, shown.empty() ? 0U : 12U);
    }

    void readsAllKindsOfPixels_data()
    {
        using Finish = std::function<void(GDALDataset &)>;
        // expected: colour of a pixel whose band b has 50 * b
        const Cases<int, GDALDataType, Finish, QList<int>> row(
            {"bands", "type", "finish", "expected"});
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
        row("grey", 1, GDT_Byte, {}, {50, 50, 50, 255});
        row("grey without data", 1, GDT_Byte, noData, {0});
        row("values from 0 to 250: a fifth of white", 1, GDT_Float32, {}, {51, 51, 51, 255});
        row("palette", 1, GDT_Byte, palette, {7, 8, 9, 255});
        row("colours", 3, GDT_Byte, {}, {50, 100, 150, 255});
        row("only red has no data", 3, GDT_Byte, noData, {50, 100, 150, 255});
        row("opacity", 4, GDT_Byte, opacity, {50, 100, 150, 200});
    }

    void readsAllKindsOfPixels()
    {
        QFETCH(const int, bands);
        QFETCH(const GDALDataType, type);
        QFETCH(const std::function<void(GDALDataset &)>, finish);
        QFETCH(const QList<int>, expected);
        const std::string path = imageOf(
            "kind.tif", 3, bands, type,
            [](int column, int, int band) { return column == 1 ? 50 * band : 125 * column; },
            finish);
        const auto image = openImage(path, "", false);
        Positions positions = {{15, 15}};
        image->toPixels(positions);
        QCOMPARE(positions.front(), osg::Vec2d(1.5, 1.5));

        const ImageCrop crop = image->crop(positions, 0, 64);

        const std::array<int, 4> found = colorAt(*crop.image, crop.coordinates(positions.front()));
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

        const ImageCrop crop = openImage(path)->crop({{0, 0}, {Side, Side}}, 100, MaxCropPixels);

        QCOMPARE(std::max(crop.image->s(), crop.image->t()), MaxCropPixels);
        constexpr int Middle = Side / 2;
        const auto opacityAt = [&crop](double column) {
            return colorAt(*crop.image, crop.coordinates({column, 1000.5}))[3];
        };
        QCOMPARE(opacityAt(Middle + 10), 255);
        QCOMPARE(opacityAt(Middle - 95), 255);
        QCOMPARE(opacityAt(Middle - 105), 0);

        // In a large city each building has only a small share of the memory.
        CityModel city = townOf({square(10, 10, 10 * Side - 20)}, 9);
        BuildingTextures look;
        look.images = {{path, 9}};
        QCOMPARE(Tile(city, look, *open(city, look)).imageColumns, MaxCropPixels);
        city.footprints.buildings.resize(100000, {0, 0, 0, 1}); // of another feature
        const int columns = Tile(city, look, *open(city, look)).imageColumns;
        QVERIFY(columns > 0 && columns <= 64);
    }

    void transformsToTheSystemOfTheImage()
    {
        // Pixels of 0.0001 degrees near the third meridian; the city is in UTM 31.
        const std::string path =
            makeGeoTiff(m_dir.filePath(QStringLiteral("degrees.tif")),
                        {100, 100, 1, GDT_Byte, northUp(2.995, 47.995, 1e-4, 100), "EPSG:4326"});
        OGRSpatialReference utm;
        utm.importFromEPSG(32631);
        char *wkt = nullptr;
        utm.exportToWkt(&wkt);
        const auto image = openImage(path, wkt);
        CPLFree(wkt);
        // In the middle of the zone: easting 500000, northing 0.9996 of the meridian's arc to 48
        // degrees north.
        Positions positions = {{500000, 5316300.4}, {NAN, 0}};

        image->toPixels(positions);

        QVERIFY(std::abs(positions[0].x() - 50) < 0.01);
        QVERIFY(std::abs(positions[0].y() - 50) < 0.1);
        QCOMPARE(image->crop(positions, 0, 64).coordinates(positions[1]), osg::Vec2());
    }

    void namesImagesThatItCannotShow()
    {
        BuildingTextures look = lookOf(TextureMode::Roofs, {3});
        const std::string unplaced = m_dir.filePath(QStringLiteral("unplaced.tif")).toStdString();
        GDALDatasetUniquePtr image(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
            unplaced.c_str(), 1, 1, 1, GDT_Byte, nullptr));
        image.reset();
        look.images.insert(look.images.end(), {{unplaced, 6},
                                               {"absent.tif", 9},
                                               {look.images.front().path, 3},
                                               {"http://localhost/a.tif", 12}});
        Notices notices;

        const auto images = TextureImages::open(townOf({Square}, 10), look, {"/"}, notices, goOn);

        QCOMPARE(images->levels().size(), 1U);
        const std::vector<std::string> reasons = {
            "unplaced.tif\" is not shown (it is not georeferenced)",
            "\"absent.tif\" is not shown (there is no such local file)",
            "3.tif\" is not shown (another image has the same height)",
            "\"http://localhost/a.tif\" is not shown (there is no such local file"};
        QCOMPARE(notices.size(), reasons.size());
        for (std::size_t i = 0; i < reasons.size(); ++i)
            QVERIFY2(notices[i].find(reasons[i]) != std::string::npos, notices[i].c_str());
    }

    void servesSeveralThreads()
    {
        const CityModel city = townOf({Square}, 12);
        const BuildingTextures look = lookOf(TextureMode::Walls, {3, 9});
        const auto images = open(city, look);
        std::atomic<unsigned> right = 0;
        constexpr std::size_t ThreadCount = 8;
        std::vector<std::jthread> threads;
        threads.reserve(ThreadCount);
        for (std::size_t i = 0; i < ThreadCount; ++i) {
            threads.emplace_back([&] {
                const Tile tile(city, look, *images);
                for (const Corner &corner : tile.corners)
                    right += corner.color == expectedAt(corner.position, corner.color[2]) ? 1 : 0;
            });
        }
        threads.clear();

        QCOMPARE(right.load(), 8 * 4 * 2 * 6U);
    }
};

QTEST_GUILESS_MAIN(tst_TexturedTile)
#include "tst_TexturedTile.moc"
