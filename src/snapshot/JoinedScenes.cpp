#include "snapshot/JoinedScenes.h"

#include "contract/SceneLegend.h"
#include "contract/ScenePlace.h"
#include "localframe/TrueNorth.h"
#include "snapshot/SceneEarth.h"

#include <osg/MatrixTransform>
#include <osg/ValueObject>

#include <algorithm>
#include <cmath>

namespace vlt::snapshot {

namespace {

namespace place = contract::place;
using landscape::FrameOnEarth;

double northDeg(const FrameOnEarth &frame, const contract::Place &at)
{
    return localframe::northDirectionsDeg(*frame.frame, &frame.srs, {at}).front();
}

/// From the frame of a scene to another one; nothing without a transformation between the systems.
std::optional<osg::Matrixd> matrixBetween(const FrameOnEarth &from, const FrameOnEarth &to)
{
    contract::Place centre = from.frame->centre();
    const std::unique_ptr<OGRCoordinateTransformation> between(
        OGRCreateCoordinateTransformation(&from.srs, &to.srs));
    if (!between || !between->Transform(1, &centre.x, &centre.y))
        return std::nullopt;
    const contract::Place at = to.frame->toFrame(centre);
    if (std::isnan(at.x))
        return std::nullopt;
    const double turnDeg = northDeg(to, at) - northDeg(from, {0, 0});
    return osg::Matrixd::rotate(-osg::DegreesToRadians(turnDeg), osg::Vec3d(0, 0, 1)) *
           osg::Matrixd::translate(at.x, at.y, 0);
}

/// Gives the joined scene the terrain and the lowest ground of one of its layers, if these are
/// missing or higher.
void addGround(osg::Group &all, const osg::Node &scene)
{
    std::string terrain;
    std::string known;
    if (!all.getUserValue(place::Terrain, known) && scene.getUserValue(place::Terrain, terrain)) {
        all.setUserValue(place::Terrain, terrain);
        std::string noData;
        if (scene.getUserValue(place::NoData, noData))
            all.setUserValue(place::NoData, noData);
    }
    double lowestM = 0;
    double knownM = 0;
    if (scene.getUserValue(place::HeightM, lowestM))
        all.setUserValue(place::HeightM, all.getUserValue(place::HeightM, knownM)
                                             ? std::min(lowestM, knownM)
                                             : lowestM);
}

} // namespace

Scene joined(const QList<Scene> &scenes)
{
    if (scenes.size() == 1)
        return scenes.first();
    const std::optional<FrameOnEarth> first = frameOf(*scenes.first());
    if (!first)
        return nullptr;
    osg::ref_ptr<osg::Group> all = new osg::Group;
    std::string legend;
    for (const Scene &scene : scenes) {
        const std::optional<FrameOnEarth> frame = frameOf(*scene);
        const auto matrix = frame ? matrixBetween(*frame, *first) : std::nullopt;
        if (!matrix)
            return nullptr;
        const osg::ref_ptr<osg::MatrixTransform> moved = new osg::MatrixTransform(*matrix);
        moved->setDataVariance(osg::Object::DYNAMIC);
        moved->addChild(scene);
        all->addChild(moved);
        addGround(*all, *scene);
        legend += legendTextOf(*scene);
    }
    for (const std::string &fact : scenes.first()->getDescriptions())
        all->addDescription(fact);
    std::string system;
    if (scenes.first()->getUserValue(place::System, system))
        all->setUserValue(place::System, system);
    all->setUserValue(contract::legend::Key, legend);
    return all;
}

} // namespace vlt::snapshot
