#include "plugins/scene/pylon/Sectors.h"

#include "plugins/scene/mesh/Solids.h"

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr double WholeTurnDeg = 360;
constexpr double TouchingDeg = 0.1; ///< sectors that only share an edge do not overlap
constexpr double TouchingM = 1e-6;

double beamWidth(const Transmitter &transmitter)
{
    if (transmitter.beamWidthDeg > 0)
        return transmitter.beamWidthDeg;
    return transmitter.kind == AntennaKind::Dish ? DefaultDishBeamDeg : DefaultBeamWidthDeg;
}

Color scaled(const Color &color, double share)
{
    const auto part = [share](unsigned char value) {
        return static_cast<unsigned char>(std::lround(value * share));
    };
    return {part(color.r()), part(color.g()), part(color.b()), color.a()};
}

/// Corners of the arc of a wedge, clockwise; those of a full circle end with the first one.
std::vector<osg::Vec3d> arcOf(const Sector &sector, double arcStepDeg)
{
    // an even number, so that there is a corner at the azimuth
    const int steps =
        2 * std::max(1, static_cast<int>(std::ceil(sector.beamWidthDeg / arcStepDeg / 2)));
    std::vector<osg::Vec3d> arc;
    for (int i = 0; i <= steps; ++i)
        arc.push_back(towards(sector.azimuthDeg +
                              sector.beamWidthDeg * (static_cast<double>(i) / steps - 0.5)) *
                      sector.radiusM);
    return arc;
}

struct Wedge
{
    osg::Vec3d low;
    osg::Vec3d high;
    std::vector<osg::Vec3d> arc;
    bool whole;
};

/// Adds the top or the bottom.
void addFan(Mesh &fill, const Wedge &wedge, bool top, const Color &color)
{
    const osg::Vec3d normal(0, 0, top ? 1 : -1);
    const osg::Vec3d centre = top ? wedge.high : wedge.low;
    const unsigned middle = fill.vertex(centre, normal, color);
    unsigned last = fill.vertex(centre + wedge.arc.front(), normal, color);
    for (std::size_t i = 1; i < wedge.arc.size(); ++i) {
        const unsigned next = fill.vertex(centre + wedge.arc[i], normal, color);
        if (top)
            fill.triangle(middle, next, last);
        else
            fill.triangle(middle, last, next);
        last = next;
    }
}

/// Adds the wall along the arc.
void addWall(Mesh &fill, const Wedge &wedge, const Color &color)
{
    unsigned last = 0;
    for (std::size_t i = 0; i < wedge.arc.size(); ++i) {
        osg::Vec3d normal = wedge.arc[i];
        normal.normalize();
        const unsigned next = fill.vertex(wedge.low + wedge.arc[i], normal, color);
        fill.vertex(wedge.high + wedge.arc[i], normal, color);
        if (i > 0)
            fill.quad(next, last, last + 1, next + 1);
        last = next;
    }
}

/// Adds one of the two straight walls; `left` as seen from the mast.
void addSide(Mesh &fill, const Wedge &wedge, bool left, const Color &color)
{
    const osg::Vec3d &arm = left ? wedge.arc.front() : wedge.arc.back();
    osg::Vec3d normal(arm.y(), -arm.x(), 0); // to the right of the arm
    normal.normalize();
    if (left)
        normal = -normal;
    const unsigned a = fill.vertex(wedge.low, normal, color);
    const unsigned b = fill.vertex(wedge.low + arm, normal, color);
    const unsigned c = fill.vertex(wedge.high + arm, normal, color);
    const unsigned d = fill.vertex(wedge.high, normal, color);
    if (left)
        fill.quad(b, a, d, c);
    else
        fill.quad(a, b, c, d);
}

void addEdges(Mesh &edges, const Wedge &wedge, const Color &color)
{
    const osg::Vec3 none;
    const auto corners = [&](const osg::Vec3d &arm) {
        const unsigned low = edges.vertex(wedge.low + arm, none, color);
        edges.vertex(wedge.high + arm, none, color);
        return low;
    };
    const unsigned first = corners(wedge.arc.front());
    unsigned last = first;
    for (std::size_t i = 1; i < wedge.arc.size(); ++i) {
        const unsigned next = corners(wedge.arc[i]);
        edges.line(last, next);
        edges.line(last + 1, next + 1);
        last = next;
    }
    if (wedge.whole)
        return;
    const unsigned tip = corners({});
    for (const unsigned end : {first, last}) {
        edges.line(end, end + 1);
        edges.line(tip, end);
        edges.line(tip + 1, end + 1);
    }
    edges.line(tip, tip + 1);
}

} // namespace

bool doOverlap(const Sector &one, const Sector &other)
{
    const double between =
        std::abs(std::remainder(one.azimuthDeg - other.azimuthDeg, WholeTurnDeg));
    return between < (one.beamWidthDeg + other.beamWidthDeg) / 2 - TouchingDeg;
}

std::vector<Sector> stackSectors(const PylonDesign &pylon)
{
    std::vector<const Transmitter *> rising;
    for (const Transmitter &transmitter : pylon.transmitters) {
        if (transmitter.color.a() > 0 && pylon.sectorRadiusM > 0 && pylon.sectorHeightM > 0)
            rising.push_back(&transmitter);
    }
    std::stable_sort(rising.begin(), rising.end(), [](const Transmitter *a, const Transmitter *b) {
        return a->heightM < b->heightM;
    });
    std::vector<Sector> placed; // by bottom: one pass upwards finds free space
    const double thickness = pylon.sectorHeightM;
    for (const Transmitter *transmitter : rising) {
        Sector sector{transmitter->azimuthDeg,
                      beamWidth(*transmitter),
                      pylon.sectorRadiusM,
                      std::max(0.0, transmitter->heightM - thickness / 2),
                      thickness,
                      transmitter->color};
        for (const Sector &other : placed) {
            const double step = thickness + pylon.sectorSpacingM;
            if (doOverlap(sector, other) && sector.bottomM < other.bottomM + step - TouchingM &&
                sector.bottomM > other.bottomM - step + TouchingM)
                sector.bottomM = other.bottomM + step;
        }
        const auto above = std::upper_bound(
            placed.begin(), placed.end(), sector,
            [](const Sector &a, const Sector &b) { return a.bottomM < b.bottomM; });
        placed.insert(above, sector);
    }
    return placed;
}

void addSector(Mesh &fill, Mesh &edges, const Sector &sector, const osg::Vec3d &foot,
               double arcStepDeg)
{
    // A view through a wedge passes two walls, which together have the opacity of the colour.
    Color color = sector.color;
    const double through = std::sqrt(1 - color.a() / 255.0);
    color.a() = static_cast<unsigned char>(std::lround(255 * (1 - through)));
    const Wedge wedge{foot + osg::Vec3d(0, 0, sector.bottomM),
                      foot + osg::Vec3d(0, 0, sector.bottomM + sector.heightM),
                      arcOf(sector, arcStepDeg), sector.beamWidthDeg >= WholeTurnDeg};
    addFan(fill, wedge, true, color);
    addFan(fill, wedge, false, scaled(color, 0.7));
    addWall(fill, wedge, scaled(color, 0.84));
    if (!wedge.whole) {
        addSide(fill, wedge, true, scaled(color, 0.76));
        addSide(fill, wedge, false, scaled(color, 0.76));
    }
    Color edge = scaled(sector.color, 0.55);
    edge.a() = 255;
    addEdges(edges, wedge, edge);
}

} // namespace vlt::scene
