#include "plugins/scene/layers/SiteSymbols.h"

#include "plugins/scene/layers/SymbolSize.h"
#include "plugins/scene/mesh/Palette.h"
#include "plugins/scene/mesh/PictureHeight.h"
#include "plugins/scene/pylon/Sectors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>

namespace vlt::scene {

namespace {

constexpr double PieceDeg = 35; ///< maximum angle of a triangle of a petal
constexpr double WholeTurnDeg = 360;
constexpr double RingShare = 0.25; ///< of the radius, between petals that lie on each other
constexpr std::size_t MaxRings = 3;
constexpr std::size_t MaxPetals = 24; ///< of a symbol
constexpr float SmallSectorPx = 6;
constexpr float Never = 1e9F;
const Color Outline{24, 30, 40, 255};

/// The drawable is turned to the viewer, but petals are as those of a disc that lies level, and is
/// seen from at least 37 degrees above.
constexpr const char *Vertices = R"(
uniform float sectorM;
uniform float hiddenFromPx;
varying vec2 place;
varying vec3 shape;
void main()
{
    vec3 foot = (gl_ModelViewMatrix * gl_Vertex).xyz;
    bool isParallel = gl_ProjectionMatrix[3][3] == 1.0;
    float pxPerM = 0.5 * pictureHeight * gl_ProjectionMatrix[1][1]
                   / (isParallel ? 1.0 : max(-foot.z, 0.001));
    float sectorPx = sectorM * pxPerM;
    float largest = max(15.0 * unit(), sectorPx);
    bool isMast = gl_Normal.z == 0.0;
    bool isRound = !isMast && gl_Normal.z < 0.48;
    float radius = clamp(min(0.42 * gl_MultiTexCoord1.x * pxPerM, largest),
                         (isRound ? 2.0 : 4.0) * unit(), 30.0 * unit());
    vec3 up = gl_ModelViewMatrix[2].xyz;
    float mast = 1.4 * radius * max(up.y, 0.0) * smoothstep(4.0, 9.0, radius / unit());
    vec2 corner = gl_MultiTexCoord0.xy * radius * gl_Normal.z;
    vec2 ahead = gl_MultiTexCoord0.zw;
    vec2 level = corner.x * ahead + corner.y * vec2(ahead.y, -ahead.x);
    vec3 turned = gl_ModelViewMatrix[0].xyz * level.x + gl_ModelViewMatrix[1].xyz * level.y;
    vec2 aside = vec2(turned.x, up.z > 0.6 ? turned.y : -0.6 * turned.z / max(up.y, 0.1));
    aside.y += mast;
    if (isRound)
        aside = corner;
    if (isMast)
        aside = vec2(gl_MultiTexCoord0.y * min(1.1 * unit(), 0.12 * radius),
                     gl_MultiTexCoord0.x * mast);
    place = corner;
    shape = vec3(gl_Normal.xy, radius * gl_Normal.z);
    gl_FrontColor = gl_Color;
    gl_BackColor = gl_Color;
    vec4 at = gl_ProjectionMatrix * vec4(foot, 1.0);
    vec2 size = pictureHeight * vec2(gl_ProjectionMatrix[1][1] / gl_ProjectionMatrix[0][0], 1.0);
    at.xy += aside * 2.0 / size * at.w;
    vec4 front = gl_ProjectionMatrix * vec4(0.85 * foot, 1.0);
    if (!isParallel)
        at.z = max(front.z / front.w, -0.9999) * at.w;
    gl_Position = sectorPx >= hiddenFromPx * unit() ? vec4(2.0, 2.0, 2.0, 1.0) : at;
}
)";

/// `shape` has the sine and the cosine of half a petal's angle and the radius in pixels.
constexpr const char *Fragments = R"(
uniform vec3 outline;
varying vec2 place;
varying vec3 shape;
void main()
{
    float fromSide = shape.y < -0.99 ? 1000.0 : place.x * shape.x - abs(place.y) * shape.y;
    float inside = min(fromSide, shape.z - length(place)) / min(unit(), 0.12 * shape.z);
    gl_FragColor = vec4(mix(outline, gl_Color.rgb, smoothstep(0.8, 1.6, inside)), 1.0);
}
)";

