#include "plugins/scene/reading/SceneFacts.h"

#include <iomanip>
#include <locale>
#include <sstream>
#include <string>

namespace vlt::scene {

void setFrame(osg::Group &scene, const SceneFrame &frame)
{
    const osg::Vec2d &centre = frame.local->centre();
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::setprecision(12) << "centre=" << centre.x() << ' ' << centre.y();
    scene.addDescription(text.str());
    scene.addDescription("srs=" + frame.srs);
}

void setCount(osg::Group &scene, std::string_view key, std::size_t count)
{
    scene.addDescription(std::string(key) + '=' + std::to_string(count));
}

void setCut(osg::Group &scene)
{
    scene.addDescription("cut");
}

} // namespace vlt::scene
