// Loads a layer through the scene library's loader, draws it off screen from all sides, over a
// terrain if one is named, and prints the times and the memory as lines "name value".
#include "contract/ReaderOptions.h"
#include "contract/SceneFactKeys.h"
#include "contract/ScenePlace.h"
#include "landscape/scene/GroundNode.h"
#include "landscape/scene/Light.h"
#include "landscape/scene/Sky.h"

#include <osg/ComputeBoundsVisitor>
#include <osg/GraphicsContext>
#include <osg/ValueObject>
#include <osgDB/ReadFile>
#include <osgDB/WriteFile>
#include <osgViewer/Viewer>

#include <sys/resource.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int Width = 1280;
constexpr int Height = 800;
constexpr int Frames = 72; ///< per turn

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Maximum resident memory so far.
double peakMegabytes()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024 / 1e6;
}

bool openPicture(osgViewer::Viewer &viewer)
{
    osg::ref_ptr<osg::GraphicsContext::Traits> traits = new osg::GraphicsContext::Traits;
    traits->readDISPLAY();
    traits->width = Width;
    traits->height = Height;
    traits->pbuffer = true;
    const osg::ref_ptr<osg::GraphicsContext> context =
        osg::GraphicsContext::createGraphicsContext(traits);
    if (!context)
        return false;
    osg::Camera &camera = *viewer.getCamera();
    camera.setGraphicsContext(context);
    camera.setViewport(0, 0, Width, Height);
    camera.setProjectionMatrixAsPerspective(30, static_cast<double>(Width) / Height, 1, 10000);
    camera.setNearFarRatio(0.0002);
    viewer.setLightingMode(osg::View::NO_LIGHT);
    viewer.setThreadingModel(osgViewer::Viewer::SingleThreaded);
    viewer.realize();
    return true;
}

struct View
{
    const char *name;
    osg::Vec3d centre;
    double distanceM;
    double riseDeg; ///< elevation of the camera above the horizon
};

void look(osgViewer::Viewer &viewer, const View &view, double turnDeg)
{
    const double turn = osg::DegreesToRadians(turnDeg);
    const double rise = osg::DegreesToRadians(view.riseDeg);
    const osg::Vec3d away(std::cos(rise) * std::sin(turn), -std::cos(rise) * std::cos(turn),
                          std::sin(rise));
    viewer.getCamera()->setViewMatrixAsLookAt(view.centre + away * view.distanceM, view.centre,
                                              osg::Z_AXIS);
}

/// Waits until the frame is drawn: the renderer still works after it has received a frame.
double frameMilliseconds(osgViewer::Viewer &viewer)
{
    const Clock::time_point start = Clock::now();
    viewer.frame();
    osg::GraphicsContext &context = *viewer.getCamera()->getGraphicsContext();
    context.makeCurrent();
    glFinish();
    context.releaseContext();
    return millisecondsSince(start);
}

void savePicture(osgViewer::Viewer &viewer, const std::string &file)
{
    osg::ref_ptr<osg::Image> image = new osg::Image;
    osg::GraphicsContext &context = *viewer.getCamera()->getGraphicsContext();
    context.makeCurrent();
    image->readPixels(0, 0, Width, Height, GL_RGB, GL_UNSIGNED_BYTE);
    context.releaseContext();
    osgDB::writeImageFile(*image, file);
}

/// The landscape around a scene.
struct Landscape
{
    osg::ref_ptr<osg::Group> root = new osg::Group;
    std::unique_ptr<vlt::landscape::Terrain> terrain;
    osg::ref_ptr<osg::Node> ground;

    /// Makes the ground around a view as the programs do.
    double makeGround(const View &view)
    {
        if (!terrain)
            return 0;
        const Clock::time_point start = Clock::now();
        root->removeChild(ground);
        ground = vlt::landscape::makeGroundNode(vlt::landscape::makeGround(
            {terrain.get()}, {{view.centre.x(), view.centre.y()}, view.distanceM / 2}));
        root->addChild(ground);
        return millisecondsSince(start);
    }
};

