#include "plugins/scene/pylon/Sectors.h"

#include "plugins/scene/mesh/Palette.h"
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

/// Places on a face: both are 0 or 1 at its edges.
struct Faces
{
    Mesh &fill;
    osg::Vec2Array *places; ///< null: none

    unsigned vertex(const osg::Vec3d &at, const osg::Vec3d &normal, const Color &color,
                    const osg::Vec2 &place)
    {
        if (places)
            places->push_back(place);
        return fill.vertex(at, normal, color);
    }
};

/// Place of a corner along the arc of a wedge; a circle has no ends.
float alongArc(const Wedge &wedge, std::size_t corner)
{
    return wedge.whole ? 0.5F
                       : static_cast<float>(corner) / static_cast<float>(wedge.arc.size() - 1);
}

/// Adds the top or the bottom: two halves, because the middle lies on both arms.
void addFan(Faces &faces, const Wedge &wedge, bool top, const Color &color)
{
    const osg::Vec3d normal(0, 0, top ? 1 : -1);
    const osg::Vec3d centre = top ? wedge.high : wedge.low;
    const auto corner = [&](std::size_t i) {
        return faces.vertex(centre + wedge.arc[i], normal, color, {alongArc(wedge, i), 0});
    };
    const auto tip = [&](std::size_t arm) {
        return faces.vertex(centre, normal, color, {alongArc(wedge, arm), 0.5F});
    };
    unsigned middle = tip(0);
    unsigned last = corner(0);
    for (std::size_t i = 1; i < wedge.arc.size(); ++i) {
        if (faces.places && i == wedge.arc.size() / 2 + 1)
            middle = tip(wedge.arc.size() - 1);
        const unsigned next = corner(i);
        if (top)
            faces.fill.triangle(middle, next, last);
        else
            faces.fill.triangle(middle, last, next);
        last = next;
    }
}

/// Adds the wall along the arc.
void addWall(Faces &faces, const Wedge &wedge, const Color &color)
{
    unsigned last = 0;
    for (std::size_t i = 0; i < wedge.arc.size(); ++i) {
        osg::Vec3d normal = wedge.arc[i];
        normal.normalize();
        const float along = alongArc(wedge, i);
        const unsigned next = faces.vertex(wedge.low + wedge.arc[i], normal, color, {along, 0});
        faces.vertex(wedge.high + wedge.arc[i], normal, color, {along, 1});
        if (i > 0)
            faces.fill.quad(next, last, last + 1, next + 1);
        last = next;
    }
}

/// Adds one of the two straight walls; `left` as seen from the mast.
void addSide(Faces &faces, const Wedge &wedge, bool left, const Color &color)
{
    const osg::Vec3d &arm = left ? wedge.arc.front() : wedge.arc.back();
    osg::Vec3d normal(arm.y(), -arm.x(), 0); // to the right of the arm
    normal.normalize();
    if (left)
        normal = -normal;
    const unsigned a = faces.vertex(wedge.low, normal, color, {0, 0});
    const unsigned b = faces.vertex(wedge.low + arm, normal, color, {1, 0});
    const unsigned c = faces.vertex(wedge.high + arm, normal, color, {1, 1});
    const unsigned d = faces.vertex(wedge.high, normal, color, {0, 1});
    if (left)
        faces.fill.quad(b, a, d, c);
    else
        faces.fill.quad(a, b, c, d);
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

namespace {

Wedge addFaces(Faces faces, const Sector &sector, const osg::Vec3d &foot, double arcStepDeg)
{
    // A view through a wedge passes two walls, which together have the opacity of the colour.
    Color color = sector.color;
    const double through = std::sqrt(1 - color.a() / 255.0);
    color.a() = static_cast<unsigned char>(std::lround(255 * (1 - through)));
    Wedge wedge{foot + osg::Vec3d(0, 0, sector.bottomM),
                foot + osg::Vec3d(0, 0, sector.bottomM + sector.heightM), arcOf(sector, arcStepDeg),
                sector.beamWidthDeg >= WholeTurnDeg};
    addFan(faces, wedge, true, color);
    addFan(faces, wedge, false, palette::darkened(color, 0.7));
    addWall(faces, wedge, palette::darkened(color, 0.84));
    if (!wedge.whole) {
        addSide(faces, wedge, true, palette::darkened(color, 0.76));
        addSide(faces, wedge, false, palette::darkened(color, 0.76));
    }
    return wedge;
}

} // namespace

void addSector(Mesh &fill, Mesh &edges, const Sector &sector, const osg::Vec3d &foot)
{
    constexpr double FineArcDeg = 5;
    addEdges(edges, addFaces({fill, nullptr}, sector, foot, FineArcDeg),
             palette::edgeOf(sector.color));
}

void addCoarseSector(Mesh &fill, osg::Vec2Array *places, const Sector &sector,
                     const osg::Vec3d &foot)
{
    constexpr double CoarseArcDeg = 40;
    addFaces({fill, places}, sector, foot, CoarseArcDeg);
}

} // namespace vlt::scene
