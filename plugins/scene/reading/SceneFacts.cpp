#include "plugins/scene/reading/SceneFacts.h"

#include "contract/SceneFactKeys.h"

#include <iomanip>
#include <locale>
#include <sstream>
#include <string>

namespace vlt::scene {

namespace facts = contract::facts;

void setFrame(osg::Group &scene, const SceneFrame &frame)
{
    const osg::Vec2d &centre = frame.local->centre();
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::setprecision(12) << facts::Centre << '=' << centre.x() << ' ' << centre.y();
    scene.addDescription(text.str());
    scene.addDescription(facts::System + ('=' + frame.srs));
}

void setCount(osg::Group &scene, std::string_view key, std::size_t count)
{
    scene.addDescription(std::string(key) + '=' + std::to_string(count));
}

void setCut(osg::Group &scene)
{
    scene.addDescription(facts::Cut);
}

} // namespace vlt::scene