osg::ref_ptr<osg::StateSet> makeState()
{
    const std::string head = std::string("#version 120\n") + PictureUnitShader;
    osg::ref_ptr<osg::Program> program = new osg::Program;
    program->addShader(new osg::Shader(osg::Shader::VERTEX, head + Vertices));
    program->addShader(new osg::Shader(osg::Shader::FRAGMENT, head + Fragments));
    osg::ref_ptr<osg::StateSet> state = new osg::StateSet;
    state->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    state->setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
    state->setAttributeAndModes(program);
    constexpr float Full = 255;
    state->addUniform(new osg::Uniform(
        "outline", osg::Vec3(Outline.r() / Full, Outline.g() / Full, Outline.b() / Full)));
    return state;
}

/// The arrays of a drawable, see Vertices: texture coordinates 0 are a corner in the frame of its
/// petal, in radii, and sine and cosine of the petal's azimuth; the normal is sine and cosine of
/// half its angle, and its radius relative to that of the symbol, 0 for a mast.
class SymbolMesh
{
public:
    void add(const SiteSymbol &symbol)
    {
        m_foot = symbol.foot;
        m_spacing = static_cast<float>(symbol.spacingM);
        const std::vector<Sector> sectors = symbolSectors(*symbol.design);
        if (sectors.empty()) {
            addPetal(0, WholeTurnDeg, RoundShare, palette::Radome);
            return;
        }
        addMast();
        std::vector<std::size_t> rings;
        for (std::size_t i = 0; i < sectors.size(); ++i) {
            std::size_t ring = 0;
            for (std::size_t below = 0; below < i; ++below) {
                if (doOverlap(sectors[below], sectors[i]))
                    ring = std::max(ring, rings[below] + 1);
            }
            rings.push_back(std::min(ring, MaxRings - 1));
        }
        for (std::size_t ring = 0; ring < MaxRings; ++ring) {
            for (std::size_t i = 0; i < sectors.size(); ++i) {
                if (rings[i] == ring)
                    addPetal(sectors[i].azimuthDeg + symbol.northDeg, sectors[i].beamWidthDeg,
                             1 - RingShare * static_cast<double>(ring), sectors[i].color);
            }
        }
    }

    osg::ref_ptr<osg::Geometry> finish(double padM) const
    {
        osg::BoundingBox bound;
        for (const osg::Vec3 &foot : *m_feet)
            bound.expandBy(osg::BoundingSphere(foot, static_cast<float>(padM)));
        m_colors->setNormalize(true);
        osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
        geometry->setUseDisplayList(false);
        geometry->setUseVertexBufferObjects(true);
        geometry->setVertexArray(m_feet);
        geometry->setNormalArray(m_shapes, osg::Array::BIND_PER_VERTEX);
        geometry->setColorArray(m_colors, osg::Array::BIND_PER_VERTEX);
        geometry->setTexCoordArray(0, m_corners, osg::Array::BIND_PER_VERTEX);
        geometry->setTexCoordArray(1, m_spacings, osg::Array::BIND_PER_VERTEX);
        geometry->addPrimitiveSet(m_triangles);
        geometry->setInitialBound(bound);
        return geometry;
    }

private:
    unsigned vertex(const osg::Vec3 &shape, const osg::Vec4 &corner, const Color &color)
    {
        m_feet->push_back(m_foot);
        m_shapes->push_back(shape);
        m_corners->push_back(corner);
        m_spacings->push_back(m_spacing);
        m_colors->push_back(color);
        return m_feet->size() - 1;
    }

    void addTriangle(unsigned a, unsigned b, unsigned c)
    {
        for (const unsigned index : {a, b, c})
            m_triangles->push_back(index);
    }

    void addMast()
    {
        std::array<unsigned, 4> corners{};
        for (unsigned i = 0; i < 4; ++i)
            corners[i] =
                vertex({}, osg::Vec4(i / 2 ? 1.F : 0.F, i % 2 ? 1.F : -1.F, 0, 0), Outline);
        addTriangle(corners[0], corners[1], corners[2]);
        addTriangle(corners[2], corners[1], corners[3]);
    }