bool openTerrain(Landscape &landscape, const osg::Node &scene, const std::string &file)
{
    vlt::landscape::FrameOnEarth place;
    std::string system;
    double x = 0;
    double y = 0;
    scene.getUserValue(vlt::contract::place::System, system);
    const std::string form = std::string(vlt::contract::facts::Centre) + "=%lf %lf";
    bool isPlaced = false;
    for (const std::string &line : scene.getDescriptions())
        isPlaced = isPlaced || std::sscanf(line.c_str(), form.c_str(), &x, &y) == 2;
    if (!isPlaced || place.srs.importFromWkt(system.c_str()) != OGRERR_NONE)
        return false;
    place.srs.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    place.frame = std::make_shared<vlt::localframe::LocalFrame>(
        &place.srs, std::vector<vlt::contract::Place>{{x, y}});
    landscape.terrain = vlt::landscape::Terrain::open(file, {}, place).file;
    landscape.root->addChild(vlt::landscape::makeSky());
    return landscape.terrain != nullptr;
}

/// Returns the time of the ground and of the first frame.
double measure(osgViewer::Viewer &viewer, Landscape &landscape, const View &view,
               const std::string &pictures)
{
    const double groundMs = landscape.makeGround(view);
    look(viewer, view, 0);
    const double firstMs = frameMilliseconds(viewer);
    if (landscape.terrain)
        std::printf("%s_ground_ms %.1f\n", view.name, groundMs);
    std::printf("%s_first_ms %.1f\n", view.name, firstMs);
    std::vector<double> times;
    for (int turn : {0, 1}) { // the first turn includes creating what becomes visible
        times.clear();
        for (int i = 0; i < Frames; ++i) {
            look(viewer, view, 360.0 * i / Frames);
            times.push_back(frameMilliseconds(viewer));
        }
        std::sort(times.begin(), times.end());
        if (turn == 0)
            std::printf("%s_worst_ms %.1f\n", view.name, times.back());
    }
    std::printf("%s_frame_ms %.2f\n", view.name, times[times.size() / 2]);
    if (!pictures.empty())
        savePicture(viewer, pictures + view.name + ".png");
    return groundMs + firstMs;
}

osg::ref_ptr<osg::Node> readScene(const std::string &file, const std::string &terrain)
{
    const osg::ref_ptr<osgDB::Options> options = new osgDB::Options;
    options->setPluginStringData(vlt::contract::DrawnDatum, "1");
    if (!terrain.empty())
        options->setPluginStringData(vlt::contract::TerrainDatum, terrain);
    return osgDB::readRefNodeFile(file, options);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2 || argc > 4) {
        std::fputs("usage: bench_scene FILE.lay [TERRAIN|- [PICTURES-PREFIX]]\n", stderr);
        return 2;
    }
    const std::string terrain = argc > 2 && std::string(argv[2]) != "-" ? argv[2] : "";
    const std::string pictures = argc > 3 ? argv[3] : "";
    osgViewer::Viewer viewer;
    if (!openPicture(viewer)) {
        std::fputs("no off-screen context: is there an X server?\n", stderr);
        return 1;
    }
    const double before = peakMegabytes();
    const Clock::time_point start = Clock::now();
    const osg::ref_ptr<osg::Node> scene = readScene(argv[1], terrain);
    if (!scene)
        return 1;
    const double loadMs = millisecondsSince(start);
    std::printf("load_ms %.1f\n", loadMs);
    std::printf("load_mb %.1f\n", peakMegabytes() - before);
    Landscape landscape;
    landscape.root->addChild(vlt::landscape::underLight(scene));
    GDALAllRegister();
    if (!terrain.empty() && !openTerrain(landscape, *scene, terrain)) {
        std::fputs("the terrain cannot be used\n", stderr);
        return 1;
    }
    viewer.setSceneData(landscape.root);

    const osg::BoundingSphere bound = scene->getBound();
    const osg::Vec3d ground(0, 0, bound.center().z());
    const double pictureMs =
        measure(viewer, landscape, {"all", bound.center(), 3.5 * bound.radius(), 30}, pictures);
    measure(viewer, landscape, {"region", ground, 8000, 25}, pictures);
    measure(viewer, landscape, {"near", ground, 900, 15}, pictures);
    std::printf("picture_ms %.1f\n", loadMs + pictureMs);
    std::printf("peak_mb %.1f\n", peakMegabytes());
    return 0;
}
