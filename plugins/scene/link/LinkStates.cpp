#include "plugins/scene/link/LinkStates.h"

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

/// The fragment shader of a surface that is darkest where the view is along it. An opaque surface
/// is shaded as round without lights, never so dark that its colour differs from the legend. The
/// opacity is the same in all directions, also along the link; the rim is slightly darker.
std::string shading(Facing facing, Opacity opacity)
{
    std::string text = "#version 120\n";
    // `bend` has the place across an ellipsoid, and the sine of the angle between its axis and the
    // view.
    text += facing == Facing::Bend ? "varying vec2 bend;\n"
                                     "float facing()\n"
                                     "{\n"
                                     "    return bend.y * sqrt(max(0.0, 1.0 - bend.x * bend.x));\n"
                                     "}\n"
                                   : "varying vec3 normal;\n"
                                     "varying vec3 look;\n"
                                     "float facing()\n"
                                     "{\n"
                                     "    return abs(dot(normalize(normal), normalize(look)));\n"
                                     "}\n";
    text += opacity == Opacity::Opaque ? "const float darkest = 0.55;\n"
                                       : "const float darkest = 0.75;\n";
    return text + "void main()\n"
                  "{\n"
                  "    float light = mix(darkest, 1.0, facing());\n"
                  "    gl_FragColor = vec4(gl_Color.rgb * light, gl_Color.a);\n"
                  "}\n";
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

/// Draws a line after the zone around it, over its near wall. Otherwise a zone that is as thin as
/// the line would hide parts of the line.
void drawAfterZones(osg::StateSet &state)
{
    constexpr int AfterTranslucentBin = 11;
    state.setRenderBinDetails(AfterTranslucentBin, "RenderBin");
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
            makeProgram(FacingVertices, shading(Facing::Normal, Opacity::Opaque)));
        break;
    case LinkStyle::Billboard:
        state->setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
        state->setAttributeAndModes(makeProgram(BandVertices));
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
    state->setAttributeAndModes(new osg::LineWidth(1));
    drawAfterZones(*state);
    return state;
}

osg::ref_ptr<osg::StateSet> makeEllipsoidState(Opacity opacity)
{
    return makeZoneState(opacity, makeProgram(FacingVertices, shading(Facing::Normal, opacity)));
}

osg::ref_ptr<osg::StateSet> makeStripState(Opacity opacity)
{
    return makeZoneState(opacity, makeProgram(StripVertices, shading(Facing::Bend, opacity)));
}

} // namespace vlt::scene
