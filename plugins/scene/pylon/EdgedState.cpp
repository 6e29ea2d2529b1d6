#include "plugins/scene/pylon/EdgedState.h"

#include "plugins/scene/mesh/Palette.h"
#include "plugins/scene/mesh/PictureHeight.h"

#include <osg/Program>

#include <string>

namespace vlt::scene {

namespace {

constexpr const char *Vertices = R"(#version 120
varying vec2 place;
void main()
{
    place = gl_MultiTexCoord0.xy;
    gl_FrontColor = gl_Color;
    gl_Position = gl_ModelViewProjectionMatrix * gl_Vertex;
}
)";

/// The edges of a narrow face are fainter, so that its colour is seen.
constexpr const char *Fragments = R"(
varying vec2 place;
void main()
{
    vec2 sizePx = 1.0 / max(fwidth(place), vec2(1e-6));
    vec2 fromEdgePx = min(place, 1.0 - place) * sizePx;
    float px = min(fromEdgePx.x, fromEdgePx.y) / unit();
    float strength = clamp(min(sizePx.x, sizePx.y) / (10.0 * unit()), 0.3, 1.0);
    float edge = clamp(1.75 - 1.25 * px, 0.0, 1.0) * strength;
    gl_FragColor = vec4(gl_Color.rgb * mix(1.0, edgeShare, edge), mix(gl_Color.a, 1.0, edge));
}
)";

} // namespace

osg::ref_ptr<osg::StateSet> makeEdgedState(const osg::StateSet &sector)
{
    osg::ref_ptr<osg::Program> program = new osg::Program;
    program->addShader(new osg::Shader(osg::Shader::VERTEX, Vertices));
    program->addShader(
        new osg::Shader(osg::Shader::FRAGMENT, std::string("#version 120\n") + PictureUnitShader +
                                                   "uniform float edgeShare;\n" + Fragments));
    osg::ref_ptr<osg::StateSet> state = new osg::StateSet(sector);
    state->setAttributeAndModes(program);
    state->addUniform(new osg::Uniform("edgeShare", static_cast<float>(palette::EdgeShare)));
    return state;
}

} // namespace vlt::scene
