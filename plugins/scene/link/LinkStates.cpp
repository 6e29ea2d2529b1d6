#include "plugins/scene/link/LinkStates.h"

#include <osg/BlendFunc>
#include <osg/CullFace>
#include <osg/Depth>
#include <osg/LineWidth>
#include <osg/Program>

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

// The colours of an ellipsoid: `bend` has the place across it, and the sine of the angle between
// its axis and the view.
constexpr const char *RoundStripFragments = R"(#version 120
varying vec2 bend;
void main()
{
    float facing = bend.y * sqrt(max(0.0, 1.0 - bend.x * bend.x));
    gl_FragColor = vec4(gl_Color.rgb * (0.55 + 0.45 * facing), gl_Color.a);
}
)";

constexpr const char *ShellStripFragments = R"(#version 120
varying vec2 bend;
void main()
{
    float facing = bend.y * sqrt(max(0.0, 1.0 - bend.x * bend.x));
    gl_FragColor = vec4(gl_Color.rgb * (0.75 + 0.25 * facing), gl_Color.a);
}
)";

// Shades a tube as round without lights, and never so dark that its colour differs from the legend.
constexpr const char *RoundFragments = R"(#version 120
varying vec3 normal;
varying vec3 look;
void main()
{
    float facing = abs(dot(normalize(normal), normalize(look)));
    gl_FragColor = vec4(gl_Color.rgb * (0.55 + 0.45 * facing), gl_Color.a);
}
)";

// The opacity is the same in all directions, also along the link; the rim is slightly darker.
constexpr const char *ShellFragments = R"(#version 120
varying vec3 normal;
varying vec3 look;
void main()
{
    float facing = abs(dot(normalize(normal), normalize(look)));
    gl_FragColor = vec4(gl_Color.rgb * (0.75 + 0.25 * facing), gl_Color.a);
}
)";

osg::ref_ptr<osg::Program> makeProgram(const char *vertices, const char *fragments)
{
    osg::ref_ptr<osg::Program> program = new osg::Program;
    program->addShader(new osg::Shader(osg::Shader::VERTEX, vertices));
    if (fragments)
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
        state->setAttributeAndModes(makeProgram(FacingVertices, RoundFragments));
        break;
    case LinkStyle::Billboard:
        state->setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
        state->setAttributeAndModes(makeProgram(BandVertices, nullptr));
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
    const bool isOpaque = opacity == Opacity::Opaque;
    return makeZoneState(opacity,
                         makeProgram(FacingVertices, isOpaque ? RoundFragments : ShellFragments));
}

osg::ref_ptr<osg::StateSet> makeStripState(Opacity opacity)
{
    const bool isOpaque = opacity == Opacity::Opaque;
    return makeZoneState(
        opacity, makeProgram(StripVertices, isOpaque ? RoundStripFragments : ShellStripFragments));
}

} // namespace vlt::scene
