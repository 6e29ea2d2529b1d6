#include "plugins/scene/link/LinkStates.h"

#include "plugins/scene/mesh/Palette.h"

#include <osg/BlendFunc>
#include <osg/CullFace>
#include <osg/Depth>
#include <osg/LineWidth>
#include <osg/Program>

#include <string>

namespace vlt::scene {

namespace {

// The vectors from the eye to the points of a link differ in the link's direction only. Hence all
// its vertices, also those behind the viewer, compute the same sideways direction.
constexpr const char *BandVertices = R"(#version 120
varying vec2 bend;
void main()
{
    vec3 aside = (gl_ModelViewMatrix * vec4(gl_MultiTexCoord0.xyz, 0.0)).xyz;
    vec3 middle = (gl_ModelViewMatrix * gl_Vertex).xyz - aside;
    vec3 along = (gl_ModelViewMatrix * vec4(gl_Normal, 0.0)).xyz;
    bool isParallel = gl_ProjectionMatrix[3][3] == 1.0;
    vec3 turned = cross(along, isParallel ? vec3(0.0, 0.0, -1.0) : middle);
    float size = length(turned);
    if (size > 1e-6)
        aside = turned * (gl_MultiTexCoord0.w * length(aside) / size);
    bend = vec2(gl_MultiTexCoord0.w, 1.0);
    gl_FrontColor = gl_Color;
    gl_BackColor = gl_Color;
    gl_Position = gl_ProjectionMatrix * vec4(middle + aside, 1.0);
}
)";

// The vertex shader of tubes and ellipsoids: their colours depend on the angle to the view.
constexpr const char *FacingVertices = R"(#version 120
varying vec3 normal;
varying vec3 look;
void main()
{
    normal = gl_NormalMatrix * gl_Normal;
    bool isParallel = gl_ProjectionMatrix[3][3] == 1.0;
    look = isParallel ? vec3(0.0, 0.0, -1.0) : (gl_ModelViewMatrix * gl_Vertex).xyz;
    gl_FrontColor = gl_Color;
    gl_BackColor = gl_Color;
    gl_Position = gl_ModelViewProjectionMatrix * gl_Vertex;
}
)";

// Turns a strip like a band. All vertices of a strip compute the same distance of the eye from the
// ellipsoid's axis, like NearParts, so that either the strip or the ellipsoid is drawn.
constexpr const char *StripVertices = R"(#version 120
varying vec2 bend;
void main()
{
    vec3 aside = (gl_ModelViewMatrix * vec4(gl_MultiTexCoord0.xyz, 0.0)).xyz;
    vec3 middle = (gl_ModelViewMatrix * gl_Vertex).xyz - aside;
    vec3 along = (gl_ModelViewMatrix * vec4(gl_Normal, 0.0)).xyz;
    vec3 centre = (gl_ModelViewMatrix * vec4(gl_MultiTexCoord1.xyz, 1.0)).xyz;
    float at = clamp(-dot(centre, along) / dot(along, along), -1.0, 1.0);
    bool isNear = length(centre + at * along) < gl_MultiTexCoord1.w;
    bool isParallel = gl_ProjectionMatrix[3][3] == 1.0;
    vec3 look = isParallel ? vec3(0.0, 0.0, -1.0) : middle;
    vec3 turned = cross(along, look);
    float size = length(turned);
    if (size > 1e-6)
        aside = turned * (gl_MultiTexCoord0.w * length(aside) / size);
    bend = vec2(gl_MultiTexCoord0.w, size / (length(along) * length(look)));
    gl_FrontColor = gl_Color;
    gl_BackColor = gl_Color;
    gl_Position = isNear ? vec4(2.0, 2.0, 2.0, 1.0)
                         : gl_ProjectionMatrix * vec4(middle + aside, 1.0);
}
)";

/// What the vertex shader states about the angle between a surface and the view.
enum class Facing { Normal, Bend };

/// Functions of a fragment shader: how much a surface faces the eye, its half width on the screen,
/// and the distance of the fragment from its outline.
constexpr const char *FacingByNormal = R"(
varying vec3 normal;
varying vec3 look;
float facing()
{
    return abs(dot(normalize(normal), normalize(look)));
}
float halfWidthPx()
{
    vec3 turned = fwidth(cross(normalize(normal), normalize(look)));
    return 1.0 / max(length(turned), 1e-6);
}
float fromOutlinePx()
{
    float faced = facing();
    return 0.5 * faced / max(length(vec2(dFdx(faced), dFdy(faced))), 1e-6);
}
)";

// `bend` has the place across an ellipsoid, and the sine of the angle between its axis and the
// view.
constexpr const char *FacingByBend = R"(
varying vec2 bend;
float facing()
{
    return bend.y * sqrt(max(0.0, 1.0 - bend.x * bend.x));
}
float halfWidthPx()
{
    return 1.0 / max(fwidth(bend.x), 1e-6);
}
float fromOutlinePx()
{
    return (1.0 - abs(bend.x)) * halfWidthPx();
}
)";

/// The outline has a constant width on the screen. What is too thin for it has none.
constexpr const char *Shading = R"(
void main()
{
    float light = mix(darkest, 1.0, facing());
    float outline = (1.0 - smoothstep(1.0, 2.0, fromOutlinePx())) * smoothstep(1.5, 3.0, halfWidthPx());
    gl_FragColor = vec4(gl_Color.rgb * mix(light, edgeShare, outline),
                        mix(gl_Color.a, 1.0, outline));
}
)";