    void addPetal(double azimuthDeg, double beamWidthDeg, double share, Color color)
    {
        color.a() = 255;
        const auto turned = [](double degrees) {
            const double angle = degrees * std::numbers::pi / 180;
            return osg::Vec2(static_cast<float>(std::sin(angle)),
                             static_cast<float>(std::cos(angle)));
        };
        const osg::Vec2 ahead = turned(azimuthDeg);
        const double widthDeg = std::min(beamWidthDeg, WholeTurnDeg);
        const osg::Vec3 shape(turned(widthDeg / 2), static_cast<float>(share));
        const auto corner = [&](const osg::Vec2 &at) {
            return vertex(shape, osg::Vec4(at.y(), at.x(), ahead.x(), ahead.y()), color);
        };
        const unsigned middle = corner({});
        const int pieces = std::max(1, static_cast<int>(std::ceil(widthDeg / PieceDeg)));
        for (int i = 0; i <= pieces; ++i) {
            const unsigned next =
                corner(turned(widthDeg * (static_cast<double>(i) / pieces - 0.5)));
            if (i > 0)
                addTriangle(middle, next - 1, next);
        }
    }

    osg::Vec3 m_foot;
    float m_spacing = 0;
    osg::ref_ptr<osg::Vec3Array> m_feet = new osg::Vec3Array;
    osg::ref_ptr<osg::Vec3Array> m_shapes = new osg::Vec3Array;
    osg::ref_ptr<osg::Vec4Array> m_corners = new osg::Vec4Array;
    osg::ref_ptr<osg::FloatArray> m_spacings = new osg::FloatArray;
    osg::ref_ptr<osg::Vec4ubArray> m_colors = new osg::Vec4ubArray;
    osg::ref_ptr<osg::DrawElementsUInt> m_triangles = new osg::DrawElementsUInt(GL_TRIANGLES);
};

} // namespace

SymbolSize symbolSize(double spacingPx, double sectorPx, double upright, double unit)
{
    const double largest = std::max(15 * unit, sectorPx);
    const double radius = std::clamp(std::min(0.42 * spacingPx, largest), 4 * unit, 30 * unit);
    const double share = std::clamp((radius / unit - 4) / 5, 0.0, 1.0);
    return {radius, 1.4 * radius * upright * share * share * (3 - 2 * share)};
}

std::vector<Sector> symbolSectors(const PylonDesign &design)
{
    PylonDesign shown = design;
    std::erase_if(shown.transmitters, [](const Transmitter &transmitter) {
        return transmitter.kind == AntennaKind::Dish;
    });
    std::vector<Sector> sectors = stackSectors(shown);
    if (sectors.size() > MaxPetals)
        sectors.resize(MaxPetals);
    return sectors;
}

SiteSymbols::SiteSymbols() : m_state(makeState()) {}

osg::ref_ptr<osg::Geometry> SiteSymbols::build(const std::vector<SiteSymbol> &symbols,
                                               double padM) const
{
    SymbolMesh mesh;
    for (const SiteSymbol &symbol : symbols)
        mesh.add(symbol);
    osg::ref_ptr<osg::Geometry> geometry = mesh.finish(padM);
    geometry->setStateSet(m_state);
    return geometry;
}

void SiteSymbols::prepare(osg::Group &scene, double sectorRadiusM)
{
    scene.addCullCallback(new PictureHeight);
    osg::StateSet *state = scene.getOrCreateStateSet();
    state->addUniform(new osg::Uniform("sectorM", static_cast<float>(sectorRadiusM)));
    state->addUniform(new osg::Uniform("hiddenFromPx", Never));
}

osg::ref_ptr<osg::Group> SiteSymbols::whereSectorsAreSmall(osg::Node *symbols)
{
    osg::ref_ptr<osg::Group> group = new osg::Group;
    group->addChild(symbols);
    group->getOrCreateStateSet()->addUniform(new osg::Uniform("hiddenFromPx", SmallSectorPx));
    return group;
}

} // namespace vlt::scene
