// Makes a town with a given number of buildings on a hilly terrain, or reads one with GDAL alone
// and prints "milliseconds peakKilobytes buildings vertices" for comparison with the loading of the
// scene.
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <sys/resource.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr double SpacingM = 36; ///< between buildings, in both directions
constexpr double MiddleX = 650000;
constexpr double MiddleY = 6860000;
constexpr double PixelM = 25;
constexpr int Epsg = 2154;

using Clock = std::chrono::steady_clock;

OGRSpatialReference lambert()
{
    OGRSpatialReference srs;
    srs.importFromEPSG(Epsg);
    srs.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return srs;
}

/// Vertices of the shapes, in units of half a building; the last shape has a courtyard.
const std::vector<std::vector<std::pair<double, double>>> Outlines = {
    {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}},
    {{-1, -1}, {1, -1}, {1, 0}, {0, 0}, {0, 1}, {-1, 1}},
    {{-1, -1}, {1, -1}, {1, 1}, {0.4, 1}, {0.4, 0}, {-0.4, 0}, {-0.4, 1}, {-1, 1}},
    {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}};

class Town
{
public:
    explicit Town(int buildings) : m_side(static_cast<int>(std::ceil(std::sqrt(buildings)))) {}

    double halfM() const { return m_side * SpacingM / 2; }

    OGRPolygon building(int number, double &heightM)
    {
        const int row = number / m_side;
        const double x = MiddleX + (number % m_side + 0.5) * SpacingM - halfM();
        const double y = MiddleY + (row + 0.5) * SpacingM - halfM();
        const auto kind = static_cast<std::size_t>(share() * 10);
        const std::size_t shape = kind < 6 ? 0 : kind < 8 ? 1 : kind < 9 ? 2 : 3;
        const double width = 6 + 9 * share();
        const double depth = 5 + 7 * share();
        const double turn = share() < 0.7 ? 0.2 : share();
        heightM = 3 + std::floor(share() * share() * 120) / 4;
        OGRPolygon polygon;
        const auto add = [&](double scale) {
            OGRLinearRing ring;
            for (const auto &[east, north] : Outlines[shape]) {
                const double across = east * width * scale;
                const double along = north * depth * scale;
                ring.addPoint(x + across * std::cos(turn) - along * std::sin(turn),
                              y + across * std::sin(turn) + along * std::cos(turn));
            }
            ring.closeRings();
            polygon.addRing(&ring);
        };
        add(1);
        if (shape == 3)
            add(0.4);
        return polygon;
    }

private:
    double share() { return std::generate_canonical<double, 32>(m_chance); }

    int m_side;
    std::mt19937 m_chance{7};
};

void makeFootprints(const std::string &file, int buildings)
{
    GDALDriver *driver = GetGDALDriverManager()->GetDriverByName("ESRI Shapefile");
    const GDALDatasetUniquePtr dataset(driver->Create(file.c_str(), 0, 0, 0, GDT_Unknown, nullptr));
    OGRSpatialReference srs = lambert();
    OGRLayer *layer = dataset->CreateLayer("buildings", &srs, wkbPolygon);
    OGRFieldDefn name("NAME", OFTString);
    OGRFieldDefn height("HEIGHT", OFTReal);
    layer->CreateField(&name);
    layer->CreateField(&height);
    Town town(buildings);
    for (int i = 0; i < buildings; ++i) {
        OGRFeature feature(layer->GetLayerDefn());
        double heightM = 0;
        const OGRPolygon shape = town.building(i, heightM);
        feature.SetField(0, ("building " + std::to_string(i)).c_str());
        feature.SetField(1, heightM);
        feature.SetGeometry(&shape);
        if (layer->CreateFeature(&feature) != OGRERR_NONE)
            std::exit(1);
    }
}

void makeTerrain(const std::string &file, double halfM)
{
    const int size = static_cast<int>(2 * halfM / PixelM);
    GDALDriver *driver = GetGDALDriverManager()->GetDriverByName("GTiff");
    const GDALDatasetUniquePtr dataset(
        driver->Create(file.c_str(), size, size, 1, GDT_Float32, nullptr));
    double place[6] = {MiddleX - halfM, PixelM, 0, MiddleY + halfM, 0, -PixelM};
    dataset->SetGeoTransform(place);
    const OGRSpatialReference srs = lambert();
    dataset->SetSpatialRef(&srs);
    std::vector<float> row(static_cast<std::size_t>(size));
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x)
            row[static_cast<std::size_t>(x)] = static_cast<float>(
                60 + 40 * std::sin(x * PixelM / 900) * std::cos(y * PixelM / 700));
        if (dataset->GetRasterBand(1)->RasterIO(GF_Write, 0, y, size, 1, row.data(), size, 1,
                                                GDT_Float32, 0, 0, nullptr) != CE_None)
            std::exit(1);
    }
}

/// Reads every footprint, its height and the vertices of its rings into arrays.
int readAlone(const std::string &file)
{
    const Clock::time_point start = Clock::now();
    const GDALDatasetUniquePtr dataset(GDALDataset::Open(file.c_str(), GDAL_OF_VECTOR));
    if (!dataset)
        return 1;
    std::vector<double> heights;
    std::vector<OGRRawPoint> points;
    OGRLayer &layer = *dataset->GetLayer(0);
    const int field = layer.GetLayerDefn()->GetFieldIndex("HEIGHT");
    for (const auto &feature : layer) {
        heights.push_back(feature->GetFieldAsDouble(field));
        for (const OGRLinearRing *ring : *feature->GetGeometryRef()->toPolygon()) {
            points.resize(points.size() + static_cast<std::size_t>(ring->getNumPoints()));
            ring->getPoints(points.data() + points.size() - ring->getNumPoints());
        }
    }
    const double taken = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%.1f %ld %zu %zu\n", taken, usage.ru_maxrss, heights.size(), points.size());
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const std::string task = argc > 1 ? argv[1] : "";
    GDALAllRegister();
    if (task == "make" && argc == 5) {
        const int buildings = std::atoi(argv[4]);
        makeFootprints(argv[2], buildings);
        makeTerrain(argv[3], Town(buildings).halfM() + 500);
        return 0;
    }
    if (task == "terrain" && argc == 4) {
        makeTerrain(argv[2], std::atof(argv[3]));
        return 0;
    }
    if (task == "gdal" && argc == 3)
        return readAlone(argv[2]);
    std::fputs("usage: bench_buildings make FILE.shp TERRAIN.tif BUILDINGS\n"
               "       bench_buildings terrain TERRAIN.tif HALF-WIDTH-M\n"
               "       bench_buildings gdal FILE.shp\n",
               stderr);
    return 2;
}