constexpr int FlatPercent = 100;
constexpr int OpaqueRoundPercent = 55;
constexpr int TranslucentRoundPercent = 75;

/// The fragment shader of a surface with a dark outline. A round one has no lights, it is darker
/// where the view is along it, never so dark that its colour differs from the legend. The opacity
/// is the same in all directions, also along the link.
///
/// @param darkestPercent  brightness where the view is along the surface
std::string shading(Facing facing, int darkestPercent)
{
    const auto share = [](const char *name, int percent) {
        return std::string("const float ") + name + " = " + std::to_string(percent) +
               ".0 / 100.0;\n";
    };
    return "#version 120\n" + share("darkest", darkestPercent) +
           share("edgeShare", static_cast<int>(100 * palette::EdgeShare)) +
           (facing == Facing::Bend ? FacingByBend : FacingByNormal) + Shading;
}

int darkestPercent(Opacity opacity)
{
    return opacity == Opacity::Opaque ? OpaqueRoundPercent : TranslucentRoundPercent;
}

osg::ref_ptr<osg::Program> makeProgram(const char *vertices, const std::string &fragments = {})
{
    osg::ref_ptr<osg::Program> program = new osg::Program;
    program->addShader(new osg::Shader(osg::Shader::VERTEX, vertices));
    if (!fragments.empty())
        program->addShader(new osg::Shader(osg::Shader::FRAGMENT, fragments));
    return program;
}

osg::ref_ptr<osg::StateSet> unlit()
{
    osg::ref_ptr<osg::StateSet> state = new osg::StateSet;
    state->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    return state;
}

void blend(osg::StateSet &state)
{
    state.setAttributeAndModes(
        new osg::BlendFunc(osg::BlendFunc::SRC_ALPHA, osg::BlendFunc::ONE_MINUS_SRC_ALPHA));
    state.setAttributeAndModes(new osg::Depth(osg::Depth::LEQUAL, 0, 1, false));
}

osg::ref_ptr<osg::StateSet> makeZoneState(Opacity opacity, osg::Program *program)
{
    osg::ref_ptr<osg::StateSet> state = unlit();
    state->setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
    state->setAttributeAndModes(program);
    // Walls of one colour can be blended in any order, so that they need not be sorted.
    if (opacity == Opacity::Translucent) {
        blend(*state);
        state->setRenderingHint(osg::StateSet::TRANSPARENT_BIN);
    }
    return state;
}

constexpr int CasingBin = 11; ///< after translucent drawables
constexpr double HairlinePx = 1.5;
constexpr double CasingPx = 1; ///< on each side of a line

/// Draws a line after the zone around it, over its near wall. Otherwise a zone that is as thin as
/// the line would hide parts of the line.
void drawAfterZones(osg::StateSet &state)
{
    state.setRenderBinDetails(CasingBin + 1, "RenderBin");
}

} // namespace

osg::ref_ptr<osg::StateSet> makeLineState(const LinkAppearance &appearance, Opacity opacity)
{
    osg::ref_ptr<osg::StateSet> state = unlit();
    switch (appearance.style) {
    case LinkStyle::Line:
        state->setAttributeAndModes(new osg::LineWidth(static_cast<float>(appearance.width)));
        break;
    case LinkStyle::Tube:
        state->setAttributeAndModes(new osg::CullFace(osg::CullFace::BACK));
        state->setAttributeAndModes(
            makeProgram(FacingVertices, shading(Facing::Normal, OpaqueRoundPercent)));
        break;
    case LinkStyle::Billboard:
        state->setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
        state->setAttributeAndModes(makeProgram(BandVertices, shading(Facing::Bend, FlatPercent)));
        break;
    }
    if (opacity == Opacity::Translucent)
        blend(*state);
    drawAfterZones(*state);
    return state;
}

osg::ref_ptr<osg::StateSet> makeHairlineState()
{
    osg::ref_ptr<osg::StateSet> state = unlit();
    state->setAttributeAndModes(new osg::LineWidth(HairlinePx));
    drawAfterZones(*state);
    return state;
}

osg::ref_ptr<osg::StateSet> makeCasingState(const LinkAppearance &appearance)
{
    const double linePx = appearance.style == LinkStyle::Line ? appearance.width : HairlinePx;
    osg::ref_ptr<osg::StateSet> state = unlit();
    state->setAttributeAndModes(new osg::LineWidth(static_cast<float>(linePx + 2 * CasingPx)));
    state->setAttributeAndModes(new osg::Depth(osg::Depth::LESS, 0, 1, false));
    state->setRenderBinDetails(CasingBin, "RenderBin");
    return state;
}

osg::ref_ptr<osg::StateSet> makeEllipsoidState(Opacity opacity)
{
    return makeZoneState(
        opacity, makeProgram(FacingVertices, shading(Facing::Normal, darkestPercent(opacity))));
}

osg::ref_ptr<osg::StateSet> makeStripState(Opacity opacity)
{
    return makeZoneState(
        opacity, makeProgram(StripVertices, shading(Facing::Bend, darkestPercent(opacity))));
}

} // namespace vlt::scene
