#include "plugins/scene/reading/SceneFacts.h"

#include "contract/SceneFactKeys.h"
#include "contract/ScenePlace.h"

#include <osg/ValueObject>

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
    if (!frame.wkt.empty())
        scene.setUserValue(contract::place::System, frame.wkt);
}

void setCount(osg::Group &scene, std::string_view key, std::size_t count)
{
    scene.addDescription(std::string(key) + '=' + std::to_string(count));
}

void setGround(osg::Group &scene, double lowestM, const std::string &terrain,
               const std::string &noData)
{
    scene.setUserValue(contract::place::HeightM, lowestM);
    if (!terrain.empty())
        scene.setUserValue(contract::place::Terrain, terrain);
    if (!noData.empty())
        scene.setUserValue(contract::place::NoData, noData);
}

void setCut(osg::Group &scene)
{
    scene.addDescription(facts::Cut);
}

void setLegend(osg::Group &scene, const std::vector<contract::legend::Row> &rows)
{
    if (!rows.empty())
        scene.setUserValue(contract::legend::Key, contract::legend::textOf(rows));
}

} // namespace vlt::scene
