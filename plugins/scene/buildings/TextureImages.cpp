#include "plugins/scene/buildings/TextureImages.h"

#include "coverage/LocalRaster.h"
#include "plugins/scene/buildings/CityMesh.h"
#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/Stopped.h"

#include <osg/LineWidth>
#include <osg/PolygonOffset>
#include <osg/Program>

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr std::size_t MaxOpenFiles = 128;
constexpr std::size_t MaxNotices = 1000;

// Horizontal faces have exactly the colours of the legend. Walls are darker the less they face the
// viewer, so that their corners are visible.
constexpr const char *Vertices = R"(#version 120
varying vec2 position;
varying float light;
void main()
{
    bool isParallel = gl_ProjectionMatrix[3][3] == 1.0;
    vec3 look = isParallel ? vec3(0.0, 0.0, -1.0) : (gl_ModelViewMatrix * gl_Vertex).xyz;
    vec3 normal = gl_NormalMatrix * gl_Normal;
    bool isLevel = abs(gl_Normal.z) > 0.5;
    light = isLevel ? 1.0 : 0.7 + 0.3 * abs(dot(normalize(normal), normalize(look)));
    position = gl_MultiTexCoord0.xy;
    gl_FrontColor = gl_Color;
    gl_BackColor = gl_Color;
    gl_Position = gl_ModelViewProjectionMatrix * gl_Vertex;
}
)";

constexpr const char *Fragments = R"(#version 120
uniform sampler2D picture;
varying vec2 position;
varying float light;
void main()
{
    vec4 image = texture2D(picture, position);
    gl_FragColor = vec4(mix(gl_Color.rgb, image.rgb, image.a) * light, 1.0);
}
)";

osg::ref_ptr<osg::StateSet> makeFaceState()
{
    osg::ref_ptr<osg::StateSet> state = new osg::StateSet;
    osg::ref_ptr<osg::Program> program = new osg::Program;
    program->addShader(new osg::Shader(osg::Shader::VERTEX, Vertices));
    program->addShader(new osg::Shader(osg::Shader::FRAGMENT, Fragments));
    state->setAttributeAndModes(program);
    state->addUniform(new osg::Uniform("picture", 0));
    state->setMode(GL_CULL_FACE, osg::StateAttribute::OFF); // floors are also visible from below
    state->setAttributeAndModes(new osg::PolygonOffset(1, 1));
    return state;
}

osg::ref_ptr<osg::StateSet> makePlainState()
{
    osg::ref_ptr<osg::StateSet> state = plainFaceState();
    state->setAttributeAndModes(new osg::PolygonOffset(1, 1)); // behind its edges
    return state;
}

osg::ref_ptr<osg::StateSet> makeEdgeState()
{
    osg::ref_ptr<osg::StateSet> state = new osg::StateSet;
    state->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    state->setAttributeAndModes(new osg::LineWidth(1));
    return state;
}

} // namespace

TextureImages::TextureImages(const CityModel &city)
    : m_faceState(makeFaceState())
    , m_plainState(makePlainState())
    , m_translucentState(scene::translucentState(*m_plainState))
    , m_edgeState(makeEdgeState())
{
    // The vectors are nearly the same in all parts of a city: over the few metres of a buffer, the
    // difference is much less than a pixel.
    const LocalFrame &frame = *city.frame.local;
    const osg::Vec2d middle = frame.fromFrame({0, 0});
    m_right = frame.fromFrame({1, 0}) - middle;
    m_up = frame.fromFrame({0, 1}) - middle;
}

std::shared_ptr<TextureImages> TextureImages::open(const CityModel &city,
                                                   const contract::BuildingTextures &textures,
                                                   const std::vector<std::string> &directories,
                                                   Notices &notices, const Progress &progress)
{
    std::shared_ptr<TextureImages> all(new TextureImages(city));
    std::vector<Level> &levels = all->m_levels;
    std::size_t done = 0;
    std::size_t refused = 0;
    for (const contract::BuildingImage &one : textures.images) {
        if (!progress(static_cast<double>(done++) / static_cast<double>(textures.images.size())))
            throw Stopped{};
        try {
            const auto hasItsHeight = [&one](const Level &level) {
                return level.heightM == one.heightM;
            };
            if (!std::isfinite(one.heightM))
                throw BadLayer("MESS_SCENE_WITHOUT_HEIGHT");
            if (std::any_of(levels.begin(), levels.end(), hasItsHeight))
                throw BadLayer("MESS_SCENE_SAME_HEIGHT");
            levels.push_back(
                {one.heightM, TextureImage::open(coverage::locateRaster(one.path, directories),
                                                 city.srs, levels.size() < MaxOpenFiles)});
        } catch (const BadLayer &fault) {
            if (++refused <= MaxNotices)
                notices.push_back(
                    contract::formatted("MESS_SCENE_BAD_IMAGE", {one.path, fault.what()}));
        }
    }
    if (refused > MaxNotices)
        notices.push_back(
            contract::formatted("MESS_SCENE_MORE_IMAGES", {std::to_string(refused - MaxNotices)}));
    std::sort(levels.begin(), levels.end(),
              [](const Level &a, const Level &b) { return a.heightM < b.heightM; });
    return all;
}

std::size_t TextureImages::nearest(double heightM) const
{
    const auto next =
        std::min_element(m_levels.begin(), m_levels.end(), [&](const Level &a, const Level &b) {
            return std::abs(a.heightM - heightM) < std::abs(b.heightM - heightM);
        });
    return static_cast<std::size_t>(next - m_levels.begin());
}

osg::Vec2d TextureImages::inSystem(const osg::Vec2d &way) const
{
    return m_right * way.x() + m_up * way.y();
}

} // namespace vlt::scene
